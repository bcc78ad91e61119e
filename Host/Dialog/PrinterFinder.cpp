// Looks for printers of the CUPS server.
#include "PrinterFinder.h"

#include "Cups/Conversation.h"

namespace host {

using foundation::Or;

PrinterFinder::PrinterFinder(QObject *parent)
    : QObject(parent)
{}

void PrinterFinder::find(const QueueName &name)
{
    m_search = BackgroundWork(
        *this,
        [name](const std::stop_token &stop) {
            auto queue = findQueue(name, stop);
            prepareConversation(); // for the others, or the job
            return queue;
        },
        [this, request = ++m_request](const Or<Queue> &queue) {
            if (request == m_request)
                answer(queue);
        });
}

void PrinterFinder::answer(const Or<Queue> &queue)
{
    if (queue)
        Q_EMIT found(*queue);
    else
        Q_EMIT failed(queue.problem());
}

void PrinterFinder::findAll()
{
    m_searchForAll = BackgroundWork(
        *this,
        [](const std::stop_token &stop) {
            auto queues = allQueues(stop);
            prepareConversation(); // for the job, or another printer
            return queues;
        },
        [this](const Or<Queues> &queues) {
            if (queues)
                Q_EMIT foundAll(*queues);
            else
                Q_EMIT failedAll(queues.problem());
        });
}

} // namespace host
