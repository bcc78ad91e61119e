// Texts from bytes, numbers from texts and back.
#include "Text.h"

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace foundation {

namespace {

constexpr int kSignificantDigits = 15;

/// The text without leading blanks as plain characters; anything that is not ASCII ends it.
std::string asciiPrefix(QStringView text)
{
    std::string result;
    for (const QChar c : text.trimmed()) {
        if (c.unicode() > 0x7f)
            break;
        result.push_back(static_cast<char>(c.unicode()));
    }
    return result;
}

/// What `from_chars` leaves open: infinite where the number is too large, 0 where it is too small.
double outOfRange(const std::string &number)
{
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(number.c_str(), nullptr, cLocale);
}

bool isAscii(const char *bytes)
{
    return std::all_of(bytes, bytes + qstrlen(bytes), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

StringEncoding systemEncoding() { return StringEncoding::utf8; }

std::optional<QString> stringFromBytes(const char *bytes, StringEncoding encoding)
{
    if (!bytes || (encoding == StringEncoding::ascii && !isAscii(bytes)))
        return std::nullopt;
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decode(QByteArrayView(bytes));
    return decode.hasError() ? std::nullopt : std::optional(text.isNull() ? QString("") : std::move(text));
}

double doubleValue(QStringView text)
{
    const std::string prefix = asciiPrefix(text);
    const char *begin = prefix.data();
    const char *const end = begin + prefix.size();
    if (begin != end && *begin == '+' && end - begin > 1 && begin[1] != '-')
        ++begin;
    const char *const digits = begin != end && *begin == '-' ? begin + 1 : begin;
    if (digits == end || !(*digits == '.' || (*digits >= '0' && *digits <= '9'))) // "inf" and "nan" are no numbers here
        return 0;
    double value = 0;
    const auto [next, failed] = std::from_chars(begin, end, value);
    return failed == std::errc::result_out_of_range ? outOfRange(std::string(begin, next)) : value;
}

int integerValue(QStringView text)
{
    const std::string prefix = asciiPrefix(text);
    const char *begin = prefix.data();
    const char *const end = begin + prefix.size();
    if (begin != end && *begin == '+' && end - begin > 1 && begin[1] != '-')
        ++begin;
    int value = 0;
    const auto [next, failed] = std::from_chars(begin, end, value);
    if (failed == std::errc::result_out_of_range)
        return *begin == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return value;
}

QString stringFromDouble(double value) { return QString::number(value, 'g', kSignificantDigits); }

QPointF pointFromString(const QString &text)
{
    const QString notation = text.trimmed();
    if (!notation.startsWith('{') || !notation.endsWith('}'))
        return {};
    const QStringList sides = notation.sliced(1, qMax<qsizetype>(0, notation.size() - 2)).split(',');
    const auto isSide = [](const QString &side) {
        return !side.isEmpty() && !side.contains('{') && !side.contains('}');
    };
    if (sides.size() != 2 || !std::ranges::all_of(sides, isSide))
        return {};
    return {doubleValue(sides[0].trimmed()), doubleValue(sides[1].trimmed())};
}

qsizetype editDistance(QStringView one, QStringView other)
{
    std::vector<qsizetype> row(static_cast<std::size_t>(other.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < one.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool isSame = one[i] == other[static_cast<qsizetype>(j) - 1];
            const qsizetype best = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (isSame ? 0 : 1)});
            diagonal = std::exchange(row[j], best);
        }
    }
    return row.back();
}

} // namespace foundation
