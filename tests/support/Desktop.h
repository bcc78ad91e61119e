// A desktop whose applications print through its portal: the portal's real front end, `qnprint portal` behind it, and
// real applications, on a screen and a print server of the test's own.
#pragma once

#include "CupsServer.h"
#include "Screen.h"

#include <QJsonObject>

namespace support {

class Desktop
{
public:
    enum class Backends { ours, oursAndGtks };

    /// With the queues "counter" and "office". Nil when it stands; otherwise one sentence that says why not.
    std::optional<QString> start(Backends backends = Backends::ours);
    /// As a person logs out: the bus goes, and the screen.
    void end() { m_screen.reset(); }

    CupsServer &server() { return m_server; }
    const CupsServer &server() const { return m_server; }
    Screen &screen() { return *m_screen; }

    /// For applications.
    QProcessEnvironment environment() const;

    /// Processes that the service and its processes have become, and it. Of those of ours, the ones with this first
    /// word on their command line; all, other programs as well, when it is empty.
    std::vector<pid_t> processes(const QByteArray &word = {}) const;
    /// Of the service and its processes.
    QStringList temporaryFiles() const;

    /// The newest window of a program that shows; waits for it. Nil when none comes.
    std::optional<qulonglong> window(const QString &program = "qnprint") const;
    /// What the window manager and others are told of a window.
    QByteArray properties(qulonglong window) const;

private:
    QProcessEnvironment serviceEnvironment() const;
    void lay(Backends backends) const;

    CupsServer m_server;
    std::unique_ptr<Screen> m_screen = std::make_unique<Screen>();
};

/// `printing-application`: prints two pages, "page 1" and "page 2".
class PrintingApplication
{
public:
    enum class Place { open, sandbox };

    explicit PrintingApplication(const Desktop &desktop)
        : m_desktop(desktop)
    {}
    ~PrintingApplication();
    PrintingApplication(const PrintingApplication &) = delete;
    PrintingApplication &operator=(const PrintingApplication &) = delete;

    /// Whether this system lets people have sandboxes.
    static bool canHaveSandbox();

    /// Its window shows then, and has the keys. Nil; otherwise one sentence that says why not.
    std::optional<QString> start(const QJsonObject &wish, Place place = Place::open);
    qulonglong window() const { return m_window; }

    /// The command to print is chosen; where it waits, it goes on.
    void print();
    /// The next that it was told, of a kind: "begin" before the pages are drawn, "done" after. Empty when it does not
    /// come.
    QJsonObject told(const QString &kind);
    /// A person closes it; or waits until it ends by itself. False when it does not end well.
    bool close();
    bool hasEnded();

private:
    QStringList sandbox() const;

    const Desktop &m_desktop;
    Helper m_program;
    qulonglong m_window = 0;
};

} // namespace support
