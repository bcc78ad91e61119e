// The print dialog without a window. The difficult part is time: printers are found and jobs end when they like, also
// while a panel's own code waits in a box that it has opened. All that comes from elsewhere goes through `whenFree`.
#include "PrintDialog.h"

#include "PrinterFinder.h"

#include "Foundation/Locale.h"
#include "Foundation/PlainText.h"
#include "Foundation/UserDefaults.h"
#include "Jobs/PageRanges.h"
#include "Printing/Units.h"

#include <algorithm>
#include <utility>

namespace host {

using foundation::Or;
using foundation::Problem;
using foundation::UserDefaults;

namespace {

constexpr auto kLastPrinter = "LastPrinter"; // with its preset, as `lp -d` takes it

QString inUsersUnit(const printing::Paper &size)
{
    const bool isMetric = foundation::IsMetric();
    const double unit = isMetric ? printing::kPointsPerMillimetre : printing::kPointsPerInch;
    const auto side = [unit](double points) {
        return foundation::Locale::current().locale().toString(points / unit, 'g', 4);
    };
    return QString("%1 × %2 %3").arg(side(size.width), side(size.height), isMetric ? "mm" : "in");
}

QString whatToKnowOf(const PrintTarget &target)
{
    QStringList sentences = target.doubts();
    if (!target.note().isEmpty())
        sentences.prepend(target.note());
    if (!target.remark().isEmpty())
        sentences.append(target.remark());
    return sentences.join('\n');
}

} // namespace

PrintDialog::PrintDialog(PrintRequest request, std::shared_ptr<Document> document)
    : m_request(std::move(request))
    , m_finder(new PrinterFinder(this))
    , m_wanted(QueueName::fromText(m_request.queue))
{
    if (document)
        m_documents.push_back(std::move(document));
    connect(m_finder, &PrinterFinder::found, this,
            [this](const auto &queue) { whenFound([this, queue] { finderFound(std::move(*queue)); }); });
    connect(m_finder, &PrinterFinder::failed, this,
            [this](const Problem &problem) { whenFound([this, problem] { finderFailed(problem); }); });
    connect(m_finder, &PrinterFinder::foundAll, this, &PrintDialog::finderFoundAll);
    connect(m_finder, &PrinterFinder::failedAll, this,
            [this](const Problem &problem) { whenFound([this, problem] { finderFailedAll(problem); }); });
}

PrintDialog::~PrintDialog() = default;

Or<void> PrintDialog::start()
{
    if (m_request.ppd.isEmpty()) {
        m_isGuess = m_request.isGuess && !m_wanted.queue.isEmpty();
        if (m_wanted.queue.isEmpty() && m_request.prefersLastPrinter) {
            m_wanted = lastPrinter();
            m_isGuess = true;
        }
        if (!m_wanted.queue.isEmpty())
            offerPrinters({{m_wanted.queue, {}, {}, {}}}, m_wanted.queue);
        look(m_wanted);
        return {};
    }
    return useFile();
}

Or<void> PrintDialog::useFile()
{
    auto target = PPDTarget::ofFile(m_request);
    if (!target) {
        endLooking(target.problem(), target.problem().sentence);
        return target.problem();
    }
    use(*std::move(target));
    return {};
}

void PrintDialog::endLooking(const Problem &problem, const QString &sentence)
{
    m_problem = problem;
    say(About::printer, sentence);
    setState(State::noPrinter);
}

QString PrintDialog::jobTitle() const
{
    return foundation::plainLine(m_request.title.isEmpty() ? m_documents.front()->title() : m_request.title);
}

bool PrintDialog::canPrint() const
{
    return m_state == State::ready && m_target->takesJobs() && (preparesOnly() || !m_documents.empty());
}

bool PrintDialog::canLookAgain() const
{
    if (m_state == State::ready)
        return !m_target->takesJobs();
    const bool isToBeChosen = m_problem.kind == Problem::Kind::noChoice && !(m_hasAllPrinters && m_printers.empty());
    return m_state == State::noPrinter && !isToBeChosen;
}

/// A preset may have gone since.
QueueName PrintDialog::lastPrinter() const
{
    auto last = QueueName::fromText(UserDefaults::standard().objectForKey(kLastPrinter).value_or(QString()));
    if (!SavedOptions(last.queue).presets().contains(last.preset, Qt::CaseInsensitive))
        last.preset.clear();
    return last;
}

void PrintDialog::rememberPrinter() const
{
    if (m_asksServer && m_request.prefersLastPrinter) // whoever does not ask for it does not move it either
        UserDefaults::standard().setObjectForKey(m_target->name() + '/' + m_target->preset(), kLastPrinter);
}

void PrintDialog::setState(State state)
{
    m_state = state;
    Q_EMIT stateChanged();
}

void PrintDialog::say(About about, const QString &sentences)
{
    if (m_messages.say(about, sentences))
        Q_EMIT messageChanged();
}

void PrintDialog::setCopies(int copies)
{
    m_amount.copies = copies;
    settleSoon();
}

void PrintDialog::setPages(const QString &pages)
{
    m_amount.pages = pages;
    say(About::pages, {});
    settleSoon();
}

void PrintDialog::setScaling(Scaling scaling)
{
    if (m_target && m_state != State::sending)
        m_target->setScaling(scaling);
    settleSoon(); // also where it stays as it was: a face shows that
}

void PrintDialog::choosePrinter(const QString &name)
{
    if (m_state == State::sending)
        return;
    m_isGuess = false;
    m_refusedCredentials = 0;
    look({name, {}});
}

void PrintDialog::lookAgain()
{
    if (m_state == State::sending)
        return;
    if (!m_request.ppd.isEmpty())
        return (void)useFile(); // the message tells of it
    m_hasAllPrinters = false;   // there may be others now
    m_refusedCredentials = 0;
    look(m_wanted);
}

void PrintDialog::look(const QueueName &name, const OptionValues &carried)
{
    m_asksServer = true;
    m_wanted = name;
    m_carried = carried;
    ++m_searches;
    if (!name.queue.isEmpty())
        m_chosenPrinter = name.queue;
    say(About::printer, tr("Looking for the printer…"));
    say(About::job, {});
    say(About::settings, {});
    setState(State::looking);
    m_finder->find(name);
}

void PrintDialog::finderFound(OpenedQueue queue)
{
    m_refusedCredentials = 0;
    if (m_wanted.queue.isEmpty() && queue.queue.name == m_request.failedQueue)
        return finderFailed({tr("Choose a printer."), Problem::Kind::noChoice});
    const OptionValues carried = std::exchange(m_carried, {});
    auto target = targetOfQueue(m_request, std::move(queue), carried);
    if (!target)
        return finderFailed(target.problem());
    adopt(*std::move(target));
    if (!carried.isEmpty())
        say(About::printer, tr("The printer's description has changed on the server. Please look over the settings."));
}

void PrintDialog::finderFailed(const Problem &problem)
{
    if (problem.kind == Problem::Kind::notFound && std::exchange(m_isGuess, false))
        return look({}); // the default queue, then
    endLooking(problem, problem.kind == Problem::Kind::noService
                            ? tr("The print service does not run. Start it (“systemctl start cups”), or ask whoever "
                                 "looks after this computer.")
                            : problem.sentence);
    askForCredentials(problem, [this] { look(m_wanted, m_carried); });
    if (problem.kind == Problem::Kind::noChoice && m_hasAllPrinters)
        chooseAmong(m_printers);
}

void PrintDialog::lookForOthers()
{
    const bool isRefused = m_state == State::noPrinter && m_problem.kind == Problem::Kind::noAccess;
    if (m_asksServer && !m_hasAllPrinters && !isRefused)
        m_finder->findAll();
}

void PrintDialog::finderFoundAll(const Queues &queues)
{
    m_hasAllPrinters = true;
    const QString standard = queues.standard == m_request.failedQueue ? QString() : queues.standard;
    const QString wanted = m_wanted.queue.isEmpty() ? standard : m_wanted.queue;
    offerPrinters(queues.queues, m_state == State::looking || !m_target ? wanted : m_target->name());
    if (m_state == State::noPrinter && m_problem.kind == Problem::Kind::noChoice)
        chooseAmong(queues.queues);
}

/// Without a printer there is nothing but that choice; with one, the others are not missed.
void PrintDialog::finderFailedAll(const Problem &problem)
{
    if (m_state == State::noPrinter && m_problem.kind == Problem::Kind::noChoice)
        finderFailed(problem);
}

/// Nobody has said which: the only one, but for one that has failed where there are others, or the person says.
void PrintDialog::chooseAmong(const std::vector<QueueEntry> &printers)
{
    auto others = printers;
    std::erase_if(others, [this](const QueueEntry &printer) { return printer.name == m_request.failedQueue; });
    if (printers.empty())
        say(About::printer, tr("The print service has no printer yet."));
    else if (others.size() <= 1)
        choosePrinter((others.empty() ? printers : others).front().name);
    else
        say(About::printer, tr("Choose a printer."));
}

void PrintDialog::offerPrinters(std::vector<QueueEntry> printers, const QString &chosen)
{
    m_printers = std::move(printers);
    m_chosenPrinter = chosen;
    Q_EMIT printersChanged();
}

void PrintDialog::use(std::unique_ptr<PrintTarget> target)
{
    whenFound([this, shared = std::make_shared<std::unique_ptr<PrintTarget>>(std::move(target))] {
        adopt(std::move(*shared));
    });
}

void PrintDialog::adopt(std::unique_ptr<PrintTarget> target)
{
    // What a person has written stays when the printer is another.
    const Amount before = m_target ? m_target->amount() : Amount();
    if (m_amount.copies == before.copies)
        m_amount.copies = target->amount().copies;
    if (m_amount.pages == before.pages)
        m_amount.pages = target->amount().pages;

    m_target.reset(); // only one may have been started at a time
    m_target = std::move(target);
    m_isPrepared = false;
    m_target->start([this] { settleSoon(); });

    auto printers = m_printers;
    if (std::ranges::find(printers, m_target->name(), &QueueEntry::name) == printers.end())
        printers.push_back({m_target->name(), {}, {}, {}});
    offerPrinters(std::move(printers), m_target->name());
    say(About::printer, whatToKnowOf(*m_target));
    say(About::panel, {});
    say(About::paper, {});
    Q_EMIT amountChanged();
    Q_EMIT targetChanged();
    setState(State::ready);
}

void PrintDialog::prepareAll()
{
    if (!m_target)
        return;
    m_target->prepareAll();
    if (!std::exchange(m_isPrepared, true))
        m_restored = settings();
}

OptionValues PrintDialog::settings() const
{
    OptionValues values = m_target->jobOptions();
    values["copies"] = QString::number(m_amount.copies);
    values["page-ranges"] = m_amount.pages;
    return values;
}

bool PrintDialog::isPresetChanged() const { return m_target && m_isPrepared && m_restored != settings(); }

bool PrintDialog::hasPreset(const QString &name) const
{
    return m_target && m_target->savedOptions() &&
           m_target->savedOptions()->presets().contains(name, Qt::CaseInsensitive);
}

std::vector<SummaryRow> PrintDialog::summary() const
{
    if (!m_target)
        return {};
    std::vector<SummaryRow> rows{{tr("Printer"), m_target->name()}};
    const ChosenPaper chosen = m_target->paper();
    for (const PaperEntry &paper : m_target->papers())
        if (paper.name == chosen.name)
            rows.push_back({tr("Paper"), paper.text});
    if (chosen.name == printing::kUserDefinedPaper && chosen.size)
        rows.push_back({tr("Paper"), inUsersUnit(*chosen.size)});
    rows.push_back({tr("Copies"), QString::number(m_amount.copies)});
    rows.push_back({tr("Pages"), m_amount.pages.isEmpty() ? tr("all") : m_amount.pages});
    std::ranges::copy(m_target->differences(), std::back_inserter(rows));
    return rows;
}

bool PrintDialog::show(PDEPanel &panel)
{
    const bool isShown = m_target->show(panel);
    say(About::panel,
        isShown ? QString() : tr("%1: the plug-in has no interface for this panel.").arg(panel.panelName()));
    return isShown;
}

void PrintDialog::choosePaper(const ChosenPaper &paper)
{
    if (!m_target || m_state == State::sending)
        return;
    m_target->choosePaper(paper);
    say(About::paper, {});
    settleSoon();
}

void PrintDialog::settleSoon()
{
    if (!std::exchange(m_isToSettle, true))
        QMetaObject::invokeMethod(this, &PrintDialog::settle, Qt::QueuedConnection);
}

void PrintDialog::settle()
{
    m_isToSettle = false;
    Q_EMIT settingsChanged();
    if (!m_target || m_state == State::sending)
        return;
    const QStringList remarks = m_target->takeRemarks();
    say(About::settings, remarks.join(' ')); // of the latest choice only
    if (!remarks.isEmpty())
        Q_EMIT remarked(remarks);
}

void PrintDialog::restorePreset(const QString &name)
{
    if (!m_target || !m_target->savedOptions() || m_state == State::sending)
        return;
    const OptionValues values = m_target->restore(name);
    if (values.contains("copies"))
        m_amount.copies = m_target->amount().copies;
    if (values.contains("page-ranges"))
        m_amount.pages = m_target->amount().pages;
    m_restored = settings();
    Q_EMIT amountChanged();
    Q_EMIT paperChanged();
    Q_EMIT presetsChanged();
    settleSoon();
}

void PrintDialog::savePreset(const QString &name)
{
    if (!m_target || !m_target->savedOptions() || m_state == State::sending)
        return;
    const auto checked = name.isEmpty() ? Or<void>() : SavedOptions::checkName(name);
    // Copies in the defaults would be those of every program.
    const auto copies = name.isEmpty() ? std::nullopt : std::optional(m_amount.copies);
    const auto saved = checked ? m_target->save(name, copies) : checked;
    if (!saved)
        return say(About::settings, saved.problem().sentence);
    m_restored = settings();
    Q_EMIT presetsChanged();
    if (!name.isEmpty())
        say(About::settings, tr("Saved as “%1” for %2.").arg(name, m_target->name()));
    else
        say(About::settings, (m_amount.copies == 1 ? tr("Saved as your defaults for %1.")
                                                   : tr("Saved as your defaults for %1, without the number of copies."))
                                 .arg(m_target->name()));
}

void PrintDialog::removePreset()
{
    if (!m_target || !m_target->savedOptions() || m_state == State::sending)
        return;
    const QString name = m_target->preset();
    if (const auto removed = m_target->removePreset(); !removed)
        return say(About::settings, removed.problem().sentence);
    m_restored.reset();
    Q_EMIT presetsChanged();
    say(About::settings, tr("“%1” was deleted.").arg(name));
}

void PrintDialog::chooseDocuments(const QStringList &paths)
{
    if (m_state == State::sending)
        return;
    std::vector<std::shared_ptr<Document>> chosen;
    QStringList problems;
    for (const QString &path : paths) {
        if (auto document = Document::open(path))
            chosen.push_back(*std::move(document));
        else
            problems.append(document.problem().sentence);
    }
    if (!chosen.empty() || problems.isEmpty())
        m_documents = std::move(chosen);
    say(About::document, problems.join('\n'));
    Q_EMIT documentsChanged();
}

void PrintDialog::exchange(const std::shared_ptr<Document> &document, const std::shared_ptr<Document> &other)
{
    const auto found = std::ranges::find(m_documents, document);
    if (found == m_documents.end())
        return;
    *found = other;
    say(About::document, {});
    Q_EMIT documentsChanged();
}

void PrintDialog::print()
{
    if (m_state != State::ready)
        return;
    if (m_documents.empty() && !preparesOnly())
        return say(About::document, tr("There is no document to print."));
    const auto pages = readPageRanges(m_amount.pages);
    if (!pages) {
        say(About::pages, tr("“%1” are no pages. Write single pages and ranges, such as 1-3,5.").arg(m_amount.pages));
        Q_EMIT pagesRefused();
        return;
    }
    prepareAll();
    const bool agrees = m_target->agrees();
    if (const QStringList remarks = m_target->takeRemarks(); !remarks.isEmpty()) {
        say(About::settings, remarks.join(' '));
        Q_EMIT remarked(remarks);
    }
    if (!agrees) {
        Q_EMIT refused();
        return;
    }
    if (preparesOnly()) {
        rememberPrinter();
        Q_EMIT prepared();
        return;
    }
    m_pagesToSend = *pages;
    m_refusedCredentials = 0;
    m_hasSentOne = false;
    send();
}

void PrintDialog::send()
{
    m_isStopping = false;
    say(About::job, {});
    setState(State::sending);
    sendNext();
}

/// Wrong ones are forgotten at once: each further conversation would try them again.
void PrintDialog::askForCredentials(const Problem &problem, std::function<void()> again)
{
    if (problem.kind != Problem::Kind::noAccess)
        return;
    setConversationCredentials(std::nullopt);
    if (m_refusedCredentials == kMostTriesToSayWho)
        return;
    m_again = std::move(again);
    Q_EMIT credentialsWanted(problem.sentence);
}

void PrintDialog::giveCredentials(const Credentials &credentials)
{
    if (!m_again)
        return;
    ++m_refusedCredentials; // until they are taken
    setConversationCredentials(credentials);
    std::exchange(m_again, {})();
}

void PrintDialog::sendNext()
{
    const Job job{m_documents.front(), jobTitle(), m_amount.copies, m_pagesToSend, m_target->jobOptions()};
    const auto preparation = m_request.raw ? std::nullopt : m_target->preparation();
    m_job = BackgroundWork(
        *this,
        [this, job, preparation, sink = m_target->sink()](const std::stop_token &stop) -> Or<QString> {
            const auto prepared = preparation ? preparedJob(job, *preparation, stop) : Or<Job>(job);
            if (!prepared)
                return prepared.problem();
            const auto tell = [this](qint64 done, qint64 total) {
                const int percent = total > 0 ? static_cast<int>(done * 100 / total) : 0;
                QMetaObject::invokeMethod(this, [this, percent] { Q_EMIT progressed(percent); }, Qt::QueuedConnection);
            };
            return sink->submit(*prepared, tell, stop);
        },
        [this](Or<QString> sent) {
            m_sent = std::move(sent);
            doWaiting();
        });
}

void PrintDialog::finish(const Or<QString> &sent)
{
    m_job = {};
    const Problem stopped{tr("Cancelled. What is left was not printed.")};
    if (!sent) // without an answer the job was taken back
        return fail(m_isStopping && m_hasSentOne && sent.problem().kind == Problem::Kind::unanswered ? stopped
                                                                                                     : sent.problem());
    m_hasSentOne = true;
    m_refusedCredentials = 0;
    rememberPrinter();
    const QString fate = m_target->fateOf(jobTitle());
    m_documents.erase(m_documents.begin());
    Q_EMIT documentsChanged();
    Q_EMIT printed(*sent, fate);
    if (!m_documents.empty() && m_isStopping) // the stop came too late for this one
        return fail(stopped);
    if (!m_documents.empty())
        return sendNext();
    say(About::job, {});
    setState(State::ready);
    Q_EMIT finished();
}

void PrintDialog::fail(const Problem &problem)
{
    say(About::job, problem.sentence);
    setState(State::ready);
    Q_EMIT failed(problem);
    if (problem.kind == Problem::Kind::outdated) // what was chosen is kept, as far as the printer still has it
        look({m_target->name(), m_target->preset()}, m_target->jobOptions());
    askForCredentials(problem, [this] { send(); });
}

void PrintDialog::stop()
{
    if (m_state != State::sending)
        return;
    m_isStopping = true;
    say(About::job, tr("Stopping…"));
    m_job.requestStop();
}

void PrintDialog::hold() { ++m_holds; }

/// What has waited is done from the event loop: the box is closed, but the code that opened it has not returned yet.
void PrintDialog::release()
{
    if (m_holds > 0)
        --m_holds;
    if (m_holds == 0)
        QMetaObject::invokeMethod(this, &PrintDialog::doWaiting, Qt::QueuedConnection);
}

void PrintDialog::whenFree(std::function<void()> act)
{
    m_waiting.push_back(std::move(act));
    doWaiting();
}

/// The answer to a search, unless there is another one by then.
void PrintDialog::whenFound(std::function<void()> act)
{
    whenFree([this, search = m_searches, act = std::move(act)] {
        if (search == m_searches)
            act();
    });
}

void PrintDialog::doWaiting()
{
    if (m_sent && m_holds == 0)
        finish(*std::exchange(m_sent, std::nullopt));
    while (isFree() && !m_waiting.empty()) {
        const auto act = std::move(m_waiting.front());
        m_waiting.erase(m_waiting.begin());
        act();
    }
}

} // namespace host
