// Values that no PPD lists.
#include "CustomValue.h"

#include "Foundation/Text.h"
#include "Printing/Units.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr auto kPrefix = QStringView(u"Custom.");

QString shortest(double number) { return QString::number(number, 'g', 6); }

} // namespace

bool isPlainDecimal(const QString &text)
{
    const bool isSigned = text.startsWith('+') || text.startsWith('-');
    const QStringView digits = QStringView(text).sliced(isSigned ? 1 : 0);
    const auto isDigit = [](QChar each) { return each >= '0' && each <= '9'; };
    return digits.count('.') <= 1 && std::ranges::any_of(digits, isDigit) &&
           std::ranges::all_of(digits, [&](QChar each) { return each == '.' || isDigit(each); });
}

CustomValue::CustomValue(const printing::Paper &size)
    : m_bare(shortest(size.width) + 'x' + shortest(size.height))
{}

std::optional<CustomValue> CustomValue::fromText(const QString &text)
{
    return text.startsWith(kPrefix) ? std::optional(CustomValue(text.mid(kPrefix.size()))) : std::nullopt;
}

QString CustomValue::text() const { return kPrefix.toString() + m_bare; }

QString CustomValue::shortText() const { return kPrefix.toString() + (number() ? shortest(*number()) : m_bare); }

std::optional<double> CustomValue::number() const
{
    return isPlainDecimal(m_bare) ? std::optional(foundation::doubleValue(m_bare)) : std::nullopt;
}

std::optional<printing::Paper> CustomValue::size() const
{
    static const QRegularExpression form(R"(^([0-9.]+)x([0-9.]+)(pt|in|ft|mm|cm|m)?$)");
    static const QHash<QString, double> points{
        {"", 1},
        {"pt", 1},
        {"in", printing::kPointsPerInch},
        {"ft", 12 * printing::kPointsPerInch},
        {"mm", printing::kPointsPerMillimetre},
        {"cm", 10 * printing::kPointsPerMillimetre},
        {"m", 1000 * printing::kPointsPerMillimetre},
    };
    const auto match = form.match(m_bare);
    if (!match.hasMatch() || !isPlainDecimal(match.captured(1)) || !isPlainDecimal(match.captured(2)))
        return std::nullopt;
    const double unit = points.value(match.captured(3));
    return printing::Paper{foundation::doubleValue(match.captured(1)) * unit,
                           foundation::doubleValue(match.captured(2)) * unit};
}

bool isSameValue(const CustomValue &one, const CustomValue &other)
{
    constexpr double kSmallest = 1e-4; // of inches or millimetres
    const auto number = one.number();
    const auto otherNumber = other.number();
    return one.m_bare == other.m_bare || (number && otherNumber && std::abs(*number - *otherNumber) < kSmallest);
}

ChoiceValue ChoiceValue::ofCustom(CustomValue value) { return {kCustomChoice, std::move(value)}; }

ChoiceValue ChoiceValue::fromText(const QString &text)
{
    auto custom = CustomValue::fromText(text);
    return custom ? ofCustom(*std::move(custom)) : ChoiceValue{text};
}

OptionValues withoutSecrets(OptionValues options, const QStringList &secrets)
{
    for (const auto &[keyword, value] : options.asKeyValueRange())
        if (secrets.contains(keyword) && CustomValue::fromText(value))
            value = kCustomChoice;
    return options;
}

bool isSameChoice(const QString &one, const QString &other)
{
    const auto custom = CustomValue::fromText(one);
    const auto otherCustom = CustomValue::fromText(other);
    return custom && otherCustom ? isSameValue(*custom, *otherCustom) : one == other;
}

} // namespace host
