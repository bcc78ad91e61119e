// Documents to print.
#include "Document.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

namespace {

constexpr qint64 kPart = 64 * 1024;
constexpr qint64 kSample = 4096;

struct Format
{
    QByteArrayView magic;
    const char *mimeType;
    const char *extension;
};

constexpr std::array kFormats{
    Format{"%PDF-", "application/pdf", "pdf"},   Format{"\x89PNG", "image/png", "png"},
    Format{"\xff\xd8\xff", "image/jpeg", "jpg"}, Format{"GIF8", "image/gif", "gif"},
    Format{"II*", "image/tiff", "tif"},          Format{"MM", "image/tiff", "tif"},
};
constexpr Format kText{"", "text/plain", "txt"};

/// Opened without waiting and without following into anything but a regular file.
int openRegular(const QString &path, QString *error)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status = {};
    if (fd >= 0 && ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode))
        return fd;
    *error = QString("%1: %2").arg(path, fd < 0 ? QString::fromLocal8Bit(std::strerror(errno)) : "not a file");
    if (fd >= 0)
        ::close(fd);
    return -1;
}

std::unique_ptr<QFile> copyOfStandardInput(QString *error)
{
    auto copy = std::make_unique<QTemporaryFile>(); // readable by its owner only
    QFile input;
    if (!copy->open() || !input.open(STDIN_FILENO, QIODevice::ReadOnly)) {
        *error = QString("standard input: %1").arg(copy->errorString());
        return nullptr;
    }
    for (;;) {
        const QByteArray part = input.read(kPart);
        if (part.isEmpty())
            break;
        if (copy->write(part) != part.size()) {
            *error = QString("standard input: %1").arg(copy->errorString());
            return nullptr;
        }
    }
    copy->seek(0);
    return copy;
}

} // namespace

std::unique_ptr<Document> Document::open(const QString &path, QString *error)
{
    std::unique_ptr<QFile> file;
    if (path == "-") {
        file = copyOfStandardInput(error);
        if (!file)
            return nullptr;
    } else {
        const int fd = openRegular(path, error);
        if (fd < 0)
            return nullptr;
        file = std::make_unique<QFile>();
        file->open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    }
    const QString title = path == "-" ? QString("standard input") : QFileInfo(path).fileName();
    std::unique_ptr<Document> document(new Document(title, std::move(file)));
    if (document->size() == 0)
        *error = QString("%1: the document is empty").arg(document->title());
    else if (!document->recognise())
        *error = QString("%1: neither a PDF nor an image nor a text").arg(document->title());
    else
        return document;
    return nullptr;
}

bool Document::recognise()
{
    const QByteArray sample = m_file->read(kSample);
    rewind();
    const auto *format = std::ranges::find_if(kFormats, [&](const Format &f) { return sample.startsWith(f.magic); });
    if (format == kFormats.end() && sample.contains('\0'))
        return false;
    const Format &found = format == kFormats.end() ? kText : *format;
    m_format = found.mimeType;
    m_extension = found.extension;
    return true;
}

std::optional<QByteArray> Document::read()
{
    const QByteArray part = m_file->read(kPart);
    return part.isEmpty() && m_file->error() != QFileDevice::NoError ? std::nullopt : std::optional(part);
}

} // namespace host
