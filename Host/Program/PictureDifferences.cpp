// Comparing pictures dot by dot: what looks the same and is another shade differs.
#include "PictureDifferences.h"

namespace host {

namespace {

constexpr QRgb kRed = 0xffe00000;
constexpr int kPaleness = 4; // a shade keeps this fraction of its depth

QRgb pale(QRgb colour)
{
    const int grey = 255 - (255 - qGray(colour)) / kPaleness;
    return qRgb(grey, grey, grey);
}

QImage inDots(const QImage &picture) { return picture.convertToFormat(QImage::Format_ARGB32); }

} // namespace

PictureDifferences::PictureDifferences(const QImage &earlier, const QImage &now)
    : m_picture(earlier.size().expandedTo(now.size()), QImage::Format_RGB32)
{
    const QImage before = inDots(earlier);
    const QImage after = inDots(now);
    for (int y = 0; y < m_picture.height(); ++y) {
        for (int x = 0; x < m_picture.width(); ++x) {
            const bool isInBoth = before.valid(x, y) && after.valid(x, y);
            if (isInBoth && before.pixel(x, y) == after.pixel(x, y)) {
                m_picture.setPixel(x, y, pale(after.pixel(x, y)));
                continue;
            }
            m_picture.setPixel(x, y, kRed);
            m_within |= QRect(x, y, 1, 1);
            ++m_dots;
        }
    }
}

} // namespace host
