// How `qnprint` is used, in tables: the command line is read by them, and the help, the manual page and the completions
// of the shells are made from them. All texts are ASCII, as the sources of manual pages are.
#pragma once

#include <array>

namespace host {

inline constexpr int kDone = 0;
inline constexpr int kRefused = 1; // or cancelled, or failed
inline constexpr int kWrongUse = 2;

/// What the program becomes. Only the window needs a display.
enum class Face { window, batch, script, shot, preview, portal, lint, help, version };

/// What a shell offers for a value.
enum class Completion { nothing, file, ppdFile, folder, queue };

// Texts that a row does not have are null.

struct OptionRow
{
    const char *letter = nullptr; // "d" of `-d`
    const char *word = nullptr;   // "destination" of `--destination`
    const char *value = nullptr;  // what it takes is called
    const char *fallback = nullptr;
    const char *description = nullptr; // one sentence, for the help as well
    const char *more = nullptr;        // only in the manual page
    Completion completion = Completion::nothing;
    bool isRepeated = false;
};

inline constexpr std::array kOptionRows{
    OptionRow{"h", "help", nullptr, nullptr, "Show this help.", nullptr},
    OptionRow{nullptr, "version", nullptr, nullptr, "Show the version.", nullptr},
    OptionRow{"d", "destination", "queue", nullptr, "CUPS queue; the default queue when not given.",
              "Without it the window opens on the printer of the last job, else on the default queue, else on the "
              "only one there is. A preset of the queue may follow behind a slash: counter/express. A preset that is "
              "not there is refused.",
              Completion::queue},
    OptionRow{nullptr, "ppd", "file", nullptr, "Print by a PPD file, without any CUPS server.",
              "Does not go together with -d.", Completion::ppdFile},
    OptionRow{nullptr, "output", "folder", ".", "Folder that then receives document and job ticket.",
              "Goes with --ppd only. A folder that is not there is made.", Completion::folder},
    OptionRow{"o", nullptr, "keyword=choice", nullptr, "Set an option before the dialog opens.",
              "May be given several times. A choice that the printer does not have is refused; an option that neither "
              "the printer nor the server is known to have is doubted, and passed on.",
              Completion::nothing, true},
    OptionRow{"n", nullptr, "number", nullptr, "Copies.", "From 1 to 999."},
    OptionRow{"P", nullptr, "pages", nullptr, "Pages to print, such as 1-3,5.", nullptr},
    OptionRow{"t", "title", "title", nullptr, "Title of the job.", "Else the document's name."},
    OptionRow{
        nullptr, "raw", nullptr, nullptr, "Send documents to the printer as they are.",
        "Else, for a printer with a driver, a text or an image is laid out for the chosen paper, a PDF is checked, "
        "and where the driver takes PDF the chosen pages are put on the paper as the preview shows them."},
    OptionRow{
        nullptr, "no-dialog", nullptr, nullptr, "Print without a window, by the same rules and checks.",
        "Needs no display. An interrupt ends the program within two seconds, and cancels a job that is on its way."},
    OptionRow{nullptr, "page", "number", "1", "The page of a preview, counted among those that are printed.",
              "Goes with preview only."},
    OptionRow{nullptr, "plain", nullptr, nullptr, "A preview in grey, as it is before the head burns it.",
              "Before halftone, reversal and mirroring. Goes with preview only."},
    OptionRow{
        nullptr, "print-settings", "file", nullptr, "Begin with what an application has written down.",
        "The file is one of GTK's print settings, as its preview command gets it. It and the document go when they "
        "have been read, where they are temporary files of GTK's.",
        Completion::file},
    OptionRow{nullptr, "enable", nullptr, nullptr, "Make qnprint the print dialog of this user's applications.",
              "Goes with portal only. Says what it has written, and what has to be started again."},
    OptionRow{nullptr, "disable", nullptr, nullptr, "Take that back.", "Goes with portal only."},
    OptionRow{nullptr, "status", nullptr, nullptr, "Tell whether applications print with qnprint.",
              "Goes with portal only."},
    OptionRow{nullptr, "record", "file", nullptr, "Write the replies of a script into a file as well.",
              "The file is replaced when the script has ended. Goes with script only.", Completion::file},
    OptionRow{nullptr, "expect", "file", nullptr, "Compare the replies of a script with recorded ones.",
              "What differs is shown on standard error as a unified diff of the replies, each written out over several "
              "lines behind its number; blank lines and lines that begin with # do not count. Goes with script only.",
              Completion::file},
    OptionRow{nullptr, "compare", "picture", nullptr, "Compare the picture of a window with an earlier one.",
              "Where they differ, the dots that do are red in another picture beside the new one: for panel.png it is "
              "panel-differences.png. Fonts and styles of another machine differ as well. Goes with shot only.",
              Completion::file},
    OptionRow{nullptr, "json", nullptr, nullptr, "Findings as objects of JSON, a line each.", "Goes with lint only."},
    OptionRow{nullptr, "strict", nullptr, nullptr, "Warnings count as errors do.", "Goes with lint only."},
    OptionRow{nullptr, "bundle", "folder", nullptr, "Bundle whose checks and panels a PPD is looked over with.",
              "Else the one that the PPD names. Goes with lint only.", Completion::folder},
    OptionRow{nullptr, "explain", "check", nullptr, "Say what a check looks for and why, with examples.",
              "The name stands in brackets behind each finding; all shows every check. Goes with lint only."},
    OptionRow{nullptr, "panel", "panel", nullptr, "Panel to show first, by its identifier.",
              "Does not go together with --no-dialog."},
    OptionRow{nullptr, "language", "language", nullptr, "Language of the panels.",
              "And of the window, where it has texts in that language: de, en, es, fr, ja, zh_CN. Else that of the "
              "locale."},
    OptionRow{nullptr, "locale", "locale", nullptr, "Decides between millimetres and inches.",
              "Such as de_DE. Else that of the environment."},
    OptionRow{nullptr, "system-version", "version", nullptr, "The system that the panels believe to run on.",
              "Of the form 11.0.0."},
};

/// Faces that the first word of the command line asks for.
struct FaceRow
{
    Face face;
    const char *word;
    const char *synopsis;
    const char *description; // for the help as well
    const char *more;
};
inline constexpr std::array kFaceRows{
    FaceRow{Face::script, "script", "script", "Drives the dialog with lines of JSON, without a display.",
            "Reads a request a line from standard input, and writes a reply each. It is for makers of drivers, who see "
            "how their PPD behaves, and with --record and --expect keep it so."},
    FaceRow{Face::shot, "shot", "shot --ppd file [options] [document] picture",
            "Takes a picture of the window, without a display.",
            "With a document the window shows the preview of its first page. The ending of the picture's name tells "
            "the format: .png."},
    FaceRow{Face::preview, "preview", "preview [options] document picture",
            "Takes a picture of a page as it comes out of the printer, without a display.",
            "A dot of the thermal head is a pixel of the picture, a PNG of the whole sheet in black and white that has "
            "the head's resolution. Nothing is printed. Pages are drawn by pdfinfo and pdftoppm of poppler-utils."},
    FaceRow{Face::portal, "portal", "portal [--enable | --disable | --status]",
            "Serves the desktop's portal, by which applications print.",
            "The session bus starts the service when an application wants to print, and it ends when nobody has for a "
            "minute. With --ppd and --output its dialogs print into a folder."},
    FaceRow{Face::lint, "lint", "lint [options] ppd...",
            "Looks PPDs over as the library and the panels read them, without a display.",
            "A finding is a line: file:line: severity: what is wrong and what it leads to [check]. The panels are run "
            "through every paper. Where cupstestppd of CUPS is installed, its findings are among them."},
};

struct ExitRow
{
    int status;
    const char *description;
};
inline constexpr std::array kExitRows{
    ExitRow{kDone, "Done: every job was sent, or its document and ticket are in the folder."},
    ExitRow{kRefused,
            "Refused, cancelled or failed. Of several documents, those before may have been printed. What was "
            "to be compared differs. With lint: a PPD has errors."},
    ExitRow{kWrongUse, "Wrong use: the command line can't be read, or qnprint script met a line that was no known "
                       "request."},
};

/// A name, and what there is to know of it.
struct TermRow
{
    const char *term;
    const char *description;
};
inline constexpr std::array kEnvironmentRows{
    TermRow{"DISPLAY, WAYLAND_DISPLAY", "Where the window opens. Nothing else needs a display."},
    TermRow{"QT_QPA_PLATFORM", "Qt's name of another way to show the window than the one that it finds by itself."},
    TermRow{"LC_ALL, LANG", "The locale, where --locale does not say."},
    TermRow{"CUPS_SERVER", "The CUPS server, as for every CUPS program."},
    TermRow{"CUPS_SERVERROOT", "The folder of the system's lpoptions, in place of /etc/cups."},
    TermRow{"QNPRINT_PLUGIN_PATH",
            "Folders with bundles of panels, separated by colons. They count before the installed ones."},
};
inline constexpr std::array kFileRows{
    TermRow{"~/.cups/lpoptions",
            "Defaults and presets of queues, as lpoptions(1) has them. What the dialog saves stands here, so that "
            "lp -d queue/preset prints with it as well."},
    TermRow{"/etc/cups/lpoptions", "Those of the system, for all users. The user's own count for more."},
    TermRow{"~/.config/qnprint/qnprint.conf", "What the dialog and its panels remember."},
    TermRow{"~/.config/xdg-desktop-portal/portals.conf",
            "Which dialog applications print with; portal --enable and --disable change the line for printing."},
    TermRow{"~/.cache/qnprint/qnprint/ppd", "PPDs of queues. They are fetched again when the server's have changed."},
};
inline constexpr std::array kOutputRows{
    TermRow{"counter-1 ticket.pdf: sent to counter",
            "The server has the whole document. With a window only the number of the job is written, and the desktop "
            "tells the rest."},
    TermRow{"counter-1 ticket.pdf waits: counter is stopped",
            "It has the document, and prints it when the queue is started."},
    TermRow{"out/ticket.pdf", "With --output, the file that the document was put into."},
};
inline constexpr std::array kExampleRows{
    TermRow{"qnprint invoice.pdf", "Opens the dialog."},
    TermRow{"qnprint -d counter/express ticket.pdf", "Opens it for a queue with one of its presets."},
    TermRow{"qnprint --no-dialog -d counter -n 2 -P 1-3,5 -o PageSize=A4 ticket.pdf", "Prints without a window."},
    TermRow{"qnprint --ppd printer.ppd --output out ticket.pdf", "Prints into a folder, without any CUPS server."},
    TermRow{"qnprint preview -d counter -o PageSize=A5 --page 2 invoice.pdf page.png",
            "Shows what page 2 will look like."},
    TermRow{"qnprint lint --strict printer.ppd", "Says what is wrong with a PPD."},
    TermRow{"qnprint shot --ppd printer.ppd --panel advanced panel.png", "Takes a picture of a panel."},
    TermRow{"qnprint script --expect panel.replies <panel.jsonl", "Tells whether panels still do what they did."},
};

inline constexpr auto kPurpose = "print dialog with the printer's own panels";
inline constexpr auto kDescription =
    "Opens a print dialog for documents on a CUPS queue, or on a PPD file. Its panels come from a bundle that belongs "
    "to the printer. PDF, PostScript, images (PNG, JPEG, GIF, TIFF) and plain text are printed, told by their content. "
    "Several documents are a job each.";
inline constexpr auto kFileDescription = "The document: PDF, PostScript, image or text; - for standard input.";
inline constexpr auto kOutputDescription =
    "Where each job went is written to standard output, a line each. Messages go to standard error, a line each that "
    "begins with the name of the program.";

} // namespace host
