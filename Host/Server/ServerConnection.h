// A connection to the CUPS server on which silence has an end, and only a whole answer counts as one.
#pragma once

#include "Handles.h"

#include "Cups/Conversation.h"

#include "Foundation/Or.h"

#include <QByteArray>
#include <QCoreApplication>

#include <chrono>
#include <ctime>
#include <stop_token>

namespace host {

/// What a function of the library left behind of the server's last answer. To be asked right after the call, which
/// must have begun with `ServerConnection::forgetLastAnswer`: the library leaves the status of an earlier answer there
/// when no new one comes.
enum class Answer { granted, notFound, refused };
Answer lastAnswer();

/// Who asks, should a server want to know: for all connections of the process that are made from now on. Only the
/// server itself is told, once a connection.
void setCredentials(const Credentials &credentials);

/// A file of the server's.
struct Download
{
    bool isNew = false;   // false: it has not changed since the time that was asked about
    std::time_t asOf = 0; // when the server said so
    QByteArray content;   // whole
};

class ServerConnection
{
    Q_DECLARE_TR_FUNCTIONS(host::ServerConnection)

public:
    /// Connects and asks a first question, within a few seconds. A call that waits fails when `stop` is requested, or
    /// when the server keeps silent for so long.
    ServerConnection(std::stop_token stop, std::chrono::milliseconds patience);
    ~ServerConnection();
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    /// Whether the server was reached and answers.
    explicit operator bool() const { return m_answers; }
    http_t *get() const { return m_http.get(); }

    /// The server has moved: its silence counts from here.
    void restartSilence() { m_ticksOfSilence = 0; }

    /// Before a function of the library whose answer is told by `lastAnswer`.
    void forgetLastAnswer() const;

    /// The server's whole answer to a request, which it takes, when it grants it.
    foundation::Or<Response> ask(ipp_t *request, const char *resource = "/") const;
    /// An attribute of a queue's.
    foundation::Or<Response> attributesOf(const QString &queue, const char *attribute) const;
    /// The same for a request that has been written already.
    foundation::Or<Response> answerTo(const char *resource) const;
    /// A file, unless it is the one of a known time. A problem of the kind `notFound` when there is none.
    foundation::Or<Download> download(const QByteArray &resource, std::time_t knownAsOf);

    /// Why the server can't be trusted to be the one that it says it is, in one clause; nil when it can, and when the
    /// connection is not encrypted.
    std::optional<QString> distrust() const;

    /// Why the last call failed, in one clause. To be asked right after the call. Of the kind `unanswered` when the
    /// server has not said no: it may have done what it was asked for.
    foundation::Problem problem() const;

private:
    static int waitOn(http_t *, void *self);
    static const char *password(const char *, http_t *, const char *, const char *, void *);
    const char *passwordOnce();
    foundation::Problem accessProblem() const;
    foundation::Or<Response> granted(ipp_t *response) const;
    bool hasRefused() const;
    int get(const QByteArray &resource, std::time_t knownAsOf); // the HTTP status, whatever number it is
    int getOnce(const QByteArray &resource, std::time_t knownAsOf) const;
    foundation::Or<QByteArray> readBody() const;
    bool isAtEnd() const;

    std::stop_token m_stop;
    int m_ticksOfPatience;
    int m_ticksOfSilence = 0;
    bool m_hasSaidPassword = false;
    bool m_lacksPassword = false; // or has none that the server takes
    HttpConnection m_http;
    bool m_answers = false;
};

} // namespace host
