// As `qnprint-arrange` does it. In an earlier C++ than the rest: clang can't read the library's headers in a later one.
#include "ArrangedBytes.h"

#include "Arrange/SheetPages.h"

#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <cmath>
#include <numeric>

namespace fuzzing {

std::string arranged(const std::string &bytes, const Arrangement &how)
{
    QPDF source;
    source.setSuppressWarnings(true);
    source.processMemoryFile("the document", bytes.data(), bytes.size());
    host::Sheet sheet;
    sheet.size.width = how.width;
    sheet.size.height = how.height;
    sheet.printable = QRectF(how.width / 20, 0, how.width * 0.9, how.height);
    sheet.turnsLeft = how.turnsLeft;
    host::SheetPages pages(source, sheet, host::scalingNamed(how.scaling));
    std::vector<int> numbers(static_cast<std::size_t>(how.isFirstPageOnly ? 1 : pages.countOfSource()));
    std::iota(numbers.begin(), numbers.end(), 1);
    if (pages.countOfSource() == 0)
        return {};
    const auto document = pages.document(numbers);
    QPDFWriter writer(*document);
    writer.setOutputMemory();
    writer.setDecodeLevel(qpdf_dl_none);
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char *>(buffer->getBuffer()), buffer->getSize()};
}

int countOfSheets(const std::string &bytes, const Arrangement &how)
{
    QPDF document;
    document.processMemoryFile("the sheets", bytes.data(), bytes.size());
    int count = 0;
    for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(document).getAllPages()) {
        const auto box = page.getMediaBox().getArrayAsRectangle();
        if (std::abs(box.urx - how.width) > 0.01 || std::abs(box.ury - how.height) > 0.01)
            return -1;
        ++count;
    }
    return count;
}

} // namespace fuzzing
