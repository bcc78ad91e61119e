#include "PortalRequest.h"

#include <QJsonArray>

namespace host {

namespace {

QJsonObject toJson(const OptionValues &options)
{
    QJsonObject object;
    for (const auto &[keyword, value] : options.asKeyValueRange())
        object[keyword] = value;
    return object;
}

OptionValues optionsFromJson(const QJsonObject &object)
{
    OptionValues options;
    for (auto each = object.begin(); each != object.end(); ++each)
        options[each.key()] = each.value().toString();
    return options;
}

QJsonObject toJson(const PreparedPaper &paper)
{
    return {{"name", paper.name}, {"text", paper.text},     {"width", paper.width}, {"height", paper.height},
            {"top", paper.top},   {"bottom", paper.bottom}, {"left", paper.left},   {"right", paper.right}};
}

PreparedPaper paperFromJson(const QJsonObject &object)
{
    const auto number = [&](const char *key) { return object[QLatin1String(key)].toDouble(); };
    return {object["name"].toString(),
            object["text"].toString(),
            number("width"),
            number("height"),
            number("top"),
            number("bottom"),
            number("left"),
            number("right")};
}

} // namespace

QJsonObject toJson(const PreparedPrint &prepared)
{
    return {{"queue", prepared.queue},
            {"copies", prepared.copies},
            {"pages", prepared.pages},
            {"options", toJson(prepared.options)},
            {"paper", toJson(prepared.paper)},
            {"lookedAt", prepared.isToBeLookedAt},
            {"secrets", QJsonArray::fromStringList(prepared.secrets)}};
}

PreparedPrint preparedPrintFromJson(const QJsonObject &object)
{
    return {object["queue"].toString(),
            object["copies"].toInt(1),
            object["pages"].toString(),
            optionsFromJson(object["options"].toObject()),
            paperFromJson(object["paper"].toObject()),
            object["lookedAt"].toBool(),
            object["secrets"].toVariant().toStringList()};
}

QJsonObject toJson(const DialogWish &wish)
{
    QJsonObject object{{"title", wish.title},   {"accept", wish.acceptLabel},      {"parent", wish.parentWindow},
                       {"modal", wish.isModal}, {"others", wish.offersOthers},     {"printer", wish.printer},
                       {"pages", wish.pages},   {"options", toJson(wish.options)}, {"ppd", wish.ppd},
                       {"output", wish.output}, {"language", wish.language}};
    if (wish.copies)
        object["copies"] = *wish.copies;
    return object;
}

DialogWish dialogWishFromJson(const QJsonObject &object)
{
    DialogWish wish;
    wish.title = object["title"].toString();
    wish.acceptLabel = object["accept"].toString();
    wish.parentWindow = object["parent"].toString();
    wish.isModal = object["modal"].toBool(true);
    wish.offersOthers = object["others"].toBool();
    wish.printer = object["printer"].toString();
    if (object.contains("copies"))
        wish.copies = object["copies"].toInt();
    wish.pages = object["pages"].toString();
    wish.options = optionsFromJson(object["options"].toObject());
    wish.ppd = object["ppd"].toString();
    wish.output = object["output"].toString();
    wish.language = object["language"].toString();
    return wish;
}

QJsonObject toJson(const JobWish &wish)
{
    QJsonObject object{{"dialog", toJson(wish.dialog)}, {"title", wish.title}, {"application", wish.application},
                       {"problem", wish.problem},       {"lost", wish.isLost}, {"guarded", wish.isGuarded}};
    if (wish.prepared)
        object["prepared"] = toJson(*wish.prepared);
    return object;
}

JobWish jobWishFromJson(const QJsonObject &object)
{
    JobWish wish;
    wish.dialog = dialogWishFromJson(object["dialog"].toObject());
    wish.title = object["title"].toString();
    wish.application = object["application"].toString();
    wish.problem = object["problem"].toString();
    wish.isLost = object["lost"].toBool();
    wish.isGuarded = object["guarded"].toBool();
    if (object.contains("prepared"))
        wish.prepared = preparedPrintFromJson(object["prepared"].toObject());
    return wish;
}

} // namespace host
