// PPDs of queues, kept on disk between dialogs. A kept file ends with a seal, its own digest, so that one that was
// damaged or cut is noticed and fetched again.
#include "PPDCache.h"

#include "ServerConnection.h"

#include "Foundation/RegularFile.h"
#include "PPD/PPDDocument.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QUrl>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr auto kSeal = "\n*% kept whole: "; // a comment of the PPD

QByteArray digestOf(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex();
}

/// Names of servers and queues are not names of files: what stands for them is made of them.
QString cachePath(const QString &queue)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + "/ppd";
    const QByteArray owner = QByteArray(cupsServer()) + ':' + QByteArray::number(ippPort()) + '/' + queue.toUtf8();
    return folder + '/' + digestOf(owner) + ".ppd";
}

QByteArray sealed(const QByteArray &content) { return content + kSeal + digestOf(content) + '\n'; }

/// The content as the server gave it; nil when the file is not what was once kept.
std::optional<QByteArray> unsealed(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray content = file.readAll();
    const qsizetype seal = content.lastIndexOf(kSeal);
    if (seal < 0 || sealed(content.left(seal)) != content)
        return std::nullopt;
    content.truncate(seal);
    return content;
}

/// Readable by its owner only, both while it is made and later.
Or<std::unique_ptr<QTemporaryFile>> temporaryFile(const QByteArray &content)
{
    auto file = std::make_unique<QTemporaryFile>();
    if (!file->open() || file->write(content) != content.size() || !file->flush())
        return Problem{foundation::fileErrorText(*file)};
    return file;
}

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

/// Of a class as well: the server gives the PPD of one of its printers.
QByteArray resourceOf(const QString &queue)
{
    return "/printers/" + QByteArray(QUrl::toPercentEncoding(queue)) + ".ppd";
}

Or<std::optional<CachedPPD>> taken(const Download &file, const QString &path)
{
    const auto whole = temporaryFile(sealed(file.content));
    if (!whole)
        return whole.problem();
    if (const auto readable = PPDDocument::open((*whole)->fileName()); !readable)
        return Problem{ServerConnection::tr("the PPD on the server can't be used: %1")
                           .arg(readable.problem().sentence.section(": ", 1))};
    CachedPPD ppd{path, file.asOf, digestOf(file.content)};
    if (!keep(sealed(file.content), path, file.asOf)) {
        (*whole)->setAutoRemove(false);
        ppd.path = (*whole)->fileName();
        ppd.isTemporary = true;
    }
    return std::optional(std::move(ppd));
}

} // namespace

Or<std::optional<CachedPPD>> fetchPPD(ServerConnection &server, const QString &queue)
{
    const QString path = cachePath(queue);
    const auto kept = unsealed(path);
    const std::time_t asOf = kept ? QFileInfo(path).lastModified().toSecsSinceEpoch() : 0;
    const auto file = server.download(resourceOf(queue), asOf);
    if (!file) {
        if (file.problem().kind == Problem::Kind::notFound)
            return std::optional<CachedPPD>();
        return file.problem();
    }
    if (kept && !file->isNew)
        return std::optional(CachedPPD{path, asOf, digestOf(*kept)});
    return taken(*file, path);
}

Or<bool> hasPPDChanged(ServerConnection &server, const QString &queue, const CachedPPD &known)
{
    const auto file = server.download(resourceOf(queue), known.asOf);
    if (!file && file.problem().kind == Problem::Kind::notFound)
        return true;
    if (!file)
        return file.problem();
    return file->isNew && digestOf(file->content) != known.digest;
}

} // namespace host
