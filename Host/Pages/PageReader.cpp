#include "PageReader.h"

#include "ConfinedProgram.h"

#include "Foundation/PlainText.h"

#include <QStandardPaths>

#include <algorithm>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr int kMostPages = 100'000;
constexpr qint64 kMostInfoBytes = qint64{100} * kMostPages; // a page takes two short lines
constexpr auto kInfo = "pdfinfo";
constexpr auto kPainter = "pdftoppm";
/// Their standard input by its name: what has none they keep in memory as a whole.
constexpr auto kDocument = "/proc/self/fd/0";

Allowance allowance(qint64 output, std::chrono::milliseconds patience)
{
    return {qint64{512} * 1024 * 1024, output, 20, patience};
}

/// A portable grey map: "P5", width, height, the level of white, and a byte a dot.
QImage readGreyMap(const QByteArray &map, QSize dots)
{
    const QByteArray header = QStringLiteral("P5\n%1 %2\n255\n").arg(dots.width()).arg(dots.height()).toLatin1();
    if (!map.startsWith(header) || map.size() != header.size() + qint64{dots.width()} * dots.height())
        return {};
    QImage picture(dots, QImage::Format_Grayscale8);
    for (int y = 0; y < dots.height(); ++y)
        std::copy_n(map.constData() + header.size() + qint64{y} * dots.width(), dots.width(),
                    reinterpret_cast<char *>(picture.scanLine(y)));
    return picture;
}

} // namespace

/// "Page    2 size:  595.28 x 841.89 pts (A4)" and "Page    2 rot:   90", in the order of the pages. Word by word: an
/// expression would have to be compiled at each start.
std::vector<QSizeF> readPageSizes(const QByteArray &info)
{
    std::vector<QSizeF> sizes;
    for (const QByteArray &line : info.split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() >= 7 && words[0] == "Page" && words[2] == "size:" && words[4] == "x" && words[6] == "pts")
            sizes.emplace_back(words[3].toDouble(), words[5].toDouble());
        else if (words.size() == 4 && words[0] == "Page" && words[2] == "rot:" && !sizes.empty() &&
                 words[3].toInt() % 180 != 0)
            sizes.back().transpose();
    }
    return sizes;
}

PageReader::PageReader(const Document &document, std::chrono::milliseconds patience)
    : m_title(document.title())
    , m_patience(patience)
    , m_path(pathOfDescriptor(document.descriptor()))
{}

Or<QByteArray> PageReader::answerOf(const QString &program, const QStringList &arguments, qint64 mostBytes,
                                    const std::stop_token &stop) const
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return Problem{tr("Pages can't be shown: %1 is missing (it is part of poppler-utils).").arg(program)};
    ConfinedProgram helper(path, arguments, {m_path}, allowance(mostBytes, m_patience));
    auto output = helper.output(stop);
    const auto status = helper.status();
    if (!output || !status)
        return Problem{tr("%1: the document takes too long, or too much memory, to be read").arg(m_title)};
    if (status == 0)
        return *std::move(output);
    if (helper.complaints().contains("Incorrect password"))
        return Problem{tr("%1: the document is locked with a password").arg(m_title), Problem::Kind::locked};
    return Problem{tr("%1: the document is damaged").arg(m_title)};
}

bool PageReader::isThere() { return !QStandardPaths::findExecutable(kInfo).isEmpty(); }

Or<std::vector<QSizeF>> PageReader::sizes(const std::stop_token &stop) const
{
    const QString all = QString::number(kMostPages + 1);
    const auto info = answerOf(kInfo, {"-f", "1", "-l", all, kDocument}, kMostInfoBytes, stop);
    if (!info)
        return info.problem();
    auto sizes = readPageSizes(*info);
    if (sizes.empty())
        return Problem{tr("%1: the document has no pages").arg(m_title)};
    if (sizes.size() > kMostPages)
        return Problem{tr("%1: the document has too many pages").arg(m_title)};
    return sizes;
}

QString PageReader::title(const std::stop_token &stop) const
{
    constexpr QByteArrayView kTitle("Title:");
    const auto info = answerOf(kInfo, {"-enc", "UTF-8", "-"}, kMostInfoBytes, stop);
    for (const QByteArray &line : info ? info->split('\n') : QByteArrayList())
        if (line.startsWith(kTitle))
            return foundation::plainLine(QString::fromUtf8(line.mid(kTitle.size()))).trimmed();
    return {};
}

/// `part`: arguments for no more than that, of that size.
Or<QImage> PageReader::pictureOf(int page, QSize dots, const QStringList &part, QSize size,
                                 const std::stop_token &stop) const
{
    constexpr qint64 kHeader = 64;
    const QString number = QString::number(page);
    // A page that the document turns by itself is measured as it is looked at, not as it lies in the file.
    const QStringList arguments{"-gray",
                                "-cropbox",
                                "-scale-dimension-before-rotation",
                                "-f",
                                number,
                                "-l",
                                number,
                                "-scale-to-x",
                                QString::number(dots.width()),
                                "-scale-to-y",
                                QString::number(dots.height())};
    const auto map = answerOf(kPainter, arguments + part + QStringList(kDocument),
                              qint64{size.width()} * size.height() + kHeader, stop);
    if (!map)
        return map.problem();
    QImage picture = readGreyMap(*map, size);
    return picture.isNull() ? Or<QImage>(Problem{tr("%1: page %2 can't be drawn").arg(m_title, number)})
                            : Or<QImage>(std::move(picture));
}

Or<QImage> PageReader::draw(int page, QSize dots, const std::stop_token &stop) const
{
    return pictureOf(page, dots, {}, dots, stop);
}

Or<QImage> PageReader::drawPart(int page, QSize dots, const QRect &part, const std::stop_token &stop) const
{
    return pictureOf(page, dots,
                     {"-x", QString::number(part.x()), "-y", QString::number(part.y()), "-W",
                      QString::number(part.width()), "-H", QString::number(part.height())},
                     part.size(), stop);
}

} // namespace host
