// One job on its way to the server. It is made, streamed and finished over one connection.
#include "SentJob.h"

#include "PPDCache.h"
#include "PrinterState.h"
#include "ServerConnection.h"

#include <QUrl>

namespace host {

using foundation::Or;
using foundation::Problem;
using namespace std::chrono_literals;

namespace {

/// As plain names: a value in braces would be taken for a collection and never reach the driver.
void addOptions(printing::CupsOptions &options, const Job &job)
{
    for (const auto &[key, value] : job.options.asKeyValueRange())
        options.add(key.toUtf8().constData(), value.toUtf8().constData());
    options.add("copies", QByteArray::number(job.copies).constData()); // one as well: a queue may have another default
    if (!job.pages.isEmpty())
        options.add("page-ranges", job.pages.toUtf8().constData());
}

/// A job that is made and not yet complete.
class SentJob
{
public:
    SentJob(const JobOrder &order, const std::stop_token &stop)
        : m_order(order)
        , m_title(order.job.title.toUtf8())
        , m_stop(stop)
        , m_server(stop, order.patience)
    {}

    /// Looks whether there is what the job is for.
    Or<void> findQueue();
    Or<int> make();
    /// Asked before there is a job that the answer could cost.
    std::optional<QString> whyItWillWait() const { return PrinterState(m_server, *m_destination).whyJobsWait(); }
    Or<void> sendDocument(int id, const JobProgress &progress);

private:
    Or<void> write(const QByteArray &part);

    const JobOrder &m_order;
    QByteArray m_title;
    std::stop_token m_stop;
    ServerConnection m_server;
    Destination m_destination;
    DestinationInfo m_info;
};

Or<void> SentJob::findQueue()
{
    if (!m_server)
        return m_server.problem();
    m_server.forgetLastAnswer();
    m_destination.reset(cupsGetNamedDest(m_server.get(), m_order.queue.toUtf8().constData(), nullptr));
    if (!m_destination)
        return lastAnswer() == Answer::notFound ? Problem{ServerConnection::tr("no such queue")} : m_server.problem();
    const auto changed = m_order.ppd ? hasPPDChanged(m_server, m_order.queue, *m_order.ppd) : Or<bool>(false);
    if (!changed)
        return changed.problem();
    if (*changed)
        return Problem{ServerConnection::tr("the printer's description has changed meanwhile; nothing was printed"),
                       Problem::Kind::outdated};
    return {};
}

/// A server that grants a job also says its number.
Or<int> SentJob::make()
{
    m_server.forgetLastAnswer();
    m_info.reset(cupsCopyDestInfo(m_server.get(), m_destination.get()));
    if (!m_info)
        return m_server.problem();
    printing::CupsOptions options;
    addOptions(options, m_order.job);
    m_server.forgetLastAnswer();
    int id = 0;
    cupsCreateDestJob(m_server.get(), m_destination.get(), m_info.get(), &id, m_title.constData(), options.count(),
                      options.list());
    if (lastAnswer() == Answer::granted && id > 0)
        return id;
    return m_server.problem();
}

Or<void> SentJob::write(const QByteArray &part)
{
    const auto status = cupsWriteRequestData(m_server.get(), part.constData(), static_cast<std::size_t>(part.size()));
    m_server.restartSilence();
    return status == HTTP_STATUS_CONTINUE ? Or<void>() : m_server.problem();
}

/// Only the server's own answer, whole, after the last byte says that it has the document.
Or<void> SentJob::sendDocument(int id, const JobProgress &progress)
{
    Document &document = *m_order.job.document;
    m_server.forgetLastAnswer();
    if (cupsStartDestDocument(m_server.get(), m_destination.get(), m_info.get(), id, m_title.constData(),
                              document.format().constData(), 0, nullptr, 1) != HTTP_STATUS_CONTINUE)
        return m_server.problem();
    auto streamed = streamDocument(document, progress, m_stop, [this](const QByteArray &part) { return write(part); });
    if (!streamed)
        return streamed;
    const QByteArray resource = "/printers/" + QUrl::toPercentEncoding(m_order.queue);
    const auto answer = m_server.answerTo(resource.constData());
    return answer ? Or<void>() : answer.problem();
}

} // namespace

Or<void> cancelJob(int id, std::chrono::milliseconds patience)
{
    const ServerConnection server({}, patience);
    if (!server)
        return server.problem();
    ipp_t *const request = ippNewRequest(IPP_OP_CANCEL_JOB);
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(id);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const auto answer = server.ask(request, "/jobs/");
    return answer ? Or<void>() : answer.problem();
}

Or<AcceptedJob> sendJob(const JobOrder &order, const JobMade &made, const JobProgress &progress,
                        const std::stop_token &stop)
{
    SentJob job(order, stop);
    if (const auto found = job.findQueue(); !found)
        return found.problem();
    AcceptedJob accepted{0, job.whyItWillWait()};
    made(0);
    const auto id = job.make();
    if (!id)
        return id.problem();
    made(*id);
    if (const auto sent = job.sendDocument(*id, progress); !sent)
        return Problem{sent.problem().sentence, Problem::Kind::unanswered};
    accepted.id = *id;
    return accepted;
}

} // namespace host
