// Pictures of pages as files.
#pragma once

#include "Foundation/Or.h"

#include <QCoreApplication>
#include <QImage>

namespace host {

class PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(host::PictureFile)

public:
    /// Writes a QImage::Format_Mono as a PNG of one bit of grey, a Format_Grayscale8 as one of eight, with the
    /// picture's resolution. The file is replaced when all of it has been written, or left alone.
    static foundation::Or<void> write(const QImage &picture, const QString &path);
};

} // namespace host
