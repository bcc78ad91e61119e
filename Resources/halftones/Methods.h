#pragma once

#include "GreySource.h"

#include <QImage>

namespace halftone {

// Each method turns grey levels into black and white dots, one a level: a QImage::Format_Mono picture of the same size.

QImage threshold(const GreyImage &grey);
QImage orderedDither(const GreyImage &grey);
QImage errorDiffusion(const GreyImage &grey);

/// The same dots, each 2x2 pixels, for displays of twice the density.
QImage doubled(const QImage &dots);

} // namespace halftone
