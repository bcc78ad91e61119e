// Texts from bytes, numbers from texts and back: always in the C locale, whatever the user's locale is.
#pragma once

#include <QPointF>
#include <QString>

#include <optional>

namespace foundation {

enum class StringEncoding { ascii = 1, utf8 = 4 }; // the platform's own numbers

/// The encoding of texts that come from the system.
StringEncoding systemEncoding();

/// nil for null and for bytes that are not valid in the encoding.
std::optional<QString> stringFromBytes(const char *bytes, StringEncoding encoding);

/// The longest numeric prefix of a text, 0 when there is none.
double doubleValue(QStringView text);
/// Digits only, so "1.9" is 1; held within the range of int.
int integerValue(QStringView text);

/// The number as "%.15g".
QString stringFromDouble(double value);

/// "{12, 34}"; the zero point when the text is anything else.
QPointF pointFromString(const QString &text);

/// How many letters have to be put in, taken out or replaced to make one word of the other.
qsizetype editDistance(QStringView one, QStringView other);

} // namespace foundation
