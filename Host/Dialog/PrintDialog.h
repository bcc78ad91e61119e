// The print dialog without a window: the printer of now, its settings and presets, the job. It decides; its faces, the
// window and printing without one, show and ask.
#pragma once

#include "BackgroundWork.h"
#include "Messages.h"
#include "PrintTarget.h"

namespace host {

class PrinterFinder;

class PrintDialog : public QObject
{
    Q_OBJECT

public:
    enum class State {
        looking,   // for a printer; the one before stays in use for looking at, not for printing
        noPrinter, // the printer can't be had: `problem()`
        ready,
        sending, // a job is on its way
    };
    Q_ENUM(State)

    /// `document` may be null: then there is nothing to print yet.
    PrintDialog(PrintRequest request, std::shared_ptr<Document> document);
    /// A job that is on its way is stopped, and waited for so that nothing is left half sent.
    ~PrintDialog() override;

    /// Takes the PPD file of the request, or begins to look for its queue. A problem when the file can't serve, which
    /// is the state as well; that of a queue comes as a state only.
    foundation::Or<void> start();

    State state() const { return m_state; }
    /// Why there is no printer.
    const foundation::Problem &problem() const { return m_problem; }
    /// Null until the first one has been found. Never goes while something stands on it: an answer that comes while
    /// the dialog is held, or while a job is on its way, waits.
    PrintTarget *target() const { return m_target.get(); }

    /// The printers to choose from, and the name of the one that is chosen or looked for; empty for none.
    const std::vector<QueueEntry> &printers() const { return m_printers; }
    const QString &chosenPrinter() const { return m_chosenPrinter; }

    const Amount &amount() const { return m_amount; }
    /// What is still to be printed, in order, each as a job of its own.
    const std::vector<std::shared_ptr<Document>> &documents() const { return m_documents; }
    /// Whether they are sent as they are.
    bool isRaw() const { return m_request.raw; }
    /// What will come out, in the words of a person: printer, paper, copies, pages, and what differs from the defaults.
    std::vector<SummaryRow> summary() const;
    /// Whether the document comes later: there is none here, and printing ends with `prepared`.
    bool preparesOnly() const { return m_request.preparesOnly; }
    /// Whether the settings are others than those of the preset, or of the defaults, that is shown as chosen.
    bool isPresetChanged() const;
    /// Whether looking for the printer once more can help.
    bool canLookAgain() const;
    /// Whether there is a printer that takes jobs, and something to print.
    bool canPrint() const;
    /// What the person is to know now, in sentences; empty for nothing.
    const Messages &messages() const { return m_messages; }
    QString message() const { return m_messages.text(); }

    // What a person does. Nothing of it while a job is on its way.
    void choosePrinter(const QString &name);
    void lookAgain();
    /// Asks for all printers, unless they are known. A server with many queues is busy for a while then,
    /// so not before the printer that is wanted has been found.
    void lookForOthers();
    /// The target must not be started yet.
    void use(std::unique_ptr<PrintTarget> target);
    void choosePaper(const ChosenPaper &paper);
    /// False when the panel has no view; the message says so.
    bool show(PDEPanel &panel);
    void setCopies(int copies);
    void setPages(const QString &pages);
    void setScaling(Scaling scaling);
    void restorePreset(const QString &name);
    /// An empty name saves the user's own defaults.
    void savePreset(const QString &name);
    void removePreset();
    /// Takes other documents in place of those that there are; those that can't be printed are named, and left out.
    /// Those that there are stay when none can.
    void chooseDocuments(const QStringList &paths);
    /// Takes one document in another's place; nothing when that is not there any more.
    void exchange(const std::shared_ptr<Document> &document, const std::shared_ptr<Document> &other);
    void print();
    /// Answers `credentialsWanted`, and does once more what they were wanted for.
    void giveCredentials(const Credentials &credentials);
    /// Ends a job that is on its way; the dialog stays.
    void stop();

    /// Whether a preset goes by that name already.
    bool hasPreset(const QString &name) const;

    /// Readies the panels that have not been shown yet: after the first picture, and before any choice.
    void prepareAll();
    void say(About about, const QString &sentences);

    // While a box is open over the dialog, answers from elsewhere wait: code of a panel may stand on the target.
    void hold();
    void release();
    /// Does something as soon as no box is open over the dialog and no job is on its way; now, if that is so.
    void whenFree(std::function<void()> act);

Q_SIGNALS:
    void stateChanged();
    void printersChanged();
    void targetChanged();
    void presetsChanged();
    void paperChanged();
    void amountChanged();
    void messageChanged();
    void documentsChanged();
    /// Choices were made; once for all that one act of a person sets off.
    void settingsChanged();
    void remarked(const QStringList &sentences);
    /// The server wants to know who asks, or has not taken them for whom they say: why, in one sentence. Asked a few
    /// times, until a person begins anew.
    void credentialsWanted(const QString &sentence);
    /// The text for the pages means none.
    void pagesRefused();
    /// A panel did not agree to print, and has told why.
    void refused();
    /// All is settled for a document that comes later.
    void prepared();
    void progressed(int percent);
    /// A job went out: where to, and what became of it, which may be empty.
    void printed(const QString &where, const QString &fate);
    /// So did the last one.
    void finished();
    void failed(const foundation::Problem &problem);

private:
    QString jobTitle() const;
    void send();
    void sendNext();
    void askForCredentials(const foundation::Problem &problem, std::function<void()> again);
    void setState(State state);
    foundation::Or<void> useFile();
    void endLooking(const foundation::Problem &problem, const QString &sentence);
    void look(const QueueName &name, const OptionValues &carried = {});
    void finderFound(OpenedQueue queue);
    void finderFailed(const foundation::Problem &problem);
    void finderFoundAll(const Queues &queues);
    void finderFailedAll(const foundation::Problem &problem);
    void chooseAmong(const std::vector<QueueEntry> &printers);
    QueueName lastPrinter() const;
    void rememberPrinter() const;
    void adopt(std::unique_ptr<PrintTarget> target);
    void offerPrinters(std::vector<QueueEntry> printers, const QString &chosen);
    OptionValues settings() const;
    void settleSoon();
    void settle();
    void finish(const foundation::Or<QString> &sent);
    void fail(const foundation::Problem &problem);
    void whenFound(std::function<void()> act);
    void doWaiting();
    bool isFree() const { return m_holds == 0 && m_state != State::sending; }

    PrintRequest m_request;
    std::vector<std::shared_ptr<Document>> m_documents;
    bool m_isStopping = false;
    bool m_hasSentOne = false; // of the documents that are printed now
    int m_refusedCredentials = 0;
    std::function<void()> m_again; // what credentials are wanted for
    QString m_pagesToSend;         // in the form that servers take
    PrinterFinder *m_finder;
    std::unique_ptr<PrintTarget> m_target;
    State m_state = State::looking;
    foundation::Problem m_problem;

    QueueName m_wanted;
    int m_searches = 0;
    OptionValues m_carried; // choices to take over into the printer that is looked for
    std::vector<QueueEntry> m_printers;
    QString m_chosenPrinter;
    bool m_asksServer = false;
    bool m_hasAllPrinters = false;
    bool m_isGuess = false; // nobody has chosen the one that is wanted

    Amount m_amount;
    std::optional<OptionValues> m_restored; // what the preset has led to; nil when it has gone
    bool m_isPrepared = false;              // all panels have made their first choices
    Messages m_messages;
    bool m_isToSettle = false;

    int m_holds = 0;
    std::optional<foundation::Or<QString>> m_sent; // what became of a job, as long as that waits
    std::vector<std::function<void()>> m_waiting;
    BackgroundWork m_job; // last: what it posts to is still there when it is waited for
};

} // namespace host
