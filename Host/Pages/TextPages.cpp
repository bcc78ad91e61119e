// Plain texts as pages.
#include "TextPages.h"

#include "PDFPages.h"
#include "RowPainter.h"
#include "TextRows.h"

#include <QStringDecoder>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr qint64 kMostBytes = 64 << 20;
constexpr qint64 kMostPages = 10000;

/// Rows on pages, as many as there may be.
class TextPainter
{
public:
    explicit TextPainter(PDFPages &pages)
        : m_pages(pages)
        , m_rowPainter(pages.painter(), pages.area().width())
        , m_rows(fitting(pages.area().width(), RowPainter::kColumn), fitting(pages.area().height(), RowPainter::kLine),
                 [this](const Row &row, qint64 page, int line) { draw(row, page, line); })
    {}

    void take(const QString &part);
    void end() { m_rows.end(); }
    bool isTooLong() const { return m_isTooLong; }

private:
    /// A margin may be lost in rounding.
    static int fitting(double length, int each) { return static_cast<int>(length / each + 0.001); }
    void draw(const Row &row, qint64 page, int line);

    PDFPages &m_pages;
    RowPainter m_rowPainter;
    TextRows m_rows;
    qint64 m_page = 0;
    bool m_isTooLong = false;
    char16_t m_highSurrogate = 0; // of a character that a part ended within
};

void TextPainter::take(const QString &part)
{
    for (const QChar each : part) {
        if (each.isHighSurrogate())
            m_highSurrogate = each.unicode();
        else
            m_rows.take(each.isLowSurrogate() ? QChar::surrogateToUcs4(m_highSurrogate, each.unicode())
                                              : each.unicode());
    }
}

void TextPainter::draw(const Row &row, qint64 page, int line)
{
    m_isTooLong = m_isTooLong || page >= kMostPages;
    if (m_isTooLong)
        return;
    for (; m_page < page; ++m_page)
        m_pages.newPage();
    m_rowPainter.draw(row, line);
}

/// Hands the whole text to `use` in parts, until it says that it is enough.
template <class Use>
Or<void> readAll(Document &text, const std::stop_token &stop, Use use)
{
    text.rewind();
    qint64 size = 0;
    for (;;) {
        const auto part = text.read();
        if (!part)
            return Problem{PDFPages::tr("%1: can't be read any more").arg(text.title())};
        size += part->size();
        if (size > kMostBytes)
            return Problem{PDFPages::tr("%1: the text is too long to be laid out").arg(text.title())};
        if (stop.stop_requested())
            return Problem{PDFPages::tr("cancelled")};
        if (part->isEmpty() || !use(*part))
            return {};
    }
}

Or<QStringConverter::Encoding> encodingOf(Document &text, const std::stop_token &stop)
{
    QStringDecoder utf8(QStringConverter::Utf8);
    const auto read = readAll(text, stop, [&](const QByteArray &part) {
        const QString decoded = utf8(part); // decodes when it is used
        return !utf8.hasError();
    });
    if (!read)
        return read.problem();
    const QString decoded = utf8("\n"); // nothing may be open at the end
    return utf8.hasError() ? QStringConverter::Latin1 : QStringConverter::Utf8;
}

} // namespace

Or<std::shared_ptr<Document>> textPages(Document &text, const Sheet &sheet, const std::stop_token &stop)
{
    const auto encoding = encodingOf(text, stop);
    if (!encoding)
        return encoding.problem();
    auto pages = PDFPages::begin(text.title(), sheet);
    if (!pages)
        return pages.problem();
    TextPainter painter(**pages);
    QStringDecoder decoder(*encoding);
    const auto read = readAll(text, stop, [&](const QByteArray &part) {
        painter.take(decoder(part));
        return !painter.isTooLong();
    });
    if (!read)
        return read.problem();
    painter.end();
    if (painter.isTooLong())
        return Problem{PDFPages::tr("%1: the text is too long to be laid out").arg(text.title())};
    if (text.hasChanged())
        return Problem{PDFPages::tr("%1: has changed while it was read").arg(text.title())};
    return (*pages)->finish();
}

} // namespace host
