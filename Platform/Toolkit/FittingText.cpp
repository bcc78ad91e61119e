// Texts in places that can't grow.
#include "FittingText.h"

#include "Foundation/PlainText.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QStylePainter>
#include <QToolTip>
#include <QWidget>

namespace toolkit {

namespace {

constexpr double kSmallest = 0.75; // of the usual size; smaller is not read with pleasure
constexpr double kStep = 0.5;      // in points

/// Tells of most texts that they fit without shaping them, which every paint event would have to pay for. Latin letters
/// are as wide in a text as each by itself, but for kerning.
bool surelyFits(const QString &text, const QFontMetricsF &metrics, double width)
{
    constexpr double kKerning = 1.05;
    double sum = 0;
    for (const QChar letter : text) {
        if (letter < u' ' || letter > u'\x17f')
            return false;
        sum += metrics.horizontalAdvance(letter);
    }
    return sum * kKerning <= width;
}

} // namespace

FittingText::FittingText(const QString &whole, const QFont &usual, int width)
    : font(usual)
    , text(whole)
{
    if (surelyFits(whole, QFontMetricsF(font), width))
        return;
    const auto fits = [&] { return QFontMetricsF(font).horizontalAdvance(whole) <= width; };
    const double size = usual.pointSizeF() > 0 ? usual.pointSizeF() : QFontInfo(usual).pointSizeF();
    for (double smaller = size - kStep; !fits() && smaller >= size * kSmallest; smaller -= kStep)
        font.setPointSizeF(smaller);
    if (fits())
        return;
    text = QFontMetricsF(font).elidedText(whole, Qt::ElideRight, width);
    isCut = true;
}

bool tellWhole(const QWidget &control, const QHelpEvent &event, const FittingText &text, const QString &whole)
{
    if (!text.isCut || !control.toolTip().isEmpty())
        return false;
    QToolTip::showText(event.globalPos(), foundation::asHtml(whole));
    return true;
}

FittingText FittingMenu::fittingText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return {currentText(), font(), room.width()};
}

void FittingMenu::paintEvent(QPaintEvent *)
{
    const FittingText fitting = fittingText();
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.setFont(fitting.font);
    option.currentText = fitting.text;
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool FittingMenu::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip &&
        tellWhole(*this, *static_cast<QHelpEvent *>(event), fittingText(), currentText()))
        return true;
    return QComboBox::event(event);
}

} // namespace toolkit
