// Text that comes from outside, made harmless to show.
#pragma once

#include <QString>

namespace foundation {

/// One line: what ends lines, controls terminals or turns the direction of reading is a space, and a text without end
/// is cut.
QString plainLine(const QString &text);

/// The same text, whole, without what controls terminals or turns the direction of reading.
QString withoutControls(QString text);

/// HTML that shows the text as it is, for what guesses whether a text is HTML, as tool tips do.
QString asHtml(const QString &text);

} // namespace foundation
