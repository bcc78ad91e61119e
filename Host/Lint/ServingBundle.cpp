// The bundle that a PPD is looked over with.
#include "ServingBundle.h"

#include "CommonChecks.h"

#include <QFileInfo>

#include <algorithm>

namespace host {

using foundation::Or;

namespace {

bool takesCareOfAnOption(const DialogSession &session)
{
    return std::ranges::any_of(session.panels(), [&](const auto &panel) {
        const QStringList keywords = panel->supportedPPDOptionKeys().value_or(QStringList());
        return std::ranges::any_of(keywords, [&](const QString &each) { return session.ppd().hasOption(each); });
    });
}

Or<ServingBundle> started(const PlugIn &plugIn, std::unique_ptr<PPDDocument> ppd)
{
    DialogSession::Parameters parameters;
    parameters.bundlePath = plugIn.bundle->path();
    auto session = DialogSession::open(parameters, std::move(ppd));
    if (!session)
        return session.problem();
    (*session)->start(DialogSession::Prepare::nothing);
    return ServingBundle{.path = *parameters.bundlePath, .entry = plugIn.entry, .session = *std::move(session)};
}

} // namespace

QString ServingBundle::name() const { return QFileInfo(path).fileName(); }

Or<ServingBundle> askedFor(const QString &bundlePath, std::unique_ptr<PPDDocument> ppd)
{
    const auto plugIn = PlugIn::load(bundlePath, "en");
    if (!plugIn)
        return plugIn.problem();
    auto bundle = started(*plugIn, std::move(ppd));
    if (bundle)
        bundle->isMeant = true;
    return bundle;
}

Or<ServingBundle> servingFor(const QString &ppdPath, std::unique_ptr<PPDDocument> ppd, Findings &findings)
{
    auto choice = BundleChoice::forPPD(ppd->attribute("APDialogExtension"));
    ServingBundle bundle;
    while (const auto plugIn = bundle.isMeant || bundle.isGeneral ? std::nullopt : choice.next("en")) {
        bundle = {}; // only one session may be started at a time
        auto again = ppd ? std::move(ppd) : PPDDocument::open(ppdPath);
        if (!again)
            return again.problem();
        auto next = started(*plugIn, *std::move(again));
        if (!next)
            return next.problem();
        bundle = *std::move(next);
        bundle.isGeneral = choice.isGeneral();
        bundle.isMeant = !bundle.isGeneral && (choice.isSettled() || takesCareOfAnOption(*bundle.session));
    }
    for (const QString &sentence : choice.problems())
        findings.add(check::kUnchecked, 1, sentence + ": its panels and its checks are passed over");
    return bundle;
}

} // namespace host
