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

/// Ends with the object, whatever it is doing.
class ConfinedProgram
{
public:
    /// Starts it with a file as its standard input. What it writes goes into a pipe, and into no file.
    ConfinedProgram(const QString &path, const QStringList &arguments, const QString &input,
                    const Allowance &allowance);
    /// The same, but it writes into a file that is there.
    ConfinedProgram(const QString &path, const QStringList &arguments, const QString &input, const QString &output,
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
    void start(const QString &path, const QStringList &arguments, const QString &input, qint64 largestFile);
    void readComplaints();

    Allowance m_allowance;
    QByteArray m_complaints;
    QProcess m_process;
};

} // namespace host
