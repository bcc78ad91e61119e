// A terminal, of which the test holds the other end.
#include "Terminal.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace support {

namespace {

constexpr int kMilliseconds = 20000;
constexpr winsize kSize{200, 120, 0, 0};

/// In the program to be, before it is one.
void takeTerminal(const char *name)
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    ::setsid();
    const int terminal = ::open(name, O_RDWR);
    ::ioctl(terminal, TIOCSCTTY, 0);
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::dup2(terminal, descriptor);
}

} // namespace

Terminal::Terminal()
    : m_end(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
{
    ::grantpt(m_end);
    ::unlockpt(m_end);
    ::ioctl(m_end, TIOCSWINSZ, &kSize);
}

Terminal::~Terminal()
{
    ::close(m_end); // which hangs up
    m_program.waitForFinished(kMilliseconds);
}

bool Terminal::start(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment,
                     const QString &folder)
{
    const QByteArray name = ::ptsname(m_end);
    m_program.setChildProcessModifier([name] { takeTerminal(name.constData()); });
    m_program.setProcessEnvironment(environment);
    m_program.setWorkingDirectory(folder);
    m_program.start(program, arguments);
    return m_program.waitForStarted(kMilliseconds);
}

void Terminal::type(const QByteArray &keys) const
{
    [[maybe_unused]] const auto written = ::write(m_end, keys.constData(), static_cast<std::size_t>(keys.size()));
}

bool Terminal::waitFor(const QByteArray &text)
{
    for (;;) {
        if (const qsizetype found = m_shown.indexOf(text, m_seen); found >= 0) {
            m_seen = found + text.size();
            return true;
        }
        pollfd readable{m_end, POLLIN, 0};
        std::array<char, 4096> part{};
        const auto count = ::poll(&readable, 1, kMilliseconds) == 1 ? ::read(m_end, part.data(), part.size()) : 0;
        if (count <= 0)
            return false;
        m_shown.append(part.data(), count);
    }
}

} // namespace support
