// Texts on their way from the field to the driver behind a real server.
#include "Cups/CupsSink.h"
#include "CupsServer.h"
#include "Dialog.h"
#include "Results.h"

#include "Dialog/PrintTarget.h"
#include "Toolkit/Controls.h"

#include <QFile>

using namespace support;

namespace {

PPDText office()
{
    return PPDText()
        .attribute("cupsFilter2", "application/pdf application/vnd.qn-pdf 0 qnfilter")
        .line("*OpenGroup: Job/Job")
        .option("Pin", "PIN Printing", "None", {{"None", "Off"}})
        .line("*CustomPin True: \"x\"\n*ParamCustomPin Code: 1 passcode 4 8")
        .option("Mark", "Watermark", "None", {{"None", "Off"}})
        .line("*CustomMark True: \"x\"\n*ParamCustomMark Words: 1 string 0 1000")
        .line("*CloseGroup: Job");
}

constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";

class SentText : public DialogTest
{
protected:
    void SetUp() override
    {
        const QString ppd = office().file(); // before the server's environment, which goes with the test
        const auto problem = m_server.start();
        ASSERT_FALSE(problem) << problem->toStdString();
        m_server.adoptEnvironment();
        ASSERT_EQ(m_server.run("lpadmin", {"-p", "office", "-E", "-v", "usb://Qn/Office?serial=1", "-P", ppd}), 0)
            << m_server.log().right(2000).toStdString();
        m_ppd = ppd;
    }
    void openPanel()
    {
        openFile(m_ppd, {{"bundle", QN_GENERAL_BUNDLE_DIR}});
        show("Job");
    }
    /// What every program finds saved for the user.
    QByteArray saved() const
    {
        QFile file(m_server.path("home/.cups/lpoptions"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Without a window; the exit status.
    int printUnseen(const QStringList &arguments)
    {
        return m_server.run(
            QN_PROGRAM, QStringList{"--no-dialog", "--locale", "en_US"} + arguments + QStringList{kTicket}, &m_said);
    }
    /// The choice and the text that the driver finds marked for a job with what the panel shows.
    std::pair<QString, QString> sent(const QString &option)
    {
        host::OptionValues options;
        const QJsonObject settled = job();
        for (auto each = settled.begin(); each != settled.end(); ++each)
            options[each.key()] = each.value().toString();
        host::CupsSink sink("office", std::nullopt);
        const std::shared_ptr<host::Document> document = value(host::Document::open(kTicket));
        const auto where = sink.submit({document, "ticket", 1, {}, options}, [](qint64, qint64) {}, {});
        EXPECT_TRUE(where) << (where ? "" : sentence(where).toStdString());
        const auto record = m_server.record(++m_jobs);
        return {record[option], record["text-" + option]};
    }

    CupsServer m_server;
    QString m_ppd;
    int m_jobs = 0;
    QByteArray m_said;
};

TEST_F(SentText, ReachesTheDriverLetterForLetter)
{
    openPanel();
    pick("Mark", 1);
    for (const QString &text :
         {QString("plain"), QString("two words"), QString("  around  "), QString("a,b,,c,"), QString("it's"),
          QString("say \"no, no\" 'or, so"), QString("C:\\new\\, and \\'more\\"), QString("Größe 日本語 😀"),
          QString("{a=b c=d}"), QString("a=b c=d"), QString("true"), QString("-o x; $(y) `z` %s #&|<>"), QString(""),
          QString("Custom.x"), QString("None"), QString("0012"), QString(248, 'x'), QString(124, QChar(0xe4))}) {
        type(text, "Mark.amount");
        EXPECT_EQ(sent("Mark"), std::pair(QString("Custom"), text));
    }
}

TEST_F(SentText, ReachesTheDriverWhereItIsSecret)
{
    openPanel();
    pick("Pin", 1);
    type("0042", "Pin.amount");
    EXPECT_EQ(sent("Pin"), std::pair(QString("Custom"), QString("0042")));
    EXPECT_FALSE(m_server.accessLog().contains("0042"));
}

TEST_F(SentText, IsNotKeptInAPresetWhereItIsSecret)
{
    const auto target =
        value(host::PPDTarget::ofQueue({}, value(host::withPPDOpened(value(host::findQueue({"office", {}}, {})))), {}));
    target->start([] {});
    target->prepareAll();
    QWidget &view = *target->panels().front()->panelView();
    view.findChild<toolkit::PopUpControl *>("Pin")->choose(1);
    view.findChild<toolkit::FieldControl *>("Pin.amount")->paste("0042");
    view.findChild<toolkit::PopUpControl *>("Mark")->choose(1);
    view.findChild<toolkit::FieldControl *>("Mark.amount")->paste("a \"b\" \\, c");
    ASSERT_EQ(target->jobOptions()["Pin"], "Custom.0042");
    for (const char *name : {"secret", ""}) {
        EXPECT_TRUE(target->save(name, std::nullopt));
        EXPECT_FALSE(saved().contains("0042")) << saved().toStdString();
        EXPECT_EQ(target->savedOptions()->options(name)["Pin"], "Custom");
        EXPECT_EQ(target->savedOptions()->options(name)["Mark"], "Custom.a \"b\" \\, c");
    }
    EXPECT_EQ(target->secretOptions(), QStringList{"Pin"});
}

TEST_F(SentText, IsAskedForAgainWhereAPresetHasASecretOne)
{
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "office/secret", "-o", "Pin=Custom"}), 0);
    EXPECT_EQ(printUnseen({"-d", "office/secret"}), 1);
    EXPECT_TRUE(m_said.contains("The code is not supported. PIN Printing: 4 to 8 digits")) << m_said.toStdString();
    EXPECT_EQ(printUnseen({"-d", "office/secret", "-o", "Pin=Custom.0042", "-o", "Mark=Custom.a, \"b\""}), 0)
        << m_said.toStdString();
    const auto record = m_server.record(1);
    EXPECT_EQ(record["text-Pin"], "0042");
    EXPECT_EQ(record["text-Mark"], "a, \"b\"");
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(SentText, IsRefusedOnTheCommandLineBeyondItsLimits)
{
    EXPECT_EQ(printUnseen({"-d", "office", "-o", "Pin=Custom.12"}), 1);
    EXPECT_TRUE(m_said.contains("-o Pin=Custom.12: the printer has no such choice")) << m_said.toStdString();
}

} // namespace
