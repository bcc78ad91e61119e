// The string helpers of PDEUtilsMethod.
#include "PDEUtilsMethod.h"

#include <QStringEncoder>

#include <array>

namespace {

/// In the order in which they are tried; the system's own encoding comes first.
constexpr std::array kAvailableStringEncodings{QStringConverter::Utf8, QStringConverter::Latin1,
                                               QStringConverter::Utf16, QStringConverter::Utf32};

} // namespace

int PDEUtilsMethod::stringLengthConvertedToEncoding(const std::optional<QString> &string)
{
    if (!string)
        return 0;
    for (const auto encoding : kAvailableStringEncodings) {
        QStringEncoder encoder(encoding, QStringConverter::Flag::Stateless);
        const QByteArray bytes = encoder(*string);
        if (!encoder.hasError())
            return static_cast<int>(bytes.size());
    }
    return 0;
}

bool PDEUtilsMethod::scanString(const QString &string, const QString &intoString)
{
    return string.contains(intoString);
}

std::optional<QString> PDEUtilsMethod::deleteString(const QString &string, const QString &intoString)
{
    const qsizetype index = string.indexOf(intoString);
    return index < 0 ? std::nullopt : std::optional(QString(string).remove(index, intoString.size()));
}
