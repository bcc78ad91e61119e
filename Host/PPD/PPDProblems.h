// Why the library can't read a PPD.
#pragma once

#include "Printing/ppd_api.h"

#include <QString>

namespace host {

/// One clause on the line where reading ended. The library has its own in the language of the environment.
QString ppdProblemText(ppd_status_t status);

} // namespace host
