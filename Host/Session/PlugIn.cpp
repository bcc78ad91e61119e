// Finding and loading plug-in bundles.
#include "PlugIn.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kPathVariable = "QNPRINT_PLUGIN_PATH";
constexpr auto kBundlePattern = "*.plugin";

} // namespace

QStringList plugInDirectories()
{
    const QString application = QCoreApplication::applicationDirPath();
    QStringList directories = qEnvironmentVariable(kPathVariable).split(':', Qt::SkipEmptyParts);
    directories << application + "/../plugins" << application + "/" QN_PLUGIN_DIR;
    return directories;
}

std::optional<QString> findBundle(const std::optional<QString> &dialogExtension)
{
    const QString name = QFileInfo(dialogExtension.value_or(QString())).fileName();
    std::optional<QString> first;
    for (const QString &path : plugInDirectories()) {
        const QDir directory(path);
        const QStringList bundles = directory.entryList({kBundlePattern}, QDir::Dirs, QDir::Name);
        if (bundles.contains(name))
            return directory.filePath(name);
        if (!first && !bundles.isEmpty())
            first = directory.filePath(bundles.first());
    }
    return first;
}

Or<PlugIn> PlugIn::load(const QString &path, const QString &localization)
{
    auto bundle = foundation::Bundle::open(path, localization);
    if (!bundle)
        return bundle.problem();
    const auto &info = (*bundle)->info();
    if (info.abiVersion != kPDEInterfaceVersion)
        return Problem{tr("%1: made for interface version %2, this dialog has %3")
                           .arg(path)
                           .arg(info.abiVersion)
                           .arg(kPDEInterfaceVersion)};
    QPluginLoader loader((*bundle)->path() + '/' + info.executable);
    QObject *const root = loader.instance();
    if (!root)
        return Problem{QString("%1: %2").arg(path, loader.errorString())};
    auto *const entry = qobject_cast<PDEPlugInEntry *>(root);
    if (!entry)
        return Problem{tr("%1: %2 is not the code of a panel plug-in").arg(path, info.executable)};
    return PlugIn{*std::move(bundle), entry};
}

} // namespace host
