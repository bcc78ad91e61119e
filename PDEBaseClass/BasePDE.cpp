// The base of the panels.
#include "BasePDE.h"

#include "Foundation/Bundle.h"

#include <algorithm>

namespace {

constexpr auto kPanelKind = "org.qnprint.printer.cups.pde.PrintSettingPDEKind";

/// One byte less than the array has, terminator included. The margin is kept on purpose.
constexpr qsizetype kDeviceURIBufferLength = 255;

} // namespace

bool BasePDE_v100_::initWithCallback(PDEPluginCallback_v100_ &callback, const foundation::Bundle &bundle)
{
    mSupportedOptions.reset();
    thePDEName.reset();
    nsPDEBundle = &bundle;
    pdePluginCallbackObject = &callback;
    printSession = callback.printSession();
    pmPrintSettings = callback.printSettings();
    printSettings = callback.printSettings();
    formatSettings = callback.pageFormat();
    printer = callback.PMPrinter();
    ppd = callback.ppdFile();
    deviceURI.fill('\0');
    if (const auto uri = printing::PMPrinterCopyDeviceURI(printer)) {
        const QByteArray bytes = uri->toUtf8();
        if (bytes.size() < kDeviceURIBufferLength)
            std::ranges::copy(bytes, deviceURI.begin());
    }
    addObserverSelf();
    return true;
}

BasePDE_v100_::~BasePDE_v100_() { delete kPDEView; }

QWidget *BasePDE_v100_::panelView() { return loadedView(kPDEView, "PrintSettingPDE"); }

QWidget *BasePDE_v100_::loadedView(QPointer<QWidget> &view, const char *interfaceFile)
{
    if (!view)
        view = toolkit::loadInterfaceFile(*nsPDEBundle, interfaceFile, *this).release();
    return view;
}

QString BasePDE_v100_::panelName() { return cachedPanelName("STEXT_TAB1"); }

QString BasePDE_v100_::cachedPanelName(const char *key)
{
    if (!thePDEName)
        thePDEName = localized(key);
    return *thePDEName;
}

QString BasePDE_v100_::localized(const QString &key) const { return nsPDEBundle->localizedString(key); }

QString BasePDE_v100_::panelKind() { return kPanelKind; }

std::optional<QStringList> BasePDE_v100_::supportedPPDOptionKeys()
{
    setValuesToKey();
    return std::nullopt;
}

void BasePDE_v100_::willShow()
{
    initSetTitleTexts();
    initUI();
    updateUI();
}

bool BasePDE_v100_::shouldHide()
{
    removeObserverSelf();
    return true;
}

bool BasePDE_v100_::saveValuesAndReturnError(QString *)
{
    setValuesToKey();
    return true;
}

bool BasePDE_v100_::restoreValuesAndReturnError(QString *)
{
    setPDEItems2();
    updateUI();
    return true;
}

std::optional<QString> BasePDE_v100_::fileVerString() const
{
    return ppd ? PDEUtilsMethod::ppdAttrValStr(ppd, "FileVersion") : std::nullopt;
}

const PDEChoice *BasePDE_v100_::selectionForItem(std::uint64_t item, const QString &key,
                                                 const std::optional<ChoiceList> &choices, PDEItemFlags itemType)
{
    if (!choices || item >= choices->size())
        return nullptr;
    const PDEChoice &choice = (*choices)[item];
    if (const auto &keyword = choice.ppdTitle())
        pdePluginCallbackObject->willChangePPDOptionKeyValue(key, *keyword);
    updateMarkedSelections(itemType); // the PPD's constraints may have moved other options
    return &choice;
}

std::int64_t BasePDE_v100_::indexOfMarkedOption(const std::optional<ChoiceList> &choices, const char *forKey) const
{
    const ppd_choice_t *const marked = ppd ? ppdFindMarkedChoice(ppd, forKey) : nullptr;
    if (!marked)
        return -1;
    const auto keyword = foundation::stringFromBytes(marked->choice, foundation::StringEncoding::ascii);
    if (!keyword || !choices)
        return 0;
    const auto found = std::ranges::find(*choices, keyword, &PDEChoice::ppdTitle);
    return found == choices->end() ? 0 : found - choices->begin();
}

std::int64_t BasePDE_v100_::indexOfDefaultOption(const std::optional<ChoiceList> &choices)
{
    if (!choices || choices->empty())
        return 0;
    const auto found = std::ranges::find_if(*choices, &PDEChoice::isDefaultChoice);
    return found == choices->end() ? -1 : found - choices->begin();
}
