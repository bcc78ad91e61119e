// Queues of the CUPS server: which there are, and the PPD of one. All of it blocks and belongs on a thread of its own.
#pragma once

#include "PPDDocument.h"

#include <QStringList>
#include <QTemporaryFile>

#include <memory>

namespace host {

struct HttpCloser
{
    void operator()(http_t *http) const { httpClose(http); }
};
struct DestinationFree
{
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
struct DestinationInfoFree
{
    void operator()(cups_dinfo_t *info) const { cupsFreeDestInfo(info); }
};
using HttpConnection = std::unique_ptr<http_t, HttpCloser>;
using CupsDestination = std::unique_ptr<cups_dest_t, DestinationFree>;
using CupsDestinationInfo = std::unique_ptr<cups_dinfo_t, DestinationInfoFree>;

/// Null when the server does not answer within a few seconds.
HttpConnection connectToServer();

/// A file that goes when its last holder goes.
class FileToRemove
{
public:
    explicit FileToRemove(QString path)
        : m_path(std::move(path))
    {}
    ~FileToRemove() { QFile::remove(m_path); }
    FileToRemove(const FileToRemove &) = delete;
    FileToRemove &operator=(const FileToRemove &) = delete;

    const QString &path() const { return m_path; }

private:
    QString m_path;
};

struct Queue
{
    QString name;
    std::optional<QString> uri;
    OptionValues savedOptions; // the user's own defaults
    std::shared_ptr<FileToRemove> ppd;
};

struct QueueNames
{
    QStringList names;
    QString standard; // the default queue; empty when there is none
};

QueueNames queueNames();

/// A queue with its PPD; an empty name asks for the default queue. Nil, with one sentence that names the queue, when it
/// can't be had.
std::optional<Queue> findQueue(const QString &name, QString *error);

} // namespace host
