// A page as the thermal head burns it.
#pragma once

#include "Placement.h"

#include "PDEPlugInInterface.h"

#include <QImage>
#include <QTransform>

namespace host {

/// Dots an inch.
struct Resolution
{
    double across = 203; // the head's, where nothing says another
    double along = 203;

    friend bool operator==(const Resolution &, const Resolution &) = default;
};

/// Of "203dpi", "300x200dpi". Nil for what is none, and for what no head has.
std::optional<Resolution> resolutionNamed(const QString &name);

/// A sheet's dots.
class SheetDots
{
public:
    SheetDots(const Sheet &sheet, Resolution resolution);

    const Sheet &sheet() const { return m_sheet; }
    const Resolution &resolution() const { return m_resolution; }
    QSize size() const { return at(QRectF(0, 0, m_sheet.size.width, m_sheet.size.height)).size(); }
    /// Nearest to a place on the sheet in points.
    QRect at(const QRectF &points) const;
    QRect printable() const { return at(m_sheet.printable) & QRect({}, size()); }
    /// Whether they can be held in memory; those of an area of so many points.
    bool isBearable() const;
    bool areBearable(QSizeF points) const;

    /// The sheet with a page on it, in grey, and white where the printer can't reach. `page` is drawn in as many dots
    /// as `where` of its placement has, before it is turned.
    QImage withPage(const QImage &page, const Placement &placement) const;
    /// How many those are.
    QSize dotsOfPage(const Placement &placement) const;
    /// Which of a page's dots, before it is turned, lie within an area of the sheet; empty: none.
    QRect onPage(const QRect &area, const Placement &placement) const;
    /// Puts those dots of a page in their place on a sheet in grey, as far as the printer can reach.
    void put(QImage &sheet, const QImage &part, const QRect &onPage, const Placement &placement) const;
    /// The sheet in grey out of one with fewer dots, for the time being.
    QImage enlarged(const QImage &coarse) const;

    /// As the head burns it: dots, black ones and white ones, by the method, changed about and mirrored where the
    /// printer can reach. Without an effect the grey sheet itself.
    QImage burnt(const QImage &sheet, const std::optional<PDEPrintEffect> &effect) const;
    /// The area of the sheet in grey that an area of the burnt one comes out of. Where errors are diffused, the dots
    /// there also depend a little on the grey around it.
    QRect burntFrom(const QRect &area, const std::optional<PDEPrintEffect> &effect) const;

private:
    QImage blank() const;
    QTransform turnOf(const Placement &placement) const;
    QTransform ontoSheet(const Placement &placement) const;

    Sheet m_sheet;
    Resolution m_resolution;
};

} // namespace host
