// One job on its way to a real CUPS server, stopped or broken off in the middle.
#include "CupsServer.h"
#include "Jobs/Job.h"
#include "Print.h"

#include <QCoreApplication>
#include <QFile>

#include <gtest/gtest.h>

using namespace host;
using support::CupsServer;

namespace {

constexpr int kPart = 64 * 1024;
constexpr int kParts = 400;

class Sending : public testing::Test
{
protected:
    void SetUp() override { begin({}); }
    void begin(const CupsServer::Setup &setup)
    {
        const auto problem = m_server.start(setup);
        ASSERT_FALSE(problem) << problem->toStdString();
        m_server.adoptEnvironment();
        ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
        QFile file(m_server.path("tmp/large.pdf"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("%PDF-1.4\n");
        for (int i = 0; i < kParts; ++i)
            file.write(QByteArray(kPart, 'x'));
        ASSERT_TRUE(file.flush());
        QString error;
        m_document = Document::open(file.fileName(), &error);
        ASSERT_TRUE(m_document) << error.toStdString();
    }
    JobSink::Result send(const JobProgress &progress)
    {
        CupsSink sink("counter", std::nullopt);
        return sink.submit({*m_document, "large", 1, {}, {{"QnDensity", "D9"}}}, progress);
    }
    static bool goOn(qint64, qint64) { return true; }

    CupsServer m_server;
    std::unique_ptr<Document> m_document;
};

TEST_F(Sending, TellsHowFarItIs)
{
    std::vector<qint64> steps;
    const auto result = send([&](qint64 done, qint64 total) {
        EXPECT_EQ(total, m_document->size());
        steps.push_back(done);
        return true;
    });
    ASSERT_TRUE(result.done) << result.sentence.toStdString();
    EXPECT_EQ(result.sentence, "counter-1");
    EXPECT_GT(steps.size(), kParts);
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_EQ(steps.back(), m_document->size());
    EXPECT_EQ(m_server.record(1)["size"], QString::number(m_document->size()));
}

TEST_F(Sending, CancelsTheJobWhenItIsStoppedAndLeavesNothingInTheSpool)
{
    const auto result = send([](qint64 done, qint64 total) { return done < total / 2; });
    EXPECT_FALSE(result.done);
    EXPECT_EQ(result.sentence, "counter: stopped");
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_EQ(m_server.spooled(), QStringList());
    EXPECT_EQ(m_server.recordCount(), 0);
    EXPECT_TRUE(send(goOn).done); // and the next one is none the worse for it
    EXPECT_EQ(m_server.record(2)["title"], "large");
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(Sending, StopsWhileTheServerKeepsSilent)
{
    bool isFrozen = false;
    int asked = 0;
    const auto result = send([&](qint64 done, qint64 total) {
        if (done > total / 2 && !std::exchange(isFrozen, true))
            m_server.freeze();
        return !isFrozen || ++asked < 3;
    });
    EXPECT_FALSE(result.done);
    EXPECT_TRUE(result.sentence.startsWith("counter: stopped")) << result.sentence.toStdString();
    m_server.thaw();
    EXPECT_EQ(m_server.recordCount(), 0);
}

TEST_F(Sending, SaysWhatMayBeLeftWhenTheServerDiesAndPrintsNothingTwice)
{
    bool isDead = false;
    const auto result = send([&](qint64 done, qint64 total) {
        if (done > total / 2 && !std::exchange(isDead, true))
            m_server.kill();
        return true;
    });
    EXPECT_FALSE(result.done);
    EXPECT_TRUE(result.sentence.startsWith("counter: ")) << result.sentence.toStdString();
    EXPECT_TRUE(result.sentence.endsWith("job counter-1 may still be there, so look before you print again"))
        << result.sentence.toStdString();
    const auto problem = m_server.restart();
    ASSERT_FALSE(problem) << problem->toStdString();
    const auto again = send(goOn);
    ASSERT_TRUE(again.done) << again.sentence.toStdString();
    EXPECT_FALSE(m_server.record(again.sentence.section('-', 1).toInt()).isEmpty());
    EXPECT_EQ(m_server.recordCount(), 1); // half a document is not printed, not even later
}

class SendingToAFullSpool : public Sending
{
protected:
    void SetUp() override { begin({.largestFile = 1024}); }
};

TEST_F(SendingToAFullSpool, SaysSoAndLeavesNothingThere)
{
    const auto result = send(goOn);
    EXPECT_FALSE(result.done);
    EXPECT_TRUE(result.sentence.startsWith("counter: ")) << result.sentence.toStdString();
    EXPECT_FALSE(result.sentence.contains("may still be there")) << result.sentence.toStdString();
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_EQ(m_server.spooled(), QStringList());
    EXPECT_EQ(m_server.recordCount(), 0);
}

} // namespace
