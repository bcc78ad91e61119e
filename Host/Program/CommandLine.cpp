// Reading the command line.
#include "CommandLine.h"

#include "Jobs/Job.h"

#include "Foundation/Locale.h"
#include "Foundation/SystemVersion.h"

#include <QCommandLineParser>

#include <iostream>

namespace host {

namespace {

std::optional<QString> applySurroundings(const QCommandLineParser &parser)
{
    if (parser.isSet("locale")) {
        const QLocale locale(parser.value("locale"));
        if (locale == QLocale::c())
            return QString("--locale %1: not a known locale").arg(parser.value("locale"));
        foundation::Locale::current().set(locale);
    }
    if (parser.isSet("system-version")) {
        const auto version = foundation::systemVersionFromString(parser.value("system-version"));
        if (!version)
            return QString("--system-version %1: not of the form 11.0.0").arg(parser.value("system-version"));
        foundation::setSystemVersion(version);
    }
    return std::nullopt;
}

std::optional<QString> readOptions(const QStringList &values, OptionValues &options)
{
    for (const QString &value : values) {
        const qsizetype equals = value.indexOf('=');
        if (equals < 1)
            return QString("-o %1: not of the form keyword=choice").arg(value);
        options[value.left(equals)] = value.mid(equals + 1);
    }
    return std::nullopt;
}

} // namespace

void complain(const QString &sentence) { std::cerr << "qnprint: " << sentence.toStdString() << std::endl; }

std::optional<CommandLine> readCommandLine(const QStringList &arguments, const QString &usage, int *status)
{
    QCommandLineParser parser;
    parser.addPositionalArgument("file", "the document: PDF, image or text, - for standard input", usage);
    const QCommandLineOption help({"h", "help"}, "Says this.");
    const QCommandLineOption version("version", "Says the version.");
    parser.addOptions({help,
                       version,
                       {{"d", "destination"}, "CUPS queue; the default queue when not given.", "queue"},
                       {"ppd", "Prints by a PPD file, without any CUPS server.", "file"},
                       {"output", "Folder that then receives document and job ticket.", "folder", "."},
                       {"o", "Chooses an option beforehand.", "keyword=choice"},
                       {"n", "Copies.", "number"},
                       {"P", "Pages to print, such as 1-3,5.", "pages"},
                       {{"t", "title"}, "Title of the job.", "title"},
                       {"no-dialog", "Prints without a window, by the same rules and checks."},
                       {"panel", "Panel to show first: basic or advanced.", "panel"},
                       {"language", "Language of the panels.", "language"},
                       {"locale", "Decides between millimetres and inches.", "locale"},
                       {"system-version", "The system that the panels believe to run on.", "version"}});
    const auto wrongUse = [&](const QString &sentence) {
        complain(sentence);
        *status = kWrongUse;
        return std::nullopt;
    };
    if (!parser.parse(QStringList("qnprint") + arguments))
        return wrongUse(parser.errorText());
    *status = kDone;
    if (parser.isSet(help)) {
        std::cout << parser.helpText().toStdString();
        return std::nullopt;
    }
    if (parser.isSet(version)) {
        std::cout << "qnprint " QN_VERSION << std::endl;
        return std::nullopt;
    }
    CommandLine line{parser.positionalArguments(),
                     parser.value("destination"),
                     parser.value("ppd"),
                     parser.value("output"),
                     parser.value("title"),
                     parser.value("panel"),
                     parser.value("language"),
                     {},
                     {},
                     {},
                     parser.isSet("no-dialog")};
    if (parser.isSet("n")) {
        line.copies = readCopies(parser.value("n"));
        if (!line.copies)
            return wrongUse(QString("-n %1: not a number from 1 to %2").arg(parser.value("n")).arg(kMostCopies));
    }
    const auto pages = readPageRanges(parser.value("P"));
    if (!pages)
        return wrongUse(QString("-P %1: no pages, such as 1-3,5").arg(parser.value("P")));
    line.pages = *pages;
    if (!line.ppd.isEmpty() && !line.queue.isEmpty())
        return wrongUse("-d and --ppd do not go together");
    if (const auto sentence = readOptions(parser.values("o"), line.options))
        return wrongUse(*sentence);
    if (const auto sentence = applySurroundings(parser))
        return wrongUse(*sentence);
    if (line.language.isEmpty())
        line.language = foundation::Locale::current().locale().name();
    return line;
}

} // namespace host
