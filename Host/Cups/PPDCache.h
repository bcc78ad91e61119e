// PPDs of queues, kept on disk between dialogs and fetched again only when the server's have changed.
#pragma once

#include "Foundation/Or.h"

#include <QByteArray>

#include <ctime>
#include <memory>
#include <optional>

namespace host {

class ServerConnection;

/// A file that goes when its last holder goes.
class FileToRemove
{
public:
    explicit FileToRemove(QString path)
        : m_path(std::move(path))
    {}
    ~FileToRemove();
    FileToRemove(const FileToRemove &) = delete;
    FileToRemove &operator=(const FileToRemove &) = delete;

    const QString &path() const { return m_path; }

private:
    QString m_path;
};

struct CachedPPD
{
    QString path;                            // of a file that only its owner can read
    std::time_t asOf = 0;                    // when the server last confirmed this PPD
    QByteArray digest;                       // of the content
    std::shared_ptr<FileToRemove> temporary; // where the file could not be kept
};

/// The queue's PPD as the server has it now; nil when the queue has none.
foundation::Or<std::optional<CachedPPD>> fetchPPD(const ServerConnection &server, const QString &queue);

/// Whether the server's PPD of a queue is another by now. False when that can't be found out.
bool hasPPDChanged(const ServerConnection &server, const QString &queue, const CachedPPD &known);

} // namespace host
