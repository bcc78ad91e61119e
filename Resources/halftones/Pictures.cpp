#include "Pictures.h"

#include <algorithm>

namespace halftone {

QImage picture(const GreyImage &grey)
{
    QImage picture(GreyImage::side, GreyImage::side, QImage::Format_Grayscale8);
    for (int y = 0; y < GreyImage::side; ++y)
        std::copy_n(&grey.levels[GreyImage::index(0, y)], GreyImage::side, picture.scanLine(y));
    return picture;
}

QImage doubled(const QImage &dots)
{
    return dots.scaled(2 * dots.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

} // namespace halftone
