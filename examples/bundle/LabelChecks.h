// What `qnprint lint` looks for in a PPD of a label printer.
#pragma once

#include "PDECheckInterface.h"

/// The one object of all checks; it has nothing to remember.
const PDEChecks &labelChecks();
