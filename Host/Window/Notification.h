// What the desktop tells the person after the window has gone.
#pragma once

#include <QString>

namespace host {

/// Asks the desktop to show a sentence, as plain text. Nothing happens where there is no desktop that does so.
void notify(const QString &sentence);

} // namespace host
