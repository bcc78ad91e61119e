// Signals that ask the program to end, as calls on the thread of the dialog.
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <vector>

namespace host {

/// While it lives, an interrupt, a request to terminate or a terminal that hangs up calls `act` from the event loop
/// instead of ending the program; the same signal a second time ends it. One at a time.
class Interrupts
{
public:
    explicit Interrupts(std::function<void()> act);
    ~Interrupts();
    Interrupts(const Interrupts &) = delete;
    Interrupts &operator=(const Interrupts &) = delete;

private:
    QSocketNotifier m_notifier;
    std::vector<int> m_signals;
};

} // namespace host
