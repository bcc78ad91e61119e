// Any bytes as a text, on papers of any size: each row has its place, and the pages are a PDF or one sentence.
#include "Fuzzing.h"

#include "Pages/LaidOut.h"
#include "Pages/TextRows.h"

namespace {

void readRows(const QString &text, int columns, int lines)
{
    qint64 before = -1; // the line of the row before, counted through all pages
    host::TextRows rows(columns, lines, [&](const host::Row &row, qint64 page, int line) {
        fuzzing::promise(line >= 0 && line < lines && page * lines + line > before);
        before = page * lines + line;
        qsizetype end = 0;
        int column = 0;
        for (const host::Cell &cell : row.cells) {
            fuzzing::promise(cell.begin == end && cell.size > 0 && cell.column >= column && cell.columns > 0);
            end += cell.size;
            column = cell.column + cell.columns;
        }
        fuzzing::promise(end == row.text.size() && column <= std::max(columns, 2));
    });
    for (const char32_t each : text.toUcs4())
        rows.take(each);
    rows.end();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 3)
        return 0;
    const QByteArray content = fuzzing::bytesOf(data + 2, size - 2);
    readRows(QString::fromUtf8(content), data[0] % 40 + 1, data[1] % 20 + 1);
    const QString path = fuzzing::pathOf("text");
    fuzzing::write(path, content);
    const auto text = host::Document::open(path);
    if (!text || (*text)->format() != "text/plain")
        return 0;
    const printing::Paper paper{data[0] * 2.0, data[1] * 4.0};
    const auto pages = host::laidOut(*text, {paper, QRectF(0, 0, paper.width, paper.height)});
    fuzzing::promise(pages ? (*pages)->format() == "application/pdf" : pages.problem().sentence.startsWith("text: "));
    return 0;
}
