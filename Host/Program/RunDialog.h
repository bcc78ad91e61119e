// `qnprint [FILE]` and `qnprint shot`: the window, and printing without one.
#pragma once

#include <QStringList>

namespace host {

/// Opens the dialog, or prints without it. The exit status of the program.
int runDialog(const QStringList &arguments);

/// Writes a picture of the dialog. The exit status of the program.
int runShot(const QStringList &arguments);

} // namespace host
