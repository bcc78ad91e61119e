// Documents to print.
#include "Document.h"

#include "Foundation/RegularFile.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr qint64 kChunkBytes = 65536;
constexpr qint64 kSniffBytes = 4096;

struct Format
{
    QByteArrayView magic;
    const char *mimeType = "";
    const char *extension = "";
};

constexpr std::array kFormats{
    Format{"%PDF-", "application/pdf", "pdf"},   Format{"\x89PNG", "image/png", "png"},
    Format{"\xff\xd8\xff", "image/jpeg", "jpg"}, Format{"GIF8", "image/gif", "gif"},
    Format{"II*", "image/tiff", "tif"},          Format{"MM", "image/tiff", "tif"},
};
constexpr Format kText{"", "text/plain", "txt"};

bool copyAll(QFile &from, QFile &to)
{
    for (;;) {
        const QByteArray part = from.read(kChunkBytes);
        if (part.isEmpty())
            return to.seek(0);
        if (to.write(part) != part.size())
            return false;
    }
}

} // namespace

Or<std::unique_ptr<QFile>> Document::copyOfStandardInput()
{
    auto copy = std::make_unique<QTemporaryFile>(); // readable by its owner only
    QFile input;
    if (!copy->open() || !input.open(STDIN_FILENO, QIODevice::ReadOnly) || !copyAll(input, *copy))
        return Problem{tr("standard input: %1").arg(copy->errorString())};
    return std::unique_ptr<QFile>(std::move(copy));
}

Or<std::shared_ptr<Document>> Document::open(const QString &path)
{
    const bool isStandardInput = path == "-";
    auto file = isStandardInput ? copyOfStandardInput() : foundation::openRegularFile(path);
    if (!file)
        return file.problem();
    const QString title = isStandardInput ? tr("standard input") : QFileInfo(path).fileName();
    std::shared_ptr<Document> document(new Document(title, *std::move(file)));
    if (document->size() == 0)
        return Problem{tr("%1: the document is empty").arg(title)};
    if (!document->recognise())
        return Problem{tr("%1: neither a PDF nor an image nor a text").arg(title)};
    return document;
}

bool Document::recognise()
{
    const QByteArray sample = m_file->read(kSniffBytes);
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
    const QByteArray part = m_file->read(kChunkBytes);
    return part.isEmpty() && m_file->error() != QFileDevice::NoError ? std::nullopt : std::optional(part);
}

} // namespace host
