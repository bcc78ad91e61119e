// Where a page comes to stand on a sheet: as CUPS puts it there, before the driver sees it.
#pragma once

#include "Sheet.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace host {

/// Of `print-scaling`, and as the server reads it.
enum class Scaling {
    automatic, // as it is; what is larger than the paper is fitted, or fills a paper without margins
    autoFit,   // the same, but for such a paper
    fit,       // as large as the printable area allows
    fill,      // until it covers the printable area
    none,      // as it is, and cut
};

/// As the server reads a name, letter case aside; one that it does not know is `none`.
Scaling scalingNamed(const QString &name);
QString nameOf(Scaling scaling);

/// The option of a job that says it, and those by which older programs ask for `fit`.
inline constexpr auto kPrintScaling = "print-scaling";
inline constexpr auto kFill = "fill";
inline constexpr auto kFitPlot = "fitplot";
inline constexpr auto kFitToPage = "fit-to-page";
inline constexpr std::array kOlderScalings{kFill, kFitPlot, kFitToPage};

/// What a document's pages are put on sheets by: `automatic` is decided once for all of them, by the largest. Sizes are
/// in points, as pages are looked at.
Scaling decided(Scaling wanted, const std::vector<QSizeF> &pages, const Sheet &sheet);

/// A page's size as it lies on a sheet: landscape pages are turned on portrait paper, and the other way about.
QSizeF turnedFor(const Sheet &sheet, QSizeF page);

struct Placement
{
    bool isTurned = false; // by a quarter, as the sheet turns pages that lie across it
    QRectF where;          // of the page as it is turned, on the sheet, in points from its upper left corner
};

/// `scaling` has been decided.
Placement placementOf(QSizeF page, const Sheet &sheet, Scaling scaling);

} // namespace host
