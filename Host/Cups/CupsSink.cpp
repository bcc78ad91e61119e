// Jobs that go to a queue of the CUPS server. A job is created, streamed and finished over one connection; when that
// breaks, it is cancelled over a second one.
#include "CupsSink.h"

#include "ServerConnection.h"

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr int kSecondsOfSilence = 60; // a server may be busy with what it was sent

/// As plain names: a value in braces would be taken for a collection and never reach the driver.
void addOptions(printing::CupsOptions &options, const Job &job)
{
    for (const auto &[key, value] : job.options.asKeyValueRange())
        options.add(key.toUtf8().constData(), value.toUtf8().constData());
    if (job.copies > 1)
        options.add("copies", QByteArray::number(job.copies).constData());
    if (!job.pages.isEmpty())
        options.add("page-ranges", job.pages.toUtf8().constData());
}

Or<void> sendDocument(ServerConnection &server, cups_dest_t *destination, cups_dinfo_t *info, int id, const Job &job,
                      const JobProgress &progress, const std::stop_token &stop)
{
    if (cupsStartDestDocument(server.get(), destination, info, id, job.title.toUtf8().constData(),
                              job.document->format().constData(), 0, nullptr, 1) != HTTP_STATUS_CONTINUE)
        return server.problem();
    auto streamed = streamDocument(*job.document, progress, stop, [&](const QByteArray &part) -> Or<void> {
        const auto status = cupsWriteRequestData(server.get(), part.constData(), static_cast<std::size_t>(part.size()));
        server.restartSilence();
        if (status != HTTP_STATUS_CONTINUE)
            return server.problem();
        return {};
    });
    if (!streamed)
        return streamed;
    if (answerTo(cupsFinishDestDocument(server.get(), destination, info)) != Answer::granted)
        return server.problem();
    return {};
}

/// Over a connection of its own: the first one may be in the middle of the document. True if the server confirmed the
/// cancellation.
bool cancelJob(cups_dest_t *destination, int id)
{
    const ServerConnection server;
    return server && answerTo(cupsCancelDestJob(server.get(), destination, id)) == Answer::granted;
}

/// What became of a job on the server.
struct Sent
{
    int id = 0; // 0: there was none
    Or<void> outcome;
    bool mayBeLeft = false;
};

Sent send(ServerConnection &server, cups_dest_t *destination, const Job &job, const JobProgress &progress,
          const std::stop_token &stop)
{
    const DestinationInfo info(cupsCopyDestInfo(server.get(), destination));
    printing::CupsOptions options;
    addOptions(options, job);
    Sent sent;
    if (!info ||
        answerTo(cupsCreateDestJob(server.get(), destination, info.get(), &sent.id, job.title.toUtf8().constData(),
                                   options.count(), options.list())) != Answer::granted) {
        sent.outcome = server.problem();
        return sent;
    }
    sent.outcome = sendDocument(server, destination, info.get(), sent.id, job, progress, stop);
    sent.mayBeLeft = !sent.outcome && !cancelJob(destination, sent.id);
    return sent;
}

} // namespace

Problem CupsSink::failed(const Problem &reason, const std::stop_token &stop) const
{
    return {m_queue + ": " + (stop.stop_requested() ? tr("stopped") : reason.sentence)};
}

Or<QString> CupsSink::submit(const Job &job, const JobProgress &progress, std::stop_token stop)
{
    ServerConnection server(stop, kSecondsOfSilence);
    if (!server)
        return failed(server.problem(), stop);
    const Destination destination(cupsGetNamedDest(server.get(), m_queue.toUtf8().constData(), nullptr));
    if (!destination)
        return failed(answerTo() == Answer::notFound ? Problem{tr("no such queue")} : server.problem(), stop);
    if (m_ppd && hasPPDChanged(server, m_queue, *m_ppd))
        return Problem{tr("%1: the printer's description has changed meanwhile; nothing was printed").arg(m_queue),
                       Problem::Kind::outdated};

    const Sent sent = send(server, destination.get(), job, progress, stop);
    if (sent.outcome)
        return QString("%1-%2").arg(m_queue).arg(sent.id);
    Problem problem = failed(sent.outcome.problem(), stop);
    if (sent.mayBeLeft)
        problem.sentence = tr("%1; job %2-%3 may still be there, so look before you print again")
                               .arg(problem.sentence, m_queue)
                               .arg(sent.id);
    return problem;
}

} // namespace host
