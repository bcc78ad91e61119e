// One request of `qnprint script`: a JSON object whose members are asked for by name and type.
#pragma once

#include "PPD/OptionValues.h"

#include <QJsonArray>
#include <QJsonObject>

#include <exception>

namespace host {

/// Ends a request: its sentence is the reply's `error`.
class ScriptRefusal : public std::exception
{
public:
    explicit ScriptRefusal(QString sentence)
        : m_sentence(std::move(sentence))
    {}
    const QString &sentence() const { return m_sentence; }

private:
    QString m_sentence;
};

class ScriptRequest
{
public:
    explicit ScriptRequest(QJsonObject object)
        : m_object(std::move(object))
    {}

    bool has(const char *member) const { return m_object.contains(QLatin1String(member)); }
    bool isNull(const char *member) const { return has(member) && value(member).isNull(); }

    // Each refuses the request when the member is missing or of another type.
    QString string(const char *member) const;
    double number(const char *member) const;
    int index(const char *member) const;
    bool boolean(const char *member) const;
    OptionValues strings(const char *member) const;

    QString stringOr(const char *member, const QString &otherwise) const;

private:
    QJsonValue value(const char *member) const { return m_object.value(QLatin1String(member)); }
    [[noreturn]] void refuse(const char *member, const char *type) const;

    QJsonObject m_object;
};

} // namespace host
