// Advanced panel, groups Enhance_initialize and Enhance_Save: building the controls from the PPD, following the paper,
// and writing the controls back.
#include "PrintSettingAdvancedPDE.h"

#include "PerforatedMemo.h"

#include <cstring>

void PrintSettingAdvancedPDE_v100_::initializeOptions()
{
    initializeUI_OtherStr();
    initializeUI_Density();
    initializeUI_Speed();
    initializeUI_Halftone();
    initializeUI_Option();
    initializeUI_BiDiPrint();
}

void PrintSettingAdvancedPDE_v100_::saveOptions()
{
    saveSetting_Density();
    saveSetting_Speed();
    saveSetting_Perforated();
    saveSetting_Halftone();
    saveSetting_Reversal();
    saveSetting_Mirror();
    saveSetting_BiDiPrint();
}

void PrintSettingAdvancedPDE_v100_::initializeUI_Density()
{
    initializePopUp(OptionId::density, mDensityStr, mDensityPopUp);
}

void PrintSettingAdvancedPDE_v100_::initializeUI_Speed() { initializePopUp(OptionId::speed, mSpeedStr, mSpeedPopUp); }

void PrintSettingAdvancedPDE_v100_::initializeUI_Halftone()
{
    mHalftoneTitle.setStringValue(labelText("QnHalftonePattern", "HC_Halftone"));
    // Fixed titles, not the PPD's: it lists its three methods in this order.
    for (std::size_t row = 0; row < kHalftoneKeys.size(); ++row)
        mHalftoneRadio.setRowTitle(static_cast<int>(row), localized(kHalftoneKeys[row]));
    if (!mHalftone_Choices)
        return;
    const auto standard = std::ranges::find_if(*mHalftone_Choices, &PDEChoice::isDefaultChoice);
    if (standard != mHalftone_Choices->end())
        mHalftoneRadio.selectRow(static_cast<int>(standard - mHalftone_Choices->begin()));
}

void PrintSettingAdvancedPDE_v100_::initializeUI_Option()
{
    // All three boxes go by the answer for the reversal, on purpose.
    const bool reversal = PDEUtilsMethod::isSupportedItem(ppd, "QnReversalObjHidden");
    const bool mirror = PDEUtilsMethod::isSupportedItem(ppd, "QnMirrorObjHidden");
    mReversalChkBx.setEnabled(reversal);
    mMirrorChkBx.setEnabled(reversal);
    mPerforatedChkBx.setEnabled(reversal);
    if (!reversal && !mirror) {
        PDEUtilsMethod::setEnabledForText(false, mOptionTitle);
        mSeparateLineOP.removeFromSuperview();
    }
    mOptionTitle.setStringValue(localized("HC_Option"));
    initializeCheckBox(OptionId::perforated, mPerforatedChkBx, "RS_Perforated");
    initializeCheckBox(OptionId::reversal, mReversalChkBx, "HC_Reversal");
    initializeCheckBox(OptionId::mirror, mMirrorChkBx, "HC_Mirror");
}

void PrintSettingAdvancedPDE_v100_::initializeUI_BiDiPrint()
{
    const bool supported = PDEUtilsMethod::isSupportedItem(ppd, "QnBiDiPrintObjHidden");
    if (!supported)
        mSeparateLineBI.removeFromSuperview();
    mBiDiPrintChkBx.setEnabled(supported && usb_dec); // only a printer on USB answers
    initializeCheckBox(OptionId::biDiPrint, mBiDiPrintChkBx, "HC_BiDiPrint");
}

void PrintSettingAdvancedPDE_v100_::initializeCheckBox(OptionId id, toolkit::CheckBox &box, const char *fallbackKey)
{
    const auto fields = fieldsOf(id);
    if (!fields->choices)
        return;
    box.setTitle(plainTitle(optionRow(id).keyword, fallbackKey));
    if (!fields->choices->empty())
        box.setState(std::strncmp(fields->option->defchoice, "ON", PPD_MAX_NAME) == 0 ? 1 : 0);
}

void PrintSettingAdvancedPDE_v100_::saveSetting_Halftone()
{
    saveOption(OptionId::halftone, mHalftoneRadio ? std::optional(mHalftoneRadio.selectedRow()) : std::nullopt);
}

void PrintSettingAdvancedPDE_v100_::saveCheckBox(OptionId id, const toolkit::CheckBox &box)
{
    saveOption(id, box ? std::optional(box.state()) : std::nullopt);
}

void PrintSettingAdvancedPDE_v100_::saveSetting_Reversal() { saveCheckBox(OptionId::reversal, mReversalChkBx); }
void PrintSettingAdvancedPDE_v100_::saveSetting_Perforated() { saveCheckBox(OptionId::perforated, mPerforatedChkBx); }
void PrintSettingAdvancedPDE_v100_::saveSetting_Mirror() { saveCheckBox(OptionId::mirror, mMirrorChkBx); }
void PrintSettingAdvancedPDE_v100_::saveSetting_BiDiPrint() { saveCheckBox(OptionId::biDiPrint, mBiDiPrintChkBx); }
void PrintSettingAdvancedPDE_v100_::saveSetting_Density() { savePopUp(OptionId::density, mDensityPopUp); }
void PrintSettingAdvancedPDE_v100_::saveSetting_Speed() { savePopUp(OptionId::speed, mSpeedPopUp); }

/// The memo is only read here; the basic panel writes it.
bool PrintSettingAdvancedPDE_v100_::memoAllowsPerforated() { return perforatedMemo::value().value_or("YES") == "YES"; }

void PrintSettingAdvancedPDE_v100_::adjustToPaper(const paper::Availability &rules, paper::Group, int formFeed, int)
{
    switch (rules.perforatedBox) {
    case paper::PerforatedBox::never: mPerforatedChkBx.setEnabled(false); break;
    case paper::PerforatedBox::formFeed1: mPerforatedChkBx.setEnabled(formFeed == 1); break;
    case paper::PerforatedBox::byMemo: mPerforatedChkBx.setEnabled(memoAllowsPerforated()); break;
    }
}

void PrintSettingAdvancedPDE_v100_::adjustAfterSelection(paper::Group group, int)
{
    switch (group) {
    case paper::Group::other: break; // stays as the adjustment to the paper left it
    case paper::Group::roll: mPerforatedChkBx.setEnabled(memoAllowsPerforated()); break;
    default: mPerforatedChkBx.setEnabled(false); break;
    }
}
