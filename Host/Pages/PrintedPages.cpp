#include "PrintedPages.h"

#include "LaidOut.h"

#include "Jobs/PageRanges.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace host {

using foundation::Or;
using foundation::Problem;

Or<PrintedPages> PrintedPages::of(std::shared_ptr<Document> document, const Sheet &sheet, Scaling scaling,
                                  const QString &ranges, const std::stop_token &stop,
                                  std::chrono::milliseconds patience)
{
    auto pages = laidOut(std::move(document), sheet, stop);
    if (!pages)
        return pages.problem();
    const QString title = (*pages)->title();
    if ((*pages)->format() != "application/pdf")
        return Problem{tr("%1: PostScript can't be shown before it is printed").arg(title)};
    auto sizes = PageReader(**pages, patience).sizes(stop);
    if (!sizes)
        return sizes.problem();
    PrintedPages result;
    result.m_document = *std::move(pages);
    result.m_sizes = *std::move(sizes);
    result.m_patience = patience;
    result.m_scaling = decided(scaling, result.m_sizes, sheet);
    auto numbers = pagesAmong(ranges, result.countOfDocument());
    if (!numbers)
        return Problem{result.countOfDocument() == 1
                           ? tr("%1 has only one page, not %2", "a document, ranges of pages").arg(title, ranges)
                           : tr("%1 has only %2 pages, not %3", "a document, a number, ranges of pages")
                                 .arg(title, QString::number(result.countOfDocument()), ranges)};
    result.m_numbers = *std::move(numbers);
    return result;
}

bool PrintedPages::standAsTheyAre(const Sheet &sheet) const
{
    const QRectF whole(0, 0, sheet.size.width, sheet.size.height);
    return count() == countOfDocument() && std::ranges::all_of(m_sizes, [&](QSizeF size) {
               const auto [isTurned, where] = placementOf(size, sheet, m_scaling);
               return !isTurned && std::abs(where.width() - whole.width()) <= 1 &&
                      std::abs(where.height() - whole.height()) <= 1 &&
                      (where.center() - whole.center()).manhattanLength() <= 1;
           });
}

/// A problem when either is too large to be held.
Or<Placement> PrintedPages::placed(int index, const SheetDots &dots) const
{
    if (!dots.isBearable())
        return Problem{tr("The paper is too large to be shown.")};
    const int number = numberOf(index);
    const Placement placement = placementOf(m_sizes.at(static_cast<std::size_t>(number) - 1), dots.sheet(), m_scaling);
    if (!dots.areBearable(placement.where.size()))
        return Problem{tr("%1: page %2 is too large to be shown").arg(m_document->title(), QString::number(number))};
    return placement;
}

Or<QImage> PrintedPages::sheet(int index, const SheetDots &dots, const std::stop_token &stop) const
{
    const auto placement = placed(index, dots);
    if (!placement)
        return placement.problem();
    const PageReader reader(*m_document, m_patience);
    const auto page = reader.draw(numberOf(index), dots.dotsOfPage(*placement), stop);
    if (!page)
        return page.problem();
    return dots.withPage(*page, *placement);
}

Or<void> PrintedPages::drawArea(const QRect &area, QImage &sheet, int index, const SheetDots &dots,
                                const std::stop_token &stop) const
{
    const auto placement = placed(index, dots);
    if (!placement)
        return placement.problem();
    const QRect onPage = dots.onPage(area, *placement);
    auto part =
        onPage.isEmpty()
            ? Or<QImage>(QImage())
            : PageReader(*m_document, m_patience).drawPart(numberOf(index), dots.dotsOfPage(*placement), onPage, stop);
    if (!part)
        return part.problem();
    QPainter(&sheet).fillRect(area, Qt::white); // it may reach beyond the page
    dots.put(sheet, *part, onPage, *placement);
    return {};
}

} // namespace host
