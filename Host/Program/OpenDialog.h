// The faces of the dialog that the command line opens.
#pragma once

#include "CommandLine.h"

namespace host {

// Each does what the command line asks for, and answers the exit status of the program.

/// `qnprint [FILE]`: the window.
int openDialog(const CommandLine &line);
/// `qnprint --no-dialog FILE`: prints by the same rules and checks.
int printWithoutWindow(const CommandLine &line);
/// `qnprint shot --ppd PPD PICTURE`: a picture of the window.
int takeShot(const CommandLine &line);
/// `qnprint preview DOCUMENT PICTURE`: a page as it will come out.
int previewPage(const CommandLine &line);
/// `qnprint lint PPD...`: PPDs looked over.
int checkPPDs(const CommandLine &line);

} // namespace host
