// The controls of an interface file, as widgets. Interface files name these classes; panels hold them through the
// handles of Handles.h; a host that acts for a person uses the functions marked so.
#pragma once

#include "TextControls.h"

#include <QStringList>

#include <functional>

class QButtonGroup;
class QRadioButton;
class QToolButton;

namespace toolkit {

/// A pop-up menu of titled items, each with an enabled state of its own.
class PopUpControl : public FittingMenu
{
    Q_OBJECT

public:
    using Validator = std::function<bool(int index)>;

    explicit PopUpControl(QWidget *parent = nullptr);

    /// Asked of each item, in order, whenever the menu is about to offer its items.
    void setValidator(Validator validator) { m_validator = std::move(validator); }

    /// Changes nothing when there is no such item.
    void select(int index);
    /// An index beyond the end appends. The selected index stays what it is.
    void insertTitle(const QString &title, int index);
    /// As it was given, whatever of it is shown.
    QString titleAt(int index) const;
    /// Does nothing when there is no such item. The selected index stays, cut to the last item.
    void removeAt(int index);

    bool isItemEnabled(int index) const;
    void setItemEnabled(int index, bool enabled);

    /// For a person: what opening the menu does before it shows.
    void validateItems();
    /// For a person: picks an item of the open menu, the selected one included.
    void choose(int index);

    void showPopup() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    Validator m_validator;
};

class CheckControl : public FittingCheckBox
{
    Q_OBJECT
    Q_PROPERTY(QString text READ title WRITE setTitle)

public:
    explicit CheckControl(QWidget *parent = nullptr)
        : FittingCheckBox(parent)
    {}

    QString title() const { return m_title; }
    void setTitle(const QString &title);

    int state() const { return isChecked() ? 1 : 0; }
    void setState(int state) { setChecked(state != 0); }

private:
    QString m_title;
};

/// Radio buttons in one column.
class RadioControl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList rows READ rows WRITE setRows)

public:
    explicit RadioControl(QWidget *parent = nullptr);

    const QStringList &rows() const { return m_rows; }
    void setRows(const QStringList &titles);
    void setRowTitle(int row, const QString &title);

    int selectedRow() const; // -1: none
    /// Changes nothing when there is no such row.
    void select(int row);

    /// For a person: clicks a row.
    void choose(int row);

Q_SIGNALS:
    void chosen();

private:
    void letTabFindTheChosen();

    QButtonGroup *m_group;
    QStringList m_rows;
};

/// Two arrows without a text. One that is held steps on by itself until it is let go or an alert opens: the alert of a
/// held arrow would otherwise open another one with every repetition, as timers run on beneath it.
class StepperControl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double minimum MEMBER m_minimum)
    Q_PROPERTY(double maximum MEMBER m_maximum)
    Q_PROPERTY(double increment READ increment WRITE setIncrement)
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(QString increaseName READ increaseName WRITE setIncreaseName)
    Q_PROPERTY(QString decreaseName READ decreaseName WRITE setDecreaseName)

public:
    explicit StepperControl(QWidget *parent = nullptr);
    ~StepperControl() override;

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    double increment() const { return m_increment; }
    void setIncrement(double increment) { m_increment = increment; }
    double value() const { return m_value; }
    /// Held within minimum and maximum.
    void setValue(double value);

    QString increaseName() const;
    void setIncreaseName(const QString &name);
    QString decreaseName() const;
    void setDecreaseName(const QString &name);

    /// For a person: one click on an arrow; `direction` is 1 or -1. Nothing while an earlier step is still at work.
    void step(int direction);

Q_SIGNALS:
    void stepped();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QToolButton *arrow(Qt::ArrowType type, int direction);
    void stopRepeating();

    bool m_stepping = false;
    bool m_stopped = false; // until a mouse button or a key is pressed anew
    double m_minimum = 0;
    double m_maximum = 99;
    double m_increment = 1;
    double m_value = 0;
    QToolButton *m_up;
    QToolButton *m_down;
};

/// Pages of which one shows. A page is a child with the property `identifier`; the label of each is kept here.
class TabControl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString current READ current WRITE setCurrent)

public:
    explicit TabControl(QWidget *parent = nullptr)
        : QWidget(parent)
    {}

    QStringList identifiers() const;
    QString label(const QString &identifier) const;
    void setLabel(const QString &identifier, const QString &label);

    const QString &current() const { return m_current; }
    void setCurrent(const QString &identifier);

private:
    QList<QWidget *> pages() const;

    QString m_current;
};

/// A thin line between groups, quiet in light and dark palettes alike.
class SeparatorControl : public QWidget
{
    Q_OBJECT

public:
    explicit SeparatorControl(QWidget *parent = nullptr)
        : QWidget(parent)
    {}

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace toolkit
