// Jobs that go into a folder. Both files are complete under temporary names before either gets its own, so that nobody
// who watches the folder meets half a job.
#include "FolderSink.h"

#include "Foundation/PlainText.h"
#include "Foundation/RegularFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace host {

using foundation::fileErrorText;
using foundation::Or;
using foundation::Problem;
using foundation::systemErrorText;

namespace {

constexpr int kMostNames = 10000;
constexpr qsizetype kLongestBaseName = 240; // in bytes; with a number and an extension, what file systems take
constexpr qint64 kChunkBytes = 65536;

/// A file under a temporary name in the folder, gone again unless it is given its final one.
std::unique_ptr<QTemporaryFile> temporaryFile(const QString &folder)
{
    auto file = std::make_unique<QTemporaryFile>(folder + "/.qnprint-XXXXXX");
    return file->open() ? std::move(file) : nullptr;
}

bool complete(QTemporaryFile &file) { return file.flush() && ::fsync(file.handle()) == 0; }

bool copyAll(QTemporaryFile &from, QFile &to)
{
    from.seek(0);
    for (;;) {
        const QByteArray part = from.read(kChunkBytes);
        if (part.isEmpty())
            return from.error() == QFileDevice::NoError && to.flush() && ::fsync(to.handle()) == 0;
        if (to.write(part) != part.size())
            return false;
    }
}

/// Where nothing else serves; whoever watches the folder may meet half of it.
int copyAs(QTemporaryFile &file, const QString &path)
{
    QFile copy(path);
    errno = 0;
    if (!copy.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        return errno == 0 ? EIO : errno;
    if (copyAll(file, copy))
        return 0;
    const int error = errno == 0 ? EIO : errno;
    copy.remove();
    return error;
}

/// Gives the file its final name; 0, or the system's error number. None of the ways replaces another file, whoever else
/// writes into the folder at the same time. A link is made of the open file, not of its temporary name, which somebody
/// else may have given to another; file systems without links have no owners either, and a rename serves there.
int nameIt(QTemporaryFile &file, const QString &path)
{
    const QByteArray open = "/proc/self/fd/" + QByteArray::number(file.handle());
    const QByteArray final = QFile::encodeName(path);
    if (::linkat(AT_FDCWD, open.constData(), AT_FDCWD, final.constData(), AT_SYMLINK_FOLLOW) == 0)
        return 0;
    if (errno == EEXIST)
        return EEXIST;
    const QByteArray temporary = QFile::encodeName(file.fileName());
    if (::renameat2(AT_FDCWD, temporary.constData(), AT_FDCWD, final.constData(), RENAME_NOREPLACE) == 0) {
        file.setAutoRemove(false); // the name is somebody else's now
        return 0;
    }
    return errno == EEXIST ? EEXIST : copyAs(file, path);
}

QByteArray ticketText(const Job &job, const QString &documentName)
{
    QJsonObject options;
    for (const auto &[key, value] : job.options.asKeyValueRange())
        options[key] = value;
    QJsonObject members{{"title", job.title},
                        {"document", documentName},
                        {"format", QString::fromLatin1(job.document->format())},
                        {"copies", job.copies},
                        {"created", QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
                        {"options", options}};
    if (!job.pages.isEmpty())
        members["pages"] = job.pages;
    return QJsonDocument(members).toJson();
}

bool writeTicket(QTemporaryFile &ticket, const QByteArray &text)
{
    return ticket.resize(0) && ticket.seek(0) && ticket.write(text) == text.size() && complete(ticket);
}

/// A file name from a title: nothing that leaves the folder or hides in it.
QString baseName(const QString &title)
{
    QString base = QFileInfo(foundation::plainLine(title).replace('/', '_')).completeBaseName();
    while (base.startsWith('.'))
        base.remove(0, 1);
    base.truncate(kLongestBaseName);
    while (QFile::encodeName(base).size() > kLongestBaseName || (!base.isEmpty() && base.back().isHighSurrogate()))
        base.chop(1);
    return base.isEmpty() ? QString("document") : base;
}

Or<void> copyDocument(Document &document, QTemporaryFile &copy, const JobProgress &progress,
                      const std::stop_token &stop)
{
    auto streamed = streamDocument(document, progress, stop, [&copy](const QByteArray &part) -> Or<void> {
        if (copy.write(part) != part.size())
            return Problem{fileErrorText(copy)};
        return {};
    });
    if (!streamed || complete(copy))
        return streamed;
    return Problem{fileErrorText(copy)};
}

} // namespace

Problem FolderSink::failed(const QString &reason) const { return {m_folder + ": " + reason}; }

Or<QString> FolderSink::submit(const Job &job, const JobProgress &progress, std::stop_token stop)
{
    if (!QDir().mkpath(m_folder))
        return failed(tr("can't be made"));
    const auto copy = temporaryFile(m_folder);
    const auto ticket = temporaryFile(m_folder);
    if (!copy || !ticket)
        return failed(tr("can't be written"));
    if (const auto copied = copyDocument(*job.document, *copy, progress, stop); !copied)
        return failed(copied.problem().sentence);

    for (int i = 1; i < kMostNames; ++i) {
        const QString base = baseName(job.title) + (i == 1 ? QString() : '-' + QString::number(i));
        const QString name = base + '.' + job.document->extension();
        if (!writeTicket(*ticket, ticketText(job, name)))
            return failed(fileErrorText(*ticket));
        int error = nameIt(*copy, path(name));
        if (error == 0) {
            error = nameIt(*ticket, path(base + ".json"));
            if (error == 0)
                return path(name);
            QFile::remove(path(name));
        }
        if (error != EEXIST)
            return failed(systemErrorText(error));
    }
    return failed(tr("too many jobs of this name"));
}

} // namespace host
