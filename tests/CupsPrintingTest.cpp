// Printing on queues of a real CUPS server; what arrived is read on the driver's side.
#include "CupsServer.h"
#include "Print.h"

#include <QFile>

#include <gtest/gtest.h>

using support::CupsServer;

namespace {

constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";

class CupsPrinting : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto problem = m_server.start();
        ASSERT_FALSE(problem) << problem->toStdString();
        ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"))
            << m_server.log().right(2000).toStdString();
    }
    /// Prints without a window; the exit status.
    int print(const QStringList &arguments)
    {
        return m_server.run(QN_PROGRAM, QStringList{"--no-dialog", "--locale", "de_DE"} + arguments, &m_said);
    }
    CupsServer m_server;
    QByteArray m_said;
};

TEST_F(CupsPrinting, BringsEveryChosenOptionToTheDriver)
{
    ASSERT_EQ(print({"-d",   "counter",
                     "-n",   "2",
                     "-t",   "Ferry ticket",
                     "-o",   "PageSize=RollA4",
                     "-o",   "QnDensity=D9",
                     "-o",   "QnMedia=ThermalCopy",
                     "-o",   "QnRollPrinterCase=On",
                     "-o",   "QnHalftonePattern=Binary",
                     "-o",   "QnReversal=ON",
                     "-o",   "QnBiDiPrint=ON",
                     kTicket}),
              0)
        << m_said.toStdString();
    EXPECT_TRUE(m_said.contains("counter-1"));
    const auto job = m_server.record(1);
    EXPECT_EQ(job["title"], "Ferry ticket");
    EXPECT_EQ(job["copies"], "2");
    EXPECT_EQ(job["options"].count("copies="), job["options"].count("copies=2")); // never another number besides
    EXPECT_EQ(job["size"], QString::number(QFile(kTicket).size()));
    const QMap<QString, QString> expected{{"PageSize", "RollA4"},
                                          {"QnDensity", "D9"},
                                          {"QnMedia", "ThermalCopy"},
                                          {"QnRollPrinterCase", "On"},
                                          {"QnReversal", "ON"},
                                          {"QnBiDiPrint", "ON"},
                                          {"QnHalftonePattern", "Binary"},
                                          {"QnPaperSizeType", "QnRollSize"},
                                          {"QnPaperFeed", "Custom"},
                                          {"QnMirror", "OFF"}};
    for (const auto &[option, choice] : expected.asKeyValueRange())
        EXPECT_EQ(job[option], choice) << option.toStdString();
    EXPECT_NEAR(job["parameter QnPaperFeed"].toDouble(), 26 / 25.4, 0.0001);
}

TEST_F(CupsPrinting, AsksTheDefaultQueueWhenNoneIsNamed)
{
    EXPECT_EQ(print({kTicket}), 1);
    EXPECT_TRUE(m_said.contains("there is no default queue")) << m_said.toStdString();
    ASSERT_EQ(m_server.run("lpadmin", {"-d", "counter"}), 0);
    EXPECT_EQ(print({kTicket}), 0) << m_said.toStdString();
    EXPECT_EQ(m_server.record(1)["QnPaperSizeType"], "QnCutSize");
}

TEST_F(CupsPrinting, RefusesWithoutAWindowWhatTheDialogWouldRefuse)
{
    // Perforated paper needs the form feed at the end of the page: the rules of the dialog decide, not the command
    // line.
    ASSERT_EQ(print({"-d", "counter", "-o", "PageSize=PerfA4", "-o", "QnFormFeedMode=FF0", kTicket}), 0)
        << m_said.toStdString();
    EXPECT_EQ(m_server.record(1)["QnFormFeedMode"], "FF2");
    EXPECT_EQ(print({"-d", "nowhere", kTicket}), 1);
    EXPECT_EQ(m_said.trimmed(), "qnprint: nowhere: no such queue");
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(CupsPrinting, TakesTheSavedOptionsOfTheQueueAsDefaults)
{
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter", "-o", "QnDensity=D4", "-o", "QnSpeed=S2"}), 0);
    ASSERT_EQ(print({"-d", "counter", "-o", "QnSpeed=S1", kTicket}), 0) << m_said.toStdString();
    const auto job = m_server.record(1);
    EXPECT_EQ(job["QnDensity"], "D4");
    EXPECT_EQ(job["QnSpeed"], "S1"); // the command line wins
}

TEST_F(CupsPrinting, PrintsADocumentWhoseNameLooksLikeAnOptionOrACommand)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("-o $(touch x); 'ticket'.pdf");
    ASSERT_TRUE(QFile::copy(kTicket, path));
    ASSERT_EQ(print({"-d", "counter", "--", path}), 0) << m_said.toStdString();
    EXPECT_EQ(m_server.record(1)["title"], "-o $(touch x); 'ticket'.pdf");
}

TEST_F(CupsPrinting, SaysThatAQueueDoesNotTakeJobs)
{
    ASSERT_EQ(m_server.run("cupsreject", {"counter"}), 0);
    EXPECT_EQ(print({"-d", "counter", kTicket}), 1);
    EXPECT_TRUE(m_said.startsWith("qnprint: counter: ")) << m_said.toStdString();
    EXPECT_EQ(m_server.recordCount(), 0);
}

TEST_F(CupsPrinting, SaysThatTheServerIsGone)
{
    m_server.stop();
    EXPECT_EQ(print({"-d", "counter", kTicket}), 1);
    EXPECT_EQ(m_said.trimmed(), "qnprint: counter: no CUPS server answers");
}

} // namespace
