// Finding and loading plug-in bundles.
#include "PlugIn.h"

#include "Foundation/RegularFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

#include <algorithm>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kPathVariable = "QNPRINT_PLUGIN_PATH";
constexpr auto kBundlePattern = "*.plugin";

bool isForThisHost(const QString &path)
{
    const auto bundle = foundation::Bundle::open(path, "none");
    return bundle && (*bundle)->info().abiVersion == kPDEInterfaceVersion;
}

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
    QStringList all;
    for (const QString &path : plugInDirectories()) {
        const QDir directory(path);
        const QStringList bundles = directory.entryList({kBundlePattern}, QDir::Dirs, QDir::Name);
        if (bundles.contains(name))
            return directory.filePath(name);
        for (const QString &bundle : bundles)
            all.append(directory.filePath(bundle));
    }
    if (const auto fitting = std::ranges::find_if(all, isForThisHost); fitting != all.end())
        return *fitting;
    return all.isEmpty() ? std::nullopt : std::optional(all.first()); // which then says what is wrong with it
}

Or<PlugIn> PlugIn::load(const QString &path, const QString &localization)
{
    auto bundle = foundation::Bundle::open(path, localization);
    if (!bundle)
        return bundle.problem();
    const auto &info = (*bundle)->info();
    if (info.abiVersion != kPDEInterfaceVersion)
        return Problem{tr("%1: made for interface version %2, this dialog has %3")
                           .arg(path, QString::number(info.abiVersion), QString::number(kPDEInterfaceVersion))};
    const QString code = (*bundle)->path() + '/' + info.executable;
    if (const auto file = foundation::openRegularFile(code); !file)
        return file.problem();
    QPluginLoader loader(code);
    QObject *const root = loader.instance();
    if (!root)
        return Problem{QString("%1: %2").arg(path, loader.errorString())};
    auto *const entry = qobject_cast<PDEPlugInEntry *>(root);
    if (!entry)
        return Problem{tr("%1: %2 is not the code of a panel plug-in").arg(path, info.executable)};
    return PlugIn{*std::move(bundle), entry};
}

} // namespace host
