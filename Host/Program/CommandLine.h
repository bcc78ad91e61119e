// What the command line of `qnprint` asks for.
#pragma once

#include "PPD/PPDDocument.h"

#include <QStringList>

namespace host {

inline constexpr int kDone = 0;
inline constexpr int kRefused = 1; // or cancelled, or failed
inline constexpr int kWrongUse = 2;

struct CommandLine
{
    QStringList files;
    QString queue;  // empty: the default queue; a preset may follow behind a slash
    QString ppd;    // a PPD file instead of a queue
    QString output; // the folder that goes with it
    QString title;
    QString panel;
    QString language;
    OptionValues options;
    std::optional<int> copies;
    QString pages; // empty: all
    bool noDialog = false;
};

/// Reads arguments and applies what they set for the whole process (locale, system version). Nil when the program is to
/// end now with `status`; what there is to say has been said.
std::optional<CommandLine> readCommandLine(const QStringList &arguments, const QString &usage, int *status);

/// One line on standard error, in the manner of `lp`.
void complain(const QString &sentence);

} // namespace host
