// What the command line of `qnprint` asks for.
#pragma once

#include "Usage.h"

#include "Dialog/PrintRequest.h"
#include "Lint/Lint.h"
#include "Script/Script.h"
#include "Session/Environment.h"

#include "Foundation/Or.h"

#include <QStringList>

namespace host {

/// The face that a command line asks for, whatever else may be wrong with it.
Face faceOf(const QStringList &arguments);

/// What `portal` is to do.
enum class PortalCommand { serve, enable, disable, status };

struct CommandLine
{
    Face face = Face::window;
    QStringList files; // documents, or pictures to be made
    PrintRequest request;
    QString panel;      // to show first; empty: the first one
    int page = 1;       // of a preview
    bool plain = false; // a preview in grey
    PortalCommand portal = PortalCommand::serve;
    QString printSettings; // a file; empty: none
    QString compared;      // an earlier picture of the window; empty: none
    ScriptFiles script;
    LintRequest lint;
    Environment environment;
};

/// Without Qt's own arguments.
foundation::Or<CommandLine> readCommandLine(const QStringList &arguments);

/// Removes what an application has written down for us, once it has been opened.
void removeTemporaries(const CommandLine &line);

/// Needs an application, whose name it says.
QString helpText();

/// One line on standard error, in the manner of `lp`.
void complain(const QString &sentence);
/// One line on standard output: where a job went.
void report(const QString &where);

} // namespace host
