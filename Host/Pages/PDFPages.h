// A PDF while it is drawn: pages of one sheet, in a file without a name.
#pragma once

#include "Sheet.h"

#include "Foundation/Or.h"
#include "Jobs/Document.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>

#include <memory>

namespace host {

class PDFPages
{
    Q_DECLARE_TR_FUNCTIONS(host::PDFPages)

public:
    static constexpr int kUnitsPerInch = 720;

    /// Begins the first page of a PDF under a document's title. A problem when no PDF has pages of this size.
    static foundation::Or<std::unique_ptr<PDFPages>> begin(const QString &title, const Sheet &sheet);
    ~PDFPages();
    PDFPages(const PDFPages &) = delete;
    PDFPages &operator=(const PDFPages &) = delete;

    /// Draws from the upper left corner of the printable area on, y downward.
    QPainter &painter() { return m_painter; }
    /// Of the printable area, in the painter's units.
    QSizeF area() const { return m_area; }
    void newPage() { m_writer->newPage(); }

    /// The PDF; nothing can be drawn any more. A problem when it could not be written.
    foundation::Or<std::shared_ptr<Document>> finish();

private:
    class Output;

    PDFPages(QString title, std::unique_ptr<QFile> file, QRectF printable);
    bool start(const printing::Paper &size);

    QString m_title;
    std::unique_ptr<QFile> m_file;
    QRectF m_printable; // in points
    QSizeF m_area;
    std::unique_ptr<Output> m_output;
    std::unique_ptr<QPdfWriter> m_writer;
    QPainter m_painter; // the last one: it ends before what it draws on
};

} // namespace host
