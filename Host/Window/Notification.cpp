// What the desktop tells the person after the window has gone.
#include "Notification.h"

#include "Foundation/PlainText.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QVariantMap>

namespace host {

namespace {

constexpr int kMilliseconds = 500; // that a desktop may hold up the end of the program
constexpr auto kDesktopEntry = "org.qnprint.qnprint";
constexpr auto kService = "org.freedesktop.Notifications";

/// Without one, the library would start a bus of its own.
bool hasSessionBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

} // namespace

void notify(const QString &sentence)
{
    if (!hasSessionBus())
        return;
    auto call = QDBusMessage::createMethodCall(kService, "/org/freedesktop/Notifications", kService, "Notify");
    // The sentence is the summary: desktops may read markup in the body.
    call << "qnprint" << 0U << kDesktopEntry << foundation::plainLine(sentence) << QString() << QStringList()
         << QVariantMap{{"desktop-entry", kDesktopEntry}} << -1;
    QDBusConnection::sessionBus().call(call, QDBus::Block, kMilliseconds);
}

} // namespace host
