// Finding and loading plug-in bundles.
#include "PlugIn.h"

#include "Foundation/RegularFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

#include <algorithm>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kPathVariable = "QNPRINT_PLUGIN_PATH";
constexpr auto kBundlePattern = "*.plugin";
constexpr auto kGeneralFolder = "/general"; // within a plug-in directory

QStringList bundlesIn(const QString &folder)
{
    QStringList paths;
    const QDir directory(folder);
    for (const QString &name : directory.entryList({kBundlePattern}, QDir::Dirs, QDir::Name))
        paths.append(directory.filePath(name));
    return paths;
}

/// Nil when no directory has it. The directories behind the one that has are not looked into.
std::optional<QString> namedBundle(const std::optional<QString> &dialogExtension)
{
    const QString name = QFileInfo(dialogExtension.value_or(QString())).fileName();
    for (const QString &directory : plugInDirectories())
        for (const QString &path : bundlesIn(directory))
            if (QFileInfo(path).fileName() == name)
                return path;
    return std::nullopt;
}

QStringList bundlesWithin(const QString &folder)
{
    QStringList paths;
    for (const QString &directory : plugInDirectories())
        paths += bundlesIn(directory + folder);
    return paths;
}

bool isForThisHost(const foundation::Bundle::Info &info)
{
    return info.abiVersion == kPDEInterfaceVersion && info.build == buildTag();
}

bool isBundleForThisHost(const QString &path)
{
    const auto bundle = foundation::Bundle::open(path, "none");
    return bundle && isForThisHost((*bundle)->info());
}

} // namespace

QString buildTag() { return QN_BUILD_TAG; }

QStringList plugInDirectories()
{
    const QString application = QCoreApplication::applicationDirPath();
    QStringList directories = qEnvironmentVariable(kPathVariable).split(':', Qt::SkipEmptyParts);
    directories << application + "/../plugins" << application + "/" QN_PLUGIN_DIR;
    return directories;
}

std::optional<QString> findBundle(const std::optional<QString> &dialogExtension)
{
    if (auto named = namedBundle(dialogExtension))
        return named;
    const QStringList all = bundlesWithin({});
    if (const auto fitting = std::ranges::find_if(all, isBundleForThisHost); fitting != all.end())
        return *fitting;
    return all.isEmpty() ? std::nullopt : std::optional(all.first()); // which then says what is wrong with it
}

Problem PlugIn::misfit(const QString &path, const foundation::Bundle::Info &info)
{
    if (info.abiVersion != kPDEInterfaceVersion)
        return {tr("%1: made for interface version %2, this dialog has %3")
                    .arg(path, QString::number(info.abiVersion), QString::number(kPDEInterfaceVersion))};
    return {tr("%1: built for “%2”, this dialog is “%3”").arg(path, info.build, buildTag())};
}

Or<PDEPlugInEntry *> PlugIn::loadCode(const foundation::Bundle &bundle)
{
    const QString code = bundle.path() + '/' + bundle.info().executable;
    if (const auto file = foundation::openRegularFile(code); !file)
        return file.problem();
    const Problem notOurs{tr("%1: %2 is not the code of a panel plug-in").arg(bundle.path(), bundle.info().executable)};
    QPluginLoader loader(code);
    const QJsonObject described = loader.metaData(); // read from the file: nothing of it has run yet
    if (!described.isEmpty() && described["IID"].toString() != PDEPlugInEntry_iid)
        return notOurs;
    QObject *const root = loader.instance();
    if (!root)
        return Problem{QString("%1: %2").arg(bundle.path(), loader.errorString())};
    if (auto *const entry = qobject_cast<PDEPlugInEntry *>(root))
        return entry;
    return notOurs;
}

BundleChoice BundleChoice::only(const QString &path)
{
    BundleChoice choice;
    choice.m_named = path;
    choice.m_waiting.append(path);
    return choice;
}

BundleChoice BundleChoice::general()
{
    BundleChoice choice;
    choice.m_further = Further::general;
    return choice;
}

BundleChoice BundleChoice::forPPD(const std::optional<QString> &dialogExtension)
{
    const auto named = namedBundle(dialogExtension);
    BundleChoice choice = named ? only(*named) : BundleChoice();
    choice.m_further = Further::others;
    return choice;
}

bool BundleChoice::lookFurther()
{
    if (m_further == Further::none)
        return false;
    m_isGeneral = m_further == Further::general;
    m_further = m_isGeneral ? Further::none : Further::general;
    m_waiting = bundlesWithin(m_isGeneral ? kGeneralFolder : QString());
    m_waiting.removeAll(m_named);
    return true;
}

std::optional<PlugIn> BundleChoice::next(const QString &localization)
{
    while (!m_waiting.isEmpty() || lookFurther()) {
        if (m_waiting.isEmpty())
            continue;
        const QString path = m_waiting.takeFirst();
        auto plugIn = PlugIn::load(path, localization);
        if (plugIn) {
            m_isSettled = m_isGeneral || path == m_named;
            return *std::move(plugIn);
        }
        m_problems.append(plugIn.problem().sentence);
    }
    return std::nullopt;
}

Or<PlugIn> PlugIn::load(const QString &path, const QString &localization)
{
    auto bundle = foundation::Bundle::open(path, localization);
    if (!bundle)
        return bundle.problem();
    if (!isForThisHost((*bundle)->info()))
        return misfit(path, (*bundle)->info());
    auto entry = loadCode(**bundle);
    if (!entry)
        return entry.problem();
    return PlugIn{*std::move(bundle), *entry};
}

} // namespace host
