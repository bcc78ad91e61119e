// Life cycle, protocol answers and change propagation that both panels share.
#include "SharedSettingsPDE.h"

#include "PerforatedMemo.h"

#include "Foundation/Bundle.h"
#include "Foundation/Locale.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/SystemVersion.h"

#include <array>

using foundation::NotificationCenter;

namespace {

constexpr std::array kUSBSchemes{"usb", "QNLRUSB"}; // exact, letter case included

/// In the order in which a refresh selects their items.
struct RefreshedControl
{
    OptionId id;
    PDEItemFlags mask;
};
constexpr std::array kRefreshedPopUps{
    RefreshedControl{OptionId::density, kPDEItem_Density},
    RefreshedControl{OptionId::speed, kPDEItem_Media | kPDEItem_RollPrint},
    RefreshedControl{OptionId::media, kPDEItem_Media},
    RefreshedControl{OptionId::formFeedMode, kPDEItem_FormFeedMode},
    RefreshedControl{OptionId::rollPrint, kPDEItem_RollPrint},
    RefreshedControl{OptionId::paperFeed, kPDEItem_PaperFeed},
};
constexpr std::array kRefreshedCheckBoxes{
    RefreshedControl{OptionId::reversal, kPDEItem_Reversal},
    RefreshedControl{OptionId::perforated, kPDEItem_Perforated},
    RefreshedControl{OptionId::mirror, kPDEItem_Mirror},
    RefreshedControl{OptionId::biDiPrint, kPDEItem_BiDiPrint},
};

} // namespace

SharedSettingsPDE::SharedSettingsPDE()
{
    mControlFields = {
        {"tabView", &tabView},
        {"versionStr", &versionStr},
        {"mDensityStr", &mDensityStr},
        {"mDensityPopUp", &mDensityPopUp},
        {"mMediaStr", &mMediaStr},
        {"mMediaPopUp", &mMediaPopUp},
        {"mFormFeedModeStr", &mFormFeedModeStr},
        {"mFormFeedModePopUp", &mFormFeedModePopUp},
        {"mPaperFeedStr", &mPaperFeedStr},
        {"mPaperFeedPopUp", &mPaperFeedPopUp},
        {"mPerforatedStr", &mPerforatedStr},
        {"mPerforatedPopUp", &mPerforatedPopUp},
        {"mSeparateLineOP", &mSeparateLineOP},
        {"mSeparateLineBI", &mSeparateLineBI},
        {"mHalftoneDummyView", &mHalftoneDummyView},
        {"mHalftoneTitle", &mHalftoneTitle},
        {"mHalftoneRadio", &mHalftoneRadio},
        {"mOptionTitle", &mOptionTitle},
        {"mReversalChkBx", &mReversalChkBx},
        {"mMirrorChkBx", &mMirrorChkBx},
        {"mBiDiPrintChkBx", &mBiDiPrintChkBx},
    };
}

bool SharedSettingsPDE::initWithCallback(PDEPluginCallback_v100_ &callback, const foundation::Bundle &bundle)
{
    if (!BasePDE_v100_::initWithCallback(callback, bundle))
        return true;
    const auto uri = printing::PMPrinterCopyDeviceURI(callback.PMPrinter());
    const auto scheme = uri ? printing::uriScheme(*uri) : std::nullopt;
    usb_dec = scheme && std::ranges::find(kUSBSchemes, *scheme) != kUSBSchemes.end();
    set_paperName = readPaperName();
    const QStringList localizations = bundle.preferredLocalizations();
    if (!localizations.isEmpty())
        language_Nsme = localizations.first();
    isMetter = foundation::IsMetric();
    findOptions();
    return true;
}

void SharedSettingsPDE::findOptions()
{
    for (const OptionRow &row : kOptionRows) {
        const auto fields = fieldsOf(row.id);
        if (!fields)
            continue;
        fields->option = ppd ? ppdFindOption(ppd, row.keyword) : nullptr;
        fields->choices = PDEUtilsMethod::arrayFromPPDOption(fields->option);
        fields->selection = nullptr;
    }
}

SharedSettingsPDE::~SharedSettingsPDE()
{
    perforatedMemo::remove();
    delete mHalftoneView;
    NotificationCenter::defaultCenter().removeObserver(this, printing::kPaperDidChangeNotification);
}

void SharedSettingsPDE::addObserverSelf()
{
    NotificationCenter::defaultCenter().addObserver(this, printing::kPaperDidChangeNotification,
                                                    [this] { PMPrintDestinationPaperDidChangeNotification(); });
}

void SharedSettingsPDE::PMPrintDestinationPaperDidChangeNotification()
{
    paperSize_Adjust();
    selectItem_Adjust();
    setValuesToKey();
}

std::optional<SharedSettingsPDE::OptionFields> SharedSettingsPDE::fieldsOf(OptionId id)
{
    switch (id) {
    case OptionId::density: return OptionFields{mDensity_Option, mDensity_Choices, mDensity_Selection};
    case OptionId::speed: return OptionFields{mSpeed_Option, mSpeed_Choices, mSpeed_Selection};
    case OptionId::media: return OptionFields{mMedia_Option, mMedia_Choices, mMedia_Selection};
    case OptionId::formFeedMode:
        return OptionFields{mFormFeedMode_Option, mFormFeedMode_Choices, mFormFeedMode_Selection};
    case OptionId::paperFeed: return OptionFields{mPaperFeed_Option, mPaperFeed_Choices, mPaperFeed_Selection};
    case OptionId::perforated: return OptionFields{mPerforated_Option, mPerforated_Choices, mPerforated_Selection};
    case OptionId::halftone: return OptionFields{mHalftone_Option, mHalftone_Choices, mHalftone_Selection};
    case OptionId::reversal: return OptionFields{mReversal_Option, mReversal_Choices, mReversal_Selection};
    case OptionId::mirror: return OptionFields{mMirror_Option, mMirror_Choices, mMirror_Selection};
    case OptionId::biDiPrint: return OptionFields{mBiDiPrint_Option, mBiDiPrint_Choices, mBiDiPrint_Selection};
    case OptionId::rollPrint: break;
    }
    return std::nullopt;
}

toolkit::PopUpButton *SharedSettingsPDE::popUpOf(OptionId id)
{
    switch (id) {
    case OptionId::density: return &mDensityPopUp;
    case OptionId::media: return &mMediaPopUp;
    case OptionId::formFeedMode: return &mFormFeedModePopUp;
    case OptionId::paperFeed: return &mPaperFeedPopUp;
    default: return nullptr;
    }
}

toolkit::CheckBox *SharedSettingsPDE::checkBoxOf(OptionId id)
{
    switch (id) {
    case OptionId::reversal: return &mReversalChkBx;
    case OptionId::mirror: return &mMirrorChkBx;
    case OptionId::biDiPrint: return &mBiDiPrintChkBx;
    default: return nullptr;
    }
}

void SharedSettingsPDE::initSetTitleTexts()
{
    tabView.setLabel("1", localized("STEXT_TAB1"));
    tabView.setLabel("2", localized("STEXT_TAB2"));
}

void SharedSettingsPDE::initUI()
{
    if (set_formatSetting)
        return;
    versionStr.setStringValue("ver : " + fileVerString().value_or(QString()));
    initializeOptions();
    paperSize_Adjust();
    selectItem_Adjust();
    saveOptions();
    set_formatSetting = true;
    finishFirstDisplay();
}

std::optional<QStringList> SharedSettingsPDE::supportedPPDOptionKeys()
{
    if (supportedOptions())
        return supportedOptions();
    saveOptions();
    QStringList keys;
    for (const OptionRow &row : kOptionRows) {
        const auto fields = fieldsOf(row.id);
        if (!fields || !fields->option || !claims(row.id))
            continue;
        if (row.id == OptionId::density || row.id == OptionId::speed) // these two have a twin in US units
            keys.append(QLatin1String(row.keyword) + "US");
        keys.append(row.keyword);
    }
    setSupportedOptions(keys);
    return supportedOptions();
}

void SharedSettingsPDE::setPDEItems()
{
    for (const PDEItemFlags flags : refreshOrder())
        updateUIItem(flags);
}

void SharedSettingsPDE::setPDEItems2()
{
    for (const PDEItemFlags flags : refreshOrder())
        updateMarkedSelections(flags);
}

void SharedSettingsPDE::PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                                   const std::optional<QString> &choice)
{
    if (!key || !choice)
        return;
    const auto *const row = std::ranges::find_if(kOptionRows, [&](const OptionRow &r) { return *key == r.keyword; });
    const auto fields = row == kOptionRows.end() ? std::nullopt : fieldsOf(row->id);
    if (fields)
        fields->selection = fields->choices ? PDEUtilsMethod::findChoiceForString(choice, *fields->choices) : nullptr;
}

void SharedSettingsPDE::updateMarkedSelections(PDEItemFlags flags)
{
    for (const OptionRow &row : kOptionRows) {
        const auto fields = fieldsOf(row.id);
        if (!(flags & row.mask) || !fields || !fields->option)
            continue;
        auto index = indexOfMarkedOption(fields->choices, row.keyword);
        if (index == -1)
            index = indexOfDefaultOption(fields->choices);
        const bool exists = fields->choices && index >= 0 && index < std::ssize(*fields->choices);
        fields->selection = exists ? &(*fields->choices)[static_cast<std::size_t>(index)] : nullptr;
    }
}

int SharedSettingsPDE::indexOfSelection(OptionId id)
{
    const auto fields = fieldsOf(id);
    if (!fields || !fields->selection || !fields->choices)
        return -1;
    const auto found =
        std::ranges::find_if(*fields->choices, [&](const PDEChoice &c) { return &c == fields->selection; });
    return found == fields->choices->end() ? -1 : static_cast<int>(found - fields->choices->begin());
}

void SharedSettingsPDE::updateUIItem(PDEItemFlags flags)
{
    paperSize_Adjust();
    refreshPopUps(flags);
    selectItem_Adjust();
    if ((flags & kPDEItem_Halftone) && mHalftone_Selection && mHalftone_Choices) {
        mHalftoneRadio.selectRow(indexOfSelection(OptionId::halftone));
        if (mHalftoneView)
            mHalftoneView->setNeedsDisplay();
    }
    refreshCheckBoxes(flags);
}

void SharedSettingsPDE::refreshPopUps(PDEItemFlags flags)
{
    for (const auto &[id, mask] : kRefreshedPopUps)
        if (auto *popUp = flags & mask ? popUpOf(id) : nullptr)
            popUp->selectItemAtIndex(indexOfSelection(id)); // -1, not found, selects nothing
}

void SharedSettingsPDE::refreshCheckBoxes(PDEItemFlags flags)
{
    for (const auto &[id, mask] : kRefreshedCheckBoxes) {
        auto *const box = flags & mask ? checkBoxOf(id) : nullptr;
        const int index = indexOfSelection(id);
        if (box && index >= 0)
            box->setState(index); // so the PPD lists the off choice first
    }
}

bool SharedSettingsPDE::withholdsMirror()
{
    constexpr std::int32_t kFirstVersionWithout = 0x1060;
    std::int32_t version = 0; // what a system that does not answer leaves; the answer's status does not count
    foundation::Gestalt(foundation::gestaltSystemVersion, &version);
    return version >= kFirstVersionWithout;
}

bool SharedSettingsPDE::connectField(const QString &name, QWidget *control)
{
    for (const ControlField &field : mControlFields)
        if (name == QLatin1String(field.name))
            return field.control->connect(control);
    return false;
}

std::vector<PDEPanelInspection::Control> SharedSettingsPDE::controls() const
{
    std::vector<Control> result{{"mHalftoneView", mHalftoneView}};
    for (const ControlField &field : mControlFields)
        result.push_back({field.name, field.control->widget()});
    return result;
}

std::vector<PDEPanelInspection::Selection> SharedSettingsPDE::selections() const
{
    const auto keyword = [](const PDEChoice *choice) { return choice ? choice->ppdTitle() : std::nullopt; };
    return {
        {"mDensity_Selection", keyword(mDensity_Selection)},
        {"mSpeed_Selection", keyword(mSpeed_Selection)},
        {"mMedia_Selection", keyword(mMedia_Selection)},
        {"mFormFeedMode_Selection", keyword(mFormFeedMode_Selection)},
        {"mPaperFeed_Selection", keyword(mPaperFeed_Selection)},
        {"mPerforated_Selection", keyword(mPerforated_Selection)},
        {"mHalftone_Selection", keyword(mHalftone_Selection)},
        {"mOption_Selection", keyword(mOption_Selection)},
        {"mReversal_Selection", keyword(mReversal_Selection)},
        {"mMirror_Selection", keyword(mMirror_Selection)},
        {"mBiDiPrint_Selection", keyword(mBiDiPrint_Selection)},
    };
}
