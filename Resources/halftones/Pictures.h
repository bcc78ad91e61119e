#pragma once

#include "GreySource.h"

#include <QImage>

namespace halftone {

/// As the methods take it.
QImage picture(const GreyImage &grey);

/// The same dots, each 2x2 pixels, for displays of twice the density.
QImage doubled(const QImage &dots);

} // namespace halftone
