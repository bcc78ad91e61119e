// PPDs looked over, for the people who write them.
#include "OpenDialog.h"

#include "Lint/LintReport.h"

#include "Foundation/UserDefaults.h"

#include <QTemporaryDir>

#include <algorithm>
#include <iostream>

namespace host {

namespace {

void tell(const QString &text) { std::cout << text.toStdString() << std::flush; }

int wrongUse(const QString &sentence)
{
    complain(sentence);
    return kWrongUse;
}

int explain(const LintRequest &request)
{
    const auto checks = checksFor(request);
    if (!checks)
        return wrongUse(checks.problem().sentence);
    if (request.explain == "all" && !request.asJson) {
        tell(document(*checks));
        return kDone;
    }
    bool isKnown = request.explain == "all";
    for (const PDECheck &each : *checks) {
        if (request.explain != each.name && request.explain != "all")
            continue;
        tell(request.asJson ? explainedAsJson(each) : explained(each));
        isKnown = true;
    }
    return isKnown ? kDone : wrongUse(QString("--explain %1: no such check; all shows them").arg(request.explain));
}

} // namespace

int checkPPDs(const CommandLine &line)
{
    // The panels that are run must not meet the user's own values.
    const QTemporaryDir directory;
    const foundation::ScopedDefaults defaults(directory.filePath("defaults.ini"));
    const LintRequest &request = line.lint;
    if (!request.explain.isEmpty())
        return explain(request);
    bool hasFound = false;
    for (const QString &file : request.files) {
        const auto linted = lint(file, request);
        if (!linted)
            return wrongUse(linted.problem().sentence);
        tell(request.asJson ? asJson(file, *linted) : asLines(file, *linted));
        hasFound = hasFound || hasFailed(*linted, request.isStrict);
    }
    return hasFound ? kRefused : kDone;
}

} // namespace host
