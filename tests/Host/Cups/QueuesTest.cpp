// What a CUPS server says of its queues, and a job that finds another queue than the one it was made for.
#include "Cups/CupsSink.h"
#include "CupsServer.h"
#include "MisbehavingServer.h"
#include "Print.h"
#include "Results.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace host;
using foundation::Problem;
using support::CupsServer;
using support::MisbehavingServer;
using support::sentence;
using support::value;
using Step = MisbehavingServer::Step;
using Mode = MisbehavingServer::Mode;

namespace {

foundation::Or<QString> sendTo(const QString &queue, const std::optional<CachedPPD> &ppd = std::nullopt)
{
    const auto document = value(Document::open(QN_SOURCE_DIR "/examples/documents/ticket.pdf"));
    return CupsSink(queue, ppd).submit({document, "ticket", 1, {}, {}}, [](qint64, qint64) {}, {});
}

class QueuesOfTheServer : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto problem = m_server.start();
        ASSERT_FALSE(problem) << problem->toStdString();
        m_server.adoptEnvironment();
        ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
    }
    static std::vector<QueueEntry> entries() { return value(allQueues({})).queues; }
    static QueueEntry entry(const QString &name)
    {
        const auto all = entries();
        const auto found = std::ranges::find(all, name, &QueueEntry::name);
        return found == all.end() ? QueueEntry() : *found;
    }

    CupsServer m_server;
};

TEST_F(QueuesOfTheServer, AreSortedByNameWhateverTheLetterCase)
{
    for (const char *name : {"Dock", "Äb", "äa", "bar"})
        ASSERT_TRUE(m_server.addPlainQueue(name, "file:///dev/null"));
    QStringList names;
    for (const QueueEntry &each : entries())
        names.append(each.name);
    EXPECT_EQ(names, QStringList({"bar", "counter", "Dock", "äa", "Äb"}));
}

TEST_F(QueuesOfTheServer, AreDescribedInTheWordsOfTheServer)
{
    ASSERT_EQ(m_server.run("lpadmin", {"-p", "counter", "-D", "Invoices", "-L", "Shop floor 1"}), 0);
    ASSERT_TRUE(m_server.addPlainQueue("plain", "file:///dev/null"));
    ASSERT_EQ(m_server.run("lpadmin", {"-p", "plain", "-D", "plain"}), 0);
    ASSERT_EQ(m_server.run("cupsreject", {"plain"}), 0);
    EXPECT_EQ(entry("counter").description, "Invoices");
    EXPECT_EQ(entry("counter").location, "Shop floor 1");
    EXPECT_TRUE(entry("counter").takesJobs);
    EXPECT_EQ(entry("plain").name, "plain");
    EXPECT_EQ(entry("plain").description, ""); // which says no more than the name
    EXPECT_FALSE(entry("plain").takesJobs);
}

TEST_F(QueuesOfTheServer, InAClassHaveAPPDTogetherWhereOneHasOne)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "file:///dev/null"));
    for (const auto &[member, name] :
         {std::pair("counter", "hall"), std::pair("plain", "hall"), std::pair("plain", "yard")})
        ASSERT_EQ(m_server.run("lpadmin", {"-p", member, "-c", name}), 0);
    const auto hall = value(findQueue({"hall", {}}, {}));
    ASSERT_TRUE(hall.ppd);
    EXPECT_TRUE(value(PPDDocument::open(hall.ppd->path))->hasOption("QnMedia"));
    EXPECT_FALSE(value(findQueue({"yard", {}}, {})).ppd);
}

TEST_F(QueuesOfTheServer, PrintTheCopiesThatWereAskedForWhateverTheirOwnDefault)
{
    ASSERT_EQ(m_server.run("lpadmin", {"-p", "counter", "-o", "copies-default=3"}), 0);
    EXPECT_EQ(value(sendTo("counter")), "counter-1");
    EXPECT_EQ(m_server.record(1)["copies"], "1");
}

TEST_F(QueuesOfTheServer, PrintNothingByAPPDThatIsNotTheirsAnyMore)
{
    const auto queue = value(findQueue({"counter", {}}, {}));
    ASSERT_TRUE(queue.ppd);
    ASSERT_EQ(m_server.run("lpadmin", {"-x", "counter"}), 0);
    EXPECT_EQ(sentence(sendTo("counter", queue.ppd)), "counter: no such queue");
    ASSERT_TRUE(m_server.addPlainQueue("counter", "file:///dev/null"));
    const auto sent = sendTo("counter", queue.ppd);
    EXPECT_EQ(sentence(sent), "counter: the printer's description has changed meanwhile; nothing was printed");
    EXPECT_EQ(sent.problem().kind, Problem::Kind::outdated);
    EXPECT_EQ(m_server.openJobs(), "");
}

TEST_F(QueuesOfTheServer, AreNotThereWhenTheServerIsNot)
{
    const auto queue = value(findQueue({"counter", {}}, {}));
    m_server.stop();
    EXPECT_EQ(sentence(sendTo("counter")), "counter: no CUPS server answers");
    EXPECT_EQ(sentence(sendTo("counter", queue.ppd)), "counter: no CUPS server answers");
}

TEST(AServer, ThatGivesNoAnswerHasNoJobEither)
{
    const MisbehavingServer server({{Step::standard, Mode::rubbish}});
    server.adoptEnvironment();
    EXPECT_EQ(sentence(sendTo("counter")), "counter: the CUPS server gave no proper answer"); // so that nobody looks
}

TEST(AQueueWithoutAPPD, HasThePapersThatTheServerOffers)
{
    const MisbehavingServer server({{Step::ppd, Mode::notFound}});
    server.adoptEnvironment();
    qputenv("LC_ALL", "C"); // the library says them in the language of the system
    const auto queue = value(findQueue({"counter", {}}, {}));
    EXPECT_FALSE(queue.ppd);
    ASSERT_EQ(queue.papers.size(), 3U);
    const PaperEntry &ticket = queue.papers[0]; // by their size, the smallest first
    EXPECT_EQ(ticket.name, "om_ticket_80x200mm");
    EXPECT_EQ(ticket.text, "80 x 200 mm");
    EXPECT_NEAR(ticket.size.width, 80 / 25.4 * 72, 0.001);
    EXPECT_NEAR(ticket.size.height, 200 / 25.4 * 72, 0.001);
    EXPECT_EQ(queue.papers[1].name, "iso_a4_210x297mm");
    EXPECT_EQ(queue.papers[2].name, "na_letter_8.5x11in");
}

TEST(AQueueWithoutAPPD, HasTheChoicesThatTheServerOffers)
{
    const MisbehavingServer server({{Step::ppd, Mode::notFound}});
    server.adoptEnvironment();
    const auto queue = value(findQueue({"counter", {}}, {}));
    ASSERT_EQ(queue.offers.size(), 3U);
    EXPECT_EQ(queue.offers[0].word, "sides");
    EXPECT_EQ(queue.offers[0].choices, QStringList({"one-sided", "two-sided-long-edge", "tumbling"}));
    EXPECT_EQ(queue.offers[0].standard, "two-sided-long-edge");
    EXPECT_EQ(queue.offers[1].word, "print-quality");
    EXPECT_EQ(queue.offers[1].choices, QStringList({"4", "5"}));
    EXPECT_EQ(queue.offers[1].standard, ""); // it does not say
    EXPECT_EQ(queue.offers[2].word, "print-color-mode");
    EXPECT_EQ(queue.offers[2].choices, QStringList("monochrome"));
    EXPECT_EQ(queue.standardPaper, "na_letter_8.5x11in");
}

TEST_F(QueuesOfTheServer, HaveOffersOnlyInPlaceOfAPPD)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "file:///dev/null"));
    const auto offers = value(findQueue({"plain", {}}, {})).offers;
    ASSERT_EQ(offers.size(), 1U);
    EXPECT_EQ(offers[0].word, "orientation-requested");
    EXPECT_EQ(offers[0].choices, QStringList({"3", "4", "5", "6"}));
    EXPECT_EQ(value(findQueue({"counter", {}}, {})).offers.size(), 0U);
}

TEST(APPDOnTheServer, ThatCannotBeComparedStopsTheJob)
{
    const MisbehavingServer server({{Step::ppd, Mode::error}});
    server.adoptEnvironment();
    const auto sent = sendTo("counter", CachedPPD{"counter.ppd", 0, "digest"});
    EXPECT_EQ(sentence(sent), "counter: the CUPS server refuses it (Internal Server Error)");
    EXPECT_NE(sent.problem().kind, Problem::Kind::outdated);
    EXPECT_FALSE(server.wasAsked(Step::create));
}

TEST(APPDOnTheServer, ThatCannotBeUsedIsNotSpokenOfAsAFileOfOurs)
{
    const MisbehavingServer server({{Step::ppd, Mode::rubbishInTheAnswer}});
    server.adoptEnvironment();
    const QString told = sentence(findQueue({"counter", {}}, {}));
    EXPECT_TRUE(told.startsWith("counter: the PPD on the server can't be used: not a PPD file")) << told.toStdString();
    EXPECT_FALSE(told.contains('/')) << told.toStdString();
}

} // namespace
