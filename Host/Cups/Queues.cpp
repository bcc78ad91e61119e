// Queues of the CUPS server.
#include "Queues.h"

#include "ServerConnection.h"

namespace host {

namespace {

constexpr double kPointsPerHundredthOfMillimetre = 72 / 2540.0;

/// The papers that a queue without PPD tells of. Their names are those that a job may ask for.
std::vector<PPDDocument::PageSize> papersOf(http_t *http, cups_dest_t *destination)
{
    std::vector<PPDDocument::PageSize> papers;
    const CupsDestinationInfo info(cupsCopyDestInfo(http, destination));
    const int count = info ? cupsGetDestMediaCount(http, destination, info.get(), 0) : 0;
    for (int i = 0; i < count; ++i) {
        cups_size_t size = {};
        if (!cupsGetDestMediaByIndex(http, destination, info.get(), i, 0, &size))
            continue;
        const char *const text = cupsLocalizeDestMedia(http, destination, info.get(), 0, &size);
        papers.push_back(
            {QString::fromUtf8(size.media),
             QString::fromUtf8(text ? text : size.media),
             {size.width * kPointsPerHundredthOfMillimetre, size.length * kPointsPerHundredthOfMillimetre}});
    }
    return papers;
}

QString noteOn(const cups_dest_t &destination)
{
    const auto is = [&](const char *name, const char *value) {
        return qstrcmp(cupsGetOption(name, destination.num_options, destination.options), value) == 0;
    };
    if (is("printer-is-accepting-jobs", "false"))
        return ServerConnection::tr("%1: the queue does not take jobs now").arg(QString::fromUtf8(destination.name));
    if (is("printer-state", "5"))
        return ServerConnection::tr("%1: the queue is stopped; jobs wait until it is started")
            .arg(QString::fromUtf8(destination.name));
    return {};
}

CupsDestination findDestination(const ServerConnection &server, const QueueName &name, QString *error)
{
    const QByteArray queue = name.queue.toUtf8();
    const QByteArray preset = name.preset.toUtf8();
    CupsDestination found(!server ? nullptr
                                  : cupsGetNamedDest(server.get(), queue.isEmpty() ? nullptr : queue.constData(),
                                                     preset.isEmpty() ? nullptr : preset.constData()));
    if (found)
        return found;
    const bool answered =
        server && (cupsLastError() <= IPP_STATUS_OK_CONFLICTING || cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND);
    if (!answered)
        *error = (queue.isEmpty() ? QString::fromUtf8(cupsServer()) : name.queue) + ": " + server.problem();
    else
        *error = queue.isEmpty() ? ServerConnection::tr("there is no default queue")
                                 : ServerConnection::tr("%1: no such queue").arg(name.queue);
    return nullptr;
}

} // namespace

QueueName QueueName::fromText(const QString &text) { return {text.section('/', 0, 0), text.section('/', 1)}; }

std::optional<QueueNames> queueNames()
{
    const ServerConnection server;
    cups_dest_t *destinations = nullptr;
    const int count = server ? cupsGetDests2(server.get(), &destinations) : 0;
    QueueNames found;
    for (const cups_dest_t *each = destinations; each != destinations + count; ++each) {
        const QString name = QString::fromUtf8(each->name);
        if (each->is_default)
            found.standard = name;
        if (!each->instance) // presets share the name of their queue
            found.names.append(name);
    }
    cupsFreeDests(count, destinations);
    if (count == 0 && (!server || cupsLastError() > IPP_STATUS_OK_CONFLICTING))
        return std::nullopt;
    found.names.sort(Qt::CaseInsensitive);
    return found;
}

std::optional<Queue> findQueue(const QueueName &name, QString *error)
{
    const ServerConnection server;
    const CupsDestination destination = findDestination(server, name, error);
    if (!destination)
        return std::nullopt;
    Queue queue{QString::fromUtf8(destination->name),
                QString::fromUtf8(destination->instance),
                {},
                {},
                {},
                noteOn(*destination)};
    if (const char *uri = cupsGetOption("device-uri", destination->num_options, destination->options))
        queue.uri = QString::fromUtf8(uri);
    queue.ppd = fetchPPD(server.get(), queue.name);
    if (queue.ppd)
        return queue;
    if (cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND) { // "it has none" is one thing, "who knows" another
        *error = queue.name + ": " + server.problem();
        return std::nullopt;
    }
    queue.papers = papersOf(server.get(), destination.get());
    return queue;
}

} // namespace host
