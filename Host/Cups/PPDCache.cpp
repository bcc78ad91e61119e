// PPDs of queues, kept on disk between dialogs.
#include "PPDCache.h"

#include "ServerConnection.h"

#include "Printing/ppd_api.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace host {

using foundation::Or;

namespace {

constexpr std::size_t kPathLength = 1024;

/// Names of servers and queues are not names of files: what stands for them is made of them.
QString cachePath(const QString &queue)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + "/ppd";
    const QString owner = QString("%1:%2/%3").arg(QString::fromUtf8(cupsServer())).arg(ippPort()).arg(queue);
    return folder + '/' + QCryptographicHash::hash(owner.toUtf8(), QCryptographicHash::Sha1).toHex() + ".ppd";
}

struct Fetched
{
    http_status_t status;
    std::time_t asOf; // when the server said so
    std::shared_ptr<FileToRemove> file;
};

/// Asks the server for a PPD that changed after a time.
Fetched fetchAfter(const ServerConnection &server, const QString &queue, std::time_t asOf)
{
    char path[kPathLength] = "";
    const http_status_t status = cupsGetPPD3(server.get(), queue.toUtf8().constData(), &asOf, path, sizeof(path));
    auto file = *path ? std::make_shared<FileToRemove>(QFile::decodeName(path)) : nullptr;
    return {status, asOf - 1, file}; // times are in seconds: in the one of the answer the PPD may change once more
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

FileToRemove::~FileToRemove() { QFile::remove(m_path); }

Or<std::optional<CachedPPD>> fetchPPD(const ServerConnection &server, const QString &queue)
{
    const QString path = cachePath(queue);
    const QFileInfo kept(path);
    const std::time_t before = kept.isFile() ? kept.lastModified().toSecsSinceEpoch() : 0;
    const Fetched fetched = fetchAfter(server, queue, before);
    if (fetched.status == HTTP_STATUS_NOT_MODIFIED)
        return std::optional(CachedPPD{path, before, digestOf(contentOf(path)), nullptr});
    if (fetched.status != HTTP_STATUS_OK || !fetched.file) {
        if (answerTo() == Answer::notFound)
            return std::optional<CachedPPD>();
        return server.problem();
    }
    const QByteArray content = contentOf(fetched.file->path());
    if (keep(content, path, fetched.asOf))
        return std::optional(CachedPPD{path, fetched.asOf, digestOf(content), nullptr});
    return std::optional(CachedPPD{fetched.file->path(), fetched.asOf, digestOf(content), fetched.file});
}

bool hasPPDChanged(const ServerConnection &server, const QString &queue, const CachedPPD &known)
{
    const Fetched fetched = fetchAfter(server, queue, known.asOf);
    return fetched.status == HTTP_STATUS_OK && fetched.file &&
           digestOf(contentOf(fetched.file->path())) != known.digest;
}

} // namespace host
