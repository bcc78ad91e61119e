// Lines to the system log: Qt's message log is the one sink.
#include "SystemLog.h"

#include <QLoggingCategory>

namespace foundation {

namespace {

Q_LOGGING_CATEGORY(systemLog, "qnprint.panel")

QString shown(QChar letter, const QVariant &value)
{
    if (!value.isValid())
        return "(null)";
    switch (letter.unicode()) {
    case 'd':
    case 'i': return QString::number(value.toInt());
    case 'f': return QString::number(value.toDouble(), 'f', 6);
    case 'p': return "0x" + QString::number(value.toULongLong(), 16);
    default: return value.toString();
    }
}

} // namespace

QString formattedString(const QString &format, std::span<const LogArgument> arguments)
{
    QString result;
    std::size_t next = 0;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] != '%' || i + 1 == format.size()) {
            result += format[i];
            continue;
        }
        const QChar letter = format[++i];
        if (letter == '%')
            result += letter;
        else if (QStringView(u"@sdifp").contains(letter))
            result += shown(letter, next < arguments.size() ? arguments[next++].value() : QVariant());
        else
            result += QString('%') + letter;
    }
    return result;
}

void NSLogv(const QString &format, std::span<const LogArgument> arguments)
{
    qCInfo(systemLog).noquote() << formattedString(format, arguments);
}

void NSLog(const QString &format, std::initializer_list<LogArgument> arguments)
{
    NSLogv(format, {arguments.begin(), arguments.size()});
}

} // namespace foundation
