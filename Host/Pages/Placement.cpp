#include "Placement.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host {

namespace {

struct NamedScaling
{
    const char *name;
    Scaling scaling;
};
constexpr std::array kScalings{
    NamedScaling{"auto", Scaling::automatic}, NamedScaling{"auto-fit", Scaling::autoFit},
    NamedScaling{"fit", Scaling::fit},        NamedScaling{"fill", Scaling::fill},
    NamedScaling{"none", Scaling::none},
};

/// The server lets a page be a fiftieth larger than the paper, and then drops fractions of a point.
constexpr double kTolerance = 1.02;
bool isLarger(double page, double paper) { return std::floor(page / kTolerance) > paper; }

bool isLandscape(QSizeF size) { return size.width() > size.height(); }
QSizeF sizeOf(const Sheet &sheet) { return {sheet.size.width, sheet.size.height}; }

bool hasMargins(const Sheet &sheet) { return sheet.printable.size() != sizeOf(sheet); }

QRectF centred(QSizeF size, QPointF centre) { return {centre - QPointF(size.width() / 2, size.height() / 2), size}; }

} // namespace

std::optional<Scaling> scalingNamed(const QString &name)
{
    const auto *const found =
        std::ranges::find_if(kScalings, [&](const NamedScaling &row) { return name == row.name; });
    return found == kScalings.end() ? std::nullopt : std::optional(found->scaling);
}

QString nameOf(Scaling scaling) { return std::ranges::find(kScalings, scaling, &NamedScaling::scaling)->name; }

QSizeF turnedFor(const Sheet &sheet, QSizeF page)
{
    return isLandscape(page) == isLandscape(sizeOf(sheet)) ? page : page.transposed();
}

Scaling decided(Scaling wanted, const std::vector<QSizeF> &pages, const Sheet &sheet)
{
    if (wanted != Scaling::automatic && wanted != Scaling::autoFit)
        return wanted;
    const bool tooLarge = std::ranges::any_of(pages, [&](QSizeF page) {
        const QSizeF size = turnedFor(sheet, page);
        return isLarger(size.width(), sheet.size.width) || isLarger(size.height(), sheet.size.height);
    });
    if (!tooLarge)
        return Scaling::none;
    return wanted == Scaling::automatic && !hasMargins(sheet) ? Scaling::fill : Scaling::fit;
}

Placement placementOf(QSizeF page, const Sheet &sheet, Scaling scaling)
{
    const QSizeF size = turnedFor(sheet, page);
    const bool isTurned = isLandscape(page) != isLandscape(sizeOf(sheet));
    if (scaling != Scaling::fit && scaling != Scaling::fill)
        return {isTurned, centred(size, QRectF({}, sizeOf(sheet)).center())};
    const auto mode = scaling == Scaling::fit ? Qt::KeepAspectRatio : Qt::KeepAspectRatioByExpanding;
    return {isTurned, centred(size.scaled(sheet.printable.size(), mode), sheet.printable.center())};
}

} // namespace host
