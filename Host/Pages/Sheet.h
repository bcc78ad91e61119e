// A sheet of paper, and the part of it that a printer can reach.
#pragma once

#include "Printing/PrintSettings.h"

#include <QRectF>

namespace host {

struct Sheet
{
    printing::Paper size;
    QRectF printable; // in points, y downward from the upper left corner; the whole sheet when nothing is known

    friend bool operator==(const Sheet &, const Sheet &) = default;
};

} // namespace host
