// A row of a form.
#include "OptionRow.h"

#include <QFormLayout>
#include <QHBoxLayout>

#include <algorithm>

using toolkit::CheckControl;
using toolkit::FieldControl;
using toolkit::LabelControl;
using toolkit::PopUpControl;
using toolkit::RadioControl;

namespace {

constexpr int kWidestLabel = 180; // the controls keep the larger part of the panel
constexpr int kShortestMenu = 5;  // in characters
constexpr auto kCustom = "Custom";

template <class C>
C *as(QWidget *widget)
{
    return static_cast<C *>(widget);
}

PopUpControl *menuOf(const ShownOption &option, QWidget *parent)
{
    auto *const menu = new PopUpControl(parent);
    menu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // long texts are cut, not measured
    menu->setMinimumContentsLength(kShortestMenu);
    menu->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (const ShownChoice &choice : option.choices)
        menu->insertTitle(choice.title, menu->count());
    return menu;
}

RadioControl *listOf(const ShownOption &option, QWidget *parent)
{
    auto *const list = new RadioControl(parent);
    QStringList titles;
    for (const ShownChoice &choice : option.choices)
        titles.append(choice.title);
    list->setRows(titles);
    list->setAccessibleName(option.title);
    return list;
}

CheckControl *checkBoxOf(const ShownOption &option, QWidget *parent)
{
    auto *const box = new CheckControl(parent);
    box->setTitle(option.title);
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // or the text would be the least
    return box;
}

} // namespace

OptionRow::OptionRow(const ShownOption &option, QFormLayout &form, toolkit::InterfaceOwner &owner)
    : m_option(&option)
{
    QWidget *const parent = form.parentWidget();
    m_control = makeControl(parent);
    m_control->setObjectName(option.keyword);
    const int row = form.rowCount();
    if (option.appearance != ShownOption::Appearance::checkBox) {
        m_label = new LabelControl(parent);
        m_label->setObjectName(option.keyword + ".label");
        m_label->setStringValue(option.title + ':');
        m_label->setMaximumWidth(kWidestLabel);
        m_label->setBuddy(m_control);
        if (option.appearance == ShownOption::Appearance::menu) // much higher than text in some styles
            m_label->setMinimumHeight(m_control->sizeHint().height());
        form.setWidget(row, QFormLayout::LabelRole, m_label);
    }
    if (option.entry)
        addEntry(form, parent);
    else
        form.setWidget(row, QFormLayout::FieldRole, m_control);
    for (QWidget *control : {m_control, static_cast<QWidget *>(m_field)})
        if (control)
            toolkit::connectControl(*control, owner);
}

QWidget *OptionRow::makeControl(QWidget *parent)
{
    switch (m_option->appearance) {
    case ShownOption::Appearance::checkBox: return checkBoxOf(*m_option, parent);
    case ShownOption::Appearance::list: return listOf(*m_option, parent);
    case ShownOption::Appearance::menu: break;
    }
    return menuOf(*m_option, parent);
}

/// Beside the menu, in its row.
void OptionRow::addEntry(QFormLayout &form, QWidget *parent)
{
    const CustomEntry &entry = *m_option->entry;
    m_entry = new QWidget(parent);
    m_field = new FieldControl(m_entry);
    m_field->setObjectName(m_option->keyword + ".amount");
    m_field->setAccessibleName(m_option->title);
    m_field->setAccessibleDescription(entry.hint());
    m_field->setFixedWidth(entry.widthOfField());
    m_field->setEchoMode(entry.isSecret() ? QLineEdit::Password : QLineEdit::Normal);
    m_field->setAllowsExpansionToolTips(!entry.isSecret());
    m_hint = new LabelControl(m_entry);
    m_hint->setObjectName(m_option->keyword + ".range");
    m_hint->setStringValue(entry.hint());
    auto *const inside = new QHBoxLayout(m_entry);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(m_field);
    inside->addWidget(m_hint);
    auto *const both = new QHBoxLayout;
    both->addWidget(m_control, 1);
    both->addWidget(m_entry);
    form.setLayout(form.rowCount() - 1, QFormLayout::FieldRole, both);
}

void OptionRow::show(const QString &choice)
{
    const auto found = std::ranges::find(m_option->choices, choice, &ShownChoice::keyword);
    const int index = found == m_option->choices.end() ? -1 : static_cast<int>(found - m_option->choices.begin());
    switch (m_option->appearance) {
    case ShownOption::Appearance::menu: as<PopUpControl>(m_control)->setCurrentIndex(index); break;
    case ShownOption::Appearance::checkBox: as<CheckControl>(m_control)->setState(std::max(index, 0)); break;
    case ShownOption::Appearance::list: as<RadioControl>(m_control)->select(index); break;
    }
    if (!m_entry)
        return;
    const CustomEntry &entry = *m_option->entry;
    m_entry->setVisible(showsEntry());
    // What means the same is left as it was written.
    if (showsEntry() && entry.valueOf(m_field->stringValue()) != entry.valueOf(entry.current()))
        m_field->setStringValue(entry.current());
}

int OptionRow::shownIndex() const
{
    switch (m_option->appearance) {
    case ShownOption::Appearance::checkBox: return as<CheckControl>(m_control)->state();
    case ShownOption::Appearance::list: return as<RadioControl>(m_control)->selectedRow();
    case ShownOption::Appearance::menu: break;
    }
    return as<PopUpControl>(m_control)->currentIndex();
}

bool OptionRow::showsEntry() const
{
    const int index = shownIndex();
    return m_entry && index >= 0 && m_option->choices[static_cast<std::size_t>(index)].keyword == kCustom;
}

std::optional<QString> OptionRow::shownValue() const
{
    if (showsEntry())
        return m_option->entry->valueOf(m_field->stringValue());
    const int index = shownIndex();
    return index < 0 ? std::nullopt : std::optional(m_option->choices[static_cast<std::size_t>(index)].keyword);
}

std::optional<QString> OptionRow::chosenValue() const
{
    return showsEntry() ? m_option->entry->firstValue().value_or(kCustom) : shownValue();
}

void OptionRow::beginEntry()
{
    m_field->setFocus(Qt::OtherFocusReason);
    m_field->selectAll();
}

std::vector<PDEPanelInspection::Control> OptionRow::controls() const
{
    std::vector<PDEPanelInspection::Control> controls;
    for (QWidget *each :
         {static_cast<QWidget *>(m_label), m_control, static_cast<QWidget *>(m_field), static_cast<QWidget *>(m_hint)})
        if (each)
            controls.push_back({each->objectName(), each});
    return controls;
}
