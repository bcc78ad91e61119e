// How much a PPD may hold: opening one takes the time of a person who waits.
#pragma once

#include "Foundation/Or.h"

#include <QByteArray>

class QFile;

namespace host {

/// What the file holds, as the library reads it; a problem when that is so much that the library would be busy with it
/// for longer than half a second. The file stands at its beginning afterwards.
foundation::Or<QByteArray> ppdContent(QFile &file);

} // namespace host
