// A page as the thermal head burns it, dot by dot.
#include "Pages/BurntPage.h"

#include "Halftone/Methods.h"
#include "Print.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace host;
using Halftone = PDEPrintEffect::Halftone;

namespace {

struct NameRow
{
    const char *name;
    std::optional<Resolution> resolution;
};

void PrintTo(const NameRow &row, std::ostream *out) { *out << '"' << row.name << '"'; }

class NameOfAResolution : public testing::TestWithParam<NameRow>
{};

TEST_P(NameOfAResolution, MeansDotsAnInchOrNothing)
{
    EXPECT_EQ(resolutionNamed(GetParam().name), GetParam().resolution);
}

INSTANTIATE_TEST_SUITE_P(
    Of, NameOfAResolution,
    testing::Values(NameRow{"203dpi", Resolution{203, 203}}, NameRow{"300x200dpi", Resolution{300, 200}},
                    NameRow{"50dpi", Resolution{50, 50}}, NameRow{"1200x50dpi", Resolution{1200, 50}},
                    NameRow{"49dpi", {}}, NameRow{"1201dpi", {}}, NameRow{"300x0dpi", {}}, NameRow{"0dpi", {}},
                    NameRow{"99999dpi", {}}, NameRow{"999999999999dpi", {}}, NameRow{"-203dpi", {}}, NameRow{"203", {}},
                    NameRow{"203 dpi", {}}, NameRow{"203dpi\n", {}}, NameRow{"x203dpi", {}}, NameRow{"203xdpi", {}},
                    NameRow{"203x203x203dpi", {}}, NameRow{"2e2dpi", {}}, NameRow{"nandpi", {}}, NameRow{"٣٠٠dpi", {}},
                    NameRow{"dpi", {}}, NameRow{"", {}}));

/// 80 by 60 points, of which the head reaches 60 by 48; more at the left than at the right is out of its reach.
const Sheet kSheet{{80, 60}, QRectF(15, 5, 60, 48)};
constexpr Resolution kResolution{300, 200};

QImage greyOf(QSize size)
{
    QImage grey(size, QImage::Format_Grayscale8);
    for (int y = 0; y < grey.height(); ++y)
        for (int x = 0; x < grey.width(); ++x)
            grey.scanLine(y)[x] = static_cast<uchar>((x * 7 + y * y * 3) % 256);
    return grey;
}

PDEPrintEffect effectOf(std::optional<Halftone> method, bool reversed, bool mirrored)
{
    PDEPrintEffect effect;
    effect.halftone = method;
    effect.reversed = reversed;
    effect.mirrored = mirrored;
    return effect;
}

int levelAt(const QImage &picture, QPoint place) { return qGray(picture.pixel(place)); }

/// A sheet and a page that covers all of it.
class BurntSheet : public testing::Test
{
protected:
    QPoint mirrored(QPoint place) const
    {
        return {m_dots.printable().left() + m_dots.printable().right() - place.x(), place.y()};
    }
    QImage burnt(Halftone method, bool reversed, bool mirrored) const
    {
        return m_dots.burnt(m_grey, effectOf(method, reversed, mirrored));
    }
    /// What each dot is, within the head's reach by a rule and white beyond it.
    template <class Rule>
    void expectDots(const QImage &dots, const Rule &isWhite) const
    {
        ASSERT_EQ(dots.size(), m_dots.size());
        for (int y = 0; y < dots.height(); ++y)
            for (int x = 0; x < dots.width(); ++x) {
                const QPoint place(x, y);
                const bool white = !m_dots.printable().contains(place) || isWhite(place);
                ASSERT_EQ(levelAt(dots, place), white ? 255 : 0) << x << ", " << y;
            }
    }

    const SheetDots m_dots{kSheet, kResolution};
    const Placement m_everywhere{false, QRectF(0, 0, kSheet.size.width, kSheet.size.height)};
    const QImage m_grey = m_dots.withPage(greyOf(m_dots.size()), m_everywhere);
};

TEST_F(BurntSheet, HasTheDotsThatItsPointsAre)
{
    EXPECT_EQ(m_dots.size(), QSize(333, 167)); // 80 / 72 * 300 and 60 / 72 * 200, rounded
    EXPECT_EQ(m_dots.printable(), QRect(63, 14, 250, 133));
    EXPECT_EQ(SheetDots({{595, 842}, {}}, {}).size(), QSize(1678, 2374));
    EXPECT_EQ(m_grey.size(), m_dots.size());
    EXPECT_EQ(m_grey.dotsPerMeterX(), 11811);
    EXPECT_EQ(m_grey.dotsPerMeterY(), 7874);
}

TEST_F(BurntSheet, IsWhiteWhereTheHeadCannotReach)
{
    const QImage page = greyOf(m_dots.size());
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            ASSERT_EQ(levelAt(m_grey, {x, y}), m_dots.printable().contains(x, y) ? levelAt(page, {x, y}) : 255)
                << x << ", " << y;
}

TEST_F(BurntSheet, IsTheGreyOneWithoutAnEffect) { EXPECT_EQ(m_dots.burnt(m_grey, std::nullopt), m_grey); }

TEST_F(BurntSheet, IsBlackWhereTheGreyIsDark)
{
    for (const auto &method : {std::optional(Halftone::binary), std::optional<Halftone>()}) {
        const QImage dots = m_dots.burnt(m_grey, effectOf(method, false, false));
        EXPECT_EQ(dots.format(), QImage::Format_Mono);
        expectDots(dots, [&](QPoint place) { return levelAt(m_grey, place) >= 128; });
    }
}

TEST_F(BurntSheet, IsMadeByTheMethodThatIsChosen)
{
    EXPECT_EQ(burnt(Halftone::dither, false, false), halftone::orderedDither(m_grey));
    EXPECT_EQ(burnt(Halftone::diffusion, false, false), halftone::errorDiffusion(m_grey));
    EXPECT_NE(halftone::orderedDither(m_grey), halftone::errorDiffusion(m_grey));
}

TEST_F(BurntSheet, IsReversedWithinReach)
{
    expectDots(burnt(Halftone::binary, true, false), [&](QPoint place) { return levelAt(m_grey, place) < 128; });
}

TEST_F(BurntSheet, IsMirroredAboutTheMiddleOfTheHeadsReach)
{
    expectDots(burnt(Halftone::binary, false, true),
               [&](QPoint place) { return levelAt(m_grey, mirrored(place)) >= 128; });
}

TEST_F(BurntSheet, IsReversedAndMirroredAtOnce)
{
    expectDots(burnt(Halftone::binary, true, true),
               [&](QPoint place) { return levelAt(m_grey, mirrored(place)) < 128; });
}

TEST_F(BurntSheet, IsChangedAboutAfterTheMethod)
{
    for (const Halftone method : {Halftone::dither, Halftone::diffusion}) {
        const QImage plain = burnt(method, false, false);
        expectDots(burnt(method, true, true), [&](QPoint place) { return levelAt(plain, mirrored(place)) == 0; });
    }
}

TEST_F(BurntSheet, KeepsItsResolution)
{
    for (const bool changed : {false, true}) {
        EXPECT_EQ(burnt(Halftone::dither, changed, changed).dotsPerMeterX(), 11811);
        EXPECT_EQ(burnt(Halftone::dither, changed, changed).dotsPerMeterY(), 7874);
    }
}

/// Of 24 by 36 points, turned: 36 by 24 of the sheet.
const Placement kTurned{true, QRectF(24, 18, 36, 24)};

TEST_F(BurntSheet, HasAPageTurnedClockwise)
{
    ASSERT_EQ(m_dots.dotsOfPage(kTurned), QSize(67, 150)); // 24 points along the sheet, 36 across
    const QImage page = greyOf({67, 150});
    const QImage sheet = m_dots.withPage(page, kTurned);
    const QPoint corner(100, 50);
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            ASSERT_EQ(levelAt(sheet, corner + QPoint(page.height() - 1 - y, x)), levelAt(page, {x, y}))
                << x << ", " << y;
    EXPECT_EQ(levelAt(sheet, corner - QPoint(1, 0)), 255);
}

TEST_F(BurntSheet, HasAPageTurnedTheOtherWayWhereThePrinterTurnsSo)
{
    Sheet left = kSheet;
    left.turnsLeft = true;
    const QImage page = greyOf({67, 150});
    const QImage sheet = SheetDots(left, kResolution).withPage(page, kTurned);
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            ASSERT_EQ(levelAt(sheet, QPoint(100, 50) + QPoint(y, page.width() - 1 - x)), levelAt(page, {x, y}))
                << x << ", " << y;
}

TEST_F(BurntSheet, HasAPartOfAPageWhereTheWholeHasIt)
{
    Sheet turning = kSheet;
    turning.turnsLeft = true;
    for (const SheetDots &dots : {m_dots, SheetDots(turning, kResolution)})
        for (const Placement &placement : {Placement{false, QRectF(-24, -18, 120, 90)}, kTurned}) {
            const QImage page = greyOf(dots.dotsOfPage(placement));
            const QImage whole = dots.withPage(page, placement);
            const QRect area(90, 40, 57, 23); // reaches beyond the turned one
            QImage sheet = dots.withPage({}, placement);
            const QRect onPage = dots.onPage(area, placement);
            dots.put(sheet, page.copy(onPage), onPage, placement);
            EXPECT_EQ(sheet.copy(area), whole.copy(area));
            EXPECT_NE(sheet, whole);
        }
    EXPECT_EQ(m_dots.onPage(QRect(0, 0, 90, 40), kTurned), QRect());
}

TEST_F(BurntSheet, ComesOutOfTheSameAreaUnlessItIsMirrored)
{
    const QRect area(70, 10, 40, 30); // reaches beyond the head
    EXPECT_EQ(m_dots.burntFrom(area, std::nullopt), QRect(70, 14, 40, 26));
    EXPECT_EQ(m_dots.burntFrom(area, effectOf(Halftone::binary, true, false)), QRect(70, 14, 40, 26));
    const QRect other = m_dots.burntFrom(area, effectOf(Halftone::binary, false, true));
    EXPECT_EQ(other, QRect(mirrored({109, 14}), mirrored({70, 39})));
    EXPECT_TRUE(m_dots.burntFrom(QRect(0, 0, 63, 14), effectOf(Halftone::binary, false, true)).isEmpty());
}

TEST_F(BurntSheet, CutsAPageThatIsLargerThanItself)
{
    const Placement larger{false, QRectF(-24, -18, 120, 90)};
    const QImage page = greyOf(m_dots.dotsOfPage(larger));
    const QImage sheet = m_dots.withPage(page, larger);
    const QRect reach = m_dots.printable();
    for (const QPoint place : {reach.topLeft(), reach.bottomRight(), reach.center()})
        EXPECT_EQ(levelAt(sheet, place), levelAt(page, place - m_dots.at(larger.where).topLeft()));
    EXPECT_EQ(levelAt(sheet, reach.topLeft() - QPoint(1, 0)), 255);
}

TEST_F(BurntSheet, IsWhiteWhereAPageMissesIt)
{
    const Placement beside{false, QRectF(200, 200, 24, 18)};
    const QImage sheet = m_dots.withPage(greyOf(m_dots.dotsOfPage(beside)), beside);
    expectDots(sheet, [](QPoint) { return true; });
}

TEST_F(BurntSheet, IsBornWhenItFitsIntoMemory)
{
    EXPECT_TRUE(m_dots.isBearable());
    EXPECT_TRUE(SheetDots({{595, 2835}, {}}, {}).isBearable()); // a metre of A4
    for (const printing::Paper &size :
         {printing::Paper{595, 28'346'457}, {0, 842}, {-595, -842}, {1e300, 1e300}, {std::nan(""), 842}})
        EXPECT_FALSE(SheetDots({size, {}}, kResolution).isBearable()) << size.width << " x " << size.height;
    for (const QSizeF page : {QSizeF(210, -2e12), QSizeF(-2e12, 210), QSizeF(std::nan(""), 210), QSizeF(0.001, 1e12)})
        EXPECT_FALSE(m_dots.areBearable(page)) << page.width() << " x " << page.height();
}

} // namespace
