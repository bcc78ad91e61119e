// The document to print: opened once, read by descriptor from then on.
#pragma once

#include <QFile>
#include <QString>

#include <memory>
#include <optional>

namespace host {

class Document
{
public:
    /// Opens a PDF, an image or a text; "-" is standard input, which is first copied into a private temporary file.
    /// Null, with one sentence that names the file, when it can't be printed.
    static std::unique_ptr<Document> open(const QString &path, QString *error);

    /// The file's name without its folder; "standard input" for that.
    const QString &title() const { return m_title; }
    /// MIME type, told by the content.
    const QByteArray &format() const { return m_format; }
    /// Of file names of this format: "pdf", "png", "txt" ...
    const QString &extension() const { return m_extension; }
    qint64 size() const { return m_file->size(); }

    /// The next part of the content; empty at the end, nil when it can't be read.
    std::optional<QByteArray> read();
    /// Back to the beginning.
    void rewind() { m_file->seek(0); }

private:
    Document(QString title, std::unique_ptr<QFile> file)
        : m_title(std::move(title))
        , m_file(std::move(file))
    {}
    bool recognise();

    QString m_title;
    std::unique_ptr<QFile> m_file;
    QByteArray m_format;
    QString m_extension;
};

} // namespace host
