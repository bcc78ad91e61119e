// The bundle that a PPD is looked over with: the one that serves it in the dialog.
#pragma once

#include "Findings.h"

#include "Session/DialogSession.h"

namespace host {

struct ServingBundle
{
    QString path = {};                           // empty: none that is installed can serve
    PDEPlugInEntry *entry = nullptr;             // null: none; stays loaded until the process ends
    std::unique_ptr<DialogSession> session = {}; // started, no panel shown yet; null without a bundle
    bool isGeneral = false;                      // for whatever printer
    bool isMeant = false;                        // named, asked for, or it takes care of an option of the PPD

    QString name() const;
    /// Null when it brings none, and for a printer that it is not meant for.
    const PDEChecks *checks() const { return entry && isMeant ? entry->checks() : nullptr; }
};

/// The one that is asked for, with its panels on the PPD; a problem when it can't serve.
foundation::Or<ServingBundle> askedFor(const QString &bundlePath, std::unique_ptr<PPDDocument> ppd);

/// As the dialog chooses. Bundles that can't serve are told of. `ppd` is the open PPD at `ppdPath`.
foundation::Or<ServingBundle> servingFor(const QString &ppdPath, std::unique_ptr<PPDDocument> ppd, Findings &findings);

} // namespace host
