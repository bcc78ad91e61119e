// Basic panel, groups QNKVPS_initialize and QNKVPS_Save: building the controls from the PPD, following the paper, and
// writing the controls back.
#include "PrintSettingPDE.h"

#include "FeedUnits.h"
#include "PerforatedMemo.h"

#include "Foundation/Locale.h"
#include "Printing/Units.h"

namespace {

constexpr auto kCustomOption = "QnPaperFeed";

// The limits stand in the parameter of millimetres, the amount goes into the one of inches: two names, on purpose.
constexpr auto kLimitsParameter = "mm";
constexpr auto kAmountParameter = "QnPaperFeed";

/// 25.5, not 25.4, on purpose: it makes 51 mm exactly 2.0 inch, the limit of the check before printing.
constexpr float kMillimetresPerInchInLimits = 25.5F;
static_assert(paper::kMillimetres.largest / kMillimetresPerInchInLimits == paper::kInches.largest);

constexpr int kDecimals = 6; // of the amount in the PPD

/// Null when the PPD lacks it or when it is not a real number.
ppd_cparam_t *realParameter(ppd_file_t *ppd, const char *name)
{
    ppd_coption_t *const option = ppd ? ppdFindCustomOption(ppd, kCustomOption) : nullptr;
    ppd_cparam_t *const parameter = option ? ppdFindCustomParam(option, name) : nullptr;
    return parameter && parameter->type == PPD_CUSTOM_REAL ? parameter : nullptr;
}

/// Divided in single precision.
double limitInUnitShown(float millimetres)
{
    return foundation::IsMetric() ? millimetres : millimetres / kMillimetresPerInchInLimits;
}

} // namespace

void PrintSettingPDE_v100_::initializeOptions()
{
    // Not the density, on purpose: its menu stays the interface file's own.
    initializeUI_OtherStr();
    initializeUI_RollPrint();
    initializeUI_Media();
    initializeUI_FormFeedMode();
    initializeUI_PaperFeed();
    initializeUI_Perforated();
}

void PrintSettingPDE_v100_::saveOptions()
{
    saveSetting_Media();
    saveSetting_FormFeedMode();
    saveSetting_PaperFeed();
    saveSetting_Perforated();
    saveSetting_RollPrint();
}

void PrintSettingPDE_v100_::finishFirstDisplay()
{
    mPaperFeedinteger = paper::kMillimetres.initial;
    inch = paper::kInches.initial;
    if (foundation::IsMetric()) {
        mPaperFeedStepper.setIntegerValue(mPaperFeedTxt.integerValue());
    } else {
        mPaperFeedStepper.setDoubleValue(mPaperFeedTxt.doubleValue());
        mPaperFeedStepper.setIncrement(paper::kInches.increment);
    }
}

void PrintSettingPDE_v100_::initializeUI_OtherStr()
{
    const paper::FeedUnit &unit = paper::feedUnit(foundation::IsMetric());
    mPaperFeedTxt.setDoubleValue(unit.initial);
    mMetricSystemStr.setStringValue(unit.label);
}

void PrintSettingPDE_v100_::initializeUI_Density() { initializePopUp(OptionId::density, mDensityStr, mDensityPopUp); }

void PrintSettingPDE_v100_::initializeUI_Media() { initializePopUp(OptionId::media, mMediaStr, mMediaPopUp); }

void PrintSettingPDE_v100_::initializeUI_FormFeedMode()
{
    initializePopUp(OptionId::formFeedMode, mFormFeedModeStr, mFormFeedModePopUp);
}

void PrintSettingPDE_v100_::initializeUI_RollPrint()
{
    initializePopUp(OptionId::rollPrint, mRollPrintStr, mRollPrintPopUp);
}

void PrintSettingPDE_v100_::initializeUI_Perforated()
{
    initializePopUp(OptionId::perforated, mPerforatedStr, mPerforatedPopUp);
}

void PrintSettingPDE_v100_::initializeUI_PaperFeed()
{
    if (!mPaperFeed_Choices)
        return;
    // The hidden flag greys the label only.
    PDEUtilsMethod::setEnabledForText(PDEUtilsMethod::isSupportedItem(ppd, "QnPaperFeedObjHidden"), mPaperFeedStr);
    mPaperFeedStr.setStringValue(labelText("QnPaperFeed", "RS_PaperFeed"));
    if (const ppd_cparam_t *const limits = realParameter(ppd, kLimitsParameter)) {
        kPaperFeedMin = limitInUnitShown(limits->minimum.custom_real);
        kPaperFeedMax = limitInUnitShown(limits->maximum.custom_real);
    }
    if (mFormFeedModePopUp.indexOfSelectedItem() != 0)
        setPaperFeedEntry(Entry::disabled);
}

void PrintSettingPDE_v100_::saveSetting_Density() { savePopUp(OptionId::density, mDensityPopUp); }

void PrintSettingPDE_v100_::saveSetting_Media() { savePopUp(OptionId::media, mMediaPopUp); }

void PrintSettingPDE_v100_::saveSetting_Perforated() { savePopUp(OptionId::perforated, mPerforatedPopUp); }

void PrintSettingPDE_v100_::saveSetting_FormFeedMode() { savePopUpOfPaper(OptionId::formFeedMode, mFormFeedModePopUp); }

void PrintSettingPDE_v100_::saveSetting_RollPrint() { savePopUpOfPaper(OptionId::rollPrint, mRollPrintPopUp); }

void PrintSettingPDE_v100_::saveSetting_PaperFeed()
{
    const double amount = mPaperFeedTxt.doubleValue();
    if (ppd_cparam_t *const parameter = realParameter(ppd, kAmountParameter)) {
        mRefusedFeed = {markedInches(*parameter), static_cast<float>(amount)};
        parameter->current.custom_real = mRefusedFeed->written; // in the unit shown, unconverted
    }
    if (!mPaperFeed_Choices || !printSettings || !mPaperFeed_Option)
        return;
    const double inches = foundation::IsMetric() ? amount / printing::kMillimetresPerInch : amount;
    if (pdePluginCallbackObject->willChangePPDOptionKeyValue(mPaperFeed_Option->keyword,
                                                             QString::number(inches, 'f', kDecimals)))
        mRefusedFeed.reset();
}

void PrintSettingPDE_v100_::adjustToPaper(const paper::Availability &rules, paper::Group group, int formFeed,
                                          int perforated)
{
    if (group == paper::Group::roll) {
        if (perforatedMemo::value() == "YES")
            mFormFeedModePopUp.selectItemAtIndex(1);
        if (formFeed == 1) // as it was at the start: a move by the memo does not store the memo again
            perforatedMemo::store("YES");
    }
    const bool enabled = paper::holds(rules.feedAmount, formFeed, perforated);
    setPaperFeedEntry(enabled ? Entry::enabled : Entry::disabled);
    if (group == paper::Group::plain && !enabled)
        mPaperFeedTxt.setAllowsExpansionToolTips(false); // never switched on again, as intended
    if (group == paper::Group::retract)
        setPaperFeedEntry(Entry::disabled); // whatever the form feed said just before
}

void PrintSettingPDE_v100_::adjustAfterSelection(paper::Group group, int formFeedAtEntry)
{
    if (group == paper::Group::roll && formFeedAtEntry == 1)
        perforatedMemo::store("YES");
}
