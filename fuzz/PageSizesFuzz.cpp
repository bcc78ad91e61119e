// Any bytes as what pdfinfo tells of pages: no more sizes than lines, and none of them leads to a picture that can't be
// held.
#include "Fuzzing.h"

#include "Pages/BurntPage.h"
#include "Pages/PageReader.h"

namespace {

void place(const std::vector<QSizeF> &sizes, const host::Sheet &sheet, host::Scaling wanted)
{
    constexpr qint64 kMostDots = 100'000'000;
    const host::SheetDots dots(sheet, {});
    const auto scaling = host::decided(wanted, sizes, sheet);
    for (const QSizeF &size : sizes) {
        const auto placement = host::placementOf(size, sheet, scaling);
        if (!dots.areBearable(placement.where.size()))
            continue;
        const QSize ofPage = dots.dotsOfPage(placement);
        fuzzing::promise(!ofPage.isEmpty() && qint64{ofPage.width()} * ofPage.height() <= 2 * kMostDots);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray info = fuzzing::bytesOf(data, size);
    const auto sizes = host::readPageSizes(info);
    fuzzing::promise(std::ssize(sizes) <= info.count('\n') + 1);
    const host::Sheet ticket{{226.77, 425.2}, QRectF(8, 0, 210, 425.2)};
    for (const auto wanted : {host::Scaling::automatic, host::Scaling::fit, host::Scaling::fill, host::Scaling::none})
        place(sizes, ticket, wanted);
    return 0;
}
