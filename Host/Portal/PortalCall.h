// A call of an application, from its arrival to its answer. Until then whoever called can take it back, by its handle.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

namespace host {

/// What a portal's back end answers.
enum class Response : uint {
    done = 0,
    cancelled = 1, // by the person
    failed = 2,    // ended otherwise
};

class PortalCall : public QObject
{
    Q_OBJECT

public:
    /// `message`: the call, whose answer comes later.
    PortalCall(const QDBusConnection &bus, const QDBusMessage &message, const QDBusObjectPath &handle, QObject *parent);

    const QString &sender() const { return m_sender; }
    const QString &handle() const { return m_handle; }

    /// Answers, once, and goes.
    void answer(Response response, const QVariantMap &results = {});
    /// The same with an error, which the front end writes into its log.
    void refuse(const QString &error, const QString &sentence);

    /// Nobody waits any more.
    void close();
    bool isClosed() const { return m_isClosed; }

Q_SIGNALS:
    /// Nobody waits for the answer any more.
    void closed();

private:
    void reply(const QDBusMessage &message);

    QDBusConnection m_bus;
    QDBusMessage m_message;
    QString m_sender;
    QString m_handle;
    bool m_isAnswered = false;
    bool m_isClosed = false;
};

} // namespace host
