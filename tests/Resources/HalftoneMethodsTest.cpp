#include "Pictures.h"

#include "Halftone/Methods.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

using namespace halftone;

namespace {

using Method = QImage (*)(const QImage &);

constexpr std::array<Method, 3> kMethods{threshold, orderedDither, errorDiffusion};

QImage flatField(int level)
{
    QImage grey(GreyImage::side, GreyImage::side, QImage::Format_Grayscale8);
    grey.fill(static_cast<uint>(level));
    return grey;
}

bool isWhite(const QImage &dots, int x, int y) { return dots.pixel(x, y) == qRgb(255, 255, 255); }
bool isBlack(const QImage &dots, int x, int y) { return dots.pixel(x, y) == qRgb(0, 0, 0); }

double whiteShare(const QImage &dots)
{
    int white = 0;
    for (int y = 0; y < dots.height(); ++y)
        for (int x = 0; x < dots.width(); ++x)
            white += isWhite(dots, x, y) ? 1 : 0;
    return static_cast<double>(white) / (dots.width() * dots.height());
}

void expectFlatFieldsKept(Method method, double tolerance)
{
    for (int level = 0; level <= 255; ++level)
        EXPECT_NEAR(whiteShare(method(flatField(level))), level / 255.0, tolerance) << "level " << level;
}

} // namespace

TEST(HalftoneMethods, EveryPictureIsOneDotPerLevelInBlackAndWhiteOnly)
{
    for (const Method method : kMethods) {
        const QImage dots = method(picture(greySource()));
        ASSERT_EQ(dots.format(), QImage::Format_Mono);
        ASSERT_EQ(dots.size(), QSize(GreyImage::side, GreyImage::side));
        for (int y = 0; y < dots.height(); ++y)
            for (int x = 0; x < dots.width(); ++x)
                ASSERT_TRUE(isBlack(dots, x, y) || isWhite(dots, x, y)) << x << "," << y;
    }
}

TEST(HalftoneMethods, ThresholdIsWhiteFromMidGreyUp)
{
    const GreyImage grey = greySource();
    const QImage dots = threshold(picture(grey));
    for (int y = 0; y < GreyImage::side; ++y)
        for (int x = 0; x < GreyImage::side; ++x)
            ASSERT_EQ(isWhite(dots, x, y), grey.at(x, y) >= 128) << x << "," << y;
}

TEST(HalftoneMethods, ThresholdTurnsExactlyAt128)
{
    EXPECT_EQ(whiteShare(threshold(flatField(127))), 0);
    EXPECT_EQ(whiteShare(threshold(flatField(128))), 1);
}

TEST(HalftoneMethods, OrderedDitherKeepsTheMeanOfEveryFlatField) { expectFlatFieldsKept(orderedDither, 1.0 / 64); }

TEST(HalftoneMethods, OrderedDitherRepeatsEveryEightDots)
{
    const QImage dots = orderedDither(flatField(100));
    for (int y = 0; y < GreyImage::side; ++y)
        for (int x = 0; x < GreyImage::side; ++x)
            ASSERT_EQ(dots.pixel(x, y), dots.pixel(x % 8, y % 8)) << x << "," << y;
}

TEST(HalftoneMethods, OrderedDitherOfMidGreyIsACheckerboard)
{
    const QImage dots = orderedDither(flatField(128));
    for (int y = 0; y < GreyImage::side; ++y)
        for (int x = 0; x < GreyImage::side; ++x)
            ASSERT_EQ(isWhite(dots, x, y), (x + y) % 2 == 0) << x << "," << y;
}

TEST(HalftoneMethods, ErrorDiffusionKeepsTheMeanOfEveryFlatField) { expectFlatFieldsKept(errorDiffusion, 0.01); }

TEST(HalftoneMethods, ErrorDiffusionHandsOnWhatADotIsWrongBy)
{
    QImage grey(3, 2, QImage::Format_Grayscale8);
    const uchar levels[2][3] = {{0, 100, 100}, {120, 120, 255}};
    for (int y = 0; y < 2; ++y)
        std::copy_n(levels[y], 3, grey.scanLine(y));
    const QImage dots = errorDiffusion(grey);
    // The first 100 is black and gives 43.75 to the other, which so becomes white and is 111.25 too much. Of that the
    // white below is told 34.8, and the 120 beside it, walked backwards, comes to 117.9: black. The last has 190.
    const bool white[2][3] = {{false, false, true}, {true, false, true}};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(isWhite(dots, x, y), white[y][x]) << x << "," << y;
}

TEST(HalftoneMethods, TakePicturesOfAnySize)
{
    for (const Method method : kMethods)
        for (const QSize size : {QSize(1, 1), QSize(7, 3), QSize(8, 1), QSize(9, 2), QSize(33, 5), QSize(1, 40)}) {
            QImage grey(size, QImage::Format_Grayscale8);
            grey.fill(255U);
            const QImage dots = method(grey);
            ASSERT_EQ(dots.size(), size);
            EXPECT_EQ(whiteShare(dots), 1) << size.width() << "x" << size.height();
        }
}

TEST(HalftoneMethods, DenseVariantIsEveryDotAsTwoByTwoPixels)
{
    for (const Method method : kMethods) {
        const QImage dots = method(picture(greySource()));
        const QImage dense = doubled(dots);
        ASSERT_EQ(dense.format(), QImage::Format_Mono);
        ASSERT_EQ(dense.size(), 2 * dots.size());
        for (int y = 0; y < dense.height(); ++y)
            for (int x = 0; x < dense.width(); ++x)
                ASSERT_EQ(dense.pixel(x, y), dots.pixel(x / 2, y / 2)) << x << "," << y;
    }
}

TEST(GreySource, WedgeRunsFromBlackToWhiteAlongTheBottom)
{
    const GreyImage grey = greySource();
    const int bottom = GreyImage::side - 1;
    EXPECT_EQ(grey.at(0, bottom), 0);
    EXPECT_EQ(grey.at(bottom, bottom), 255);
    for (int x = 1; x <= bottom; ++x)
        EXPECT_GT(grey.at(x, bottom), grey.at(x - 1, bottom)) << x;
}
