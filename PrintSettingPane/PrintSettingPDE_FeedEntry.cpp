// Basic panel: typing, stepping and checking the paper feed amount. The text of the unit label decides which unit
// counts; anything but "mm" is inches.
#include "PrintSettingPDE.h"

#include "FeedUnits.h"

#include "Toolkit/Alert.h"

using foundation::doubleValue;
using paper::kInches;
using paper::kMillimetres;

namespace {

constexpr qsizetype kLongestText = 3;

QString first(const QString &text) { return text.left(1); }
QString last(const QString &text) { return text.right(1); }

QString inchText(double amount) { return QString::number(amount, 'f', paper::kInches.decimals); }

} // namespace

bool PrintSettingPDE_v100_::isInMillimetres() const { return mMetricSystemStr.stringValue() == kMillimetres.label; }

void PrintSettingPDE_v100_::setPaperFeedEntry(Entry state)
{
    const bool enabled = state == Entry::enabled;
    const auto color = enabled ? toolkit::TextColor::control : toolkit::TextColor::disabledControl;
    mPaperFeedTxt.setEditable(enabled);
    mPaperFeedStepper.setEnabled(enabled);
    for (toolkit::TextField *text : {&mPaperFeedTxt, &mPaperFeedStr, &mMetricSystemStr})
        text->setTextColor(color);
}

QString PrintSettingPDE_v100_::filterPaperfeedData(const QString &text) const
{
    const QStringView allowed = isInMillimetres() ? u"0123456789" : u"0123456789.";
    QString result;
    int fullStops = 0;
    for (const QChar c : text) {
        if (c == '.' && ++fullStops > 1)
            continue;
        if (allowed.contains(c))
            result.append(c);
    }
    return result;
}

/// Filters and cuts what was typed; false when the amount is beyond the PPD's maximum.
bool PrintSettingPDE_v100_::limitTypedText(const QString &text)
{
    const QString result = filterPaperfeedData(text).left(kLongestText);
    if (!result.isEmpty())
        mPaperFeedTxt.setStringValue(result);
    return !(doubleValue(result) > kPaperFeedMax && doubleValue(first(result)) != 0);
}

void PrintSettingPDE_v100_::controlTextDidChange(QWidget *)
{
    const QString text = mPaperFeedTxt.stringValue().value_or(QString());
    if (isInMillimetres()) {
        if (first(text) == ".")
            mPaperFeedTxt.setStringValue(QString());
        if (!limitTypedText(text))
            showAlert();
        mPaperFeedinteger = mPaperFeedTxt.integerValue();
        mPaperFeedStepper.setIntegerValue(static_cast<int>(mPaperFeedinteger));
    } else {
        if (!limitTypedText(text))
            showAlert();
        inch = mPaperFeedTxt.doubleValue();
        mPaperFeedStepper.setDoubleValue(inch);
    }
}

void PrintSettingPDE_v100_::controlTextDidEndEditing(QWidget *) { mPaperFeedTxt.becomeFirstResponder(); }

void PrintSettingPDE_v100_::StepperClick()
{
    const QString text = mPaperFeedTxt.stringValue().value_or(QString());
    const double stepped = mPaperFeedStepper.doubleValue();
    if (first(text) == "." || last(text) == ".")
        showAlert();
    else if (isInMillimetres())
        stepMillimetres(text, stepped);
    else
        stepInches(text, stepped);
}

bool PrintSettingPDE_v100_::isUnusableForStepping(const QString &text, double largest) const
{
    const double amount = mPaperFeedTxt.doubleValue();
    return (first(text) == "0" && amount >= 1.0) || amount > largest || text == "000" || text == "00";
}

void PrintSettingPDE_v100_::showTextAndStepper(const QString &text)
{
    mPaperFeedTxt.setStringValue(text);
    mPaperFeedStepper.setDoubleValue(mPaperFeedTxt.doubleValue());
}

void PrintSettingPDE_v100_::showNumberAndStepper(double value)
{
    mPaperFeedTxt.setDoubleValue(value);
    mPaperFeedStepper.setDoubleValue(mPaperFeedTxt.doubleValue());
}

void PrintSettingPDE_v100_::stepMillimetres(const QString &text, double stepped)
{
    if (isUnusableForStepping(text, kMillimetres.largest))
        return showAlert();
    const double amount = mPaperFeedTxt.doubleValue();
    mPaperFeedinteger += kMillimetres.increment; // not what the new text is made from; kept so

    if (stepped > kPaperFeedMax && !text.isEmpty()) {
        mPaperFeedTxt.setDoubleValue(kPaperFeedMax);
        return mPaperFeedStepper.setDoubleValue(kPaperFeedMax); // itself, not the digits that the text shows
    }
    if (stepped == 0 && text.isEmpty())
        return mPaperFeedTxt.setStringValue(QString());
    if (stepped == 0 && text == "0")
        return showTextAndStepper("0");
    if (stepped == 0 && amount < 1.0)
        return showTextAndStepper(text);
    if (stepped == 0 && amount == 1.0)
        return showTextAndStepper("0");
    if (text.isEmpty()) {
        mPaperFeedinteger = 1.0;
        return showNumberAndStepper(mPaperFeedinteger);
    }
    if (mPaperFeedTxt.integerValue() == 1 && stepped == 1.0) { // from 1 to 2 while the stepper keeps 1, as intended
        mPaperFeedinteger = 2.0;
        return mPaperFeedTxt.setIntegerValue(2);
    }
    showNumberAndStepper(stepped);
}

void PrintSettingPDE_v100_::stepInches(const QString &text, double stepped)
{
    if (isUnusableForStepping(text, kInches.largest))
        return showAlert();
    inch += kInches.increment; // not what the new text is made from; kept so

    if (stepped > kPaperFeedMax) // to the PPD's maximum in millimetres, here deliberately not
        return showTextAndStepper(inchText(kInches.largest));
    if (stepped != kInches.increment && text.isEmpty() && stepped != 1.0)
        return showTextAndStepper(QString());
    if (stepped == kInches.increment && !text.isEmpty())
        return showTextAndStepper(inchText(kInches.increment));
    if (stepped == 0 && text == "0")
        return showTextAndStepper("0");
    showTextAndStepper(inchText(stepped));
}

void PrintSettingPDE_v100_::showAlert() const
{
    toolkit::Alert alert;
    alert.addButtonWithTitle(localized("OK"));
    alert.setMessageText(localized("Unsupported Size Title"));
    alert.setInformativeText(localized(paper::feedUnit(isInMillimetres()).outOfRangeKey));
    alert.setAlertStyle(toolkit::Alert::Style::warning);
    alert.runModal();
}

bool PrintSettingPDE_v100_::shouldShowAlert() const
{
    if (mFormFeedModePopUp.indexOfSelectedItem() != 0)
        return true; // the amount is not used
    if (mMetricSystemStr.stringValue().value_or(QString()).isEmpty())
        return true;
    const QString text = mPaperFeedTxt.stringValue().value_or(QString());
    const double amount = mPaperFeedTxt.doubleValue();
    const paper::FeedUnit &unit = paper::feedUnit(isInMillimetres());
    // The order of these tests is kept, and with it those that an earlier one makes needless.
    const bool refused = amount < unit.smallest || last(text) == "." || first(text) == unit.refusedStart ||
                         (first(text) == "0" && amount >= 1.0) || (first(text) == "0" && amount >= unit.largest) ||
                         amount > unit.largest || amount < unit.smallest;
    if (refused)
        showAlert();
    return !refused;
}
