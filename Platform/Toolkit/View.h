// A handle: a control of the form, or none. None takes every order and answers 0, nil or no, so that no rule above has
// to ask. The form owns the controls.
#pragma once

#include <QPointF>
#include <QPointer>
#include <QRect>
#include <QWidget>

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

} // namespace toolkit
