// What a panel's fields hold: small handles, each a control of the form or none. None takes every order and answers
// 0, nil or no, so that no rule above has to ask. The form owns the controls.
#pragma once

#include "Controls.h"

#include <QPointF>
#include <QPointer>
#include <QRect>

namespace toolkit {

class View
{
public:
    View() = default;
    explicit View(QWidget *widget)
        : m_widget(widget)
    {}
    virtual ~View() = default;
    View(const View &) = default;
    View &operator=(const View &) = default;

    /// Takes the control when it is of the handle's kind; otherwise stays as it is and answers false.
    bool connect(QWidget *widget);

    explicit operator bool() const { return !m_widget.isNull(); }
    QWidget *widget() const { return m_widget; }

    bool isHidden() const;
    void setHidden(bool hidden);
    bool isEnabled() const;
    void setEnabled(bool enabled);

    /// In the superview, in points, y upward from its lower left corner.
    QPointF frameOrigin() const;
    void setFrameOrigin(const QPointF &origin);

    /// In the superview, in the toolkit's own coordinates; the zero rectangle without a control.
    QRect frame() const { return m_widget ? m_widget->geometry() : QRect(); }
    QWidget *superview() const { return m_widget ? m_widget->parentWidget() : nullptr; }

    /// Off the form for good. The control lives on, unseen, as long as its superview did.
    void removeFromSuperview();
    bool isAttached() const;

    void setNeedsDisplay();

protected:
    virtual bool accepts(QWidget *widget) const;
    template <class W>
    W *as() const
    {
        return static_cast<W *>(m_widget.data());
    }

private:
    QPointer<QWidget> m_widget;
};

/// Puts `replacement` in the place of `old`, which is removed.
void replaceSubview(View &old, QWidget *replacement);

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
