// What the window, or a batch, prints on.
#include "Printer.h"

#include "CommandLine.h"
#include "Destinations.h"

namespace host {

namespace {

constexpr auto kPageSize = "PageSize";
constexpr auto kMedia = "media"; // the same, in the words of programs that know no PPD

/// What is asked for later counts for more, the paper under either of its names.
void insertLater(OptionValues &options, const OptionValues &later)
{
    if (later.contains(kPageSize) || later.contains(kMedia)) {
        options.remove(kPageSize);
        options.remove(kMedia);
    }
    options.insert(later);
}

/// What is asked for on the command line must be had, or the job would be another than the one asked for.
bool canBeHad(const OptionValues &asked, const PPDDocument &ppd, QString *error)
{
    for (const auto &[keyword, value] : asked.asKeyValueRange()) {
        const bool isOfPPD = keyword == kMedia || ppd.hasOption(keyword);
        if (isOfPPD && !ppd.canTake(keyword, value)) {
            *error = QString("-o %1=%2: the printer has no such choice").arg(keyword, value);
            return false;
        }
    }
    return true;
}

/// Fills in what a PPD gives.
bool addSession(Printer &printer, const CommandLine &line, DialogSession::Parameters parameters, QString *error)
{
    parameters.localization = line.language;
    insertLater(parameters.defaults, line.options);
    printer.session = DialogSession::open(parameters, error);
    if (!printer.session || !canBeHad(line.options, printer.session->ppd(), error))
        return false;
    printer.generalOptions = printer.session->ppd().generalAmong(parameters.defaults);
    return true;
}

/// Copies and pages have places of their own. What is no number of copies or no pages is passed over, as other saved
/// options are that nothing fits any more.
void takeCopiesAndPages(Printer &printer, const CommandLine &line)
{
    printer.copies = line.copies.value_or(readCopies(printer.generalOptions.take("copies")).value_or(1));
    const QString saved = readPageRanges(printer.generalOptions.take("page-ranges")).value_or(QString());
    printer.pages = line.pages.isEmpty() ? saved : line.pages;
}

} // namespace

OptionValues Printer::jobOptions() const
{
    OptionValues options = generalOptions;
    if (session)
        options.insert(session->ppd().jobOptions());
    return options;
}

std::optional<Printer> printerOfPPD(const CommandLine &line, QString *error)
{
    Printer printer;
    DialogSession::Parameters parameters;
    parameters.ppdPath = line.ppd;
    if (!addSession(printer, line, parameters, error))
        return std::nullopt;
    printer.name = printer.session->ppd().attribute("NickName").value_or(line.ppd);
    takeCopiesAndPages(printer, line);
    printer.sink = std::make_unique<FolderSink>(line.output);
    return printer;
}

std::optional<Printer> printerOfQueue(const CommandLine &line, const Queue &queue, const OptionValues &carried,
                                      QString *error)
{
    Printer printer;
    printer.name = queue.name;
    printer.preset = queue.preset;
    printer.note = queue.note;
    printer.papers = queue.papers;
    const SavedOptions saved(queue.name);
    OptionValues defaults = saved.options(queue.preset);
    insertLater(defaults, carried);
    if (queue.ppd) {
        DialogSession::Parameters parameters;
        parameters.ppdPath = queue.ppd->path;
        parameters.uri = queue.uri;
        parameters.defaults = defaults;
        if (!addSession(printer, line, parameters, error)) {
            *error = queue.name + ": " + *error;
            return std::nullopt;
        }
        printer.saved = saved;
    } else {
        printer.generalOptions = defaults;
        printer.generalOptions.insert(line.options);
    }
    takeCopiesAndPages(printer, line);
    printer.sink = std::make_unique<CupsSink>(queue.name, queue.ppd);
    return printer;
}

} // namespace host
