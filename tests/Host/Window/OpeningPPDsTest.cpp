// The PPD of a queue is opened beside the window, which goes on to answer however long that takes.
#include "MisbehavingServer.h"
#include "PPDText.h"
#include "QueueWindow.h"

#include "Printing/ppd_api.h"

#include <atomic>
#include <dlfcn.h>
#include <fcntl.h>
#include <semaphore>
#include <unistd.h>

using namespace host;
using namespace std::chrono_literals;
using support::MisbehavingServer;
using support::PPDText;
using support::QueueWindow;
using State = PrintDialog::State;

namespace {

constexpr int kMilliseconds = 120'000; // a large PPD takes a sixth of that under the sanitizers

/// What is known of the files that the library is given to open, and what becomes of them.
struct Openings
{
    std::atomic<int> byTheWindow = 0;
    std::atomic<int> besideIt = 0;
    std::atomic<bool> areHeld = false; // those beside the window
    std::atomic<bool> areOfRubbish = false;
    std::atomic<int> heldInVain = 0;
    std::counting_semaphore<> mayGoOn{0};
};

Openings &openings()
{
    static Openings instance;
    return instance;
}

bool isWindowsThread() { return QThread::currentThread() == QCoreApplication::instance()->thread(); }

} // namespace

/// In the place of the library's own, which does the work.
ppd_file_t *ppdOpenFd(int descriptor)
{
    static const auto ofTheLibrary = reinterpret_cast<ppd_file_t *(*)(int)>(::dlsym(RTLD_NEXT, "ppdOpenFd"));
    Openings &all = openings();
    ++(isWindowsThread() ? all.byTheWindow : all.besideIt);
    if (all.areHeld && !isWindowsThread() && !all.mayGoOn.try_acquire_for(std::chrono::milliseconds(kMilliseconds)))
        ++all.heldInVain;
    if (!all.areOfRubbish)
        return ofTheLibrary(descriptor);
    ::close(descriptor);
    return ofTheLibrary(::open(QN_SOURCE_DIR "/examples/documents/invoice.txt", O_RDONLY | O_CLOEXEC));
}

namespace {

/// As much as is accepted of everything that the library takes long for.
QByteArray largestPPD()
{
    constexpr int kOptions = 3900;
    constexpr int kConstraints = 9900;
    constexpr int kKeywords = 49900;
    PPDText ppd;
    ppd.allOptions();
    for (int i = 0; i < kOptions; ++i)
        ppd.option("Further" + QByteArray::number(i), "Further", "C0", {{"C0", "0"}, {"C1", "1"}});
    for (int i = 0; i < kConstraints; ++i)
        ppd.line("*UIConstraints: *Further" + QByteArray::number(i % kOptions) + " C1 *Further" +
                 QByteArray::number((i + 1) % kOptions) + " C1");
    QByteArray text = ppd.text();
    for (auto i = text.count("\n*"); i < kKeywords; ++i)
        text += "*Word" + QByteArray::number(i) + ": \"nothing\"\n";
    return text;
}

class OpeningPPDs : public support::WindowTest
{
protected:
    void SetUp() override
    {
        m_server.adoptEnvironment();
        setUp(m_folder.filePath("defaults.ini"));
    }
    void TearDown() override
    {
        letGoOn();
        support::WindowTest::TearDown();
    }
    void open()
    {
        PrintRequest request;
        request.queue = "counter";
        makeDialog(request);
        ASSERT_TRUE(m_dialog->start());
        showWindow();
    }
    static void letGoOn()
    {
        openings().areHeld = false;
        openings().mayGoOn.release(10);
    }
    static bool waitForOpenings(int count)
    {
        return QTest::qWaitFor([count] { return openings().besideIt == count; }, kMilliseconds);
    }
    bool waitUntilItCanPrint()
    {
        return QTest::qWaitFor([this] { return canPrint(); }, kMilliseconds);
    }

    QTemporaryDir m_folder;
    MisbehavingServer m_server{{}};
};

TEST_F(OpeningPPDs, LetsAPersonWriteMeanwhile)
{
    m_server.setPPD(largestPPD());
    openings().areHeld = true;
    open();
    ASSERT_TRUE(waitForOpenings(1));
    QTest::keyClicks(pages(), "2-3");
    EXPECT_EQ(m_dialog->amount().pages, "2-3");
    EXPECT_EQ(m_dialog->state(), State::looking);
    EXPECT_EQ(message(), "Looking for the printer…");
    letGoOn();
    ASSERT_TRUE(waitUntilItCanPrint()) << message().toStdString();
    EXPECT_TRUE(session().ppd().hasOption("Further3899"));
    EXPECT_EQ(pages()->text(), "2-3");
    EXPECT_EQ(openings().byTheWindow, 0);
    EXPECT_EQ(openings().heldInVain, 0);
}

TEST_F(OpeningPPDs, LetsAPersonChooseAnotherPrinterMeanwhile)
{
    openings().areHeld = true;
    open();
    ASSERT_TRUE(waitForOpenings(1));
    m_dialog->choosePrinter("counter");
    ASSERT_TRUE(waitForOpenings(2));
    EXPECT_EQ(openings().heldInVain, 0); // nobody has waited for the first one
    EXPECT_FALSE(m_dialog->target());
    letGoOn();
    ASSERT_TRUE(waitUntilItCanPrint()) << message().toStdString();
    EXPECT_EQ(openings().byTheWindow, 0);
}

/// The library keeps its reasons for the thread that has opened the file.
TEST_F(OpeningPPDs, SaysWhyThatFailsAndTriesAgain)
{
    openings().areOfRubbish = true;
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_dialog->state() == State::noPrinter; }, kMilliseconds));
    EXPECT_TRUE(message().startsWith("counter: /")) << message().toStdString();
    EXPECT_TRUE(message().endsWith(": not a PPD file (line 1: the asterisk before a keyword is missing)"))
        << message().toStdString();
    EXPECT_FALSE(canPrint());
    openings().areOfRubbish = false;
    button("Try A&gain")->click();
    EXPECT_TRUE(waitUntilItCanPrint()) << message().toStdString();
    EXPECT_EQ(openings().byTheWindow, 0);
}

TEST_F(QueueWindow, OpensAPPDThatHasChangedBesideTheWindowToo)
{
    openAndWait();
    ASSERT_TRUE(
        m_server.addQueue("counter", "usb://Qn/Thermal?serial=1", {{"*DefaultQnDensity:", "*DefaultQnDensity: D4"}}));
    EXPECT_FALSE(print());
    ASSERT_TRUE(waitForMessage("The printer's description has changed on the server."));
    EXPECT_EQ(openings().besideIt, 2);
    EXPECT_EQ(openings().byTheWindow, 0);
}

} // namespace
