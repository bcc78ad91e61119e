// Lines to the system log, with the format letters that developers of panels know.
#pragma once

#include <QString>
#include <QVariant>

#include <initializer_list>
#include <span>

namespace foundation {

/// An argument of a log line. A null pointer shows as "(null)".
class LogArgument
{
public:
    LogArgument(const QString &text)
        : m_value(text)
    {}
    LogArgument(const char *text)
        : m_value(text ? QVariant(QString::fromUtf8(text)) : QVariant())
    {}
    LogArgument(int number)
        : m_value(number)
    {}
    LogArgument(double number)
        : m_value(number)
    {}
    LogArgument(const void *address)
        : m_value(QVariant::fromValue(reinterpret_cast<quintptr>(address)))
    {}

    const QVariant &value() const { return m_value; }

private:
    QVariant m_value;
};

/// `format` filled with the arguments: %@ and %s texts, %d and %i whole numbers, %f six decimals, %p addresses,
/// %% a percent sign. A letter without an argument shows as "(null)", an unknown letter as it stands.
QString formattedString(const QString &format, std::span<const LogArgument> arguments);

/// One line to the system log.
void NSLogv(const QString &format, std::span<const LogArgument> arguments);
void NSLog(const QString &format, std::initializer_list<LogArgument> arguments = {});

} // namespace foundation
