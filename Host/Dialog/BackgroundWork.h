// Work that the thread of the dialog does not wait for: looking for printers and opening their PPDs,
// sending a job.
#pragma once

#include <QObject>

#include <stop_token>
#include <thread>
#include <utility>

namespace host {

/// A piece of work on a thread of its own, owned by whoever wants its answer. The work owns all that it works on. Its
/// owner waits for it when it goes, so work ends soon after it is asked to stop.
class BackgroundWork
{
public:
    BackgroundWork() = default;
    /// Does `work(stop)` and hands what it returns to `use` on the thread of `receiver`, which lives longer than the
    /// work; what it returns after the receiver has gone is dropped.
    template <class Work, class Use>
    BackgroundWork(QObject &receiver, Work work, Use use);

    void requestStop() { m_thread.request_stop(); }

private:
    std::jthread m_thread;
};

template <class Work, class Use>
BackgroundWork::BackgroundWork(QObject &receiver, Work work, Use use)
    : m_thread([&receiver, work = std::move(work), use = std::move(use)](const std::stop_token &stop) mutable {
        auto post = [use = std::move(use), answer = work(stop)]() mutable { use(std::move(answer)); };
        QMetaObject::invokeMethod(&receiver, std::move(post), Qt::QueuedConnection);
    })
{}

} // namespace host
