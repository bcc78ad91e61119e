// One PPD looked over.
#include "Lint.h"

#include "CommonChecks.h"
#include "Conformance.h"
#include "PanelRun.h"
#include "ServingBundle.h"

#include "PPD/PPDLimits.h"

#include "Foundation/RegularFile.h"
#include "Toolkit/Alert.h"

#include <QFileInfo>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kByteOrderMark = "\xef\xbb\xbf";

std::vector<PDECheck> allChecks(const PDEChecks *ofBundle)
{
    std::vector<PDECheck> all = commonChecks();
    if (ofBundle)
        for (PDECheck &each : ofBundle->checks())
            all.push_back(std::move(each));
    return all;
}

/// The sentence without the name of the file, which stands before it.
QString withoutPath(const Problem &problem, const QString &path)
{
    const QString &sentence = problem.sentence;
    return sentence.startsWith(path + ": ") ? sentence.mid(path.size() + 2) : sentence;
}

/// Why a bundle serves a PPD that does not name it.
QString serves(const ServingBundle &bundle)
{
    if (bundle.isMeant)
        return bundle.name() + " serves, as its panels take care of an option, until a bundle before it does as well";
    return bundle.isGeneral ? bundle.name() + " serves, as for whatever printer" : QString("no panels serve");
}

/// A printer without a bundle of its own lacks nothing: what people get is all there is to tell.
void tellOfNoBundle(const ServingBundle &bundle, Findings &findings)
{
    constexpr qsizetype kMostNames = 5;
    QStringList names;
    if (bundle.isGeneral)
        for (const auto &panel : bundle.session->panels())
            names.append(quoted(panel->panelName().toUtf8()));
    const qsizetype more = names.size() - kMostNames;
    const QString shown = names.first(qMin(names.size(), kMostNames)).join(", ") +
                          (more > 0 ? QString(" and %1 more").arg(more) : QString());
    findings.add(check::kNoBundle, 1,
                 names.isEmpty()
                     ? "no bundle takes care of an option of this PPD: the dialog shows none of them"
                     : "no bundle is made for this PPD, and none has to be: the dialog shows its options as " + shown);
}

void findExtension(const StatementIndex &index, const ServingBundle &bundle, Findings &findings)
{
    const PDEStatement *const named = index.first("APDialogExtension");
    if (named && QFileInfo(QString::fromUtf8(named->value)).fileName() != bundle.name())
        findings.add(check::kExtension, named->line,
                     QString("no bundle %1 that can serve is installed: %2").arg(quoted(named->value), serves(bundle)));
    else if (!named && bundle.isMeant)
        findings.add(check::kExtension, 1, "*APDialogExtension is missing: " + serves(bundle));
    else if (!named)
        tellOfNoBundle(bundle, findings);
}

/// What the bundle finds, and what its panels do.
void findByPanels(const ServingBundle &bundle, const Statements &statements, const StatementIndex &index,
                  Findings &findings)
{
    if (!bundle.isMeant)
        return;
    const PDEChecks *const checks = bundle.checks();
    if (!checks)
        return findings.add(check::kUnchecked, 1,
                            bundle.name() + " brings no checks of its own: those common to all PPDs are made");
    DialogSession &dialog = *bundle.session;
    dialog.prepareAll();
    for (PDEFinding &finding : checks->findings({statements.all, dialog.ppd().file(), dialog.panels()}))
        findings.add(std::move(finding));
    runThroughPanels(dialog, checks->controls(), index, findings);
}

Or<ServingBundle> bundleFor(const QString &path, std::unique_ptr<PPDDocument> ppd, const LintRequest &request,
                            Findings &findings)
{
    return request.bundle.isEmpty() ? servingFor(path, std::move(ppd), findings)
                                    : askedFor(request.bundle, std::move(ppd));
}

/// What there is to look for then.
Or<std::vector<PDECheck>> findAll(const QString &path, std::unique_ptr<PPDDocument> ppd, const QByteArray &content,
                                  const LintRequest &request, Findings &findings)
{
    Conformance conformance(content);
    const Statements statements = statementsOf(content);
    const StatementIndex index(statements.all);
    if (!statements.isWhole)
        findings.add(check::kUnchecked, 1, "the file has more statements than are looked at");
    findInText({*ppd, index}, findings);
    const toolkit::PresentAlerts silent([](const toolkit::Alert &) {});
    const auto bundle = bundleFor(path, std::move(ppd), request, findings);
    if (!bundle)
        return bundle.problem();
    if (request.bundle.isEmpty())
        findExtension(index, *bundle, findings);
    findByPanels(*bundle, statements, index, findings);
    conformance.find(index, findings);
    return allChecks(bundle->checks());
}

/// Of a bundle that no PPD is looked over with.
Or<std::vector<PDECheck>> checksOf(const std::optional<QString> &bundlePath)
{
    if (!bundlePath)
        return allChecks(nullptr);
    const auto plugIn = PlugIn::load(*bundlePath, "en");
    return plugIn ? Or<std::vector<PDECheck>>(allChecks(plugIn->entry->checks())) : plugIn.problem();
}

} // namespace

Or<std::vector<PDECheck>> checksFor(const LintRequest &request)
{
    if (!request.bundle.isEmpty())
        return checksOf(request.bundle);
    auto ppd = PPDDocument::open(request.files.value(0));
    if (!ppd)
        return checksOf(findBundle(std::nullopt));
    Findings unused;
    const auto bundle = servingFor(request.files[0], *std::move(ppd), unused);
    return bundle ? Or<std::vector<PDECheck>>(allChecks(bundle->checks())) : bundle.problem();
}

Or<Linted> lint(const QString &path, const LintRequest &request)
{
    auto checks = request.bundle.isEmpty() ? allChecks(nullptr) : checksOf(request.bundle);
    if (!checks)
        return checks.problem(); // the one that is asked for must serve, whatever the file is
    Findings findings;
    int line = 0;
    auto ppd = PPDDocument::open(path, &line);
    const auto file = foundation::openRegularFile(path);
    const auto content = file ? ppdContent(**file) : Or<QByteArray>(file.problem());
    if (!ppd || !content) {
        const Problem &problem = ppd ? content.problem() : ppd.problem();
        const bool hasMark = content && content->startsWith(kByteOrderMark);
        findings.add(
            check::kOpen, line,
            (hasMark ? "the file begins with a byte order mark, which no PPD has" : withoutPath(problem, path)) +
                "; the dialog refuses the printer");
    } else if (checks = findAll(path, *std::move(ppd), *content, request, findings); !checks) {
        return checks.problem();
    }
    return Linted{*std::move(checks), std::move(findings).sorted()};
}

} // namespace host
