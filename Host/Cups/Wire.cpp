// Questions and answers as JSON.
#include "Wire.h"

#include <QJsonArray>

namespace host {

using foundation::Problem;

namespace {

QJsonObject sizeToJson(const printing::Paper &size) { return {{"width", size.width}, {"height", size.height}}; }

printing::Paper sizeFrom(const QJsonObject &json) { return {json["width"].toDouble(), json["height"].toDouble()}; }

QJsonArray papersToJson(const std::vector<PaperEntry> &papers)
{
    QJsonArray array;
    for (const PaperEntry &paper : papers)
        array.append(QJsonObject{{"name", paper.name}, {"text", paper.text}, {"size", sizeToJson(paper.size)}});
    return array;
}

std::vector<PaperEntry> papersFrom(const QJsonArray &array)
{
    std::vector<PaperEntry> papers;
    for (const QJsonValue each : array)
        papers.push_back({each["name"].toString(), each["text"].toString(), sizeFrom(each["size"].toObject())});
    return papers;
}

QJsonArray offersToJson(const OfferedOptions &offers)
{
    QJsonArray array;
    for (const OfferedOption &offer : offers)
        array.append(QJsonObject{{"word", offer.word},
                                 {"choices", QJsonArray::fromStringList(offer.choices)},
                                 {"standard", offer.standard}});
    return array;
}

OfferedOptions offersFrom(const QJsonArray &array)
{
    OfferedOptions offers;
    for (const QJsonValue each : array)
        offers.push_back(
            {each["word"].toString(), each["choices"].toVariant().toStringList(), each["standard"].toString()});
    return offers;
}

} // namespace

QJsonObject toJson(const Problem &problem)
{
    return {{"sentence", problem.sentence}, {"kind", static_cast<int>(problem.kind)}};
}

Problem problemFrom(const QJsonObject &json)
{
    return {json["sentence"].toString(), static_cast<Problem::Kind>(json["kind"].toInt())};
}

QJsonObject toJson(const Credentials &credentials)
{
    return {{"user", credentials.user}, {"password", credentials.password}};
}

Credentials credentialsFrom(const QJsonObject &json) { return {json["user"].toString(), json["password"].toString()}; }

QJsonObject toJson(const QueueName &name) { return {{"queue", name.queue}, {"preset", name.preset}}; }

QueueName queueNameFrom(const QJsonObject &json) { return {json["queue"].toString(), json["preset"].toString()}; }

QJsonObject toJson(const Queues &queues)
{
    QJsonArray entries;
    for (const QueueEntry &each : queues.queues)
        entries.append(QJsonObject{{"name", each.name},
                                   {"description", each.description},
                                   {"location", each.location},
                                   {"note", each.note},
                                   {"takesJobs", each.takesJobs}});
    return {{"queues", entries}, {"standard", queues.standard}};
}

Queues queuesFrom(const QJsonObject &json)
{
    Queues queues{{}, json["standard"].toString()};
    for (const QJsonValue each : json["queues"].toArray())
        queues.queues.push_back({each["name"].toString(), each["description"].toString(), each["location"].toString(),
                                 each["note"].toString(), each["takesJobs"].toBool()});
    return queues;
}

QJsonObject toJson(const CachedPPD &ppd)
{
    return {{"path", ppd.path},
            {"asOf", static_cast<qint64>(ppd.asOf)},
            {"digest", QString::fromLatin1(ppd.digest)},
            {"isTemporary", ppd.isTemporary}};
}

CachedPPD ppdFrom(const QJsonObject &json)
{
    return {json["path"].toString(), json["asOf"].toInteger(), json["digest"].toString().toLatin1(),
            json["isTemporary"].toBool()};
}

QJsonObject toJson(const Queue &queue)
{
    QJsonObject json{{"name", queue.name},
                     {"preset", queue.preset},
                     {"papers", papersToJson(queue.papers)},
                     {"offers", offersToJson(queue.offers)},
                     {"standardPaper", queue.standardPaper},
                     {"note", queue.note},
                     {"takesJobs", queue.takesJobs}};
    if (queue.uri)
        json["uri"] = *queue.uri;
    if (queue.distrust)
        json["distrust"] = *queue.distrust;
    if (queue.ppd)
        json[wire::kPPD] = toJson(*queue.ppd);
    return json;
}

Queue queueFrom(const QJsonObject &json)
{
    Queue queue{json["name"].toString(), json["preset"].toString(), {}, {}, papersFrom(json["papers"].toArray()),
                json["note"].toString(), json["takesJobs"].toBool()};
    queue.offers = offersFrom(json["offers"].toArray());
    queue.standardPaper = json["standardPaper"].toString();
    if (json.contains("uri"))
        queue.uri = json["uri"].toString();
    if (json.contains("distrust"))
        queue.distrust = json["distrust"].toString();
    if (json.contains(wire::kPPD))
        queue.ppd = ppdFrom(json[wire::kPPD].toObject());
    return queue;
}

QJsonObject toJson(const Job &job)
{
    QJsonObject options;
    for (const auto &[keyword, value] : job.options.asKeyValueRange())
        options[keyword] = value;
    return {{"title", job.title}, {"copies", job.copies}, {"pages", job.pages}, {"options", options}};
}

Job jobFrom(const QJsonObject &json)
{
    Job job{nullptr, json["title"].toString(), json["copies"].toInt(), json["pages"].toString(), {}};
    const QJsonObject options = json["options"].toObject();
    for (auto option = options.begin(); option != options.end(); ++option)
        job.options[option.key()] = option.value().toString();
    return job;
}

} // namespace host
