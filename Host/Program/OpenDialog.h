// The faces of the dialog that the command line opens.
#pragma once

#include "CommandLine.h"

namespace host {

class DialogWindow;
class PrintDialog;

/// What a signal does: it closes the window, and all that is open over it; a job that is on its way is stopped first,
/// and what becomes of it is said where the signal came from.
void interrupt(DialogWindow &window, PrintDialog &dialog);

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
