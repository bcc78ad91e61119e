// Draws rows of text on a grid: 10 characters and 6 lines an inch.
#pragma once

#include "PDFPages.h"
#include "TextRows.h"

#include <QGlyphRun>
#include <QHash>
#include <QRawFont>

namespace host {

class RowPainter
{
public:
    // In the painter's units.
    static constexpr int kColumn = PDFPages::kUnitsPerInch / 10;
    static constexpr int kLine = PDFPages::kUnitsPerInch / 6;

    /// `width`: of the area, in the painter's units.
    RowPainter(QPainter &painter, double width);

    void draw(const Row &row, int line);

private:
    /// Text as Qt lays it out, with whatever font has its characters.
    struct Shape
    {
        QList<QGlyphRun> runs;
        double width = 0;
    };

    /// A character that one glyph shows as it is.
    struct Glyph
    {
        int font = -1; // -1: has to be laid out
        quint32 index = 0;
        double margin = 0; // to the left of it
    };

    void drawOnGrid(const Row &row);
    void drawGlyphs(const Row &row);
    void drawLaidOut(const Row &row);
    void drawWhole(const Row &row);
    void drawRuns(const QList<QGlyphRun> &runs, double x, double scale);
    bool isLaidOut(const Row &row, const Cell &cell);
    Glyph glyphOf(QStringView character, int columns);
    Glyph narrowGlyph(const QString &character) const;
    Glyph wideGlyph(const QString &character);
    Shape shapeOf(const QString &text) const;
    const Shape &keptShapeOf(const QString &text);

    QPainter &m_painter;
    double m_width;
    QFont m_font;
    QList<QRawFont> m_fonts; // the first one for all that it has, the others for wide characters
    double m_stretch;        // of the first one, to the width of a column
    QHash<char32_t, Glyph> m_glyphs;
    QHash<QString, Shape> m_shapes; // of late
};

} // namespace host
