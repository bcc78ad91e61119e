// The summaries of all panels.
#include "SummaryView.h"

#include "Foundation/PlainText.h"

#include <QHeaderView>

namespace host {

namespace {

constexpr int kRowPadding = 5;

} // namespace

SummaryView::SummaryView(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(12);
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Summary of the settings"));
    header()->setStretchLastSection(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
}

void SummaryView::show(const PDEPanels &panels)
{
    clear();
    for (const auto &panel : panels) {
        const auto summary = panel->summaryInfo();
        if (!summary || summary->displayOrder.isEmpty())
            continue;
        auto *heading = new QTreeWidgetItem(this, {panel->panelName()});
        QFont bold = font();
        bold.setBold(true);
        heading->setFont(0, bold);
        heading->setFirstColumnSpanned(true);
        heading->setSizeHint(0, QSize(0, fontMetrics().height() + 2 * kRowPadding));
        for (const QString &title : summary->displayOrder)
            addRow(*heading, title, summary->values.value(title));
    }
    expandAll();
}

void SummaryView::addRow(QTreeWidgetItem &heading, const QString &title, const QString &value)
{
    auto *row = new QTreeWidgetItem(&heading, {title, value});
    row->setToolTip(1, foundation::asHtml(value));
    row->setSizeHint(
        0, QSize(fontMetrics().horizontalAdvance(title) + 2 * kRowPadding, fontMetrics().height() + kRowPadding));
}

} // namespace host
