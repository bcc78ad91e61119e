// One job on its way to the server.
#pragma once

#include "Cups/Queues.h"

#include "Jobs/Job.h"

namespace host {

struct JobOrder
{
    QString queue;
    std::optional<CachedPPD> ppd; // that the settings were made with
    Job job;
    std::chrono::milliseconds patience{}; // with the server's silence
};

/// Told when the server is asked for a job (0), and when it has made one (its number).
using JobMade = std::function<void(int id)>;

struct AcceptedJob
{
    int id = 0;
    std::optional<QString> whyItWaits; // one clause; nil when it does not
};

/// Sends a job. A problem says in one clause, without the queue, why not; it is of the kind `unanswered`
/// when the job may be there all the same. Whoever wants it gone cancels it.
foundation::Or<AcceptedJob> sendJob(const JobOrder &order, const JobMade &made, const JobProgress &progress,
                                    const std::stop_token &stop);

/// A problem unless the server confirms it.
foundation::Or<void> cancelJob(int id, std::chrono::milliseconds patience);

} // namespace host
