// Members of a script request.
#include "ScriptRequest.h"

#include <cmath>
#include <limits>

namespace host {

void ScriptRequest::refuse(const char *member, const char *type) const
{
    throw ScriptRefusal(has(member) ? QString("member \"%1\" is not %2").arg(member, type)
                                    : QString("member \"%1\" is missing").arg(member));
}

QString ScriptRequest::string(const char *member) const
{
    if (!value(member).isString())
        refuse(member, "a string");
    return value(member).toString();
}

double ScriptRequest::number(const char *member) const
{
    if (!value(member).isDouble())
        refuse(member, "a number");
    return value(member).toDouble();
}

int ScriptRequest::index(const char *member) const
{
    const double number = value(member).toDouble(0.5);
    if (!value(member).isDouble() || number != std::floor(number) || std::abs(number) > std::numeric_limits<int>::max())
        refuse(member, "a whole number");
    return static_cast<int>(number);
}

bool ScriptRequest::boolean(const char *member) const
{
    if (!value(member).isBool())
        refuse(member, "true or false");
    return value(member).toBool();
}

OptionValues ScriptRequest::strings(const char *member) const
{
    if (!value(member).isObject())
        refuse(member, "an object of strings");
    OptionValues values;
    const QJsonObject object = value(member).toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (!entry.value().isString())
            refuse(member, "an object of strings");
        values.insert(entry.key(), entry.value().toString());
    }
    return values;
}

QString ScriptRequest::stringOr(const char *member, const QString &otherwise) const
{
    return has(member) ? string(member) : otherwise;
}

} // namespace host
