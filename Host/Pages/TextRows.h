// A text as rows of pages: where a line printer would put each character.
#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace host {

/// A character with what combines with it.
struct Cell
{
    qsizetype begin = 0; // in the row's text
    qsizetype size = 0;
    int column = 0;
    int columns = 1;
};

struct Row
{
    QString text;
    std::vector<Cell> cells;
    bool isRightToLeft = false; // some of it
    bool isBlank = true;

    QStringView textOf(const Cell &cell) const { return QStringView(text).mid(cell.begin, cell.size); }
};

/// Takes a text character by character and hands out its rows, none of them blank.
class TextRows
{
public:
    /// Pages and lines of a page count from 0.
    using Use = std::function<void(const Row &row, qint64 page, int line)>;

    /// At least one column and one line.
    TextRows(int columns, int lines, Use use);

    void take(char32_t character);
    /// The text is over.
    void end();

private:
    void add(char32_t character);
    void combine(char32_t character);
    void tabulate();
    void endLine();
    void endPage();
    void useRow();

    int m_columns;
    int m_lines;
    Use m_use;
    Row m_row;
    int m_column = 0;
    int m_line = 0; // may be the one behind the last: the next page begins when something comes
    qint64 m_page = 0;
    char32_t m_last = 0;
};

} // namespace host
