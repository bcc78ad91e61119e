// PPDs of queues, kept on disk between dialogs.
#include "PPDCache.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace host {

namespace {

constexpr std::size_t kPathLength = 1024;

/// Names of servers and queues are not names of files: what stands for them is made of them.
QString cachePath(const QString &queue)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + "/ppd";
    const QString owner = QString("%1:%2/%3").arg(QString::fromUtf8(cupsServer())).arg(ippPort()).arg(queue);
    return folder + '/' + QCryptographicHash::hash(owner.toUtf8(), QCryptographicHash::Sha1).toHex() + ".ppd";
}

/// Asks the server for a PPD that changed after `changed`; what came is in `file`.
http_status_t ask(http_t *http, const QString &queue, std::time_t &changed, std::shared_ptr<FileToRemove> &file)
{
    char buffer[kPathLength] = "";
    const http_status_t status = cupsGetPPD3(http, queue.toUtf8().constData(), &changed, buffer, sizeof(buffer));
    if (*buffer)
        file = std::make_shared<FileToRemove>(QFile::decodeName(buffer));
    return status;
}

/// The server tells times in seconds: a PPD of this very second can change again without being told.
bool mayChangeUnnoticed(std::time_t changed) { return std::time(nullptr) - changed < 2; }

bool keep(const QString &from, const QString &path, std::time_t changed)
{
    QFile source(from);
    QSaveFile copy(path); // another dialog may be keeping the same one
    copy.setDirectWriteFallback(false);
    if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly))
        return false;
    copy.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    const QByteArray content = source.readAll();
    if (copy.write(content) != content.size() || !copy.flush() ||
        !copy.setFileTime(QDateTime::fromSecsSinceEpoch(changed), QFileDevice::FileModificationTime))
        return false;
    return copy.commit();
}

std::time_t timeOf(const QFileInfo &file) { return file.isFile() ? file.lastModified().toSecsSinceEpoch() : 0; }

} // namespace

std::optional<CachedPPD> fetchPPD(http_t *http, const QString &queue)
{
    const QString path = cachePath(queue);
    const QString folder = QFileInfo(path).path();
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    CachedPPD cached{path, timeOf(QFileInfo(path)), nullptr};
    std::shared_ptr<FileToRemove> fetched;
    const http_status_t status = ask(http, queue, cached.changed, fetched);
    if (status == HTTP_STATUS_NOT_MODIFIED)
        return cached;
    if (status != HTTP_STATUS_OK || !fetched)
        return std::nullopt;
    if (mayChangeUnnoticed(cached.changed) || !keep(fetched->path(), path, cached.changed))
        return CachedPPD{fetched->path(), cached.changed, fetched};
    return cached;
}

bool hasPPDChanged(http_t *http, const QString &queue, std::time_t since)
{
    std::time_t changed = since;
    std::shared_ptr<FileToRemove> fetched;
    return ask(http, queue, changed, fetched) == HTTP_STATUS_OK && changed != since;
}

} // namespace host
