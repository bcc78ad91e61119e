// Making the application. Qt aborts where it finds no display, after some lines about its plug-ins; all that it leaves
// us is to hear its last message first.
#include "Application.h"

#include "CommandLine.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <mutex>
#include <optional>

namespace host {

namespace {

struct QtArgumentRow
{
    const char *name = nullptr; // behind one dash or two
    bool takesNext = false;
    bool takesJoined = false; // behind "="
};
constexpr std::array kQtArgumentRows{
    QtArgumentRow{"display", true},
    QtArgumentRow{"geometry", true},
    QtArgumentRow{"icon", true},
    QtArgumentRow{"platform", true},
    QtArgumentRow{"platformpluginpath", true},
    QtArgumentRow{"platformtheme", true},
    QtArgumentRow{"plugin", true},
    QtArgumentRow{"qmljsdebugger", true, true},
    QtArgumentRow{"qwindowgeometry", true},
    QtArgumentRow{"qwindowicon", true},
    QtArgumentRow{"qwindowtitle", true},
    QtArgumentRow{"reverse"},
    QtArgumentRow{"session", true},
    QtArgumentRow{"style", true, true},
    QtArgumentRow{"stylesheet", true, true},
    QtArgumentRow{"widgetcount"},
};

/// Null for what is none of Qt's.
const QtArgumentRow *qtArgument(const QString &argument)
{
    if (!argument.startsWith('-'))
        return nullptr;
    const qsizetype dashes = argument.startsWith("--") ? 2 : 1;
    const QString name = argument.section('=', 0, 0).mid(dashes);
    const auto *const row = std::ranges::find_if(kQtArgumentRows, [&](const auto &each) { return name == each.name; });
    const bool isOne = row != kQtArgumentRows.end() && (row->takesJoined || !argument.contains('='));
    return isOne ? row : nullptr;
}

QtMessageHandler usualHandler = nullptr;

/// What the platform without a display says of itself is nothing to a person who asked for none.
void withoutPlatformRemarks(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith("This plugin does not support") && !message.startsWith("QStandardPaths: "))
        usualHandler(type, context, message);
}

QStringList displayArguments; // of Qt's

/// Says what is wrong by what Qt was told of a display. Nothing may run on in a half-made application.
[[noreturn]] void endWithoutWindow()
{
    QStringList told = displayArguments;
    for (const char *name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"})
        if (!qEnvironmentVariableIsEmpty(name))
            told.append(QStringLiteral("%1=%2").arg(name, qEnvironmentVariable(name)));
    const QString where =
        told.isEmpty() ? QStringLiteral(": neither DISPLAY nor WAYLAND_DISPLAY is set") : " with " + told.join(' ');
    complain(QStringLiteral("no window can be opened%1; --no-dialog prints without one").arg(where));
    std::_Exit(kRefused);
}

struct Remark
{
    QtMsgType type;
    QByteArray category; // a plug-in that does not serve goes with its own
    QString message;
};
std::vector<Remark> remarks;
std::mutex remarksMutex; // threads of Qt's may speak as well

void endInOurWords(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg)
        endWithoutWindow();
    if (type == QtDebugMsg)
        return usualHandler(type, context, message); // for whoever looks for the reason
    const std::scoped_lock lock(remarksMutex);
    remarks.push_back({type, context.category, message});
}

/// While it lives, an abort of Qt's is an end in our words. What else Qt says is told when there is a display.
class DisplayGuard
{
public:
    explicit DisplayGuard(const QStringList &ofQt)
    {
        for (qsizetype i = 0; i + 1 < ofQt.size(); ++i)
            if (ofQt[i].endsWith("-platform") || ofQt[i].endsWith("-display"))
                displayArguments += ofQt.mid(i, 2);
        usualHandler = qInstallMessageHandler(endInOurWords);
    }
    ~DisplayGuard()
    {
        qInstallMessageHandler(usualHandler);
        const std::scoped_lock lock(remarksMutex);
        for (const auto &[type, category, message] : remarks)
            usualHandler(type, QMessageLogContext(nullptr, 0, nullptr, category.constData()), message);
    }
    DisplayGuard(const DisplayGuard &) = delete;
    DisplayGuard &operator=(const DisplayGuard &) = delete;
};

} // namespace

Arguments partArguments(const QStringList &all)
{
    Arguments parts;
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (all[i] == "--") {
            parts.ours += all.mid(i);
            break;
        }
        const QtArgumentRow *const row = qtArgument(all[i]);
        (row ? parts.ofQt : parts.ours).append(all[i]);
        if (row && row->takesNext && !all[i].contains('=') && i + 1 < all.size())
            parts.ofQt.append(all[++i]);
    }
    return parts;
}

Application::Application(Face face, const QStringList &ofQt)
    : m_words{"qnprint"}
{
    std::optional<DisplayGuard> guard;
    for (const QString &argument : ofQt)
        m_words.append(argument.toLocal8Bit());
    if (face == Face::window) {
        guard.emplace(ofQt);
    } else {
        m_words << "-platform" << "offscreen"; // the last one counts
        usualHandler = qInstallMessageHandler(withoutPlatformRemarks);
    }
    for (QByteArray &word : m_words)
        m_argv.push_back(word.data());
    m_argc = static_cast<int>(m_argv.size());
    m_argv.push_back(nullptr);
    m_application = std::make_unique<QApplication>(m_argc, m_argv.data());
    if (guard && !QGuiApplication::primaryScreen())
        endWithoutWindow(); // some platforms stand without any screen, and crash then
}

Application::~Application() = default;

} // namespace host
