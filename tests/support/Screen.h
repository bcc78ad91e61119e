// A screen of the test's own, with a window manager, and eyes and hands on it: windows are read through the
// accessibility bus, as assistive technology does, and used with keys and mouse clicks, as people do.
#pragma once

#include "Helper.h"

#include <QMap>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace support {

/// Something on the screen, as assistive technology knows it.
struct Seen
{
    QString role; // "button"
    QString name;
    QString label; // of what stands beside it as its label
    QRect place;   // on the screen
    bool isShowing = false;
    bool isEnabled = false;
    bool isFocused = false;
};

class Screen
{
public:
    Screen();
    ~Screen();
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    /// Programs by their names on the bus, which starts them in this environment when they are asked for. Before the
    /// start.
    void offer(const QMap<QString, QString> &services, const QProcessEnvironment &environment);

    /// Nil when it stands; otherwise one sentence that says why not.
    std::optional<QString> start(const QSize &size = {1280, 900});

    /// An environment, with what a program needs to show itself here.
    QProcessEnvironment extended(QProcessEnvironment environment) const;

    /// All that shows of a program, from the top; empty while it does not.
    std::vector<Seen> look(const QString &program) const;
    /// Waits for something that shows and stands still; nil when it does not come.
    std::optional<Seen> waitFor(const QString &program, const std::function<bool(const Seen &)> &isIt,
                                int milliseconds = kMilliseconds) const;

    /// From now on hears what a screen reader reads aloud: alerts that show, and what they say.
    std::optional<QString> listen();
    const QStringList &heard() const { return m_heard; }

    void press(const QString &keys) const; // "alt+p"
    void type(const QString &text) const;
    void click(const Seen &seen) const;
    /// Opens a menu and picks an item. A window that has just come still moves, and the menu with it: then it is
    /// clicked once more, as a person would. False when the item does not come.
    bool choose(const QString &program, const std::function<bool(const Seen &)> &isMenu, const QString &item) const;
    /// What a program on this screen says; empty when it fails.
    QByteArray ask(const QString &program, const QStringList &arguments) const;

private:
    static constexpr int kMilliseconds = 20000;

    bool waitForAnswer(const QStringList &question) const;

    std::optional<QString> startBus();

    QTemporaryDir m_folder{"/tmp/qnscreen-XXXXXX"};
    Helper m_display;
    Helper m_bus;
    Helper m_windowManager;
    QString m_displayName;
    QString m_busAddress;
    QStringList m_heard;
    QMap<QString, QString> m_services{{"org.a11y.Bus", "/usr/libexec/at-spi-bus-launcher"}};
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

} // namespace support
