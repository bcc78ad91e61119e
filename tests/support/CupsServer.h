// A CUPS server of the test's own: its files in a temporary folder, on a loopback port of its own (where the system
// lets us, in a network of its own), ended with the test.
#pragma once

#include "Helper.h"

#include <QMap>
#include <QTemporaryDir>

#include <optional>

namespace support {

class CupsServer
{
public:
    CupsServer() = default;
    ~CupsServer();

    static constexpr auto kUser = "mia";
    static constexpr auto kPassword = "brown fox";

    struct Setup
    {
        enum class Guards { nothing, listing, printing, everything };
        Guards guards = Guards::nothing; // what it asks for a password for: `kUser`, `kPassword`
        const char *mayPrint = nullptr;  // nil: whoever says the password
        bool isEncrypted = false;        // with a certificate of its own making
        int largestFile = 0;             // in KiB, for everything that the server writes; 0: no limit
    };

    /// Nil when it runs; otherwise one sentence that says why not.
    std::optional<QString> start() { return start(Setup()); }
    std::optional<QString> start(const Setup &setup);
    /// Orderly; waits for the end.
    void stop();
    /// As a crash would; on whatever thread.
    void kill();
    /// Once more, with the queues and jobs that it had.
    std::optional<QString> restart();
    /// And set up otherwise, after a stop.
    std::optional<QString> restart(const Setup &setup);
    /// Holds the server so that it answers nothing, and lets it go on.
    void freeze();
    void thaw();
    /// Whether a program of this network is connected, answered or not.
    bool hasClient() const;

    /// The environment in which CUPS programs find this server and no other.
    QProcessEnvironment environment() const;
    /// Makes it the environment of this process, once and for good.
    void adoptEnvironment() const;

    /// Adds a queue whose driver is the recording filter; the PPD is the full example, with lines replaced.
    bool addQueue(const QString &name, const QString &uri, const QMap<QByteArray, QByteArray> &lines = {});
    /// Adds a queue without a PPD.
    bool addPlainQueue(const QString &name, const QString &uri);
    /// Runs a program in the environment; its exit status, -1 when it could not be run or did not end.
    int run(const QString &program, const QStringList &arguments, QByteArray *output = nullptr) const;

    /// What the driver wrote down of a job: "user", "title", "copies", "options", "size", what is in its environment
    /// under the name, marks under their keyword, parameters under "parameter NAME", texts under "text-KEYWORD". Waits
    /// for it; empty when it does not come.
    QMap<QString, QString> record(int job) const;
    int recordCount() const;
    /// The document that the driver got with a job that has been recorded.
    QString documentOf(int job) const { return path(QString("rec/job-%1.document").arg(job)); }
    /// Documents that wait in the spool.
    QStringList spooled() const;
    /// Jobs that are not at an end, as `lpstat` tells.
    QByteArray openJobs() const;
    QByteArray log() const;
    QByteArray accessLog() const;
    int port() const { return m_port; }
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    void lay();
    void layConfiguration();
    void layPasswords();
    QByteArray serverConfiguration() const;

    QTemporaryDir m_folder{"/tmp/qncups-XXXXXX"};
    Helper m_server;
    Setup m_setup;
    int m_port = 0;
    pid_t m_pid = 0; // 0 before there is one, and after the end
};

} // namespace support
