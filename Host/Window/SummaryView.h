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

    /// Asks every panel anew; a panel without a summary is left out. Null empties the view.
    void show(const PDEPanels *panels);
};

} // namespace host
