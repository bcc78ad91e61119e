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
    /// Opens a PDF, PostScript, an image or a text; "-" is standard input, which is first copied into a private
    /// temporary file. A problem when it can't be printed.
    static foundation::Or<std::shared_ptr<Document>> open(const QString &path);

    /// A private temporary copy of all that can be read from a descriptor, be it a file or a pipe, from where it is.
    static foundation::Or<std::shared_ptr<Document>> copied(const QString &title, int descriptor);

    /// The document of another process that has opened it; the descriptor becomes ours.
    static foundation::Or<std::shared_ptr<Document>> received(int descriptor);

    /// What has been written into an open file to be printed under a title.
    static foundation::Or<std::shared_ptr<Document>> made(const QString &title, std::unique_ptr<QFile> file);

    /// The file's name without its folder; "standard input" for that.
    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    /// MIME type, told by the content.
    const QByteArray &format() const { return m_format; }
    /// Of file names of this format: "pdf", "png", "txt" ...
    const QString &extension() const { return m_extension; }
    qint64 size() const { return m_file->size(); }
    /// For another process; stays the document's.
    int descriptor() const { return m_file->handle(); }

    /// Back to the beginning.
    void rewind();
    /// The next part of the content; empty at the end, nil when it can't be read.
    std::optional<QByteArray> read();
    /// Whether the file is another than when it was last rewound: what has been read then is neither the one nor the
    /// other.
    bool hasChanged() const;

private:
    Document(QString title, std::unique_ptr<QFile> file)
        : m_title(std::move(title))
        , m_file(std::move(file))
    {}
    /// What a change of the file changes.
    struct Fingerprint
    {
        qint64 size = 0;
        qint64 seconds = 0; // of its last change
        qint64 nanoseconds = 0;
        bool operator==(const Fingerprint &) const = default;
    };

    static foundation::Or<std::shared_ptr<Document>> checked(std::shared_ptr<Document> document);
    static foundation::Or<std::unique_ptr<QFile>> copyOf(const QString &title, int descriptor);
    bool recognise();
    Fingerprint fingerprint() const;
    QByteArray part(qint64 bytes);

    QString m_title;
    std::unique_ptr<QFile> m_file;
    qint64 m_position = 0; // our own: whoever shares the descriptor shares its position
    bool m_isReadable = true;
    Fingerprint m_rewound;
    QByteArray m_format;
    QString m_extension;
};

} // namespace host
