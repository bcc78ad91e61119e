// Looks for printers of the CUPS server.
#include "PrinterFinder.h"

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr int kMillisecondsToWait = 25000; // longer than connecting and the silence that is put up with

} // namespace

PrinterFinder::PrinterFinder(QObject *parent)
    : QObject(parent)
{
    // A search has an end of its own; should the library be held up all the same, the person is not.
    m_patience.setSingleShot(true);
    m_patience.setInterval(kMillisecondsToWait);
    connect(&m_patience, &QTimer::timeout, this, [this] { answer(Problem{tr("The CUPS server does not answer.")}); });
}

void PrinterFinder::find(const QueueName &name)
{
    m_patience.start();
    m_search = BackgroundWork(
        BackgroundWork::AtEnd::abandon, *this, [name](const std::stop_token &) { return findQueue(name); },
        [this, request = ++m_request](const Or<Queue> &queue) {
            if (request == m_request)
                answer(queue);
        });
}

void PrinterFinder::answer(const Or<Queue> &queue)
{
    ++m_request; // ignore answers that arrive after this one
    m_patience.stop();
    if (queue)
        Q_EMIT found(*queue);
    else
        Q_EMIT failed(queue.problem());
}

void PrinterFinder::findNames()
{
    m_naming = BackgroundWork(
        BackgroundWork::AtEnd::abandon, *this, [](const std::stop_token &) { return queueNames(); },
        [this](const Or<QueueNames> &names) {
            if (names)
                Q_EMIT named(*names);
        });
}

} // namespace host
