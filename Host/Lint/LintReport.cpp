// What was found, and what is looked for, in words.
#include "LintReport.h"

#include "CommonChecks.h"

#include "Foundation/PlainText.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace host {

namespace {

const char *nameOf(PDESeverity severity)
{
    switch (severity) {
    case PDESeverity::note: return "note";
    case PDESeverity::warning: return "warning";
    case PDESeverity::error: return "error";
    }
    return "";
}

/// Of a check that nobody has named it is an error: that is what the bundle's maker should see.
PDESeverity severityOf(const PDEFinding &finding, const Linted &linted)
{
    const auto check = std::ranges::find(linted.checks, finding.check, &PDECheck::name);
    return check == linted.checks.end() ? PDESeverity::error : check->severity;
}

QString jsonLine(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + '\n';
}

/// An example, each line behind `before`; what is left out is said so.
QString example(const QString &lines, const QString &before)
{
    if (lines.isEmpty())
        return before + "(the line is missing)\n";
    QString text;
    for (const QString &line : lines.trimmed().split('\n'))
        text += before + line + '\n';
    return text;
}

bool hasExamples(const PDECheck &check) { return !check.good.isEmpty() || !check.bad.isEmpty(); }

constexpr auto kDocumentHead = R"md(# What `qnprint lint` looks for

    qnprint lint [--json] [--strict] [--bundle folder] [--explain check] ppd...

A finding is a line: `file:line: severity: what is wrong and what it leads to [check]`; with `--json` an object with the members `file`, `line`, `severity`, `check`, `message` and `option`. The exit status is 1 when there are errors, with `--strict` also when there are warnings, and 2 for wrong use. What is missing is found where it would belong: at the option, or in line 1.

The first checks are common to all PPDs; those from `%1` on are a bundle's: of the one that serves the PPD in the dialog, or of the one of `--bundle`. A printer that no bundle is made for gets the common ones only. `qnprint lint --explain` shows one of them; this page is what `--explain all` shows.
)md";

} // namespace

QString asLines(const QString &file, const Linted &linted)
{
    QString lines;
    for (const PDEFinding &each : linted.findings)
        lines += QString("%1:%2: %3: %4 [%5]\n")
                     .arg(foundation::withoutControls(file), QString::number(each.line),
                          nameOf(severityOf(each, linted)), foundation::withoutControls(each.message), each.check);
    return lines;
}

QString asJson(const QString &file, const Linted &linted)
{
    QString lines;
    for (const PDEFinding &each : linted.findings)
        lines += jsonLine({{"file", file},
                           {"line", each.line},
                           {"severity", nameOf(severityOf(each, linted))},
                           {"check", each.check},
                           {"message", each.message},
                           {"option", each.option.isEmpty() ? QJsonValue() : QJsonValue(each.option)}});
    return lines;
}

bool hasFailed(const Linted &linted, bool isStrict)
{
    const PDESeverity least = isStrict ? PDESeverity::warning : PDESeverity::error;
    return std::ranges::any_of(linted.findings,
                               [&](const PDEFinding &each) { return severityOf(each, linted) >= least; });
}

QString explained(const PDECheck &check)
{
    QString text = QString("%1 (%2)\n\nLooks for: %3\nOtherwise: %4\n")
                       .arg(check.name, nameOf(check.severity), check.looksFor, check.why);
    if (hasExamples(check))
        text += "\nGood:\n" + example(check.good, "    ") + "Bad:\n" + example(check.bad, "    ");
    return text;
}

QString explainedAsJson(const PDECheck &check)
{
    return jsonLine({{"check", check.name},
                     {"severity", nameOf(check.severity)},
                     {"looksFor", check.looksFor},
                     {"why", check.why},
                     {"good", check.good},
                     {"bad", check.bad}});
}

QString document(const std::vector<PDECheck> &checks)
{
    const std::size_t common = commonChecks().size();
    QString text = QString(kDocumentHead).arg(common < checks.size() ? checks[common].name : QString());
    for (const PDECheck &check : checks) {
        text += QString("\n## `%1`\n\n- severity: %2\n- looks for: %3\n- otherwise: %4\n")
                    .arg(check.name, nameOf(check.severity), check.looksFor, check.why);
        if (hasExamples(check))
            text += "\nGood:\n\n" + example(check.good, "    ") + "\nBad:\n\n" + example(check.bad, "    ");
    }
    return text;
}

} // namespace host
