// By libpng itself: Qt writes dots as colours out of a table.
#include "PictureFile.h"

#include <QSaveFile>

#include <csetjmp>
#include <png.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

void append(png_structp png, png_bytep bytes, png_size_t count)
{
    static_cast<QByteArray *>(png_get_io_ptr(png))
        ->append(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(count));
}

void noFlush(png_structp) {}
void noWarning(png_structp, png_const_charp) {}

/// The library jumps here out of any of its calls when it can't go on: nothing in here has a destructor.
bool encode(png_structp png, png_infop info, const QImage &picture)
{
    if (setjmp(png_jmpbuf(png)) != 0) // NOLINT(cert-err52-cpp): the library's only way to fail
        return false;
    png_set_IHDR(png, info, static_cast<png_uint_32>(picture.width()), static_cast<png_uint_32>(picture.height()),
                 picture.format() == QImage::Format_Mono ? 1 : 8, PNG_COLOR_TYPE_GRAY, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(png, info, static_cast<png_uint_32>(picture.dotsPerMeterX()),
                 static_cast<png_uint_32>(picture.dotsPerMeterY()), PNG_RESOLUTION_METER);
    png_write_info(png, info);
    for (int y = 0; y < picture.height(); ++y)
        png_write_row(png, picture.constScanLine(y));
    png_write_end(png, info);
    return true;
}

/// Empty when there is no memory for it.
QByteArray encoded(const QImage &picture)
{
    QByteArray bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, noWarning);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (info)
        png_set_write_fn(png, &bytes, append, noFlush);
    const bool isWhole = info && encode(png, info, picture);
    png_destroy_write_struct(&png, &info);
    return isWhole ? bytes : QByteArray();
}

} // namespace

Or<void> PictureFile::write(const QImage &picture, const QString &path)
{
    const QByteArray bytes = encoded(picture);
    QSaveFile file(path);
    if (!bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return Problem{tr("%1: can't be written").arg(path)};
}

} // namespace host
