// Signals as calls on the thread of the dialog: the handler may do no more than write a byte into a pipe.
#include "Interrupts.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace host {

namespace {

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};

std::array<int, 2> ends{-1, -1}; // of the pipe

int openPipe()
{
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("no pipe for signals can be had");
    return ends[0];
}

/// A second signal ends the program even when nothing gets back to the event loop.
void noteSignal(int number)
{
    std::signal(number, SIG_DFL);
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(ends[1], &byte, 1); // a full pipe has been noted already
}

} // namespace

Interrupts::Interrupts(std::function<void()> act)
    : m_notifier(openPipe(), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, [act = std::move(act)] {
        std::array<char, 16> bytes{};
        while (::read(ends[0], bytes.data(), bytes.size()) > 0) {
        }
        act();
    });
    for (const int number : kSignals)
        if (std::signal(number, noteSignal) == SIG_IGN)
            std::signal(number, SIG_IGN); // whoever started us wants us to go on
        else
            m_signals.push_back(number);
}

Interrupts::~Interrupts()
{
    for (const int number : m_signals)
        std::signal(number, SIG_DFL);
    m_notifier.setEnabled(false);
    for (const int end : ends)
        ::close(end);
}

} // namespace host
