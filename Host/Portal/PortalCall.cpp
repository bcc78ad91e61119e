#include "PortalCall.h"

#include <utility>

namespace host {

PortalCall::PortalCall(const QDBusConnection &bus, const QDBusMessage &message, const QDBusObjectPath &handle,
                       QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_message(message)
    , m_sender(message.service())
    , m_handle(handle.path())
    , m_isRegistered(m_bus.registerObject(m_handle, this, QDBusConnection::ExportScriptableSlots))
{}

PortalCall::~PortalCall()
{
    if (m_isRegistered)
        m_bus.unregisterObject(m_handle);
}

void PortalCall::answer(Response response, const QVariantMap &results)
{
    reply(m_message.createReply({static_cast<uint>(response), results}));
}

void PortalCall::refuse(const QString &error, const QString &sentence)
{
    reply(m_message.createErrorReply(error, sentence));
}

void PortalCall::reply(const QDBusMessage &message)
{
    if (std::exchange(m_isAnswered, true))
        return;
    if (std::exchange(m_isRegistered, false))
        m_bus.unregisterObject(m_handle); // before the answer: the handle may be used again then
    m_bus.send(message);
    deleteLater();
}

/// Only whoever has called.
void PortalCall::Close()
{
    if (calledFromDBus() && QDBusContext::message().service() != m_sender)
        return sendErrorReply(QDBusError::AccessDenied, "the request is another's");
    if (!m_isAnswered)
        Q_EMIT closed();
}

} // namespace host
