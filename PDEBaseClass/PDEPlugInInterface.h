// The border between the print dialog (the host) and a plug-in bundle: pure interfaces, nothing behind them.
//
// Order of calls, all on the host's main thread:
//   1. The host loads the bundle's code, takes its PDEPlugInEntry and asks it for the principal object.
//   2. `initWithBundle`; false refuses the plug-in, and nothing more is asked of it.
//   3. `PDEPanelsForType` makes the panels, which reach the host through the callback object from then on.
//   4. Each panel answers `panelName`, `panelKind`, `supportedPPDOptionKeys`, then `restoreValuesAndReturnError`.
//   5. Before every display `panelView`, then `willShow`; before leaving it `saveValuesAndReturnError`, `shouldHide`.
//   6. Before printing `shouldPrint` of each panel in order, up to the first false.
//   7. When the dialog goes away the host destroys the principal object, and with it the panels and their views.
// Nothing here throws, and nothing reports an error by other means than its answer.
//
// Types of Qt and of the standard library cross this border: host and bundle must come from compilers of one family and
// use the same major version of Qt. Qt refuses code of another major version; nothing checks the compiler.
#pragma once

#include "Printing/PrintSettings.h"
#include "Printing/ppd_api.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QtPlugin>

#include <memory>
#include <optional>
#include <vector>

class PDEChecks; // PDECheckInterface.h, for those who bring checks or ask for them
class QWidget;

namespace foundation {
class Bundle;
}

/// Raised whenever a declaration of this file changes; a bundle names the one it was built with in its Info.json. The
/// number stands here only: the build reads this line for the Info.json, the preprocessor for the identifier below.
#define QN_PDE_INTERFACE_VERSION 103
inline constexpr int kPDEInterfaceVersion = QN_PDE_INTERFACE_VERSION;

/// The panel type that stands for printing options.
inline constexpr auto kPDEPrintingOptionsType = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

/// What a panel may ask of the host. The host owns it and all that it hands out, for the whole life of the panels.
class PDEPluginCallback_v100_
{
public:
    virtual ~PDEPluginCallback_v100_() = default;

    virtual const printing::Session *printSession() const = 0;
    virtual const printing::Settings *printSettings() const = 0; // null before the host has supplied them
    virtual const printing::PageFormat *pageFormat() const = 0;  // null before the host has supplied it
    virtual const printing::Printer *PMPrinter() const = 0;
    virtual ppd_file_t *ppdFile() const = 0; // open; panels neither close it nor mark choices in it

    /// Marks a choice: the only way for a panel to change one. `choice` is a choice's keyword, or a number for an
    /// option with a custom option. False when nothing could be marked. Every option whose marked choice is then
    /// another than before is reported to all panels before this returns.
    virtual bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) = 0;
};

/// The key under which a summary carries its order where it is one dictionary; no title.
inline constexpr auto kPDESummaryDisplayOrder = "Summary Display Order";

/// Titles to values, and the titles in the order in which to show them.
struct PDESummary
{
    QMap<QString, QString> values;
    QStringList displayOrder;
};

/// What the marked choices do to a printed page.
struct PDEPrintEffect
{
    enum class Halftone { binary, dither, diffusion };

    std::optional<Halftone> halftone; // nil when the printer has no choice of methods
    bool reversed = false;            // black and white change places
    bool mirrored = false;            // left and right
    std::optional<double> feed;       // millimetres behind each page; nil while no amount counts
    bool perforated = false;

    friend bool operator==(const PDEPrintEffect &, const PDEPrintEffect &) = default;
};

/// A panel laid open for scripts, tests and diagnosis; a dialog for people needs none of it.
class PDEPanelInspection
{
public:
    struct Control
    {
        QString name;
        QWidget *widget; // null while the interface leaves the field unconnected
    };
    struct Selection
    {
        QString name;
        std::optional<QString> choice; // keyword; nil when there is no selection
    };

    virtual ~PDEPanelInspection() = default;

    virtual bool isInterfaceLoaded() const = 0;
    /// The fields of the panel that are controls, those of the toolkit and views of the bundle's own. A view that shows
    /// a sample picture says which by a property "picture": a text, empty while it shows none.
    virtual std::vector<Control> controls() const = 0;
    virtual std::vector<Selection> selections() const = 0;
    /// The paper name that the panel last read.
    virtual std::optional<QString> paperName() const = 0;
};

class PDEPanel
{
public:
    virtual ~PDEPanel() = default;

    /// A short fixed name, unlike every other panel's of the bundle.
    virtual QString identifier() const = 0;

    /// The panel's view, made on first use; null when the bundle has no readable interface file for it. The panel owns
    /// it; the host may give it a parent.
    virtual QWidget *panelView() = 0;
    /// Localized.
    virtual QString panelName() = 0;
    /// What sort of panel it is, in reverse domain notation; panels of a bundle may share it.
    virtual QString panelKind() = 0;
    /// Keywords of the options that the panel takes care of; nil when it does not say.
    virtual std::optional<QStringList> supportedPPDOptionKeys() = 0;

    /// Fills the view for display. The first call also marks the choices that the controls then show.
    virtual void willShow() = 0;
    /// The panel leaves the display, and says whether it agrees. This host takes it off whatever the answer is.
    virtual bool shouldHide() = 0;

    /// Marks what the controls show, and reads back what is marked. `error` is left alone; the answer is always true.
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    virtual bool restoreValuesAndReturnError(QString *error) = 0;

    /// nil when the panel gives none. Changes nothing.
    virtual std::optional<PDESummary> summaryInfo() = 0;

    /// What the choices marked now do to a printed page; nil when the panel does not say. A host shows the plain page
    /// then. Optional; changes nothing.
    virtual std::optional<PDEPrintEffect> printEffect() { return std::nullopt; }

    /// Asked when the user prints; false keeps the dialog open, and the panel has told the user why. May mark choices;
    /// may show an alert, and returns when it is dismissed.
    virtual bool shouldPrint() = 0;

    /// The dialog closes, to print or not. Part of the protocol; this host never calls it.
    virtual void printWindowWillClose(bool printing) = 0;
    /// Whether the panel has help to offer. Part of the protocol; this host never calls it.
    virtual bool shouldShowHelp() = 0;

    /// The host's report that `key` is now marked with `choice`, whoever asked for it.
    virtual void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                            const std::optional<QString> &choice) = 0;

    virtual const PDEPanelInspection &inspection() const = 0;
};

using PDEPanels = std::vector<std::unique_ptr<PDEPanel>>;

/// The principal object of a bundle.
class PDEPlugIn
{
public:
    virtual ~PDEPlugIn() = default;

    /// False when the plug-in can't serve on this system. The bundle is the host's and outlives the principal object.
    virtual bool initWithBundle(const foundation::Bundle &bundle) = 0;

    /// The panels for a panel type, in the order to show them; empty for a type that the plug-in does not serve, null
    /// when no panel could be made. The principal object owns them until its end, over later calls too.
    virtual const PDEPanels *PDEPanelsForType(const QString &type, PDEPluginCallback_v100_ &callback) = 0;
};

/// A value that the panels of a bundle remember among themselves for the length of one dialog.
struct PDERemembered
{
    QString name;
    std::optional<QString> value; // nil while nothing is remembered
};

/// The root object of the bundle's shared object. It stays loaded until the process ends.
class PDEPlugInEntry
{
public:
    virtual ~PDEPlugInEntry() = default;

    /// A new principal object; null when the class is not this bundle's.
    virtual std::unique_ptr<PDEPlugIn> principalObject(const QString &className) = 0;

    /// All that can be remembered, whether or not a dialog is open; for scripts, tests and diagnosis.
    virtual std::vector<PDERemembered> remembered() const = 0;

    /// What the bundle looks for in PPDs that are made for it; the bundle's, and there until the process ends. Null
    /// when it brings none. Optional; a dialog never asks.
    virtual const PDEChecks *checks() const { return nullptr; }
};

#define PDEPlugInEntry_iid "org.qnprint.PDEPlugInEntry/" QT_STRINGIFY(QN_PDE_INTERFACE_VERSION)
Q_DECLARE_INTERFACE(PDEPlugInEntry, PDEPlugInEntry_iid)
