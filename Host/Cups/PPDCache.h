// PPDs of queues, kept on disk between dialogs and fetched again only when the server's have changed.
#pragma once

#include "Printing/ppd_api.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <ctime>
#include <memory>
#include <optional>

namespace host {

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

struct CachedPPD
{
    QString path;                            // of a file that only its owner can read
    std::time_t asOf = 0;                    // the server's PPD has been this one at that time
    QByteArray digest;                       // of the content
    std::shared_ptr<FileToRemove> temporary; // where the file could not be kept
};

/// The queue's PPD as the server has it now. Nil when the queue has none or the server does not answer;
/// `cupsLastError` then says which.
std::optional<CachedPPD> fetchPPD(http_t *http, const QString &queue);

/// Whether the server's PPD of a queue is another by now. False when that can't be found out.
bool hasPPDChanged(http_t *http, const QString &queue, const CachedPPD &known);

} // namespace host
