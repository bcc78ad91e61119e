// PDF files made for one test, and what programs beside us read out of others.
#pragma once

#include <QImage>
#include <QSizeF>
#include <QStringList>

#include <vector>

namespace support {

class JobPDF
{
public:
    /// `entries`: of the page's dictionary, its boxes at least. `drawing`: its content; /F is a font.
    JobPDF &page(const QByteArray &entries, const QByteArray &drawing);
    /// The same with these words at a place near its lower left corner.
    JobPDF &words(const QByteArray &entries, const QByteArray &words);
    /// As many pages of a size as asked for, with the words "Page 1", "Page 2" ...
    JobPDF &pages(int count, QSizeF size);
    /// Further entries of the catalogue, and objects from 100 on that they and pages may refer to.
    JobPDF &catalogue(const QByteArray &entries);
    JobPDF &object(const QByteArray &content);

    QByteArray text() const;
    /// Writes the file and answers its path.
    QString file(const QString &path) const;

private:
    struct Page
    {
        QByteArray entries;
        QByteArray drawing;
    };
    std::vector<Page> m_pages;
    QByteArray m_catalogue;
    std::vector<QByteArray> m_objects;
};

inline constexpr int kFirstFreeObject = 100;

/// The words on each page of a file, from the first on.
QStringList wordsOf(const QString &path);
/// As the pages are looked at.
std::vector<QSizeF> sizesOf(const QString &path);
/// A page in grey, at so many dots an inch, or in so many dots.
QImage pictureOf(const QString &path, int page, double resolution);

} // namespace support
