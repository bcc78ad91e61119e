// A CUPS server of the test's own: its files in a temporary folder, on a loopback port of its own, ended with the test.
#pragma once

#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <optional>

namespace support {

class CupsServer
{
public:
    CupsServer() = default;
    ~CupsServer();

    /// Nil when it runs; otherwise one sentence that says why not.
    std::optional<QString> start();
    void stop();

    /// The environment in which CUPS programs find this server and no other.
    QProcessEnvironment environment() const;

    /// Adds a queue whose driver is the recording filter; the PPD is the full example.
    bool addQueue(const QString &name, const QString &uri);
    /// Runs a program in the environment; its exit status, -1 when it could not be run or did not end.
    int run(const QString &program, const QStringList &arguments, QByteArray *output = nullptr) const;

    /// What the driver wrote down of a job: "title", "copies", "options", "size", marks under their keyword, parameters
    /// under "parameter NAME". Waits for it; empty when it does not come.
    QMap<QString, QString> record(int job) const;
    int recordCount() const;
    QByteArray log() const;

private:
    void lay();
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder{"/tmp/qncups-XXXXXX"};
    QProcess m_server;
    int m_port = 0;
};

} // namespace support
