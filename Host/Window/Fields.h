// Fields of the window as a person at a crowded or small screen needs them.
#pragma once

#include "Toolkit/FittingText.h"

#include <QDoubleSpinBox>
#include <QScrollArea>

#include <optional>

namespace host {

/// As large as what it holds where the screen has room, else scrolling up and down; never sideways.
class FittingScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FittingScrollArea(QWidget *parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// What it takes in width where it is less high than what it holds.
    int widthOfBar() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
};

/// A menu that never asks for more room than it gets.
class Menu : public toolkit::FittingMenu
{
    Q_OBJECT

public:
    explicit Menu(QWidget *parent = nullptr);
    void showPopup() override;
};

/// A length between limits, which its tool tip and its description name. One that is typed outside them becomes the
/// nearest limit, and is told of.
class LengthBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    using QDoubleSpinBox::QDoubleSpinBox;
    void setLimits(double least, double most);
    /// "25 to 216 mm"
    QString limits() const;
    QValidator::State validate(QString &input, int &at) const override;
    void fixup(QString &input) const override;

Q_SIGNALS:
    void corrected(const QString &typed) const;

private:
    std::optional<double> typed(QString input) const;
};

/// From now on the wheel moves a menu or a number only while it has the focus: whoever scrolls past it changes nothing.
void keepFromWheel(QWidget &field);

} // namespace host
