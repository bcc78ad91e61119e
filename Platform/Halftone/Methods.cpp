#include "Methods.h"

#include <algorithm>
#include <array>
#include <vector>

namespace halftone {
namespace {

constexpr int kWhite = 255;
constexpr int kMidGrey = 128;
constexpr int kBitsOfByte = 8;

constexpr int kSide = 8; // of the pattern that repeats over a picture, so that a byte of dots is one row of it
constexpr int kRanks = kSide * kSide;

/// From which grey on a dot is white.
using Pattern = std::array<std::array<uchar, kSide>, kSide>;

// Bayer's matrix of the given side: each doubling sets four copies side by side and interleaves their ranks in the
// order of the 2x2 matrix.
constexpr int bayerRank(int x, int y, int side = kSide)
{
    constexpr int kSmallest[2][2] = {{0, 2}, {3, 1}};
    if (side == 1)
        return 0;
    const int half = side / 2;
    return 4 * bayerRank(x % half, y % half, half) + kSmallest[y / half][x / half];
}
static_assert(bayerRank(0, 0) == 0 && bayerRank(1, 0) == 32 && bayerRank(0, 7) == 63 && bayerRank(7, 7) == 21);

// A flat field of grey g gets the share of white dots nearest to g: a rank counts from the middle of its step.
constexpr uchar whiteFrom(int rank) { return static_cast<uchar>((2 * rank + 1) * kWhite / (2 * kRanks) + 1); }

constexpr Pattern bayerPattern()
{
    Pattern pattern{};
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            pattern[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = whiteFrom(bayerRank(x, y));
    return pattern;
}

constexpr Pattern flatPattern(int level)
{
    Pattern pattern{};
    for (auto &row : pattern)
        row.fill(static_cast<uchar>(level));
    return pattern;
}

QImage emptyDots(const QImage &grey)
{
    Q_ASSERT(grey.format() == QImage::Format_Grayscale8);
    // Without a colour table of their own, the bits of a Format_Mono picture are 0 for black and 1 for white.
    QImage dots(grey.size(), QImage::Format_Mono);
    dots.setDotsPerMeterX(grey.dotsPerMeterX());
    dots.setDotsPerMeterY(grey.dotsPerMeterY());
    return dots;
}

QImage dotsBy(const Pattern &pattern, const QImage &grey)
{
    QImage dots = emptyDots(grey);
    for (int y = 0; y < grey.height(); ++y) {
        const uchar *const levels = grey.constScanLine(y);
        uchar *const bytes = dots.scanLine(y);
        const auto &limits = pattern[static_cast<std::size_t>(y % kSide)];
        for (int x = 0; x < grey.width(); x += kBitsOfByte) {
            const int count = std::min(kBitsOfByte, grey.width() - x);
            unsigned byte = 0;
            for (int bit = 0; bit < count; ++bit)
                byte |= (levels[x + bit] >= limits[static_cast<std::size_t>(bit)] ? 0x80U : 0U) >> bit;
            bytes[x / kBitsOfByte] = static_cast<uchar>(byte);
        }
    }
    return dots;
}

/// Sums of a row that the row above has left, in fractions of a level; one beyond each end takes what leaves the
/// picture.
using Errors = std::vector<int>;
constexpr int kFractions = 256;

/// One row by Floyd and Steinberg's filter: 7/16 of what a dot is wrong by go to the next, 3/16, 5/16 and 1/16 to the
/// three below. `forward` is 1 or -1: every other row is walked backwards, so that the dots do not line up along one
/// slant. The last share takes what rounding leaves: no grey is lost.
void diffuseRow(const uchar *levels, int width, int forward, const Errors &carried, Errors &below, uchar *bytes)
{
    int ahead = 0;
    for (int step = 0, x = forward > 0 ? 0 : width - 1; step < width; ++step, x += forward) {
        const int wanted = levels[x] * kFractions + carried[static_cast<std::size_t>(x) + 1] + ahead;
        const bool isWhite = wanted >= kMidGrey * kFractions;
        bytes[x / kBitsOfByte] |= static_cast<uchar>((isWhite ? 0x80U : 0U) >> (x % kBitsOfByte));
        const int error = wanted - (isWhite ? kWhite * kFractions : 0);
        ahead = error * 7 / 16;
        const int behind = error * 3 / 16;
        const int straight = error * 5 / 16;
        int *const under = below.data() + x + 1;
        under[-forward] += behind;
        under[0] += straight;
        under[forward] += error - ahead - behind - straight;
    }
}

} // namespace

QImage threshold(const QImage &grey)
{
    static constexpr Pattern kMiddle = flatPattern(kMidGrey);
    return dotsBy(kMiddle, grey);
}

QImage orderedDither(const QImage &grey)
{
    static constexpr Pattern kBayer = bayerPattern();
    return dotsBy(kBayer, grey);
}

QImage errorDiffusion(const QImage &grey)
{
    QImage dots = emptyDots(grey);
    dots.fill(0U);
    Errors carried(static_cast<std::size_t>(grey.width()) + 2);
    Errors below = carried;
    for (int y = 0; y < grey.height(); ++y) {
        diffuseRow(grey.constScanLine(y), grey.width(), y % 2 == 0 ? 1 : -1, carried, below, dots.scanLine(y));
        std::swap(carried, below);
        std::ranges::fill(below, 0);
    }
    return dots;
}

} // namespace halftone
