// Queues of the CUPS server: which there are, and what one of them needs to be printed on. All of it asks the server,
// and so belongs on a thread of its own.
#pragma once

#include "PPD/PPDDocument.h"
#include "PPDCache.h"

#include <QStringList>

#include <functional>

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
    /// Nil when the queue has no PPD.
    std::optional<CachedPPD> ppd;
    std::vector<PPDDocument::PageSize> papers; // of a queue without PPD
    QString note;                              // one sentence on its state; empty when it just prints
};

struct QueueNames
{
    QStringList names;
    QString standard; // the default queue; empty when there is none
};

/// Nil when the server can't tell.
std::optional<QueueNames> queueNames();

/// Nil, with one sentence that names the queue, when it can't be had.
std::optional<Queue> findQueue(const QueueName &name, QString *error);

} // namespace host
