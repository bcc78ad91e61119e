// What the server says of its queues.
#include "Printers.h"

#include "PPDCache.h"
#include "PrinterState.h"

#include "ServerConnection.h"

#include "Foundation/PlainText.h"
#include "Printing/Units.h"

#include <algorithm>

namespace host {

using foundation::Or;
using foundation::Problem;
using printing::kPointsPerHundredthOfMillimetre;

namespace {

std::vector<PaperEntry> papersOf(http_t *http, cups_dest_t *destination, cups_dinfo_t *info)
{
    std::vector<PaperEntry> papers;
    const int count = cupsGetDestMediaCount(http, destination, info, 0);
    for (int i = 0; i < count; ++i) {
        cups_size_t size = {};
        if (!cupsGetDestMediaByIndex(http, destination, info, i, 0, &size))
            continue;
        const char *const text = cupsLocalizeDestMedia(http, destination, info, 0, &size);
        papers.push_back(
            {QString::fromUtf8(size.media),
             QString::fromUtf8(text ? text : size.media),
             {size.width * kPointsPerHundredthOfMillimetre, size.length * kPointsPerHundredthOfMillimetre}});
    }
    return papers;
}

/// Keywords as they are, numbers in digits.
QStringList valuesOf(ipp_attribute_t *attribute)
{
    QStringList values;
    for (int i = 0; i < ippGetCount(attribute); ++i)
        if (ippGetValueTag(attribute) == IPP_TAG_ENUM)
            values.append(QString::number(ippGetInteger(attribute, i)));
        else
            values.append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
    return values;
}

OfferedOptions offersOf(http_t *http, cups_dest_t *destination, cups_dinfo_t *info)
{
    OfferedOptions offers;
    for (const QString &word : wordsToOffer()) {
        const QByteArray name = word.toLatin1();
        const QStringList choices = valuesOf(cupsFindDestSupported(http, destination, info, name.constData()));
        const QStringList standard = valuesOf(cupsFindDestDefault(http, destination, info, name.constData()));
        if (!choices.isEmpty())
            offers.push_back({word, choices, standard.value(0)});
    }
    return offers;
}

/// What takes the place of a PPD.
void describePlain(Queue &queue, http_t *http, cups_dest_t *destination)
{
    const DestinationInfo info(cupsCopyDestInfo(http, destination));
    if (!info)
        return;
    queue.papers = papersOf(http, destination, info.get());
    queue.offers = offersOf(http, destination, info.get());
    cups_size_t standard = {};
    if (cupsGetDestMediaDefault(http, destination, info.get(), 0, &standard))
        queue.standardPaper = QString::fromUtf8(standard.media);
}

const char *optionOf(const cups_dest_t &destination, const char *name)
{
    return cupsGetOption(name, destination.num_options, destination.options);
}

QueueEntry entryOf(const ServerConnection &server, const cups_dest_t &destination)
{
    const PrinterState state(server, destination);
    const QString name = QString::fromUtf8(destination.name);
    const QString description = foundation::plainLine(QString::fromUtf8(optionOf(destination, "printer-info")));
    return {name, description == name ? QString() : description,
            foundation::plainLine(QString::fromUtf8(optionOf(destination, "printer-location"))), state.inShort(),
            state.takesJobs()};
}

const char *orNull(const QByteArray &text) { return text.isEmpty() ? nullptr : text.constData(); }

Problem of(const QString &owner, Problem problem)
{
    problem.sentence.prepend(owner + ": ");
    return problem;
}

Or<Destination> findDestination(const ServerConnection &server, const QueueName &name)
{
    const auto owner = [&] { return name.queue.isEmpty() ? QString::fromUtf8(cupsServer()) : name.queue; };
    if (!server) {
        Problem problem = server.problem();
        if (problem.kind == Problem::Kind::unanswered)
            problem.kind = Problem::Kind::failed; // nothing was asked for that could have been done
        return of(owner(), problem);
    }
    server.forgetLastAnswer();
    Destination found(cupsGetNamedDest(server.get(), orNull(name.queue.toUtf8()), orNull(name.preset.toUtf8())));
    if (found)
        return found;
    if (lastAnswer() == Answer::refused)
        return of(owner(), server.problem());
    if (name.queue.isEmpty())
        return Problem{ServerConnection::tr("there is no default queue"), Problem::Kind::noChoice};
    return Problem{ServerConnection::tr("%1: no such queue").arg(name.queue), Problem::Kind::notFound};
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

Or<Queues> askForQueues(std::chrono::milliseconds patience)
{
    const ServerConnection server({}, patience);
    if (!server)
        return server.problem();
    server.forgetLastAnswer();
    const Destinations destinations(server.get());
    if (destinations.isEmpty() && lastAnswer() == Answer::refused) // a server without queues finds none
        return server.problem();
    Queues found;
    for (const cups_dest_t &each : destinations) {
        if (each.is_default)
            found.standard = QString::fromUtf8(each.name);
        if (!each.instance) // presets share the name of their queue
            found.queues.push_back(entryOf(server, each));
    }
    std::ranges::sort(found.queues, [](const QueueEntry &one, const QueueEntry &other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
    });
    return found;
}

Or<Queue> askForQueue(const QueueName &name, std::chrono::milliseconds patience)
{
    ServerConnection server({}, patience);
    const auto found = findDestination(server, name);
    if (!found)
        return found.problem();
    cups_dest_t &destination = **found;
    const PrinterState state(server, destination);
    Queue queue{QString::fromUtf8(destination.name),
                QString::fromUtf8(destination.instance),
                {},
                {},
                {},
                state.note(),
                state.takesJobs(),
                server.distrust()};
    if (const char *uri = optionOf(destination, "device-uri"))
        queue.uri = QString::fromUtf8(uri);
    auto ppd = fetchPPD(server, queue.name);
    if (!ppd)
        return of(queue.name, ppd.problem());
    queue.ppd = *std::move(ppd);
    if (!queue.ppd)
        describePlain(queue, server.get(), &destination);
    return queue;
}

} // namespace host
