// Handles by kind of control: what a panel's fields are declared as.
#pragma once

#include "Controls.h"
#include "View.h"

#include <optional>

namespace toolkit {

/// A label or an entry field. Verbs of an entry field do nothing on a label.
class TextField : public View
{
public:
    std::optional<QString> stringValue() const;
    void setStringValue(const QString &text);
    double doubleValue() const;
    void setDoubleValue(double value);
    int integerValue() const;
    void setIntegerValue(int value);

    void setTextColor(TextColor color);
    void setEditable(bool editable);
    void setAllowsExpansionToolTips(bool allow);
    /// Takes the keyboard focus when a person may type into it.
    void becomeFirstResponder();

protected:
    bool accepts(QWidget *widget) const override;
};

/// One item of one menu; nil when the menu or the item does not exist. Items are the same when menu and index are.
class MenuItem
{
public:
    MenuItem() = default;
    MenuItem(PopUpControl *menu, int index);

    explicit operator bool() const { return m_menu != nullptr; }
    void setEnabled(bool enabled) const;

    friend bool operator==(const MenuItem &, const MenuItem &) = default;

private:
    PopUpControl *m_menu = nullptr;
    int m_index = -1;
};

class PopUpButton : public View
{
public:
    int indexOfSelectedItem() const;
    void selectItemAtIndex(int index);
    void removeItemAtIndex(int index);
    void insertItemWithTitle(const QString &title, int index);
    MenuItem itemAtIndex(int index) const;

protected:
    bool accepts(QWidget *widget) const override;
};

class CheckBox : public View
{
public:
    int state() const;
    void setState(int state);
    void setTitle(const QString &title);

protected:
    bool accepts(QWidget *widget) const override;
};

class RadioMatrix : public View
{
public:
    int selectedRow() const;
    void selectRow(int row);
    void setRowTitle(int row, const QString &title);

protected:
    bool accepts(QWidget *widget) const override;
};

class Stepper : public View
{
public:
    double doubleValue() const;
    void setDoubleValue(double value);
    void setIntegerValue(int value) { setDoubleValue(value); }
    void setIncrement(double increment);

protected:
    bool accepts(QWidget *widget) const override;
};

class TabView : public View
{
public:
    void setLabel(const QString &identifier, const QString &label);

protected:
    bool accepts(QWidget *widget) const override;
};

} // namespace toolkit
