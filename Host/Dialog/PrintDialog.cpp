// The print dialog without a window. The difficult part is time: printers are found and jobs end when they like, also
// while a panel's own code waits in a box that it has opened. All that comes from elsewhere goes through `whenFree`.
#include "PrintDialog.h"

#include "PrinterFinder.h"

#include "Jobs/PageRanges.h"

#include <utility>

namespace host {

using foundation::Or;
using foundation::Problem;

PrintDialog::PrintDialog(PrintRequest request, std::shared_ptr<Document> document)
    : m_request(std::move(request))
    , m_document(std::move(document))
    , m_finder(new PrinterFinder(this))
    , m_wanted(QueueName::fromText(m_request.queue))
{
    connect(m_finder, &PrinterFinder::found, this,
            [this](const Queue &queue) { whenFree([this, queue] { finderFound(queue); }); });
    connect(m_finder, &PrinterFinder::failed, this,
            [this](const Problem &problem) { whenFree([this, problem] { finderFailed(problem); }); });
    connect(m_finder, &PrinterFinder::named, this, &PrintDialog::finderNamed);
}

PrintDialog::~PrintDialog() = default;

Or<void> PrintDialog::start()
{
    if (m_request.ppd.isEmpty()) {
        if (!m_wanted.queue.isEmpty())
            offerPrinters({m_wanted.queue}, m_wanted.queue);
        look(m_wanted);
        return {};
    }
    auto target = PPDTarget::ofFile(m_request);
    if (!target)
        return target.problem();
    use(*std::move(target));
    return {};
}

QString PrintDialog::jobTitle() const { return m_request.title.isEmpty() ? documentName() : m_request.title; }

void PrintDialog::setState(State state)
{
    m_state = state;
    Q_EMIT stateChanged();
}

void PrintDialog::setMessage(const QString &sentences)
{
    m_message = sentences;
    m_messageIsForNow = false;
    Q_EMIT messageChanged();
}

void PrintDialog::sayForNow(const QString &sentence)
{
    setMessage(sentence);
    m_messageIsForNow = true;
}

void PrintDialog::choosePrinter(const QString &name)
{
    if (m_state != State::sending)
        look({name, {}});
}

void PrintDialog::lookAgain()
{
    if (m_state != State::sending)
        look(m_wanted);
}

void PrintDialog::look(const QueueName &name, const OptionValues &carried)
{
    m_asksServer = true;
    m_wanted = name;
    m_carried = carried;
    m_waiting.clear(); // answers to an earlier search
    if (!name.queue.isEmpty())
        m_chosenPrinter = name.queue;
    setMessage(tr("Looking for the printer…"));
    setState(State::looking);
    m_finder->find(name);
}

void PrintDialog::finderFound(const Queue &queue)
{
    const OptionValues carried = std::exchange(m_carried, {});
    auto target = targetOfQueue(m_request, queue, carried);
    if (!target)
        return finderFailed(target.problem());
    adopt(*std::move(target));
    if (!carried.isEmpty())
        setMessage(tr("The printer's description has changed on the server. Please look over the settings."));
}

void PrintDialog::finderFailed(const Problem &problem)
{
    m_problem = problem;
    setMessage(problem.sentence);
    setState(State::noPrinter);
}

void PrintDialog::lookForOthers()
{
    if (m_asksServer && !m_hasAllPrinters)
        m_finder->findNames();
}

void PrintDialog::finderNamed(const QueueNames &names)
{
    m_hasAllPrinters = true;
    const QString wanted = m_wanted.queue.isEmpty() ? names.standard : m_wanted.queue;
    offerPrinters(names.names, m_state == State::looking || !m_target ? wanted : m_target->name());
}

void PrintDialog::offerPrinters(const QStringList &names, const QString &chosen)
{
    m_printers = names;
    m_chosenPrinter = chosen;
    Q_EMIT printersChanged();
}

void PrintDialog::use(std::unique_ptr<PrintTarget> target)
{
    whenFree([this, shared = std::make_shared<std::unique_ptr<PrintTarget>>(std::move(target))] {
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
    m_target->start([this] { settleSoon(); });

    QStringList names = m_printers;
    if (!names.contains(m_target->name()))
        names.append(m_target->name());
    offerPrinters(names, m_target->name());
    const QString note = m_target->note().isEmpty() ? QString() : m_target->note() + '.';
    setMessage((note + ' ' + m_target->remark()).trimmed());
    Q_EMIT amountChanged();
    Q_EMIT targetChanged();
    setState(State::ready);
}

void PrintDialog::prepareAll()
{
    if (m_target)
        m_target->prepareAll();
}

bool PrintDialog::show(PDEPanel &panel)
{
    if (m_target->show(panel))
        return true;
    setMessage(tr("%1: the plug-in has no interface for this panel.").arg(panel.panelName()));
    return false;
}

void PrintDialog::choosePaper(const ChosenPaper &paper)
{
    if (!m_target || m_state == State::sending)
        return;
    m_target->choosePaper(paper);
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
    if (!remarks.isEmpty() || m_messageIsForNow)
        sayForNow(remarks.join(' '));
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
    const auto saved = checked ? m_target->save(name) : checked;
    if (!saved)
        return setMessage(saved.problem().sentence);
    Q_EMIT presetsChanged();
    sayForNow(name.isEmpty() ? tr("Saved as your defaults for %1.").arg(m_target->name())
                             : tr("Saved as “%1” for %2.").arg(name, m_target->name()));
}

void PrintDialog::removePreset()
{
    if (!m_target || !m_target->savedOptions() || m_state == State::sending)
        return;
    const QString name = m_target->preset();
    if (const auto removed = m_target->removePreset(); !removed)
        return setMessage(removed.problem().sentence);
    Q_EMIT presetsChanged();
    sayForNow(tr("“%1” was deleted.").arg(name));
}

void PrintDialog::print()
{
    if (m_state != State::ready)
        return;
    if (!m_document)
        return setMessage(tr("There is no document to print."));
    const auto pages = readPageRanges(m_amount.pages);
    if (!pages) {
        setMessage(tr("“%1” are no pages. Write single pages and ranges, such as 1-3,5.").arg(m_amount.pages));
        Q_EMIT pagesRefused();
        return;
    }
    prepareAll();
    const bool agrees = m_target->agrees();
    if (const QStringList remarks = m_target->takeRemarks(); !remarks.isEmpty()) {
        sayForNow(remarks.join(' '));
        Q_EMIT remarked(remarks);
    }
    if (agrees)
        send(*pages);
    else
        Q_EMIT refused();
}

void PrintDialog::send(const QString &pages)
{
    setMessage({});
    setState(State::sending);
    const Job job{m_document, jobTitle(), m_amount.copies, pages, m_target->jobOptions()};
    m_job = BackgroundWork(
        *this,
        [this, job, sink = m_target->sink()](const std::stop_token &stop) {
            const auto tell = [this](qint64 done, qint64 total) {
                const int percent = total > 0 ? static_cast<int>(done * 100 / total) : 0;
                QMetaObject::invokeMethod(this, [this, percent] { Q_EMIT progressed(percent); }, Qt::QueuedConnection);
            };
            return sink->submit(job, tell, stop);
        },
        [this](Or<QString> sent) {
            m_sent = std::move(sent);
            doWaiting();
        });
}

void PrintDialog::finish(const Or<QString> &sent)
{
    m_job = {};
    setState(State::ready);
    if (sent) {
        Q_EMIT printed(*sent);
    } else if (sent.problem().kind == Problem::Kind::outdated) {
        Q_EMIT failed(sent.problem());
        // What was chosen is kept, as far as the printer still has it.
        look({m_target->name(), m_target->preset()}, m_target->jobOptions());
    } else {
        setMessage(sent.problem().sentence);
        Q_EMIT failed(sent.problem());
    }
}

void PrintDialog::stop()
{
    if (m_state != State::sending)
        return;
    setMessage(tr("Stopping…"));
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
