// What a TIFF says of the parts that its pictures are kept in, strips or tiles. Whoever reads a picture takes memory
// for a whole part before anything of it is there, so that a file of a hundred bytes can ask for gigabytes.
#pragma once

#include <QByteArray>

namespace host {

/// Of the largest part among the first `pictures`, in bytes when it is unpacked. Beyond all limits where it is told in
/// a way that can't be followed; 0 where nothing is told.
double largestPartOfTIFF(const QByteArray &content, int pictures);

} // namespace host
