// One print dialog on a PPD from opening to the end, without a window: the plug-in, its panels, the paper, the marks,
// and who is called when.
#pragma once

#include "PlugIn.h"
#include "Remarks.h"

#include "PPD/PPDMarks.h"

#include <functional>

namespace host {

/// A paper of the dialog. `name` is nil when the print settings hold none; `size` nil when it is not known.
struct ChosenPaper
{
    std::optional<QString> name;
    std::optional<printing::Paper> size;
};

struct SummaryRow
{
    QString title;
    QString value;
    bool isAmount = false; // that somebody types
    QString keyword = {};  // of an option of the PPD
};

class DialogSession
{
    Q_DECLARE_TR_FUNCTIONS(host::DialogSession)

public:
    enum class Bundles {
        first,    // the one that the PPD names, or the first one there is
        byClaims, // or the first that takes care of an option, or of whatever printer
        general,  // one for whatever printer
    };

    struct Parameters
    {
        QString ppdPath;
        std::optional<QString> uri; // of the printer; nil when it has none
        /// Outer nil: the PPD's default page size; inner nil: the settings hold no paper name.
        std::optional<std::optional<QString>> paperName;
        std::optional<printing::Paper> paperSize; // nil: the PPD's size of that name
        OptionValues defaults;                    // the user's own
        std::optional<QString> bundlePath;
        Bundles bundles = Bundles::first; // which one, where the path is nil
        QString localization = "en";      // of the bundle
        QString panelType = kPDEPrintingOptionsType;
    };

    /// What `start` prepares. Preparing shows a panel once, unseen, so that its first display, which writes its
    /// declared defaults, never undoes a choice made since.
    enum class Prepare { nothing, firstPanel, everyPanel };

    /// Whoever wants to know of choices as they are made.
    struct Listener
    {
        std::function<void(const QString &key, const QString &choice)> panelMarks; // a panel asks for a choice
        std::function<void(const QString &key, const QString &choice)> changed;    // another choice is marked now
    };

    /// Does all that can fail: opens the PPD and loads the bundle. Nothing of an earlier session is touched.
    static foundation::Or<std::unique_ptr<DialogSession>> open(const Parameters &parameters);
    /// The same with a PPD that is open already, on whatever thread; its path is not looked at.
    static foundation::Or<std::unique_ptr<DialogSession>> open(const Parameters &parameters,
                                                               std::unique_ptr<PPDDocument> ppd);
    ~DialogSession();
    DialogSession(const DialogSession &) = delete;
    DialogSession &operator=(const DialogSession &) = delete;

    void setListener(Listener listener) { m_listener = std::move(listener); }
    /// Creates the principal object and its panels, and where they claim none of the printer's options, those of the
    /// next bundle that may serve. Only one session may be started at a time: panels of two would
    /// answer the same notifications.
    void start(Prepare prepare);

    /// Why bundles that might have served could not, one sentence each.
    const QStringList &bundleProblems() const { return m_bundles.problems(); }
    /// Whether the plug-in serves on this system; without it there are no panels.
    bool isAccepted() const { return m_accepted; }
    /// Empty when there are none, be it that the plug-in has none of this type or that it could make none.
    const PDEPanels &panels() const { return *m_panels; }
    /// False when the plug-in could make no panels.
    bool madePanels() const;
    /// Null when there is no panel of that identifier.
    PDEPanel *panel(const QString &identifier) const;
    PDEPanel *panelOnDisplay() const { return m_onDisplay; }
    /// What the panels remember for this dialog.
    std::vector<PDERemembered> remembered() const { return m_plugIn.entry->remembered(); }
    const PPDDocument &ppd() const { return *m_ppd; }
    /// Whether the PPD names the bundle, or has an option that a panel takes care of.
    bool isBundlesOwnPrinter() const;
    const PPDMarks &marks() const { return m_marks; }
    const ChosenPaper &paper() const { return m_paper; }
    /// The PPD's papers, in the language of the dialog where the PPD has it.
    std::vector<PaperEntry> papers() const { return m_ppd->papers(m_language); }

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

    /// Another part of the dialog marks a choice. False when nothing could be marked.
    bool mark(const QString &key, const QString &choice);

    /// What makes this dialog another than a fresh one, to be saved under a name: every choice that is not the PPD's
    /// own default, and those that would be another without it because they are saved as the user's own defaults. Of a
    /// passcode or password only that there is one.
    OptionValues settings(const OptionValues &ownDefaults);
    /// Takes over saved settings, through the panels' own restoring; their rules have the last word.
    void restore(const OptionValues &values);

    /// What a job will do otherwise than by the PPD's own defaults, as far as a panel takes care of it: titles and
    /// values in the words of a person, in the order of the PPD.
    std::vector<SummaryRow> differences() const;

    /// What the marked choices do to a printed page; nil when no panel says.
    std::optional<PDEPrintEffect> printEffect() const;

    /// One sentence for each choice that did not stay as it was made, or moved another, since this was asked last.
    QStringList takeRemarks();

    /// Asks each panel, in order, up to the first that refuses; when all agree, the panel on display saves its values.
    bool shouldPrint();

private:
    class Callback;

    DialogSession(const Parameters &parameters, std::unique_ptr<PPDDocument> ppd, BundleChoice bundles, PlugIn plugIn);

    void makePanels();
    void dropPanels();
    bool isServed() const;
    OptionValues claimedAmong(OptionValues values) const;
    void putPaper(const ChosenPaper &paper);
    void setPaper(const ChosenPaper &paper);
    ChosenPaper markedPaper() const;
    void markPageSize();
    void report(const std::optional<PPDMarks::Effect> &effect);
    void prepare(PDEPanel &panel);
    bool hasBeenShown(const PDEPanel &panel) const;

    std::unique_ptr<PPDDocument> m_ppd; // outlives the panels, which borrow its choices
    PPDMarks m_marks;
    BundleChoice m_bundles;
    PlugIn m_plugIn;
    QString m_panelType;
    QString m_language;
    std::unique_ptr<Callback> m_callback;
    ChosenPaper m_paper;
    OptionWords m_words;
    Remarks m_remarks;
    Listener m_listener;

    std::unique_ptr<PDEPlugIn> m_principal;
    bool m_accepted = false;
    QStringList m_claimed;     // keywords of the options that panels take care of
    const PDEPanels *m_panels; // never null
    PDEPanel *m_onDisplay = nullptr;
    std::vector<const PDEPanel *> m_shown;
};

} // namespace host
