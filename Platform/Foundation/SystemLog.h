// Lines to the system log, with the format strings that developers of panels know.
#pragma once

#include <QString>

#include <concepts>
#include <functional>
#include <initializer_list>
#include <span>
#include <type_traits>
#include <variant>

namespace foundation {

/// An argument of a log line. It knows its own kind, so that a format that expects another one can do no harm.
class LogArgument
{
public:
    /// Nothing, a text, a whole number, a number, an address. A null text is nothing, a null address is an address.
    using Value = std::variant<std::monostate, QString, qint64, double, const void *>;

    LogArgument(const QString &text)
        : m_value(text)
    {}
    LogArgument(const char *text)
        : m_value(text ? Value(QString::fromUtf8(text)) : Value())
    {}
    LogArgument(const char16_t *text)
        : m_value(text ? Value(QString::fromUtf16(text)) : Value())
    {}
    template <std::integral Number>
    LogArgument(Number number)
        : m_value(static_cast<qint64>(number))
    {}
    template <std::floating_point Number>
    LogArgument(Number number)
        : m_value(static_cast<double>(number))
    {}
    LogArgument(const void *address)
        : m_value(address)
    {}

    const Value &value() const { return m_value; }

private:
    Value m_value;
};

/// `format` filled with the arguments, in the C locale: the platform's own flags (- + space # 0), widths and precisions
/// (a number or *), lengths (h l ll z) and conversions: %@ %s %S texts, %d %i %u %x %X %o whole numbers, %c %C
/// characters, %f %e %g %a numbers, %p addresses, %% a percent sign. An argument of another kind shows as it is, one
/// that is missing as "(null)", anything else after a percent sign as it stands.
QString formattedString(const QString &format, std::span<const LogArgument> arguments);

/// One line to the system log: standard error, which the session keeps in its journal. Deliberately not Qt's message
/// log, as settings of the environment silence that.
void NSLogv(const QString &format, std::span<const LogArgument> arguments);
void NSLog(const QString &format, std::initializer_list<LogArgument> arguments = {});

/// Where lines go from now on, an empty function being standard error; answers where they went before.
using LogSink = std::function<void(const QString &line)>;
LogSink setLogSink(LogSink sink);

} // namespace foundation
