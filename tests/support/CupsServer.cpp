// A CUPS server of the test's own.
#include "CupsServer.h"

#include "Cups/Conversation.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <arpa/inet.h>
#include <csignal>
#include <cstring>
#include <grp.h>
#include <net/if.h>
#include <pwd.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace support {

namespace {

constexpr int kMilliseconds = 20000;
constexpr auto kSystemBin = "/usr/lib/cups";

/// A network that no other program is in. That takes a privilege; without it the port is proved to be our own instead.
void leaveForOwnNetwork()
{
    static bool done = false;
    if (std::exchange(done, true) || ::unshare(CLONE_NEWNET) != 0)
        return;
    const int fd = ::socket(AF_INET, SOCK_DGRAM, 0);
    ifreq loopback{};
    std::strcpy(loopback.ifr_name, "lo");
    loopback.ifr_flags = IFF_UP | IFF_RUNNING;
    if (::ioctl(fd, SIOCSIFFLAGS, &loopback) != 0)
        qFatal("the loopback network can't be brought up");
    ::close(fd);
}

/// A port that was free a moment ago. The log tells whether it still was when the server took it.
int freePort()
{
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof(address);
    ::bind(fd, reinterpret_cast<sockaddr *>(&address), length);
    ::getsockname(fd, reinterpret_cast<sockaddr *>(&address), &length);
    ::close(fd);
    return ntohs(address.sin_port);
}

bool answers(int port)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    const bool connected = ::connect(fd, reinterpret_cast<sockaddr *>(&address), sizeof(address)) == 0;
    ::close(fd);
    return connected;
}

void write(const QString &path, const QByteArray &content, mode_t mode = 0644)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("can't write %s", qPrintable(path));
    file.close();
    ::chmod(QFile::encodeName(path).constData(), mode);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void linkAll(const QString &from, const QString &to, const QStringList &except)
{
    for (const QString &name : QDir(from).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        if (!except.contains(name))
            QFile::link(from + '/' + name, to + '/' + name);
}

constexpr auto kBackend = R"(#!/bin/sh
# A printer that takes everything and says nothing.
if [ $# -eq 0 ]; then exit 0; fi
cat "${6:--}" >/dev/null
)";

/// With the port, the level of the log, how to authenticate, when to encrypt, and who may look
/// and administrate, and further limits.
constexpr auto kConfiguration = R"(Listen 127.0.0.1:%1
LogLevel %2
AccessLogLevel all
MaxLogSize 0
Browsing No
DefaultShared No
WebInterface No
DefaultAuthType %3
DefaultEncryption %4
IdleExitTimeout 0
DirtyCleanInterval 0
PreserveJobHistory Yes
PreserveJobFiles No
JobRetryInterval 1
<Location />
%5</Location>
<Location /admin>
%6</Location>
<Policy default>
JobPrivateAccess all
JobPrivateValues none
SubscriptionPrivateAccess all
SubscriptionPrivateValues none
<Limit CUPS-Add-Modify-Printer Resume-Printer CUPS-Accept-Jobs>
%6</Limit>
%7<Limit All>
%5</Limit>
</Policy>
)";

QByteArray filesConfiguration(const QString &folder)
{
    const bool root = ::geteuid() == 0;
    QString text = QString("ServerRoot %1/etc\nServerBin %1/bin\nDataDir /usr/share/cups\nStateDir %1/run\nCacheDir "
                           "%1/cache\nRequestRoot %1/spool\nTempDir %1/spool/tmp\nAccessLog %1/log/access\nErrorLog "
                           "%1/log/error\nPageLog %1/log/page\nFileDevice Yes\nSandboxing relaxed\nServerKeychain "
                           "%1/etc/ssl\nSetEnv QN_RECORD_DIR %1/rec\nSystemGroup root\n")
                       .arg(folder);
    const passwd *const self = ::getpwuid(::geteuid());
    text += root ? "User lp\nGroup lp\n" : QString("User %1\n").arg(self ? self->pw_name : "nobody");
    return text.toUtf8();
}

} // namespace

CupsServer::~CupsServer() { stop(); }

QByteArray CupsServer::serverConfiguration() const
{
    using Guards = Setup::Guards;
    const QString open = "Order allow,deny\nAllow all\n";
    const QString whoMay = m_setup.mayPrint ? QString("user ") + m_setup.mayPrint : QString("valid-user");
    const QString guarded = open + "AuthType Basic\nRequire " + whoMay + '\n';
    const QString looking = m_setup.guards == Guards::everything ? guarded : open;
    const auto limit = [&](const char *operations) {
        return QString("<Limit ") + operations + ">\n" + guarded + "</Limit>\n";
    };
    const QString more = m_setup.guards == Guards::printing  ? limit("Create-Job Send-Document")
                         : m_setup.guards == Guards::listing ? limit("CUPS-Get-Printers")
                                                             : QString();
    // What the server may write is limited: then its log must be short, as it is a file too.
    const QString log = m_setup.largestFile ? "error" : "debug";
    return QString(kConfiguration)
        .arg(QString::number(m_port), log, m_setup.guards == Guards::nothing ? "None" : "Basic",
             m_setup.isEncrypted ? "Required" : "Never", looking, open, more)
        .toUtf8();
}

void CupsServer::lay()
{
    QDir folder(m_folder.path());
    for (const char *name : {"etc/ppd", "etc/ssl", "log", "run/certs", "cache", "spool/tmp", "bin/filter",
                             "bin/backend", "rec", "home/runtime", "tmp"})
        folder.mkpath(name);
    ::chmod(QFile::encodeName(m_folder.path()).constData(), 0711);
    ::chmod(QFile::encodeName(path("rec")).constData(), 01777);
    ::chmod(QFile::encodeName(path("home/runtime")).constData(), 0700);
    if (const group *lp = ::geteuid() == 0 ? ::getgrnam("lp") : nullptr)
        for (const char *name : {"spool", "cache", "run"}) {
            [[maybe_unused]] const int owned = ::chown(QFile::encodeName(path(name)).constData(), 0, lp->gr_gid);
            ::chmod(QFile::encodeName(path(name)).constData(), 0770);
        }
    linkAll(kSystemBin, path("bin"), {"filter", "backend"});
    linkAll(QString(kSystemBin) + "/filter", path("bin/filter"), {});
    linkAll(QString(kSystemBin) + "/backend", path("bin/backend"), {"usb"});
    QFile::copy(QN_RECORDING_FILTER, path("bin/filter/qnfilter"));
    ::chmod(QFile::encodeName(path("bin/filter/qnfilter")).constData(), 0755);
    for (const char *scheme : {"usb", "QNLRUSB"})
        write(path(QString("bin/backend/") + scheme), kBackend, 0755);
    m_port = freePort();
    layConfiguration();
}

void CupsServer::layConfiguration()
{
    write(path("etc/cups-files.conf"), filesConfiguration(m_folder.path()));
    write(path("etc/cupsd.conf"), serverConfiguration());
    if (m_setup.guards != Setup::Guards::nothing)
        layPasswords();
}

/// The server asks PAM, and PAM a file of the test's.
void CupsServer::layPasswords()
{
    QDir(m_folder.path()).mkpath("pam");
    write(path("passwords"), QByteArray(kUser) + ':' + kPassword + ":cups\n");
    QByteArray service;
    for (const char *part : {"auth", "account"})
        service += QByteArray(part) + " required " QN_PAM_MATRIX " passdb=" + path("passwords").toUtf8() + '\n';
    for (const char *name : {"pam/cups", "pam/other"})
        write(path(name), service);
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", "libpam_wrapper.so");
    environment.insert("PAM_WRAPPER", "1");
    environment.insert("PAM_WRAPPER_SERVICE_DIR", path("pam"));
    m_server.setProcessEnvironment(environment);
}

std::optional<QString> CupsServer::start(const Setup &setup)
{
    leaveForOwnNetwork();
    m_setup = setup;
    lay();
    return restart();
}

std::optional<QString> CupsServer::restart(const Setup &setup)
{
    m_setup = setup;
    layConfiguration();
    return restart();
}

std::optional<QString> CupsServer::restart()
{
    if (m_pid > 0)
        m_server.waitForFinished(kMilliseconds);
    // A write beyond the limit fails, as on a disk without room; a signal for it would end the server instead.
    const QString limit =
        m_setup.largestFile ? QString("trap '' XFSZ; ulimit -f %1; ").arg(m_setup.largestFile * 2) : "";
    m_server.start("/bin/sh", {"-c", limit + "exec /usr/sbin/cupsd -f -c \"$1\" -s \"$2\"", "sh",
                               path("etc/cupsd.conf"), path("etc/cups-files.conf")});
    if (!m_server.waitForStarted(kMilliseconds))
        return QString("cupsd can't be started: %1").arg(m_server.errorString());
    m_pid = static_cast<pid_t>(m_server.processId());
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < kMilliseconds && m_server.state() == QProcess::Running; QThread::msleep(10)) {
        if (log().contains("Address already in use")) // the port went to somebody else, and so would the jobs
            break;
        if (answers(m_port))
            return std::nullopt;
        m_server.waitForFinished(0); // or its end would go unnoticed
    }
    return QString("cupsd does not answer: %1").arg(QString::fromUtf8(log().right(2000)));
}

void CupsServer::stop()
{
    thaw();
    m_server.terminate();
    m_server.waitForFinished(kMilliseconds);
    m_pid = 0;
}

void CupsServer::kill()
{
    if (m_pid > 0)
        ::kill(m_pid, SIGKILL);
    while (answers(m_port))
        QThread::msleep(1);
}

void CupsServer::freeze()
{
    if (m_pid > 0)
        ::kill(m_pid, SIGSTOP);
}

void CupsServer::thaw()
{
    if (m_pid > 0)
        ::kill(m_pid, SIGCONT);
}

bool CupsServer::hasClient() const
{
    QFile connections("/proc/self/net/tcp"); // "sl local_address rem_address st …", port and state hexadecimal
    if (!connections.open(QIODevice::ReadOnly))
        return false;
    const QByteArray toServer = ":" + QByteArray::number(m_port, 16).toUpper().rightJustified(4, '0');
    const QByteArrayList lines = connections.readAll().split('\n');
    return std::ranges::any_of(lines, [&](const QByteArray &line) {
        const QByteArrayList columns = line.simplified().split(' ');
        return columns.value(2).endsWith(toServer) && columns.value(3) == "01";
    });
}

void CupsServer::adoptEnvironment() const
{
    const QProcessEnvironment all = environment();
    for (const char *name :
         {"CUPS_SERVER", "CUPS_SERVERROOT", "CUPS_ENCRYPTION", "HOME", "TMPDIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME"})
        qputenv(name, all.value(name).toUtf8());
    host::setConversationProgram(QN_PROGRAM);
}

QProcessEnvironment CupsServer::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CUPS_SERVER", QString("127.0.0.1:%1").arg(m_port));
    environment.insert("HOME", path("home")); // saved options of the test, not of the user
    environment.insert("CUPS_SERVERROOT", path("etc"));
    environment.insert("CUPS_ENCRYPTION", m_setup.isEncrypted ? "Required" : "IfRequested");
    environment.insert("TMPDIR", path("tmp"));
    environment.insert("XDG_CACHE_HOME", path("home/cache"));
    for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(display); // nothing here needs one
    environment.insert("XDG_CONFIG_HOME", path("config"));
    environment.insert("XDG_RUNTIME_DIR", path("home/runtime"));
    return environment;
}

int CupsServer::run(const QString &program, const QStringList &arguments, QByteArray *output) const
{
    QProcess process;
    process.setProcessEnvironment(environment());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(kMilliseconds))
        return -1;
    if (output)
        *output = process.readAll();
    return process.exitCode();
}

bool CupsServer::addQueue(const QString &name, const QString &uri, const QMap<QByteArray, QByteArray> &replaced)
{
    QFile example(QN_SOURCE_DIR "/examples/ppd/full.ppd");
    if (!example.open(QIODevice::ReadOnly))
        return false;
    QByteArrayList lines = example.readAll().split('\n');
    for (QByteArray &line : lines) {
        if (line.startsWith("*cupsFilter2:"))
            line = "*cupsFilter2: \"application/pdf application/vnd.qn-pdf 0 qnfilter\"";
        for (const auto &[start, other] : replaced.asKeyValueRange())
            if (line.startsWith(start))
                line = other;
    }
    write(path(name + ".ppd"), lines.join('\n'));
    return run("lpadmin", {"-p", name, "-E", "-v", uri, "-P", path(name + ".ppd")}) == 0;
}

bool CupsServer::addPlainQueue(const QString &name, const QString &uri)
{
    return run("lpadmin", {"-p", name, "-E", "-v", uri}) == 0;
}

QMap<QString, QString> CupsServer::record(int job) const
{
    QFile file(path(QString("rec/job-%1.txt").arg(job)));
    QElapsedTimer clock;
    for (clock.start(); !file.exists() && clock.elapsed() < kMilliseconds;)
        QThread::msleep(10);
    QMap<QString, QString> record;
    if (!file.open(QIODevice::ReadOnly))
        return record;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QString text = QString::fromUtf8(line);
        if (text.startsWith("mark "))
            record[text.mid(5).section('=', 0, 0)] = text.section('=', 1);
        else if (text.startsWith("parameter "))
            record[text.section('=', 0, 0)] = text.section('=', 1);
        else
            record[text.section(' ', 0, 0)] = text.section(' ', 1);
    }
    return record;
}

int CupsServer::recordCount() const { return static_cast<int>(QDir(path("rec")).entryList({"*.txt"}).size()); }

QStringList CupsServer::spooled() const { return QDir(path("spool")).entryList({"d*"}, QDir::Files); }

QByteArray CupsServer::openJobs() const
{
    QByteArray jobs;
    run("lpstat", {"-W", "not-completed", "-o"}, &jobs);
    return jobs;
}

QByteArray CupsServer::log() const { return contentOf(path("log/error")); }

QByteArray CupsServer::accessLog() const { return contentOf(path("log/access")); }

} // namespace support
