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
{}

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
    m_bus.send(message);
    deleteLater();
}

void PortalCall::close()
{
    m_isClosed = true;
    if (!m_isAnswered)
        Q_EMIT closed();
}

} // namespace host
