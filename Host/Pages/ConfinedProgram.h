// A program beside us that a document is left to: it may be anybody's, so whatever reads it can do little, and ends
// with us.
#pragma once

#include <QProcess>

#include <chrono>
#include <optional>
#include <stop_token>

namespace host {

/// What a program may use at most.
struct Allowance
{
    qint64 memory;     // in bytes
    qint64 output;     // in bytes
    int processorTime; // in seconds
    std::chrono::milliseconds time;
};

/// What opens a file anew, from its beginning, that is open already.
inline QString pathOfDescriptor(int descriptor) { return QStringLiteral("/proc/self/fd/%1").arg(descriptor); }

/// What a program reads and writes. What is open already goes by `pathOfDescriptor`.
struct Streams
{
    QString input;       // its standard input
    QString output = {}; // a file that is there; empty: a pipe, and it writes into no file
    int kept = -1;       // a descriptor that it shall have as we have it; -1: none
};

/// Ends with the object, whatever it is doing.
class ConfinedProgram
{
public:
    ConfinedProgram(const QString &path, const QStringList &arguments, const Streams &streams,
                    const Allowance &allowance);
    ~ConfinedProgram();
    ConfinedProgram(const ConfinedProgram &) = delete;
    ConfinedProgram &operator=(const ConfinedProgram &) = delete;

    /// Waits for its end: all that it has written into the pipe. Nil when that is too much or takes too long, and when
    /// nobody wants it any more.
    std::optional<QByteArray> output(const std::stop_token &stop);
    /// How it ended; nil when not by itself.
    std::optional<int> status() const;
    /// The beginning of what it complained of.
    const QByteArray &complaints() const { return m_complaints; }

private:
    void readComplaints();

    Allowance m_allowance;
    QByteArray m_complaints;
    QProcess m_process;
};

} // namespace host
