// Work that the thread of the dialog does not wait for: looking for printers, sending a job.
#pragma once

#include <QObject>
#include <QPointer>

#include <memory>
#include <stop_token>
#include <thread>
#include <utility>

namespace host {

/// A piece of work on a thread of its own, owned by whoever wants its answer. The work owns all that it works on.
class BackgroundWork
{
public:
    /// What becomes of work that still runs when its owner goes. It is asked to stop either way.
    enum class AtEnd {
        abandon, // it ends by itself some time, and its answer is dropped: for questions that nobody needs any more
        wait,    // the owner waits for it: for what must not be left half done
    };

    BackgroundWork() = default;
    /// Does `work(stop)` and hands what it returns to `use` on this thread, unless `receiver` is gone by then.
    template <class Work, class Use>
    BackgroundWork(AtEnd atEnd, QObject &receiver, Work work, Use use);
    ~BackgroundWork() { end(); }
    BackgroundWork(BackgroundWork &&) = default;
    BackgroundWork &operator=(BackgroundWork &&other) noexcept;

    void requestStop() { m_stop.request_stop(); }

    /// Whether abandoned work still runs. A program that ends then must end without cleaning up beneath it.
    static bool isAbandonedWorkRunning();

private:
    /// Counts work that runs. Shared with the thread.
    class Running
    {
    public:
        Running();
        ~Running();
        Running(const Running &) = delete;
        Running &operator=(const Running &) = delete;
    };

    /// The object that answers are posted to. Never destroyed: work may end after everything else has.
    static QObject &answers();
    void end();

    AtEnd m_atEnd = AtEnd::abandon;
    std::stop_source m_stop{std::nostopstate};
    std::thread m_thread;
};

template <class Work, class Use>
BackgroundWork::BackgroundWork(AtEnd atEnd, QObject &receiver, Work work, Use use)
    : m_atEnd(atEnd)
    , m_stop(std::stop_source())
    , m_thread([&posts = answers(), stop = m_stop.get_token(), guard = QPointer<QObject>(&receiver),
                work = std::move(work), use = std::move(use), running = std::make_unique<Running>()]() mutable {
        auto answer = work(stop);
        // The guard is looked at only on the receiver's thread.
        QMetaObject::invokeMethod(
            &posts,
            [guard = std::move(guard), use = std::move(use), answer = std::move(answer)]() mutable {
                if (guard)
                    use(std::move(answer));
            },
            Qt::QueuedConnection);
    })
{}

} // namespace host
