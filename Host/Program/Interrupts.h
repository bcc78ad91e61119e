// Signals that ask the program to end, as calls on the thread of the dialog.
#pragma once

#include <QSocketNotifier>

#include <functional>

namespace host {

/// While it lives, an interrupt or a request to terminate calls `act` from the event loop instead of ending the
/// program. One at a time.
class Interrupts
{
public:
    explicit Interrupts(std::function<void()> act);
    ~Interrupts();
    Interrupts(const Interrupts &) = delete;
    Interrupts &operator=(const Interrupts &) = delete;

private:
    QSocketNotifier m_notifier;
};

} // namespace host
