// Images as pages.
#include "ImagePages.h"

#include "PDFPages.h"
#include "TIFFParts.h"

#include "Printing/Units.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr qsizetype kMostBytes = 128 << 20; // of the file
constexpr int kMostMegabytes = 256;         // of the picture; of a TIFF, of a part of it and the file together
constexpr qint64 kMostBytesOfPicture = qint64{kMostMegabytes} << 20;
constexpr int kMostPages = 1000;
constexpr double kMostPixels = 36e6;     // A4 at 600 dots an inch; no head has dots for more, and memory would be short
constexpr double kLowestResolution = 72; // in dots an inch, as those below
constexpr double kHighestResolution = 1200;
constexpr double kUsualResolution = 96;

Problem tooLarge(const Document &image)
{
    return Problem{PDFPages::tr("%1: the image is too large to be laid out").arg(image.title())};
}

Or<QByteArray> contentOf(Document &image)
{
    image.rewind();
    QByteArray content;
    for (;;) {
        const auto part = image.read();
        if (!part)
            return Problem{PDFPages::tr("%1: can't be read any more").arg(image.title())};
        if (part->isEmpty())
            break;
        content += *part;
        if (content.size() > kMostBytes)
            return tooLarge(image);
    }
    if (image.hasChanged())
        return Problem{PDFPages::tr("%1: has changed while it was read").arg(image.title())};
    return content;
}

/// In 32 bits a pixel. Deeper ones meet Qt's own limit: the depth that it tells of a damaged file is any number.
bool isTooLarge(QSize size)
{
    constexpr qint64 kBytesOfPixel = 4;
    return kBytesOfPixel * size.width() * size.height() > kMostBytesOfPicture;
}

/// Transparent parts are paper. Painted beneath the image, as a copy would take as much memory again.
QImage onWhite(QImage image)
{
    if (!image.hasAlphaChannel())
        return image;
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
    painter.fillRect(image.rect(), Qt::white);
    painter.end();
    image.convertTo(QImage::Format_RGB32);
    return image;
}

/// All of an image of more pixels, with fewer. No matter for the readers: some of Qt's copy an image that has
/// transparent parts for it.
QImage bearable(QImage image)
{
    const double pixels = double(image.width()) * image.height();
    if (pixels <= kMostPixels)
        return image;
    const QSize size = (QSizeF(image.size()) * std::sqrt(kMostPixels / pixels)).toSize();
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// What a file without a resolution says is the screen's, which is no matter of the paper.
double resolution(int dotsPerMetre, int ofScreen)
{
    constexpr double kMetresPerInch = printing::kMillimetresPerInch / 1000;
    const double found = dotsPerMetre * kMetresPerInch;
    const bool isBelieved =
        dotsPerMetre != ofScreen && found >= kLowestResolution - 0.5 && found <= kHighestResolution + 0.5;
    return isBelieved ? found : kUsualResolution;
}

/// In the units of the pages. `size`: as the file has it, in pixels.
QSizeF ownSize(const QImage &image, QSize size, bool isOnItsSide)
{
    const QImage unsaid(1, 1, QImage::Format_Mono);
    double across = resolution(image.dotsPerMeterX(), unsaid.dotsPerMeterX());
    double down = resolution(image.dotsPerMeterY(), unsaid.dotsPerMeterY());
    if (isOnItsSide)
        std::swap(across, down); // the picture was turned, what is said of it was not
    const QSizeF upright = isOnItsSide ? size.transposed() : size;
    return {upright.width() * PDFPages::kUnitsPerInch / across, upright.height() * PDFPages::kUnitsPerInch / down};
}

void draw(PDFPages &pages, const QImage &image, QSizeF own)
{
    const QSizeF area = pages.area();
    const double scale = std::min({1.0, area.width() / own.width(), area.height() / own.height()});
    const QSizeF size = own * scale;
    const QPointF corner((area.width() - size.width()) / 2, (area.height() - size.height()) / 2);
    pages.painter().drawImage(QRectF(corner, size), image);
}

Or<void> drawNext(PDFPages &pages, QImageReader &reader, const Document &image)
{
    const QSize size = reader.size();
    if (isTooLarge(size))
        return tooLarge(image);
    const bool isOnItsSide = reader.transformation() & QImageIOHandler::TransformationRotate90;
    QImage picture = reader.read();
    if (picture.isNull())
        return Problem{PDFPages::tr("%1: the image is damaged").arg(image.title())};
    const QSizeF own = ownSize(picture, size, isOnItsSide);
    // A step each: what one is given lasts as long as the statement. Without memory for it nothing comes of a step.
    picture = onWhite(std::move(picture));
    picture = bearable(std::move(picture));
    if (picture.isNull())
        return tooLarge(image);
    draw(pages, picture, own);
    return {};
}

Or<std::shared_ptr<Document>> drawAll(QImageReader &reader, const Document &image, const Sheet &sheet,
                                      const std::stop_token &stop)
{
    auto pages = PDFPages::begin(image.title(), sheet);
    if (!pages)
        return pages.problem();
    const bool hasPages = image.format() == "image/tiff";
    for (int page = 1;; ++page) {
        if (stop.stop_requested())
            return Problem{PDFPages::tr("cancelled")};
        if (const auto drawn = drawNext(**pages, reader, image); !drawn)
            return drawn.problem();
        reader.device()->seek(0); // where Qt's reader of TIFF has to find it to count the pages
        if (!hasPages || !reader.jumpToNextImage())
            return (*pages)->finish();
        if (page == kMostPages)
            return tooLarge(image);
        (*pages)->newPage();
    }
}

} // namespace

Or<std::shared_ptr<Document>> imagePages(Document &image, const Sheet &sheet, const std::stop_token &stop)
{
    const QByteArray format = image.extension().toLatin1();
    if (!QImageReader::supportedImageFormats().contains(format))
        return Problem{
            PDFPages::tr("%1: this kind of image can't be read; Qt's further image formats are not installed")
                .arg(image.title())};
    auto content = contentOf(image);
    if (!content)
        return content.problem();
    const auto room = static_cast<double>(kMostBytesOfPicture - content->size());
    if (format == "tif" && largestPartOfTIFF(*content, kMostPages + 1) > room)
        return tooLarge(image);
    QBuffer buffer(&*content);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false); // no other reader gets to see it
    reader.setAutoTransform(true);
    QImageReader::setAllocationLimit(kMostMegabytes);
    return drawAll(reader, image, sheet, stop);
}

} // namespace host
