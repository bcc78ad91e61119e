// Opening what has to be a file.
#pragma once

#include "Or.h"

#include <QFile>

#include <memory>

namespace foundation {

/// A regular file, open for reading. A pipe, a device or a folder is a problem, and none of them can make us wait.
Or<std::unique_ptr<QFile>> openRegularFile(const QString &path);

/// A new file, readable and writable, that nobody but its owner can read and that has no name that could be left
/// behind.
Or<std::unique_ptr<QFile>> openUnnamedFile();

/// The text of a system error number; the common ones in the language of the window.
QString systemErrorText(int number);

/// Why what was just done with a file has failed.
QString fileErrorText(const QFileDevice &file);

} // namespace foundation
