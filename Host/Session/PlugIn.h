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

/// The bundles that may serve a printer, tried one after the other.
class BundleChoice
{
public:
    /// This one and no other.
    static BundleChoice only(const QString &path);
    /// Those for whatever printer.
    static BundleChoice general();
    /// The one that a PPD names, by its name alone, then the others, and last those for whatever printer: they stand in
    /// folders of their own, which nobody looks into before.
    static BundleChoice forPPD(const std::optional<QString> &dialogExtension);

    /// Loads the next one that can be; nil when none is left. `localization`: the language of its texts.
    std::optional<PlugIn> next(const QString &localization);
    /// Whether the one that `next` has answered serves whatever its panels claim.
    bool isSettled() const { return m_isSettled; }
    /// Whether it is one for whatever printer.
    bool isGeneral() const { return m_isGeneral; }
    /// Why those that were passed over could not be loaded, one sentence each.
    const QStringList &problems() const { return m_problems; }

private:
    enum class Further { none, others, general };

    bool lookFurther();

    QString m_named; // serves whatever it claims; empty: none
    QStringList m_waiting;
    Further m_further = Further::none; // where to look when none is waiting any more
    bool m_isGeneral = false;          // those waiting
    bool m_isSettled = false;
    QStringList m_problems;
};

} // namespace host
