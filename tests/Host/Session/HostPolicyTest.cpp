// Who is called when: opening, showing, marking, changing the paper, printing.
#include "Dialog.h"
#include "Results.h"

#include "Session/DialogSession.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace support;

namespace {

class HostPolicy : public DialogTest
{
protected:
    QJsonValue display() const { return state("basic")["display"]; }
    QJsonObject job() { return request({{"do", "job"}})["options"].toObject(); }
};

const Marks kOpeningMarks{
    {"QnMedia", "Thermal"},           {"QnFormFeedMode", "FF0"}, {"QnPaperFeed", "0.000000"}, {"QnPerforated", "OFF"},
    {"QnRollPrinterCase", "Default"}, {"QnDensity", "DHome"},    {"QnSpeed", "SHome"},        {"QnPerforated", "OFF"},
    {"QnHalftonePattern", "Dither"},  {"QnReversal", "OFF"},     {"QnMirror", "OFF"},         {"QnBiDiPrint", "OFF"}};

TEST_F(HostPolicy, AsksBothPanelsForTheirKeysBeforeAnyDisplay)
{
    open(PPDText().allOptions(), "A4", {{"prepare", false}});
    EXPECT_EQ(marks(), kOpeningMarks); // the restore that follows marks nothing
    EXPECT_EQ(reply()["panels"].toArray(), (QJsonArray{"basic", "advanced"}));
    EXPECT_TRUE(reply()["accepted"].toBool());
    EXPECT_TRUE(display().isNull());
}

TEST_F(HostPolicy, PreparesEachPanelOnceAtOpening)
{
    open(PPDText().allOptions());
    Marks expected = kOpeningMarks;
    expected.insert(expected.end(), kOpeningMarks.begin(), kOpeningMarks.end()); // the savers of both first displays
    expected[14].second = "1.023622";                                            // now there is a field to read
    EXPECT_EQ(marks(), expected);
    show("basic");
    EXPECT_TRUE(marks().empty());
}

TEST_F(HostPolicy, TakesThePanelOnDisplayOffBeforeAnotherShows)
{
    open(PPDText().allOptions());
    show("advanced");
    EXPECT_EQ(display(), "advanced");
    show("basic");
    EXPECT_EQ(marksOf("QnSpeed"), QStringList("SHome")); // the advanced panel saved
    EXPECT_EQ(display(), "basic");
    show("basic");
    EXPECT_TRUE(marks().empty()); // already there
}

TEST_F(HostPolicy, SavesAPanelThatItHides)
{
    open(PPDText().allOptions());
    show("basic");
    request({{"do", "hide"}});
    EXPECT_TRUE(reply()["result"].toBool());
    EXPECT_EQ(marksOf("QnMedia"), QStringList("Thermal"));
    EXPECT_TRUE(display().isNull());
    request({{"do", "hide"}});
    EXPECT_EQ(error(), "no panel is on display");
}

TEST_F(HostPolicy, RestoresShownPanelsThatAreNotOnDisplayBeforeAPaperChange)
{
    open(PPDText().allOptions());
    show("basic");
    ASSERT_TRUE(mark("QnMedia", "ThermalCopy"));
    ASSERT_TRUE(mark("QnDensity", "D4"));
    choosePaper("Letter");
    EXPECT_EQ(marked("QnMedia"), "Thermal"); // the panel on display is not restored: its controls win
    EXPECT_EQ(marked("QnDensity"), "D4");    // the advanced panel was, and saved what was marked
}

TEST_F(HostPolicy, SavesNothingWhenADialogIsClosedOrReplaced)
{
    open(PPDText().allOptions());
    show("basic");
    request({{"do", "close"}});
    EXPECT_TRUE(reply()["ok"].toBool());
    EXPECT_TRUE(marks().empty());
    request({{"do", "job"}});
    EXPECT_EQ(error(), "no dialog is open");
}

TEST_F(HostPolicy, KeepsTheOpenDialogWhenAnotherCannotBeOpened)
{
    open(PPDText().allOptions(), "A4", {{"locale", "en_US"}});
    show("basic");
    request({{"do", "open"}, {"ppd", "/no/such.ppd"}, {"locale", "de_DE"}});
    EXPECT_FALSE(reply()["ok"].toBool());
    EXPECT_EQ(display(), "basic");
    type("2");
    EXPECT_EQ(alerts(), 0);
}

// What a number, or a word, marks.
struct Wanted
{
    QString choice;
    const char *marked; // "": refused
};

void PrintTo(const Wanted &row, std::ostream *out) { *out << '"' << row.choice.toStdString() << '"'; }

class Marking : public DialogTest, public testing::WithParamInterface<Wanted>
{};

// The first parameter in the file has the range 0.1 to 2.01, in single precision.
TEST_P(Marking, TakesListedChoicesAndNumbersWithinTheRange)
{
    open(PPDText()
             .standardOption("QnPaperFeed")
             .line("*CustomQnPaperFeed True: \"x\"")
             .line("*ParamCustomQnPaperFeed inches: 2 real 0.1 2.01")
             .line("*ParamCustomQnPaperFeed mm: 1 real 1 51"),
         "A4", {{"prepare", false}});
    ASSERT_TRUE(mark("QnPaperFeed", "Feed1"));
    const bool accepted = *GetParam().marked;
    EXPECT_EQ(mark("QnPaperFeed", GetParam().choice), accepted);
    EXPECT_EQ(marked("QnPaperFeed"), accepted ? GetParam().marked : "Feed1");
}

INSTANTIATE_TEST_SUITE_P(Values, Marking,
                         testing::Values(Wanted{"Feed2", "Feed2"}, Wanted{"feed2", ""}, Wanted{"1.5", "Custom.1.5"},
                                         Wanted{"+1.5", "Custom.1.5"}, Wanted{"1", "Custom.1"},
                                         Wanted{"1.", "Custom.1"}, Wanted{".5", "Custom.0.5"},
                                         Wanted{"0.1", "Custom.0.1"}, Wanted{"2.01", "Custom.2.01"}, Wanted{"2.02", ""},
                                         Wanted{"0.09", ""}, Wanted{"-1", ""}, Wanted{"0", ""}, Wanted{"1.5x", ""},
                                         Wanted{" 1.5", ""}, Wanted{"1.5\n", ""}, Wanted{"1,5", ""}, Wanted{"1e0", ""},
                                         Wanted{"nan", ""}, Wanted{"inf", ""}, Wanted{"0x1", ""}, Wanted{"", ""},
                                         Wanted{"Custom.1.5", ""}, Wanted{"1.0236220472", "Custom.1.02362"},
                                         Wanted{QString(10000, '1'), ""}));

TEST_F(HostPolicy, MarksNothingForAnOptionThatThePPDLacks)
{
    open(PPDText().allOptions());
    EXPECT_FALSE(mark("QnNothing", "A"));
    EXPECT_FALSE(mark("qnmedia", "ThermalCopy")); // letter case counts
    EXPECT_FALSE(mark("QnMedia", "1.5"));         // no custom option
    EXPECT_FALSE(mark("", ""));
    EXPECT_EQ(marked("QnMedia"), "Thermal");
}

TEST_F(HostPolicy, KeepsTheChoiceAskedForAndMovesTheOthersThatAreForbidden)
{
    open(PPDText()
             .allOptions()
             .line("*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3")
             .line("*UIConstraints: *QnSpeed S3 *QnMedia ThermalCopy"));
    ASSERT_TRUE(mark("QnSpeed", "S3"));
    ASSERT_TRUE(mark("QnMedia", "ThermalCopy"));
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy");
    EXPECT_NE(marked("QnSpeed"), "S3");
    EXPECT_EQ(selection("mMedia_Selection").toString(), "ThermalCopy");
    EXPECT_EQ(selection("mSpeed_Selection").toString(), marked("QnSpeed"));
}

TEST_F(HostPolicy, NeverTakesACustomValueFromTheLibrarysParameter)
{
    open(PPDText().allOptions());
    show("basic");
    type("30");
    request({{"do", "save"}, {"panel", "basic"}}); // writes 30 into the parameter, and marks 30 mm in inches
    EXPECT_EQ(marked("QnPaperFeed"), "Custom.1.1811");
    EXPECT_EQ(job()["QnPaperFeed"].toString(), "Custom.1.181102");
}

TEST_F(HostPolicy, MarksTheUsersOwnDefaultsAndMakesThemThePPDs)
{
    open(PPDText().allOptions(), "A4",
         {{"defaults", QJsonObject{{"QnMedia", "ThermalCopy"}, {"QnSpeed", "Gone"}, {"Gone", "A"}}}});
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy"); // also after the first display wrote the defaults back
    EXPECT_EQ(marked("QnSpeed"), "SHome");
    show("basic");
    EXPECT_EQ(selected("mMediaPopUp"), 1);
    EXPECT_EQ(job()["QnMedia"].toString(), "ThermalCopy"); // not what the file declared
}

TEST_F(HostPolicy, SubmitsWhatIsNotTheFilesOwnDefaultAndThePageSize)
{
    open(PPDText().allOptions());
    EXPECT_EQ(job(), (QJsonObject{{"PageSize", "A4"}, {"QnPaperFeed", "Custom.1.023622"}}));
    ASSERT_TRUE(mark("QnDensity", "D2"));
    ASSERT_TRUE(mark("QnPaperFeed", "Feed0"));
    EXPECT_EQ(job(), (QJsonObject{{"PageSize", "A4"}, {"QnDensity", "D2"}}));
}

TEST_F(HostPolicy, MarksAChosenPaperAsThePageSizeWhenThePPDHasIt)
{
    open(PPDText().allOptions(), "RollA4");
    EXPECT_EQ(marked("PageSize"), "RollA4");
    choosePaper("PerfA4");
    EXPECT_EQ(marked("PageSize"), "PerfA4");
    EXPECT_TRUE(marksOf("PageSize").isEmpty()); // the host's own, not a panel's
    choosePaper("Poster", 400, 500);
    EXPECT_EQ(marked("PageSize"), "PerfA4"); // no such size
    choosePaper("customsize", 400, 500);
    EXPECT_EQ(marked("PageSize"), "Custom.400x500");
    EXPECT_EQ(job()["PageSize"].toString(), "Custom.400x500");
}

TEST_F(HostPolicy, OpensOnThePPDsDefaultPageSize)
{
    openFile(PPDText().allOptions().file());
    EXPECT_EQ(state("basic")["panels"][QString("basic")].toObject()["paperName"].toString(), "A4");
}

TEST_F(HostPolicy, HasNoPaperNameWhenTheSettingsHoldNone)
{
    openFile(PPDText().allOptions().file(), {{"paper", QJsonValue()}});
    EXPECT_TRUE(state("basic")["panels"][QString("basic")].toObject()["paperName"].isNull());
    EXPECT_TRUE(print()); // without a size there is nothing to refuse
}

TEST_F(HostPolicy, AsksEveryPanelBeforePrintingAndThenSavesTheOneOnDisplay)
{
    open(PPDText().allOptions());
    show("advanced");
    EXPECT_TRUE(print());
    const Marks expected{{"QnPaperSizeType", "QnCutSize"},
                         {"QnPaperFeed", "1.023622"},
                         {"QnPaperSizeType", "QnCutSize"},
                         {"QnPaperSizeType", "QnCutSize"},
                         {"QnDensity", "DHome"},
                         {"QnSpeed", "SHome"},
                         {"QnPerforated", "OFF"},
                         {"QnHalftonePattern", "Dither"},
                         {"QnReversal", "OFF"},
                         {"QnMirror", "OFF"},
                         {"QnBiDiPrint", "OFF"}};
    EXPECT_EQ(marks(), expected);
}

TEST_F(HostPolicy, StopsAtTheFirstPanelThatRefuses)
{
    open(PPDText().allOptions());
    show("basic");
    type("99");
    EXPECT_FALSE(print());
    EXPECT_EQ(marks(), (Marks{{"QnPaperSizeType", "QnCutSize"}, {"QnPaperFeed", "3.897638"}}));
}

TEST_F(HostPolicy, MakesNoPanelsForAnotherType)
{
    openFile(PPDText().allOptions().file(), {{"type", "something else"}});
    EXPECT_TRUE(reply()["accepted"].toBool());
    EXPECT_EQ(reply()["panels"], QJsonValue(QJsonArray()));
    EXPECT_TRUE(print());
}

struct SystemRow
{
    QJsonValue version;
    bool accepted;
};

void PrintTo(const SystemRow &row, std::ostream *out) { *out << row.version.toString("null").toStdString(); }

/// Each of these runs in a process of its own: the plug-in tests the version once per process.
class SystemTest : public DialogTest, public testing::WithParamInterface<SystemRow>
{};

TEST_P(SystemTest, IsAcceptedFrom10Point5OnAndNeverAskedAgain)
{
    openFile(PPDText().allOptions().file(), {{"system", GetParam().version}});
    const bool first = reply()["accepted"].toBool();
    openFile(PPDText().allOptions().file(), {{"system", "10.4.0"}});
    EXPECT_EQ(reply()["accepted"].toBool(), first);
    openFile(PPDText().allOptions().file(), {{"system", "11.0.0"}});
    EXPECT_EQ(reply()["accepted"].toBool(), first);
    EXPECT_EQ(reply()["panels"].toArray().size(), first ? 2 : 0);
    EXPECT_TRUE(first == GetParam().accepted || !qEnvironmentVariableIsSet("QN_OWN_PROCESS"));
}

INSTANTIATE_TEST_SUITE_P(Versions, SystemTest,
                         testing::Values(SystemRow{"10.4.11", false}, SystemRow{"10.5.0", true},
                                         SystemRow{"10.6.0", true}, SystemRow{"11.0.0", true},
                                         SystemRow{"9.9.9", false}, SystemRow{QJsonValue(), false}));

/// A bundle of two panels, of which the first marks a choice when it goes, and the second is still there.
class LastWords : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir().mkdir(m_path) && QFile::copy(QN_LAST_WORDS, m_path + "/LastWords.so"));
        QFile info(m_path + "/Info.json");
        ASSERT_TRUE(info.open(QIODevice::WriteOnly));
        info.write(QJsonDocument({{"executable", "LastWords.so"},
                                  {"principalClass", "LastWords"},
                                  {"abiVersion", kPDEInterfaceVersion},
                                  {"build", host::buildTag()}})
                       .toJson());
        info.close();
        host::DialogSession::Parameters parameters;
        parameters.ppdPath = PPDText().standardOption("QnMedia").file();
        parameters.bundlePath = m_path;
        m_session = value(host::DialogSession::open(parameters));
        m_session->start(host::DialogSession::Prepare::nothing);
        ASSERT_EQ(m_session->panels().size(), 2U);
    }
    /// How many reports the second panel has heard.
    QString reports() const
    {
        return value(host::PlugIn::load(m_path, "none")).entry->remembered().front().value.value_or("none");
    }

    QTemporaryDir m_directory;
    QString m_path = m_directory.filePath("LastWords.plugin");
    std::unique_ptr<host::DialogSession> m_session;
};

TEST_F(LastWords, AreReportedToNobody)
{
    ASSERT_TRUE(m_session->mark("QnMedia", "ThermalCopy"));
    ASSERT_TRUE(m_session->mark("QnMedia", "Thermal"));
    ASSERT_EQ(reports(), "2");
    m_session.reset();
    EXPECT_EQ(reports(), "2");
}

} // namespace
