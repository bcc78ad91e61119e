// How a printer fares, in words.
#pragma once

#include "ServerConnection.h"

#include <optional>

namespace host {

class PrinterState
{
public:
    /// Asks the server only when something is the matter. `destination` is borrowed for the call.
    PrinterState(const ServerConnection &server, const cups_dest_t &destination);

    bool takesJobs() const { return m_takesJobs; }
    /// A word or two, for a list; empty when it just prints.
    QString inShort() const;
    /// Why a job will stay in the queue, in one clause that names it; nil when it won't.
    std::optional<QString> whyJobsWait() const;
    /// One clause that names the printer and says what to expect; empty when it just prints.
    QString note() const;

private:
    QString m_name;
    bool m_takesJobs;
    bool m_isStopped;
    QString m_reason; // may be empty
};

} // namespace host
