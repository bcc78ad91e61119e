#include "BurntPage.h"

#include "Halftone/Methods.h"
#include "Printing/Units.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <vector>

namespace host {

namespace {

constexpr double kLeastResolution = 50;
constexpr double kLargestResolution = 1200;
constexpr double kMostDots = 100e6; // 100 MB of grey
constexpr double kMetresPerInch = printing::kMillimetresPerInch / 1000;

bool isResolution(double dots) { return dots >= kLeastResolution && dots <= kLargestResolution; }

/// Whoever reads a document may say any number of it.
bool isSide(double dots) { return dots >= 0 && dots <= kMostDots; }

int dotsAt(double points, double resolution)
{
    return static_cast<int>(std::lround(points / printing::kPointsPerInch * resolution));
}

QImage dotsBy(std::optional<PDEPrintEffect::Halftone> method, const QImage &grey)
{
    // A printer without a choice burns what is dark.
    switch (method.value_or(PDEPrintEffect::Halftone::binary)) {
    case PDEPrintEffect::Halftone::binary: return halftone::threshold(grey);
    case PDEPrintEffect::Halftone::dither: return halftone::orderedDither(grey);
    case PDEPrintEffect::Halftone::diffusion: return halftone::errorDiffusion(grey);
    }
    return halftone::threshold(grey);
}

bool isWhite(const uchar *bytes, int x) { return ((bytes[x / 8] << (x % 8)) & 0x80) != 0; }

void setDot(uchar *bytes, int x, bool white)
{
    const auto bit = static_cast<uchar>(0x80 >> (x % 8));
    bytes[x / 8] = static_cast<uchar>(white ? bytes[x / 8] | bit : bytes[x / 8] & ~bit);
}

/// Black for white, and left for right, within an area.
void changeAbout(QImage &dots, const QRect &area, const PDEPrintEffect &effect)
{
    std::vector<uchar> before(static_cast<std::size_t>(dots.bytesPerLine()));
    for (int y = area.top(); y <= area.bottom(); ++y) {
        uchar *const bytes = dots.scanLine(y);
        std::copy_n(bytes, before.size(), before.begin());
        for (int x = area.left(); x <= area.right(); ++x) {
            const int from = effect.mirrored ? area.left() + area.right() - x : x;
            setDot(bytes, x, isWhite(before.data(), from) != effect.reversed);
        }
    }
}

/// Within an area of one picture. `corner`: where the other, of the same format, has its upper left one there.
void copyWithin(const QRect &area, const QImage &other, QPoint corner, QImage &picture)
{
    for (int y = area.top(); y <= area.bottom(); ++y)
        std::copy_n(other.constScanLine(y - corner.y()) + area.left() - corner.x(), area.width(),
                    picture.scanLine(y) + area.left());
}

} // namespace

std::optional<Resolution> resolutionNamed(const QString &name)
{
    static const QRegularExpression kForm(R"(\A(\d{1,5})(?:x(\d{1,5}))?dpi\z)");
    const auto match = kForm.match(name);
    if (!match.hasMatch())
        return std::nullopt;
    const double across = match.captured(1).toDouble();
    const double along = match.hasCaptured(2) ? match.captured(2).toDouble() : across;
    return isResolution(across) && isResolution(along) ? std::optional(Resolution{across, along}) : std::nullopt;
}

SheetDots::SheetDots(const Sheet &sheet, Resolution resolution)
    : m_sheet(sheet)
    , m_resolution(resolution)
{}

QRect SheetDots::at(const QRectF &points) const
{
    const QPoint from(dotsAt(points.left(), m_resolution.across), dotsAt(points.top(), m_resolution.along));
    const QPoint to(dotsAt(points.right(), m_resolution.across), dotsAt(points.bottom(), m_resolution.along));
    return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

bool SheetDots::areBearable(QSizeF points) const
{
    const double across = points.width() / printing::kPointsPerInch * m_resolution.across;
    const double along = points.height() / printing::kPointsPerInch * m_resolution.along;
    return isSide(across) && isSide(along) && std::max(across, 1.0) * std::max(along, 1.0) <= kMostDots;
}

bool SheetDots::isBearable() const
{
    return areBearable({m_sheet.size.width, m_sheet.size.height}) && !size().isEmpty();
}

QSize SheetDots::dotsOfPage(const Placement &placement) const
{
    const QSize dots = at(placement.where).size().expandedTo({1, 1});
    return placement.isTurned ? dots.transposed() : dots;
}

QTransform SheetDots::turnOf(const Placement &placement) const
{
    return placement.isTurned ? QTransform().rotate(m_sheet.turnsLeft ? -90 : 90) : QTransform();
}

/// Of a page's dots.
QTransform SheetDots::ontoSheet(const Placement &placement) const
{
    const QSize page = dotsOfPage(placement);
    const QPoint corner = at(placement.where).topLeft();
    return QImage::trueMatrix(turnOf(placement), page.width(), page.height()) *
           QTransform::fromTranslate(corner.x(), corner.y());
}

QRect SheetDots::onPage(const QRect &area, const Placement &placement) const
{
    const QTransform ontoSheet = this->ontoSheet(placement);
    const QRect covered = ontoSheet.mapRect(QRect({}, dotsOfPage(placement))) & area & printable();
    return covered.isEmpty() ? QRect() : ontoSheet.inverted().mapRect(covered);
}

QImage SheetDots::blank() const
{
    QImage sheet(size(), QImage::Format_Grayscale8);
    sheet.setDotsPerMeterX(static_cast<int>(std::lround(m_resolution.across / kMetresPerInch)));
    sheet.setDotsPerMeterY(static_cast<int>(std::lround(m_resolution.along / kMetresPerInch)));
    sheet.fill(Qt::white);
    return sheet;
}

QImage SheetDots::withPage(const QImage &page, const Placement &placement) const
{
    QImage sheet = blank();
    put(sheet, page, QRect({}, page.size()), placement);
    return sheet;
}

void SheetDots::put(QImage &sheet, const QImage &part, const QRect &onPage, const Placement &placement) const
{
    const QImage upright = placement.isTurned ? part.transformed(turnOf(placement)) : part;
    const QRect place = ontoSheet(placement).mapRect(onPage);
    copyWithin(place & printable(), upright, place.topLeft(), sheet);
}

QImage SheetDots::enlarged(const QImage &coarse) const
{
    QImage sheet = blank();
    copyWithin(printable(), coarse.scaled(size()), {}, sheet);
    return sheet;
}

QImage SheetDots::burnt(const QImage &sheet, const std::optional<PDEPrintEffect> &effect) const
{
    if (!effect)
        return sheet;
    QImage dots = dotsBy(effect->halftone, sheet);
    if (effect->reversed || effect->mirrored)
        changeAbout(dots, printable(), *effect);
    return dots;
}

QRect SheetDots::burntFrom(const QRect &area, const std::optional<PDEPrintEffect> &effect) const
{
    QRect reached = area & printable();
    if (effect && effect->mirrored && !reached.isEmpty())
        reached.moveRight(printable().left() + printable().right() - reached.left());
    return reached;
}

} // namespace host
