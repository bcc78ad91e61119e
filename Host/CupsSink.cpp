// Jobs that go to a CUPS queue.
#include "Destinations.h"
#include "Job.h"

namespace host {

namespace {

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

QString lastError() { return QString::fromUtf8(cupsLastErrorString()); }

std::optional<QString> stream(http_t *http, Document &document, const JobProgress &progress)
{
    return passOn(document, progress, [http](const QByteArray &part) {
        const auto status = cupsWriteRequestData(http, part.constData(), static_cast<std::size_t>(part.size()));
        return status == HTTP_STATUS_CONTINUE ? std::nullopt : std::optional(lastError());
    });
}

} // namespace

JobSink::Result CupsSink::submit(const Job &job, const JobProgress &progress)
{
    const auto failed = [this](const QString &reason) { return Result{false, m_queue + ": " + reason}; };
    const HttpConnection http = connectToServer();
    if (!http)
        return failed("no CUPS server answers");
    const CupsDestination destination(cupsGetNamedDest(http.get(), m_queue.toUtf8().constData(), nullptr));
    if (!destination)
        return failed("no such queue");
    const CupsDestinationInfo info(cupsCopyDestInfo(http.get(), destination.get()));
    if (!info)
        return failed(lastError());

    Options options; // as plain names: a value in braces would be taken for a collection and never reach the driver
    for (const auto &[key, value] : job.options.asKeyValueRange())
        options.add(key.toUtf8().constData(), value);
    if (job.copies > 1)
        options.add("copies", QString::number(job.copies));

    int id = 0;
    const QByteArray title = job.title.toUtf8();
    if (cupsCreateDestJob(http.get(), destination.get(), info.get(), &id, title.constData(), options.count,
                          options.list) > IPP_STATUS_OK_CONFLICTING)
        return failed(lastError());
    std::optional<QString> reason;
    if (cupsStartDestDocument(http.get(), destination.get(), info.get(), id, title.constData(),
                              job.document.format().constData(), 0, nullptr, 1) != HTTP_STATUS_CONTINUE)
        reason = lastError();
    else
        reason = stream(http.get(), job.document, progress);
    if (!reason && cupsFinishDestDocument(http.get(), destination.get(), info.get()) > IPP_STATUS_OK_CONFLICTING)
        reason = lastError();
    if (!reason)
        return {true, QString("%1-%2").arg(m_queue).arg(id)};

    const HttpConnection other = connectToServer(); // the first one is in the middle of the document
    if (other)
        cupsCancelDestJob(other.get(), destination.get(), id);
    return failed(*reason);
}

} // namespace host
