// `qnprint lint`: a PPD looked over as the library, the printing system and the panels read it.
#pragma once

#include "PDECheckInterface.h"

#include "Foundation/Or.h"

#include <QStringList>

namespace host {

struct LintRequest
{
    QStringList files = {};
    QString bundle = {};   // path; empty: for each PPD the one that serves it in the dialog
    QString explain = {};  // name of a check, or "all"; empty: files are looked over
    bool asJson = false;   // else lines as those of a compiler
    bool isStrict = false; // warnings count as errors do
};

/// What there is to look for: the host's own, then those of the bundle that looks the first file over; without files,
/// of the first bundle there is. A problem as below.
foundation::Or<std::vector<PDECheck>> checksFor(const LintRequest &request);

struct Linted
{
    std::vector<PDECheck> checks;     // those that were looked for
    std::vector<PDEFinding> findings; // sorted by line
};

/// Needs an application with widgets, and a store for user defaults that is nobody's. A problem when the bundle that
/// was asked for can't serve; everything that is wrong with the file is a finding.
foundation::Or<Linted> lint(const QString &file, const LintRequest &request);

} // namespace host
