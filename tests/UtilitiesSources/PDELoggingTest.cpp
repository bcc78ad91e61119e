// The diagnostic kit: every line, in order, and the dump file.
#include "PDELogging.h"

#include "Messages.h"
#include "PPDText.h"
#include "Print.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <unistd.h>

using support::PPDText;

namespace {

TEST(FormatOfALine, HasAnObjectPartOnlyForAnObject)
{
    EXPECT_EQ(Format(std::nullopt, "LOG", "message %d"), "LOG message %d");
    EXPECT_EQ(Format("<panel>", "BEGIN", "message"), "BEGIN self(<panel>) message");
}

TEST(TraceLines, CarryTagObjectAndMessage)
{
    support::RecordMessages messages;
    PDEProlog("<panel>", "index %d", {3});
    PDEEpilog(std::nullopt, "%@", {"text"});
    PDELog(std::nullopt, "plain");
    EXPECT_EQ(messages.messages(), QStringList({"BEGIN self(<panel>) index 3", "END text", "LOG plain"}));
}

TEST(TraceLines, AreGarbledByAPercentSignInTheDescription)
{
    support::RecordMessages messages;
    PDELog("<50 %d panel>", "index %d", {3});
    PDELog(std::nullopt, "100%");
    PDELog(std::nullopt, "%@ %@ %s %n");
    EXPECT_EQ(messages.messages(), QStringList({"LOG self(<50 3 panel>) index (null)", "LOG 100%",
                                                "LOG (null) (null) (null) %n"})); // odd, and safe
}

class OptionDump : public testing::Test
{
protected:
    QStringList dump(const PPDText &text, const char *mark)
    {
        const printing::PPDFile ppd(ppdOpenFile(QFile::encodeName(text.file()).constData()));
        EXPECT_TRUE(ppd);
        ppdMarkOption(ppd.get(), "QnMedia", mark);
        support::RecordMessages messages;
        PDELog_ppd_option_t(ppd.get(), "QnMedia");
        return messages.messages();
    }
    const PPDText m_text = PPDText().option("QnMedia", "Paper Type", "B", {{"A", "Thermal"}, {"B", "Copy"}});
};

TEST_F(OptionDump, SaysEverythingInOrder)
{
    EXPECT_EQ(dump(m_text, "B"),
              QStringList({"+-+-+-+-+-+-+-+-+-+- start is QnMedia", "***** conflicted | ", "***** keyword | QnMedia",
                           "***** defchoice | B", "***** text | Paper Type", "***** ui == 1", "***** section == 0",
                           "***** order == 20.000000", "***** num_choices == 2", "***** choices->marked | ",
                           "***** choices->choice | A", "***** choices->text | Thermal",
                           "+-+-+-+-+-+-+-+-+-+- end is QnMedia"}));
}

TEST_F(OptionDump, ShowsARaisedFlagAsACharacterBeforeTheName)
{
    EXPECT_EQ(dump(m_text, "A").value(9), "***** choices->marked | \u0001A");
}

TEST_F(OptionDump, StandsAnOptionWithoutChoices)
{
    const QStringList lines = dump(PPDText().option("QnMedia", "Paper Type", "", {}), "A");
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[10], "***** choices->choice | (null)");
}

TEST(OptionDumpWithout, PPDOrNameSaysSo)
{
    support::RecordMessages messages;
    PDELog_ppd_option_t(nullptr, "QnMedia");
    const printing::PPDFile ppd(ppdOpenFile(QFile::encodeName(PPDText().file()).constData()));
    PDELog_ppd_option_t(ppd.get(), nullptr);
    PDELog_ppd_option_t(ppd.get(), "QnMissing"); // no line
    EXPECT_EQ(messages.messages(), QStringList({"PPD file is not loaded!!", "ppdOptionName is NULL!!"}));
}

TEST(SettingsDump, IsAPropertyListInTheRootDirectoryOrNothingAtAll)
{
    printing::Settings settings;
    settings.setValue(printing::kPaperNameKey, "RollA4");
    const QString name = QString("test-%1").arg(::getpid());
    const QString path = "/QnPDE_" + name + ".plist";
    support::RecordMessages messages;
    PDELog_PMPrintSettings_WriteToFile(&settings, name);
    QFile file(path);
    EXPECT_EQ(file.exists(), ::access("/", W_OK) == 0); // a failure to write is not reported
    EXPECT_EQ(file.open(QIODevice::ReadOnly) ? file.readAll() : settings.dataRepresentation(),
              settings.dataRepresentation());
    file.remove();
    PDELog_PMPrintSettings_WriteToFile(nullptr, name);
    PDELog_PMPrintSettings_WriteToFile(&settings, std::nullopt);
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(messages.messages().isEmpty());
}

TEST_F(OptionDump, ShowsTheOnlyChoiceOfAnOption)
{
    const QStringList lines = dump(PPDText().option("QnMedia", "Paper Type", "A", {{"A", "Thermal"}}), "A");
    EXPECT_EQ(lines.value(8), "***** num_choices == 1");
    EXPECT_EQ(lines.value(10), "***** choices->choice | A");
    EXPECT_EQ(lines.value(11), "***** choices->text | Thermal");
}

TEST(TheBundle, CarriesTheKitAlthoughNoPanelCallsIt)
{
    QProcess nm;
    nm.start("nm", {"--dynamic", "--defined-only", "--demangle", QN_BUNDLE_DIR "/QNKVPageSettings15.so"});
    ASSERT_TRUE(nm.waitForFinished());
    const QByteArray symbols = nm.readAllStandardOutput();
    for (const char *function : {" PDEProlog(", " PDEEpilog(", " PDELog(", " Format(", " PDELog_ppd_option_t(",
                                 " PDELog_PMPrintSettings_WriteToFile("})
        EXPECT_TRUE(symbols.contains(function)) << function;
}

} // namespace
