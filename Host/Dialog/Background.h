// Work that the window does not wait for.
#pragma once

#include <QObject>
#include <QPointer>

#include <thread>
#include <utility>

namespace host {

/// The object that answers are posted to. Never destroyed: work may end after everything else has.
QObject &backgroundAnswers();

/// Does `work` on a thread of its own and hands what it returns to `use` on this thread, unless `receiver` is gone by
/// then. Nobody waits for the work, neither when the receiver goes nor when the program ends.
template <class Work, class Use>
void inBackground(QObject &receiver, Work work, Use use)
{
    QObject &answers = backgroundAnswers();
    std::thread([&answers, guard = QPointer<QObject>(&receiver), work = std::move(work),
                 use = std::move(use)]() mutable {
        auto answer = work();
        // The guard is looked at only on the receiver's thread.
        QMetaObject::invokeMethod(
            &answers,
            [guard = std::move(guard), use = std::move(use), answer = std::move(answer)]() mutable {
                if (guard)
                    use(std::move(answer));
            },
            Qt::QueuedConnection);
    }).detach();
}

} // namespace host
