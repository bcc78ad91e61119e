// The first file of preferences that is found is the only one that the front end reads. So a user's own file has to
// repeat what the desktop's says.
#include "Backends.h"

#include "KeyFile.h"

#include "Foundation/RegularFile.h"

#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <vector>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kPrint = "org.freedesktop.impl.portal.Print";
constexpr auto kOurName = "qnprint";
constexpr auto kPreferred = "preferred";
constexpr auto kDefault = "default";
constexpr auto kPortal = "portal";
constexpr auto kMark = "# Made by “qnprint portal --enable” from what the desktop prefers.\n";
constexpr auto kRestart = "systemctl --user restart xdg-desktop-portal";

std::optional<KeyFile> read(const QString &path)
{
    auto file = foundation::openRegularFile(path);
    if (!file)
        return std::nullopt;
    constexpr qint64 kLongest = 1 << 20;
    return KeyFile((*file)->read(kLongest));
}

QStringList split(const QString &list) { return list.split(';', Qt::SkipEmptyParts); }

QString userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/xdg-desktop-portal/";
}

QStringList desktops() { return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':', Qt::SkipEmptyParts); }

/// Where the front end looks, in order.
QStringList folders()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    folders << "/etc";
    folders << QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (QString &folder : folders)
        folder += "/xdg-desktop-portal/";
    folders.removeDuplicates();
    return folders;
}

enum class Whose { anybodys, others };

/// Empty when there is none.
QString preferencesPath(Whose whose = Whose::anybodys)
{
    for (const QString &folder : folders()) {
        if (whose == Whose::others && folder == userFolder())
            continue;
        for (const QString &desktop : desktops())
            if (const QString path = folder + desktop.toLower() + "-portals.conf"; QFile::exists(path))
                return path;
        if (const QString path = folder + "portals.conf"; QFile::exists(path))
            return path;
    }
    return {};
}

struct Backend
{
    QString name; // of its file
    QString service;
    QStringList desktops;
};

std::vector<Backend> printBackends()
{
    QStringList folders{qEnvironmentVariable("XDG_DESKTOP_PORTAL_DIR")};
    if (folders.first().isEmpty()) {
        folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
        for (QString &folder : folders)
            folder += "/xdg-desktop-portal/portals";
    }
    std::vector<Backend> backends;
    for (const QString &folder : folders) {
        for (const QFileInfo &info : QDir(folder).entryInfoList({"*.portal"}, QDir::Files, QDir::Name)) {
            const auto file = read(info.filePath());
            const QString name = info.completeBaseName();
            const bool isKnown = std::ranges::find(backends, name, &Backend::name) != backends.end();
            if (file && !isKnown && split(file->value(kPortal, "Interfaces").value_or(QString())).contains(kPrint))
                backends.push_back({name, file->value(kPortal, "DBusName").value_or(QString()),
                                    split(file->value(kPortal, "UseIn").value_or(QString()))});
        }
    }
    return backends;
}

/// By name, what serves this desktop by its own word, and what serves everywhere.
QStringList servingByThemselves(const std::vector<Backend> &backends)
{
    QStringList names;
    for (const Backend &backend : backends)
        if (std::ranges::any_of(backend.desktops, [](const QString &desktop) {
                return desktops().contains(desktop, Qt::CaseInsensitive);
            }))
            names.append(backend.name);
    names.append("gtk");
    names.removeDuplicates();
    return names;
}

bool isOurs(const Backend &backend) { return backend.name.contains(kOurName); }

/// What shows print dialogs by a file of preferences, in order.
QStringList preferred(const KeyFile &file)
{
    return split(file.value(kPreferred, kPrint).value_or(file.value(kPreferred, kDefault).value_or(QString())));
}

/// What a file of the user's own begins with.
KeyFile preferences(Whose whose)
{
    if (const auto file = read(preferencesPath(whose)))
        return *file;
    KeyFile file{QByteArray()};
    file.setValue(kPreferred, kDefault, servingByThemselves(printBackends()).join(';'));
    return file;
}

Or<void> write(const QString &path, const QByteArray &text)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return {};
    return Problem{QString("%1: %2").arg(path, foundation::fileErrorText(file))};
}

bool isUsers(const QString &path) { return path.startsWith(userFolder()); }

} // namespace

std::optional<QString> otherPrintBackend()
{
    const auto backends = printBackends();
    const auto file = read(preferencesPath());
    QStringList names = file ? preferred(*file) : QStringList();
    if (file) // whoever prefers only ours has the desktop's own behind it
        names += split(file->value(kPreferred, kDefault).value_or(QString()));
    names += servingByThemselves(backends);
    for (const QString &name : names)
        for (const Backend &backend : backends)
            if (backend.name == name && !isOurs(backend) && !backend.service.isEmpty())
                return backend.service;
    return std::nullopt;
}

namespace {

/// A line that is missing where all is well.
QString whyNotFound()
{
    return std::ranges::any_of(printBackends(), isOurs)
               ? QString()
               : QString("\nThe portal does not find qnprint: qnprint.portal is not installed.");
}

} // namespace

Or<QString> enablePortal()
{
    const QString found = preferencesPath();
    const QString path = isUsers(found) ? found : userFolder() + "portals.conf";
    KeyFile file = preferences(Whose::anybodys);
    QStringList names = preferred(file);
    if (names.value(0) == kOurName)
        return QString("Applications print with qnprint already, by %1.").arg(found) + whyNotFound();
    names.removeAll(kOurName);
    names.prepend(kOurName);
    file.setValue(kPreferred, kPrint, names.join(';'));
    if (auto written = write(path, isUsers(found) ? file.text() : kMark + file.text()); !written)
        return written.problem();
    return QString("Written into %1:\n    %2=%3\nIt counts when the portal, 1.18 or later, is started again:\n    %4")
               .arg(path, QString(kPrint), names.join(';'), QString(kRestart)) +
           whyNotFound();
}

Or<QString> disablePortal()
{
    const QString path = preferencesPath();
    auto file = read(path);
    QStringList names = file ? preferred(*file) : QStringList();
    if (!names.contains(kOurName))
        return QString("Applications don't print with qnprint.");
    if (!isUsers(path))
        return Problem{QString("%1: written by the administrator; qnprint does not change it").arg(path)};
    names.removeAll(kOurName);
    const bool isDefault = names == split(file->value(kPreferred, kDefault).value_or(QString()));
    if (names.isEmpty() || isDefault)
        file->remove(kPreferred, kPrint);
    else
        file->setValue(kPreferred, kPrint, names.join(';'));
    const QByteArray own = kMark;
    const bool isAsMade = file->text() == own + preferences(Whose::others).text(); // nobody has changed it since
    if (isAsMade && QFile::remove(path)) {
        QDir().rmdir(userFolder()); // stays where there is more in it
        return QString("Removed: %1\nIt counts when the portal is started again:\n    %2").arg(path, QString(kRestart));
    }
    if (auto written = write(path, file->text()); !written)
        return written.problem();
    return QString("Taken out of %1: %2\nIt counts when the portal is started again:\n    %3")
        .arg(path, QString(kOurName), QString(kRestart));
}

QString portalStatus()
{
    const QString path = preferencesPath();
    const auto file = read(path);
    const bool isFirst = file && preferred(*file).value(0) == kOurName;
    const QString missing = whyNotFound();
    const QString byUs = missing.isEmpty() ? "Applications print with qnprint, by %1." : "%1 prefers qnprint.";
    QStringList lines{isFirst
                          ? byUs.arg(path)
                          : QString("Applications don't print with qnprint (“qnprint portal --enable” changes that).")};
    if (!missing.isEmpty())
        lines.append(missing.trimmed());
    const auto other = otherPrintBackend();
    lines.append(other ? QString("Other printers have the dialog of %1.").arg(*other)
                       : QString("There is no other print dialog for other printers."));
    return lines.join('\n');
}

} // namespace host
