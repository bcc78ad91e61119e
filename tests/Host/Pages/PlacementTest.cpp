// Pages on sheets, compared with what the filters of CUPS make of the same document for the same printer.
#include "PDFText.h"
#include "PPDText.h"
#include "Print.h"
#include "Results.h"

#include "PPD/PPDDocument.h"
#include "Pages/PrintedPages.h"

#include <QProcess>

#include <gtest/gtest.h>

using namespace host;
using support::PDFText;
using support::value;

namespace {

constexpr Resolution kDotsOfPoints{72, 72};
constexpr auto kPaper = "A4"; // of a size of its own in each PPD

struct PaperRow
{
    const char *name;
    QByteArray size;
    QByteArray area; // left, bottom, right, top
};

const std::array kPapers{
    PaperRow{"portrait paper", "595 842", "18 36 577 806"},
    PaperRow{"landscape paper", "842 595", "36 18 806 577"},
    PaperRow{"paper without margins", "595 842", "0 0 595 842"},
    PaperRow{"a strip with a margin at one side", "204 842", "24 0 204 842"},
};

/// A printer of one paper whose driver takes a raster, so that the page is put on the sheet before it.
QString ppdOf(const PaperRow &paper)
{
    const QByteArray text = support::PPDText().attribute("cupsFilter", "application/vnd.cups-raster 0 x").text();
    return support::fileOf(
        QByteArray(text)
            .replace("*ImageableArea A4: \"0 0 595 842\"", "*ImageableArea A4: \"" + paper.area + "\"")
            .replace("*PaperDimension A4: \"595 842\"", "*PaperDimension A4: \"" + paper.size + "\""),
        "ppd");
}

Sheet sheetOf(const QString &ppd)
{
    const auto document = value(PPDDocument::open(ppd));
    const auto size = document->pageSize(kPaper).value();
    return {size, document->printableArea(kPaper, size), document->turnsLeft()};
}

QByteArray output(const QString &program, const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

/// The first sheet as the driver gets it, a dot a point, and white where the printer can't reach.
QImage printed(const QString &document, const QString &ppd, const QString &scaling)
{
    const QByteArray pdf = output("/usr/sbin/cupsfilter",
                                  {"-p", ppd, "-m", "application/vnd.cups-pdf", "-o",
                                   QString("PageSize=%1").arg(kPaper), "-o", "print-scaling=" + scaling, document});
    const auto page = QImage::fromData(output("pdftoppm", {"-gray", "-r", "72", "-l", "1", "-"}, pdf));
    const SheetDots dots(sheetOf(ppd), kDotsOfPoints);
    return page.size() == dots.size() ? dots.withPage(page.convertToFormat(QImage::Format_Grayscale8),
                                                      {false, QRectF({}, QSizeF(dots.size()))})
                                      : page;
}

QImage expected(const QString &document, const QString &ppd, const QString &scaling)
{
    const Sheet sheet = sheetOf(ppd);
    const auto pages = value(PrintedPages::of(value(Document::open(document)), sheet, scalingNamed(scaling), {}, {}));
    return value(pages.sheet(0, SheetDots(sheet, kDotsOfPoints), {}));
}

bool isDark(const QImage &grey, int x, int y) { return qGray(grey.pixel(x, y)) < 128; }

bool hasDarkNear(const QImage &grey, QPoint place)
{
    const QRect near = QRect(place - QPoint(1, 1), QSize(3, 3)) & grey.rect();
    for (int y = near.top(); y <= near.bottom(); ++y)
        for (int x = near.left(); x <= near.right(); ++x)
            if (isDark(grey, x, y))
                return true;
    return false;
}

/// How many dark dots of one sheet are more than a point away from those of another.
int strays(const QImage &of, const QImage &from)
{
    int count = 0;
    for (int y = 0; y < of.height(); ++y)
        for (int x = 0; x < of.width(); ++x)
            count += isDark(of, x, y) && !hasDarkNear(from, {x, y});
    return count;
}

struct PageRow
{
    const char *name;
    PDFText document;
};

void PrintTo(const PageRow &row, std::ostream *out) { *out << row.name; }

PageRow one(const char *name, double width, double height, const QByteArray &entries = {})
{
    return {name, PDFText().page({width, height}, {}, entries)};
}

const std::array kPages{
    one("Small", 300, 400),
    one("A4", 595, 842),
    one("A5", 420, 595),
    one("Landscape", 842, 595),
    one("SmallLandscape", 400, 300),
    one("Square", 500, 500),
    one("LargeSquare", 900, 900),
    one("AFiftiethWider", 607, 842),
    one("ALittleMoreThanThat", 608, 842),
    one("AFiftiethHigher", 300, 859.8),
    one("LandscapeWithinTheTolerance", 850, 300),
    one("LandscapeBeyondTheTolerance", 860, 300),
    one("Wide", 2000, 200),
    one("Tall", 200, 2000),
    one("Large", 700, 1000),
    one("OfATicketPrinter", 204, 500),
    PageRow{"SmallBeforeALargeOne", PDFText().page({300, 400}).page({700, 1000})},
    PageRow{"SmallBeforeALargeLandscape", PDFText().page({300, 400}).page({1000, 300})},
    one("TurnedByItself", 300, 400, "/Rotate 90"),
    one("TurnedTheOtherWay", 700, 1000, "/Rotate 270"),
    one("UpsideDown", 300, 400, "/Rotate 180"),
    PageRow{"Cropped",
            PDFText().page({842, 1190}, support::marksIn({100, 100, 400, 500}), "/CropBox [100 100 500 600]")},
    PageRow{"CroppedAndTurned", PDFText().page({842, 1190}, support::marksIn({100, 100, 400, 700}),
                                               "/CropBox [100 100 500 800] /Rotate 90")},
};

class Page : public testing::TestWithParam<PageRow>
{};

TEST_P(Page, StandsOnTheSheetWhereCupsPutsIt)
{
    const QString document = GetParam().document.file();
    for (const PaperRow &paper : kPapers) {
        const QString ppd = ppdOf(paper);
        for (const char *scaling : {"auto", "auto-fit", "fit", "fill", "none", "FIT", "nonsense"}) {
            const QImage ours = expected(document, ppd, scaling);
            const QImage theirs = printed(document, ppd, scaling);
            ASSERT_EQ(ours.size(), theirs.size()) << paper.name << ", " << scaling;
            EXPECT_EQ(strays(ours, theirs) + strays(theirs, ours), 0) << paper.name << ", " << scaling;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Page, testing::ValuesIn(kPages),
                         [](const auto &row) { return std::string(row.param.name); });

} // namespace
