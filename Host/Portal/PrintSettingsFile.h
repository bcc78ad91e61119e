// What GTK writes down for a program that previews a job: settings, page set-up and job in a file of keys.
#pragma once

#include "PortalRequest.h"

namespace host {

/// The part of it that a dialog begins with; `title` of the job. A problem when the file can't be read or has no print
/// settings. Pages are left out: the document has only those that were chosen.
foundation::Or<DialogWish> readPrintSettings(const QString &path, QString &title);

/// Removes a file that the preview command is to remove: one of the user's own with such a name as GTK gives to its
/// temporary files, where those are. Others stay.
void removeTemporary(const QString &path);

} // namespace host
