// Options and choices in the words of a person.
#include "OptionWords.h"

#include "Foundation/Bundle.h"
#include "Foundation/Locale.h"

namespace host {

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kPointsPerInch = 72;
constexpr int kDigitsOfMillimetres = 3; // 26.4
constexpr int kDigitsOfInches = 4;      // 1.025

} // namespace

OptionWords::OptionWords(const PPDDocument &ppd, const foundation::Bundle &bundle, QString language)
    : m_ppd(ppd)
    , m_bundle(&bundle)
    , m_language(std::move(language))
{}

QString OptionWords::option(const QString &keyword) const
{
    const QString key = m_ppd.optionText(keyword);
    const QString text = m_bundle->localizedString(key);
    return text == key ? m_ppd.optionText(keyword, m_language) : text;
}

QString OptionWords::choice(const QString &keyword, const ChoiceValue &choice) const
{
    if (choice.custom)
        return custom(keyword, *choice.custom);
    const QString key = m_ppd.choiceText(keyword, choice.keyword);
    const QString text = m_bundle->localizedString(key);
    return text == key ? m_ppd.choiceText(keyword, choice.keyword, m_language) : text;
}

QString OptionWords::both(const QString &keyword, const ChoiceValue &choice) const
{
    return QString("%1 “%2”").arg(option(keyword), this->choice(keyword, choice));
}

QString OptionWords::custom(const QString &keyword, const CustomValue &value) const
{
    const ppd_option_t *const option = m_ppd.option(keyword);
    if (const auto allowed = option ? m_ppd.customText(*option) : std::nullopt)
        return allowed->shown(value.bare());
    return amount(keyword, value).value_or(value.shortText());
}

/// A driver that takes an amount in millimetres too says so by a parameter of that name; its first is in inches.
std::optional<QString> OptionWords::amount(const QString &keyword, const CustomValue &value) const
{
    const bool isInPoints = m_ppd.takesPoints(keyword);
    auto inches = value.number();
    if (!inches || !(isInPoints || m_ppd.hasCustomParameter(keyword, "mm")))
        return std::nullopt;
    if (isInPoints)
        *inches /= kPointsPerInch;
    const QLocale &locale = foundation::Locale::current().locale();
    return foundation::IsMetric() ? locale.toString(*inches * kMillimetresPerInch, 'g', kDigitsOfMillimetres) + " mm"
                                  : locale.toString(*inches, 'g', kDigitsOfInches) + " in";
}

} // namespace host
