// Talking to the CUPS server. The library's own waits have no end: they ask a callback, every tick, whether to go on.
#include "ServerConnection.h"

#include "Certificate.h"

#include "Foundation/PlainText.h"

#include <QUrl>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

namespace host {

using foundation::Or;
using foundation::Problem;

namespace {

constexpr int kMillisecondsToConnect = 5000;
constexpr std::chrono::milliseconds kTick{200};
constexpr qsizetype kLargestFile = qsizetype{16} * 1024 * 1024;
constexpr int kMostTries = 3; // of a GET: a connection gone stale, and credentials that need no person

/// A number, as is the status of HTTP here: a server may say one that the library's enumerations have no room for.
int lastStatus() { return cupsLastError(); }

/// Whether the last answer is what `forgetLastAnswer` has left.
bool isForgotten()
{
    return lastStatus() == IPP_STATUS_ERROR_INTERNAL && qstrcmp(cupsLastErrorString(), std::strerror(EINVAL)) == 0;
}

/// The library asks for passwords by thread, not by connection: whose turn it is, the innermost last.
thread_local std::vector<ServerConnection *> connectionsOfThread;

struct KnownCredentials
{
    QByteArray user; // empty: none
    QByteArray password;
};

KnownCredentials &knownCredentials()
{
    static KnownCredentials known;
    return known;
}

/// Whether what goes over a connection can be read on its way. What goes to this machine does not leave it.
bool isOpenToOthers(http_t *http) { return !httpIsEncrypted(http) && !httpAddrLocalhost(httpGetAddress(http)); }

} // namespace

void setCredentials(const Credentials &credentials)
{
    knownCredentials() = {credentials.user.toUtf8(), credentials.password.toUtf8()};
}

Answer lastAnswer()
{
    const int status = lastStatus();
    if (status <= IPP_STATUS_OK_CONFLICTING)
        return Answer::granted;
    return status == IPP_STATUS_ERROR_NOT_FOUND ? Answer::notFound : Answer::refused;
}

ServerConnection::ServerConnection(std::stop_token stop, std::chrono::milliseconds patience)
    : m_stop(std::move(stop))
    , m_ticksOfPatience(static_cast<int>(patience / kTick))
{
    // Without a callback of ours the library would ask for a password on the terminal, and wait there.
    cupsSetPasswordCB2(password, nullptr);
    connectionsOfThread.push_back(this);
    m_http.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kMillisecondsToConnect,
                              nullptr));
    if (!m_http)
        return;
    httpSetTimeout(m_http.get(), std::chrono::duration<double>(kTick).count(), waitOn, this);
    // Looking for a queue, the library goes on by a connection of its own, without an end, when this one fails: it must
    // not come to that with a server that keeps silent or wants a password.
    const auto first = ask(ippNewRequest(IPP_OP_CUPS_GET_DEFAULT));
    m_answers = (first || first.problem().kind == Problem::Kind::notFound) && !m_lacksPassword;
}

ServerConnection::~ServerConnection() { std::erase(connectionsOfThread, this); }

/// A connection that the library has made by itself may lead to anybody, who is told nothing.
const char *ServerConnection::password(const char *, http_t *http, const char *, const char *, void *)
{
    for (ServerConnection *connection : connectionsOfThread)
        if (connection->get() == http)
            return connection->passwordOnce();
    connectionsOfThread.back()->m_lacksPassword = true;
    return nullptr;
}

/// Asked again, the server has not taken it.
const char *ServerConnection::passwordOnce()
{
    const KnownCredentials &known = knownCredentials();
    m_lacksPassword = known.user.isEmpty() || std::exchange(m_hasSaidPassword, true);
    if (m_lacksPassword)
        return nullptr;
    cupsSetUser(known.user.constData());
    return known.password.constData();
}

std::optional<QString> ServerConnection::distrust() const
{
    return m_http ? whyNotTrusted(m_http.get()) : std::nullopt;
}

Problem ServerConnection::accessProblem() const
{
    QString sentence = m_hasSaidPassword ? tr("the CUPS server does not accept the user name or the password")
                                         : tr("the CUPS server asks for a password");
    if (const auto reason = distrust())
        sentence += "; " + *reason;
    if (isOpenToOthers(m_http.get()))
        sentence += "; " + tr("the connection is not encrypted, so others on the network can read the password");
    return {sentence, Problem::Kind::noAccess};
}

int ServerConnection::waitOn(http_t *, void *self)
{
    auto &connection = *static_cast<ServerConnection *>(self);
    return ++connection.m_ticksOfSilence < connection.m_ticksOfPatience && !connection.m_stop.stop_requested();
}

/// A call without a request leaves an error that no server has given.
void ServerConnection::forgetLastAnswer() const { ippDelete(cupsDoRequest(m_http.get(), nullptr, "/")); }

Or<Response> ServerConnection::ask(ipp_t *request, const char *resource) const
{
    forgetLastAnswer();
    return granted(cupsDoRequest(m_http.get(), request, resource));
}

Or<Response> ServerConnection::attributesOf(const QString &queue, const char *attribute) const
{
    ipp_t *const request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/printers/" + QUrl::toPercentEncoding(queue);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, attribute);
    return ask(request);
}

Or<Response> ServerConnection::answerTo(const char *resource) const
{
    forgetLastAnswer();
    return granted(cupsGetResponse(m_http.get(), resource));
}

Or<Response> ServerConnection::granted(ipp_t *response) const
{
    Response answer(response);
    if (answer && lastAnswer() == Answer::granted)
        return answer;
    Problem reason = problem();
    if (answer && lastAnswer() == Answer::notFound)
        reason.kind = Problem::Kind::notFound;
    return reason;
}

/// The library reports what it makes of an answer that is none in the same place as the server's own word.
bool ServerConnection::hasRefused() const
{
    const int answer = lastStatus();
    return httpGetStatus(m_http.get()) == HTTP_STATUS_OK && httpError(m_http.get()) == 0 && !isForgotten() &&
           answer >= IPP_STATUS_ERROR_BAD_REQUEST && answer <= IPP_STATUS_ERROR_TOO_MANY_DOCUMENTS;
}

Problem ServerConnection::problem() const
{
    if (!m_http)
        return {tr("no CUPS server answers"), Problem::Kind::noService};
    if (m_lacksPassword || (m_hasSaidPassword && httpGetStatus(m_http.get()) == HTTP_STATUS_FORBIDDEN))
        return accessProblem();
    if (hasRefused())
        return {foundation::plainLine(QString::fromUtf8(cupsLastErrorString()))};
    const int status = httpGetStatus(m_http.get());
    if (status >= HTTP_STATUS_BAD_REQUEST && status < HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED) {
        const char *const reason = httpStatus(static_cast<http_status_t>(status));
        return {tr("the CUPS server refuses it (%1)").arg(QString::fromUtf8(reason))};
    }
    return {m_ticksOfSilence >= m_ticksOfPatience ? tr("the CUPS server does not answer")
                                                  : tr("the CUPS server gave no proper answer"),
            Problem::Kind::unanswered};
}

int ServerConnection::getOnce(const QByteArray &resource, std::time_t knownAsOf) const
{
    http_t *const http = m_http.get();
    httpClearFields(http);
    httpSetField(http, HTTP_FIELD_AUTHORIZATION, httpGetAuthString(http));
    if (knownAsOf > 0) {
        std::array<char, 64> date{};
        httpSetField(http, HTTP_FIELD_IF_MODIFIED_SINCE,
                     httpGetDateString2(knownAsOf, date.data(), static_cast<int>(date.size())));
    }
    if (httpGet(http, resource.constData()) != 0)
        return HTTP_STATUS_ERROR;
    int status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE)
        status = httpUpdate(http);
    return status;
}

int ServerConnection::get(const QByteArray &resource, std::time_t knownAsOf)
{
    int status = HTTP_STATUS_ERROR;
    for (int i = 0; i < kMostTries; ++i) {
        status = getOnce(resource, knownAsOf);
        if (status == HTTP_STATUS_UNAUTHORIZED) {
            httpFlush(m_http.get());
            if (cupsDoAuthentication(m_http.get(), "GET", resource.constData()) != 0)
                break;
        } else if (status != HTTP_STATUS_ERROR || httpReconnect2(m_http.get(), kMillisecondsToConnect, nullptr) != 0) {
            break;
        }
    }
    m_lacksPassword = m_lacksPassword || status == HTTP_STATUS_UNAUTHORIZED;
    return status;
}

/// The library reports the end of a connection like the end of a body; only after a whole one it waits for a request.
bool ServerConnection::isAtEnd() const
{
    http_t *const http = m_http.get();
    return httpGetState(http) == HTTP_STATE_WAITING && httpGetRemaining(http) == 0 && httpError(http) == 0;
}

Or<QByteArray> ServerConnection::readBody() const
{
    QByteArray body;
    std::array<char, 65536> part{};
    for (ssize_t count = 1; count > 0;) {
        count = httpRead2(m_http.get(), part.data(), part.size());
        body.append(part.data(), qMax<ssize_t>(count, 0));
        if (body.size() > kLargestFile)
            return Problem{tr("the CUPS server's file is too large")};
    }
    if (!isAtEnd())
        return Problem{tr("the connection to the CUPS server broke")};
    return body;
}

Or<Download> ServerConnection::download(const QByteArray &resource, std::time_t knownAsOf)
{
    forgetLastAnswer();
    const int status = get(resource, knownAsOf);
    // Dates are in seconds: in the one of the answer the file may change once more.
    const std::time_t date = httpGetDateTime(httpGetField(m_http.get(), HTTP_FIELD_DATE));
    Download file{status == HTTP_STATUS_OK, qMax<std::time_t>(date - 1, 0), {}};
    if (status == HTTP_STATUS_OK) {
        auto body = readBody();
        if (!body)
            return body.problem();
        file.content = *std::move(body);
        return file;
    }
    httpFlush(m_http.get());
    if (status == HTTP_STATUS_NOT_MODIFIED)
        return file;
    Problem reason = problem();
    if (status == HTTP_STATUS_NOT_FOUND)
        reason.kind = Problem::Kind::notFound;
    return reason;
}

} // namespace host
