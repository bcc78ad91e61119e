// Work that the thread of the dialog does not wait for.
#include "BackgroundWork.h"

#include <atomic>

namespace host {

namespace {

std::atomic<int> runningWork = 0;

} // namespace

BackgroundWork::Running::Running() { ++runningWork; }
BackgroundWork::Running::~Running() { --runningWork; }

bool BackgroundWork::isAbandonedWorkRunning() { return runningWork > 0; }

QObject &BackgroundWork::answers()
{
    static auto *const object = new QObject;
    return *object;
}

BackgroundWork &BackgroundWork::operator=(BackgroundWork &&other) noexcept
{
    end();
    m_atEnd = other.m_atEnd;
    m_stop = std::move(other.m_stop);
    m_thread = std::move(other.m_thread);
    return *this;
}

void BackgroundWork::end()
{
    if (!m_thread.joinable())
        return;
    m_stop.request_stop();
    if (m_atEnd == AtEnd::wait)
        m_thread.join();
    else
        m_thread.detach();
}

} // namespace host
