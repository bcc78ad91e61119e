// What somebody asks a dialog for before it opens.
#pragma once

#include "PPD/OptionValues.h"

#include <optional>

namespace host {

struct PrintRequest
{
    QString queue;                   // empty: the default queue; a preset may follow behind a slash
    bool prefersLastPrinter = false; // to the default queue
    QString failedQueue;             // that another one is wanted for: not taken unless a person says so
    QString ppd;                     // a PPD file instead of a queue
    QString output;                  // the folder that goes with it
    QString title;                   // of the job; empty: the document's
    QString language = "en";
    OptionValues options;
    OptionValues remembered;   // by whoever asks, for the queue; like saved options they count as far as they still can
    bool isSettled = false;    // the options are complete: nothing that is saved counts beside them
    bool isGuess = false;      // the queue may not be there any more; then it is the default queue
    bool preparesOnly = false; // the document comes later, and is printed by another
    std::optional<int> copies;
    bool raw = false; // documents are sent as they are
    QString pages;    // empty: all, unless the printer's saved options say others
};

} // namespace host
