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
            prepareConversation(); // for the names of the others, or the job
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

void PrinterFinder::findNames()
{
    m_naming = BackgroundWork(
        *this,
        [](const std::stop_token &stop) {
            auto names = queueNames(stop);
            prepareConversation(); // for the job, or another printer
            return names;
        },
        [this](const Or<QueueNames> &names) {
            if (names)
                Q_EMIT named(*names);
        });
}

} // namespace host
