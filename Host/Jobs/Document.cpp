// Documents to print.
#include "Document.h"

#include "Foundation/RegularFile.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr qint64 kChunkBytes = 65536;
constexpr qint64 kSniffBytes = 4096;
constexpr qint64 kMostKept = qint64{1} << 30; // of standard input, which may have no end

struct Format
{
    QByteArrayView magic;
    const char *mimeType = "";
    const char *extension = "";
};

/// The whole of what a format begins with: a note of 10 MM is a text.
template <std::size_t size>
constexpr QByteArrayView magic(const char (&bytes)[size])
{
    return {bytes, size - 1}; // zeros count
}

constexpr std::array kFormats{
    Format{magic("%PDF-"), "application/pdf", "pdf"},
    Format{magic("%!PS"), "application/postscript", "ps"},
    Format{magic("\x04%!PS"), "application/postscript", "ps"}, // as drivers of another system write it
    Format{magic("\x89PNG\r\n\x1a\n"), "image/png", "png"},
    Format{magic("\xff\xd8\xff"), "image/jpeg", "jpg"},
    Format{magic("GIF87a"), "image/gif", "gif"},
    Format{magic("GIF89a"), "image/gif", "gif"},
    Format{magic("II*\0"), "image/tiff", "tif"},
    Format{magic("MM\0*"), "image/tiff", "tif"},
};
constexpr Format kText{"", "text/plain", "txt"};

/// Text for a program that lays it out. Printed as it is, it would be pages of source.
bool isSource(const QByteArray &sample)
{
    static const QRegularExpression kBeginning(
        R"(\A(\xef\xbb\xbf)?\s*((<\?.*?\?>|<!--.*?-->)\s*)*<(!doctype\s+)?(html|svg)\b|\A\{\\rtf)",
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return kBeginning.match(QString::fromLatin1(sample)).hasMatch();
}

/// A problem without a name of what it is that can't be copied.
Or<void> copyAll(QFile &from, QFile &to)
{
    for (qint64 size = 0;;) {
        const QByteArray part = from.read(kChunkBytes);
        size += part.size();
        if (part.isEmpty() && from.error() != QFile::NoError)
            return Problem{foundation::fileErrorText(from)};
        if (size > kMostKept)
            return Problem{Document::tr("there is too much of it")};
        if (part.isEmpty() ? !to.seek(0) : to.write(part) != part.size())
            return Problem{foundation::fileErrorText(to)};
        if (part.isEmpty())
            return {};
    }
}

} // namespace

Or<std::unique_ptr<QFile>> Document::copyOf(const QString &title, int descriptor)
{
    auto copy = foundation::openUnnamedFile();
    if (!copy)
        return Problem{QString("%1: %2").arg(title, copy.problem().sentence)};
    QFile input;
    if (!input.open(descriptor, QIODevice::ReadOnly))
        return Problem{QString("%1: %2").arg(title, foundation::fileErrorText(input))};
    if (const auto copied = copyAll(input, **copy); !copied)
        return Problem{QString("%1: %2").arg(title, copied.problem().sentence)};
    return copy;
}

Or<std::shared_ptr<Document>> Document::copied(const QString &title, int descriptor)
{
    auto copy = copyOf(title, descriptor);
    if (!copy)
        return copy.problem();
    return made(title, *std::move(copy));
}

Or<std::shared_ptr<Document>> Document::open(const QString &path)
{
    if (path == "-")
        return copied(tr("standard input"), STDIN_FILENO);
    auto file = foundation::openRegularFile(path);
    if (!file)
        return file.problem();
    return made(QFileInfo(path).fileName(), *std::move(file));
}

Or<std::shared_ptr<Document>> Document::received(int descriptor)
{
    auto file = std::make_unique<QFile>();
    if (descriptor < 0 || !file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return Problem{tr("the document can't be read any more")};
    return checked(std::shared_ptr<Document>(new Document(tr("the document"), std::move(file))));
}

Or<std::shared_ptr<Document>> Document::made(const QString &title, std::unique_ptr<QFile> file)
{
    return checked(std::shared_ptr<Document>(new Document(title, std::move(file))));
}

Or<std::shared_ptr<Document>> Document::checked(std::shared_ptr<Document> document)
{
    document->rewind();
    if (document->size() == 0)
        return Problem{tr("%1: the document is empty").arg(document->title())};
    if (!document->recognise())
        return Problem{tr("%1: can't be printed as it is; PDF, PostScript, PNG, JPEG, GIF, TIFF and plain text can")
                           .arg(document->title())};
    document->rewind();
    return document;
}

bool Document::recognise()
{
    const QByteArray sample = part(kSniffBytes);
    const auto *format = std::ranges::find_if(kFormats, [&](const Format &f) { return sample.startsWith(f.magic); });
    if (format == kFormats.end() && (sample.contains('\0') || isSource(sample)))
        return false;
    const Format &found = format == kFormats.end() ? kText : *format;
    m_format = found.mimeType;
    m_extension = found.extension;
    return true;
}

Document::Fingerprint Document::fingerprint() const
{
    struct stat status = {};
    ::fstat(descriptor(), &status);
    return {status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

void Document::rewind()
{
    m_position = 0;
    m_rewound = fingerprint();
}

bool Document::hasChanged() const { return fingerprint() != m_rewound; }

QByteArray Document::part(qint64 bytes)
{
    QByteArray content(bytes, Qt::Uninitialized);
    ssize_t count = -1;
    do
        count = ::pread(descriptor(), content.data(), static_cast<std::size_t>(bytes), m_position);
    while (count < 0 && errno == EINTR);
    m_isReadable = count >= 0;
    content.truncate(qMax<ssize_t>(count, 0));
    m_position += content.size();
    return content;
}

std::optional<QByteArray> Document::read()
{
    QByteArray content = part(kChunkBytes);
    return m_isReadable ? std::optional(std::move(content)) : std::nullopt;
}

} // namespace host
