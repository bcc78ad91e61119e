// What the service for applications has done by processes of their own.
#pragma once

#include "CommandLine.h"

#include "Portal/PortalRequest.h"

namespace host {

/// Whether a word of the command line asks for one of them.
bool isForApplication(const QString &word);

/// Does what the word and the request on standard input ask for. The exit status of the process.
int serveApplication(const QString &word);

// Each is one of them. Its exit status tells what became of the dialog or of the job.

int prepareForApplication(const DialogWish &wish);
int printForApplication(JobWish wish);
int askForApplication(JobWish wish);

// What they share.

PrintRequest requestFor(const DialogWish &wish);
void useLanguage(const QString &language);
/// What Qt is told, as a window of X11 can have only windows of X11 over it.
QStringList platformFor(const DialogWish &wish);

/// `qnprint portal`: the service itself, until there is nothing left to do.
int runPortal(const CommandLine &line);

} // namespace host
