// `qnprint portal`: the service for applications, and whether they use it.
#include "CommandLine.h"
#include "ForApplications.h"
#include "Interrupts.h"

#include "Portal/Backends.h"
#include "Portal/PrintPortal.h"

#include <QCoreApplication>

namespace host {

namespace {

int tell(const foundation::Or<QString> &answer)
{
    for (const QString &line : answer ? answer->split('\n') : QStringList())
        report(line);
    if (!answer)
        complain(answer.problem().sentence);
    return answer ? kDone : kRefused;
}

} // namespace

int runPortal(const CommandLine &line)
{
    switch (line.portal) {
    case PortalCommand::enable: return tell(enablePortal());
    case PortalCommand::disable: return tell(disablePortal());
    case PortalCommand::status: return tell(portalStatus());
    case PortalCommand::serve: break;
    }
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        complain("portal: there is no session bus");
        return kRefused;
    }
    PrintPortal portal(bus, {line.request.ppd, line.request.output, line.request.language, std::nullopt});
    QObject::connect(&portal, &PrintPortal::done, QCoreApplication::instance(), &QCoreApplication::quit);
    if (const auto begun = portal.begin(); !begun) {
        complain(begun.problem().sentence);
        return kRefused;
    }
    const Interrupts interrupts([&portal] { portal.leave(); });
    return QCoreApplication::exec();
}

} // namespace host
