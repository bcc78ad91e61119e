// A terminal with a program in it that a test uses by keys, as a person does.
#pragma once

#include "Helper.h"

namespace support {

class Terminal
{
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// False when there is no terminal, or no such program.
    bool start(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment,
               const QString &folder);
    void type(const QByteArray &keys) const;
    /// Waits until a text has come since the last one that was waited for; false when it does not come.
    bool waitFor(const QByteArray &text);
    /// All that came.
    const QByteArray &shown() const { return m_shown; }

private:
    int m_end; // ours
    QByteArray m_shown;
    qsizetype m_seen = 0;
    Helper m_program;
};

} // namespace support
