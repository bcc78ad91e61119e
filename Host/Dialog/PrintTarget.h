// A printer to set up and to print on: one that a PPD describes, and one that only the server knows.
#pragma once

#include "PrintRequest.h"

#include "Cups/Queues.h"
#include "Cups/SavedOptions.h"
#include "Jobs/Job.h"
#include "Pages/BurntPage.h"
#include "Pages/PreparedJob.h"
#include "Session/DialogSession.h"

namespace host {

/// How often and how much of a document is printed.
struct Amount
{
    int copies = 1;
    QString pages; // as a person writes them; empty: all
};

class PrintTarget
{
    Q_DECLARE_TR_FUNCTIONS(host::PrintTarget)

public:
    virtual ~PrintTarget() = default;
    PrintTarget(const PrintTarget &) = delete;
    PrintTarget &operator=(const PrintTarget &) = delete;

    const QString &name() const { return m_name; }
    /// One clause on what to expect of the printer now; mostly empty.
    const QString &note() const { return m_note; }
    bool takesJobs() const { return m_takesJobs; }
    /// What became of a document that was sent, for people; empty where the place that it went to says it all.
    QString fateOf(const QString &title) const;
    /// What is known of the printer's settings besides that, in sentences for people.
    virtual QString remark() const = 0;
    /// What is odd about the request, one sentence each.
    const QStringList &doubts() const { return m_doubts; }
    /// As the saved options and the request say.
    const Amount &amount() const { return m_amount; }
    /// Where jobs go: the target's own queue or folder, unless another was set.
    const std::shared_ptr<JobSink> &sink() const { return m_sink; }
    void setSink(std::shared_ptr<JobSink> sink) { m_sink = std::move(sink); }

    /// Whose options are the defaults; empty: the user's own.
    const QString &preset() const { return m_preset; }
    /// Null when there is nothing to save settings for.
    const SavedOptions *savedOptions() const { return m_saved ? &*m_saved : nullptr; }

    /// Begins to serve; `changed` is called after each choice that is another than before. Only one target may have
    /// been started at a time.
    void start(std::function<void()> changed);

    virtual std::vector<PaperEntry> papers() const = 0;
    virtual ChosenPaper paper() const = 0;
    /// Nil when the printer takes no paper of the user's own size.
    virtual std::optional<CustomSizeLimits> customSizeLimits() const { return std::nullopt; }
    virtual void choosePaper(const ChosenPaper &paper) = 0;

    /// Whether a bundle is made for the printer: its PPD names one that is there, or has an option of its panels.
    virtual bool hasOwnPanels() const { return false; }
    const PDEPanels &panels() const;
    /// Puts a panel on display. False when it has no view.
    bool show(PDEPanel &panel) { return m_session->show(panel); }
    /// Readies the panels that have not been shown yet, so that showing one never undoes a choice.
    void prepareAll();

    /// What a job will do otherwise than by the printer's own defaults.
    std::vector<SummaryRow> differences() const;

    // Presets, where there are saved options. Restoring answers what the preset says of copies and pages.
    OptionValues restore(const QString &preset);
    /// `copies`: nil when they are no part of what is saved.
    foundation::Or<void> save(const QString &preset, std::optional<int> copies);
    foundation::Or<void> removePreset();

    /// What a person is to know of choices that did not stay as they were made, one sentence each, told once.
    QStringList takeRemarks();

    // What a page looks like. Nil where that is not known.
    virtual std::optional<Sheet> sheet() const = 0;
    std::optional<PDEPrintEffect> printEffect() const;
    virtual Resolution resolution() const { return {}; }
    /// As the job says.
    Scaling scaling() const;
    /// What the server will do to the pages besides, for people; no picture of them shows it.
    QStringList unseen() const;
    /// What is done with a document before it is sent; nil when it goes as it is.
    virtual std::optional<Preparation> preparation() const { return std::nullopt; }
    void setScaling(Scaling scaling);

    /// Whether all panels agree to print; one that does not has told the user why.
    bool agrees() { return !m_session || m_session->shouldPrint(); }
    /// What a job has to say, after the panels have agreed.
    virtual OptionValues jobOptions() const { return m_serverOptions; }
    /// Those of which nobody keeps a custom value: passcodes and passwords.
    virtual QStringList secretOptions() const { return {}; }

protected:
    PrintTarget() = default;
    void describe(const Queue &queue);

    // Of options by the names that jobs have, those that the session takes, under its names, and the others.
    virtual OptionValues forSession(const OptionValues &options) const = 0;
    virtual OptionValues besideSession(const OptionValues &options) const = 0;
    /// What the session is set to, under the names that jobs have.
    virtual OptionValues fromSession(const OptionValues &values) const { return values; }

    /// Takes options that no PPD knows. Copies and pages have places of their own; invalid ones are ignored, like every
    /// saved option that the printer no longer has.
    void setServerOptions(OptionValues options);
    /// A request counts for more than what is saved.
    void setAmount(const PrintRequest &request);

    QString m_name;
    QString m_note;
    bool m_isQueue = false;
    bool m_takesJobs = true;
    QStringList m_doubts;
    Amount m_amount;
    OptionValues m_serverOptions;
    std::shared_ptr<JobSink> m_sink;
    std::optional<SavedOptions> m_saved;
    QString m_preset;
    std::unique_ptr<DialogSession> m_session; // null: there are no panels
};

/// A printer with a PPD and a session of its panels.
class PPDTarget final : public PrintTarget
{
    Q_DECLARE_TR_FUNCTIONS(host::PPDTarget)

public:
    /// The printer that the PPD file of a request describes, with a folder in place of a queue.
    static foundation::Or<std::unique_ptr<PrintTarget>> ofFile(const PrintRequest &request);
    /// `carried`: what a job of the same queue would have said before. Where there is something, it is all that counts:
    /// a choice that is not in it was the default.
    static foundation::Or<std::unique_ptr<PrintTarget>> ofQueue(const PrintRequest &request, OpenedQueue opened,
                                                                const OptionValues &carried);

    const DialogSession &session() const { return *m_session; }

    QString remark() const override;
    std::vector<PaperEntry> papers() const override { return m_session->papers(); }
    ChosenPaper paper() const override { return m_session->paper(); }
    std::optional<CustomSizeLimits> customSizeLimits() const override { return m_session->ppd().customSizeLimits(); }
    void choosePaper(const ChosenPaper &paper) override { m_session->changePaper(paper); }
    bool hasOwnPanels() const override { return m_session->isBundlesOwnPrinter(); }
    std::optional<Sheet> sheet() const override;
    Resolution resolution() const override;
    std::optional<Preparation> preparation() const override;
    OptionValues jobOptions() const override;
    QStringList secretOptions() const override { return m_session->ppd().secretOptions(); }

private:
    OptionValues forSession(const OptionValues &options) const override { return withMediaAsPageSize(options); }
    OptionValues besideSession(const OptionValues &options) const override;
    void doubtUnknownOptions(const OptionValues &asked);
    foundation::Or<void> openSession(const PrintRequest &request, const OptionValues &carried,
                                     DialogSession::Parameters parameters, std::unique_ptr<PPDDocument> ppd);
};

/// A queue without a PPD: it has papers, what every printer has, and a panel of what else the server offers.
class PlainTarget final : public PrintTarget
{
    Q_DECLARE_TR_FUNCTIONS(host::PlainTarget)

public:
    static foundation::Or<std::unique_ptr<PrintTarget>> ofQueue(const PrintRequest &request, OpenedQueue opened,
                                                                const OptionValues &carried);

    QString remark() const override;
    std::vector<PaperEntry> papers() const override { return m_papers; }
    ChosenPaper paper() const override;
    void choosePaper(const ChosenPaper &paper) override;
    std::optional<Sheet> sheet() const override;
    OptionValues jobOptions() const override;

private:
    OptionValues forSession(const OptionValues &options) const override;
    OptionValues besideSession(const OptionValues &options) const override;
    OptionValues fromSession(const OptionValues &values) const override { return asSaid(values); }
    foundation::Or<void> openSession(const PrintRequest &request, const OptionValues &options,
                                     std::unique_ptr<PPDDocument> ppd);

    std::vector<PaperEntry> m_papers;
    QString m_standardPaper;
};

/// The kind of target that a queue needs.
foundation::Or<std::unique_ptr<PrintTarget>> targetOfQueue(const PrintRequest &request, OpenedQueue opened,
                                                           const OptionValues &carried = {});

} // namespace host
