// Only the driver reads such a text. Everybody else sees dots where it is secret.
#include "EnteredText.h"

namespace {

constexpr int kWidth = 110;
constexpr auto kPrefix = "Custom."; // or a text that is a choice's keyword would mark that choice

} // namespace

EnteredText::EnteredText(const printing::CustomText &allowed, ppd_file_t &ppd, const ppd_option_t &option,
                         const foundation::Bundle &bundle)
    : CustomEntry(bundle)
    , m_allowed(allowed)
    , m_ppd(ppd)
    , m_option(option)
{}

std::unique_ptr<EnteredText> EnteredText::of(ppd_file_t &ppd, const ppd_option_t &option,
                                             const foundation::Bundle &bundle)
{
    const auto allowed = printing::CustomText::of(ppd, option.keyword);
    return allowed ? std::unique_ptr<EnteredText>(new EnteredText(*allowed, ppd, option, bundle)) : nullptr;
}

QString EnteredText::length() const
{
    const QString most = QString::number(m_allowed.most);
    if (m_allowed.least == 0)
        return localized("up to %1").arg(most);
    return m_allowed.least == m_allowed.most ? most : localized("%1 to %2").arg(QString::number(m_allowed.least), most);
}

QString EnteredText::limits() const
{
    const bool isOfDigits = m_allowed.kind == printing::CustomText::Kind::passcode;
    return localized(isOfDigits ? "%1 digits" : "%1 characters").arg(length());
}

QString EnteredText::refusal() const
{
    return localized(isSecret() ? "The code is not supported." : "The text is not supported.");
}

QString EnteredText::current() const { return printing::markedText(m_ppd, m_option.keyword); }

int EnteredText::widthOfField() const { return kWidth; }

std::optional<QString> EnteredText::valueOf(const QString &text) const
{
    return m_allowed.allows(text) ? std::optional(kPrefix + text) : std::nullopt;
}
