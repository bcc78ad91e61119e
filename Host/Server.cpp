// Talking to the CUPS server with an end.
#include "Server.h"

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
    if (m_http)
        httpSetTimeout(m_http, 1, waitOn, this);
}

ServerConnection::~ServerConnection() { httpClose(m_http); }

int ServerConnection::waitOn(http_t *, void *self)
{
    auto &connection = *static_cast<ServerConnection *>(self);
    return ++connection.m_silence < connection.m_patience && (!connection.m_goOn || connection.m_goOn());
}

QString ServerConnection::problem() const
{
    if (!m_http)
        return "no CUPS server answers";
    if (askedForPassword)
        return "the CUPS server asks for a password";
    if (m_silence >= m_patience)
        return "the CUPS server does not answer";
    return QString::fromUtf8(cupsLastErrorString());
}

} // namespace host
