// The print dialog as a service for applications: a back end of the desktop's portal. It decides who serves a call, and
// keeps what was settled until the document comes; dialogs and jobs are processes of their own. It trusts nobody on the
// bus.
#pragma once

#include "PortalCall.h"
#include "PortalProcess.h"
#include "PortalRequest.h"

#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QElapsedTimer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <map>

namespace host {

inline constexpr auto kPortalService = "org.freedesktop.impl.portal.desktop.qnprint";
inline constexpr auto kPortalPath = "/org/freedesktop/portal/desktop";

class PrintPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

public:
    struct Parameters
    {
        QString ppd; // a PPD file in place of the queues, and the folder that goes with it
        QString output;
        QString language;
        std::optional<QString> others;          // the back end that shows other dialogs; nil: what the desktop prefers
        std::chrono::milliseconds idle{60'000}; // after which the service has done its work
    };

    PrintPortal(const QDBusConnection &bus, Parameters parameters);
    ~PrintPortal() override;

    /// Takes its name on the bus. A problem when somebody else has it.
    foundation::Or<void> begin();

    /// Takes no more calls, ends all dialogs, and is done when the last job has ended by itself.
    Q_SLOT void leave();

    Q_SCRIPTABLE Q_SLOT uint PreparePrint(const QDBusObjectPath &handle, const QString &application,
                                          const QString &parentWindow, const QString &title,
                                          const QVariantMap &settings, const QVariantMap &pageSetup,
                                          const QVariantMap &options, QVariantMap &results);
    Q_SCRIPTABLE Q_SLOT uint Print(const QDBusObjectPath &handle, const QString &application,
                                   const QString &parentWindow, const QString &title,
                                   const QDBusUnixFileDescriptor &document, const QVariantMap &options,
                                   QVariantMap &results);

Q_SIGNALS:
    /// There is nothing left to do.
    void done();

private:
    class Requests;     // the calls by their handles, on the bus
    struct Preparation; // what an application has asked for
    struct Token;       // what has been settled for it

    enum class Limit { applies, doesNot };
    PortalCall *takeCall(const QDBusObjectPath &handle, const QString &application, Limit limit);
    void showDialog(PortalCall &call, const std::shared_ptr<Preparation> &preparation);
    void endDialog(PortalCall &call, const Preparation &preparation, const QJsonObject &answer);
    void handOver(PortalCall &call, const std::shared_ptr<Preparation> &preparation, const QString &backend);
    void endHandOver(PortalCall &call, const std::shared_ptr<Preparation> &preparation, const QString &backend,
                     const QDBusMessage &answer);
    void handOverDocument(PortalCall &call, const Token &token, const QDBusMessage &asked);
    void startJob(PortalCall &call, const JobWish &wish, const SharedDescriptor &document);
    void forward(PortalCall &call, const QString &backend, const char *method, const QVariantList &arguments,
                 std::function<void(const QDBusMessage &)> use);
    uint keep(Token token);
    std::optional<Token> take(uint number);
    void dropOldTokens();
    void callerLeft(const QString &name);
    PortalCall *callOf(const QString &handle) const;
    DialogWish wishFor(const QString &parentWindow, const QVariantMap &options) const;
    void lookIdle();

    QDBusConnection m_bus;
    Parameters m_parameters;
    std::unique_ptr<Requests> m_requests;
    QDBusServiceWatcher m_callers;
    QTimer m_idle;
    bool m_isLeaving = false;
    std::map<PortalCall *, QString> m_calls; // with the application of each
    std::map<uint, Token> m_tokens;
};

} // namespace host
