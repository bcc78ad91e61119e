// Texts, passcodes and passwords. The library takes whatever it is given: the limits are kept here.
#include "CustomText.h"

#include <QList>

#include <algorithm>

namespace printing {

namespace {

/// A job has the text behind "Custom.", in a name of the printing protocol: 255 bytes without control characters. Some
/// servers take more, none has to.
constexpr int kMostBytes = 248;
constexpr auto kDots = "••••••"; // as many for whatever is entered

/// Null unless it is the option's only one.
const ppd_cparam_t *textParameter(ppd_file_t &ppd, const char *option)
{
    ppd_coption_t *const custom = ppdFindCustomOption(&ppd, option);
    const ppd_cparam_t *const parameter = custom ? ppdFirstCustomParam(custom) : nullptr;
    if (!parameter || ppdNextCustomParam(custom))
        return nullptr;
    const bool isText = parameter->type == PPD_CUSTOM_STRING || parameter->type == PPD_CUSTOM_PASSCODE ||
                        parameter->type == PPD_CUSTOM_PASSWORD;
    return isText ? parameter : nullptr;
}

bool isControl(QChar each) { return each < QChar(' ') || each == QChar(0x7f); }

bool isDigit(QChar each) { return each >= '0' && each <= '9'; }

} // namespace

std::optional<CustomText> CustomText::of(ppd_file_t &ppd, const char *option)
{
    const ppd_cparam_t *const parameter = textParameter(ppd, option);
    if (!parameter)
        return std::nullopt;
    CustomText text;
    int least = parameter->minimum.custom_string;
    int most = parameter->maximum.custom_string;
    if (parameter->type == PPD_CUSTOM_PASSCODE) {
        text.kind = Kind::passcode;
        least = parameter->minimum.custom_passcode;
        most = parameter->maximum.custom_passcode;
    } else if (parameter->type == PPD_CUSTOM_PASSWORD) {
        text.kind = Kind::password;
        least = parameter->minimum.custom_password;
        most = parameter->maximum.custom_password;
    }
    text.least = std::max(least, text.isSecret() ? 1 : 0);
    text.most = std::min(most, kMostBytes);
    return text.most >= std::max(text.least, 1) ? std::optional(text) : std::nullopt;
}

bool CustomText::allows(const QString &text) const
{
    const qsizetype length = text.toUcs4().size();
    return length >= least && length <= most && text.toUtf8().size() <= kMostBytes && text.isValidUtf16() &&
           std::ranges::none_of(text, isControl) && (kind != Kind::passcode || std::ranges::all_of(text, isDigit));
}

QString CustomText::shown(const QString &text) const { return isSecret() ? QString::fromUtf8(kDots) : text; }

QString markedText(ppd_file_t &ppd, const char *option)
{
    const ppd_cparam_t *const parameter = textParameter(ppd, option);
    return parameter ? QString::fromUtf8(parameter->current.custom_string) : QString();
}

} // namespace printing
