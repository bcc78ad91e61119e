// PDF documents made for one test.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>

#include <vector>

namespace support {

/// Squares in three corners of an area, one of them larger, and in its middle: whoever sees them sees how large a page
/// is, where it stands and how it is turned. In a PDF's own coordinates.
QByteArray marksIn(const QRectF &area);

class PDFText
{
public:
    /// Of a size in points, without /Rotate and /CropBox; `entries` adds them. With marks in its corners, unless other
    /// content is given.
    PDFText &page(QSizeF size, const QByteArray &content = {}, const QByteArray &entries = {});
    /// Another object; the number by which pages can name it.
    int object(const QByteArray &text);
    int stream(const QByteArray &content, const QByteArray &entries = {});

    QByteArray text() const;
    /// Writes the file and answers its path; it lives until the process ends.
    QString file() const;

private:
    std::vector<QByteArray> m_objects; // from number 3 on
    QByteArray m_kids;
    int m_count = 0;
};

/// A page that nobody lives to see: ten times ten times ten ... forms within forms.
PDFText endlessPage();
/// One that takes more memory than there is: groups within groups, each of them as large as the page.
PDFText heavyPage();

/// Content for a page: so many large paths one over the other, half transparent; and the entry that it needs.
QByteArray pathsOver(QSizeF size, int count);
inline constexpr auto kHalfTransparent = "/Resources << /ExtGState << /G << /ca 0.5 >> >> >>";

/// Any file of that content, until the process ends.
QString fileOf(const QByteArray &content, const QString &ending);

} // namespace support
