// The language of the window's own texts.
#pragma once

#include <QString>

namespace host {

/// From now on the window speaks a language ("de", "zh_CN"), or English where it has no texts in that one.
void useWindowTexts(const QString &language);

} // namespace host
