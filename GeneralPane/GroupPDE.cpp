// Choices are marked as they are made: nothing is left to be saved.
#include "GroupPDE.h"

#include "Foundation/Bundle.h"
#include "Toolkit/Alert.h"

#include <QFormLayout>
#include <QScrollArea>

#include <algorithm>

namespace {

constexpr auto kPanelKind = "org.qnprint.general.pde.GroupPDEKind";
constexpr QMargins kMargins(16, 12, 16, 12);
constexpr auto kCustom = "Custom";

} // namespace

QString GroupPDE::panelKind() { return kPanelKind; }

std::optional<QStringList> GroupPDE::supportedPPDOptionKeys()
{
    QStringList keys;
    for (const ShownOption &option : m_group.options)
        keys.append(option.keyword);
    return keys;
}

QWidget *GroupPDE::panelView()
{
    if (!kPDEView)
        kPDEView = makeView();
    return kPDEView;
}

QWidget *GroupPDE::makeView()
{
    auto *const view = new QScrollArea;
    view->setFrameShape(QFrame::NoFrame);
    view->setWidgetResizable(true);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setFocusPolicy(Qt::NoFocus);
    auto *const content = new QWidget;
    auto *const form = new QFormLayout(content);
    form->setContentsMargins(kMargins);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    toolkit::InterfaceOwner &owner = *this;
    m_rows.clear();
    m_rows.reserve(m_group.options.size());
    for (const ShownOption &option : m_group.options) {
        if (!option.heading.isEmpty())
            addHeading(option.heading, *form);
        m_rows.emplace_back(option, *form, owner);
    }
    view->setWidget(content);
    setPDEItems();
    return view;
}

void GroupPDE::addHeading(const QString &text, QFormLayout &form)
{
    auto *const heading = new toolkit::LabelControl(form.parentWidget());
    heading->setStringValue(text);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    form.addRow(heading);
}

void GroupPDE::setPDEItems()
{
    for (OptionRow &row : m_rows)
        refresh(row);
}

void GroupPDE::refresh(OptionRow &row) const { row.show(marked(row.option().keyword)); }

QString GroupPDE::marked(const QString &keyword) const
{
    const ppd_choice_t *const choice = ppd ? ppdFindMarkedChoice(ppd, keyword.toUtf8().constData()) : nullptr;
    return choice ? QString::fromUtf8(choice->choice) : QString();
}

OptionRow *GroupPDE::rowOf(const QWidget *control)
{
    const auto found = std::ranges::find_if(m_rows, [control](const OptionRow &row) { return row.owns(control); });
    return found == m_rows.end() ? nullptr : &*found;
}

void GroupPDE::mark(const OptionRow &row, const std::optional<QString> &value)
{
    if (value)
        pdePluginCallbackObject->willChangePPDOptionKeyValue(row.option().keyword, *value);
}

void GroupPDE::performAction(const QString &, QWidget *sender)
{
    OptionRow *const row = rowOf(sender);
    if (!row)
        return;
    if (row->isField(sender))
        return mark(*row, row->shownValue());
    mark(*row, row->chosenValue());
    refresh(*row);
    if (row->showsEntry())
        row->beginEntry();
}

void GroupPDE::controlTextDidChange(QWidget *field)
{
    if (const OptionRow *const row = rowOf(field))
        mark(*row, row->shownValue());
}

void GroupPDE::PPDOptionKeyValueDidChange(const std::optional<QString> &key, const std::optional<QString> &)
{
    for (OptionRow &row : m_rows)
        if (row.option().keyword == key)
            refresh(row);
}

bool GroupPDE::shouldPrint()
{
    const auto wrong =
        std::ranges::find_if(m_rows, [](const OptionRow &row) { return row.showsEntry() && !row.shownValue(); });
    if (wrong == m_rows.end())
        return true;
    const ShownOption &option = wrong->option();
    toolkit::Alert alert;
    alert.addButtonWithTitle(localized("OK"));
    alert.setMessageText(option.entry->refusal());
    alert.setInformativeText(option.title + ": " + option.entry->limits());
    alert.runModal();
    return false;
}

QString GroupPDE::valueText(const ShownOption &option) const
{
    const QString choice = marked(option.keyword);
    if (choice == kCustom && option.entry)
        return option.entry->currentForAll();
    const auto found = std::ranges::find(option.choices, choice, &ShownChoice::keyword);
    return found == option.choices.end() ? choice : found->title;
}

std::optional<PDESummary> GroupPDE::summaryInfo()
{
    PDESummary summary;
    for (const ShownOption &option : m_group.options) {
        summary.values.insert(option.title, valueText(option));
        summary.displayOrder.append(option.title);
    }
    return summary;
}

std::vector<PDEPanelInspection::Control> GroupPDE::controls() const
{
    std::vector<Control> all;
    for (const OptionRow &row : m_rows)
        std::ranges::move(row.controls(), std::back_inserter(all));
    return all;
}

std::vector<PDEPanelInspection::Selection> GroupPDE::selections() const
{
    std::vector<Selection> all;
    for (const ShownOption &option : m_group.options) {
        const QString choice = marked(option.keyword);
        all.push_back({option.keyword, choice.isEmpty() ? std::nullopt : std::optional(choice)});
    }
    return all;
}
