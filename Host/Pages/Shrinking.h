// Pages in fewer pixels than they have dots.
#pragma once

#include <QImage>

namespace host {

/// A Format_Mono or Format_Grayscale8 picture in another size, as Format_Grayscale8: each pixel is the mean of the dots
/// that fall on it, so that a halftone is grey again. What has fewer dots than that is enlarged.
QImage shrunk(const QImage &picture, QSize size);

} // namespace host
