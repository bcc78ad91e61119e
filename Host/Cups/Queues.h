// Queues of the CUPS server: which there are, and what one of them needs to be printed on. Asking blocks, and so
// belongs on a thread of its own; it ends when a stop is requested.
#pragma once

#include "Conversation.h"
#include "OfferedOptions.h"

#include "Foundation/Or.h"
#include "PPD/PPDDocument.h"

#include <QByteArray>
#include <QStringList>

#include <ctime>
#include <memory>
#include <optional>

namespace host {

/// A queue's name as `lp -d` takes it: with a preset behind a slash, or without.
struct QueueName
{
    static QueueName fromText(const QString &text);

    QString queue; // empty: the default queue
    QString preset;
};

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

private:
    QString m_path;
};

/// A queue's PPD on this machine.
struct CachedPPD
{
    QString path;                                    // of a file that only its owner can read
    std::time_t asOf = 0;                            // when the server last confirmed this PPD
    QByteArray digest;                               // of the content
    bool isTemporary = false;                        // the file could not be kept, and goes
    std::shared_ptr<FileToRemove> removal = nullptr; // of a temporary file, by the dialog
};

/// What the server says of a queue to whoever chooses one. Texts are the server's.
struct QueueEntry
{
    QString name;
    QString description; // empty where it says no more than the name
    QString location;
    QString note; // one clause on its state; empty when it just prints
    bool takesJobs = true;
};

struct Queue
{
    QString name;
    QString preset; // that was asked for, or that goes with the default queue
    std::optional<QString> uri;
    std::optional<CachedPPD> ppd;   // nil: it has none
    std::vector<PaperEntry> papers; // of a queue without PPD; their names are those that a job may ask for
    QString note;                   // one clause on its state; empty when it just prints
    bool takesJobs = true;
    std::optional<QString> distrust = std::nullopt; // why the server's certificate is not trusted, in one clause
    OfferedOptions offers = {};                     // of a queue without PPD
    QString standardPaper = {};                     // of one, where the server says it: what it takes by itself
};

struct Queues
{
    std::vector<QueueEntry> queues; // sorted by name
    QString standard;               // the default queue; empty when there is none
};

foundation::Or<Queues> allQueues(const std::stop_token &stop, const Patience &patience = {});

/// A problem names the queue, or is of the kind `noService` or `noChoice`.
foundation::Or<Queue> findQueue(const QueueName &name, const std::stop_token &stop, const Patience &patience = {});

/// A queue with its PPD open. Nothing of an open PPD belongs to the thread that has opened it.
struct OpenedQueue
{
    Queue queue;
    std::unique_ptr<PPDDocument> ppd; // where the queue has none, of what the server offers; null: nothing
};

/// Takes a while where the PPD is large. A problem names the queue and the file.
foundation::Or<OpenedQueue> withPPDOpened(Queue queue);

} // namespace host
