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

namespace {

/// A panel is all that is missing where the offers are nothing, or more than a PPD may have.
std::unique_ptr<PPDDocument> offered(const Queue &queue)
{
    const QByteArray text = ppdOf(queue.offers);
    auto ppd = text.isEmpty() ? Or<std::unique_ptr<PPDDocument>>(nullptr) : PPDDocument::ofText(text);
    return ppd ? *std::move(ppd) : nullptr;
}

} // namespace

Or<OpenedQueue> withPPDOpened(Queue queue)
{
    if (!queue.ppd) {
        auto ppd = offered(queue);
        return OpenedQueue{std::move(queue), std::move(ppd)};
    }
    auto ppd = PPDDocument::open(queue.ppd->path);
    if (!ppd)
        return Problem{QStringLiteral("%1: %2").arg(queue.name, ppd.problem().sentence)};
    return OpenedQueue{std::move(queue), *std::move(ppd)};
}

} // namespace host
