// The program while a server misbehaves: a signal ends it soon, at every step, and words of the server do no harm.
#include "MisbehavingServer.h"
#include "Print.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

using support::MisbehavingServer;
using Step = MisbehavingServer::Step;
using Mode = MisbehavingServer::Mode;

namespace {

constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";
constexpr int kMilliseconds = 20000;
constexpr int kSoon = 2000;

struct StepRow
{
    const char *name;
    Step step;
    bool mayLeaveAJob;
};
constexpr std::array kSteps{StepRow{"Default", Step::standard, false}, StepRow{"Attributes", Step::attributes, false},
                            StepRow{"PPD", Step::ppd, false},          StepRow{"Create", Step::create, true},
                            StepRow{"Send", Step::send, true},         StepRow{"Cancel", Step::cancel, true}};

struct ModeRow
{
    const char *name;
    Mode mode;
};
constexpr std::array kModes{ModeRow{"Silence", Mode::silence}, ModeRow{"EndlessContinue", Mode::endlessContinue},
                            ModeRow{"EndlessDrip", Mode::endlessDrip}};

struct SignalRow
{
    const char *name;
    int number;
};
constexpr std::array kSignals{SignalRow{"Interrupt", SIGINT}, SignalRow{"Terminate", SIGTERM},
                              SignalRow{"HangUp", SIGHUP}};

void PrintTo(const StepRow &row, std::ostream *out) { *out << row.name; }
void PrintTo(const ModeRow &row, std::ostream *out) { *out << row.name; }
void PrintTo(const SignalRow &row, std::ostream *out) { *out << row.name; }

/// Whether a program has come so far that it ends in its own way.
bool catches(const QProcess &program, int number)
{
    QFile status(QString("/proc/%1/status").arg(program.processId()));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("SigCgt:"))
            return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (number - 1)) & 1;
    return false;
}

class Interrupted : public testing::TestWithParam<std::tuple<StepRow, ModeRow, SignalRow>>
{};

TEST_P(Interrupted, EndsSoonAndSaysWhatMayBeLeft)
{
    const auto &[step, mode, number] = GetParam();
    const bool cannotCancel = step.step == Step::cancel;
    const MisbehavingServer server(cannotCancel ? QMap<Step, Mode>{{Step::send, mode.mode}, {Step::cancel, mode.mode}}
                                                : QMap<Step, Mode>{{step.step, mode.mode}});
    const Step last = cannotCancel ? Step::send : step.step;
    QProcess program;
    program.setProcessEnvironment(server.environment());
    program.start(QN_PROGRAM, {"--no-dialog", "-d", "counter", kTicket});
    ASSERT_TRUE(QTest::qWaitFor(
        [&, caught = number.number] { return server.wasAsked(last) && catches(program, caught); }, kMilliseconds));
    QElapsedTimer clock;
    clock.start();
    ::kill(static_cast<pid_t>(program.processId()), number.number);
    ASSERT_TRUE(program.waitForFinished(kMilliseconds));
    EXPECT_LT(clock.elapsed(), kSoon); // nothing else runs beside these tests
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    const QString said = QString::fromUtf8(program.readAllStandardError());
    EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
    EXPECT_TRUE(said.contains("cancelled")) << said.toStdString();
    const bool isGone = server.wasAsked(Step::cancel) && !cannotCancel;
    EXPECT_EQ(isGone || said.contains("look before you print again"), step.mayLeaveAJob) << said.toStdString();
    EXPECT_EQ(program.readAllStandardOutput(), "");
}

INSTANTIATE_TEST_SUITE_P(At, Interrupted,
                         testing::Combine(testing::ValuesIn(kSteps), testing::ValuesIn(kModes),
                                          testing::ValuesIn(kSignals)),
                         [](const auto &row) {
                             return std::string(std::get<0>(row.param).name) + std::get<1>(row.param).name +
                                    std::get<2>(row.param).name;
                         });

TEST(HangingUp, IsIgnoredWhereItWasIgnoredBefore)
{
    MisbehavingServer server({{Step::standard, Mode::silence}});
    QProcess program;
    program.setProcessEnvironment(server.environment());
    program.setChildProcessModifier([] { std::signal(SIGHUP, SIG_IGN); });
    program.start(QN_PROGRAM, {"--no-dialog", "-d", "counter", kTicket});
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.wasAsked(Step::standard); }, kMilliseconds));
    ::kill(static_cast<pid_t>(program.processId()), SIGHUP);
    ASSERT_TRUE(program.waitForFinished(kMilliseconds));
    EXPECT_EQ(program.readAllStandardError(), "qnprint: counter: the CUPS server does not answer\n"); // to its own end
}

class InterruptedWindow : public testing::TestWithParam<SignalRow>
{};

TEST_P(InterruptedWindow, Closes)
{
    const MisbehavingServer server({{Step::standard, Mode::silence}});
    QProcess program;
    auto environment = server.environment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    program.setProcessEnvironment(environment);
    program.start(QN_PROGRAM, {"-d", "counter", kTicket});
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.wasAsked(Step::standard) && catches(program, GetParam().number); },
                                kMilliseconds));
    ::kill(static_cast<pid_t>(program.processId()), GetParam().number);
    ASSERT_TRUE(program.waitForFinished(kMilliseconds));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
}

INSTANTIATE_TEST_SUITE_P(By, InterruptedWindow, testing::ValuesIn(kSignals),
                         [](const auto &row) { return std::string(row.param.name); });

/// What a terminal would take for more than words never reaches it.
TEST(Words, OfAServerAreOneCleanLine)
{
    for (const Step step : {Step::standard, Step::create, Step::send}) {
        const MisbehavingServer server({{step, Mode::refusal}});
        QProcess program;
        program.setProcessEnvironment(server.environment());
        program.start(QN_PROGRAM, {"--no-dialog", "-d", "counter", kTicket});
        ASSERT_TRUE(program.waitForFinished(kMilliseconds));
        const QString said = QString::fromUtf8(program.readAllStandardError());
        EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
        EXPECT_FALSE(said.contains('\x1b'));
        EXPECT_FALSE(said.contains(QChar(0x202e)));
        EXPECT_TRUE(said.contains("printed as %2 qnprint: a second line and more")) << said.toStdString();
    }
}

TEST(Words, OfATitleAreOneCleanLine)
{
    QTemporaryDir out;
    QProcess program;
    program.start(QN_PROGRAM, {"--no-dialog", "--ppd", QN_SOURCE_DIR "/examples/ppd/full.ppd", "--output", out.path(),
                               "--title", "red \x1b[31m\nqnprint: more", kTicket});
    ASSERT_TRUE(program.waitForFinished(kMilliseconds));
    const QByteArray said = program.readAllStandardOutput();
    EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
    EXPECT_FALSE(said.contains('\x1b'));
}

TEST(Words, OfAFileNameAreOneCleanTitle)
{
    QTemporaryDir folder;
    const QString odd = folder.filePath("red \x1b[31m\nmore.pdf");
    ASSERT_TRUE(QFile::copy(kTicket, odd));
    QProcess program;
    program.start(QN_PROGRAM, {"--no-dialog", "--ppd", QN_SOURCE_DIR "/examples/ppd/full.ppd", "--output",
                               folder.filePath("out"), odd});
    ASSERT_TRUE(program.waitForFinished(kMilliseconds));
    const auto tickets = QDir(folder.filePath("out")).entryInfoList({"*.json"});
    ASSERT_EQ(tickets.size(), 1);
    QFile ticket(tickets[0].filePath());
    ASSERT_TRUE(ticket.open(QIODevice::ReadOnly));
    const QString title = QJsonDocument::fromJson(ticket.readAll())["title"].toString();
    EXPECT_EQ(title, "red [31m more.pdf");
}

struct Option
{
    const char *text;
    bool isTaken;
};

TEST(Options, AreOneLineEach)
{
    for (const auto &[text, isTaken] :
         {Option{"wrap=a", true}, Option{"wrap=a b", true}, Option{"wrap=a\nDest third y=1", false},
          Option{"wr\tap=1", false}, Option{"wr ap=1", false}, Option{"wr\"ap=1", false},
          Option{"wrap=\x1b[31m", false}}) {
        QTemporaryDir out;
        QProcess program;
        program.start(QN_PROGRAM, {"--no-dialog", "--ppd", QN_SOURCE_DIR "/examples/ppd/full.ppd", "--output",
                                   out.path(), "-o", text, kTicket});
        ASSERT_TRUE(program.waitForFinished(kMilliseconds));
        EXPECT_EQ(program.exitCode(), isTaken ? 0 : 2) << text;
        EXPECT_EQ(program.readAllStandardError().count('\n'), isTaken ? 0 : 1) << text;
    }
}

TEST(TheProgram, SaysNothingOfARuntimeFolderThatCannotBeUsed)
{
    QTemporaryDir out;
    QProcess program;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("XDG_RUNTIME_DIR", "/proc/none");
    program.setProcessEnvironment(environment);
    program.start(QN_PROGRAM,
                  {"--no-dialog", "--ppd", QN_SOURCE_DIR "/examples/ppd/full.ppd", "--output", out.path(), kTicket});
    ASSERT_TRUE(program.waitForFinished(kMilliseconds));
    EXPECT_EQ(program.readAllStandardError(), "");
}

} // namespace
