// Pop-up menus, buttons, steppers and pages.
#include "Controls.h"

#include "Alert.h"

#include "Foundation/NotificationCenter.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace toolkit {

using foundation::NotificationCenter;

PopUpControl::PopUpControl(QWidget *parent)
    : FittingMenu(parent)
{}

void PopUpControl::select(int index)
{
    if (index >= 0 && index < count())
        setCurrentIndex(index);
}

void PopUpControl::insertTitle(const QString &title, int index)
{
    const int selected = currentIndex();
    insertItem(std::clamp(index, 0, count()), harmless(title), title);
    setCurrentIndex(selected);
}

QString PopUpControl::titleAt(int index) const
{
    const QVariant title = itemData(index);
    return title.isValid() ? title.toString() : itemText(index); // those of the interface file are ours
}

void PopUpControl::removeAt(int index)
{
    if (index < 0 || index >= count())
        return;
    const int selected = currentIndex();
    removeItem(index);
    setCurrentIndex(std::min(selected, count() - 1));
}

bool PopUpControl::isItemEnabled(int index) const
{
    return model()->flags(model()->index(index, 0)).testFlag(Qt::ItemIsEnabled);
}

void PopUpControl::setItemEnabled(int index, bool enabled)
{
    if (auto *item = static_cast<QStandardItemModel *>(model())->item(index))
        item->setEnabled(enabled);
}

void PopUpControl::validateItems()
{
    if (!m_validator)
        return;
    for (int index = 0; index < count(); ++index)
        setItemEnabled(index, m_validator(index));
}

void PopUpControl::choose(int index)
{
    setCurrentIndex(index);
    Q_EMIT activated(index);
}

void PopUpControl::showPopup()
{
    validateItems();
    FittingMenu::showPopup();
    view()->viewport()->installEventFilter(this); // again each time, to stay ahead of the menu's own
}

bool PopUpControl::eventFilter(QObject *watched, QEvent *event)
{
    // A click on an item that is refused chooses nothing; Qt would choose the item that was current before.
    if (event->type() == QEvent::MouseButtonRelease && watched == view()->viewport() &&
        !view()->indexAt(static_cast<QMouseEvent *>(event)->position().toPoint()).flags().testFlag(Qt::ItemIsEnabled))
        return true;
    return FittingMenu::eventFilter(watched, event);
}

void PopUpControl::keyPressEvent(QKeyEvent *event)
{
    validateItems(); // keys move through the items of a closed menu too
    FittingMenu::keyPressEvent(event);
}

void PopUpControl::wheelEvent(QWheelEvent *event)
{
    event->ignore(); // scrolling past a print option must not change it
}

void CheckControl::setTitle(const QString &title)
{
    m_title = title;
    setText(withoutMnemonic(harmless(title)));
}

RadioControl::RadioControl(QWidget *parent)
    : QWidget(parent)
    , m_group(new QButtonGroup(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    connect(m_group, &QButtonGroup::idClicked, this, &RadioControl::chosen);
    connect(m_group, &QButtonGroup::idToggled, this, &RadioControl::letTabFindTheChosen);
}

/// Tab comes to the row that is chosen, and goes on behind the group; the arrow keys move within. Without a chosen row
/// it comes to the first.
void RadioControl::letTabFindTheChosen()
{
    for (QAbstractButton *button : m_group->buttons()) {
        const bool isStop = button->isChecked() || (!m_group->checkedButton() && m_group->id(button) == 0);
        button->setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void RadioControl::setRows(const QStringList &titles)
{
    qDeleteAll(m_group->buttons());
    m_rows.clear();
    for (const QString &title : titles) {
        auto *button = new FittingRadioButton(this);
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // or the text would be the least
        layout()->addWidget(button);
        m_group->addButton(button, static_cast<int>(m_rows.size()));
        m_rows.append(QString());
        setRowTitle(static_cast<int>(m_rows.size()) - 1, title);
    }
    letTabFindTheChosen();
}

void RadioControl::setRowTitle(int row, const QString &title)
{
    if (auto *button = m_group->button(row)) {
        m_rows[row] = title;
        button->setText(withoutMnemonic(harmless(title)));
    }
}

int RadioControl::selectedRow() const { return m_group->checkedId(); }

void RadioControl::select(int row)
{
    if (auto *button = m_group->button(row))
        button->setChecked(true);
}

void RadioControl::choose(int row)
{
    if (auto *button = m_group->button(row))
        button->click();
}

namespace {

/// A stepper to assistive technology: a number between limits that goes up and down by steps.
class AccessibleStepper : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleStepper(StepperControl *stepper)
        : QAccessibleWidget(stepper, QAccessible::SpinBox)
        , m_stepper(*stepper)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return m_stepper.value(); }
    QVariant minimumValue() const override { return m_stepper.minimum(); }
    QVariant maximumValue() const override { return m_stepper.maximum(); }
    QVariant minimumStepSize() const override { return m_stepper.increment(); }
    /// Whatever is asked for beyond one step is asked for again.
    void setCurrentValue(const QVariant &value) override
    {
        if (value.toDouble() != m_stepper.value())
            m_stepper.step(value.toDouble() > m_stepper.value() ? 1 : -1);
    }

private:
    StepperControl &m_stepper;
};

QAccessibleInterface *accessibleStepper(const QString &, QObject *object)
{
    auto *const stepper = qobject_cast<StepperControl *>(object);
    return stepper ? new AccessibleStepper(stepper) : nullptr;
}

} // namespace

StepperControl::StepperControl(QWidget *parent)
    : QWidget(parent)
    , m_up(arrow(Qt::UpArrow, 1))
    , m_down(arrow(Qt::DownArrow, -1))
{
    [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(accessibleStepper), true);
    setFocusPolicy(Qt::TabFocus);
    NotificationCenter::defaultCenter().addObserver(this, Alert::kWillOpen, [this] { stopRepeating(); });
}

StepperControl::~StepperControl() { NotificationCenter::defaultCenter().removeObserver(this, Alert::kWillOpen); }

QToolButton *StepperControl::arrow(Qt::ArrowType type, int direction)
{
    auto *button = new QToolButton(this);
    button->setArrowType(type);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus); // the arrow keys work on the whole stepper
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this, [this, direction] { step(direction); });
    return button;
}

void StepperControl::setValue(double value) { m_value = std::min(std::max(value, m_minimum), m_maximum); }

QString StepperControl::increaseName() const { return m_up->accessibleName(); }
void StepperControl::setIncreaseName(const QString &name) { m_up->setAccessibleName(name); }
QString StepperControl::decreaseName() const { return m_down->accessibleName(); }
void StepperControl::setDecreaseName(const QString &name) { m_down->setAccessibleName(name); }

void StepperControl::step(int direction)
{
    if (m_stepping)
        return;
    m_stepping = true;
    setValue(m_value + direction * m_increment);
    const QPointer<StepperControl> self(this); // an alert may outlast the form
    Q_EMIT stepped();
    if (self)
        m_stepping = false;
}

void StepperControl::stopRepeating()
{
    m_stopped = true;
    m_up->setDown(false);
    m_down->setDown(false);
}

bool StepperControl::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        m_stopped = false;
    // Moving the mouse over an arrow whose button is still held would press it again.
    return (m_stopped && event->type() == QEvent::MouseMove) || QWidget::eventFilter(watched, event);
}

void StepperControl::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int half = height() / 2;
    m_up->setGeometry(0, 0, width(), half);
    m_down->setGeometry(0, half, width(), height() - half);
}

void StepperControl::keyPressEvent(QKeyEvent *event)
{
    m_stopped = m_stopped && event->isAutoRepeat();
    if (m_stopped)
        return;
    if (event->key() == Qt::Key_Up)
        step(1);
    else if (event->key() == Qt::Key_Down)
        step(-1);
    else
        QWidget::keyPressEvent(event);
}

QList<QWidget *> TabControl::pages() const
{
    auto children = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    children.removeIf([](const QWidget *child) { return !child->property("identifier").isValid(); });
    return children;
}

QStringList TabControl::identifiers() const
{
    QStringList result;
    for (const QWidget *page : pages())
        result.append(page->property("identifier").toString());
    return result;
}

QString TabControl::label(const QString &identifier) const
{
    for (const QWidget *page : pages())
        if (page->property("identifier") == identifier)
            return page->accessibleName();
    return {};
}

void TabControl::setLabel(const QString &identifier, const QString &label)
{
    for (QWidget *page : pages())
        if (page->property("identifier") == identifier)
            page->setAccessibleName(label);
}

void TabControl::setCurrent(const QString &identifier)
{
    m_current = identifier;
    for (QWidget *page : pages())
        page->setVisible(page->property("identifier") == identifier);
}

void SeparatorControl::paintEvent(QPaintEvent *)
{
    constexpr double kQuiet = 0.25;
    QPainter painter(this);
    painter.setOpacity(kQuiet);
    painter.fillRect(0, height() / 2, width(), 1, palette().windowText());
}

} // namespace toolkit
