// The advanced panel: its fields and its layout.
#include "PrintSettingAdvancedPDE.h"

#include <array>

namespace {

constexpr std::array<PDEItemFlags, 9> kRefreshOrder{kPDEItem_Density,   kPDEItem_Media,      kPDEItem_FormFeedMode,
                                                    kPDEItem_PaperFeed, kPDEItem_Perforated, kPDEItem_Halftone,
                                                    kPDEItem_Reversal,  kPDEItem_Mirror,     kPDEItem_BiDiPrint};

} // namespace

PrintSettingAdvancedPDE_v100_::PrintSettingAdvancedPDE_v100_()
{
    mControlFields.insert(
        mControlFields.end(),
        {{"mSpeedStr", &mSpeedStr}, {"mSpeedPopUp", &mSpeedPopUp}, {"mPerforatedChkBx", &mPerforatedChkBx}});
}

PrintSettingAdvancedPDE_v100_::~PrintSettingAdvancedPDE_v100_() { delete kAdvPDEView; }

QWidget *PrintSettingAdvancedPDE_v100_::panelView() { return loadedView(kAdvPDEView, "PrintSettingAdvancedPDE"); }

QString PrintSettingAdvancedPDE_v100_::panelName() { return cachedPanelName("STEXT_TAB2"); }

bool PrintSettingAdvancedPDE_v100_::shouldPrint()
{
    saveSetting_PaperSize();
    return true; // no check of the paper's size here
}

toolkit::PopUpButton *PrintSettingAdvancedPDE_v100_::popUpOf(OptionId id)
{
    return id == OptionId::speed ? &mSpeedPopUp : SharedSettingsPDE::popUpOf(id);
}

toolkit::CheckBox *PrintSettingAdvancedPDE_v100_::checkBoxOf(OptionId id)
{
    return id == OptionId::perforated ? &mPerforatedChkBx : SharedSettingsPDE::checkBoxOf(id);
}

bool PrintSettingAdvancedPDE_v100_::claims(OptionId id) const { return optionRow(id).claimedBy == ClaimedBy::both; }

std::span<const PDEItemFlags> PrintSettingAdvancedPDE_v100_::refreshOrder() const { return kRefreshOrder; }

void PrintSettingAdvancedPDE_v100_::awakeFromNib()
{
    // Only mirror and bi-directional print go where the PPD says; all else deliberately stays.
    placeGroup(isPresent(OptionId::density), {{nullptr, &mDensityStr}, {nullptr, &mDensityPopUp}});
    placeGroup(isPresent(OptionId::speed), {{nullptr, &mSpeedStr}, {nullptr, &mSpeedPopUp}});
    placeGroup(isPresent(OptionId::media), {{nullptr, &mMediaStr}, {nullptr, &mMediaPopUp}});
    placeGroup(isPresent(OptionId::formFeedMode), {{nullptr, &mFormFeedModeStr}, {nullptr, &mFormFeedModePopUp}});
    placeGroup(isPresent(OptionId::paperFeed), {{nullptr, &mPaperFeedStr}, {nullptr, &mPaperFeedPopUp}});
    placeGroup(isPresent(OptionId::perforated), {{nullptr, &mPerforatedStr}, {nullptr, &mPerforatedPopUp}});
    placeHalftoneView();
    placeOptionGroup(nullptr, nullptr);
}

void PrintSettingAdvancedPDE_v100_::setValuesToKey()
{
    saveSetting_PaperSize();
    saveOptions();
}

void PrintSettingAdvancedPDE_v100_::performAction(const QString &name, QWidget *sender)
{
    struct Action
    {
        const char *name;
        void (PrintSettingAdvancedPDE_v100_::*perform)(QWidget *sender);
    };
    static constexpr std::array kActions{
        Action{"changeHalftone", &PrintSettingAdvancedPDE_v100_::changeHalftone},
        Action{"changeOption", &PrintSettingAdvancedPDE_v100_::changeOption},
        Action{"changeDensity", &PrintSettingAdvancedPDE_v100_::changeDensity},
        Action{"changeSpeed", &PrintSettingAdvancedPDE_v100_::changeSpeed},
    };
    for (const Action &action : kActions)
        if (name == QLatin1String(action.name))
            (this->*action.perform)(sender);
}
