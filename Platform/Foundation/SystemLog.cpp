// Format strings, read by hand: arguments carry their kind, which the C library's own reading would trust to the
// format.
#include "SystemLog.h"

#include "Text.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <utility>

namespace foundation {

namespace {

/// Widths and precisions beyond this are cut: no line needs them, and each character takes memory.
constexpr int kWidest = 1000;

/// One conversion: "%-08.3lx".
struct Conversion
{
    QString flags;
    int width = 0;
    std::optional<int> precision;
    int bits = 32; // of a whole number, by its length
    QChar letter;
};

struct Length
{
    const char *name;
    int bits;
};

constexpr std::array kLengths{Length{"ll", 64}, Length{"l", sizeof(long) * 8}, Length{"z", sizeof(std::size_t) * 8},
                              Length{"h", 16}}; // longer names first

constexpr QStringView kFlags = u"-+ #0";
constexpr QStringView kSigned = u"di";
constexpr QStringView kUnsigned = u"uxXo";
constexpr QStringView kFractions = u"fega";
constexpr QStringView kCharacters = u"cC";
constexpr QStringView kLetters = u"@diuxXocCsSfegap%";

/// Hands out arguments in order, and nothing once they are used up.
class Arguments
{
public:
    explicit Arguments(std::span<const LogArgument> arguments)
        : m_left(arguments)
    {}
    const LogArgument::Value &next()
    {
        static const LogArgument::Value kNothing;
        if (m_left.empty())
            return kNothing;
        const LogArgument::Value &value = m_left.front().value();
        m_left = m_left.subspan(1);
        return value;
    }

private:
    std::span<const LogArgument> m_left;
};

/// Reads one conversion from behind its percent sign.
class Reader
{
public:
    Reader(QStringView text, Arguments &arguments)
        : m_text(text)
        , m_arguments(arguments)
    {}

    /// nil for what is no conversion.
    std::optional<Conversion> read()
    {
        Conversion result;
        while (!m_text.isEmpty() && kFlags.contains(m_text.front()))
            result.flags += take();
        if (const auto width = readSize()) {
            result.width = std::abs(*width);
            if (*width < 0)
                result.flags += '-';
        }
        if (takeIf('.'))
            result.precision = readSize().value_or(0);
        if (result.precision < 0)
            result.precision = std::nullopt;
        for (const Length &length : kLengths)
            if (m_text.startsWith(QLatin1String(length.name))) {
                m_text = m_text.sliced(static_cast<qsizetype>(qstrlen(length.name)));
                result.bits = length.bits;
                break;
            }
        if (m_text.isEmpty() || !kLetters.contains(m_text.front()))
            return std::nullopt;
        result.letter = take();
        return result;
    }
    QStringView rest() const { return m_text; }

private:
    QChar take()
    {
        const QChar first = m_text.front();
        m_text = m_text.sliced(1);
        return first;
    }
    bool takeIf(QChar c) { return m_text.startsWith(c) && !take().isNull(); }
    std::optional<int> readSize()
    {
        if (takeIf('*')) {
            const LogArgument::Value &value = m_arguments.next();
            const auto *number = std::get_if<qint64>(&value);
            return number ? std::optional(static_cast<int>(std::clamp<qint64>(*number, -kWidest, kWidest)))
                          : std::nullopt;
        }
        std::optional<int> size;
        while (!m_text.isEmpty() && m_text.front() >= '0' && m_text.front() <= '9')
            size = std::min(size.value_or(0) * 10 + (take().unicode() - '0'), kWidest);
        return size;
    }

    QStringView m_text;
    Arguments &m_arguments;
};

/// The C library's own rendering of a number whose kind is certain.
template <class Number>
QString printed(const Conversion &conversion, const char *length, Number number)
{
    QString flags = conversion.flags;
    if (kSigned.contains(conversion.letter) || conversion.letter == 'u')
        flags.remove('#'); // means nothing there
    const QByteArray format = '%' + flags.toLatin1() + "*.*" + length + conversion.letter.toLatin1();
    const int precision = conversion.precision.value_or(-1); // taken as none
    const int size = std::snprintf(nullptr, 0, format.constData(), conversion.width, precision, number);
    QByteArray text(std::max(size, 0) + 1, '\0');
    std::snprintf(text.data(), static_cast<std::size_t>(text.size()), format.constData(), conversion.width, precision,
                  number);
    return QString::fromLatin1(text.constData());
}

/// Numbers are cut to the length that the format gives them.
QString wholeNumber(const Conversion &conversion, qint64 number)
{
    const int unused = 64 - conversion.bits;
    const auto shifted = static_cast<quint64>(number) << unused;
    if (kSigned.contains(conversion.letter))
        return printed(conversion, "ll", static_cast<long long>(static_cast<qint64>(shifted) >> unused));
    return printed(conversion, "ll", static_cast<unsigned long long>(shifted >> unused));
}

QString padded(const Conversion &conversion, const QString &text)
{
    return conversion.flags.contains('-') ? text.leftJustified(conversion.width)
                                          : text.rightJustified(conversion.width);
}

QString character(const Conversion &conversion, qint64 code)
{
    const bool narrow = conversion.letter == 'c' && conversion.bits == 32;
    return padded(conversion, QChar(static_cast<char16_t>(narrow ? code & 0xff : code & 0xffff)));
}

QString asItIs(const LogArgument::Value &value)
{
    struct Show
    {
        QString operator()(std::monostate) const { return "(null)"; }
        QString operator()(const QString &text) const { return text; }
        QString operator()(qint64 number) const { return QString::number(number); }
        QString operator()(double number) const { return stringFromDouble(number); }
        QString operator()(const void *address) const
        {
            return "0x" + QString::number(reinterpret_cast<quintptr>(address), 16);
        }
    };
    return std::visit(Show(), value);
}

QString shown(const Conversion &conversion, const LogArgument::Value &value)
{
    if (const auto *number = std::get_if<qint64>(&value)) {
        if (kCharacters.contains(conversion.letter))
            return character(conversion, *number);
        if (kSigned.contains(conversion.letter) || kUnsigned.contains(conversion.letter))
            return wholeNumber(conversion, *number);
    }
    if (const auto *number = std::get_if<double>(&value); number && kFractions.contains(conversion.letter))
        return printed(conversion, "", *number);
    const bool isText = std::holds_alternative<QString>(value) && conversion.precision;
    return padded(conversion, isText ? asItIs(value).left(*conversion.precision) : asItIs(value));
}

/// Whatever the program's locale is, while this lives.
class InCLocale
{
public:
    InCLocale() = default;
    ~InCLocale() { uselocale(m_earlier); }
    InCLocale(const InCLocale &) = delete;
    InCLocale &operator=(const InCLocale &) = delete;

private:
    static locale_t cLocale()
    {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }
    locale_t m_earlier = uselocale(cLocale());
};

LogSink &sink()
{
    static LogSink function;
    return function;
}

} // namespace

QString formattedString(const QString &format, std::span<const LogArgument> arguments)
{
    const InCLocale cLocale;
    Arguments left(arguments);
    QString result;
    for (QStringView rest = format; !rest.isEmpty();) {
        const QChar first = rest.front();
        rest = rest.sliced(1);
        Arguments tried = left; // a width may take one, too
        Reader reader(rest, tried);
        const auto conversion = first == '%' ? reader.read() : std::nullopt;
        if (!conversion) {
            result += first;
            continue;
        }
        result += conversion->letter == '%' ? QString('%') : shown(*conversion, tried.next());
        left = tried;
        rest = reader.rest();
    }
    return result;
}

void NSLogv(const QString &format, std::span<const LogArgument> arguments)
{
    const QString line = formattedString(format, arguments);
    if (const LogSink write = sink()) // a copy: the function may set another
        return write(line);
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr); // at once: lines do not mix
}

void NSLog(const QString &format, std::initializer_list<LogArgument> arguments)
{
    NSLogv(format, {arguments.begin(), arguments.size()});
}

LogSink setLogSink(LogSink function) { return std::exchange(sink(), std::move(function)); }

} // namespace foundation
