// What will come out, to read.
#pragma once

#include "Session/DialogSession.h"

#include <QTreeWidget>

namespace host {

class SummaryView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SummaryView(QWidget *parent = nullptr);

    void show(const std::vector<SummaryRow> &rows);
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitTitles();
};

} // namespace host
