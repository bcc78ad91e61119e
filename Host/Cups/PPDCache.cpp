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

/// Asks the server for a PPD that changed after `asOf`; what came is in `file`.
http_status_t ask(http_t *http, const QString &queue, std::time_t &asOf, std::shared_ptr<FileToRemove> &file)
{
    char buffer[kPathLength] = "";
    const http_status_t status = cupsGetPPD3(http, queue.toUtf8().constData(), &asOf, buffer, sizeof(buffer));
    if (*buffer)
        file = std::make_shared<FileToRemove>(QFile::decodeName(buffer));
    --asOf; // times are in seconds: in the one of the answer the PPD may have changed once more
    return status;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray digestOf(const QByteArray &content) { return QCryptographicHash::hash(content, QCryptographicHash::Sha1); }

bool keep(const QByteArray &content, const QString &path, std::time_t asOf)
{
    const QString folder = QFileInfo(path).path();
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QSaveFile copy(path); // another dialog may be keeping the same one
    if (!copy.open(QIODevice::WriteOnly))
        return false;
    copy.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    return copy.write(content) == content.size() && copy.flush() &&
           copy.setFileTime(QDateTime::fromSecsSinceEpoch(asOf), QFileDevice::FileModificationTime) && copy.commit();
}

} // namespace

std::optional<CachedPPD> fetchPPD(http_t *http, const QString &queue)
{
    const QString path = cachePath(queue);
    const QFileInfo kept(path);
    std::time_t asOf = kept.isFile() ? kept.lastModified().toSecsSinceEpoch() : 0;
    const std::time_t before = asOf;
    std::shared_ptr<FileToRemove> fetched;
    const http_status_t status = ask(http, queue, asOf, fetched);
    if (status == HTTP_STATUS_NOT_MODIFIED)
        return CachedPPD{path, before, digestOf(contentOf(path)), nullptr};
    if (status != HTTP_STATUS_OK || !fetched)
        return std::nullopt;
    const QByteArray content = contentOf(fetched->path());
    if (keep(content, path, asOf))
        return CachedPPD{path, asOf, digestOf(content), nullptr};
    return CachedPPD{fetched->path(), asOf, digestOf(content), fetched};
}

bool hasPPDChanged(http_t *http, const QString &queue, const CachedPPD &known)
{
    std::time_t asOf = known.asOf;
    std::shared_ptr<FileToRemove> fetched;
    return ask(http, queue, asOf, fetched) == HTTP_STATUS_OK && fetched &&
           digestOf(contentOf(fetched->path())) != known.digest;
}

} // namespace host
