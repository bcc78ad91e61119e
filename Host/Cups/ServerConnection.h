// A connection to the CUPS server on which every call returns, even if the server hangs.
#pragma once

#include "Handles.h"

#include "Foundation/Or.h"

#include <QCoreApplication>

#include <stop_token>

namespace host {

/// How the server answered the last request of this thread. To be asked right after the call.
enum class Answer { granted, notFound, refused };
Answer answerTo(ipp_status_t status = cupsLastError());

class ServerConnection
{
    Q_DECLARE_TR_FUNCTIONS(host::ServerConnection)

public:
    /// Connects and asks a first question, within a few seconds. A call that waits fails when `stop` is requested,
    /// which is looked at about once a second, or when the server keeps silent for so long.
    explicit ServerConnection(std::stop_token stop = {}, int secondsOfSilence = 10);
    ~ServerConnection();
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    /// Whether the server was reached and answers.
    explicit operator bool() const { return m_answers; }
    http_t *get() const { return m_http.get(); }

    /// The server has moved: its silence counts from here.
    void restartSilence() { m_silence = 0; }

    /// Why the last call of this thread failed, in one clause. To be asked right after the call.
    foundation::Problem problem() const;

private:
    static int waitOn(http_t *, void *self);
    static const char *refusePassword(const char *, http_t *, const char *, const char *, void *);
    bool ask();

    std::stop_token m_stop;
    int m_patience;
    int m_silence = 0;
    bool m_askedForPassword = false;
    HttpConnection m_http;
    bool m_answers = false;
};

} // namespace host
