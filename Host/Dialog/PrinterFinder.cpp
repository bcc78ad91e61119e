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
    for (auto &[number, earlier] : m_searches)
        earlier.requestStop();
    const int number = ++m_latest;
    m_searches[number] = BackgroundWork(
        *this,
        [name](const std::stop_token &stop) -> Or<OpenedQueue> {
            auto queue = findQueue(name, stop);
            prepareConversation(); // for the others, or the job
            if (!queue)
                return queue.problem();
            return withPPDOpened(*std::move(queue));
        },
        [this, number](Or<OpenedQueue> queue) {
            m_searches.erase(number);
            if (number == m_latest)
                answer(std::move(queue));
        });
}

void PrinterFinder::answer(Or<OpenedQueue> queue)
{
    if (queue)
        Q_EMIT found(std::make_shared<OpenedQueue>(*std::move(queue)));
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
