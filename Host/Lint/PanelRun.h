// The real panels, run through every paper and every choice of the menus that decide, as a person would pick them.
#pragma once

#include "Findings.h"
#include "Statements.h"

#include "Session/DialogSession.h"

namespace host {

/// Finds states in which a panel shows one choice and another one is marked, and such as never settle. The session is
/// left in some state.
void runThroughPanels(DialogSession &session, const std::vector<PDEOptionControl> &controls,
                      const StatementIndex &index, Findings &findings);

} // namespace host
