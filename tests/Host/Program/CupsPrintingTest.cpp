// Printing on queues of a real CUPS server; what arrived is read on the driver's side.
#include "CupsServer.h"
#include "Print.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <csignal>

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
    EXPECT_EQ(job["PRINTER"], "counter");
    EXPECT_EQ(job["DEVICE_URI"], "usb://Qn/Thermal?serial=1");
    EXPECT_EQ(job["CONTENT_TYPE"], "application/pdf");
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

TEST_F(CupsPrinting, TellsOfAQueueThatIsStoppedAndLeavesTheJobThere)
{
    ASSERT_EQ(m_server.run("cupsdisable", {"counter"}), 0);
    EXPECT_EQ(print({"-d", "counter", kTicket}), 0);
    EXPECT_EQ(m_said, "qnprint: counter: the queue is stopped; jobs wait until it is started\n"
                      "counter-1 ticket.pdf waits: counter is stopped\n");
    EXPECT_EQ(m_server.recordCount(), 0);
    ASSERT_EQ(m_server.run("cupsenable", {"counter"}), 0);
    EXPECT_EQ(m_server.record(1)["title"], "ticket.pdf");
}

TEST_F(CupsPrinting, SendsThePagesInTheFormThatServersTake)
{
    ASSERT_EQ(print({"-d", "counter", "--raw", "-P", "5, 1 -2,2-3", kTicket}), 0) << m_said.toStdString();
    EXPECT_TRUE(m_server.record(1)["options"].split(' ').contains("page-ranges=1-3,5"));
    EXPECT_EQ(print({"-d", "counter", "-P", "5-1", kTicket}), 2);
    EXPECT_EQ(m_said.trimmed(), "qnprint: -P 5-1: no pages, such as 1-3,5");
}

TEST_F(CupsPrinting, PassesOnWhatThePPDDoesNotKnow)
{
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter", "-o", "number-up=2", "-o", "copies=3"}), 0);
    ASSERT_EQ(print({"-d", "counter", "--raw", "-o", "fit-to-page=true", "-o", "QnSpeed=S2", kTicket}), 0)
        << m_said.toStdString();
    const auto job = m_server.record(1);
    const QStringList options = job["options"].split(' ');
    EXPECT_TRUE(options.contains("number-up=2"));
    EXPECT_TRUE(options.contains("fit-to-page"));
    EXPECT_EQ(options.filter("QnSpeed"), QStringList("QnSpeed=S2"));
    EXPECT_EQ(job["copies"], "3");
}

TEST_F(CupsPrinting, TakesThePaperByItsGeneralNameToo)
{
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter", "-o", "PageSize=PerfA4"}), 0);
    ASSERT_EQ(print({"-d", "counter", "-o", "media=RollA4", kTicket}), 0) << m_said.toStdString();
    const auto job = m_server.record(1);
    EXPECT_EQ(job["PageSize"], "RollA4");
    EXPECT_EQ(job["QnPaperSizeType"], "QnRollSize");
    EXPECT_FALSE(job["options"].contains("media="));
}

TEST_F(CupsPrinting, RefusesChoicesThatThePrinterDoesNotHave)
{
    for (const char *choice :
         {"QnDensity=D99", "PageSize=A0", "media=A0", "QnPaperFeed=Custom.99", "PageSize=Custom.1x1"}) {
        EXPECT_EQ(print({"-d", "counter", "-o", choice, kTicket}), 1);
        EXPECT_EQ(m_said.trimmed(), QByteArray("qnprint: counter: -o ") + choice + ": the printer has no such choice");
    }
    EXPECT_EQ(m_server.recordCount(), 0);
}

TEST_F(CupsPrinting, PrintsSeveralDocumentsEachAsAJobOfItsOwn)
{
    ASSERT_EQ(print({"-d", "counter", kTicket, kTicket}), 0);
    EXPECT_EQ(m_said, "counter-1 ticket.pdf: sent to counter\ncounter-2 ticket.pdf: sent to counter\n");
}

TEST_F(CupsPrinting, PrintsNoneOfSeveralDocumentsWhenOneCannotBe)
{
    EXPECT_EQ(print({"-d", "counter", kTicket, "/no/such.pdf", kTicket}), 1);
    EXPECT_EQ(m_said, "qnprint: /no/such.pdf: No such file or directory\n");
    EXPECT_EQ(m_server.recordCount(), 0);
}

TEST_F(CupsPrinting, DoubtsOptionsThatNobodyKnowsAndPassesThemOn)
{
    ASSERT_EQ(print({"-d", "counter", "--language", "en", "-o", "QnDensty=D9", "-o", "Ordinance=7", "-o",
                     "fit-to-page=true", kTicket}),
              0);
    EXPECT_EQ(m_said, "qnprint: -o Ordinance=7: neither the printer nor the server is known to have this option.\n"
                      "qnprint: -o QnDensty=D9: neither the printer nor the server is known to have this option. Did "
                      "you mean “QnDensity”?\ncounter-1 ticket.pdf: sent to counter\n");
    EXPECT_TRUE(m_server.record(1)["options"].split(' ').contains("QnDensty=D9"));
}

TEST_F(CupsPrinting, RefusesAPresetThatIsNotThere)
{
    EXPECT_EQ(print({"-d", "counter/express", "--language", "en", kTicket}), 1);
    EXPECT_EQ(m_said, "qnprint: counter: no preset “express”, and no other\n");
    for (const char *preset : {"counter/invoices", "counter/tickets"})
        ASSERT_EQ(m_server.run("lpoptions", {"-p", preset, "-o", "QnSpeed=S1"}), 0);
    EXPECT_EQ(print({"-d", "counter/express", "--language", "en", kTicket}), 1);
    EXPECT_EQ(m_said, "qnprint: counter: no preset “express”; there are: invoices, tickets\n");
    EXPECT_EQ(m_server.recordCount(), 0);
    EXPECT_EQ(print({"-d", "counter/Invoices", kTicket}), 0) << "as other programs find it";
}

struct WrongUse
{
    QStringList arguments;
    const char *said;
};

void PrintTo(const WrongUse &row, std::ostream *out) { *out << row.arguments.join(' ').toStdString(); }

class ArgumentsThatDoNotGoTogether : public CupsPrinting, public testing::WithParamInterface<WrongUse>
{};

TEST_P(ArgumentsThatDoNotGoTogether, AreWrongUse)
{
    EXPECT_EQ(print(GetParam().arguments + QStringList{kTicket}), 2);
    EXPECT_EQ(m_said, QByteArray("qnprint: ") + GetParam().said + '\n');
    EXPECT_EQ(m_server.recordCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Are, ArgumentsThatDoNotGoTogether,
    testing::Values(WrongUse{{"-d", "counter", "--output", "."},
                             "--output goes with --ppd only; a queue has its own way"},
                    WrongUse{{"--output", "."}, "--output goes with --ppd only; a queue has its own way"},
                    WrongUse{{"-d", "counter", "--panel", "basic"}, "--panel and --no-dialog do not go together"},
                    WrongUse{{"-d", "counter", "--ppd", "x.ppd"}, "-d and --ppd do not go together"}));

TEST(PrintingIntoAFolder, SaysThatTheFolderIsMade)
{
    const QTemporaryDir folder;
    const QString out = folder.filePath("out");
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QN_PROGRAM, {"--no-dialog", "--language", "en", "--ppd", QN_SOURCE_DIR "/examples/ppd/full.ppd",
                               "--output", out, kTicket});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.readAll(), QString("qnprint: --output %1: there is no such folder; it will be made.\n"
                                         "%1/ticket.pdf\n")
                                     .arg(out)
                                     .toUtf8());
    program.start(QN_PROGRAM,
                  {"--no-dialog", "--ppd", QN_SOURCE_DIR "/examples/ppd/full.ppd", "--output", out, kTicket});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.readAll(), (out + "/ticket-2.pdf\n").toUtf8());
}

TEST_F(CupsPrinting, TellsWhichChoiceAConstraintMoved)
{
    ASSERT_EQ(print({"-d", "counter", "--language", "en", "-o", "QnMedia=ThermalCopy", "-o", "QnSpeed=S3", kTicket}),
              0);
    EXPECT_EQ(m_said, "qnprint: Paper Type “Thermal Paper” instead of “Thermal Copy Paper”, to go with Print Speed "
                      "“Fastest”.\ncounter-1 ticket.pdf: sent to counter\n");
    const auto job = m_server.record(1);
    EXPECT_EQ(job["QnMedia"], "Thermal");
    EXPECT_EQ(job["QnSpeed"], "S3");
}

TEST_F(CupsPrinting, TakesAPresetByTheNameThatLpTakes)
{
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter", "-o", "QnDensity=D4"}), 0);
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter/express", "-o", "QnSpeed=S1", "-o", "PageSize=Custom.400x500"}),
              0);
    ASSERT_EQ(print({"-d", "counter/express", kTicket}), 0) << m_said.toStdString();
    const auto job = m_server.record(1);
    EXPECT_EQ(job["QnSpeed"], "S1");
    EXPECT_TRUE(job["options"].contains("PageSize=Custom.400x500"));
    ASSERT_EQ(m_server.run("lpoptions", {"-d", "counter/express"}), 0);
    ASSERT_EQ(print({kTicket}), 0) << m_said.toStdString();
    EXPECT_EQ(m_server.record(2)["QnSpeed"], "S1");
}

TEST_F(CupsPrinting, BringsWhatAScriptChoseToTheDriver)
{
    QProcess script;
    script.setProcessEnvironment(m_server.environment());
    script.start(QN_PROGRAM, {"script"});
    script.write(QString(R"({"do":"open","ppd":"%1","uri":"usb://Qn/Thermal?serial=1","paper":"RollA4","locale":"de_DE"}
{"do":"show","panel":"basic"}
{"do":"pick","panel":"basic","control":"mMediaPopUp","index":1}
{"do":"type","panel":"basic","control":"mPaperFeedTxt","text":"40"}
{"do":"show","panel":"advanced"}
{"do":"click","panel":"advanced","control":"mReversalChkBx"}
{"do":"print"}
{"do":"job"}
)")
                     .arg(QN_SOURCE_DIR "/examples/ppd/full.ppd")
                     .toUtf8());
    script.closeWriteChannel();
    ASSERT_TRUE(script.waitForFinished());
    const QByteArrayList replies = script.readAllStandardOutput().trimmed().split('\n');
    ASSERT_EQ(replies.size(), 8);
    ASSERT_TRUE(QJsonDocument::fromJson(replies[6]).object().value("result").toBool()) << replies[6].toStdString();
    const QJsonObject options = QJsonDocument::fromJson(replies[7]).object().value("options").toObject();
    QStringList arguments{"-d", "counter"};
    for (auto each = options.begin(); each != options.end(); ++each)
        arguments << "-o" << each.key() + '=' + each.value().toString();
    ASSERT_EQ(m_server.run("lp", arguments + QStringList(kTicket)), 0);

    const auto job = m_server.record(1);
    EXPECT_EQ(job["PageSize"], "RollA4");
    EXPECT_EQ(job["QnPaperSizeType"], "QnRollSize");
    EXPECT_EQ(job["QnMedia"], "ThermalCopy");
    EXPECT_EQ(job["QnReversal"], "ON");
    EXPECT_NEAR(job["parameter QnPaperFeed"].toDouble(), 40 / 25.4, 0.0001);
}

struct Device
{
    const char *uri;
};
class Devices : public CupsPrinting, public testing::WithParamInterface<Device>
{};

TEST_P(Devices, ReceiveTheChoicesWhateverTheirScheme)
{
    QString uri = GetParam().uri;
    uri.replace("PORT", QString::number(m_server.port())).replace("FOLDER", m_server.path("tmp"));
    ASSERT_TRUE(m_server.addPlainQueue("end", "file:///dev/null"));
    ASSERT_TRUE(m_server.addQueue("line", uri));
    ASSERT_EQ(print({"-d", "line", "-o", "PageSize=RollA4", "-o", "QnDensity=D9", kTicket}), 0) << m_said.toStdString();
    const auto job = m_server.record(1);
    EXPECT_EQ(job["QnDensity"], "D9");
    EXPECT_EQ(job["QnPaperSizeType"], "QnRollSize");
    EXPECT_NEAR(job["parameter QnPaperFeed"].toDouble(), 26 / 25.4, 0.0001);
}

INSTANTIATE_TEST_SUITE_P(Of, Devices,
                         testing::Values(Device{"usb://Qn/Thermal?serial=2"}, Device{"QNLRUSB://Qn/Thermal"},
                                         Device{"socket://127.0.0.1:9"}, Device{"ipp://127.0.0.1:PORT/printers/end"},
                                         Device{"file://FOLDER/printed"}),
                         [](const auto &row) { return QString(row.param.uri).section(':', 0, 0).toStdString(); });

TEST_F(CupsPrinting, PrintsOnAQueueWithoutAPPD)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "file://" + m_server.path("tmp/printed")));
    EXPECT_EQ(print({"-d", "plain", "-o", "QnDensity=D9", kTicket}), 0) << m_said.toStdString();
    EXPECT_EQ(m_said.trimmed(), "plain-1 ticket.pdf: sent to plain");
}

TEST_F(CupsPrinting, SaysWhatIsAskedForOfAQueueWithoutAPPDInTheWordsOfTheServer)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "usb://Qn/Plain?serial=1"));
    EXPECT_EQ(print({"-d", "plain", "-o", "orientation-requested=landscape", kTicket}), 0) << m_said.toStdString();
    EXPECT_EQ(m_said.trimmed(), "plain-1 ticket.pdf: sent to plain");
    EXPECT_TRUE(m_server.log().contains("orientation-requested=4"));
    EXPECT_EQ(print({"-d", "plain", "-o", "orientation-requested=12", kTicket}), 1);
    EXPECT_EQ(m_said, "qnprint: plain: -o orientation-requested=12: the printer has no such choice\n");
}

TEST_F(CupsPrinting, PrintsOnAQueueWithoutAPPDWhereNoBundleShowsItsPanel)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "usb://Qn/Plain?serial=1"));
    const QString alone = m_server.path("tmp/qnprint"); // no bundle is beside it
    ASSERT_TRUE(QFile::copy(QN_PROGRAM, alone));
    const QStringList line{"--no-dialog", "-d", "plain", "-o", "orientation-requested=4", kTicket};
    EXPECT_EQ(m_server.run(alone, line, &m_said), 0);
    EXPECT_TRUE(m_said.startsWith("qnprint: no plug-in bundle in ")) << m_said.toStdString();
    EXPECT_TRUE(m_said.contains("plain-1 ticket.pdf: sent to plain")) << m_said.toStdString();
    EXPECT_TRUE(m_server.log().contains("orientation-requested=4"));
}

TEST_F(CupsPrinting, PrintsOnAClassByThePPDOfItsFirstMember)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "file:///dev/null"));
    for (const char *member : {"counter", "plain"})
        ASSERT_EQ(m_server.run("lpadmin", {"-p", member, "-c", "hall"}), 0);
    ASSERT_EQ(m_server.run("cupsenable", {"hall"}), 0);
    ASSERT_EQ(m_server.run("cupsaccept", {"hall"}), 0);
    ASSERT_EQ(m_server.run("cupsdisable", {"plain"}), 0);
    ASSERT_EQ(print({"-d", "hall", "-o", "PageSize=RollA4", "-o", "QnDensity=D9", kTicket}), 0) << m_said.toStdString();
    EXPECT_EQ(m_said, "hall-1 ticket.pdf: sent to hall\n");
    const auto job = m_server.record(1);
    EXPECT_EQ(job["QnDensity"], "D9");
    EXPECT_EQ(job["QnPaperSizeType"], "QnRollSize"); // the panels have seen the PPD
}

TEST_F(CupsPrinting, FetchesAPPDAgainOnlyWhenItHasChanged)
{
    const auto fetches = [this](const char *status) {
        return m_server.accessLog().count(QByteArray("\"GET /printers/counter.ppd HTTP/1.1\" ") + status);
    };
    QThread::msleep(2100); // in the second of a change the server can't tell whether there was a further one
    ASSERT_EQ(print({"-d", "counter", kTicket}), 0);
    ASSERT_EQ(fetches("200"), 1);
    ASSERT_EQ(print({"-d", "counter", kTicket}), 0);
    EXPECT_EQ(fetches("200"), 1);
    EXPECT_GE(fetches("304"), 1);
    ASSERT_TRUE(
        m_server.addQueue("counter", "usb://Qn/Thermal?serial=1", {{"*DefaultQnDensity:", "*DefaultQnDensity: D4"}}));
    ASSERT_EQ(print({"-d", "counter", kTicket}), 0);
    EXPECT_GE(fetches("200"), 2);
}

TEST_F(CupsPrinting, KeepsItsFilesPrivateAndLeavesNoneBehind)
{
    ASSERT_EQ(print({"-d", "counter", kTicket}), 0);
    EXPECT_EQ(QDir(m_server.path("tmp")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList());
    const QFileInfo folder(m_server.path("home/cache/qnprint/qnprint/ppd"));
    ASSERT_TRUE(folder.isDir());
    const auto ownersOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(folder.permissions() & ~(ownersOnly | QFile::ExeOwner | QFile::ExeUser), 0);
    const auto files = QDir(folder.filePath()).entryInfoList(QDir::Files | QDir::Hidden);
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(files[0].permissions() & ~ownersOnly, 0);
}

TEST_F(CupsPrinting, SaysThatAPasswordIsAskedFor)
{
    CupsServer guarded;
    const auto problem = guarded.start({.guards = CupsServer::Setup::Guards::everything});
    ASSERT_FALSE(problem) << problem->toStdString();
    EXPECT_EQ(guarded.run(QN_PROGRAM, {"--no-dialog", "-d", "counter", kTicket}, &m_said), 1);
    EXPECT_EQ(m_said.trimmed(), "qnprint: counter: the CUPS server asks for a password");
}

TEST_F(CupsPrinting, PrintsAndSaysThatTheServersCertificateIsNotTrusted)
{
    CupsServer encrypted;
    const auto problem = encrypted.start({.isEncrypted = true});
    ASSERT_FALSE(problem) << problem->toStdString();
    ASSERT_TRUE(encrypted.addQueue("counter", "usb://Qn/Thermal?serial=1"));
    EXPECT_EQ(encrypted.run(QN_PROGRAM, {"--no-dialog", "-d", "counter", kTicket}, &m_said), 0);
    EXPECT_TRUE(m_said.startsWith("qnprint: the certificate of 127.0.0.1 is not trusted: ")) << m_said.toStdString();
    EXPECT_FALSE(encrypted.record(1).isEmpty());
}

TEST_F(CupsPrinting, EndsWhenTheServerKeepsSilent)
{
    m_server.freeze();
    EXPECT_EQ(print({"-d", "counter", kTicket}), 1);
    EXPECT_EQ(m_said.trimmed(), "qnprint: counter: the CUPS server does not answer");
    m_server.thaw();
    EXPECT_EQ(m_server.recordCount(), 0);
}

TEST_F(CupsPrinting, FetchesAPPDAgainWhenTheKeptOneIsDamaged)
{
    QThread::msleep(2100); // in the second of a change the server can't tell whether there was a further one
    ASSERT_EQ(print({"-d", "counter", kTicket}), 0);
    const auto files = QDir(m_server.path("home/cache/qnprint/qnprint/ppd")).entryInfoList(QDir::Files);
    ASSERT_EQ(files.size(), 1);
    ASSERT_TRUE(QFile::resize(files[0].filePath(), 3721));
    EXPECT_EQ(print({"-d", "counter", "-o", "QnReversal=NONSENSE", kTicket}), 1); // as the whole one knows
    EXPECT_GT(QFileInfo(files[0].filePath()).size(), 3721);
}

struct Ending
{
    const char *name;
    int signal;
};

void PrintTo(const Ending &row, std::ostream *out) { *out << row.name; }

class EndingWhileSending : public CupsPrinting
{
protected:
    /// Begins to send a large document.
    void begin()
    {
        ASSERT_EQ(m_server.run("cupsdisable", {"counter"}), 0); // nothing of the job may be printed before
        const QString large = m_server.path("tmp/large.txt");
        QFile file(large);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(0) && file.write(QByteArray(64 << 20, 'x')));
        file.close();
        m_program.setProcessEnvironment(m_server.environment());
        m_program.start(QN_PROGRAM, {"--no-dialog", "-d", "counter", "--raw", large});
        const auto isReceiving = [this] { return m_server.log().contains("Send-Document"); };
        for (int i = 0; i < 1000 && !isReceiving(); ++i)
            QThread::msleep(5);
        ASSERT_TRUE(isReceiving());
    }
    void signal(int number) { ::kill(static_cast<pid_t>(m_program.processId()), number); }
    /// What the server has of the document.
    qint64 bytesReceived() const
    {
        const auto files = QDir(m_server.path("spool")).entryInfoList(QDir::Files, QDir::Size); // the largest first
        return files.isEmpty() ? 0 : files.first().size();
    }
    bool isGone() const { return m_server.openJobs().isEmpty() && m_server.spooled().isEmpty(); }
    /// After a kill, what talks with the server finds itself alone and takes the job back.
    bool waitUntilItIsGone() const
    {
        for (int i = 0; i < 100 && !isGone(); ++i)
            QThread::msleep(100);
        return isGone();
    }

    QProcess m_program;
};

class Endings : public EndingWhileSending, public testing::WithParamInterface<Ending>
{};

TEST_P(Endings, LeaveNoJobBehind)
{
    begin();
    signal(GetParam().signal);
    ASSERT_TRUE(m_program.waitForFinished(20000));
    if (GetParam().signal == SIGKILL) {
        EXPECT_TRUE(waitUntilItIsGone());
        return;
    }
    EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_program.exitCode(), 1);
    EXPECT_TRUE(m_program.readAllStandardError().endsWith("qnprint: counter: cancelled; nothing was printed\n"));
    EXPECT_TRUE(isGone());
}

INSTANTIATE_TEST_SUITE_P(By, Endings,
                         testing::Values(Ending{"Interrupt", SIGINT}, Ending{"Terminate", SIGTERM},
                                         Ending{"HangUp", SIGHUP}, Ending{"Kill", SIGKILL}),
                         [](const auto &row) { return row.param.name; });

TEST_F(EndingWhileSending, LeavesNoJobBehindWhenWhatItWasToldIsUnread)
{
    begin();
    signal(SIGSTOP); // what is told from now on nobody reads
    const qint64 enough = bytesReceived() + (1 << 20);
    for (int i = 0; i < 4000 && bytesReceived() < enough; ++i)
        QThread::msleep(5);
    ASSERT_GE(bytesReceived(), enough);
    signal(SIGKILL);
    ASSERT_TRUE(m_program.waitForFinished(20000));
    EXPECT_TRUE(waitUntilItIsGone());
}

} // namespace
