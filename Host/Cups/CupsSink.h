// Jobs that go to a queue of the CUPS server.
#pragma once

#include "PPDCache.h"

#include "Jobs/Job.h"

namespace host {

/// Streams a job to a queue, and looks first whether the settings were made for the PPD that the server has now.
class CupsSink final : public JobSink
{
public:
    /// `ppd`: the one that the settings were made with; nil when there was none.
    CupsSink(QString queue, std::optional<CachedPPD> ppd)
        : m_queue(std::move(queue))
        , m_ppd(std::move(ppd))
    {}
    /// The problem is of the kind `outdated` when the PPD has changed.
    foundation::Or<QString> submit(const Job &job, const JobProgress &progress, std::stop_token stop) override;

private:
    foundation::Problem failed(const foundation::Problem &reason, const std::stop_token &stop) const;

    QString m_queue;
    std::optional<CachedPPD> m_ppd;
};

} // namespace host
