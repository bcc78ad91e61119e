// One job on its way to a real CUPS server, stopped or broken off in the middle.
#include "Cups/CupsSink.h"
#include "CupsServer.h"
#include "Print.h"
#include "Results.h"

#include <QCoreApplication>
#include <QFile>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace host;
using support::CupsServer;
using support::sentence;
using support::value;

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
        m_document = value(Document::open(file.fileName()));
    }
    foundation::Or<QString> send(const JobProgress &progress = [](qint64, qint64) {})
    {
        CupsSink sink("counter", std::nullopt);
        return sink.submit({m_document, "large", 1, {}, {{"QnDensity", "D9"}}}, progress, m_stop.get_token());
    }
    /// Does something once, when half of the document has gone.
    static JobProgress atHalf(std::function<void()> act)
    {
        return [act, isDone = false](qint64 done, qint64 total) mutable {
            if (done >= total / 2 && !std::exchange(isDone, true))
                act();
        };
    }

    CupsServer m_server;
    std::shared_ptr<Document> m_document;
    std::stop_source m_stop;
};

TEST_F(Sending, TellsHowFarItIs)
{
    std::vector<qint64> steps;
    const auto result = send([&](qint64 done, qint64 total) {
        EXPECT_EQ(total, m_document->size());
        steps.push_back(done);
    });
    EXPECT_EQ(value(result), "counter-1");
    EXPECT_GT(steps.size(), kParts);
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_EQ(steps.back(), m_document->size());
    EXPECT_EQ(m_server.record(1)["size"], QString::number(m_document->size()));
}

TEST_F(Sending, CancelsTheJobWhenItIsStoppedAndLeavesNothingInTheSpool)
{
    EXPECT_EQ(sentence(send(atHalf([this] { m_stop.request_stop(); }))), "counter: cancelled; nothing was printed");
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_EQ(m_server.spooled(), QStringList());
    EXPECT_EQ(m_server.recordCount(), 0);
    m_stop = {};
    EXPECT_EQ(value(send()), "counter-2"); // and the next one is none the worse for it
    EXPECT_EQ(m_server.record(2)["title"], "large");
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(Sending, StopsWhileTheServerKeepsSilent)
{
    std::atomic<qint64> sent = 0;
    std::jthread person;
    const auto stopWhenItStandsStill = [&] {
        for (qint64 before = -1; before != sent; QThread::msleep(300))
            before = sent;
        EXPECT_LT(sent, m_document->size());
        m_stop.request_stop();
    };
    const auto freezeAtHalf = atHalf([&] {
        m_server.freeze();
        person = std::jthread(stopWhenItStandsStill);
    });
    const QString problem = sentence(send([&](qint64 done, qint64 total) {
        sent = done;
        freezeAtHalf(done, total);
    }));
    EXPECT_TRUE(problem.startsWith("counter: cancelled")) << problem.toStdString();
    m_server.thaw();
    EXPECT_EQ(m_server.recordCount(), 0);
}

TEST_F(Sending, SaysWhatMayBeLeftWhenTheServerDiesAndPrintsNothingTwice)
{
    const QString told = sentence(send(atHalf([this] { m_server.kill(); })));
    EXPECT_TRUE(told.startsWith("counter: ")) << told.toStdString();
    EXPECT_TRUE(told.endsWith("job counter-1 may still be there, so look before you print again"))
        << told.toStdString();
    const auto problem = m_server.restart();
    ASSERT_FALSE(problem) << problem->toStdString();
    const QString again = value(send());
    EXPECT_FALSE(m_server.record(again.section('-', 1).toInt()).isEmpty());
    EXPECT_EQ(m_server.recordCount(), 1); // half a document is not printed, not even later
}

class SendingToAFullSpool : public Sending
{
protected:
    void SetUp() override { begin({.largestFile = 1024}); }
};

TEST_F(SendingToAFullSpool, SaysSoAndLeavesNothingThere)
{
    const QString told = sentence(send());
    EXPECT_TRUE(told.startsWith("counter: ")) << told.toStdString();
    EXPECT_FALSE(told.contains("may still be there")) << told.toStdString();
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_EQ(m_server.spooled(), QStringList());
    EXPECT_EQ(m_server.recordCount(), 0);
}

} // namespace
