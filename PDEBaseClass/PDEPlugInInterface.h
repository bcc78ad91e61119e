// The border between the print dialog (the host) and a plug-in bundle: pure interfaces, nothing behind them. This is
// the contract between the two; what it does not say is not promised.
//
// Order of calls. A bundle may rely on it, a host keeps it:
//   1. The host reads the bundle's Info.json and the description in its code. What does not fit is refused here, in one
//      sentence; nothing of the bundle has run.
//   2. The code is loaded, and its root object asked for the principal object: `PDEPlugInEntry::principalObject`.
//   3. `initWithBundle`, once. False refuses the plug-in, and nothing more is asked of it.
//   4. `PDEPanelsForType` makes the panels, which reach the host through the callback object from then on.
//   5. Of each panel, in order: `panelName`, `panelKind`, `supportedPPDOptionKeys`. Then of each, in order:
//      `restoreValuesAndReturnError`.
//   6. Each panel is prepared: `panelView`, `willShow`, `shouldHide`, unseen. What its first display marks is so marked
//      before a person can choose anything. The first panel at once, the others soon after.
//   7. On display: `panelView`, `willShow`. Off it: `saveValuesAndReturnError`, `shouldHide`. As often as a
//      person turns from one panel to another.
//   8. Whenever an option is marked otherwise than before, `PPDOptionKeyValueDidChange` of every panel in order, also
//      while a panel waits in the call that asked for it. Whenever another paper is chosen,
//      `restoreValuesAndReturnError` of the prepared panels that are not on display, then
//      printing::kPaperDidChangeNotification.
//   9. `summaryInfo`, `printEffect` and `inspection` at any time after 5.
//  10. Before printing, `shouldPrint` of each panel in order, up to the first false; when all agree,
//      `saveValuesAndReturnError` of the one on display. The dialog may stay open and all of it come again.
//  11. When the dialog goes away the host destroys the principal object, and with it the panels and their views. What a
//      panel still marks then is reported to nobody. The code stays loaded; a later dialog begins with 2.
//
// For every function, unless it says otherwise:
//   Thread      the host's main thread, the only one on which a bundle may call the host.
//   Before      the step of the order above has come. Arguments are what their types say, references are to what lives.
//   After       it answers soon, as people wait; it throws nothing, and reports nothing but by its answer. Boxes are
//               allowed in actions of controls and in `shouldPrint` only.
//   Owner       of what is handed out by pointer or reference: who hands it out. Of a unique_ptr: who gets it.
//   Left out    nothing that is pure; what has a body may be left out, and the body says what that means.
//
// What code must have in common. Types of Qt and of the standard library cross this border, so bundle and host need the
// same C++ standard library with the same binary interface (compilers that follow one C++ ABI may differ), the same
// major version of Qt, the bundle's not newer than the host's, and the same version of this interface. Within one
// interface version a declaration here never changes. All is checked in step 1: the interface version and the build tag
// stand in the Info.json, where qn_add_bundle writes both; Qt's version and the identifier of the root object in what
// Qt lays into the code. The libraries of the platform keep their interface within the major version that their names
// end in.
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

/// What a panel may ask of the host, from `PDEPanelsForType` until the panel's end, its destructor included. The host
/// owns it and all that it hands out; pointers stay the same for the whole life of the panels, what they point to
/// changes with the dialog.
class PDEPluginCallback_v100_
{
public:
    virtual ~PDEPluginCallback_v100_() = default;

    virtual const printing::Session *printSession() const = 0;
    virtual const printing::Settings *printSettings() const = 0; // null before the host has supplied them
    virtual const printing::PageFormat *pageFormat() const = 0;  // null before the host has supplied it
    virtual const printing::Printer *PMPrinter() const = 0;
    virtual ppd_file_t *ppdFile() const = 0; // open, never null; panels neither close it nor mark choices in it

    /// Marks a choice: the only way for a panel to change one. `choice` is a choice's keyword, or a number (digits, a
    /// sign, a full stop) for an option with a custom option, within the range of its first parameter, or "Custom." and
    /// a text that printing::CustomText allows the option. False when nothing could be marked; nothing has changed
    /// then. Else the choice is marked, the PPD's constraints have moved what stood against it, and every option whose
    /// marked choice is another than before has been reported to all panels. A choice that is marked already is
    /// reported to nobody.
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

/// A panel. It owns its view; the host may give that a parent, and takes it back before the panel's end.
class PDEPanel
{
public:
    virtual ~PDEPanel() = default;

    /// A short fixed name, unlike every other panel's of the bundle. By it `--panel` and scripts find the panel.
    virtual QString identifier() const = 0;

    /// The panel's view, made on first use, the same from then on; null when the bundle has no readable interface file
    /// for it, and the panel is then not shown. 520 x 336 points where a PPD may place controls; else what it takes.
    virtual QWidget *panelView() = 0;
    /// Localized, one line; what the tab of the panel says.
    virtual QString panelName() = 0;
    /// What sort of panel it is, in reverse domain notation; panels of a bundle may share it.
    virtual QString panelKind() = 0;
    /// Keywords of the options that the panel takes care of, those that this PPD lacks included; nil when it does not
    /// say. Only these are shown in the host's summary, and told of when a paper moves them.
    virtual std::optional<QStringList> supportedPPDOptionKeys() = 0;

    /// Fills the view for display; `panelView` has been asked for before. The first call may also mark the choices that
    /// the controls then show; later ones mark nothing.
    virtual void willShow() = 0;
    /// The panel leaves the display, and says whether it agrees. This host takes it off whatever the answer is.
    virtual bool shouldHide() = 0;

    /// Marks what the controls show; after it, nothing that a person has entered is in the controls only. `error` may
    /// be null and is left alone; the answer is always true.
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    /// Reads back what is marked: the panel and, where it is loaded, its view show that. May mark what the panel's
    /// rules decide otherwise. `error` and the answer as above.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;

    /// Titles and values as this panel tells them, localized; nil when the panel gives none. Changes nothing.
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

    /// The host's report that `key` is now marked with `choice`, whoever asked for it. The panel takes note, and marks
    /// nothing: the host is in the middle of marking. `choice` is "Custom" for a number or a text, which the PPD then
    /// has.
    virtual void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                            const std::optional<QString> &choice) = 0;

    /// The panel itself, as a rule. One that has nothing to lay open answers empty lists there.
    virtual const PDEPanelInspection &inspection() const = 0;
};

using PDEPanels = std::vector<std::unique_ptr<PDEPanel>>;

/// The principal object of a bundle, one for each dialog.
class PDEPlugIn
{
public:
    virtual ~PDEPlugIn() = default;

    /// False when the plug-in can't serve on this system. The bundle is the host's and outlives the principal object:
    /// it has the texts, in the language of the dialog, and the files.
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

/// The root object of the bundle's shared object: one class of it derives from QObject and this, with
/// Q_PLUGIN_METADATA(IID PDEPlugInEntry_iid) and Q_INTERFACES(PDEPlugInEntry). Its constructor and those of static
/// objects do nothing that takes time. It stays loaded until the process ends.
class PDEPlugInEntry
{
public:
    virtual ~PDEPlugInEntry() = default;

    /// A new principal object of the class that the Info.json names; null when the class is not this bundle's. The host
    /// owns it, and ends it before it asks for another one.
    virtual std::unique_ptr<PDEPlugIn> principalObject(const QString &className) = 0;

    /// All that can be remembered, whether or not a dialog is open; for scripts, tests and diagnosis. Empty for a
    /// bundle whose panels remember nothing.
    virtual std::vector<PDERemembered> remembered() const = 0;

    /// What the bundle looks for in PPDs that are made for it; the bundle's, and there until the process ends. Null
    /// when it brings none. Optional; a dialog never asks.
    virtual const PDEChecks *checks() const { return nullptr; }
};

#define PDEPlugInEntry_iid "org.qnprint.PDEPlugInEntry/" QT_STRINGIFY(QN_PDE_INTERFACE_VERSION)
Q_DECLARE_INTERFACE(PDEPlugInEntry, PDEPlugInEntry_iid)
