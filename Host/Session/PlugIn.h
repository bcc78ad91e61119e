// Finding and loading the plug-in bundle of a printer.
#pragma once

#include "PDEPlugInInterface.h"

#include <QStringList>

namespace host {

struct PlugIn
{
    std::unique_ptr<foundation::Bundle> bundle;
    PDEPlugInEntry *entry = nullptr; // stays loaded until the process ends
};

/// Directories that hold plug-in bundles, the user's choice first.
QStringList plugInDirectories();

/// The bundle that `dialogExtension`, a PPD's APDialogExtension, names, when one of the directories has it under that
/// name; else the first bundle of the directories; nil when there is none. Only the name counts, never the path: a PPD
/// must not be able to have code loaded from elsewhere.
std::optional<QString> findBundle(const std::optional<QString> &dialogExtension);

/// Null, with one sentence that names the bundle, when it can't serve this host.
std::optional<PlugIn> loadBundle(const QString &path, const QString &localization, QString *error);

} // namespace host
