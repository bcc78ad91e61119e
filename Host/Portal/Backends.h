// The back ends of the desktop's portal: which one an application's print dialog comes from, by the files that the
// portal's front end reads.
#pragma once

#include "Foundation/Or.h"

#include <optional>

namespace host {

/// The name on the bus of the back end that shows print dialogs where ours does not; nil when there is none.
std::optional<QString> otherPrintBackend();

// Each answers what it did, or how things stand, in lines for people.

/// Makes ours the print dialog of this user's applications.
foundation::Or<QString> enablePortal();
foundation::Or<QString> disablePortal();
QString portalStatus();

} // namespace host
