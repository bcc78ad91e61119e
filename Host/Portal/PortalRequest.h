// What the service and the processes of its dialogs and jobs tell each other, as JSON.
#pragma once

#include "Foundation/Or.h"
#include "PPD/OptionValues.h"

#include <QJsonObject>

#include <optional>

namespace host {

// Words on the command line that make the program such a process. For us only.

/// Shows the dialog: a line of JSON from standard input, one to standard output. The end of its input ends it.
inline constexpr auto kPrepare = "prepare-for-application";
/// Prints a document by what has been settled before, without a window; becomes the next one when it can't.
inline constexpr auto kPrintPrepared = "print-for-application";
/// Shows the dialog with the document, or before that why it was not printed.
inline constexpr auto kPrintAsked = "ask-for-application";

/// The descriptor that the document of a job comes with. All of it is read, whatever becomes of it.
inline constexpr int kDocumentDescriptor = 3;

/// What a dialog answers.
inline constexpr auto kOutcome = "outcome";
inline constexpr auto kPrepared = "prepared";
inline constexpr auto kCancelled = "cancelled";
inline constexpr auto kOthers = "others"; // another dialog is to be shown in its place

/// The paper that an application lays its pages out for.
struct PreparedPaper // without a width: nobody knows
{
    QString name; // of the printer; "Custom.226.77x425.2" for the user's own size, in points
    QString text; // for people
    double width = 0;
    double height = 0; // in millimetres, like the margins
    double top = 0;
    double bottom = 0;
    double left = 0;
    double right = 0;
};

/// What a person has settled for a document that comes later. Complete: nothing that is saved counts beside it.
struct PreparedPrint
{
    QString queue; // empty: the PPD file that the service was started with
    int copies = 1;
    QString pages; // as a person writes them; empty: all
    OptionValues options;
    PreparedPaper paper;
    bool isToBeLookedAt = false; // the dialog comes again when the document is there
    QStringList secrets;         // options whose custom values the application does not get to keep
};

QJsonObject toJson(const PreparedPrint &prepared);
PreparedPrint preparedPrintFromJson(const QJsonObject &object);

/// What is wished for a dialog.
struct DialogWish
{
    QString title;
    QString acceptLabel;  // of the button; empty: ours
    QString parentWindow; // as the portal writes it: "x11:400003"; may be anything
    bool isModal = true;
    bool offersOthers = false; // there is another dialog

    QString printer; // that the application used last; empty: none
    std::optional<int> copies;
    QString pages;
    OptionValues options; // of that printer

    QString ppd; // a PPD file in place of a queue, and the folder that goes with it
    QString output;
    QString language;
};

QJsonObject toJson(const DialogWish &wish);
DialogWish dialogWishFromJson(const QJsonObject &object);

/// What is wished for a document.
struct JobWish
{
    DialogWish dialog;
    QString title;                         // of the job; empty: the document's own
    QString application;                   // stands for a title where there is none; may be empty
    QString problem;                       // why it was not printed; empty: nothing was tried
    bool isLost = false;                   // and nothing can be done with the document
    bool isGuarded = false;                // and it may be when somebody says who they are
    std::optional<PreparedPrint> prepared; // nil: nothing has been settled
};

QJsonObject toJson(const JobWish &wish);
JobWish jobWishFromJson(const QJsonObject &object);

} // namespace host
