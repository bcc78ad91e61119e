#include "GreySource.h"

#include <algorithm>
#include <cmath>

namespace halftone {
namespace {

// Lengths are pixels, tones run from 0 (black) to 1 (white). Only + - * / and sqrt are used: they are exactly rounded,
// so that every machine computes the same picture.

struct Vector
{
    double x, y, z;
};

constexpr double dot(Vector a, Vector b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

constexpr Vector kBallCentre{48, 36, 0};
constexpr double kBallRadius = 30;
constexpr Vector kToLight{-0.36, -0.48, 0.8};       // from the upper left, in front
constexpr Vector kMirror{-0.1897, -0.2530, 0.9487}; // halfway between the light and the viewer
constexpr Vector kShadowCentre{57, 66, 0};
constexpr Vector kShadowRadii{36, 11, 0};
constexpr double kGroundTone = 0.92;
constexpr int kWedgeTop = 81;

double wedgeTone(int x) { return static_cast<double>(x) / (GreyImage::side - 1); }

double groundTone(double x, double y)
{
    const double dx = (x - kShadowCentre.x) / kShadowRadii.x;
    const double dy = (y - kShadowCentre.y) / kShadowRadii.y;
    const double depth = std::max(0.0, 1 - dx * dx - dy * dy);
    return kGroundTone * (1 - 0.75 * depth);
}

double highlight(Vector normal)
{
    double gloss = std::max(0.0, dot(normal, kMirror));
    for (int squaring = 0; squaring < 5; ++squaring)
        gloss *= gloss;
    return gloss;
}

// The rim stays below mid grey all round, so that the ball keeps its outline even when only black and white are left.
double ballTone(Vector normal)
{
    const double light = std::max(0.0, dot(normal, kToLight));
    return 0.06 + 0.66 * light + 0.45 * highlight(normal);
}

double tone(int x, int y)
{
    if (y >= kWedgeTop)
        return wedgeTone(x);
    const double dx = (x - kBallCentre.x) / kBallRadius;
    const double dy = (y - kBallCentre.y) / kBallRadius;
    const double height = 1 - dx * dx - dy * dy;
    return height > 0 ? ballTone({dx, dy, std::sqrt(height)}) : groundTone(x, y);
}

} // namespace

GreyImage greySource()
{
    GreyImage image;
    for (int y = 0; y < GreyImage::side; ++y)
        for (int x = 0; x < GreyImage::side; ++x)
            image.at(x, y) = static_cast<std::uint8_t>(std::lround(255 * std::clamp(tone(x, y), 0.0, 1.0)));
    return image;
}

} // namespace halftone
