// Reading the command line.
#include "CommandLine.h"

#include "Foundation/PlainText.h"
#include "Jobs/PageRanges.h"
#include "Portal/PrintSettingsFile.h"

#include <QCommandLineParser>

#include <algorithm>
#include <iostream>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

void addOptions(QCommandLineParser &parser)
{
    parser.addPositionalArgument("file", kFileDescription, "[file...]");
    for (const OptionRow &row : kOptionRows) {
        QStringList names;
        for (const char *name : {row.letter, row.word})
            if (name)
                names.append(name);
        parser.addOption({names, row.description, row.value, row.fallback});
    }
}

Or<Environment> readEnvironment(const QCommandLineParser &parser)
{
    Environment environment;
    if (parser.isSet("locale")) {
        const auto locale = knownLocale(parser.value("locale"));
        if (!locale)
            return Problem{QString("--locale %1: not a known locale").arg(parser.value("locale"))};
        environment.locale = *locale;
    }
    if (parser.isSet("system-version")) {
        environment.system = foundation::systemVersionFromString(parser.value("system-version"));
        if (!environment.system)
            return Problem{QString("--system-version %1: not of the form 11.0.0").arg(parser.value("system-version"))};
    }
    return environment;
}

/// Options are kept a line each queue, and go on to servers and drivers as words.
bool isOneLine(const QString &text)
{
    return std::ranges::none_of(text, [](QChar each) { return each.category() == QChar::Other_Control; });
}

bool isOneWord(const QString &text)
{
    return std::ranges::none_of(text, [](QChar each) { return each.isSpace() || QString("\"'\\{}").contains(each); });
}

Or<OptionValues> readOptions(const QStringList &values)
{
    OptionValues options;
    for (const QString &value : values) {
        const qsizetype equals = value.indexOf('=');
        if (equals < 1)
            return Problem{QString("-o %1: not of the form keyword=choice").arg(value)};
        if (!isOneLine(value) || !isOneWord(value.left(equals)))
            return Problem{QString("-o %1: not of the form keyword=choice").arg(value)};
        options[value.left(equals)] = value.mid(equals + 1);
    }
    return options;
}

Or<PrintRequest> readRequest(const QCommandLineParser &parser, Face face)
{
    PrintRequest request;
    request.queue = parser.value("destination");
    request.ppd = parser.value("ppd");
    request.output = parser.value("output");
    request.title = parser.value("title");
    request.raw = parser.isSet("raw");
    request.prefersLastPrinter = face == Face::window;
    request.copies = readCopies(parser.value("n"));
    if (parser.isSet("n") && !request.copies)
        return Problem{
            QString("-n %1: not a number from 1 to %2").arg(parser.value("n"), QString::number(kMaximumCopies))};
    const auto pages = readPageRanges(parser.value("P"));
    if (!pages)
        return Problem{QString("-P %1: no pages, such as 1-3,5").arg(parser.value("P"))};
    request.pages = *pages;
    if (!request.ppd.isEmpty() && !request.queue.isEmpty())
        return Problem{"-d and --ppd do not go together"};
    if (parser.isSet("output") && request.ppd.isEmpty())
        return Problem{"--output goes with --ppd only; a queue has its own way"};
    if (parser.isSet("panel") && parser.isSet("no-dialog"))
        return Problem{"--panel and --no-dialog do not go together"};
    auto options = readOptions(parser.values("o"));
    if (!options)
        return options.problem();
    request.options = *std::move(options);
    return request;
}

/// What a variable that nobody has set leaves of a line is not taken for nothing: it would mean another printer, or no
/// comparison.
Or<void> checkValues(const QCommandLineParser &parser)
{
    for (const char *word : {"destination", "ppd", "output", "panel", "record", "expect", "compare", "bundle",
                             "explain", "print-settings"})
        if (parser.isSet(word) && parser.values(word).contains(QString()))
            return Problem{QString("--%1: needs a value").arg(word)};
    return {};
}

struct OwnOption
{
    const char *word;
    Face face;
};
constexpr std::array kOwnOptions{
    OwnOption{"page", Face::preview},  OwnOption{"plain", Face::preview}, OwnOption{"record", Face::script},
    OwnOption{"expect", Face::script}, OwnOption{"compare", Face::shot},
};

/// Options that one face alone has.
Or<void> checkOwnOptions(const QCommandLineParser &parser, Face face)
{
    for (const auto &[word, owner] : kOwnOptions)
        if (parser.isSet(word) && face != owner)
            return Problem{
                QString("--%1 goes with %2 only").arg(word, std::ranges::find(kFaceRows, owner, &FaceRow::face)->word)};
    return {};
}

/// Which page of a preview, and whether in grey.
Or<void> readPreview(const QCommandLineParser &parser, CommandLine &line)
{
    if (parser.isSet("raw") && line.face == Face::preview)
        return Problem{"preview and --raw do not go together"};
    bool isNumber = false;
    line.page = parser.value("page").toInt(&isNumber);
    line.plain = parser.isSet("plain");
    if (!isNumber || line.page < 1)
        return Problem{QString("--page %1: not a page's number").arg(parser.value("page"))};
    return {};
}

/// What the command line says counts for more.
Or<void> readSettingsFile(const QString &path, PrintRequest &request)
{
    if (path.isEmpty())
        return {};
    QString title;
    const auto wish = readPrintSettings(path, title);
    if (!wish)
        return wish.problem();
    if (request.queue.isEmpty() && request.ppd.isEmpty() && !wish->printer.isEmpty()) {
        request.queue = wish->printer;
        request.isGuess = true; // it may be another's name for a file
    }
    request.copies = request.copies ? request.copies : wish->copies;
    request.remembered = wish->options;
    request.title = request.title.isEmpty() ? title : request.title;
    return {};
}

Or<void> readPortal(const QCommandLineParser &parser, CommandLine &line)
{
    struct Row
    {
        const char *option;
        PortalCommand command;
    };
    constexpr std::array kRows{Row{"enable", PortalCommand::enable}, Row{"disable", PortalCommand::disable},
                               Row{"status", PortalCommand::status}};
    for (const Row &row : kRows) {
        if (!parser.isSet(row.option))
            continue;
        if (line.face != Face::portal)
            return Problem{QString("--%1 goes with portal only").arg(row.option)};
        if (line.portal != PortalCommand::serve)
            return Problem{"--enable, --disable and --status do not go together"};
        line.portal = row.command;
    }
    if (line.face == Face::portal && !parser.positionalArguments().isEmpty())
        return Problem{QString("portal: takes no file, and not %1").arg(parser.positionalArguments().first())};
    return {};
}

/// What a PPD is looked over with.
Or<void> readLint(const QCommandLineParser &parser, CommandLine &line)
{
    for (const char *option : {"json", "strict", "bundle", "explain"})
        if (parser.isSet(option) && line.face != Face::lint)
            return Problem{QString("--%1 goes with lint only").arg(option)};
    line.lint = {.files = parser.positionalArguments(),
                 .bundle = parser.value("bundle"),
                 .explain = parser.value("explain"),
                 .asJson = parser.isSet("json"),
                 .isStrict = parser.isSet("strict")};
    if (line.face == Face::lint && line.lint.files.isEmpty() && line.lint.explain.isEmpty())
        return Problem{"lint: needs a PPD"};
    return {};
}

const FaceRow *namedFace(const QStringList &arguments)
{
    const auto *const row =
        std::ranges::find_if(kFaceRows, [&](const FaceRow &each) { return arguments.value(0) == each.word; });
    return row == kFaceRows.end() ? nullptr : row;
}

Face faceOf(const QCommandLineParser &parser, const QStringList &arguments)
{
    if (parser.isSet("help"))
        return Face::help;
    if (parser.isSet("version"))
        return Face::version;
    if (const FaceRow *const row = namedFace(arguments))
        return row->face;
    return parser.isSet("no-dialog") ? Face::batch : Face::window;
}

} // namespace

void removeTemporaries(const CommandLine &line)
{
    if (line.printSettings.isEmpty())
        return;
    for (const QString &file : QStringList(line.printSettings) + line.files)
        removeTemporary(file);
}

void complain(const QString &sentence)
{
    std::cerr << "qnprint: " << foundation::plainLine(sentence).toStdString() << '\n' << std::flush;
}

void report(const QString &where)
{
    std::cout << foundation::withoutControls(where).toStdString() << '\n' << std::flush;
}

Face faceOf(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.parse(QStringList("qnprint") + arguments);
    return faceOf(parser, arguments);
}

Or<CommandLine> readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QStringList("qnprint") + arguments.mid(namedFace(arguments) ? 1 : 0)))
        return Problem{parser.errorText()};
    CommandLine line;
    line.face = faceOf(parser, arguments);
    auto request = readRequest(parser, line.face);
    if (!request)
        return request.problem();
    auto environment = readEnvironment(parser);
    if (!environment)
        return environment.problem();
    if (const auto owned = checkOwnOptions(parser, line.face); !owned)
        return owned.problem();
    if (const auto values = checkValues(parser); !values)
        return values.problem();
    if (const auto preview = readPreview(parser, line); !preview)
        return preview.problem();
    if (const auto portal = readPortal(parser, line); !portal)
        return portal.problem();
    line.printSettings = parser.value("print-settings");
    if (const auto settings = readSettingsFile(line.printSettings, *request); !settings)
        return settings.problem();
    if (const auto lint = readLint(parser, line); !lint)
        return lint.problem();
    line.files = parser.positionalArguments();
    line.panel = parser.value("panel");
    line.compared = parser.value("compare");
    line.script = {parser.value("record"), parser.value("expect")};
    if (line.face == Face::script && !line.files.isEmpty())
        return Problem{
            QString("script: takes no file, and not %1; its lines come by standard input").arg(line.files[0])};
    line.environment = *std::move(environment);
    line.request = *std::move(request);
    line.request.language = parser.isSet("language") ? parser.value("language") : line.environment.locale.name();
    return line;
}

QString helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    QString uses = QStringLiteral("qnprint - %1\n\nOther uses:").arg(kPurpose);
    for (const FaceRow &row : kFaceRows)
        uses += QStringLiteral("\n  qnprint %1\n      %2").arg(row.synopsis, row.description);
    parser.setApplicationDescription(uses);
    return parser.helpText();
}

} // namespace host
