// Talking to the CUPS server with an end: whatever the server does or leaves undone, every call comes back.
#pragma once

#include "Printing/ppd_api.h"

#include <QCoreApplication>

#include <functional>
#include <memory>

namespace host {

/// One connection. The thread that makes it is not asked for passwords from then on.
class ServerConnection
{
    Q_DECLARE_TR_FUNCTIONS(host::ServerConnection)

public:
    /// Connects and asks a first question, within a few seconds. While the server keeps silent later, `goOn` is asked
    /// about once a second; when it answers false, or the silence lasts, the call that waits fails.
    explicit ServerConnection(std::function<bool()> goOn = {}, int secondsOfSilence = 10);
    ~ServerConnection();
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    /// Whether the server was reached and answers.
    explicit operator bool() const { return m_answers; }
    http_t *get() const { return m_http; }

    /// The server has moved: its silence counts from here.
    void heard() { m_silence = 0; }

    bool asksForPassword() const;
    bool keepsSilent() const { return m_silence >= m_patience; }
    /// One clause that says why the last call of this thread failed.
    QString problem() const;

private:
    static int waitOn(http_t *, void *self);
    bool ask();

    std::function<bool()> m_goOn;
    int m_patience;
    int m_silence = 0;
    http_t *m_http = nullptr;
    bool m_answers = false;
};

struct DestinationFree
{
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
struct DestinationInfoFree
{
    void operator()(cups_dinfo_t *info) const { cupsFreeDestInfo(info); }
};
using CupsDestination = std::unique_ptr<cups_dest_t, DestinationFree>;
using CupsDestinationInfo = std::unique_ptr<cups_dinfo_t, DestinationInfoFree>;

} // namespace host
