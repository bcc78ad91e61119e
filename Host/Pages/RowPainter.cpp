// Draws rows of text on a grid.
#include "RowPainter.h"

#include <QTextLayout>

#include <algorithm>

namespace host {

namespace {

constexpr int kBaseline = RowPainter::kLine * 77 / 100; // what hangs below it stays within the line
constexpr int kMostShapes = 4096;
constexpr int kMostFonts = 8;

QFont lineFont()
{
    QFont font;
    font.setFamilies({QStringLiteral("monospace")});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPixelSize(RowPainter::kLine); // where a character is 0.6 wide, ten of them are an inch
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Of the widest ASCII character: no fixed font may be there.
double advance(const QRawFont &font)
{
    QString ascii;
    for (char16_t each = '!'; each <= '~'; ++each)
        ascii.append(each);
    double widest = 0;
    for (const QPointF &each : font.advancesForGlyphIndexes(font.glyphIndexesForString(ascii)))
        widest = std::max(widest, each.x());
    return widest > 0 ? widest : RowPainter::kColumn;
}

double fitting(double length, double room) { return length > room ? room / length : 1; }

} // namespace

RowPainter::RowPainter(QPainter &painter, double width)
    : m_painter(painter)
    , m_width(width)
    , m_font(lineFont())
    , m_fonts{QRawFont::fromFont(m_font)}
    , m_stretch(kColumn / advance(m_fonts.front()))
{}

void RowPainter::draw(const Row &row, int line)
{
    m_painter.save();
    m_painter.translate(0, line * kLine + kBaseline);
    row.isRightToLeft ? drawWhole(row) : drawOnGrid(row);
    m_painter.restore();
}

void RowPainter::drawOnGrid(const Row &row)
{
    drawGlyphs(row);
    drawLaidOut(row);
}

void RowPainter::drawGlyphs(const Row &row)
{
    for (int font = 0; font < m_fonts.size(); ++font) {
        const double stretch = font == 0 ? m_stretch : 1;
        QList<quint32> glyphs;
        QList<QPointF> positions;
        for (const Cell &cell : row.cells) {
            const Glyph glyph = glyphOf(row.textOf(cell), cell.columns); // may find one more font
            if (glyph.font != font || row.textOf(cell).front().isSpace())
                continue;
            glyphs.append(glyph.index);
            positions.append(QPointF((cell.column * kColumn + glyph.margin) / stretch, 0));
        }
        if (glyphs.isEmpty())
            continue;
        QGlyphRun run;
        run.setRawFont(m_fonts[font]);
        run.setGlyphIndexes(glyphs);
        run.setPositions(positions);
        drawRuns({run}, 0, stretch);
    }
}

/// Letters that the font lacks stay together in words, as many scripts join them; a wide one stands for itself.
void RowPainter::drawLaidOut(const Row &row)
{
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const Cell &first = row.cells[i];
        if (!isLaidOut(row, first))
            continue;
        while (first.columns == 1 && i + 1 < row.cells.size() && row.cells[i + 1].columns == 1 &&
               isLaidOut(row, row.cells[i + 1]))
            ++i;
        const Cell &last = row.cells[i];
        const Shape &shape = keptShapeOf(row.text.mid(first.begin, last.begin + last.size - first.begin));
        const double width = (last.column + last.columns - first.column) * kColumn;
        const double scale = fitting(shape.width, width);
        const double margin = &first == &last ? (width - shape.width * scale) / 2 : 0;
        drawRuns(shape.runs, first.column * kColumn + margin, scale);
    }
}

void RowPainter::drawRuns(const QList<QGlyphRun> &runs, double x, double scale)
{
    m_painter.save();
    m_painter.translate(x, 0);
    m_painter.scale(scale, 1);
    for (const QGlyphRun &run : runs)
        m_painter.drawGlyphRun({}, run);
    m_painter.restore();
}

/// Reading order counts more than columns where some of a row is read from the right.
void RowPainter::drawWhole(const Row &row)
{
    const Shape shape = shapeOf(row.text);
    const double spare = std::max(m_width - shape.width, 0.0);
    drawRuns(shape.runs, row.text.isRightToLeft() ? spare : 0, fitting(shape.width, m_width));
}

bool RowPainter::isLaidOut(const Row &row, const Cell &cell)
{
    const QStringView text = row.textOf(cell);
    return glyphOf(text, cell.columns).font < 0 && !(text.size() == 1 && text.front().isSpace());
}

RowPainter::Glyph RowPainter::glyphOf(QStringView character, int columns)
{
    const bool isPair = character.size() == 2 && character[0].isHighSurrogate();
    if (character.size() != 1 && !isPair)
        return {}; // marks are put on letters by the layout
    const char32_t code = isPair ? QChar::surrogateToUcs4(character[0], character[1]) : character[0].unicode();
    const auto known = m_glyphs.constFind(code);
    if (known != m_glyphs.constEnd())
        return *known;
    const QString text = character.toString();
    return *m_glyphs.insert(code, columns == 1 ? narrowGlyph(text) : wideGlyph(text));
}

RowPainter::Glyph RowPainter::narrowGlyph(const QString &character) const
{
    const quint32 index = m_fonts.front().glyphIndexesForString(character).value(0);
    return index == 0 ? Glyph{} : Glyph{0, index, 0};
}

/// A layout finds the font, which then has most of the other wide characters as well.
RowPainter::Glyph RowPainter::wideGlyph(const QString &character)
{
    for (int font = 1; font < m_fonts.size(); ++font) {
        const auto glyphs = m_fonts[font].glyphIndexesForString(character);
        if (glyphs.value(0) == 0)
            continue;
        const double advance = m_fonts[font].advancesForGlyphIndexes(glyphs).value(0).x();
        return advance <= 2 * kColumn ? Glyph{font, glyphs[0], kColumn - advance / 2} : Glyph{};
    }
    const Shape shape = shapeOf(character);
    if (shape.runs.isEmpty() || m_fonts.size() == kMostFonts)
        return {};
    const QRawFont font = shape.runs.front().rawFont();
    if (font.glyphIndexesForString(character).value(0) == 0)
        return {};
    m_fonts.append(font);
    return wideGlyph(character);
}

RowPainter::Shape RowPainter::shapeOf(const QString &text) const
{
    QTextLayout layout(text, m_font);
    QTextOption option; // which reads from where the text does
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(m_width);
    line.setPosition(QPointF(0, -line.ascent()));
    layout.endLayout();
    Shape shape{layout.glyphRuns(), line.naturalTextWidth()};
    for (QGlyphRun &each : shape.runs) {
        if (!each.rawFont().fontTable("head").isEmpty())
            continue;
        each.setRawFont(m_fonts.front()); // no font has it, and Qt's own box would come out black
        each.setGlyphIndexes(QList<quint32>(each.glyphIndexes().size(), 0));
    }
    return shape;
}

const RowPainter::Shape &RowPainter::keptShapeOf(const QString &text)
{
    if (const auto kept = m_shapes.constFind(text); kept != m_shapes.cend())
        return *kept;
    if (m_shapes.size() >= kMostShapes)
        m_shapes.clear();
    return *m_shapes.insert(text, shapeOf(text));
}

} // namespace host
