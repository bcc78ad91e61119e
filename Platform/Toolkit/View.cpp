// What handles of every kind can do.
#include "View.h"

#include <algorithm>

namespace toolkit {

namespace {

// What Qt forgets about a widget that leaves its parent, kept on the widget.
constexpr auto kRemovedOrigin = "toolkitRemovedOrigin";
constexpr auto kRemovedHidden = "toolkitRemovedHidden";

/// Held within what a widget's geometry can take: the numbers come from PPDs.
int coordinate(double points) { return qRound(std::clamp<double>(points, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)); }

bool isRemoved(const QWidget &widget) { return widget.property(kRemovedOrigin).isValid(); }

} // namespace

bool View::connect(QWidget *widget)
{
    if (!widget || !accepts(widget))
        return false;
    m_widget = widget;
    return true;
}

bool View::accepts(QWidget *) const { return true; }

bool View::isHidden() const
{
    if (!m_widget)
        return false;
    return isRemoved(*m_widget) ? m_widget->property(kRemovedHidden).toBool() : m_widget->isHidden();
}

void View::setHidden(bool hidden)
{
    if (!m_widget)
        return;
    if (isRemoved(*m_widget)) // without a superview, showing it would open a window
        m_widget->setProperty(kRemovedHidden, hidden);
    else
        m_widget->setHidden(hidden);
}

bool View::isEnabled() const { return m_widget && m_widget->isEnabledTo(m_widget->parentWidget()); }

void View::setEnabled(bool enabled)
{
    if (m_widget)
        m_widget->setEnabled(enabled);
}

QPointF View::frameOrigin() const
{
    if (!m_widget)
        return {};
    if (isRemoved(*m_widget))
        return m_widget->property(kRemovedOrigin).toPointF();
    const int height = superview() ? superview()->height() : m_widget->y() + m_widget->height();
    return QPointF(m_widget->x(), height - m_widget->y() - m_widget->height());
}

void View::setFrameOrigin(const QPointF &origin)
{
    if (!m_widget)
        return;
    if (isRemoved(*m_widget))
        m_widget->setProperty(kRemovedOrigin, origin);
    else if (superview())
        m_widget->move(coordinate(origin.x()), superview()->height() - m_widget->height() - coordinate(origin.y()));
}

void View::removeFromSuperview()
{
    if (!m_widget || isRemoved(*m_widget) || !superview())
        return;
    const bool hidden = isHidden();
    m_widget->setProperty(kRemovedOrigin, frameOrigin());
    m_widget->setProperty(kRemovedHidden, hidden);
    QWidget *const widget = m_widget;
    QObject::connect(superview(), &QObject::destroyed, widget, [widget] { delete widget; });
    widget->setParent(nullptr);
}

bool View::isAttached() const { return m_widget && !isRemoved(*m_widget); }

void View::setNeedsDisplay()
{
    if (m_widget)
        m_widget->update();
}

void replaceSubview(View &old, QWidget *replacement)
{
    QWidget *const superview = old.superview();
    if (!superview)
        return;
    replacement->setParent(superview);
    replacement->show();
    old.removeFromSuperview();
}

} // namespace toolkit
