// Life cycle, protocol answers and change propagation that both panels share.
#include "SharedSettingsPDE.h"

#include "PerforatedMemo.h"

#include "Foundation/Bundle.h"
#include "Foundation/Locale.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/SystemVersion.h"

#include <algorithm>
#include <array>
#include <functional>

using foundation::NotificationCenter;

namespace {

constexpr std::array kUSBSchemes{"usb", "QNLRUSB"}; // exact, letter case included

} // namespace

using P = SharedSettingsPDE;

constexpr std::array<P::OptionMembers, 10> P::kOptionMembers{{
    // clang-format off
    {OptionId::density,      "mDensity_Selection",      &P::mDensity_Option,      &P::mDensity_Choices,      &P::mDensity_Selection,      &P::mDensityPopUp},
    {OptionId::speed,        "mSpeed_Selection",        &P::mSpeed_Option,        &P::mSpeed_Choices,        &P::mSpeed_Selection},
    {OptionId::media,        "mMedia_Selection",        &P::mMedia_Option,        &P::mMedia_Choices,        &P::mMedia_Selection,        &P::mMediaPopUp},
    {OptionId::formFeedMode, "mFormFeedMode_Selection", &P::mFormFeedMode_Option, &P::mFormFeedMode_Choices, &P::mFormFeedMode_Selection, &P::mFormFeedModePopUp},
    {OptionId::paperFeed,    "mPaperFeed_Selection",    &P::mPaperFeed_Option,    &P::mPaperFeed_Choices,    &P::mPaperFeed_Selection,    &P::mPaperFeedPopUp},
    {OptionId::perforated,   "mPerforated_Selection",   &P::mPerforated_Option,   &P::mPerforated_Choices,   &P::mPerforated_Selection},
    {OptionId::halftone,     "mHalftone_Selection",     &P::mHalftone_Option,     &P::mHalftone_Choices,     &P::mHalftone_Selection},
    {OptionId::reversal,     "mReversal_Selection",     &P::mReversal_Option,     &P::mReversal_Choices,     &P::mReversal_Selection,     nullptr, &P::mReversalChkBx},
    {OptionId::mirror,       "mMirror_Selection",       &P::mMirror_Option,       &P::mMirror_Choices,       &P::mMirror_Selection,       nullptr, &P::mMirrorChkBx},
    {OptionId::biDiPrint,    "mBiDiPrint_Selection",    &P::mBiDiPrint_Option,    &P::mBiDiPrint_Choices,    &P::mBiDiPrint_Selection,    nullptr, &P::mBiDiPrintChkBx},
    // clang-format on
}};

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

const SharedSettingsPDE::OptionMembers *SharedSettingsPDE::membersOf(OptionId id)
{
    static_assert(std::ranges::adjacent_find(kOptionMembers, std::ranges::greater_equal(), &OptionMembers::id) ==
                  kOptionMembers.end()); // each option once, in the order of OptionId
    const auto row = std::ranges::find(kOptionMembers, id, &OptionMembers::id);
    return row == kOptionMembers.end() ? nullptr : &*row;
}

std::optional<SharedSettingsPDE::OptionFields> SharedSettingsPDE::fieldsOf(OptionId id)
{
    const OptionMembers *const row = membersOf(id);
    return row ? std::optional(OptionFields{this->*row->option, this->*row->choices, this->*row->selection})
               : std::nullopt;
}

toolkit::PopUpButton *SharedSettingsPDE::popUpOf(OptionId id)
{
    const OptionMembers *const row = membersOf(id);
    return row && row->popUp ? &(this->*row->popUp) : nullptr;
}

toolkit::CheckBox *SharedSettingsPDE::checkBoxOf(OptionId id)
{
    const OptionMembers *const row = membersOf(id);
    return row && row->checkBox ? &(this->*row->checkBox) : nullptr;
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
    for (const OptionId id : kRefreshedPopUps)
        if (auto *popUp = flags & optionRow(id).mask ? popUpOf(id) : nullptr)
            popUp->selectItemAtIndex(indexOfSelection(id)); // -1, not found, selects nothing
}

void SharedSettingsPDE::refreshCheckBoxes(PDEItemFlags flags)
{
    for (const OptionId id : kRefreshedCheckBoxes) {
        auto *const box = flags & optionRow(id).mask ? checkBoxOf(id) : nullptr;
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
    std::vector<Selection> result;
    for (const OptionMembers &row : kOptionMembers) {
        if (row.id == OptionId::reversal) // the option group's own comes before those of its boxes
            result.push_back({"mOption_Selection", keyword(mOption_Selection)});
        result.push_back({row.selectionName, keyword(this->*row.selection)});
    }
    return result;
}
