// Pages of a PDF, each on a sheet of its own.
#pragma once

#include "Pages/Placement.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

namespace host {

/// What is left of a page's own boxes, rotation and unit, once they have been read: sane ones.
struct SeenPage
{
    QRectF box;       // what is looked at, in the page's own units
    double unit = 1;  // in points
    int rotation = 0; // in degrees, clockwise: 0, 90, 180, 270

    /// As it is looked at, in points.
    QSizeF size() const;
};
SeenPage viewOf(QPDFPageObjectHelper page);

class SheetPages
{
public:
    /// `source` is changed, and has to live until the result has been written.
    SheetPages(QPDF &source, const Sheet &sheet, Scaling wanted);

    int countOfSource() const { return static_cast<int>(m_pages.size()); }
    /// A document of these pages, from 1 on, and of nothing else that the source holds.
    std::unique_ptr<QPDF> document(const std::vector<int> &numbers);

private:
    void add(QPDF &target, QPDFPageObjectHelper page, const SeenPage &view) const;

    QPDF &m_source;
    Sheet m_sheet;
    std::vector<QPDFPageObjectHelper> m_pages;
    std::vector<SeenPage> m_views;
    Scaling m_scaling;
};

} // namespace host
