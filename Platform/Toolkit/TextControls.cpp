// Labels and entry fields.
#include "TextControls.h"

#include "Foundation/PlainText.h"

#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

namespace toolkit {

namespace {

bool isPaletteEvent(const QEvent &event)
{
    return event.type() == QEvent::PaletteChange || event.type() == QEvent::ApplicationPaletteChange ||
           event.type() == QEvent::ParentChange;
}

} // namespace

QString withoutMnemonic(QString text) { return text.replace('&', "&&"); }

QString harmless(const QString &text)
{
    if (!text.contains('\n'))
        return foundation::withoutControls(text);
    QStringList lines = text.split('\n');
    for (QString &line : lines)
        line = foundation::withoutControls(line);
    return lines.join('\n');
}

void TextControl::setTextColor(TextColor color)
{
    if (m_color == color)
        return;
    m_color = color;
    followPalette();
}

void TextControl::followPalette()
{
    if (m_applying) // setting a palette reports a palette change
        return;
    m_applying = true;
    QPalette palette;
    if (m_color == TextColor::disabledControl) {
        const QPalette around = m_self.parentWidget() ? m_self.parentWidget()->palette() : QPalette();
        for (const auto role : {QPalette::WindowText, QPalette::Text})
            for (const auto group : {QPalette::Active, QPalette::Inactive})
                palette.setColor(group, role, around.color(QPalette::Disabled, role));
    }
    m_self.setPalette(palette);
    m_applying = false;
}

LabelControl::LabelControl(QWidget *parent)
    : QLabel(parent)
    , TextControl(static_cast<QWidget &>(*this))
{
    setTextFormat(Qt::PlainText);
}

void LabelControl::setStringValue(const QString &text)
{
    m_text = text;
    m_shown = harmless(text);
    setText(withoutMnemonic(m_shown)); // a buddy makes '&' a mnemonic; texts of a PPD mean the character
    if (auto *field = m_unitOf.isEmpty() ? nullptr : parentWidget()->findChild<QWidget *>(m_unitOf))
        field->setAccessibleDescription(m_shown);
}

void LabelControl::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (isPaletteEvent(*event))
        followPalette();
}

FittingText LabelControl::fittingText() const { return {m_shown, font(), contentsRect().width()}; }

void LabelControl::paintEvent(QPaintEvent *event)
{
    const FittingText fitting = fittingText();
    if (fitting.text == m_shown && fitting.font == font())
        return QLabel::paintEvent(event);
    QStylePainter painter(this);
    painter.setFont(fitting.font);
    painter.drawItemText(contentsRect(), static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
                         palette(), isEnabled(), fitting.text, foregroundRole());
}

bool LabelControl::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && tellWhole(*this, *static_cast<QHelpEvent *>(event), fittingText(), m_shown))
        return true;
    return QLabel::event(event);
}

FieldControl::FieldControl(QWidget *parent)
    : QLineEdit(parent)
    , TextControl(static_cast<QWidget &>(*this))
{
    connect(this, &QLineEdit::textChanged, this, &FieldControl::takeChange);
}

void FieldControl::takeChange()
{
    if (!m_byCode && (isReadOnly() || !isEnabled()))
        return setStringValue(m_taken); // assistive technology sets the text of a locked field as well
    m_taken = text();
    if (!m_byCode)
        Q_EMIT edited();
}

void FieldControl::setTextByCode(const QString &text)
{
    const QScopedValueRollback byCode(m_byCode, true);
    setText(text);
}

void FieldControl::setStringValue(const QString &text)
{
    const int cursor = cursorPosition();
    setTextByCode(text);
    setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
}

void FieldControl::paste(const QString &text)
{
    setTextByCode(text); // the text that stands already counts as well
    Q_EMIT edited();
}

void FieldControl::enter()
{
    Q_EMIT entered();
    Q_EMIT editingEnded();
}

bool FieldControl::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && m_expansionToolTips &&
        fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), foundation::asHtml(text()), this);
        return true;
    }
    return QLineEdit::event(event);
}

void FieldControl::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        enter(); // and no further: Return in a field must not press the dialog's default button
    else
        QLineEdit::keyPressEvent(event);
}

void FieldControl::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (isPaletteEvent(*event))
        followPalette();
}

} // namespace toolkit
