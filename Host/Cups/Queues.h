// Queues of the CUPS server: which there are, and what one of them needs to be printed on. All of it asks the server,
// and so belongs on a thread of its own.
#pragma once

#include "PPDCache.h"

#include "PPD/PPDDocument.h"

#include <QStringList>

namespace host {

/// A queue's name as `lp -d` takes it: with a preset behind a slash, or without.
struct QueueName
{
    static QueueName fromText(const QString &text);

    QString queue; // empty: the default queue
    QString preset;
};

struct Queue
{
    QString name;
    QString preset; // that was asked for, or that goes with the default queue
    std::optional<QString> uri;
    std::optional<CachedPPD> ppd;   // nil: it has none
    std::vector<PaperEntry> papers; // of a queue without PPD; their names are those that a job may ask for
    QString note;                   // one clause on its state; empty when it just prints
};

struct QueueNames
{
    QStringList names;
    QString standard; // the default queue; empty when there is none
};

foundation::Or<QueueNames> queueNames();

/// A problem names the queue.
foundation::Or<Queue> findQueue(const QueueName &name);

} // namespace host
