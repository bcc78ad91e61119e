// The basic panel: its fields, its layout, and its check of the paper before printing.
#include "PrintSettingPDE.h"

#include "Toolkit/Alert.h"

#include <array>

namespace {

/// Roll printer case right after media.
constexpr std::array<PDEItemFlags, 10> kRefreshOrder{
    kPDEItem_Density,    kPDEItem_Media,    kPDEItem_RollPrint, kPDEItem_FormFeedMode, kPDEItem_PaperFeed,
    kPDEItem_Perforated, kPDEItem_Halftone, kPDEItem_Reversal,  kPDEItem_Mirror,       kPDEItem_BiDiPrint};

} // namespace

PrintSettingPDE_v100_::PrintSettingPDE_v100_()
{
    mControlFields.insert(mControlFields.end(), {{"mMetricSystemStr", &mMetricSystemStr},
                                                 {"mPaperFeedTxt", &mPaperFeedTxt},
                                                 {"mPaperFeedStepper", &mPaperFeedStepper},
                                                 {"mRollPrintStr", &mRollPrintStr},
                                                 {"mRollPrintPopUp", &mRollPrintPopUp},
                                                 {"mRollPrintChkBx", &mRollPrintChkBx}});
}

std::optional<SharedSettingsPDE::OptionFields> PrintSettingPDE_v100_::fieldsOf(OptionId id)
{
    if (id == OptionId::rollPrint)
        return OptionFields{mRollPrint_Option, mRollPrint_Choices, mRollPrint_Selection};
    return SharedSettingsPDE::fieldsOf(id);
}

toolkit::PopUpButton *PrintSettingPDE_v100_::popUpOf(OptionId id)
{
    return id == OptionId::rollPrint ? &mRollPrintPopUp : SharedSettingsPDE::popUpOf(id);
}

std::vector<PDEPanelInspection::Selection> PrintSettingPDE_v100_::selections() const
{
    auto result = SharedSettingsPDE::selections();
    result.push_back({"mRollPrint_Selection", mRollPrint_Selection ? mRollPrint_Selection->ppdTitle() : std::nullopt});
    return result;
}

std::span<const PDEItemFlags> PrintSettingPDE_v100_::refreshOrder() const { return kRefreshOrder; }

void PrintSettingPDE_v100_::awakeFromNib()
{
    // The PPD has places for the first five groups too; they deliberately stay where the interface file has them.
    placeGroup(isPresent(OptionId::density), {{nullptr, &mDensityStr}, {nullptr, &mDensityPopUp}});
    placeGroup(isPresent(OptionId::media), {{nullptr, &mMediaStr}, {nullptr, &mMediaPopUp}});
    placeGroup(isPresent(OptionId::formFeedMode), {{nullptr, &mFormFeedModeStr}, {nullptr, &mFormFeedModePopUp}});
    placeGroup(isPresent(OptionId::rollPrint), {{nullptr, &mRollPrintStr}, {nullptr, &mRollPrintPopUp}});
    placeGroup(isPresent(OptionId::paperFeed),
               {{nullptr, &mPaperFeedStr}, {nullptr, &mPaperFeedTxt}, {nullptr, &mMetricSystemStr}});
    placeGroup(isPresent(OptionId::perforated),
               {{"QnPerforatedStrOrigin", &mPerforatedStr}, {"QnPerforatedPopBtnOrigin", &mPerforatedPopUp}});
    placeHalftoneView();
    placeOptionGroup("QnOptionStrOrigin", "QnReversalChkBtnOrigin");
}

void PrintSettingPDE_v100_::setValuesToKey()
{
    // Not the density, on purpose: its action marks it at once.
    saveSetting_PaperSize();
    saveSetting_Media();
    saveSetting_RollPrint();
    saveSetting_FormFeedMode();
    saveSetting_PaperFeed();
    saveSetting_Perforated();
}

void PrintSettingPDE_v100_::performAction(const QString &name, QWidget *)
{
    struct Action
    {
        const char *name;
        void (PrintSettingPDE_v100_::*perform)();
    };
    static constexpr std::array kActions{
        Action{"changeDensity", &PrintSettingPDE_v100_::changeDensity},
        Action{"changeMedia", &PrintSettingPDE_v100_::changeMedia},
        Action{"changeFormFeedMode", &PrintSettingPDE_v100_::changeFormFeedMode},
        Action{"changeRollPrint", &PrintSettingPDE_v100_::changeRollPrint},
        Action{"changePerforated", &PrintSettingPDE_v100_::changePerforated},
        Action{"changePaperFeed", &PrintSettingPDE_v100_::changePaperFeed},
        Action{"StepperClick", &PrintSettingPDE_v100_::StepperClick},
    };
    for (const Action &action : kActions)
        if (name == QLatin1String(action.name))
            (this->*action.perform)();
}

bool PrintSettingPDE_v100_::isPaperSizeOutOfSizeRange() const
{
    const auto paper = printing::PMGetPageFormatPaper(pdePluginCallbackObject->pageFormat());
    const auto width = paper ? printing::PMPaperGetWidth(*paper) : std::nullopt;
    const auto height = paper ? printing::PMPaperGetHeight(*paper) : std::nullopt;
    if (!width || !height || !ppd)
        return false;
    return *width > ppd->custom_max[0] || *height > ppd->custom_max[1] || ppd->custom_min[0] > *width ||
           ppd->custom_min[1] > *height;
}

void PrintSettingPDE_v100_::showPaperSizeOutOfSizeRangeAlert() const
{
    toolkit::Alert alert;
    alert.setMessageText(localized("Unsupported Paper Title"));
    alert.setInformativeText(QString("%1\n\n%2\n%3\n%4")
                                 .arg(localized("Unsupported Paper MSG1"), localized("Unsupported Paper MSG2"),
                                      localized("Unsupported Paper MSG3"), localized("Unsupported Paper MSG4")));
    alert.addButtonWithTitle(localized("OK"));
    alert.runModal();
}

bool PrintSettingPDE_v100_::shouldPrint()
{
    if (isPaperSizeOutOfSizeRange()) {
        showPaperSizeOutOfSizeRangeAlert();
        return false;
    }
    saveSetting_PaperSize();
    saveSetting_PaperFeed();
    return shouldShowAlert();
}
