// A PDF while it is drawn.
#include "PDFPages.h"

#include "Foundation/RegularFile.h"
#include "Printing/Units.h"

#include <QPageLayout>

#include <cerrno>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr double kUnitsPerPoint = PDFPages::kUnitsPerInch / printing::kPointsPerInch;
constexpr double kLongestSide = 14400; // in points: what readers of PDF take

bool isPossible(double side) { return side >= 1 && side <= kLongestSide; }

/// The printable area, held within the sheet; the whole sheet when that leaves nothing.
QRectF printableArea(const Sheet &sheet)
{
    const QRectF whole(0, 0, sheet.size.width, sheet.size.height);
    const QRectF area = sheet.printable.intersected(whole);
    return area.isEmpty() ? whole : area;
}

/// Of the sheet's size to the nearest point, as Qt keeps it.
QPageLayout pageLayout(const printing::Paper &size)
{
    const QPageSize pageSize({size.width, size.height}, QPageSize::Point, {}, QPageSize::ExactMatch);
    QPageLayout layout(pageSize, QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

} // namespace

/// Remembers that something could not be written: Qt's writer of PDF goes on.
class PDFPages::Output : public QIODevice
{
public:
    explicit Output(QFile &file)
        : m_file(file)
    {
        open(WriteOnly | Unbuffered);
    }
    bool isSequential() const override { return true; }
    /// The system's number of what kept it from being written; 0 when all of it is. Qt forgets it over a write that was
    /// done in part, so one more is tried.
    int error()
    {
        if (m_isWhole && m_file.flush())
            return 0;
        const char more = 0;
        return ::write(m_file.handle(), &more, 1) < 0 ? errno : EIO;
    }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        m_isWhole = m_isWhole && m_file.write(data, size) == size;
        return size;
    }

private:
    QFile &m_file;
    bool m_isWhole = true;
};

PDFPages::PDFPages(QString title, std::unique_ptr<QFile> file, QRectF printable)
    : m_title(std::move(title))
    , m_file(std::move(file))
    , m_printable(printable)
    , m_area(printable.size() * kUnitsPerPoint)
    , m_output(std::make_unique<Output>(*m_file))
    , m_writer(std::make_unique<QPdfWriter>(m_output.get()))
{}

PDFPages::~PDFPages() = default;

Or<std::unique_ptr<PDFPages>> PDFPages::begin(const QString &title, const Sheet &sheet)
{
    if (!isPossible(sheet.size.width) || !isPossible(sheet.size.height))
        return Problem{tr("%1: can't be laid out for this paper").arg(title)};
    auto file = foundation::openUnnamedFile();
    if (!file)
        return Problem{tr("%1: its pages can't be kept: %2").arg(title, file.problem().sentence)};
    std::unique_ptr<PDFPages> pages(new PDFPages(title, *std::move(file), printableArea(sheet)));
    if (!pages->start(sheet.size))
        return Problem{tr("%1: can't be laid out for this paper").arg(title)};
    return pages;
}

bool PDFPages::start(const printing::Paper &size)
{
    m_writer->setResolution(kUnitsPerInch);
    m_writer->setTitle(m_title);
    if (!m_writer->setPageLayout(pageLayout(size)) || !m_painter.begin(m_writer.get()))
        return false;
    m_painter.setRenderHint(QPainter::LosslessImageRendering); // bar codes
    m_painter.translate(m_printable.topLeft() * kUnitsPerPoint);
    return true;
}

Or<std::shared_ptr<Document>> PDFPages::finish()
{
    m_painter.end();
    if (const int error = m_output->error())
        return Problem{tr("%1: its pages can't be kept: %2").arg(m_title, foundation::systemErrorText(error))};
    return Document::made(m_title, std::move(m_file));
}

} // namespace host
