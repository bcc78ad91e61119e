// Texts in places that can't grow.
#include "FittingText.h"

#include "Foundation/PlainText.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QStylePainter>
#include <QToolTip>
#include <QWidget>

#include <algorithm>

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

namespace {

QString withMnemonic(QString text) { return text.replace('&', "&&"); }
QString withoutIt(QString text) { return text.replace("&&", "&"); }

FittingText fittingText(const QAbstractButton &button, const QStyleOptionButton &option, QStyle::SubElement contents)
{
    return {withoutIt(button.text()), button.font(),
            button.style()->subElementRect(contents, &option, &button).width()};
}

void paintFitting(QAbstractButton &button, QStyleOptionButton &option, QStyle::SubElement contents,
                  QStyle::ControlElement element)
{
    const FittingText fitting = fittingText(button, option, contents);
    QStylePainter painter(&button);
    painter.setFont(fitting.font);
    option.text = withMnemonic(fitting.text);
    painter.drawControl(element, option);
}

/// Wide enough for a few letters.
QSize narrow(const QAbstractButton &button, const QSize &whole)
{
    constexpr int kLetters = 8;
    return {std::min(whole.width(), whole.height() + kLetters * button.fontMetrics().averageCharWidth()),
            whole.height()};
}

bool tellWholeOf(const QAbstractButton &button, const QStyleOptionButton &option, QStyle::SubElement contents,
                 QEvent &event)
{
    return tellWhole(button, static_cast<QHelpEvent &>(event), fittingText(button, option, contents),
                     withoutIt(button.text()));
}

} // namespace

QSize FittingCheckBox::minimumSizeHint() const { return narrow(*this, sizeHint()); }

void FittingCheckBox::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    paintFitting(*this, option, QStyle::SE_CheckBoxContents, QStyle::CE_CheckBox);
}

bool FittingCheckBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QCheckBox::event(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    return tellWholeOf(*this, option, QStyle::SE_CheckBoxContents, *event) || QCheckBox::event(event);
}

QSize FittingRadioButton::minimumSizeHint() const { return narrow(*this, sizeHint()); }

void FittingRadioButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    paintFitting(*this, option, QStyle::SE_RadioButtonContents, QStyle::CE_RadioButton);
}

bool FittingRadioButton::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QRadioButton::event(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    return tellWholeOf(*this, option, QStyle::SE_RadioButtonContents, *event) || QRadioButton::event(event);
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
