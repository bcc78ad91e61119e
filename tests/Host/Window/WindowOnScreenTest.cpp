// The program as a person has it: a real window on a real screen, used by keys and mouse, printing on a real server.
#include "CupsServer.h"
#include "MisbehavingServer.h"
#include "Print.h"
#include "Screen.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFile>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <iostream>

using support::MisbehavingServer;
using support::Seen;
using Step = MisbehavingServer::Step;
using Mode = MisbehavingServer::Mode;

namespace {

constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";
constexpr int kMilliseconds = 20000;
constexpr int kTries = 4;

class OnScreen : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto noServer = m_server.start();
        ASSERT_FALSE(noServer) << noServer->toStdString();
        ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
        ASSERT_TRUE(m_server.addQueue("office", "usb://Qn/Thermal?serial=2"));
        const auto noScreen = m_screen.start();
        ASSERT_FALSE(noScreen) << noScreen->toStdString();
        m_program.setProcessEnvironment(m_screen.extended(m_server.environment()));
        m_program.start(QN_PROGRAM,
                        {"-d", "counter", "--title", "Ferry ticket", "--language", "en", "--locale", "de_DE", kTicket});
        ASSERT_TRUE(m_program.waitForStarted(kMilliseconds)) << m_program.errorString().toStdString();
        ASSERT_TRUE(wait("button", "Print")) << "the printer does not come";
    }
    void TearDown() override
    {
        if (HasFailure()) {
            std::cerr << m_program.readAllStandardError().toStdString();
            for (const Seen &each : m_screen.look("qnprint"))
                std::cerr << each.role.toStdString() << " \"" << each.name.toStdString() << "\" ["
                          << each.label.toStdString() << "] " << (each.isEnabled ? "" : "disabled") << '\n';
        }
        if (m_program.state() != QProcess::NotRunning) {
            m_program.terminate();
            m_program.waitForFinished(kMilliseconds);
        }
    }
    std::optional<Seen> wait(const QString &role, const QString &name)
    {
        return m_screen.waitFor(
            "qnprint", [&](const Seen &each) { return each.role == role && each.name == name && each.isEnabled; });
    }
    /// By keys. The second printer may not be in the menu yet, as it is asked for when the first one stands.
    bool chooseOffice()
    {
        const auto isOnOffice = [](const Seen &each) {
            return each.label == "Printer:" && each.name.startsWith("office");
        };
        bool done = false;
        for (int i = 0; i < kTries && !done; ++i) {
            m_screen.press("alt+r");
            m_screen.press("Down");
            done = m_screen.waitFor("qnprint", isOnOffice, kMilliseconds / kTries).has_value();
        }
        return done && wait("button", "Print");
    }
    bool ended(int status)
    {
        return m_program.waitForFinished(kMilliseconds) && m_program.exitStatus() == QProcess::NormalExit &&
               m_program.exitCode() == status;
    }

    support::CupsServer m_server;
    support::Screen m_screen;
    QProcess m_program;
};

TEST_F(OnScreen, PrintsWhatAPersonChose)
{
    ASSERT_TRUE(m_screen.choose(
        "qnprint", [](const Seen &each) { return each.label == "Paper:" && each.isEnabled; }, "A4, Roll"));
    ASSERT_TRUE(m_screen.choose(
        "qnprint", [](const Seen &each) { return each.role == "combo box" && each.name == "Thermal Paper"; },
        "Thermal Copy Paper"));
    ASSERT_TRUE(wait("combo box", "Thermal Copy Paper"));

    const auto amount = m_screen.waitFor(
        "qnprint", [](const Seen &each) { return each.role == "text" && each.isEnabled && each.label != "Pages:"; });
    ASSERT_TRUE(amount);
    m_screen.click(*amount);
    m_screen.press("ctrl+a");
    m_screen.type("40");
    m_screen.press("alt+c");
    m_screen.press("ctrl+a");
    m_screen.type("2");
    m_screen.press("alt+a");
    m_screen.type("1");
    m_screen.press("alt+p");

    ASSERT_TRUE(ended(0));
    EXPECT_EQ(m_program.readAllStandardOutput(), "counter-1\n");
    const auto job = m_server.record(1);
    EXPECT_EQ(job["title"], "Ferry ticket");
    EXPECT_EQ(job["size"], QString::number(QFile(kTicket).size()));
    EXPECT_EQ(job["PageSize"], "RollA4");
    EXPECT_EQ(job["QnPaperSizeType"], "QnRollSize");
    EXPECT_EQ(job["QnMedia"], "ThermalCopy");
    EXPECT_NEAR(job["parameter QnPaperFeed"].toDouble(), 40 / 25.4, 0.0001);
    EXPECT_EQ(job["copies"], "2");
    EXPECT_FALSE(job["options"].contains("page-ranges")); // that is all of it
}

TEST_F(OnScreen, AnnouncesItsMessagesWhereverTheyStand)
{
    const auto deaf = m_screen.listen();
    ASSERT_FALSE(deaf) << deaf->toStdString();
    const auto hears = [this](const QString &beginning) {
        return QTest::qWaitFor(
            [&] {
                return std::ranges::any_of(m_screen.heard(),
                                           [&](const QString &each) { return each.startsWith(beginning); });
            },
            kMilliseconds);
    };
    m_server.stop();
    m_screen.press("alt+p");
    EXPECT_TRUE(hears("counter: no CUPS server answers")) << m_screen.heard().join('|').toStdString();
    m_screen.press("alt+r"); // another printer, and a sentence where its panel would stand
    m_screen.press("Down");
    EXPECT_TRUE(hears("The print service does not run.")) << m_screen.heard().join('|').toStdString();
}

/// The part of a desktop that shows notifications.
class NotificationService : public QDBusVirtualObject
{
public:
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.member() != "Notify")
            return false;
        told = message.arguments();
        return bus.send(message.createReply(1U));
    }
    QString introspect(const QString &) const override { return {}; }

    QVariantList told;
};

TEST_F(OnScreen, TellsThroughTheDesktopWhatBecameOfTheJob)
{
    ASSERT_EQ(m_server.run("cupsdisable", {"-r", "out of <b>paper</b>", "office"}), 0);
    const QString address = m_screen.extended({}).value("DBUS_SESSION_BUS_ADDRESS");
    QDBusConnection bus = QDBusConnection::connectToBus(address, "desktop");
    NotificationService service;
    ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/Notifications", &service));
    ASSERT_TRUE(bus.registerService("org.freedesktop.Notifications"));
    ASSERT_TRUE(chooseOffice());
    m_screen.press("alt+p");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !service.told.isEmpty(); }, kMilliseconds));
    ASSERT_GE(service.told.size(), 5);
    EXPECT_EQ(service.told[3], "Ferry ticket waits: office is stopped (out of <b>paper</b>)");
    EXPECT_EQ(service.told[4], ""); // a body may be taken for markup
    ASSERT_TRUE(ended(0));
    QDBusConnection::disconnectFromBus("desktop");
}

TEST_F(OnScreen, OpensOnThePrinterOfTheLastJob)
{
    ASSERT_TRUE(chooseOffice());
    m_screen.press("alt+p");
    ASSERT_TRUE(ended(0));
    m_program.start(QN_PROGRAM, {"--language", "en", kTicket});
    ASSERT_TRUE(wait("button", "Print"));
    EXPECT_TRUE(m_screen.waitFor("qnprint",
                                 [](const Seen &each) { return each.label == "Printer:" && each.name == "office"; }));
}

TEST_F(OnScreen, StopsAnAmountThatIsOutOfRangeAndLetsThePersonMendIt)
{
    const auto amount = m_screen.waitFor(
        "qnprint", [](const Seen &each) { return each.role == "text" && each.isEnabled && each.label != "Pages:"; });
    ASSERT_TRUE(amount);
    m_screen.click(*amount);
    ASSERT_TRUE(m_screen.waitFor("qnprint", [](const Seen &each) { return each.role == "text" && each.isFocused; }));
    m_screen.press("ctrl+a");
    m_screen.type("0");
    m_screen.press("alt+p");
    ASSERT_TRUE(m_screen.waitFor("qnprint", [](const Seen &each) {
        return each.role == "label" && each.name.contains("The paper feed amount is out of range.");
    }));
    EXPECT_EQ(m_server.openJobs(), "");
    m_screen.press("Return");
    ASSERT_TRUE(m_screen.waitFor("qnprint", [](const Seen &each) { return each.role == "text" && each.isFocused; }));
    m_screen.press("ctrl+a");
    m_screen.type("30");
    m_screen.press("alt+p");
    ASSERT_TRUE(ended(0));
    EXPECT_NEAR(m_server.record(1)["parameter QnPaperFeed"].toDouble(), 30 / 25.4, 0.0001);
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(OnScreen, SwitchesToAnotherPrinterByKeysAndClosesWithEscape)
{
    ASSERT_TRUE(chooseOffice());
    m_screen.press("Escape");
    ASSERT_TRUE(ended(1));
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_EQ(m_server.recordCount(), 0);
}

struct SignalRow
{
    const char *name;
    int number;
    bool takesJobBack; // the server
};

void PrintTo(const SignalRow &row, std::ostream *out) { *out << row.name; }

class SendingOnScreen : public testing::TestWithParam<SignalRow>
{};

/// The server takes the document and says nothing any more.
TEST_P(SendingOnScreen, EndsByASignalAndLeavesNoJobUnsaid)
{
    QMap<Step, Mode> faults{{Step::send, Mode::silence}};
    if (!GetParam().takesJobBack)
        faults[Step::cancel] = Mode::silence;
    const MisbehavingServer server(faults);
    support::Screen screen;
    const auto noScreen = screen.start();
    ASSERT_FALSE(noScreen) << noScreen->toStdString();
    support::Helper program;
    program.setProcessEnvironment(screen.extended(server.environment()));
    program.start(QN_PROGRAM, {"-d", "counter", "--language", "en", kTicket});
    ASSERT_TRUE(screen.waitFor(
        "qnprint", [](const Seen &each) { return each.role == "button" && each.name == "Print" && each.isEnabled; }));
    screen.press("alt+p");
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.wasAsked(Step::send); }, kMilliseconds));
    ::kill(static_cast<pid_t>(program.processId()), GetParam().number);
    ASSERT_TRUE(program.waitForFinished(kMilliseconds));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(server.wasAsked(Step::cancel));
    EXPECT_EQ(program.readAllStandardOutput(), "");
    EXPECT_EQ(program.readAllStandardError(),
              GetParam().takesJobBack
                  ? "qnprint: counter: cancelled; nothing was printed\n"
                  : "qnprint: counter: cancelled; job counter-7 may still be there, so look before you print again\n");
}

INSTANTIATE_TEST_SUITE_P(By, SendingOnScreen,
                         testing::Values(SignalRow{"Interrupt", SIGINT, true}, SignalRow{"Terminate", SIGTERM, true},
                                         SignalRow{"HangUp", SIGHUP, true},
                                         SignalRow{"TerminateWithoutAWayBack", SIGTERM, false}),
                         [](const auto &row) { return row.param.name; });

} // namespace
