// A call of an application, from its arrival to its answer. Until then there is an object on the bus by which whoever
// called can take the call back.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
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

class PortalCall : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

public:
    /// `message`: the call, whose answer comes later.
    PortalCall(const QDBusConnection &bus, const QDBusMessage &message, const QDBusObjectPath &handle, QObject *parent);
    ~PortalCall() override;

    /// Whether the call can be taken back; else its handle is in use already.
    bool isRegistered() const { return m_isRegistered; }
    const QString &sender() const { return m_sender; }
    const QString &handle() const { return m_handle; }

    /// Answers, once, and goes.
    void answer(Response response, const QVariantMap &results = {});
    /// The same with an error, which the front end writes into its log.
    void refuse(const QString &error, const QString &sentence);

public Q_SLOTS:
    Q_SCRIPTABLE void Close();

Q_SIGNALS:
    /// Nobody waits for the answer any more.
    void closed();

private:
    void reply(const QDBusMessage &message);

    QDBusConnection m_bus;
    QDBusMessage m_message;
    QString m_sender;
    QString m_handle;
    bool m_isRegistered;
    bool m_isAnswered = false;
};

} // namespace host
