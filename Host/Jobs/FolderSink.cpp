// Jobs that go into a folder.
#include "Job.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace host {

namespace {

constexpr int kMostNames = 10000;

QString systemError() { return QString::fromLocal8Bit(std::strerror(errno)); }

/// A file under a temporary name in the folder, gone again unless it is given its final one.
std::unique_ptr<QTemporaryFile> temporaryFile(const QString &folder)
{
    auto file = std::make_unique<QTemporaryFile>(folder + "/.qnprint-XXXXXX");
    return file->open() ? std::move(file) : nullptr;
}

bool complete(QTemporaryFile &file) { return file.flush() && ::fsync(file.handle()) == 0; }

/// Gives the file its final name; false when there is a file of that name already. A link, unlike a rename, never
/// replaces another file, whoever else writes into the folder at the same time.
bool nameIt(const QTemporaryFile &file, const QString &path)
{
    return ::link(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) == 0;
}

QByteArray ticket(const Job &job, const QString &documentName)
{
    QJsonObject options;
    for (const auto &[key, value] : job.options.asKeyValueRange())
        options[key] = value;
    QJsonObject members{{"title", job.title},
                        {"document", documentName},
                        {"format", QString::fromLatin1(job.document.format())},
                        {"copies", job.copies},
                        {"created", QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
                        {"options", options}};
    if (!job.pages.isEmpty())
        members["pages"] = job.pages;
    return QJsonDocument(members).toJson();
}

/// A file name from a title: nothing that leaves the folder or hides in it.
QString baseName(const QString &title)
{
    QString base = QFileInfo(title).completeBaseName().replace('/', '_');
    while (base.startsWith('.'))
        base.remove(0, 1);
    return base.isEmpty() ? QString("document") : base.left(100);
}

/// Nil when all went well; otherwise what went wrong.
std::optional<QString> copyDocument(Document &document, QTemporaryFile &copy, const JobProgress &progress)
{
    const auto reason = passOn(document, progress, [&copy](const QByteArray &part) {
        return copy.write(part) == part.size() ? std::nullopt : std::optional(copy.errorString());
    });
    if (reason || complete(copy))
        return reason;
    return copy.error() ? copy.errorString() : systemError();
}

} // namespace

JobSink::Result FolderSink::submit(const Job &job, const JobProgress &progress)
{
    const auto failed = [this](const QString &reason) { return Result{false, m_folder + ": " + reason}; };
    if (!QDir().mkpath(m_folder))
        return failed(JobSink::tr("can't be made"));
    const auto copy = temporaryFile(m_folder);
    const auto note = temporaryFile(m_folder);
    if (!copy || !note)
        return failed(JobSink::tr("can't be written"));
    if (const auto reason = copyDocument(job.document, *copy, progress))
        return failed(*reason);

    for (int i = 1; i < kMostNames; ++i) {
        const QString base = baseName(job.title) + (i == 1 ? QString() : '-' + QString::number(i));
        const QString name = base + '.' + job.document.extension();
        const QByteArray text = ticket(job, name);
        note->resize(0);
        note->seek(0);
        if (note->write(text) != text.size() || !complete(*note))
            return failed(note->errorString());
        if (!nameIt(*copy, m_folder + '/' + name)) {
            if (errno == EEXIST)
                continue;
            return failed(systemError());
        }
        if (nameIt(*note, m_folder + '/' + base + ".json"))
            return {true, m_folder + '/' + name};
        const int error = errno;
        QFile::remove(m_folder + '/' + name);
        if (error != EEXIST)
            return failed(QString::fromLocal8Bit(std::strerror(error)));
    }
    return failed(JobSink::tr("too many jobs of this name"));
}

} // namespace host
