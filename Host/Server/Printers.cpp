// What the server says of its queues.
#include "Printers.h"

#include "PPDCache.h"

#include "ServerConnection.h"

#include "Printing/Units.h"

namespace host {

using foundation::Or;
using foundation::Problem;
using printing::kPointsPerHundredthOfMillimetre;

namespace {

std::vector<PaperEntry> papersOf(http_t *http, cups_dest_t *destination)
{
    std::vector<PaperEntry> papers;
    const DestinationInfo info(cupsCopyDestInfo(http, destination));
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

const char *optionOf(const cups_dest_t &destination, const char *name)
{
    return cupsGetOption(name, destination.num_options, destination.options);
}

QString noteOn(const cups_dest_t &destination)
{
    const QString name = QString::fromUtf8(destination.name);
    if (qstrcmp(optionOf(destination, "printer-is-accepting-jobs"), "false") == 0)
        return ServerConnection::tr("%1: the queue does not take jobs now").arg(name);
    if (qstrcmp(optionOf(destination, "printer-state"), "5") == 0)
        return ServerConnection::tr("%1: the queue is stopped; jobs wait until it is started").arg(name);
    return {};
}

const char *orNull(const QByteArray &text) { return text.isEmpty() ? nullptr : text.constData(); }

Or<Destination> findDestination(const ServerConnection &server, const QueueName &name)
{
    const auto owner = [&] { return name.queue.isEmpty() ? QString::fromUtf8(cupsServer()) : name.queue; };
    if (!server)
        return Problem{owner() + ": " + server.problem().sentence};
    server.forgetLastAnswer();
    Destination found(cupsGetNamedDest(server.get(), orNull(name.queue.toUtf8()), orNull(name.preset.toUtf8())));
    if (found)
        return found;
    if (lastAnswer() == Answer::refused)
        return Problem{owner() + ": " + server.problem().sentence};
    return Problem{name.queue.isEmpty() ? ServerConnection::tr("there is no default queue")
                                        : ServerConnection::tr("%1: no such queue").arg(name.queue)};
}

/// What the library answers to `cupsGetDests2`.
class Destinations
{
public:
    explicit Destinations(http_t *http)
        : m_count(cupsGetDests2(http, &m_list))
    {}
    ~Destinations() { cupsFreeDests(m_count, m_list); }
    Destinations(const Destinations &) = delete;
    Destinations &operator=(const Destinations &) = delete;

    const cups_dest_t *begin() const { return m_list; }
    const cups_dest_t *end() const { return m_list + m_count; }
    bool isEmpty() const { return m_count == 0; }

private:
    cups_dest_t *m_list = nullptr;
    int m_count;
};

} // namespace

Or<QueueNames> askForNames(std::chrono::milliseconds patience)
{
    const ServerConnection server({}, patience);
    if (!server)
        return server.problem();
    server.forgetLastAnswer();
    const Destinations destinations(server.get());
    if (destinations.isEmpty() && lastAnswer() != Answer::granted)
        return server.problem();
    QueueNames found;
    for (const cups_dest_t &each : destinations) {
        const QString name = QString::fromUtf8(each.name);
        if (each.is_default)
            found.standard = name;
        if (!each.instance) // presets share the name of their queue
            found.names.append(name);
    }
    found.names.sort(Qt::CaseInsensitive);
    return found;
}

Or<Queue> askForQueue(const QueueName &name, std::chrono::milliseconds patience)
{
    ServerConnection server({}, patience);
    const auto found = findDestination(server, name);
    if (!found)
        return found.problem();
    cups_dest_t &destination = **found;
    Queue queue{
        QString::fromUtf8(destination.name), QString::fromUtf8(destination.instance), {}, {}, {}, noteOn(destination)};
    if (const char *uri = optionOf(destination, "device-uri"))
        queue.uri = QString::fromUtf8(uri);
    auto ppd = fetchPPD(server, queue.name);
    if (!ppd)
        return Problem{queue.name + ": " + ppd.problem().sentence};
    queue.ppd = *std::move(ppd);
    if (!queue.ppd)
        queue.papers = papersOf(server.get(), &destination);
    return queue;
}

} // namespace host
