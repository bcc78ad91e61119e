// `qnprint-arrange`: reads a PDF from standard input and writes one of its pages on sheets to standard output. Started
// by `qnprint` for itself, confined: a document may be anybody's, and its reader may break over it.
#include "SheetPages.h"

#include "Jobs/PageRanges.h"
#include "Pages/Arranging.h"

#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFWriter.hh>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

using namespace host;

double points(const char *word) { return std::strtod(word, nullptr); }

Sheet sheetFrom(char *argv[])
{
    return {{points(argv[kSheetWidth]), points(argv[kSheetHeight])},
            QRectF(points(argv[kPrintableLeft]), points(argv[kPrintableTop]), points(argv[kPrintableWidth]),
                   points(argv[kPrintableHeight])),
            points(argv[kTurnsLeft]) != 0};
}

/// Streams stay as they are packed: only what is drawn with is written, none of it understood. The writer passes over
/// bytes that could not be flushed; the file remembers.
ArrangeStatus write(QPDF &document, const QPDF &source)
{
    QPDFWriter writer(document, "the pages", stdout, false);
    writer.setDecodeLevel(qpdf_dl_none);
    writer.setMinimumPDFVersion(const_cast<QPDF &>(source).getVersionAsPDFVersion());
    writer.write();
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? kArranged : kUnwritable;
}

ArrangeStatus arrange(const Sheet &sheet, Scaling scaling, const QString &ranges)
{
    QPDF source;
    source.setSuppressWarnings(true);
    source.processFile("the document", stdin, false);
    SheetPages pages(source, sheet, scaling);
    const auto numbers = pagesAmong(ranges, pages.countOfSource());
    if (!numbers || numbers->empty())
        return kUnreadable;
    return write(*pages.document(*numbers), source);
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGXFSZ, SIG_IGN); // no room is an answer, too
    if (argc != kArrangeWords)
        return kUnreadable;
    try {
        return arrange(sheetFrom(argv), scalingNamed(argv[kScalingName]), argv[kPageRanges]);
    } catch (const QPDFExc &problem) {
        return problem.getErrorCode() == qpdf_e_system ? kUnwritable : kUnreadable;
    } catch (const std::bad_alloc &) {
        return kOverstrained;
    } catch (const std::exception &) {
        return std::ferror(stdout) != 0 ? kUnwritable : kUnreadable;
    }
}
