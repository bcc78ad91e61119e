// What every panel of the bundle is made of: the connection to the host, the panel protocol turned into a few template
// operations, and the helpers that mark a choice and find an index. Knows nothing of particular options.
#pragma once

#include "PDEPlugInInterface.h"

#include "PDEUtilsMethod.h"
#include "Toolkit/InterfaceFile.h"

#include <QPointer>

#include <array>
#include <cstdint>

/// Which options a refresh concerns. Speed has no flag: it goes with media and roll printer case.
using PDEItemFlags = std::uint32_t;

inline constexpr PDEItemFlags kPDEItem_Density = 0x001;
inline constexpr PDEItemFlags kPDEItem_Media = 0x002;
inline constexpr PDEItemFlags kPDEItem_FormFeedMode = 0x004;
inline constexpr PDEItemFlags kPDEItem_PaperFeed = 0x008;
inline constexpr PDEItemFlags kPDEItem_Perforated = 0x010;
inline constexpr PDEItemFlags kPDEItem_Halftone = 0x020;
inline constexpr PDEItemFlags kPDEItem_Reversal = 0x040;
inline constexpr PDEItemFlags kPDEItem_Mirror = 0x080;
inline constexpr PDEItemFlags kPDEItem_BiDiPrint = 0x100;
inline constexpr PDEItemFlags kPDEItem_RollPrint = 0x200;

class BasePDE_v100_ : public PDEPanel, protected toolkit::InterfaceOwner, protected PDEPanelInspection
{
public:
    BasePDE_v100_() = default;
    ~BasePDE_v100_() override;
    BasePDE_v100_(const BasePDE_v100_ &) = delete;
    BasePDE_v100_ &operator=(const BasePDE_v100_ &) = delete;

    /// Captures what the host hands out and registers for notifications. Both arguments are borrowed.
    virtual bool initWithCallback(PDEPluginCallback_v100_ &callback, const foundation::Bundle &bundle);

    QString identifier() const override { return {}; }
    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() override;
    std::optional<QStringList> supportedPPDOptionKeys() override;
    void willShow() override;
    bool shouldHide() override;
    bool saveValuesAndReturnError(QString *error) override;
    bool restoreValuesAndReturnError(QString *error) override;
    std::optional<PDESummary> summaryInfo() override { return std::nullopt; }
    bool shouldPrint() override { return true; }
    void printWindowWillClose(bool) override {}
    bool shouldShowHelp() override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &, const std::optional<QString> &) override {}
    const PDEPanelInspection &inspection() const override { return *this; }

    /// The PPD's file version; nil when there is no PPD or it names none.
    std::optional<QString> fileVerString() const;

    /// Marks the choice at an index through the host and reads back what is marked. Null, and nothing marked, for nil,
    /// for an index beyond the list and for an empty list.
    const PDEChoice *selectionForItem(std::uint64_t item, const QString &key, const std::optional<ChoiceList> &choices,
                                      PDEItemFlags itemType);

    /// -1 when the option has no marked choice. A marked choice that the list lacks counts as the first, by design.
    std::int64_t indexOfMarkedOption(const std::optional<ChoiceList> &choices, const char *forKey) const;
    /// Without a default: 0 for an empty list, -1 for any other. Deliberately uneven; callers rely on it.
    static std::int64_t indexOfDefaultOption(const std::optional<ChoiceList> &choices);

    void setSupportedOptions(std::optional<QStringList> options) { mSupportedOptions = std::move(options); }
    const std::optional<QStringList> &supportedOptions() const { return mSupportedOptions; }

protected:
    // Template operations: what a panel fills in.
    virtual void initSetTitleTexts() {}
    virtual void initUI() {}
    virtual void setValuesToKey() {}
    virtual void setPDEItems() {}
    virtual void setPDEItems2() {}
    virtual void updateUIItem(PDEItemFlags) {}
    virtual void updateMarkedSelections(PDEItemFlags) {}
    virtual void addObserverSelf() {}
    virtual void removeObserverSelf() {}

    void updateUI() { setPDEItems(); }

    /// The text of a key in the bundle's table.
    QString localized(const QString &key) const;
    QString cachedPanelName(const char *key);
    QWidget *loadedView(QPointer<QWidget> &view, const char *interfaceFile);

    // An owner without controls.
    bool connectField(const QString &, QWidget *) override { return false; }
    void awakeFromNib() override {}
    void performAction(const QString &, QWidget *) override {}
    bool validateMenuItem(const toolkit::MenuItem &) override { return true; }
    void controlTextDidChange(QWidget *) override {}
    void controlTextDidEndEditing(QWidget *) override {}

    // A panel without anything to inspect.
    bool isInterfaceLoaded() const override { return kPDEView; }
    std::vector<Control> controls() const override { return {}; }
    std::vector<Selection> selections() const override { return {}; }
    std::optional<QString> paperName() const override { return std::nullopt; }

    PDEPluginCallback_v100_ *pdePluginCallbackObject = nullptr;
    QPointer<QWidget> kPDEView;    // the basic panel's top view
    QPointer<QWidget> kAdvPDEView; // the advanced panel's top view; that panel ends it
    std::optional<QString> thePDEName;
    const foundation::Bundle *nsPDEBundle = nullptr;
    ppd_file_t *ppd = nullptr;

    // Captured once. Panels ask the callback afresh where they read a setting, but the savers take `printSettings` as
    // the sign that the host has supplied settings.
    const printing::Session *printSession = nullptr;
    const printing::Settings *pmPrintSettings = nullptr;
    const printing::Settings *printSettings = nullptr;
    const printing::PageFormat *formatSettings = nullptr;
    const printing::Printer *printer = nullptr;
    std::array<char, 256> deviceURI{}; // empty when unknown or when it does not fit

private:
    std::optional<QStringList> mSupportedOptions;
};
