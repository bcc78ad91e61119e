// A part is burnt where it stands on its sheet, so a pattern of dots falls on it as it does on the whole one. Only
// where errors are diffused its dots are nearly those: their grey comes from above, which may be coarse as yet.
#include "DrawnSheet.h"

#include "Pages/Shrinking.h"

#include <chrono>

namespace host {

using foundation::Problem;

namespace {

constexpr double kCoarse = 4; // times fewer dots a side, for the first picture of a page

} // namespace

bool SheetView::hasSamePages(const SheetView &other) const
{
    return document == other.document && sheet == other.sheet && scaling == other.scaling && ranges == other.ranges;
}

bool SheetView::hasSameSheet(const SheetView &other) const
{
    return hasSamePages(other) && page == other.page && resolution == other.resolution;
}

bool SheetView::hasSamePicture(const SheetView &other) const
{
    return hasSameSheet(other) && effect == other.effect && size == other.size;
}

QRect SheetView::area() const
{
    return visible.isEmpty() ? QRect() : SheetDots(sheet, resolution).burntFrom(visible, effect);
}

QRegion SheetProgress::missing(const SheetView &view) const
{
    return isInParts ? QRegion(view.area()) - parts : QRegion();
}

DrawnSheet::DrawnSheet(const PreviewTimes &times)
    : m_times(times)
{}

void DrawnSheet::forget()
{
    m_progress = {};
    m_coarse = m_parts = m_whole = {};
}

/// A program that was stopped has nothing to say about the page.
void DrawnSheet::fail(const Problem &problem, const std::stop_token &stop)
{
    if (!stop.stop_requested())
        m_progress.problem = problem.sentence;
}

void DrawnSheet::turnTo(const SheetView &view, const std::stop_token &stop)
{
    const SheetView before = std::exchange(m_view, view);
    if (!m_pages || !m_view.hasSamePages(before)) {
        forget();
        m_pages.reset();
        auto pages = PrintedPages::of(view.document, view.sheet, view.scaling, view.ranges, stop, m_times.program);
        if (!pages)
            return fail(pages.problem(), stop);
        m_pages = *std::move(pages);
    }
    m_view.page = std::min(view.page, m_pages->count() - 1); // there may be fewer than before
    if (!m_view.hasSameSheet(before))
        forget();
}

void DrawnSheet::drawCoarse(const std::stop_token &stop)
{
    if (!m_pages || !m_coarse.isNull() || !m_progress.problem.isEmpty())
        return;
    const Resolution resolution{m_view.resolution.across / kCoarse, m_view.resolution.along / kCoarse};
    const auto start = std::chrono::steady_clock::now();
    auto coarse = m_pages->sheet(m_view.page, {m_view.sheet, resolution}, stop);
    if (!coarse)
        return fail(coarse.problem(), stop);
    m_coarse = *std::move(coarse);
    m_progress.isInParts = std::chrono::steady_clock::now() - start >= m_times.quick;
}

bool DrawnSheet::drawPart(const std::stop_token &stop)
{
    const QRegion missing = m_progress.missing(m_view);
    if (missing.isEmpty() || m_coarse.isNull() || !dots().isBearable())
        return false;
    if (m_parts.isNull())
        m_parts = dots().enlarged(m_coarse);
    const QRect area = missing.boundingRect();
    if (!m_pages->drawArea(area, m_parts, m_view.page, dots(), stop))
        return false; // the whole one will tell
    m_progress.parts += area;
    return true;
}

void DrawnSheet::drawWhole(const std::stop_token &stop)
{
    if (isWhole() || m_coarse.isNull() || !m_progress.problem.isEmpty() || stop.stop_requested())
        return;
    auto whole = m_pages->sheet(m_view.page, dots(), stop);
    if (!whole)
        return fail(whole.problem(), stop);
    forget();
    m_whole = *std::move(whole);
}

QImage DrawnSheet::sized(const QImage &sheet) const
{
    return m_view.size.isEmpty() ? sheet : shrunk(sheet, m_view.size);
}

QImage DrawnSheet::picture() const
{
    if (isWhole())
        return sized(dots().burnt(m_whole, m_view.effect));
    if (!m_view.visible.isEmpty() && !m_progress.parts.isEmpty())
        return dots().burnt(m_parts, m_view.effect);
    return m_coarse.isNull() || !m_progress.problem.isEmpty() ? QImage() : sized(m_coarse);
}

} // namespace host
