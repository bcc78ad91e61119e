// Jobs that go to a queue of the CUPS server. The process that sends one cancels it itself when it can't go on; when
// the process is what breaks, another one cancels the job.
#include "CupsSink.h"

#include "Wire.h"

namespace host {

using foundation::Or;
using foundation::Problem;
using namespace std::chrono_literals;

namespace {

// Together with the farewell to the first conversation, two seconds at most for whoever stops a job; a busy machine
// needs some of them to start programs and to end them.
constexpr Patience kForCancellingInHaste{1000ms, 1000ms, 0ms};
constexpr Patience kForCancelling{10s, 10s, 0ms};

} // namespace

QJsonObject CupsSink::question(const Job &job) const
{
    QJsonObject order = toJson(job);
    order[wire::kQueue] = m_queue;
    if (m_ppd)
        order[wire::kPPD] = toJson(*m_ppd);
    return {{wire::kAsk, wire::kSend}, {wire::kJob, order}};
}

Or<QString> CupsSink::submit(const Job &job, const JobProgress &progress, std::stop_token stop)
{
    m_whyItWaits.reset();
    std::optional<int> id;
    const auto hear = [&](const QJsonObject &told) {
        if (told.contains(wire::kId))
            id = told[wire::kId].toInt();
        if (told.contains(wire::kDone))
            progress(told[wire::kDone].toInteger(), told[wire::kOf].toInteger());
    };
    prepareConversation(); // should the job have to be cancelled
    const auto sent = converse(question(job), m_patience, stop, job.document->descriptor(), hear);
    if (sent) {
        if (sent->contains(wire::kWaits))
            m_whyItWaits = (*sent)[wire::kWaits].toString();
        return QStringLiteral("%1-%2").arg(m_queue, QString::number((*sent)[wire::kId].toInt()));
    }
    const bool isStopped = stop.stop_requested();
    Problem problem = sent.problem();
    if (problem.kind == Problem::Kind::unanswered && id) {
        const QString reason = isStopped ? tr("cancelled") : problem.sentence;
        if (auto left = withdraw(reason, *id, isStopped ? kForCancellingInHaste : kForCancelling); !left)
            return left.problem();
    }
    const QString reason = isStopped ? tr("cancelled; nothing was printed") : problem.sentence;
    problem.sentence = QStringLiteral("%1: %2").arg(m_queue, reason);
    return problem;
}

Or<void> CupsSink::withdraw(const QString &reason, int id, const Patience &patience) const
{
    if (id == 0)
        return Problem{tr("%1: %2; a job may be there, so look before you print again").arg(m_queue, reason)};
    const QJsonObject question{{wire::kAsk, wire::kCancel}, {wire::kJob, QJsonObject{{wire::kId, id}}}};
    if (converse(question, patience, {}))
        return {};
    return Problem{tr("%1: %2; job %1-%3 may still be there, so look before you print again")
                       .arg(m_queue, reason, QString::number(id))};
}

} // namespace host
