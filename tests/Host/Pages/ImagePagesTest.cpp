// Images become a page: in their own size where they fit, in the middle, upright, on white.
#include "Pages.h"

#include "Messages.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

using host::laidOut;
using host::Sheet;
using support::PDF;
using support::value;

namespace {

constexpr double kNear = 0.6; // in points: the page is looked at by quarters
constexpr double kDotsPerMetre = 1 / 0.0254;

QImage black(int width, int height, double across, double down)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::black);
    image.setDotsPerMeterX(qRound(across * kDotsPerMetre));
    image.setDotsPerMeterY(qRound(down * kDotsPerMetre));
    return image;
}

QByteArray file(const QImage &image, const char *format = "png")
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(95);
    EXPECT_TRUE(writer.write(image)) << writer.errorString().toStdString();
    return buffer.data();
}

/// How a camera was held, in the numbers of EXIF.
enum Held : char { turnedLeft = 6, turnedRight = 8 };

QByteArray photo(const QImage &image, Held held)
{
    const QByteArray exif = QByteArray("\xff\xe1\0\x22"
                                       "Exif\0\0II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0",
                                       28) +
                            held + QByteArray(7, '\0');
    return file(image, "jpeg").insert(2, exif);
}

void expectNear(const QRectF &found, const QRectF &expected)
{
    EXPECT_NEAR(found.left(), expected.left(), kNear);
    EXPECT_NEAR(found.top(), expected.top(), kNear);
    EXPECT_NEAR(found.right(), expected.right(), kNear);
    EXPECT_NEAR(found.bottom(), expected.bottom(), kNear);
}

/// Letter with a wide left margin: its middle is not the paper's.
const Sheet kSheet{{612, 792}, QRectF(112, 36, 480, 720)};

QRectF inTheMiddle(double width, double height)
{
    QRectF area(0, 0, width, height);
    area.moveCenter(kSheet.printable.center());
    return area;
}

using ImagePages = Pages;

TEST_F(ImagePages, ArePDFUnderTheTitleOfTheImage)
{
    const auto pages = value(laidOut(document(file(black(10, 10, 96, 96)), "logo.png"), kSheet));
    EXPECT_EQ(pages->title(), "logo.png");
    EXPECT_EQ(pages->format(), "application/pdf");
    EXPECT_EQ(PDF(pages).pages(), 1);
    EXPECT_EQ(PDF(pages).pageSize(), QSizeF(612, 792));
}

/// Pixels, dots an inch as the file says (0: nothing), and the size on paper in points.
struct Sized
{
    QSize pixels;
    QSizeF resolution;
    QSizeF size;
};
void PrintTo(const Sized &row, std::ostream *out)
{
    *out << row.pixels.width() << " x " << row.pixels.height() << " at " << row.resolution.width();
}
class Sizes : public ImagePages, public testing::WithParamInterface<Sized>
{};

TEST_P(Sizes, AreTheirOwnOrSmallerInTheMiddle)
{
    const QImage image = black(GetParam().pixels.width(), GetParam().pixels.height(), GetParam().resolution.width(),
                               GetParam().resolution.height());
    expectNear(pdf(file(image), kSheet).ink(), inTheMiddle(GetParam().size.width(), GetParam().size.height()));
}

INSTANTIATE_TEST_SUITE_P(ThatFit, Sizes,
                         testing::Values(Sized{{300, 150}, {300, 300}, {72, 36}}, Sized{{100, 50}, {72, 72}, {100, 50}},
                                         Sized{{1200, 600}, {1200, 1200}, {72, 36}},
                                         Sized{{200, 100}, {200, 100}, {72, 72}}, Sized{{192, 96}, {0, 0}, {144, 72}},
                                         Sized{{192, 96}, {96, 96}, {144, 72}}, Sized{{192, 96}, {60, 60}, {144, 72}},
                                         Sized{{192, 96}, {1250, 1250}, {144, 72}}));
INSTANTIATE_TEST_SUITE_P(ThatDoNot, Sizes,
                         testing::Values(Sized{{1000, 500}, {72, 72}, {480, 240}},
                                         Sized{{500, 1500}, {72, 72}, {240, 720}},
                                         Sized{{2000, 10}, {100, 100}, {480, 2.4}}));

TEST_F(ImagePages, AreUprightAsTheCameraWasHeld)
{
    QImage image = black(200, 100, 100, 100);
    for (int y = 0; y < 100; ++y)
        for (int x = 100; x < 200; ++x)
            image.setPixel(x, y, qRgb(255, 255, 255)); // the left half is black
    const QRectF all = inTheMiddle(72, 144);
    expectNear(pdf(photo(image, turnedLeft), kSheet).ink(), QRectF(all.topLeft(), QSizeF(72, 72)));
    expectNear(pdf(photo(image, turnedRight), kSheet).ink(), QRectF(all.left(), all.top() + 72, 72, 72));
}

TEST_F(ImagePages, OfTwoResolutionsKeepThemWhenTheyAreTurned)
{
    const QImage image = black(200, 200, 200, 100); // 72 x 144 as it lies in the file
    expectNear(pdf(photo(image, turnedLeft), kSheet).ink(), inTheMiddle(144, 72));
}

TEST_F(ImagePages, AreWhiteWhereTheyAreTransparent)
{
    QImage image = black(100, 100, 72, 72).convertToFormat(QImage::Format_ARGB32);
    image.fill(qRgba(0, 0, 0, 0)); // black that does not show
    for (int y = 25; y < 75; ++y)
        for (int x = 25; x < 75; ++x)
            image.setPixel(x, y, qRgba(0, 0, 0, 255));
    const PDF result = pdf(file(image), kSheet);
    expectNear(result.ink(), inTheMiddle(50, 50));
    EXPECT_EQ(result.image().pixel(0, 0), qRgb(255, 255, 255));
}

TEST_F(ImagePages, KeepEachPixelAsItIs)
{
    std::mt19937 random(1);
    QImage image = black(300, 300, 300, 300);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(int(random() % 256), int(random() % 256), int(random() % 256)));
    EXPECT_EQ(pdf(file(image), kSheet).image().convertToFormat(QImage::Format_RGB32), image);
}

/// Two pictures of one black or white pixel.
const QByteArray kAnimation = QByteArray("GIF89a\1\0\1\0\x80\0\0\0\0\0\xff\xff\xff", 19) +
                              QByteArray("\x2c\0\0\0\0\1\0\1\0\0\2\2\x44\1\0", 15) +
                              QByteArray("\x2c\0\0\0\0\1\0\1\0\0\2\2\x4c\1\0", 15) + ";";

TEST_F(ImagePages, OfAnAnimationAreItsFirstPicture)
{
    const PDF result = pdf(kAnimation, kSheet);
    EXPECT_EQ(result.pages(), 1);
    EXPECT_EQ(result.image().size(), QSize(1, 1));
    EXPECT_EQ(result.image().pixel(0, 0), qRgb(0, 0, 0));
}

QByteArray number(quint32 value, int bytes)
{
    QByteArray little;
    for (int i = 0; i < bytes; ++i)
        little.append(static_cast<char>(value >> (8 * i)));
    return little;
}

struct Entry
{
    quint32 tag;
    quint32 value;
    quint32 type = 4; // a number of 32 bits
    quint32 count = 1;
};

/// Each page is one black pixel. `told`: what the last one says besides, or in place of that.
QByteArray tiff(int pages, const std::vector<Entry> &told = {}, bool isBigEndian = false)
{
    const auto number = [isBigEndian](quint32 value, int bytes) {
        QByteArray text = ::number(value, bytes);
        if (isBigEndian)
            std::reverse(text.begin(), text.end());
        return text;
    };
    QByteArray content = (isBigEndian ? "MM" : "II") + number(42, 2) + number(8, 4);
    for (int i = 0; i < pages; ++i) {
        std::map<quint32, Entry> entries;
        for (const quint32 one : {256, 257, 259, 262, 277, 278, 279})
            entries[one] = {one, 1};
        entries[258] = {258, 8};
        entries[273] = {273, static_cast<quint32>(content.size()) + 2}; // black is 0
        for (const Entry &entry : i + 1 < pages ? std::vector<Entry>() : told)
            entries[entry.tag] = entry;
        QByteArray page = number(static_cast<quint32>(entries.size()), 2);
        for (const auto &[tag, entry] : entries)
            page += number(tag, 2) + number(entry.type, 2) + number(entry.count, 4) + number(entry.value, 4);
        content += page;
        content += number(i + 1 < pages ? static_cast<quint32>(content.size()) + 4 : 0, 4);
    }
    return content;
}

TEST_F(ImagePages, OfATIFFAreAllOfItsOrWhatIsMissingIsSaid)
{
    if (!QImageReader::supportedImageFormats().contains("tif"))
        EXPECT_EQ(refusal(tiff(3), "scan.tif"),
                  "scan.tif: this kind of image can't be read; Qt's further image formats are not installed");
    else
        for (const bool isBigEndian : {false, true})
            EXPECT_EQ(pdf(tiff(3, {}, isBigEndian), kSheet).pages(), 3);
}

TEST_F(ImagePages, OfATIFFAreAThousandAtMost)
{
    if (!QImageReader::supportedImageFormats().contains("tif"))
        GTEST_SKIP() << "Qt's further image formats are not installed";
    EXPECT_EQ(pdf(tiff(1000), kSheet).pages(), 1000);
    EXPECT_EQ(refusal(tiff(1001), "scans.tif"), "scans.tif: the image is too large to be laid out");
}

struct PartRow
{
    const char *name;
    std::vector<Entry> told;
};
void PrintTo(const PartRow &row, std::ostream *out) { *out << row.name; }

class VastPart : public ImagePages, public testing::WithParamInterface<PartRow>
{};

/// A reader would take the memory at once.
TEST_P(VastPart, OfATIFFIsNotRead)
{
    if (!QImageReader::supportedImageFormats().contains("tif"))
        GTEST_SKIP() << "Qt's further image formats are not installed";
    for (const bool isBigEndian : {false, true})
        EXPECT_EQ(refusal(tiff(2, GetParam().told, isBigEndian), "scan.tif"),
                  "scan.tif: the image is too large to be laid out");
}

constexpr quint32 kShort = 3;
constexpr quint32 kLong8 = 16;
constexpr quint32 kAll = 0xffffffff;

INSTANTIATE_TEST_SUITE_P(Of, VastPart,
                         testing::Values(PartRow{"ALine", {{256, 60'000}, {277, 65'535}}},
                                         PartRow{"AStrip", {{256, 8192}, {257, 8193}, {277, 4}, {278, kAll}}},
                                         PartRow{"AStripOfNoRows", {{256, 60'000}, {277, 65'535}, {278, 0}}},
                                         PartRow{"ATile", {{322, 20'000}, {323, 20'000}}},
                                         PartRow{"BitsOfASample", {{256, 60'000}, {258, 65'535}}},
                                         PartRow{"BitsThatStandElsewhere",
                                                 {{256, 60'000}, {258, 0, kShort, 3}, {277, 3}}},
                                         PartRow{"ANumberBehindTheEnd", {{277, 1'000'000, kShort, 3}}},
                                         PartRow{"ANumberOf64Bits", {{277, 8, kLong8}}}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(ImagePages, OfATIFFMayBeInParts)
{
    if (!QImageReader::supportedImageFormats().contains("tif"))
        GTEST_SKIP() << "Qt's further image formats are not installed";
    const QImage whole = black(300, 200, 96, 96);
    EXPECT_EQ(pdf(file(whole, "tiff"), kSheet).image().convertToFormat(QImage::Format_RGB32), whole);
}

TEST_F(ImagePages, ThatAreDamagedAreNamed)
{
    const support::RecordMessages remarks; // of the libraries that read them
    const QByteArray whole = file(black(100, 100, 96, 96));
    EXPECT_EQ(refusal(whole.first(whole.size() / 2), "torn.png"), "torn.png: the image is damaged");
    EXPECT_EQ(refusal("\xff\xd8\xff\xe0", "torn.jpg"), "torn.jpg: the image is damaged");
    EXPECT_EQ(refusal("GIF89a", "torn.gif"), "torn.gif: the image is damaged");
}

quint32 checksum(const QByteArray &bytes)
{
    quint32 sum = 0xffffffff;
    for (const char each : bytes) {
        sum ^= static_cast<unsigned char>(each);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? sum >> 1 ^ 0xedb88320 : sum >> 1;
    }
    return ~sum;
}

QByteArray bigEndian(quint32 value)
{
    QByteArray bytes = number(value, 4);
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

/// The first lines of a PNG that says it is so large.
QByteArray png(quint32 width, quint32 height)
{
    const QByteArray header = "IHDR" + bigEndian(width) + bigEndian(height) + QByteArray("\x08\2\0\0\0", 5);
    return QByteArray("\x89PNG\r\n\x1a\n") + bigEndian(13) + header + bigEndian(checksum(header)) + bigEndian(0) +
           "IDAT" + bigEndian(checksum("IDAT"));
}

TEST_F(ImagePages, ThatWouldTakeTooMuchMemoryAreRefused)
{
    const support::RecordMessages remarks;
    EXPECT_EQ(refusal(png(8192, 8193), "wall.png"), "wall.png: the image is too large to be laid out");
    EXPECT_EQ(refusal(png(8192, 8192), "wall.png"), "wall.png: the image is damaged"); // it has no pixels
}

TEST_F(ImagePages, OfMorePixelsThanAnyHeadBurnsKeepTheirSizeOnPaper)
{
    QImage large(8000, 6000, QImage::Format_Mono);
    large.fill(Qt::color0);
    large.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    large.setDotsPerMeterX(qRound(1200 * kDotsPerMetre));
    large.setDotsPerMeterY(qRound(1200 * kDotsPerMetre));
    const PDF result = pdf(file(large), kSheet);
    expectNear(result.ink(), inTheMiddle(480, 360));
    const QSize kept = result.image().size();
    EXPECT_LE(kept.width() * kept.height(), 36'000'000);
    EXPECT_GE(kept.width() * kept.height(), 35'000'000);
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(ImagePages, WithoutMemoryForThemAreNotEmpty)
{
    const support::RecordMessages remarks;
    QImage large(8000, 6000, QImage::Format_Mono); // six megabytes; as many colours as a page has take 192
    large.fill(Qt::color0);
    const auto image = document(file(large), "large.png");
    QFile memory("/proc/self/statm");
    ASSERT_TRUE(memory.open(QIODevice::ReadOnly));
    const auto taken = memory.readAll().split(' ').first().toULongLong() * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_AS, &limit), 0);
    const rlimit little{taken + (rlim_t{100} << 20), limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &little), 0);
    const auto result = laidOut(image, kSheet);
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &limit), 0);
    EXPECT_EQ(support::sentence(result), "large.png: the image is too large to be laid out");
}
#endif

TEST_F(ImagePages, OfFilesThatAreTooLargeAreRefused)
{
    document(png(10, 10), "vast.png");
    QFile vast(path("vast.png"));
    ASSERT_TRUE(vast.resize((128 << 20) + 1));
    EXPECT_EQ(support::sentence(laidOut(value(host::Document::open(path("vast.png"))), kSheet)),
              "vast.png: the image is too large to be laid out");
}

TEST_F(ImagePages, AreRefusedForPapersThatNoPDFHas)
{
    EXPECT_EQ(refusal(file(black(10, 10, 96, 96)), "a.png", {{0, 792}, {}}), "a.png: can't be laid out for this paper");
}

TEST_F(ImagePages, AreNotMadeWhenNobodyWantsThemAnyMore)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(support::sentence(laidOut(document(file(black(10, 10, 96, 96))), kSheet, stop.get_token())), "cancelled");
}

class Damage : public ImagePages, public testing::WithParamInterface<const char *>
{};

TEST_P(Damage, EndsInAPageOrInASentence)
{
    const support::RecordMessages remarks;
    std::mt19937 random(1);
    const QByteArray name = GetParam();
    const QByteArray whole = name == "gif" ? kAnimation : name == "tiff" ? tiff(2) : file(black(60, 40, 96, 96), name);
    for (int i = 0; i < 300; ++i) {
        QByteArray bytes = whole;
        for (unsigned j = 0; j <= random() % 6; ++j)
            bytes[int(8 + random() % (bytes.size() - 8))] = static_cast<char>(random());
        const auto result = laidOut(document(bytes, "x." + name), kSheet);
        EXPECT_TRUE(result ? (*result)->format() == "application/pdf" : result.problem().sentence.startsWith("x."));
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Damage, testing::Values("png", "jpeg", "gif", "tiff"));

} // namespace
