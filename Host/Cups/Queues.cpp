// Queues of the CUPS server, as a conversation with it tells.
#include "Queues.h"

#include "Wire.h"

#include "Printing/cups_api.h"

#include <QDir>
#include <QFile>

namespace host {

using foundation::Or;
using foundation::Problem;

FileToRemove::~FileToRemove() { QFile::remove(m_path); }

QueueName QueueName::fromText(const QString &text) { return {text.section('/', 0, 0), text.section('/', 1)}; }

Or<Queues> allQueues(const std::stop_token &stop, const Patience &patience)
{
    const auto answer = converse({{wire::kAsk, wire::kQueues}}, patience, stop);
    if (!answer)
        return answer.problem();
    return queuesFrom(*answer);
}

Or<Queue> findQueue(const QueueName &name, const std::stop_token &stop, const Patience &patience)
{
    const auto answer = converse({{wire::kAsk, wire::kQueue}, {wire::kQueue, toJson(name)}}, patience, stop);
    if (answer) {
        Queue queue = queueFrom(*answer);
        if (queue.ppd && queue.ppd->isTemporary && QFileInfo(queue.ppd->path).path() == QDir::tempPath())
            queue.ppd->removal = std::make_shared<FileToRemove>(queue.ppd->path);
        return queue;
    }
    if (answer.problem().kind != Problem::Kind::unanswered)
        return answer.problem();
    const QString owner = name.queue.isEmpty() ? QString::fromUtf8(cupsServer()) : name.queue;
    return Problem{QStringLiteral("%1: %2").arg(owner, answer.problem().sentence)};
}

Or<OpenedQueue> withPPDOpened(Queue queue)
{
    const QByteArray offers = queue.ppd ? QByteArray() : ppdOf(queue.offers);
    if (!queue.ppd && offers.isEmpty())
        return OpenedQueue{std::move(queue), nullptr};
    auto ppd = queue.ppd ? PPDDocument::open(queue.ppd->path) : PPDDocument::ofText(offers);
    if (!ppd)
        return Problem{QStringLiteral("%1: %2").arg(queue.name, ppd.problem().sentence)};
    return OpenedQueue{std::move(queue), *std::move(ppd)};
}

} // namespace host
