// Talking to the CUPS server with an end. The library's own waits have none: they ask a callback, about once a second,
// whether to go on.
#include "ServerConnection.h"

#include <vector>

namespace host {

using foundation::Problem;

namespace {

constexpr int kMillisecondsToConnect = 5000;

/// The library asks for passwords by thread, not by connection: whose turn it is, the innermost last.
thread_local std::vector<ServerConnection *> connectionsOfThread;

} // namespace

Answer answerTo(ipp_status_t status)
{
    if (status <= IPP_STATUS_OK_CONFLICTING)
        return Answer::granted;
    return status == IPP_STATUS_ERROR_NOT_FOUND ? Answer::notFound : Answer::refused;
}

ServerConnection::ServerConnection(std::stop_token stop, int secondsOfSilence)
    : m_stop(std::move(stop))
    , m_patience(secondsOfSilence)
{
    // Without a callback of ours the library would ask for a password on the terminal, and wait there.
    cupsSetPasswordCB2(refusePassword, nullptr);
    connectionsOfThread.push_back(this);
    m_http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kMillisecondsToConnect,
                              nullptr));
    if (!m_http)
        return;
    httpSetTimeout(m_http.get(), 1, waitOn, this);
    m_answers = ask();
}

ServerConnection::~ServerConnection() { std::erase(connectionsOfThread, this); }

const char *ServerConnection::refusePassword(const char *, http_t *http, const char *, const char *, void *)
{
    for (ServerConnection *connection : connectionsOfThread)
        if (connection->get() == http || connection == connectionsOfThread.back()) // or one that the library made
            connection->m_askedForPassword = true;
    return nullptr;
}

/// Looking for a queue, the library goes on to look by a connection of its own, without an end, when this one fails: it
/// must not come to that with a server that keeps silent or wants a password.
bool ServerConnection::ask()
{
    ippDelete(cupsDoRequest(m_http.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
    return answerTo() != Answer::refused && !m_askedForPassword;
}

int ServerConnection::waitOn(http_t *, void *self)
{
    auto &connection = *static_cast<ServerConnection *>(self);
    return ++connection.m_silence < connection.m_patience && !connection.m_stop.stop_requested();
}

Problem ServerConnection::problem() const
{
    if (!m_http)
        return {tr("no CUPS server answers")};
    if (m_askedForPassword)
        return {tr("the CUPS server asks for a password")};
    if (m_silence >= m_patience)
        return {tr("the CUPS server does not answer")};
    return {QString::fromUtf8(cupsLastErrorString())};
}

} // namespace host
