// Text that comes from outside.
#include "PlainText.h"

#include <algorithm>

namespace foundation {

namespace {

constexpr qsizetype kLongestLine = 300;

bool isHarmful(QChar character)
{
    if (character >= u' ' && character < u'\x7f')
        return false; // most of all text
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    case QChar::Other_Format: // of these, joiners belong to the spelling of several languages
        return character != QChar(0x200c) && character != QChar(0x200d) && character != QChar(QChar::SoftHyphen);
    default: return false;
    }
}

} // namespace

QString withoutControls(QString text)
{
    std::ranges::replace_if(text, isHarmful, QChar(' '));
    return text;
}

QString asHtml(const QString &text) { return "<p style='white-space:pre-wrap'>" + text.toHtmlEscaped() + "</p>"; }

QString plainLine(const QString &text)
{
    QString line = withoutControls(text.left(2 * kLongestLine)).simplified();
    if (line.size() <= kLongestLine)
        return line;
    line.truncate(kLongestLine - 1);
    if (line.back().isHighSurrogate())
        line.chop(1);
    return line + QChar(0x2026);
}

} // namespace foundation
