// What the window, or a batch, prints on.
#include "PrintTarget.h"

#include "Cups/Queues.h"
#include "Program/CommandLine.h"

namespace host {

namespace {

constexpr auto kPageSize = "PageSize";
constexpr auto kMedia = "media"; // the same, in the words of programs that know no PPD

/// What is asked for on the command line must be had, or the job would be another than the one asked for.
bool canBeHad(const OptionValues &asked, const PPDDocument &ppd, QString *error)
{
    for (const auto &[keyword, value] : asked.asKeyValueRange()) {
        const OptionValues meant = inWordsOfPPDs({{keyword, value}});
        if (ppd.hasOption(meant.firstKey()) && !ppd.canTake(meant.firstKey(), meant.first())) {
            *error = QString("-o %1=%2: the printer has no such choice").arg(keyword, value);
            return false;
        }
    }
    return true;
}

/// Fills in what a PPD gives.
bool addSession(Printer &printer, const CommandLine &line, const OptionValues &carried,
                DialogSession::Parameters parameters, QString *error)
{
    parameters.localization = line.language;
    parameters.defaults = inWordsOfPPDs(parameters.defaults);
    parameters.defaults.insert(inWordsOfPPDs(line.options));
    parameters.defaults.insert(carried);
    printer.session = DialogSession::open(parameters, error);
    if (!printer.session || !canBeHad(line.options, printer.session->ppd(), error))
        return false;
    printer.setGeneralOptions(printer.session->ppd().generalAmong(parameters.defaults));
    return true;
}

/// The command line counts for more than what is saved.
void takeCopiesAndPages(Printer &printer, const CommandLine &line)
{
    printer.copies = line.copies.value_or(printer.copies);
    if (!line.pages.isEmpty())
        printer.pages = line.pages;
}

} // namespace

OptionValues inWordsOfPPDs(OptionValues options)
{
    if (const auto paper = options.constFind(kMedia); paper != options.cend()) {
        const QString name = paper->section(',', 0, 0); // tray and kind may follow
        options.remove(kMedia);
        if (!options.contains(kPageSize))
            options.insert(kPageSize, name);
    }
    return options;
}

void Printer::setGeneralOptions(OptionValues options)
{
    copies = readCopies(options.take("copies")).value_or(1);
    pages = readPageRanges(options.take("page-ranges")).value_or(QString());
    generalOptions = std::move(options);
}

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
    if (!addSession(printer, line, {}, parameters, error))
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
    if (queue.ppd) {
        DialogSession::Parameters parameters;
        parameters.ppdPath = queue.ppd->path;
        parameters.uri = queue.uri;
        parameters.defaults = defaults;
        if (!addSession(printer, line, carried, parameters, error)) {
            *error = queue.name + ": " + *error;
            return std::nullopt;
        }
        printer.saved = saved;
    } else {
        defaults.insert(line.options);
        printer.setGeneralOptions(defaults);
    }
    takeCopiesAndPages(printer, line);
    printer.sink = std::make_unique<CupsSink>(queue.name, queue.ppd);
    return printer;
}

} // namespace host
