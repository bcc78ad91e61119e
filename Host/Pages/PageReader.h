// The pages of a PDF, read and drawn by programs beside us: documents are anybody's input, and never come into our
// own memory but as pictures.
#pragma once

#include "Jobs/Document.h"

#include <QImage>
#include <QSizeF>

#include <chrono>
#include <stop_token>
#include <vector>

namespace host {

/// Of the answer of pdfinfo: the size of each page in points, in their order, as it is looked at.
std::vector<QSizeF> readPageSizes(const QByteArray &info);

class PageReader
{
    Q_DECLARE_TR_FUNCTIONS(host::PageReader)

public:
    static constexpr std::chrono::milliseconds kPatience{30000};

    /// Of a PDF, which is only borrowed, by its descriptor. `patience`: with a program, for one question.
    explicit PageReader(const Document &document, std::chrono::milliseconds patience = kPatience);

    /// Whether there is a program to read pages.
    static bool isThere();

    /// The size of each page in points, as it is looked at. A problem when the document is damaged, locked (of that
    /// kind), or of too many pages, and when there is no program to read it.
    foundation::Or<std::vector<QSizeF>> sizes(const std::stop_token &stop) const;

    /// What the document calls itself; empty when it does not say, or can't be read.
    QString title(const std::stop_token &stop) const;

    /// A page, from 1 on, in so many dots, as a QImage::Format_Grayscale8. A problem when it can't be drawn, or not in
    /// the time and memory that it is given.
    foundation::Or<QImage> draw(int page, QSize dots, const std::stop_token &stop) const;
    /// No more than `part` of it, which lies within those dots.
    foundation::Or<QImage> drawPart(int page, QSize dots, const QRect &part, const std::stop_token &stop) const;

private:
    foundation::Or<QImage> pictureOf(int page, QSize dots, const QStringList &part, QSize size,
                                     const std::stop_token &stop) const;
    foundation::Or<QByteArray> answerOf(const QString &program, const QStringList &arguments, qint64 mostBytes,
                                        const std::stop_token &stop) const;

    QString m_title;
    std::chrono::milliseconds m_patience;
    QString m_path; // opened anew by each program, so that each begins at the document's beginning
};

} // namespace host
