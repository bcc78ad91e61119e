// The process that talks with the server, seen from the dialog: how it begins, what it may use, how it ends.
#include "Cups/Conversation.h"
#include "Cups/Queues.h"

#include "MisbehavingServer.h"
#include "Print.h"
#include "Results.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace host;
using namespace std::chrono_literals;
using foundation::Problem;
using support::MisbehavingServer;
using support::sentence;
using support::value;
using Step = MisbehavingServer::Step;
using Mode = MisbehavingServer::Mode;

namespace {

constexpr auto kUnread = "the CUPS server's answer can't be read";
constexpr qint64 kMebibyte = 1024 * 1024;
constexpr quint64 kSignalsOfTheLibrary = 0x180000000; // the two before SIGRTMIN, which nobody else has

QByteArray processFile(qint64 process, const QString &name)
{
    QFile file(QString("/proc/%1/%2").arg(process).arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The process that the thread has started and not yet waited for; 0 without one.
qint64 childOf(qint64 thread) { return processFile(::getpid(), QString("task/%1/children").arg(thread)).toLongLong(); }

/// A line of /proc/…/limits: the limit that holds; 0 for one that is not there, -1 for none.
qint64 limitOf(qint64 process, const QByteArray &name)
{
    for (const QByteArray &line : processFile(process, "limits").split('\n'))
        if (line.startsWith(name)) {
            const QByteArray limit = line.mid(name.size()).simplified().split(' ').first();
            return limit == "unlimited" ? -1 : limit.toLongLong();
        }
    return 0;
}

/// Leaves ones where the next calls have what they have not set.
[[gnu::noinline]] void soilTheStack()
{
    std::array<volatile uchar, 65536> soil;
    for (volatile uchar &each : soil)
        each = 0xff;
}

/// A conversation with a program of the test's own.
class AProgramAtTheOtherEnd : public testing::Test
{
protected:
    void TearDown() override { setConversationProgram(QN_PROGRAM); }
    /// Lines of shell, which begin when the question is read. They write to the dialog; the standard output that they
    /// began with is 3.
    void answerBy(const QByteArray &lines)
    {
        QFile file(m_folder.filePath("program"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\nread -r question\nexec 3>&1 >&0\n" + lines + '\n');
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        file.close();
        setConversationProgram(file.fileName());
    }
    static foundation::Or<QJsonObject> ask() { return converse({{"ask", "queues"}}, {120s}, {}); }
    /// A line that answers, with so many bytes in all.
    static QByteArray answerOf(qint64 bytes)
    {
        const QByteArray end = R"({"answer":{"is":"read"}})";
        return "head -c " + QByteArray::number(bytes - end.size() - 1) + " /dev/zero | tr '\\0' ' '; echo '" + end +
               "'";
    }

    QTemporaryDir m_folder;
};

TEST_F(AProgramAtTheOtherEnd, ThatEndsWithoutAWordGivesAnAnswerThatCannotBeRead)
{
    answerBy("exit 0");
    const auto answer = ask();
    EXPECT_EQ(sentence(answer), kUnread);
    EXPECT_EQ(answer.problem().kind, Problem::Kind::unanswered);
}

TEST_F(AProgramAtTheOtherEnd, MaySayALineOf32MebibytesAndNoMore)
{
    answerBy(answerOf(32 * kMebibyte));
    EXPECT_EQ(value(ask())["is"].toString(), "read");
    answerBy(answerOf(32 * kMebibyte + 1));
    EXPECT_EQ(sentence(ask()), kUnread);
}

TEST_F(AProgramAtTheOtherEnd, HasNeitherTheSignalsNorTheGroupNorTheOutputOfTheDialog)
{
    answerBy(R"(while read -r name value; do
  case $name in SigBlk:) blocked=$value ;; SigIgn:) ignored=$value ;; esac
done </proc/$$/status
set -- $(cat /proc/$$/stat)
echo "{\"answer\":{\"blocked\":\"$blocked\",\"ignored\":\"$ignored\",\"leader\":\"$(($5 - $$))\",\
\"output\":\"$(readlink /proc/$$/fd/3)\"}}")");
    sigset_t all;
    sigset_t before;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_BLOCK, &all, &before);
    for (const int number : {SIGINT, SIGTERM, SIGUSR1})
        std::signal(number, SIG_IGN);
    soilTheStack();
    const auto answer = value(ask());
    for (const int number : {SIGINT, SIGTERM, SIGUSR1})
        std::signal(number, SIG_DFL);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    EXPECT_EQ(answer["blocked"].toString(), "0000000000000000");
    EXPECT_EQ(answer["ignored"].toString().toULongLong(nullptr, 16) & ~kSignalsOfTheLibrary, 0U);
    EXPECT_EQ(answer["leader"].toString(), "0");
    EXPECT_EQ(answer["output"].toString(), "/dev/null");
}

class TheProcess : public testing::Test
{
protected:
    void SetUp() override
    {
        m_server.adoptEnvironment();
        prepareConversation();
        m_process = childOf(::gettid());
        ASSERT_GT(m_process, 0);
    }
    /// Until it has another limit than we, from whom it has its first ones.
    void waitForItsOwn(const QByteArray &limit) const
    {
        while (limitOf(m_process, limit) == limitOf(::getpid(), limit))
            std::this_thread::sleep_for(1ms);
    }

    const MisbehavingServer m_server{{{Step::standard, Mode::silence}}};
    qint64 m_process = 0;
};

TEST_F(TheProcess, IsReadyBeforeTheQuestionAndTakesIt)
{
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), 0); // it waits as well
    std::stop_source stop;
    std::jthread person([&] {
        while (!m_server.wasAsked(Step::standard))
            std::this_thread::sleep_for(1ms);
        EXPECT_EQ(childOf(::getpid()), m_process); // and there is no other one
        stop.request_stop();
    });
    EXPECT_FALSE(findQueue({"counter", {}}, stop.get_token()));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST(AProcess, ThatEndsWhileItWaitsIsReplaced)
{
    const MisbehavingServer server({});
    server.adoptEnvironment();
    prepareConversation();
    ::kill(static_cast<pid_t>(childOf(::gettid())), SIGKILL);
    siginfo_t end{};
    ASSERT_EQ(::waitid(P_ALL, 0, &end, WEXITED | WNOWAIT), 0);
    EXPECT_EQ(value(findQueue({"counter", {}}, {})).name, "counter");
}

TEST_F(TheProcess, HasNoFileOfTheDialog)
{
    const QTemporaryDir folder;
    QFile input(folder.filePath("input"));
    ASSERT_TRUE(input.open(QIODevice::ReadWrite));
    const int before = ::dup(STDIN_FILENO);
    ASSERT_EQ(::dup2(input.handle(), STDIN_FILENO), STDIN_FILENO);
    QStringList files;
    std::stop_source stop;
    std::jthread person([&] {
        while (!m_server.wasAsked(Step::standard))
            std::this_thread::sleep_for(1ms);
        for (const QFileInfo &each :
             QDir(QString("/proc/%1/fd").arg(m_process)).entryInfoList(QDir::Files | QDir::System))
            files.append(each.symLinkTarget());
        stop.request_stop();
    });
    EXPECT_FALSE(findQueue({"counter", {}}, stop.get_token()));
    person.join();
    ::dup2(before, STDIN_FILENO);
    ::close(before);
    EXPECT_TRUE(files.contains("/dev/null")) << files.join(' ').toStdString();
    EXPECT_FALSE(files.contains(input.fileName())) << files.join(' ').toStdString();
}

TEST_F(TheProcess, MayWriteLittleAndLeavesNoCore)
{
    waitForItsOwn("Max file size");
    EXPECT_EQ(limitOf(m_process, "Max file size"), 64 * kMebibyte);
    EXPECT_EQ(limitOf(m_process, "Max core file size"), 0);
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(TheProcess, MayTake200MebibytesBeyondItself)
{
    waitForItsOwn("Max address space");
    const qint64 itself = processFile(m_process, "statm").split(' ').first().toLongLong() * ::sysconf(_SC_PAGESIZE);
    const qint64 beyond = limitOf(m_process, "Max address space") - itself;
    EXPECT_LE(beyond, 200 * kMebibyte);
    EXPECT_GT(beyond, 199 * kMebibyte); // it has taken a little since
}
#endif

} // namespace
