// A screen of the test's own.
#include "Screen.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>

#undef signals // a name that the accessibility library's headers use
#include <atspi/atspi.h>

namespace support {

namespace {

constexpr int kMillisecondsToEnd = 20000;
constexpr int kMillisecondsToAnswer = 2000;
constexpr int kDeepest = 30;

/// What the accessibility library gives and we have to give back.
struct Unref
{
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <class T>
using Ref = std::unique_ptr<T, Unref>;

QString taken(gchar *text)
{
    const QString result = QString::fromUtf8(text);
    g_free(text);
    return result;
}

/// The text of what is said to label an object.
QString labelOf(AtspiAccessible *object)
{
    GArray *const relations = atspi_accessible_get_relation_set(object, nullptr);
    QString label;
    for (guint i = 0; relations && i < relations->len; ++i) {
        const Ref<AtspiRelation> relation(g_array_index(relations, AtspiRelation *, i));
        if (atspi_relation_get_relation_type(relation.get()) != ATSPI_RELATION_LABELLED_BY)
            continue;
        const Ref<AtspiAccessible> target(atspi_relation_get_target(relation.get(), 0));
        if (target)
            label = taken(atspi_accessible_get_name(target.get(), nullptr));
    }
    if (relations)
        g_array_free(relations, TRUE);
    return label;
}

Seen seen(AtspiAccessible *object)
{
    Seen result;
    result.role = taken(atspi_accessible_get_role_name(object, nullptr));
    if (result.role == "push button") // as the library called it before 2.54
        result.role = "button";
    result.name = taken(atspi_accessible_get_name(object, nullptr));
    result.label = labelOf(object);
    const Ref<AtspiStateSet> states(atspi_accessible_get_state_set(object));
    if (states) {
        result.isShowing = atspi_state_set_contains(states.get(), ATSPI_STATE_SHOWING);
        result.isEnabled = atspi_state_set_contains(states.get(), ATSPI_STATE_ENABLED);
        result.isFocused = atspi_state_set_contains(states.get(), ATSPI_STATE_FOCUSED);
    }
    const Ref<AtspiComponent> component(atspi_accessible_get_component_iface(object));
    if (component) {
        AtspiRect *const place = atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr);
        if (place)
            result.place = QRect(place->x, place->y, place->width, place->height);
        g_free(place);
    }
    return result;
}

void collect(AtspiAccessible *object, int depth, std::vector<Seen> &found)
{
    Seen self = seen(object);
    const bool isApplication = self.role == "application";
    if (!isApplication && !self.isShowing)
        return;
    found.push_back(std::move(self));
    const int count = depth < kDeepest ? atspi_accessible_get_child_count(object, nullptr) : 0;
    for (int i = 0; i < count; ++i) {
        const Ref<AtspiAccessible> child(atspi_accessible_get_child_at_index(object, i, nullptr));
        if (child)
            collect(child.get(), depth + 1, found);
    }
}

void end(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished(kMillisecondsToEnd))
        process.kill();
}

} // namespace

Screen::Screen() = default;

Screen::~Screen()
{
    for (QProcess *process : {&m_windowManager, &m_bus, &m_display})
        if (process->state() != QProcess::NotRunning)
            end(*process);
}

std::optional<QString> Screen::start(const QSize &size)
{
    const QString screen = QString("%1x%2x24").arg(size.width()).arg(size.height());
    m_display.start("Xvfb", {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp", "-noreset"});
    if (!m_display.waitForStarted(kMilliseconds) || !m_display.waitForReadyRead(kMilliseconds))
        return QString("Xvfb can't be started: %1").arg(m_display.errorString());
    m_displayName = ':' + QString::fromLatin1(m_display.readLine().trimmed());
    if (const auto problem = startBus())
        return problem;
    const QProcessEnvironment environment = extended(QProcessEnvironment::systemEnvironment());
    m_windowManager.setProcessEnvironment(environment);
    m_windowManager.start("openbox", {"--sm-disable"});
    if (!m_windowManager.waitForStarted(kMilliseconds))
        return QString("openbox can't be started: %1").arg(m_windowManager.errorString());
    if (!waitForAnswer({"get_num_desktops"}))
        return "openbox manages nothing"; // a window that came before it would never get the keyboard
    for (const char *name : {"DISPLAY", "DBUS_SESSION_BUS_ADDRESS"})
        qputenv(name, environment.value(name).toUtf8());
    // Asked once before there is anything to see: the question starts what answers it, and comes back too late itself.
    atspi_set_timeout(kMillisecondsToAnswer, kMillisecondsToAnswer);
    if (atspi_init() > 1)
        return "the accessibility bus does not answer";
    const Ref<AtspiAccessible> desktop(atspi_get_desktop(0));
    return desktop ? std::nullopt : std::optional(QString("there is no accessible desktop"));
}

void Screen::offer(const QMap<QString, QString> &services, const QProcessEnvironment &environment)
{
    m_services.insert(services);
    m_environment = environment;
}

/// A session bus that nothing but the test is on. It starts the accessibility bus when it is asked for.
std::optional<QString> Screen::startBus()
{
    for (const auto &[name, command] : m_services.asKeyValueRange()) {
        QFile service(m_folder.filePath(name + ".service"));
        if (!service.open(QIODevice::WriteOnly))
            return service.errorString();
        service.write(QString("[D-BUS Service]\nName=%1\nExec=%2\n").arg(name, command).toUtf8());
    }
    QFile configuration(m_folder.filePath("session.conf"));
    if (!configuration.open(QIODevice::WriteOnly))
        return configuration.errorString();
    configuration.write(QString("<busconfig><type>session</type><listen>unix:dir=%1</listen><auth>EXTERNAL</auth>"
                                "<servicedir>%1</servicedir>"
                                "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>")
                            .arg(m_folder.path())
                            .toUtf8());
    configuration.close();
    auto environment = extended(m_environment);
    for (const char *place : {"XDG_RUNTIME_DIR", "XDG_CACHE_HOME"}) // where the accessibility bus puts its socket
        environment.insert(place, m_folder.path());
    m_bus.setProcessEnvironment(environment);
    m_bus.start("dbus-daemon", {"--nofork", "--print-address=1", "--config-file=" + configuration.fileName()});
    if (!m_bus.waitForStarted(kMilliseconds) || !m_bus.waitForReadyRead(kMilliseconds))
        return QString("dbus-daemon can't be started: %1").arg(m_bus.errorString());
    m_busAddress = QString::fromLatin1(m_bus.readLine().trimmed());
    return std::nullopt;
}

QProcessEnvironment Screen::extended(QProcessEnvironment environment) const
{
    environment.insert("DISPLAY", m_displayName);
    if (!m_busAddress.isEmpty())
        environment.insert("DBUS_SESSION_BUS_ADDRESS", m_busAddress);
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    return environment;
}

std::vector<Seen> Screen::look(const QString &program) const
{
    std::vector<Seen> found;
    const Ref<AtspiAccessible> desktop(atspi_get_desktop(0));
    const int count = desktop ? atspi_accessible_get_child_count(desktop.get(), nullptr) : 0;
    for (int i = 0; i < count; ++i) {
        const Ref<AtspiAccessible> application(atspi_accessible_get_child_at_index(desktop.get(), i, nullptr));
        if (!application)
            continue;
        atspi_accessible_clear_cache(application.get()); // what was seen before may be another by now
        if (taken(atspi_accessible_get_name(application.get(), nullptr)) == program)
            collect(application.get(), 0, found);
    }
    return found;
}

std::optional<Seen> Screen::waitFor(const QString &program, const std::function<bool(const Seen &)> &isIt,
                                    int milliseconds) const
{
    QElapsedTimer clock;
    std::optional<Seen> before;
    for (clock.start(); clock.elapsed() < milliseconds; QThread::msleep(50)) {
        const auto seen = look(program);
        const auto found = std::ranges::find_if(seen, isIt);
        if (found != seen.end() && before && before->place == found->place)
            return *found;
        before = found != seen.end() ? std::optional(*found) : std::nullopt;
    }
    return std::nullopt;
}

QByteArray Screen::ask(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    process.setProcessEnvironment(extended(QProcessEnvironment::systemEnvironment()));
    process.start(program, arguments);
    const bool isDone = process.waitForFinished(kMilliseconds) && process.exitCode() == 0;
    return isDone ? process.readAllStandardOutput() : QByteArray();
}

std::optional<QString> Screen::listen()
{
    const auto hear = [](AtspiEvent *event, void *heard) {
        if (taken(atspi_accessible_get_role_name(event->source, nullptr)) == "alert" && event->detail1 == 1)
            static_cast<QStringList *>(heard)->append(taken(atspi_accessible_get_name(event->source, nullptr)));
        g_boxed_free(ATSPI_TYPE_EVENT, event);
    };
    // It stays until the process ends, as does the library's own connection.
    AtspiEventListener *const listener = atspi_event_listener_new(hear, &m_heard, nullptr);
    const bool isHeard = atspi_event_listener_register(listener, "object:state-changed:showing", nullptr) != 0;
    return isHeard ? std::nullopt : std::optional(QString("nobody listens to the accessibility bus"));
}

/// Asks until there is an answer.
bool Screen::waitForAnswer(const QStringList &question) const
{
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < kMilliseconds; QThread::msleep(50))
        if (!ask("xdotool", question).isEmpty())
            return true;
    return false;
}

void Screen::press(const QString &keys) const
{
    waitForAnswer({"getactivewindow"}); // one that has just come may not have the keyboard yet
    ask("xdotool", {"key", keys});
}

void Screen::type(const QString &text) const { ask("xdotool", {"type", "--delay", "20", text}); }

void Screen::click(const Seen &seen) const
{
    const QPoint at = seen.place.center();
    ask("xdotool", {"mousemove", QString::number(at.x()), QString::number(at.y()), "click", "1"});
}

bool Screen::choose(const QString &program, const std::function<bool(const Seen &)> &isMenu, const QString &item) const
{
    constexpr int kTries = 4;
    const auto isItem = [&](const Seen &each) { return each.role == "list item" && each.name == item; };
    std::optional<Seen> entry;
    for (int i = 0; i < kTries && !entry; ++i) {
        const auto menu = waitFor(program, isMenu);
        if (!menu)
            return false;
        click(*menu);
        entry = waitFor(program, isItem, kMilliseconds / kTries);
    }
    if (!entry)
        return false;
    QThread::msleep(600); // the menu takes a second click at once for the first one
    click(*entry);
    return true;
}

} // namespace support
