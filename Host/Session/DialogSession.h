// One print dialog from opening to the end, without a window: the PPD, the plug-in, its panels, the paper, the marks.
// The window, `script` and `shot` are faces of it.
#pragma once

#include "PDEPlugInInterface.h"
#include "PPD/PPDDocument.h"
#include "PlugIn.h"

#include <QCoreApplication>

#include <functional>

namespace host {

using printing::kUserDefinedPaper;

/// A paper of the dialog. `name` is nil when the print settings hold none; `size` nil when it is not known.
struct ChosenPaper
{
    std::optional<QString> name;
    std::optional<printing::Paper> size;
};

class DialogSession final : private PDEPluginCallback_v100_
{
    Q_DECLARE_TR_FUNCTIONS(host::DialogSession)

public:
    struct Parameters
    {
        QString ppdPath;
        std::optional<QString> uri; // of the printer; nil when it has none
        /// Outer nil: the PPD's default page size; inner nil: the settings hold no paper name.
        std::optional<std::optional<QString>> paperName;
        std::optional<printing::Paper> paperSize; // nil: the PPD's size of that name
        OptionValues defaults;                    // the user's own
        std::optional<QString> bundlePath;        // nil: the bundle that the PPD names, or the first one there is
        QString localization = "en";              // of the bundle
        QString panelType = kPDEPrintingOptionsType;
    };

    /// What `start` prepares. Preparing shows a panel once, unseen, so that its first display, which writes its
    /// declared defaults, never undoes a choice made since.
    enum class Prepare { nothing, firstPanel, everyPanel };

    /// Does all that can fail: opens the PPD and loads the bundle. Null, with one sentence, when one of them can't
    /// serve. Nothing of an earlier session is touched.
    static std::unique_ptr<DialogSession> open(const Parameters &parameters, QString *error);

    /// Creates the principal object and its panels. No other session may be alive any more.
    void start(Prepare prepare);
    ~DialogSession() override;

    /// Whether the plug-in serves on this system; without it there are no panels.
    bool isAccepted() const { return m_accepted; }
    /// Null when the plug-in could make none.
    const PDEPanels *panels() const { return m_panels; }
    PDEPanel *panel(const QString &identifier) const;
    PDEPanel *panelOnDisplay() const { return m_onDisplay; }
    /// What the panels remember for this dialog.
    std::vector<PDERemembered> remembered() const { return m_plugIn.entry->remembered(); }
    PPDDocument &ppd() const { return *m_ppd; }
    const ChosenPaper &paper() const { return m_paper; }
    /// The PPD's papers, in the language of the dialog where the PPD has it.
    std::vector<PPDDocument::PageSize> papers() const { return m_ppd->pageSizes(m_language); }

    /// Prepares every panel that has not been shown yet.
    void prepareAll();
    /// Puts a panel on display, taking off another one. False when it has no view; nothing has changed then.
    bool show(PDEPanel &panel);
    /// Saves and takes off the panel on display; the panel's answer to `shouldHide`. Nil when none is on display.
    std::optional<bool> hide();

    /// The user chose another paper.
    void changePaper(const ChosenPaper &paper);
    /// The size that belongs to a name: the one given, else the PPD's, else none.
    ChosenPaper paperNamed(const std::optional<QString> &name, std::optional<printing::Paper> size = {}) const;

    /// Another part of the dialog marks a choice.
    bool mark(const QString &key, const QString &choice);

    /// What makes this dialog another than a fresh one, to be saved under a name: every choice that is not the PPD's
    /// own default, and those that would be another without it because they are saved as the user's own defaults.
    OptionValues settings(const OptionValues &ownDefaults);
    /// Takes over saved settings, through the panels' own restoring; their rules have the last word.
    void restore(const OptionValues &values);

    /// One sentence for each choice that did not stay as it was made, or moved another, since this was asked last.
    QStringList takeRemarks();

    /// Asks each panel, in order, up to the first that refuses; when all agree, the panel on display saves its values.
    bool shouldPrint();

    /// Told of every choice that a panel asks for, and of every option whose marked choice has changed.
    std::function<void(const QString &key, const QString &choice)> onPanelMark;
    std::function<void(const QString &key, const QString &choice)> onChange;

private:
    DialogSession(const Parameters &parameters, std::unique_ptr<PPDDocument> ppd, PlugIn plugIn);

    // What panels may ask.
    const printing::Session *printSession() const override { return &m_session; }
    const printing::Settings *printSettings() const override { return &m_settings; }
    const printing::PageFormat *pageFormat() const override { return &m_pageFormat; }
    const printing::Printer *PMPrinter() const override { return &m_printer; }
    ppd_file_t *ppdFile() const override { return m_ppd->file(); }
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override;

    void setPaper(const ChosenPaper &paper);
    ChosenPaper markedPaper() const;
    QString optionText(const QString &keyword) const;
    QString choiceText(const PPDDocument::Change &choice) const;
    QString inWords(const PPDDocument::Change &choice) const;
    void markPageSize();
    void report(const std::optional<PPDDocument::Changes> &changes);
    void prepare(PDEPanel &panel);
    bool hasBeenShown(const PDEPanel &panel) const;

    std::unique_ptr<PPDDocument> m_ppd; // outlives the panels, which borrow its choices
    PlugIn m_plugIn;
    QString m_panelType;
    QString m_language;
    printing::Session m_session;
    printing::Settings m_settings;
    printing::PageFormat m_pageFormat;
    printing::Printer m_printer;
    ChosenPaper m_paper;

    std::unique_ptr<PDEPlugIn> m_principal;
    bool m_accepted = false;
    const PDEPanels *m_panels = nullptr;
    PDEPanel *m_onDisplay = nullptr;
    std::vector<const PDEPanel *> m_shown;
    OptionValues m_restoring; // what was asked for and is not yet told of
};

} // namespace host
