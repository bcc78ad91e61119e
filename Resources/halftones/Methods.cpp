#include "Methods.h"

#include <algorithm>
#include <array>

namespace halftone {
namespace {

constexpr int kWhite = 255;
constexpr int kMidGrey = 128;

// Without a colour table of their own, the bits of a Format_Mono picture are 0 for black and 1 for white.
template <class IsWhite>
QImage dotsWhere(IsWhite isWhite)
{
    QImage dots(GreyImage::side, GreyImage::side, QImage::Format_Mono);
    for (int y = 0; y < GreyImage::side; ++y)
        for (int x = 0; x < GreyImage::side; ++x)
            dots.setPixel(x, y, isWhite(x, y) ? 1 : 0);
    return dots;
}

constexpr int kBayerSide = 8;
constexpr int kBayerRanks = kBayerSide * kBayerSide;

// Bayer's matrix of the given side: each doubling sets four copies side by side and interleaves their ranks in the
// order of the 2x2 matrix.
constexpr int bayerRank(int x, int y, int side = kBayerSide)
{
    constexpr int kSmallest[2][2] = {{0, 2}, {3, 1}};
    if (side == 1)
        return 0;
    const int half = side / 2;
    return 4 * bayerRank(x % half, y % half, half) + kSmallest[y / half][x / half];
}
static_assert(bayerRank(0, 0) == 0 && bayerRank(1, 0) == 32 && bayerRank(0, 7) == 63 && bayerRank(7, 7) == 21);

struct Share
{
    int ahead, down, sixteenths;
};

// Floyd and Steinberg's filter; "ahead" is the direction in which the row is walked.
constexpr std::array kShares{Share{1, 0, 7}, Share{-1, 1, 3}, Share{0, 1, 5}, Share{1, 1, 1}};

constexpr bool isInside(int x, int y) { return x >= 0 && x < GreyImage::side && y < GreyImage::side; }

} // namespace

QImage threshold(const GreyImage &grey)
{
    return dotsWhere([&](int x, int y) { return grey.at(x, y) >= kMidGrey; });
}

// A flat field of grey g gets the share of white dots nearest to g: a rank counts from the middle of its step.
QImage orderedDither(const GreyImage &grey)
{
    return dotsWhere([&](int x, int y) {
        const int rank = bayerRank(x % kBayerSide, y % kBayerSide);
        return grey.at(x, y) * 2 * kBayerRanks > (2 * rank + 1) * kWhite;
    });
}

// Every other row is walked backwards, so that the dots do not line up along one slant.
QImage errorDiffusion(const GreyImage &grey)
{
    std::array<double, GreyImage::count> wanted{};
    std::ranges::copy(grey.levels, wanted.begin());
    const auto at = [&](int x, int y) -> double & { return wanted[GreyImage::index(x, y)]; };

    QImage dots(GreyImage::side, GreyImage::side, QImage::Format_Mono);
    for (int y = 0; y < GreyImage::side; ++y) {
        const int forward = y % 2 == 0 ? 1 : -1;
        for (int step = 0; step < GreyImage::side; ++step) {
            const int x = forward > 0 ? step : GreyImage::side - 1 - step;
            const bool white = at(x, y) >= kMidGrey;
            dots.setPixel(x, y, white ? 1 : 0);
            const double error = at(x, y) - (white ? kWhite : 0);
            for (const Share &share : kShares)
                if (const int nextX = x + forward * share.ahead; isInside(nextX, y + share.down))
                    at(nextX, y + share.down) += error * share.sixteenths / 16;
        }
    }
    return dots;
}

QImage doubled(const QImage &dots)
{
    return dots.scaled(2 * dots.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

} // namespace halftone
