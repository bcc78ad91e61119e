// Fields of the window.
#include "Fields.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>

namespace host {

namespace {

constexpr int kShortestText = 8; // in characters, of a menu's text
constexpr QSize kSmallest(240, 120);

class WheelGuard : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
            return false;
        event->ignore(); // goes on to what scrolls
        return true;
    }
};

} // namespace

FittingScrollArea::FittingScrollArea(QWidget *parent)
    : QScrollArea(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Of itself it brings only that into sight which the focus comes to from within.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && widget() && widget()->isAncestorOf(now))
            ensureWidgetVisible(now, 0, 0);
    });
}

/// No wider than it needs be: the panel sets the width, and what stands above it makes do with that.
QSize FittingScrollArea::sizeHint() const
{
    return widget() ? QSize(widget()->minimumSizeHint().width(), widget()->sizeHint().height())
                    : QScrollArea::sizeHint();
}

QSize FittingScrollArea::minimumSizeHint() const
{
    if (!widget())
        return kSmallest;
    const QSize needed = widget()->minimumSizeHint();
    const int bar = isVisible() && height() < needed.height() ? widthOfBar() : 0;
    return {qMax(needed.width() + bar, kSmallest.width()), kSmallest.height()};
}

int FittingScrollArea::widthOfBar() const { return verticalScrollBar()->sizeHint().width(); }

void FittingScrollArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    updateGeometry(); // the bar comes and goes with the height
}

Menu::Menu(QWidget *parent)
    : FittingMenu(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kShortestText);
    keepFromWheel(*this);
}

/// The list shows whole texts, as far as the screen is wide.
void Menu::showPopup()
{
    const int bar = view()->verticalScrollBar()->sizeHint().width();
    const int wanted = view()->sizeHintForColumn(modelColumn()) + bar;
    view()->setMinimumWidth(qMin(wanted, screen()->availableSize().width()));
    FittingMenu::showPopup();
}

void LengthBox::setLimits(double least, double most)
{
    setCorrectionMode(CorrectToNearestValue);
    setRange(least, most);
    setToolTip(limits());
    setAccessibleDescription(limits());
}

QString LengthBox::limits() const
{
    return tr("%1 to %2", "two lengths").arg(textFromValue(minimum()), textFromValue(maximum()) + suffix());
}

/// Of itself it takes no further digit once a number is too large, and says nothing of it.
QValidator::State LengthBox::validate(QString &input, int &at) const
{
    const QValidator::State state = QDoubleSpinBox::validate(input, at);
    return state == QValidator::Invalid && typed(input) ? QValidator::Intermediate : state;
}

/// What is no number at all becomes again what it was.
void LengthBox::fixup(QString &input) const
{
    const std::optional<double> length = typed(input);
    if (length)
        Q_EMIT corrected(textFromValue(*length) + suffix());
    input = textFromValue(qBound(minimum(), length.value_or(value()), maximum())) + suffix();
}

std::optional<double> LengthBox::typed(QString input) const
{
    bool isNumber = false;
    const double length = locale().toDouble(input.remove(suffix()).trimmed(), &isNumber);
    return isNumber ? std::optional(length) : std::nullopt;
}

void keepFromWheel(QWidget &field)
{
    if (field.focusPolicy() == Qt::WheelFocus)
        field.setFocusPolicy(Qt::StrongFocus); // the wheel gives no focus either
    field.installEventFilter(new WheelGuard(&field));
}

} // namespace host

#include "Fields.moc"
