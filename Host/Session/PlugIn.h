// Finding and loading the plug-in bundle of a printer.
#pragma once

#include "PDEPlugInInterface.h"

#include "Foundation/Bundle.h"

#include <QCoreApplication>
#include <QStringList>

namespace host {

/// A loaded bundle.
struct PlugIn
{
    Q_DECLARE_TR_FUNCTIONS(host::PlugIn)

public:
    /// A problem when the bundle can't serve this host. `localization`: the language of its texts.
    static foundation::Or<PlugIn> load(const QString &path, const QString &localization);

    std::unique_ptr<foundation::Bundle> bundle;
    PDEPlugInEntry *entry; // stays loaded until the process ends

private:
    static foundation::Problem misfit(const QString &path, const foundation::Bundle::Info &info);
    static foundation::Or<PDEPlugInEntry *> loadCode(const foundation::Bundle &bundle);
};

/// What the code of a bundle must have in common with this program: standard library, its binary interface, Qt's major
/// version. qn_add_bundle writes the same into an Info.json.
QString buildTag();

/// Directories that hold plug-in bundles, the user's choice first.
QStringList plugInDirectories();

/// The bundle that `dialogExtension`, a PPD's APDialogExtension, names, when one of the directories has it under that
/// name; else the first bundle of the directories; nil when there is none. Only the name counts, never the path: a PPD
/// must not be able to have code loaded from elsewhere.
std::optional<QString> findBundle(const std::optional<QString> &dialogExtension);

} // namespace host
