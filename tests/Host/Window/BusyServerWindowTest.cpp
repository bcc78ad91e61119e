// The window while a server keeps it busy without end: whatever a person does to get away, works.
#include "MisbehavingServer.h"
#include "WindowTest.h"

#include <QElapsedTimer>

using namespace host;
using support::MisbehavingServer;
using Step = MisbehavingServer::Step;
using Mode = MisbehavingServer::Mode;

namespace {

constexpr int kMilliseconds = 20000;
constexpr int kSoon = 6000; // two seconds, on a machine that does nothing else

struct Business
{
    const char *name;
    Step step;
    Mode mode;
};

void PrintTo(const Business &row, std::ostream *out) { *out << row.name; }

class BusyServer : public support::WindowTest, public testing::WithParamInterface<Business>
{
protected:
    void SetUp() override
    {
        m_server = std::make_unique<MisbehavingServer>(QMap<Step, Mode>{{GetParam().step, GetParam().mode}});
        m_server->adoptEnvironment();
        setUp(m_folder.filePath("defaults.ini"));
        PrintRequest request;
        request.queue = "counter";
        makeDialog(request);
        ASSERT_TRUE(m_dialog->start());
        showWindow();
    }
    void printUntilItIsBusy()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return canPrint(); }, kMilliseconds)) << message().toStdString();
        button("&Print")->click();
        waitUntilItIsBusy();
    }
    void waitUntilItIsBusy()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_server->wasAsked(GetParam().step); }, kMilliseconds));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<MisbehavingServer> m_server;
};

class BusyWithAJob : public BusyServer
{};

TEST_P(BusyWithAJob, StopsSoonAfterCancelAndStays)
{
    printUntilItIsBusy();
    QElapsedTimer clock;
    clock.start();
    button("Cancel")->click();
    EXPECT_EQ(message(), "Stopping…");
    ASSERT_TRUE(QTest::qWaitFor([this] { return canPrint(); }, kMilliseconds));
    EXPECT_LT(clock.elapsed(), kSoon);
    EXPECT_TRUE(message().startsWith("counter: cancelled")) << message().toStdString();
    EXPECT_TRUE(m_server->wasAsked(Step::cancel) || message().endsWith("look before you print again"));
    EXPECT_TRUE(m_window->isVisible());
}

TEST_P(BusyWithAJob, IsLeftSoonWhenTheProgramEnds)
{
    printUntilItIsBusy();
    QElapsedTimer clock;
    clock.start();
    m_window.reset();
    m_dialog.reset();
    EXPECT_LT(clock.elapsed(), kSoon);
}

INSTANTIATE_TEST_SUITE_P(Of, BusyWithAJob,
                         testing::Values(Business{"CreateSilence", Step::create, Mode::silence},
                                         Business{"CreateEndlessContinue", Step::create, Mode::endlessContinue},
                                         Business{"SendSilence", Step::send, Mode::silence},
                                         Business{"SendEndlessContinue", Step::send, Mode::endlessContinue},
                                         Business{"SendEndlessDrip", Step::send, Mode::endlessDrip}),
                         [](const auto &row) { return row.param.name; });

class BusyWithLooking : public BusyServer
{};

TEST_P(BusyWithLooking, ClosesAtOnce)
{
    waitUntilItIsBusy();
    QElapsedTimer clock;
    clock.start();
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    EXPECT_FALSE(m_window->isVisible());
    m_window.reset();
    m_dialog.reset();
    EXPECT_LT(clock.elapsed(), kSoon);
}

INSTANTIATE_TEST_SUITE_P(Of, BusyWithLooking,
                         testing::Values(Business{"DefaultSilence", Step::standard, Mode::silence},
                                         Business{"DefaultRedirect", Step::standard, Mode::redirect},
                                         Business{"AttributesEndlessContinue", Step::attributes, Mode::endlessContinue},
                                         Business{"PPDEndlessDrip", Step::ppd, Mode::endlessDrip}),
                         [](const auto &row) { return row.param.name; });

} // namespace
