// Amounts are read and written in the C locale, as everywhere in the panels; a decimal comma is taken as well.
#include "CustomAmount.h"

#include "Foundation/Locale.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;
constexpr int kDecimalsToMark = 4;
constexpr int kWidth = 60;

/// A limit may be off by this part of the last digit shown: PPDs round millimetres to points.
constexpr double kTolerance = 0.02;

bool isNumber(ppd_cptype_t type)
{
    return type == PPD_CUSTOM_INT || type == PPD_CUSTOM_REAL || type == PPD_CUSTOM_POINTS || type == PPD_CUSTOM_CURVE ||
           type == PPD_CUSTOM_INVCURVE;
}

/// "1.5" for 1.500.
QString plain(double number, int decimals)
{
    QString text = QString::number(number, 'f', decimals);
    while (text.contains('.') && (text.endsWith('0') || text.endsWith('.')))
        text.chop(1);
    return text == "-0" ? "0" : text;
}

} // namespace

std::unique_ptr<CustomAmount> CustomAmount::of(ppd_file_t &ppd, const ppd_option_t &option,
                                               const foundation::Bundle &bundle)
{
    ppd_coption_t *const custom = ppdFindCustomOption(&ppd, option.keyword);
    const ppd_cparam_t *const parameter = custom ? ppdFirstCustomParam(custom) : nullptr;
    if (!parameter || !isNumber(parameter->type) || ppdNextCustomParam(custom))
        return nullptr;
    std::unique_ptr<CustomAmount> amount(new CustomAmount(*parameter, bundle));
    return amount->number(parameter->minimum) <= amount->number(parameter->maximum) ? std::move(amount) : nullptr;
}

double CustomAmount::number(const ppd_cplimit_t &limit) const
{
    switch (m_parameter->type) {
    case PPD_CUSTOM_INT: return limit.custom_int;
    case PPD_CUSTOM_POINTS: return limit.custom_points;
    case PPD_CUSTOM_CURVE: return limit.custom_curve;
    case PPD_CUSTOM_INVCURVE: return limit.custom_invcurve;
    default: return limit.custom_real;
    }
}

double CustomAmount::currentNumber() const
{
    const ppd_cpvalue_t &value = m_parameter->current;
    switch (m_parameter->type) {
    case PPD_CUSTOM_INT: return value.custom_int;
    case PPD_CUSTOM_POINTS: return value.custom_points;
    case PPD_CUSTOM_CURVE: return value.custom_curve;
    case PPD_CUSTOM_INVCURVE: return value.custom_invcurve;
    default: return value.custom_real;
    }
}

QString CustomAmount::unit() const
{
    if (!isLength())
        return {};
    return foundation::IsMetric() ? "mm" : "in";
}

double CustomAmount::scale() const
{
    if (!isLength())
        return 1;
    return (foundation::IsMetric() ? kMillimetresPerInch : 1) / kPointsPerInch;
}

int CustomAmount::decimals() const
{
    if (m_parameter->type == PPD_CUSTOM_INT)
        return 0;
    return isLength() && foundation::IsMetric() ? 1 : 2;
}

QString CustomAmount::shown(double number) const { return plain(number * scale(), decimals()); }

/// The smallest that can be written: rounding must not lead out of the range.
QString CustomAmount::smallest() const
{
    const double digit = std::pow(10, decimals());
    return plain(std::ceil(number(m_parameter->minimum) * scale() * digit - kTolerance) / digit, decimals());
}

QString CustomAmount::largest() const
{
    const double digit = std::pow(10, decimals());
    return plain(std::floor(number(m_parameter->maximum) * scale() * digit + kTolerance) / digit, decimals());
}

QString CustomAmount::range() const { return localized("%1 to %2").arg(smallest(), largest()); }

QString CustomAmount::hint() const { return QString("%1 (%2)").arg(unit(), range()).trimmed(); }

QString CustomAmount::limits() const { return (range() + ' ' + unit()).trimmed(); }

QString CustomAmount::refusal() const { return localized("The amount is not supported."); }

int CustomAmount::widthOfField() const { return kWidth; }

QString CustomAmount::currentForAll() const { return (current() + ' ' + unit()).trimmed(); }

QString CustomAmount::current() const { return shown(currentNumber()); }

std::optional<QString> CustomAmount::valueOf(const QString &text) const
{
    bool isOne = false;
    const double written = QString(text).replace(',', '.').trimmed().toDouble(&isOne) / scale();
    const double least = number(m_parameter->minimum);
    const double most = number(m_parameter->maximum);
    const double tolerance = kTolerance / std::pow(10, decimals()) / scale();
    if (!isOne || !std::isfinite(written) || written < least - tolerance || written > most + tolerance)
        return std::nullopt;
    if (m_parameter->type == PPD_CUSTOM_INT && written != std::floor(written))
        return std::nullopt;
    return plain(std::clamp(written, least, most), kDecimalsToMark);
}

std::optional<QString> CustomAmount::firstValue() const
{
    return valueOf(current()).value_or(plain(number(m_parameter->minimum), kDecimalsToMark));
}
