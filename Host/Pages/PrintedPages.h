// The pages that a job prints, in order, each on its sheet. Whoever asks waits: it belongs on a thread of its own.
#pragma once

#include "BurntPage.h"
#include "PageReader.h"

namespace host {

class PrintedPages
{
    Q_DECLARE_TR_FUNCTIONS(host::PrintedPages)

public:
    /// Reads how many pages a document has, and their sizes. A text and an image are laid out for the sheet first.
    /// `ranges` as `readPageRanges` gives them; `patience` as `PageReader` has it. A problem when the document can't be
    /// read, and when it has no such pages.
    static foundation::Or<PrintedPages> of(std::shared_ptr<Document> document, const Sheet &sheet, Scaling scaling,
                                           const QString &ranges, const std::stop_token &stop,
                                           std::chrono::milliseconds patience = PageReader::kPatience);

    int count() const { return static_cast<int>(m_numbers.size()); }
    /// Of the document, printed or not.
    int countOfDocument() const { return static_cast<int>(m_sizes.size()); }

    /// Whether the document's pages are sheets as they are: all are printed, each of the sheet's size to a point, and
    /// none is scaled or turned.
    bool standAsTheyAre(const Sheet &sheet) const;

    /// The sheet in grey, with the page on it that is printed as the one at `index`, from 0 on.
    foundation::Or<QImage> sheet(int index, const SheetDots &dots, const std::stop_token &stop) const;
    /// Draws no more than an area of it, onto a sheet in grey; a problem leaves that as it was.
    foundation::Or<void> drawArea(const QRect &area, QImage &sheet, int index, const SheetDots &dots,
                                  const std::stop_token &stop) const;

private:
    PrintedPages() = default;
    int numberOf(int index) const { return m_numbers.at(static_cast<std::size_t>(index)); }
    foundation::Or<Placement> placed(int index, const SheetDots &dots) const;

    std::shared_ptr<Document> m_document; // as pages
    std::vector<QSizeF> m_sizes;
    std::vector<int> m_numbers; // of the pages that are printed, from 1 on
    Scaling m_scaling = Scaling::none;
    std::chrono::milliseconds m_patience = PageReader::kPatience;
};

} // namespace host
