// Jobs that go to a queue of the CUPS server. The process that sends one cancels it itself when it can't go on; when
// the process is what breaks, another one cancels the job.
#include "CupsSink.h"

#include "Wire.h"

namespace host {

using foundation::Or;
using foundation::Problem;
using namespace std::chrono_literals;

namespace {

// Together with the farewell to the first conversation, at most two seconds for whoever stops a job.
constexpr Patience kForCancellingInHaste{1400ms, 1400ms, 0ms};
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
    std::optional<int> id;
    const auto hear = [&](const QJsonObject &told) {
        if (told.contains(wire::kId))
            id = told[wire::kId].toInt();
        if (told.contains(wire::kDone))
            progress(told[wire::kDone].toInteger(), told[wire::kOf].toInteger());
    };
    prepareConversation(); // should the job have to be cancelled
    const auto sent = converse(question(job), m_patience, stop, job.document->descriptor(), hear);
    if (sent)
        return QStringLiteral("%1-%2").arg(m_queue, QString::number((*sent)[wire::kId].toInt()));
    Problem problem = sent.problem();
    problem.sentence = QStringLiteral("%1: %2").arg(m_queue, stop.stop_requested() ? tr("stopped") : problem.sentence);
    if (problem.kind == Problem::Kind::unanswered && id)
        return withdraw(problem.sentence, *id, stop.stop_requested() ? kForCancellingInHaste : kForCancelling);
    return problem;
}

Problem CupsSink::withdraw(const QString &sentence, int id, const Patience &patience) const
{
    if (id == 0)
        return {tr("%1; a job may be there, so look before you print again").arg(sentence)};
    const QJsonObject question{{wire::kAsk, wire::kCancel}, {wire::kJob, QJsonObject{{wire::kId, id}}}};
    if (converse(question, patience, {}))
        return {sentence};
    return {tr("%1; job %2-%3 may still be there, so look before you print again")
                .arg(sentence, m_queue, QString::number(id))};
}

} // namespace host
