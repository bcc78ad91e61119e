// What the window, or a batch, prints on.
#pragma once

#include "Cups/SavedOptions.h"
#include "Jobs/Job.h"
#include "Session/DialogSession.h"

namespace host {

struct CommandLine;
struct Queue;

struct Printer
{
    QString name;
    /// Null when no PPD describes the printer: only its papers and what every printer has are offered then.
    std::unique_ptr<DialogSession> session;
    std::vector<PPDDocument::PageSize> papers; // when there is no session
    /// Options that the PPD does not know. They go with the job as they are.
    OptionValues generalOptions;
    int copies = 1;
    QString pages;
    std::unique_ptr<JobSink> sink;
    std::optional<SavedOptions> saved; // nil: there is no queue to save for
    QString preset;                    // whose options are the session's defaults; empty: the user's own
    QString note;                      // one sentence on what to expect of the printer now; mostly empty

    /// Takes options that the PPD does not know. Copies and pages have places of their own; what is no number of copies
    /// or no pages is passed over, as other saved options are that nothing fits any more.
    void setGeneralOptions(OptionValues options);

    /// What a job has to say, after the session has agreed to it.
    OptionValues jobOptions() const;
};

/// Options for a printer with a PPD: programs that know no PPD ask for the paper as "media", which there is the page
/// size.
OptionValues inWordsOfPPDs(OptionValues options);

/// The printer that a PPD file describes, with a folder in place of a queue. Nil, with one sentence, when there can be
/// none: the file is no PPD, no plug-in loads, or the command line asks for a choice that the PPD lacks.
std::optional<Printer> printerOfPPD(const CommandLine &line, QString *error);
/// `carried`: choices that a person has made before; they count for more than what is saved or asked for.
std::optional<Printer> printerOfQueue(const CommandLine &line, const Queue &queue, const OptionValues &carried,
                                      QString *error);

} // namespace host
