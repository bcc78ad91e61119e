// The service. Each call is answered once, whatever dies: a dialog, the application, the front end of the portal.
#include "PrintPortal.h"

#include "ApplicationSettings.h"
#include "Backends.h"

#include "Foundation/PlainText.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QRandomGenerator>

#include <algorithm>
#include <limits>

namespace host {

using foundation::Or;
using foundation::Problem;
using namespace std::chrono_literals;

namespace {

constexpr auto kInterface = "org.freedesktop.impl.portal.Print";
constexpr auto kRequestsPath = "/org/freedesktop/portal/desktop/request";
constexpr auto kRequest = "org.freedesktop.impl.portal.Request";

constexpr qsizetype kMostDialogsOfOne = 12; // of an application at a time
constexpr std::size_t kMostDialogs = 48;
constexpr std::size_t kMostTokens = 256;
constexpr auto kLifeOfToken = 1h; // pages of a large document take their time

/// A value that is really of a type; else the one that stands for none.
template <class T>
T valueOf(const QVariantMap &map, const char *key, const T &otherwise = {})
{
    const QVariant value = map.value(QString::fromLatin1(key));
    return value.metaType() == QMetaType::fromType<T>() ? value.value<T>() : otherwise;
}

QString shortened(const QString &text)
{
    constexpr qsizetype kLongest = 512;
    return foundation::plainLine(text.left(kLongest));
}

} // namespace

/// One object for all handles there can be: a call may be taken back before it has been looked at.
class PrintPortal::Requests : public QDBusVirtualObject
{
public:
    explicit Requests(const PrintPortal &portal)
        : m_portal(portal)
    {}
    QString introspect(const QString &) const override
    {
        return QStringLiteral("<interface name=\"%1\"><method name=\"Close\"/></interface>").arg(kRequest);
    }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        PortalCall *const call = m_portal.callOf(message.path());
        if (!call || message.member() != "Close" || (!message.interface().isEmpty() && message.interface() != kRequest))
            return false;
        if (call->sender() != message.service())
            return bus.send(message.createErrorReply(QDBusError::AccessDenied, "the request is another's"));
        bus.send(message.createReply());
        call->close();
        return true;
    }

private:
    const PrintPortal &m_portal;
};

struct PrintPortal::Preparation
{
    QString application;
    QString parentWindow;
    QString title;
    QVariantMap settings; // the application's own, as they came
    QVariantMap pageSetup;
    QVariantMap options;
    bool isAlone = false; // there is no other dialog to hand it over to
};

struct PrintPortal::Token
{
    PreparedPrint prepared;
    QString dialogTitle;
    QString backend; // that settled it, and the token that it gave; empty: we did
    uint backendToken = 0;
    QElapsedTimer age;
};

PrintPortal::PrintPortal(const QDBusConnection &bus, Parameters parameters)
    : m_bus(bus)
    , m_parameters(std::move(parameters))
    , m_requests(std::make_unique<Requests>(*this))
{
    m_callers.setConnection(m_bus);
    m_callers.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_callers, &QDBusServiceWatcher::serviceUnregistered, this, &PrintPortal::callerLeft);
    m_idle.setSingleShot(true);
    m_idle.setInterval(m_parameters.idle);
    connect(&m_idle, &QTimer::timeout, this, [this] {
        dropOldTokens();
        if (m_tokens.empty())
            leave();
        else
            m_idle.start();
    });
}

PrintPortal::~PrintPortal() = default;

Or<void> PrintPortal::begin()
{
    // Before the name: a call may come with it.
    const bool isThere = m_bus.registerObject(kPortalPath, this, QDBusConnection::ExportScriptableSlots) &&
                         m_bus.registerVirtualObject(kRequestsPath, m_requests.get(), QDBusConnection::SubPath);
    if (!isThere || !m_bus.registerService(kPortalService))
        return Problem{QString("%1 is on the bus already").arg(kPortalService)};
    m_bus.connect({}, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected", this, SLOT(leave()));
    lookIdle();
    return {};
}

void PrintPortal::leave()
{
    m_isLeaving = true;
    m_bus.unregisterService(kPortalService);
    m_bus.unregisterObject(kPortalPath);
    for (const auto &[call, application] : std::map(m_calls))
        call->close();
    lookIdle();
}

/// Null when the call is refused, which it has been told then.
PortalCall *PrintPortal::takeCall(const QDBusObjectPath &handle, const QString &application, Limit limit)
{
    setDelayedReply(true);
    const auto ofOne = std::ranges::count_if(m_calls, [&](const auto &each) { return each.second == application; });
    const bool isFree = handle.path().startsWith(QString(kRequestsPath) + '/') && !callOf(handle.path());
    auto *const call = new PortalCall(m_bus, message(), handle, this);
    connect(call, &QObject::destroyed, this, [this, call] {
        m_calls.erase(call);
        lookIdle();
    });
    if (!isFree) {
        call->refuse("org.freedesktop.DBus.Error.InvalidArgs",
                     QString("%1: no path of a request, or that of another one").arg(handle.path()));
        return nullptr;
    }
    if (limit == Limit::applies && (ofOne >= kMostDialogsOfOne || m_calls.size() >= kMostDialogs)) {
        call->refuse("org.freedesktop.DBus.Error.LimitsExceeded",
                     QString("%1: too many print dialogs at a time")
                         .arg(application.isEmpty() ? QString("an application") : shortened(application)));
        return nullptr;
    }
    m_calls.emplace(call, application);
    m_callers.addWatchedService(call->sender());
    m_idle.stop();
    return call;
}

void PrintPortal::callerLeft(const QString &name)
{
    m_callers.removeWatchedService(name);
    for (const auto &[call, application] : std::map(m_calls))
        if (call->sender() == name)
            call->close();
}

/// Null when there is none.
PortalCall *PrintPortal::callOf(const QString &handle) const
{
    const auto found = std::ranges::find_if(m_calls, [&](const auto &each) { return each.first->handle() == handle; });
    return found == m_calls.end() ? nullptr : found->first;
}

void PrintPortal::lookIdle()
{
    if (!m_calls.empty())
        return;
    if (m_isLeaving)
        Q_EMIT done();
    else
        m_idle.start();
}

DialogWish PrintPortal::wishFor(const QString &parentWindow, const QVariantMap &options) const
{
    DialogWish wish;
    wish.parentWindow = shortened(parentWindow);
    wish.isModal = valueOf<bool>(options, "modal", true);
    wish.acceptLabel = shortened(valueOf<QString>(options, "accept_label"));
    wish.ppd = m_parameters.ppd;
    wish.output = m_parameters.output;
    wish.language = m_parameters.language;
    return wish;
}

uint PrintPortal::PreparePrint(const QDBusObjectPath &handle, const QString &application, const QString &parentWindow,
                               const QString &title, const QVariantMap &settings, const QVariantMap &pageSetup,
                               const QVariantMap &options, QVariantMap & /*results*/)
{
    if (PortalCall *const call = takeCall(handle, application, Limit::applies))
        showDialog(*call, std::make_shared<Preparation>(
                              Preparation{application, parentWindow, title, settings, pageSetup, options}));
    return 0; // the answer comes later
}

void PrintPortal::showDialog(PortalCall &call, const std::shared_ptr<Preparation> &preparation)
{
    DialogWish wish = wishFor(preparation->parentWindow, preparation->options);
    wish.title = plainTitle(shortened(preparation->title));
    readSettings(harmlessSettings(preparation->settings), wish);
    const auto others = m_parameters.others ? m_parameters.others : otherPrintBackend();
    wish.offersOthers = others && !preparation->isAlone;
    auto *const dialog = new PortalProcess(&call);
    connect(&call, &PortalCall::closed, dialog, &PortalProcess::dismiss);
    connect(dialog, &PortalProcess::ended, &call,
            [=, this, &call](const std::optional<int> &, const QJsonObject &answer) {
                if (answer[kOutcome] == kOthers && others && !call.isClosed())
                    handOver(call, preparation, *others);
                else
                    endDialog(call, *preparation, answer);
            });
    dialog->start(kPrepare, toJson(wish), PortalProcess::Input::staysOpen);
}

void PrintPortal::endDialog(PortalCall &call, const Preparation &preparation, const QJsonObject &answer)
{
    if (call.isClosed() || answer[kOutcome] == kCancelled) // nobody wants it any more, whatever the dialog came to
        return call.answer(Response::cancelled);
    if (answer[kOutcome] != kPrepared)
        return call.answer(Response::failed);
    const PreparedPrint prepared = preparedPrintFromJson(answer[kPrepared].toObject());
    Token token{prepared, preparation.title, {}, 0, {}};
    call.answer(Response::done, {{"settings", settingsToReturn(harmlessSettings(preparation.settings), prepared)},
                                 {"page-setup", pageSetupToReturn(preparation.pageSetup, prepared)},
                                 {"token", keep(std::move(token))}});
}

uint PrintPortal::Print(const QDBusObjectPath &handle, const QString &application, const QString &parentWindow,
                        const QString &title, const QDBusUnixFileDescriptor &document, const QVariantMap &options,
                        QVariantMap & /*results*/)
{
    // What a person has settled is printed in any case.
    const auto token = take(valueOf<uint>(options, "token"));
    PortalCall *const call = takeCall(handle, application, token ? Limit::doesNot : Limit::applies);
    if (!call)
        return 0;
    if (token && !token->backend.isEmpty()) {
        handOverDocument(*call, *token, message());
        return 0;
    }
    JobWish wish;
    wish.dialog = wishFor(parentWindow, options);
    wish.title = jobTitle(shortened(title), shortened(token ? token->dialogTitle : QString()));
    wish.application = shortened(application);
    if (token)
        wish.prepared = token->prepared;
    startJob(*call, wish, SharedDescriptor(document.fileDescriptor()));
    return 0;
}

/// A call that is taken back means nothing here: applications that end at once do it, and mean their job to be printed.
void PrintPortal::startJob(PortalCall &call, const JobWish &wish, const SharedDescriptor &document)
{
    const bool isSettled = wish.prepared && !wish.prepared->isToBeLookedAt;
    auto *const job = new PortalProcess(&call);
    connect(job, &PortalProcess::ended, &call, [&call](std::optional<int> status, const QJsonObject &) {
        call.answer(status == 0 ? Response::done : status == 1 ? Response::cancelled : Response::failed);
    });
    job->start(isSettled ? kPrintPrepared : kPrintAsked, toJson(wish), PortalProcess::Input::isClosed, document);
}

/// `use` gets the answer or the error. Without a limit of time, as a person takes theirs.
void PrintPortal::forward(PortalCall &call, const QString &backend, const char *method, const QVariantList &arguments,
                          std::function<void(const QDBusMessage &)> use)
{
    auto message = QDBusMessage::createMethodCall(backend, kPortalPath, kInterface, method);
    message.setArguments(arguments);
    auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, std::numeric_limits<int>::max()), &call);
    connect(watcher, &QDBusPendingCallWatcher::finished, &call, [watcher, use = std::move(use)] {
        watcher->deleteLater(); // what is taken back from now on is not theirs
        use(watcher->reply());
    });
    connect(&call, &PortalCall::closed, watcher, [this, backend, handle = call.handle()] {
        m_bus.send(QDBusMessage::createMethodCall(backend, handle, kRequest, "Close"));
    });
}

void PrintPortal::handOver(PortalCall &call, const std::shared_ptr<Preparation> &preparation, const QString &backend)
{
    const Preparation &asked = *preparation;
    forward(call, backend, "PreparePrint",
            {QVariant::fromValue(QDBusObjectPath(call.handle())), asked.application, asked.parentWindow, asked.title,
             asked.settings, asked.pageSetup, asked.options},
            [=, this, &call](const QDBusMessage &answer) { endHandOver(call, preparation, backend, answer); });
}

/// The token is changed for one of ours, so that the document comes to us and goes on to where it belongs.
void PrintPortal::endHandOver(PortalCall &call, const std::shared_ptr<Preparation> &preparation, const QString &backend,
                              const QDBusMessage &answer)
{
    const QVariantList said = answer.arguments();
    if (m_isLeaving)
        return call.answer(Response::failed);
    if (call.isClosed() && answer.type() != QDBusMessage::ReplyMessage)
        return call.answer(Response::cancelled); // nobody wants a dialog any more
    if (answer.type() != QDBusMessage::ReplyMessage || said.size() < 2) {
        preparation->isAlone = true; // nobody is there: ours is better than none
        return showDialog(call, preparation);
    }
    auto results = qdbus_cast<QVariantMap>(said[1]);
    for (const char *part : {"settings", "page-setup"})
        if (results.contains(part))
            results[part] = qdbus_cast<QVariantMap>(results[part]);
    if (said[0].toUInt() == static_cast<uint>(Response::done))
        results["token"] = keep({{}, preparation->title, backend, valueOf<uint>(results, "token"), {}});
    call.answer(static_cast<Response>(said[0].toUInt()), results);
}

void PrintPortal::handOverDocument(PortalCall &call, const Token &token, const QDBusMessage &asked)
{
    QVariantList arguments = asked.arguments();
    auto options = qdbus_cast<QVariantMap>(arguments.last());
    options["token"] = token.backendToken;
    arguments.last() = options;
    forward(call, token.backend, "Print", arguments, [&call](const QDBusMessage &answer) {
        const QVariantList said = answer.arguments();
        if (answer.type() == QDBusMessage::ReplyMessage && said.size() >= 2)
            call.answer(static_cast<Response>(said[0].toUInt()), qdbus_cast<QVariantMap>(said[1]));
        else
            call.answer(Response::failed);
    });
}

/// A number that no earlier life of the service has given: what it stood for is forgotten.
uint PrintPortal::keep(Token token)
{
    dropOldTokens();
    if (m_tokens.size() >= kMostTokens)
        m_tokens.erase(
            std::ranges::max_element(m_tokens, {}, [](const auto &each) { return each.second.age.elapsed(); }));
    token.age.start();
    uint number = 0;
    while (number == 0 || m_tokens.contains(number))
        number = QRandomGenerator::global()->generate();
    m_tokens.emplace(number, std::move(token));
    return number;
}

/// Once: a second document of the same name is another's.
std::optional<PrintPortal::Token> PrintPortal::take(uint number)
{
    dropOldTokens();
    const auto found = m_tokens.extract(number);
    return found ? std::optional(found.mapped()) : std::nullopt;
}

void PrintPortal::dropOldTokens()
{
    std::erase_if(m_tokens, [](const auto &each) { return each.second.age.hasExpired(kLifeOfToken / 1ms); });
}

} // namespace host
