// Texts in places that can't grow: a panel's controls stand where its interface file puts them, however large the
// fonts.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFont>
#include <QRadioButton>
#include <QString>

class QHelpEvent;
class QWidget;

namespace toolkit {

/// A text as it fits into a width: as it is, else in a smaller font, else cut with an ellipsis as well.
struct FittingText
{
    FittingText(const QString &whole, const QFont &usual, int width);

    QFont font;
    QString text;
    bool isCut = false;
};

/// Shows the whole of a text that is cut, in plain text, where the control has no tool tip of its own. False when there
/// is nothing to show.
bool tellWhole(const QWidget &control, const QHelpEvent &event, const FittingText &text, const QString &whole);

/// A menu that shows its text as it fits.
class FittingMenu : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    FittingText fittingText() const;
};

/// Buttons that show their text as it fits, and may be narrower than it.
class FittingCheckBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
};

class FittingRadioButton : public QRadioButton
{
public:
    using QRadioButton::QRadioButton;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
};

} // namespace toolkit
