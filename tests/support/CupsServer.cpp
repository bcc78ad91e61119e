// A CUPS server of the test's own.
#include "CupsServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <arpa/inet.h>
#include <grp.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace support {

namespace {

constexpr int kMilliseconds = 20000;
constexpr auto kSystemBin = "/usr/lib/cups";

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

QByteArray filesConfiguration(const QString &folder)
{
    const bool root = ::geteuid() == 0;
    QString text = QString("ServerRoot %1/etc\nServerBin %1/bin\nDataDir /usr/share/cups\nStateDir %1/run\nCacheDir "
                           "%1/cache\nRequestRoot %1/spool\nTempDir %1/spool/tmp\nAccessLog %1/log/access\nErrorLog "
                           "%1/log/error\nPageLog %1/log/page\nFileDevice Yes\nSandboxing relaxed\nServerKeychain "
                           "%1/etc/ssl\nSetEnv QN_RECORD_DIR %1/rec\nSystemGroup root\n")
                       .arg(folder);
    text += root ? "User lp\nGroup lp\n" : QString("User %1\n").arg(qEnvironmentVariable("USER", "nobody"));
    return text.toUtf8();
}

QByteArray serverConfiguration(int port)
{
    return QString(
               "Listen 127.0.0.1:%1\nLogLevel debug\nMaxLogSize 0\nBrowsing No\nDefaultShared No\nWebInterface "
               "No\nDefaultAuthType None\nDefaultEncryption Never\nIdleExitTimeout 0\nPreserveJobHistory "
               "Yes\nPreserveJobFiles Yes\nJobRetryInterval 1\n<Location />\nOrder allow,deny\nAllow "
               "all\n</Location>\n<Location /admin>\nOrder allow,deny\nAllow all\n</Location>\n<Policy "
               "default>\nJobPrivateAccess all\nJobPrivateValues none\nSubscriptionPrivateAccess "
               "all\nSubscriptionPrivateValues none\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n")
        .arg(port)
        .toUtf8();
}

} // namespace

CupsServer::~CupsServer() { stop(); }

void CupsServer::lay()
{
    QDir folder(m_folder.path());
    for (const char *name :
         {"etc/ppd", "etc/ssl", "log", "run/certs", "cache", "spool/tmp", "bin/filter", "bin/backend", "rec"})
        folder.mkpath(name);
    ::chmod(QFile::encodeName(m_folder.path()).constData(), 0711);
    ::chmod(QFile::encodeName(path("rec")).constData(), 01777);
    if (const group *lp = ::geteuid() == 0 ? ::getgrnam("lp") : nullptr)
        for (const char *name : {"spool", "cache", "run"}) {
            [[maybe_unused]] const int owned = ::chown(QFile::encodeName(path(name)).constData(), 0, lp->gr_gid);
            ::chmod(QFile::encodeName(path(name)).constData(), 0770);
        }
    linkAll(kSystemBin, path("bin"), {"filter", "backend"});
    linkAll(QString(kSystemBin) + "/filter", path("bin/filter"), {});
    QFile::copy(QN_RECORDING_FILTER, path("bin/filter/qnfilter"));
    ::chmod(QFile::encodeName(path("bin/filter/qnfilter")).constData(), 0755);
    for (const char *scheme : {"usb", "QNLRUSB"})
        write(path(QString("bin/backend/") + scheme), kBackend, 0755);
    m_port = freePort();
    write(path("etc/cups-files.conf"), filesConfiguration(m_folder.path()));
    write(path("etc/cupsd.conf"), serverConfiguration(m_port));
}

std::optional<QString> CupsServer::start()
{
    lay();
    m_server.start("/usr/sbin/cupsd", {"-f", "-c", path("etc/cupsd.conf"), "-s", path("etc/cups-files.conf")});
    if (!m_server.waitForStarted(kMilliseconds))
        return QString("cupsd can't be started: %1").arg(m_server.errorString());
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < kMilliseconds && m_server.state() == QProcess::Running; QThread::msleep(10)) {
        if (log().contains("Address already in use")) // the port went to somebody else, and so would the jobs
            break;
        if (answers(m_port))
            return std::nullopt;
    }
    return QString("cupsd does not answer: %1").arg(QString::fromUtf8(log().right(2000)));
}

void CupsServer::stop()
{
    m_server.terminate();
    m_server.waitForFinished(kMilliseconds);
}

QProcessEnvironment CupsServer::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CUPS_SERVER", QString("127.0.0.1:%1").arg(m_port));
    environment.insert("HOME", m_folder.path()); // saved options of the test, not of the user
    for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(display); // nothing here needs one
    environment.insert("XDG_CONFIG_HOME", path("config"));
    environment.remove("XDG_RUNTIME_DIR");
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

bool CupsServer::addQueue(const QString &name, const QString &uri)
{
    QFile example(QN_SOURCE_DIR "/examples/ppd/full.ppd");
    if (!example.open(QIODevice::ReadOnly))
        return false;
    QByteArrayList lines = example.readAll().split('\n');
    for (QByteArray &line : lines)
        if (line.startsWith("*cupsFilter2:"))
            line = "*cupsFilter2: \"application/pdf application/vnd.qn-pdf 0 qnfilter\"";
    write(path(name + ".ppd"), lines.join('\n'));
    return run("lpadmin", {"-p", name, "-E", "-v", uri, "-P", path(name + ".ppd")}) == 0;
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

QByteArray CupsServer::log() const
{
    QFile file(path("log/error"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace support
