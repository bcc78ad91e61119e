#include "Shrinking.h"

#include <algorithm>
#include <vector>

namespace host {

namespace {

/// Which of `count` pixels each of `dots` dots falls on.
std::vector<int> pixelsOf(int dots, int count)
{
    std::vector<int> pixels(static_cast<std::size_t>(dots));
    for (int dot = 0; dot < dots; ++dot)
        pixels[static_cast<std::size_t>(dot)] = static_cast<int>(qint64{dot} * count / dots);
    return pixels;
}

std::vector<int> dotsOf(const std::vector<int> &pixels, int count)
{
    std::vector<int> dots(static_cast<std::size_t>(count));
    for (const int pixel : pixels)
        ++dots[static_cast<std::size_t>(pixel)];
    return dots;
}

void addDots(const uchar *bits, const std::vector<int> &pixels, std::vector<int> &sums)
{
    constexpr int kWhite = 255;
    for (std::size_t x = 0; x < pixels.size(); ++x)
        sums[static_cast<std::size_t>(pixels[x])] += -((bits[x / 8] >> (7 - x % 8)) & 1) & kWhite;
}

void addLevels(const uchar *levels, const std::vector<int> &pixels, std::vector<int> &sums)
{
    for (std::size_t x = 0; x < pixels.size(); ++x)
        sums[static_cast<std::size_t>(pixels[x])] += levels[x];
}

} // namespace

QImage shrunk(const QImage &picture, QSize size)
{
    if (size.width() >= picture.width() || size.height() >= picture.height())
        return picture.convertToFormat(QImage::Format_Grayscale8).scaled(size);
    const std::vector<int> columns = pixelsOf(picture.width(), size.width());
    const std::vector<int> widths = dotsOf(columns, size.width());
    const auto add = picture.format() == QImage::Format_Mono ? addDots : addLevels;
    QImage result(size, QImage::Format_Grayscale8);
    std::vector<int> sums(static_cast<std::size_t>(size.width()));
    for (int y = 0, row = 0; y < size.height(); ++y) {
        std::ranges::fill(sums, 0);
        const int first = row;
        for (; row < picture.height() && qint64{row} * size.height() / picture.height() == y; ++row)
            add(picture.constScanLine(row), columns, sums);
        uchar *const levels = result.scanLine(y);
        for (std::size_t x = 0; x < sums.size(); ++x)
            levels[x] = static_cast<uchar>(sums[x] / std::max(1, widths[x] * (row - first)));
    }
    return result;
}

} // namespace host
