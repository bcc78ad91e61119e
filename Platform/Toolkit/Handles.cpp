// Handles by kind of control.
#include "Handles.h"

#include "Foundation/Text.h"

namespace toolkit {

bool TextField::accepts(QWidget *widget) const { return dynamic_cast<TextControl *>(widget) != nullptr; }

std::optional<QString> TextField::stringValue() const
{
    const auto *control = dynamic_cast<TextControl *>(widget());
    return control ? std::optional(control->stringValue()) : std::nullopt;
}

void TextField::setStringValue(const QString &text)
{
    if (auto *control = dynamic_cast<TextControl *>(widget()))
        control->setStringValue(text);
}

double TextField::doubleValue() const { return foundation::doubleValue(stringValue().value_or(QString())); }
void TextField::setDoubleValue(double value) { setStringValue(foundation::stringFromDouble(value)); }
int TextField::integerValue() const { return foundation::integerValue(stringValue().value_or(QString())); }
void TextField::setIntegerValue(int value) { setStringValue(QString::number(value)); }

void TextField::setTextColor(TextColor color)
{
    if (auto *control = dynamic_cast<TextControl *>(widget()))
        control->setTextColor(color);
}

void TextField::setEditable(bool editable)
{
    if (auto *field = qobject_cast<FieldControl *>(widget()))
        field->setEditable(editable);
}

void TextField::setAllowsExpansionToolTips(bool allow)
{
    if (auto *field = qobject_cast<FieldControl *>(widget()))
        field->setAllowsExpansionToolTips(allow);
}

void TextField::becomeFirstResponder()
{
    auto *field = qobject_cast<FieldControl *>(widget());
    if (field && field->isEditable() && field->isEnabled())
        field->setFocus(Qt::OtherFocusReason);
}

MenuItem::MenuItem(PopUpControl *menu, int index)
{
    if (!menu || index < 0 || index >= menu->count())
        return;
    m_menu = menu;
    m_index = index;
}

void MenuItem::setEnabled(bool enabled) const
{
    if (m_menu)
        m_menu->setItemEnabled(m_index, enabled);
}

bool PopUpButton::accepts(QWidget *widget) const { return qobject_cast<PopUpControl *>(widget); }

int PopUpButton::indexOfSelectedItem() const { return widget() ? as<PopUpControl>()->currentIndex() : 0; }

void PopUpButton::selectItemAtIndex(int index)
{
    if (widget())
        as<PopUpControl>()->select(index);
}

void PopUpButton::removeItemAtIndex(int index)
{
    if (widget())
        as<PopUpControl>()->removeAt(index);
}

void PopUpButton::insertItemWithTitle(const QString &title, int index)
{
    if (widget())
        as<PopUpControl>()->insertTitle(title, index);
}

MenuItem PopUpButton::itemAtIndex(int index) const
{
    return widget() ? MenuItem(as<PopUpControl>(), index) : MenuItem();
}

bool CheckBox::accepts(QWidget *widget) const { return qobject_cast<CheckControl *>(widget); }

int CheckBox::state() const { return widget() ? as<CheckControl>()->state() : 0; }

void CheckBox::setState(int state)
{
    if (widget())
        as<CheckControl>()->setState(state);
}

void CheckBox::setTitle(const QString &title)
{
    if (widget())
        as<CheckControl>()->setTitle(title);
}

bool RadioMatrix::accepts(QWidget *widget) const { return qobject_cast<RadioControl *>(widget); }

int RadioMatrix::selectedRow() const { return widget() ? as<RadioControl>()->selectedRow() : 0; }

void RadioMatrix::selectRow(int row)
{
    if (widget())
        as<RadioControl>()->select(row);
}

void RadioMatrix::setRowTitle(int row, const QString &title)
{
    if (widget())
        as<RadioControl>()->setRowTitle(row, title);
}

bool Stepper::accepts(QWidget *widget) const { return qobject_cast<StepperControl *>(widget); }

double Stepper::doubleValue() const { return widget() ? as<StepperControl>()->value() : 0; }

void Stepper::setDoubleValue(double value)
{
    if (widget())
        as<StepperControl>()->setValue(value);
}

void Stepper::setIncrement(double increment)
{
    if (widget())
        as<StepperControl>()->setIncrement(increment);
}

bool TabView::accepts(QWidget *widget) const { return qobject_cast<TabControl *>(widget); }

void TabView::setLabel(const QString &identifier, const QString &label)
{
    if (widget())
        as<TabControl>()->setLabel(identifier, label);
}

} // namespace toolkit
