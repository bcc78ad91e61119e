// Where the window speaks to the person.
#include "MessageLine.h"

#include "Foundation/PlainText.h"

#include <QAccessibleWidget>

namespace host {

namespace {

constexpr int kLines = 2;
constexpr qsizetype kLongest = 1000; // in characters, of what anybody reads in a window

/// Screen readers read an alert aloud when it shows.
QAccessibleInterface *accessibleMessage(const QString &, QObject *object)
{
    auto *const label = qobject_cast<AnnouncedLabel *>(object);
    return label ? new QAccessibleWidget(label, QAccessible::AlertMessage) : nullptr;
}

} // namespace

AnnouncedLabel::AnnouncedLabel(QWidget *parent)
    : QLabel(parent)
{
    [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(accessibleMessage), true);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void AnnouncedLabel::say(const QString &sentences)
{
    if (m_said == sentences)
        return;
    m_said = sentences;
    setAccessibleName(sentences);
    fit();
    if (sentences.isEmpty() || !isVisible())
        return;
    QAccessibleEvent announcement(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&announcement);
}

MessageLine::MessageLine(QWidget *parent)
    : AnnouncedLabel(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize MessageLine::sizeHint() const { return {0, kLines * fontMetrics().lineSpacing()}; }

QSize MessageLine::minimumSizeHint() const { return sizeHint(); }

void MessageLine::resizeEvent(QResizeEvent *event)
{
    AnnouncedLabel::resizeEvent(event);
    fit();
}

bool MessageLine::hasRoomFor(const QString &text) const
{
    const QRect endless(0, 0, width(), QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(endless, Qt::TextWordWrap, text).height() <= sizeHint().height();
}

void MessageLine::fit()
{
    if (hasRoomFor(said())) {
        setText(said());
        return setToolTip({});
    }
    qsizetype fitting = 0;
    for (qsizetype tooLong = qMin<qsizetype>(said().size(), kLongest); fitting + 1 < tooLong;) {
        const qsizetype middle = (fitting + tooLong) / 2;
        (hasRoomFor(said().left(middle) + "…") ? fitting : tooLong) = middle;
    }
    setText(said().left(fitting) + "…");
    setToolTip(foundation::asHtml(said().left(kLongest)));
}

} // namespace host
