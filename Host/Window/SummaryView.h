// The summaries of all panels, to read.
#pragma once

#include "PDEPlugInInterface.h"

#include <QTreeWidget>

namespace host {

class SummaryView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SummaryView(QWidget *parent = nullptr);

    /// Asks every panel anew; a panel without a summary is left out.
    void show(const PDEPanels &panels);

private:
    void addRow(QTreeWidgetItem &heading, const QString &title, const QString &value);
};

} // namespace host
