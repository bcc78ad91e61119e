// What is said of a server that misbehaves: every question that a job asks, against everything that can come in place
// of its answer.
#include "MisbehavingServer.h"
#include "Cups/CupsSink.h"
#include "Foundation/PlainText.h"
#include "Print.h"
#include "Results.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/wait.h>
#include <thread>

using namespace host;
using namespace std::chrono_literals;
using support::MisbehavingServer;
using support::sentence;
using support::value;
using Step = MisbehavingServer::Step;
using Mode = MisbehavingServer::Mode;

namespace {

constexpr Patience kPatience{3s, 1s, 500ms};
constexpr int kMillisecondsInAll = 15000; // connecting, asking and cancelling, each with its own end, on a busy machine
constexpr auto kLook = "so look before you print again";

/// What a library says of answers that are none, and what says the opposite.
constexpr std::array kEmptyWords{"Success",          "successful", "No such file", "printer-uri",         "descriptor",
                                 "Invalid argument", "endpoint",   "Input/output", "Resource temporarily"};

struct StepName
{
    Step step;
    const char *name;
};
constexpr std::array kQuestions{StepName{Step::standard, "Default"}, StepName{Step::attributes, "Attributes"},
                                StepName{Step::ppd, "PPD"}};
constexpr std::array kJobSteps{StepName{Step::create, "Create"}, StepName{Step::send, "Send"},
                               StepName{Step::cancel, "Cancel"}};

struct ModeName
{
    Mode mode;
    const char *name;
};
constexpr std::array kModes{ModeName{Mode::rubbishInTheAnswer, "RubbishInTheAnswer"},
                            ModeName{Mode::rubbish, "Rubbish"},
                            ModeName{Mode::halfAnAnswer, "HalfAnAnswer"},
                            ModeName{Mode::close, "Close"},
                            ModeName{Mode::tooShortALength, "TooShortALength"},
                            ModeName{Mode::negativeLength, "NegativeLength"},
                            ModeName{Mode::silence, "Silence"},
                            ModeName{Mode::drip, "Drip"},
                            ModeName{Mode::endlessDrip, "EndlessDrip"},
                            ModeName{Mode::endlessHeaders, "EndlessHeaders"},
                            ModeName{Mode::endlessLine, "EndlessLine"},
                            ModeName{Mode::endlessContinue, "EndlessContinue"},
                            ModeName{Mode::endlessAnswer, "EndlessAnswer"},
                            ModeName{Mode::endlessBody, "EndlessBody"},
                            ModeName{Mode::nesting, "Nesting"},
                            ModeName{Mode::redirect, "Redirect"},
                            ModeName{Mode::password, "Password"},
                            ModeName{Mode::upgrade, "Upgrade"},
                            ModeName{Mode::error, "Error"},
                            ModeName{Mode::refusal, "Refusal"}};

void PrintTo(const StepName &step, std::ostream *out) { *out << step.name; }
void PrintTo(const ModeName &mode, std::ostream *out) { *out << mode.name; }

using Fault = std::tuple<StepName, ModeName>;

std::string nameOf(const testing::TestParamInfo<Fault> &info)
{
    return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
}

class Faults : public testing::TestWithParam<Fault>
{
protected:
    static Step step() { return std::get<0>(GetParam()).step; }
    static Mode mode() { return std::get<1>(GetParam()).mode; }
    void begin(const QMap<Step, Mode> &faults)
    {
        m_server = std::make_unique<MisbehavingServer>(faults);
        m_server->adoptEnvironment();
        m_clock.start();
    }
    /// One clean line that names the queue and means something, in time.
    void check(const QString &told) const
    {
        EXPECT_LT(m_clock.elapsed(), kMillisecondsInAll);
        EXPECT_TRUE(told.startsWith("counter: ")) << told.toStdString();
        EXPECT_EQ(foundation::plainLine(told), told);
        for (const char *words : kEmptyWords)
            EXPECT_FALSE(told.contains(words)) << told.toStdString();
    }
    foundation::Or<QString> send() const
    {
        CupsSink sink("counter", std::nullopt, kPatience);
        const auto document = value(Document::open(QN_SOURCE_DIR "/examples/documents/invoice.txt"));
        return sink.submit({document, "invoice", 1, {}, {}}, [](qint64, qint64) {}, {});
    }

    void TearDown() override { EXPECT_EQ(m_server->visitsToBystander(), 0); } // wherever it was sent

    std::unique_ptr<MisbehavingServer> m_server;
    QElapsedTimer m_clock;
};

class FaultsWhileLooking : public Faults
{};

TEST_P(FaultsWhileLooking, EndWithASentence)
{
    begin({{step(), mode()}});
    const auto found = findQueue({"counter", {}}, {}, kPatience);
    if (step() == Step::ppd && mode() == Mode::tooShortALength) {
        EXPECT_TRUE(found); // a file that is whole by the server's own account
        return;
    }
    check(sentence(found));
    EXPECT_TRUE(m_server->wasAsked(step()));
}

INSTANTIATE_TEST_SUITE_P(At, FaultsWhileLooking,
                         testing::Combine(testing::ValuesIn(kQuestions), testing::ValuesIn(kModes)), nameOf);

// A file has no end of its own, unlike the other answers.
INSTANTIATE_TEST_SUITE_P(AtAFile, FaultsWhileLooking,
                         testing::Values(Fault{{Step::ppd, "PPD"}, {Mode::hugeLength, "HugeLength"}}), nameOf);

// Numbers that the library's enumerations have no room for.
INSTANTIATE_TEST_SUITE_P(InTheStatus, FaultsWhileLooking,
                         testing::Values(Fault{{Step::standard, "Default"}, {Mode::unknownStatus, "UnknownStatus"}},
                                         Fault{{Step::ppd, "PPD"}, {Mode::unknownHttpStatus, "UnknownHttpStatus"}}),
                         nameOf);

class FaultsOfThePPD : public Faults
{};

TEST_P(FaultsOfThePPD, AreForgottenWhenTheServerIsWellAgain)
{
    begin({{step(), mode()}});
    EXPECT_FALSE(findQueue({"counter", {}}, {}, kPatience));
    m_server->mend();
    const auto queue = value(findQueue({"counter", {}}, {}, kPatience));
    ASSERT_TRUE(queue.ppd);
    const auto ppd = value(PPDDocument::open(queue.ppd->path));
    EXPECT_TRUE(ppd->hasOption("QnReversal")); // in the last part of the file
    EXPECT_TRUE(ppd->hasOption("QnMedia"));
}

INSTANTIATE_TEST_SUITE_P(At, FaultsOfThePPD,
                         testing::Values(Fault{{Step::ppd, "PPD"}, {Mode::halfAnAnswer, "HalfAnAnswer"}},
                                         Fault{{Step::ppd, "PPD"}, {Mode::rubbishInTheAnswer, "RubbishInTheAnswer"}},
                                         Fault{{Step::ppd, "PPD"}, {Mode::hugeLength, "HugeLength"}},
                                         Fault{{Step::ppd, "PPD"}, {Mode::endlessBody, "EndlessBody"}}),
                         nameOf);

class FaultsWhilePrinting : public Faults
{};

/// A job may be left where the server was asked for one and did not refuse, and did not confirm that it is gone.
TEST_P(FaultsWhilePrinting, NeverCountAsPrintedAndSayWhatMayBeLeft)
{
    begin(step() == Step::cancel ? QMap<Step, Mode>{{Step::send, Mode::close}, {Step::cancel, mode()}}
                                 : QMap<Step, Mode>{{step(), mode()}});
    const QString told = sentence(send());
    check(told);
    EXPECT_TRUE(m_server->wasAsked(step()));
    const bool isRefused = mode() == Mode::refusal || mode() == Mode::error || mode() == Mode::password;
    const bool mayBeLeft = step() == Step::cancel || (step() == Step::create && !isRefused);
    EXPECT_EQ(told.endsWith(kLook), mayBeLeft) << told.toStdString();
    EXPECT_EQ(m_server->wasAsked(Step::cancel), step() != Step::create);
}

INSTANTIATE_TEST_SUITE_P(At, FaultsWhilePrinting,
                         testing::Combine(testing::ValuesIn(kJobSteps), testing::ValuesIn(kModes)), nameOf);

/// An answer says itself where it ends.
TEST(AnAnswer, CountsWhenItIsWholeWhateverItsLengthIsSaidToBe)
{
    for (const StepName &step : {kQuestions[0], kQuestions[1], kJobSteps[0], kJobSteps[1]}) {
        const MisbehavingServer server({{step.step, Mode::hugeLength}});
        server.adoptEnvironment();
        CupsSink sink("counter", std::nullopt, kPatience);
        const auto document = value(Document::open(QN_SOURCE_DIR "/examples/documents/invoice.txt"));
        EXPECT_EQ(value(sink.submit({document, "invoice", 1, {}, {}}, [](qint64, qint64) {}, {})), "counter-7")
            << step.name;
    }
}

TEST(AConversation, SpeaksTheLanguageOfTheDialog)
{
    const MisbehavingServer server({{Step::standard, Mode::rubbish}});
    server.adoptEnvironment();
    setConversationLanguage("de_AT");
    EXPECT_EQ(sentence(findQueue({"counter", {}}, {}, kPatience)),
              "counter: der CUPS-Server hat keine richtige Antwort gegeben");
}

TEST(AConversation, EndsAtOnceWhenItIsStopped)
{
    const MisbehavingServer server({{Step::standard, Mode::endlessContinue}});
    server.adoptEnvironment();
    std::stop_source stop;
    std::jthread person([&] {
        while (!server.wasAsked(Step::standard))
            std::this_thread::sleep_for(1ms);
        stop.request_stop();
    });
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(sentence(findQueue({"counter", {}}, stop.get_token())), "counter: stopped");
    EXPECT_LT(clock.elapsed(), 10000); // a third of its patience
}

TEST(AConversation, IsLedByAProcessThatIsGoneAfterwards)
{
    const MisbehavingServer server({});
    server.adoptEnvironment();
    ASSERT_TRUE(findQueue({"counter", {}}, {}, kPatience));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1); // no child is left, not even a dead one
    EXPECT_EQ(errno, ECHILD);
}

TEST(AConversation, SaysThatItCannotBegin)
{
    setConversationProgram("/no/such/program");
    EXPECT_EQ(sentence(findQueue({"counter", {}}, {}, kPatience)),
              "counter: no process can be started: No such file or directory");
    setConversationProgram(QN_PROGRAM);
}

/// One may name another host as the place of its printer, of the printer's PPD and of a job: that host is not asked.
TEST(AServerThatNamesAnother, IsTheOnlyOneThatIsAsked)
{
    const MisbehavingServer server({{Step::standard, Mode::namesAnother},
                                    {Step::attributes, Mode::namesAnother},
                                    {Step::create, Mode::namesAnother}});
    server.adoptEnvironment();
    const auto queue = value(findQueue({"counter", {}}, {}, kPatience));
    ASSERT_TRUE(queue.ppd);
    CupsSink sink("counter", queue.ppd, kPatience);
    const auto document = value(Document::open(QN_SOURCE_DIR "/examples/documents/invoice.txt"));
    EXPECT_EQ(value(sink.submit({document, "invoice", 1, {}, {}}, [](qint64, qint64) {}, {})), "counter-7");
    for (const Step step : {Step::attributes, Step::ppd, Step::create, Step::send})
        EXPECT_TRUE(server.wasAsked(step));
    EXPECT_EQ(server.visitsToBystander(), 0);
}

TEST(AWellBehavedServer, IsFoundAndPrintedOn)
{
    const MisbehavingServer server({});
    server.adoptEnvironment();
    const auto queue = value(findQueue({"counter", {}}, {}, kPatience));
    EXPECT_EQ(queue.name, "counter");
    ASSERT_TRUE(queue.ppd);
    CupsSink sink("counter", queue.ppd, kPatience);
    const auto document = value(Document::open(QN_SOURCE_DIR "/examples/documents/invoice.txt"));
    EXPECT_EQ(value(sink.submit({document, "invoice", 1, {}, {}}, [](qint64, qint64) {}, {})), "counter-7");
    EXPECT_TRUE(server.wasAsked(Step::send));
    EXPECT_FALSE(server.wasAsked(Step::cancel));
}

} // namespace
