// How much a PPD may hold: opening one takes the time of a person who waits.
#pragma once

#include "Foundation/Or.h"

class QFile;

namespace host {

/// A problem when the file holds so much that the library would be busy with it for longer than half a second. The
/// file stands at its beginning afterwards.
foundation::Or<void> checkPPDLimits(QFile &file);

} // namespace host
