// Text that comes from outside, made harmless to show.
#pragma once

#include <QString>

namespace foundation {

/// One line: what ends lines, controls terminals or turns the direction of reading is a space, and a text without end
/// is cut.
QString plainLine(const QString &text);

} // namespace foundation
