#include "ConfinedProgram.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace host {

namespace {

constexpr int kLook = 20;                    // ms between looks at whether anybody still wants the answer
constexpr qsizetype kMostComplaints = 65536; // bytes
constexpr rlim_t kMostOpenFiles = 64;

struct Limit
{
    __rlimit_resource resource;
    rlim_t value;
};

/// Between fork and exec: calls of the system only. An interrupt from the terminal is ours to pass on. Limits are only
/// lowered, and what writes beyond its own ends, although we go on.
void confine(const Allowance &allowance, qint64 largestFile)
{
    const std::array limits{
        Limit{RLIMIT_AS, static_cast<rlim_t>(allowance.memory)},
        Limit{RLIMIT_CPU, static_cast<rlim_t>(allowance.processorTime)},
        Limit{RLIMIT_FSIZE, static_cast<rlim_t>(largestFile)},
        Limit{RLIMIT_CORE, 0},
        Limit{RLIMIT_NOFILE, kMostOpenFiles},
    };
    for (const Limit &limit : limits) {
        rlimit both{};
        ::getrlimit(limit.resource, &both);
        both.rlim_max = std::min(both.rlim_max, limit.value);
        both.rlim_cur = std::min(both.rlim_cur, both.rlim_max);
        ::setrlimit(limit.resource, &both);
    }
    ::signal(SIGXFSZ, SIG_DFL);
    ::setsid();
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

} // namespace

ConfinedProgram::ConfinedProgram(const QString &path, const QStringList &arguments, const Streams &streams,
                                 const Allowance &allowance)
    : m_allowance(allowance)
{
    if (!streams.output.isEmpty())
        m_process.setStandardOutputFile(streams.output);
    m_process.setStandardInputFile(streams.input);
    const qint64 largestFile = streams.output.isEmpty() ? 0 : allowance.output;
    m_process.setChildProcessModifier([allowance, largestFile, kept = streams.kept] {
        confine(allowance, largestFile);
        ::fcntl(kept, F_SETFD, 0);
    });
    m_process.start(path, arguments, QIODevice::ReadOnly);
}

ConfinedProgram::~ConfinedProgram()
{
    m_process.kill();
    m_process.waitForFinished();
}

/// There may be no end of them.
void ConfinedProgram::readComplaints()
{
    const QByteArray more = m_process.readAllStandardError();
    m_complaints += more.left(kMostComplaints - m_complaints.size());
}

std::optional<QByteArray> ConfinedProgram::output(const std::stop_token &stop)
{
    const QDeadlineTimer deadline(m_allowance.time);
    QByteArray output;
    bool isWanted = true;
    const auto look = [&] {
        readComplaints();
        output += m_process.readAllStandardOutput();
        isWanted = isWanted && output.size() <= m_allowance.output && !stop.stop_requested() && !deadline.hasExpired();
        if (!isWanted)
            m_process.kill();
    };
    // Waiting goes on, whatever its time, for as long as there is more to be read.
    const QObject whileWaiting;
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &whileWaiting, look);
    QObject::connect(&m_process, &QProcess::readyReadStandardError, &whileWaiting, look);
    while (m_process.state() != QProcess::NotRunning && isWanted) {
        m_process.waitForFinished(kLook);
        look();
    }
    return isWanted ? std::optional(std::move(output)) : std::nullopt;
}

std::optional<int> ConfinedProgram::status() const
{
    const bool hasEnded =
        m_process.error() != QProcess::FailedToStart && m_process.exitStatus() == QProcess::NormalExit;
    return hasEnded ? std::optional(m_process.exitCode()) : std::nullopt;
}

} // namespace host
