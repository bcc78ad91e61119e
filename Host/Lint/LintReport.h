// What was found, and what is looked for, in words.
#pragma once

#include "Lint.h"

namespace host {

/// "file:12: error: what is wrong [check]", a line each; nothing when nothing was found.
QString asLines(const QString &file, const Linted &linted);
/// The same as objects of JSON, a line each: file, line, severity, check, message, option.
QString asJson(const QString &file, const Linted &linted);

/// Whether something was found that makes a program fail.
bool hasFailed(const Linted &linted, bool isStrict);

/// One check at length.
QString explained(const PDECheck &check);
QString explainedAsJson(const PDECheck &check);
/// All of them as a document, in Markdown.
QString document(const std::vector<PDECheck> &checks);

} // namespace host
