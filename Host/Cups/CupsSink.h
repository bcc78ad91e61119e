// Jobs that go to a queue of the CUPS server.
#pragma once

#include "Queues.h"

#include "Jobs/Job.h"

namespace host {

/// Streams a job to a queue, and looks first whether the settings were made for the PPD that the server has now. A job
/// counts as sent only when the server has said so after its last byte.
class CupsSink final : public JobSink
{
    Q_DECLARE_TR_FUNCTIONS(host::CupsSink)

public:
    static constexpr Patience kPatience{std::chrono::seconds(60), std::chrono::seconds(55),
                                        std::chrono::milliseconds(500)};

    /// `ppd`: the one that the settings were made with; nil when there was none.
    CupsSink(QString queue, std::optional<CachedPPD> ppd, const Patience &patience = kPatience)
        : m_queue(std::move(queue))
        , m_ppd(std::move(ppd))
        , m_patience(patience)
    {}
    /// The problem is of the kind `outdated` when the PPD has changed.
    foundation::Or<QString> submit(const Job &job, const JobProgress &progress, std::stop_token stop) override;
    std::optional<QString> whyItWaits() const override { return m_whyItWaits; }

private:
    QJsonObject question(const Job &job) const;
    /// Cancels a job that could not be sent to its end, for whatever reason; a problem when something may be left of
    /// it. `id`: 0 when the server was asked for one and has not said which.
    foundation::Or<void> withdraw(const QString &reason, int id, const Patience &patience) const;

    QString m_queue;
    std::optional<CachedPPD> m_ppd;
    Patience m_patience;
    std::optional<QString> m_whyItWaits;
};

} // namespace host
