// A desktop whose applications print through its portal.
#include "Desktop.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QThread>

#include <algorithm>
#include <sys/stat.h>

namespace support {

namespace {

constexpr int kMilliseconds = 20000;
constexpr auto kPortals = "portals"; // folders, of the print server's
constexpr auto kOurTemporaries = "ours";
constexpr auto kSandboxRuntime = "sandbox";
constexpr auto kMark = "QN_TEST_SERVICE"; // in the environment of the service and of whatever it starts

struct ServiceRow
{
    const char *name;
    const char *command;
    bool isGtks;
};
constexpr std::array kServiceRows{
    ServiceRow{"org.freedesktop.portal.Desktop", "/usr/libexec/xdg-desktop-portal", false},
    ServiceRow{"org.freedesktop.impl.portal.desktop.gtk", "/usr/libexec/xdg-desktop-portal-gtk", true},
};

constexpr auto kOurPortal = "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.qnprint\n"
                            "Interfaces=org.freedesktop.impl.portal.Print;\nUseIn=qntest\n";
constexpr auto kGtksPortal = "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.gtk\n"
                             "Interfaces=org.freedesktop.impl.portal.FileChooser;org.freedesktop.impl.portal.Print;\n"
                             "UseIn=gnome\n";
constexpr auto kSandboxed = "[Application]\nname=org.qnprint.Ticket\nruntime=runtime/org.qnprint.Platform/x86_64/1\n"
                            "[Instance]\ninstance-id=1\n";

void write(const QString &path, const char *content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0)
        qFatal("can't write %s", qPrintable(path));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

std::optional<QString> Desktop::start(Backends backends)
{
    if (auto problem = m_server.start())
        return problem;
    for (const char *queue : {"counter", "office"})
        if (!m_server.addQueue(queue, QString("usb://Qn/Thermal?serial=") + queue))
            return QString("%1 can't be added").arg(queue);
    if (m_server.run("lpadmin", {"-d", "counter"}) != 0)
        return "there is no default queue";
    lay(backends);
    const QString temporaries = m_server.path(kOurTemporaries);
    QMap<QString, QString> services{
        {"org.freedesktop.impl.portal.desktop.qnprint",
         QString("/usr/bin/env %1=%2 TMPDIR=%2 %3 portal --language en").arg(kMark, temporaries, QN_PROGRAM)}};
    for (const ServiceRow &row : kServiceRows)
        if (!row.isGtks || backends == Backends::oursAndGtks)
            services[row.name] = row.command;
    m_screen->offer(services, serviceEnvironment());
    return m_screen->start();
}

void Desktop::lay(Backends backends) const
{
    QDir folder(m_server.path({}));
    for (const char *name : {kPortals, kOurTemporaries, kSandboxRuntime})
        folder.mkpath(name);
    ::chmod(QFile::encodeName(m_server.path(kSandboxRuntime)).constData(), 0700);
    write(folder.filePath(QString(kPortals) + "/qnprint.portal"), kOurPortal);
    if (backends == Backends::oursAndGtks)
        write(folder.filePath(QString(kPortals) + "/gtk.portal"), kGtksPortal);
    write(folder.filePath(QString(kSandboxRuntime) + "/flatpak-info"), kSandboxed);
}

QProcessEnvironment Desktop::serviceEnvironment() const
{
    auto environment = m_server.environment();
    environment.insert("XDG_DESKTOP_PORTAL_DIR", m_server.path(kPortals));
    environment.insert("XDG_CURRENT_DESKTOP", "qntest");
    environment.insert("GSETTINGS_BACKEND", "memory");
    environment.insert("GDK_BACKEND", "x11");
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert("NO_AT_BRIDGE", "1"); // GTK's programs are not looked at
    environment.insert("GTK_A11Y", "none");
    return environment;
}

QProcessEnvironment Desktop::environment() const { return m_screen->extended(serviceEnvironment()); }

std::vector<pid_t> Desktop::processes(const QByteArray &word) const
{
    const QByteArray mark = QByteArray(kMark) + '=' + m_server.path(kOurTemporaries).toUtf8();
    std::vector<pid_t> found;
    for (const QString &name : QDir("/proc").entryList(QDir::Dirs)) {
        if (!contentOf("/proc/" + name + "/environ").split('\0').contains(mark))
            continue;
        const QByteArray first = contentOf("/proc/" + name + "/cmdline").split('\0').value(1);
        if (word.isEmpty() || first == word)
            found.push_back(name.toInt());
    }
    return found;
}

QStringList Desktop::temporaryFiles() const
{
    return QDir(m_server.path(kOurTemporaries)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

std::optional<qulonglong> Desktop::window(const QString &program) const
{
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < kMilliseconds; QThread::msleep(50)) {
        const QByteArray windows = m_screen->ask("xdotool", {"search", "--onlyvisible", "--class", program});
        if (!windows.isEmpty())
            return windows.trimmed().split('\n').last().toULongLong();
    }
    return std::nullopt;
}

QByteArray Desktop::properties(qulonglong window) const
{
    return m_screen->ask("xprop", {"-id", QString::number(window)});
}

PrintingApplication::~PrintingApplication()
{
    if (m_program.state() != QProcess::NotRunning && !close())
        m_program.kill();
    m_program.waitForFinished(kMilliseconds);
}

bool PrintingApplication::canHaveSandbox()
{
    QProcess process;
    process.start("bwrap", {"--ro-bind", "/", "/", "true"});
    return process.waitForFinished(kMilliseconds) && process.exitCode() == 0;
}

/// As packaged applications have it: the system's files, and a file that says what they are.
QStringList PrintingApplication::sandbox() const
{
    const QString information = m_desktop.server().path(QString(kSandboxRuntime) + "/flatpak-info");
    QStringList arguments{"--die-with-parent", "--proc", "/proc", "--dev", "/dev", "--bind", "/tmp", "/tmp"};
    for (const char *folder : {"/usr", "/etc", QN_SOURCE_DIR})
        arguments << "--ro-bind" << folder << folder;
    for (const char *folder : {"bin", "lib", "lib64"})
        arguments << "--symlink" << QString("usr/") + folder << QString("/") + folder;
    return arguments << "--ro-bind" << information << "/.flatpak-info";
}

std::optional<QString> PrintingApplication::start(const QJsonObject &wish, Place place)
{
    auto environment = m_desktop.environment();
    if (place == Place::sandbox) {
        environment.insert("XDG_RUNTIME_DIR", m_desktop.server().path(kSandboxRuntime));
    } else {
        environment.insert("GTK_USE_PORTAL", "1");  // version 3
        environment.insert("GDK_DEBUG", "portals"); // version 4
    }
    QStringList command = place == Place::sandbox ? QStringList("bwrap") + sandbox() : QStringList();
    command << QN_SOURCE_DIR "/tests/support/printing-application"
            << QString::fromUtf8(QJsonDocument(wish).toJson(QJsonDocument::Compact));
    m_program.setProcessEnvironment(environment);
    m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_program.start(command.takeFirst(), command);
    m_window = static_cast<qulonglong>(told("shown")["window"].toDouble());
    return m_window ? std::nullopt : std::optional(QString("the application does not show"));
}

void PrintingApplication::print()
{
    m_program.write("\n");
    m_program.waitForBytesWritten(kMilliseconds);
}

QJsonObject PrintingApplication::told(const QString &kind)
{
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < kMilliseconds;) {
        const bool isThere = m_program.canReadLine() || m_program.waitForReadyRead(100);
        if (!isThere && m_program.state() == QProcess::NotRunning)
            break;
        while (m_program.canReadLine())
            if (const auto line = QJsonDocument::fromJson(m_program.readLine()).object(); line["is"] == kind)
                return line;
    }
    return {};
}

bool PrintingApplication::close()
{
    m_program.closeWriteChannel();
    return hasEnded();
}

bool PrintingApplication::hasEnded()
{
    return m_program.waitForFinished(kMilliseconds) && m_program.exitStatus() == QProcess::NormalExit &&
           m_program.exitCode() == 0;
}

} // namespace support
