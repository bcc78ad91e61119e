// A text as rows of pages.
#include "TextRows.h"

#include "CharacterColumns.h"

#include <algorithm>

namespace host {

namespace {

constexpr int kTab = 8;
constexpr qsizetype kMostOfCell = 16; // UTF-16 units: no script piles up more

/// What neither shows nor joins letters.
bool isDropped(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    case QChar::Other_Format: return character != 0x200c && character != 0x200d; // which some languages spell with
    default: return false;
    }
}

bool readsRightToLeft(char32_t character)
{
    if (character < 0x590)
        return false;
    const auto direction = QChar::direction(character);
    return direction == QChar::DirR || direction == QChar::DirAL;
}

} // namespace

TextRows::TextRows(int columns, int lines, Use use)
    : m_columns(std::max(columns, 1))
    , m_lines(std::max(lines, 1))
    , m_use(std::move(use))
{}

void TextRows::take(char32_t character)
{
    const bool isSecondOfLineEnd = character == '\n' && m_last == '\r';
    m_last = character;
    switch (character) {
    case '\n':
    case '\r':
        if (!isSecondOfLineEnd)
            endLine();
        break;
    case '\f': endPage(); break;
    case '\t': tabulate(); break;
    default:
        if (!isDropped(character))
            add(character);
    }
}

void TextRows::end()
{
    if (!m_row.cells.empty())
        endLine();
}

void TextRows::add(char32_t character)
{
    const int columns = columnsOf(character);
    if (columns == 0)
        return combine(character);
    if (m_column > 0 && m_column + columns > m_columns)
        endLine();
    const auto units = QChar::fromUcs4(character);
    const auto size = QStringView(units).size();
    m_row.cells.push_back({m_row.text.size(), size, m_column, columns});
    m_row.text.append(units);
    m_row.isBlank = m_row.isBlank && QChar::isSpace(character);
    m_row.isRightToLeft = m_row.isRightToLeft || readsRightToLeft(character);
    m_column += columns;
}

void TextRows::combine(char32_t character)
{
    if (m_row.cells.empty() || m_row.cells.back().size >= kMostOfCell)
        return;
    const auto units = QChar::fromUcs4(character);
    m_row.text.append(units);
    m_row.cells.back().size += QStringView(units).size();
}

void TextRows::tabulate()
{
    do
        add(' ');
    while (m_column % kTab != 0 && m_column < m_columns);
}

/// A page that is full ends when more comes, so that a form feed behind its last line adds no empty one.
void TextRows::endLine()
{
    if (m_line == m_lines) {
        m_line = 0;
        ++m_page;
    }
    useRow();
    ++m_line;
}

void TextRows::endPage()
{
    if (!m_row.cells.empty())
        endLine();
    m_line = 0;
    ++m_page;
}

void TextRows::useRow()
{
    if (!m_row.isBlank)
        m_use(m_row, m_page, m_line);
    m_row.text.resize(0); // keeps its memory
    m_row.cells.clear();
    m_row.isRightToLeft = false;
    m_row.isBlank = true;
    m_column = 0;
}

} // namespace host
