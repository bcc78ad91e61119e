// How long a person waits for the print dialog after an application has asked for one: ours, and GTK's beside it. Both
// are asked as the portal's front end asks them.
#include "Desktop.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QElapsedTimer>
#include <QThread>

#include <benchmark/benchmark.h>

#include <csignal>
#include <memory>
#include <set>
#include <xcb/xcb.h>

namespace {

constexpr int kMilliseconds = 20000;
constexpr auto kOurs = "org.freedesktop.impl.portal.desktop.qnprint";
constexpr auto kGtks = "org.freedesktop.impl.portal.desktop.gtk";

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};
template <class T>
using Reply = std::unique_ptr<T, Free>;

/// The windows of a screen as its window manager has them.
class Windows
{
public:
    explicit Windows(const QString &display)
        : m_connection(xcb_connect(display.toLatin1().constData(), nullptr))
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root)
    {
        constexpr std::string_view kList = "_NET_CLIENT_LIST";
        const auto asked = xcb_intern_atom(m_connection, 0, kList.size(), kList.data());
        m_list = Reply<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(m_connection, asked, nullptr))->atom;
    }
    /// 0 when there is none. There is one at most.
    xcb_window_t only() const
    {
        const auto asked = xcb_get_property(m_connection, 0, m_root, m_list, XCB_ATOM_WINDOW, 0, 1);
        const Reply<xcb_get_property_reply_t> list(xcb_get_property_reply(m_connection, asked, nullptr));
        const bool isEmpty = !list || xcb_get_property_value_length(list.get()) == 0;
        return isEmpty ? 0 : *static_cast<xcb_window_t *>(xcb_get_property_value(list.get()));
    }
    /// Whether something stands in its middle, and not only a ground.
    bool isPainted(xcb_window_t window) const
    {
        constexpr std::uint16_t kSide = 100;
        const Reply<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        if (!place || place->width < kSide || place->height < kSide)
            return false;
        const auto asked = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window,
                                         static_cast<std::int16_t>((place->width - kSide) / 2),
                                         static_cast<std::int16_t>((place->height - kSide) / 2), kSide, kSide, ~0U);
        const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(m_connection, asked, nullptr));
        if (!image)
            return false;
        const auto *const pixels = reinterpret_cast<const std::uint32_t *>(xcb_get_image_data(image.get()));
        return std::set(pixels, pixels + kSide * kSide).size() > 2;
    }

private:
    xcb_connection_t *m_connection;
    xcb_window_t m_root;
    xcb_atom_t m_list;
};

support::Desktop &desktop()
{
    static support::Desktop desktop;
    static const auto problem = desktop.start(support::Desktop::Backends::oursAndGtks);
    if (problem)
        qFatal("%s", qPrintable(*problem));
    return desktop;
}

bool becomes(const std::function<bool()> &isSo)
{
    QElapsedTimer clock;
    for (clock.start(); !isSo(); QThread::usleep(500))
        if (clock.elapsed() > kMilliseconds)
            return false;
    return true;
}

void end(QDBusConnection &bus, const QString &service)
{
    const auto process = bus.interface()->servicePid(service);
    if (!process.isValid())
        return;
    ::kill(static_cast<pid_t>(process.value()), SIGTERM);
    becomes([&] { return !bus.interface()->isServiceRegistered(service).value(); });
}

enum class Service { runs, isActivated };

void showDialog(benchmark::State &state, const char *backend, Service service)
{
    const auto environment = desktop().environment();
    auto bus = QDBusConnection::connectToBus(environment.value("DBUS_SESSION_BUS_ADDRESS"), "benchmark");
    const Windows windows(environment.value("DISPLAY"));
    if (service == Service::runs)
        bus.interface()->startService(backend);
    int number = 0;
    for (auto _ : state) {
        if (service == Service::isActivated)
            end(bus, backend);
        const QString handle = QString("/benchmark/%1").arg(++number);
        auto ask = QDBusMessage::createMethodCall(backend, "/org/freedesktop/portal/desktop",
                                                  "org.freedesktop.impl.portal.Print", "PreparePrint");
        ask << QVariant::fromValue(QDBusObjectPath(handle)) << "" << "" << "Print" << QVariantMap() << QVariantMap()
            << QVariantMap();
        QElapsedTimer clock;
        clock.start();
        bus.asyncCall(ask);
        if (!becomes([&] { return windows.only() && windows.isPainted(windows.only()); }))
            return state.SkipWithError("the dialog does not come");
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        bus.asyncCall(QDBusMessage::createMethodCall(backend, handle, "org.freedesktop.impl.portal.Request", "Close"));
        if (!becomes([&] { return !windows.only(); }))
            return state.SkipWithError("the dialog does not go");
        QThread::msleep(200); // until all is at rest
    }
    end(bus, backend);
}

template <class... Arguments>
void add(const char *name, Arguments... arguments)
{
    constexpr int kTimes = 10;
    benchmark::RegisterBenchmark(name, showDialog, arguments...)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(kTimes)
        ->UseManualTime();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    add("ours, running", kOurs, Service::runs);
    add("ours, activated", kOurs, Service::isActivated);
    add("GTK's, running", kGtks, Service::runs);
    add("GTK's, activated", kGtks, Service::isActivated);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
