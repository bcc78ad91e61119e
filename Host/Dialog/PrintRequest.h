// What somebody asks a dialog for before it opens.
#pragma once

#include "PPD/OptionValues.h"

#include <optional>

namespace host {

struct PrintRequest
{
    QString queue;                   // empty: the default queue; a preset may follow behind a slash
    bool prefersLastPrinter = false; // to the default queue
    QString ppd;                     // a PPD file instead of a queue
    QString output;                  // the folder that goes with it
    QString title;                   // of the job; empty: the document's
    QString language = "en";
    OptionValues options;
    std::optional<int> copies;
    bool raw = false; // documents are sent as they are
    QString pages;    // empty: all, unless the printer's saved options say others
};

} // namespace host
