// Talking to the CUPS server with an end.
#include "ServerConnection.h"

namespace host {

namespace {

constexpr int kMillisecondsToConnect = 5000;

thread_local bool askedForPassword = false;

const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    askedForPassword = true;
    return nullptr;
}

} // namespace

ServerConnection::ServerConnection(std::function<bool()> goOn, int secondsOfSilence)
    : m_goOn(std::move(goOn))
    , m_patience(secondsOfSilence)
{
    // Without a callback of ours the library would ask for a password on the terminal, and wait there.
    cupsSetPasswordCB2(noPassword, nullptr);
    askedForPassword = false;
    m_http =
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kMillisecondsToConnect, nullptr);
    if (!m_http)
        return;
    httpSetTimeout(m_http, 1, waitOn, this);
    m_answers = ask();
}

/// Looking for a queue, the library goes on to look by a connection of its own, without an end, when this one fails: it
/// must not come to that with a server that keeps silent or wants a password.
bool ServerConnection::ask()
{
    ippDelete(cupsDoRequest(m_http, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
    return !asksForPassword() &&
           (cupsLastError() <= IPP_STATUS_OK_CONFLICTING || cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND);
}

ServerConnection::~ServerConnection() { httpClose(m_http); }

int ServerConnection::waitOn(http_t *, void *self)
{
    auto &connection = *static_cast<ServerConnection *>(self);
    return ++connection.m_silence < connection.m_patience && (!connection.m_goOn || connection.m_goOn());
}

bool ServerConnection::asksForPassword() const { return askedForPassword; }

QString ServerConnection::problem() const
{
    if (!m_http)
        return tr("no CUPS server answers");
    if (asksForPassword())
        return tr("the CUPS server asks for a password");
    if (keepsSilent())
        return tr("the CUPS server does not answer");
    return QString::fromUtf8(cupsLastErrorString());
}

} // namespace host
