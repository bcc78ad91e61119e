// What will come out, to read.
#include "SummaryView.h"

#include "Foundation/PlainText.h"

#include <QHeaderView>

namespace host {

namespace {

constexpr int kWidthInLetters = 56;
constexpr int kRowPadding = 6;

} // namespace

SummaryView::SummaryView(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::TabFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Summary of the settings"));
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(0);
}

QSize SummaryView::sizeHint() const { return {kWidthInLetters * fontMetrics().averageCharWidth(), 0}; }

void SummaryView::show(const std::vector<SummaryRow> &rows)
{
    clear();
    for (const SummaryRow &row : rows) {
        auto *const item =
            new QTreeWidgetItem(this, {foundation::plainLine(row.title), foundation::plainLine(row.value)});
        item->setSizeHint(1, QSize(0, fontMetrics().height() + kRowPadding));
        for (const int column : {0, 1})
            item->setToolTip(column, foundation::asHtml(item->text(column)));
    }
    fitTitles();
}

void SummaryView::resizeEvent(QResizeEvent *event)
{
    QTreeWidget::resizeEvent(event);
    fitTitles();
}

/// Titles take what they need, but never the values' half.
void SummaryView::fitTitles() { header()->resizeSection(0, qMin(sizeHintForColumn(0), viewport()->width() / 2)); }

} // namespace host
