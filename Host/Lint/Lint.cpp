// One PPD looked over.
#include "Lint.h"

#include "CommonChecks.h"
#include "Conformance.h"
#include "PanelRun.h"

#include "PPD/PPDLimits.h"

#include "Foundation/RegularFile.h"
#include "Toolkit/Alert.h"

#include <QFileInfo>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

/// A bundle, and why there is none.
struct Chosen
{
    std::optional<PlugIn> plugIn;
    QString path;

    const PDEChecks *checks() const { return plugIn ? plugIn->entry->checks() : nullptr; }
};

std::vector<PDECheck> allChecks(const PDEChecks *ofBundle)
{
    std::vector<PDECheck> all = commonChecks();
    if (ofBundle)
        for (PDECheck &each : ofBundle->checks())
            all.push_back(std::move(each));
    return all;
}

Or<Chosen> choose(const std::optional<QString> &path)
{
    if (!path)
        return Chosen{};
    auto plugIn = PlugIn::load(*path, "en");
    if (!plugIn)
        return plugIn.problem();
    return Chosen{*std::move(plugIn), *path};
}

/// The sentence without the name of the file, which stands before it.
QString withoutPath(const Problem &problem, const QString &path)
{
    const QString &sentence = problem.sentence;
    return sentence.startsWith(path + ": ") ? sentence.mid(path.size() + 2) : sentence;
}

void findExtension(const CheckedText &text, const Chosen &chosen, Findings &findings)
{
    const PDEStatement *const named = text.index.first("APDialogExtension");
    const QString serves = chosen.path.isEmpty()
                               ? "no panels serve"
                               : QFileInfo(chosen.path).fileName() + " serves, because it is found first";
    if (!named)
        findings.add(check::kExtension, 1, "*APDialogExtension is missing: " + serves);
    else if (QFileInfo(QString::fromUtf8(named->value)).fileName() != QFileInfo(chosen.path).fileName())
        findings.add(check::kExtension, named->line,
                     QString("no bundle %1 is installed: %2").arg(quoted(named->value), serves));
}

/// What the bundle finds, and what its panels do.
Or<void> findByPanels(std::unique_ptr<PPDDocument> ppd, const Chosen &chosen, const Statements &statements,
                      const StatementIndex &index, Findings &findings)
{
    const toolkit::PresentAlerts silent([](const toolkit::Alert &) {});
    DialogSession::Parameters parameters;
    parameters.bundlePath = chosen.path;
    auto session = DialogSession::open(parameters, std::move(ppd));
    if (!session)
        return session.problem();
    DialogSession &dialog = **session;
    dialog.start(DialogSession::Prepare::everyPanel);
    const PDEChecks *const checks = chosen.checks();
    if (!checks) {
        findings.add(check::kUnchecked, 1, QFileInfo(chosen.path).fileName() + " brings no checks of its own");
        return {};
    }
    for (PDEFinding &finding : checks->findings({statements.all, dialog.ppd().file(), dialog.panels()}))
        findings.add(std::move(finding));
    runThroughPanels(dialog, checks->controls(), index, findings);
    return {};
}

/// The bundle that is asked for must serve; one that merely happens to be there need not.
Or<Chosen> bundleFor(const PPDDocument *ppd, const LintRequest &request, Findings &findings)
{
    if (!request.bundle.isEmpty())
        return choose(request.bundle);
    auto chosen = choose(findBundle(ppd ? ppd->attribute("APDialogExtension") : std::nullopt));
    if (chosen)
        return chosen;
    findings.add(check::kUnchecked, 1, chosen.problem().sentence + ": nothing is checked by panels");
    return Chosen{};
}

Or<void> findAll(std::unique_ptr<PPDDocument> ppd, const QByteArray &content, const Chosen &chosen,
                 const LintRequest &request, Findings &findings)
{
    Conformance conformance(content);
    const Statements statements = statementsOf(content);
    const StatementIndex index(statements.all);
    if (!statements.isWhole)
        findings.add(check::kUnchecked, 1, "the file has more statements than are looked at");
    const CheckedText text{*ppd, index};
    findInText(text, findings);
    if (request.bundle.isEmpty())
        findExtension(text, chosen, findings);
    if (chosen.plugIn)
        if (const auto run = findByPanels(std::move(ppd), chosen, statements, index, findings); !run)
            return run.problem();
    conformance.find(index, findings);
    return {};
}

} // namespace

Or<std::vector<PDECheck>> checksFor(const LintRequest &request)
{
    Findings unused;
    const auto ppd = PPDDocument::open(request.files.value(0));
    const auto chosen = bundleFor(ppd ? ppd->get() : nullptr, request, unused);
    return chosen ? Or<std::vector<PDECheck>>(allChecks(chosen->checks())) : chosen.problem();
}

Or<Linted> lint(const QString &path, const LintRequest &request)
{
    Findings findings;
    int line = 0;
    auto ppd = PPDDocument::open(path, &line);
    const auto chosen = bundleFor(ppd ? ppd->get() : nullptr, request, findings);
    if (!chosen)
        return chosen.problem();
    const auto file = foundation::openRegularFile(path);
    const auto content = file ? ppdContent(**file) : Or<QByteArray>(file.problem());
    if (!ppd || !content) {
        const Problem &problem = ppd ? content.problem() : ppd.problem();
        findings.add(check::kOpen, line, withoutPath(problem, path) + "; the dialog refuses the printer");
    } else if (const auto all = findAll(*std::move(ppd), *content, *chosen, request, findings); !all) {
        return all.problem();
    }
    return Linted{allChecks(chosen->checks()), std::move(findings).sorted()};
}

} // namespace host
