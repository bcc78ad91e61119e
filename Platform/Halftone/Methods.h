// The three ways in which a thermal head makes grey out of black and white.
#pragma once

#include <QImage>

namespace halftone {

// Each method turns a picture of grey levels (QImage::Format_Grayscale8) into dots of the same size, one a level
// (QImage::Format_Mono, 1 is white).

QImage threshold(const QImage &grey);
QImage orderedDither(const QImage &grey);
QImage errorDiffusion(const QImage &grey);

} // namespace halftone
