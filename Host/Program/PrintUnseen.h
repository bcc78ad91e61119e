// Printing without a window.
#pragma once

#include "Dialog/PrintDialog.h"

namespace host {

/// Prints what the dialog has, as soon as it has a printer: what a person may want to know of is told on standard
/// error, where each document went on standard output. The problem has no sentence when a panel has refused and told
/// why.
foundation::Or<void> printUnseen(PrintDialog &dialog);

} // namespace host
