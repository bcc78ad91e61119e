// What the service for applications has done by processes of their own.
#pragma once

#include <QString>

namespace host {

/// Whether a word of the command line asks for one of them.
bool isForApplication(const QString &word);

/// The exit status of the process: what becomes of the dialog or of the job.
int serveApplication(const QString &word);

/// `qnprint portal`: the service itself, until there is nothing left to do.
struct CommandLine;
int runPortal(const CommandLine &line);

} // namespace host
