// Jobs that go to a CUPS queue.
#include "Jobs/Job.h"
#include "ServerConnection.h"

namespace host {

namespace {

constexpr int kSecondsOfSilence = 60; // a server may be busy with what it was sent

struct Options
{
    ~Options() { cupsFreeOptions(count, list); }
    void add(const char *name, const QString &value)
    {
        count = cupsAddOption(name, value.toUtf8().constData(), count, &list);
    }

    int count = 0;
    cups_option_t *list = nullptr;
};

/// As plain names: a value in braces would be taken for a collection and never reach the driver.
void fill(Options &options, const Job &job)
{
    for (const auto &[key, value] : job.options.asKeyValueRange())
        options.add(key.toUtf8().constData(), value);
    if (job.copies > 1)
        options.add("copies", QString::number(job.copies));
    if (!job.pages.isEmpty())
        options.add("page-ranges", job.pages);
}

/// Nil when all of it went and the server has taken it.
std::optional<QString> sendDocument(ServerConnection &server, cups_dest_t *destination, cups_dinfo_t *info, int id,
                                    const Job &job, const JobProgress &progress)
{
    if (cupsStartDestDocument(server.get(), destination, info, id, job.title.toUtf8().constData(),
                              job.document.format().constData(), 0, nullptr, 1) != HTTP_STATUS_CONTINUE)
        return server.problem();
    auto reason = passOn(job.document, progress, [&](const QByteArray &part) {
        const auto status = cupsWriteRequestData(server.get(), part.constData(), static_cast<std::size_t>(part.size()));
        server.heard();
        return status == HTTP_STATUS_CONTINUE ? std::nullopt : std::optional(server.problem());
    });
    if (reason)
        return reason;
    return cupsFinishDestDocument(server.get(), destination, info) > IPP_STATUS_OK_CONFLICTING
               ? std::optional(server.problem())
               : std::nullopt;
}

/// Over a connection of its own: the first one may be in the middle of the document. Whether the job is surely gone.
bool cancelJob(cups_dest_t *destination, int id)
{
    const ServerConnection server;
    return server && cupsCancelDestJob(server.get(), destination, id) <= IPP_STATUS_OK_CONFLICTING;
}

/// What became of a job on the server.
struct Sent
{
    int id = 0;                    // 0: there was none
    std::optional<QString> reason; // why it did not go; nil: it did
    bool mayBeLeft = false;
};

Sent send(ServerConnection &server, cups_dest_t *destination, const Job &job, const JobProgress &progress)
{
    const CupsDestinationInfo info(cupsCopyDestInfo(server.get(), destination));
    Options options;
    fill(options, job);
    Sent sent;
    if (!info || cupsCreateDestJob(server.get(), destination, info.get(), &sent.id, job.title.toUtf8().constData(),
                                   options.count, options.list) > IPP_STATUS_OK_CONFLICTING) {
        sent.reason = server.problem();
        return sent;
    }
    sent.reason = sendDocument(server, destination, info.get(), sent.id, job, progress);
    sent.mayBeLeft = sent.reason && !cancelJob(destination, sent.id);
    return sent;
}

} // namespace

JobSink::Result CupsSink::submit(const Job &job, const JobProgress &progress)
{
    qint64 done = 0;
    const JobProgress noting = [&](qint64 now, qint64 total) { return progress(done = now, total); };
    const auto isWanted = [&] { return progress(done, job.document.size()); };
    const auto failed = [&](const QString &reason) {
        return Result{false, m_queue + ": " + (isWanted() ? reason : JobSink::tr("stopped"))};
    };

    ServerConnection server(isWanted, kSecondsOfSilence);
    if (!server)
        return failed(server.problem());
    const CupsDestination destination(cupsGetNamedDest(server.get(), m_queue.toUtf8().constData(), nullptr));
    if (!destination)
        return failed(cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND ? JobSink::tr("no such queue") : server.problem());
    if (m_ppd && hasPPDChanged(server.get(), m_queue, *m_ppd))
        return {false,
                JobSink::tr("%1: the printer's description has changed meanwhile; nothing was printed").arg(m_queue),
                true};

    const Sent sent = send(server, destination.get(), job, noting);
    if (!sent.reason)
        return {true, QString("%1-%2").arg(m_queue).arg(sent.id)};
    Result result = failed(*sent.reason);
    if (sent.mayBeLeft)
        result.sentence = JobSink::tr("%1; job %2-%3 may still be there, so look before you print again")
                              .arg(result.sentence, m_queue)
                              .arg(sent.id);
    return result;
}

} // namespace host
