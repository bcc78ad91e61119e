// The document to print: opened once, read by descriptor from then on.
#pragma once

#include "Foundation/Or.h"

#include <QCoreApplication>
#include <QFile>

#include <memory>
#include <optional>

namespace host {

class Document
{
    Q_DECLARE_TR_FUNCTIONS(host::Document)

public:
    /// Opens a PDF, an image or a text; "-" is standard input, which is first copied into a private temporary file.
    /// A problem when it can't be printed.
    static foundation::Or<std::shared_ptr<Document>> open(const QString &path);

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
    static foundation::Or<std::unique_ptr<QFile>> copyOfStandardInput();
    bool recognise();

    QString m_title;
    std::unique_ptr<QFile> m_file;
    QByteArray m_format;
    QString m_extension;
};

} // namespace host
