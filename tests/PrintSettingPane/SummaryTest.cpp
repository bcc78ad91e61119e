// What the summaries of both panels say.
#include "Dialog.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace support;

namespace {

constexpr auto kOrder = "Summary Display Order";

QStringList order(const QJsonObject &summary)
{
    QStringList titles;
    for (const auto &title : summary[kOrder].toArray())
        titles.append(title.toString());
    return titles;
}

const QJsonObject kUSB{{"uri", "usb://Qn/Printer"}, {"system", "10.5.0"}};

class Summary : public DialogTest
{
protected:
    /// The value that a panel's summary gives an option whose choice is marked.
    QString value(const QString &panel, const QString &title) { return summary(panel)[title].toString("(no entry)"); }
};

TEST_F(Summary, ListsEveryOptionOfTheBasicPanelInOrder)
{
    open(PPDText().allOptions().attribute("ModelName", "Qn 210").attribute("FileVersion", "1.5"), "A4", kUSB);
    EXPECT_EQ(order(summary("basic")),
              QStringList({"RS_STitle_Model", "RS_STitle_Version", "Print Density", "Print Speed", "Paper Type",
                           "Form Feed", "Paper Feed", "Perforated Paper", "Halftone", "Roll Printer Case",
                           "Reverse Black and White", "Mirror Image", "Bi-directional Printing"}));
    EXPECT_EQ(value("basic", "RS_STitle_Model"), "Qn 210");
    EXPECT_EQ(value("basic", "RS_STitle_Version"), "1.5");
}

TEST_F(Summary, ListsEveryOptionOfTheAdvancedPanelButTheRollPrinterCase)
{
    open(PPDText().allOptions().attribute("ModelName", "Qn 210").attribute("FileVersion", "1.5"), "A4", kUSB);
    EXPECT_EQ(order(summary("advanced")),
              QStringList({"RS_STitle_Model", "RS_STitle_Version", "Print Density", "Print Speed", "Paper Type",
                           "Form Feed", "Paper Feed", "Perforated Paper", "Halftone", "Reverse Black and White",
                           "Mirror Image", "Bi-directional Printing"}));
}

TEST_F(Summary, IsShortOfNothingElseWhereMirrorAndBothDirectionsAreWithheld)
{
    open(PPDText().allOptions(), "A4", {{"uri", "ipp://qn/printer"}, {"system", "11.0.0"}, {"prepare", false}});
    EXPECT_EQ(order(summary("basic")), // nor is there a paper feed before the panel was shown
              QStringList({"Print Density", "Print Speed", "Paper Type", "Form Feed", "Perforated Paper", "Halftone",
                           "Roll Printer Case", "Reverse Black and White"}));
}

struct FallbackTitle
{
    const char *option;
    const char *title;
};

class FallbackTitles : public Summary, public testing::WithParamInterface<FallbackTitle>
{};

TEST_P(FallbackTitles, NameAnOptionWhoseTextIsNotUTF8)
{
    // Texts with a byte that no UTF-8 text has; the library keeps the bytes of a PPD that declares UTF-8.
    PPDText ppd;
    ppd.option(GetParam().option, "bad\xff", "C0", {{"C0", "Zero"}, {"C1", "One"}});
    ppd.attribute("QnBiDiPrintObjHidden", "False");
    open(ppd, "A4", kUSB);
    EXPECT_EQ(order(summary("basic")), QStringList(GetParam().title));
}

INSTANTIATE_TEST_SUITE_P(EachOption, FallbackTitles,
                         testing::Values(FallbackTitle{"QnDensity", "RS_STitle_Density"},
                                         FallbackTitle{"QnSpeed", "RS_Speed"},
                                         FallbackTitle{"QnMedia", "RS_STitle_Media"},
                                         FallbackTitle{"QnFormFeedMode", "RS_STitle_FormFeedMode"},
                                         FallbackTitle{"QnPaperFeed", "RS_STitle_PaperFeed"},
                                         FallbackTitle{"QnPerforated", "RS_STitle_Perforated"},
                                         FallbackTitle{"QnHalftonePattern", "HC_STitle_Halftone"},
                                         FallbackTitle{"QnRollPrinterCase", "HC_STitle_RollPrint"},
                                         FallbackTitle{"QnReversal", "HC_STitle_Reversal"},
                                         FallbackTitle{"QnMirror", "HC_STitle_Mirror"},
                                         FallbackTitle{"QnBiDiPrint", "HC_STitle_BiDiPrint"}),
                         [](const auto &row) { return std::string(row.param.option); });

struct IndexKeys
{
    const char *option;
    const char *title;
    QStringList withText;    // what choices with the texts T0, T1, ... show
    QStringList withoutText; // what choices without a readable text show
};

class ValuesByIndex : public Summary, public testing::WithParamInterface<IndexKeys>
{
protected:
    void openWith(const QByteArray &textOfChoices)
    {
        PPDText::Choices choices;
        for (int i = 0; i < GetParam().withText.size() + 1; ++i)
            choices.emplace_back("C" + QByteArray::number(i), textOfChoices + QByteArray::number(i));
        open(PPDText().option(GetParam().option, "Title", "C0", choices).attribute("QnBiDiPrintObjHidden", "False"),
             "A4", kUSB);
    }
};

TEST_P(ValuesByIndex, AreTheChoiceTextOrTheFixedKey)
{
    openWith("T");
    for (int i = 0; i < GetParam().withText.size(); ++i) {
        ASSERT_TRUE(mark(GetParam().option, QString("C%1").arg(i)));
        EXPECT_EQ(value("basic", "Title"), GetParam().withText[i]) << i;
    }
}

TEST_P(ValuesByIndex, AreTheListedKeyWhereTheTextIsNotUTF8)
{
    openWith("bad\xff");
    for (int i = 0; i < GetParam().withoutText.size(); ++i) {
        ASSERT_TRUE(mark(GetParam().option, QString("C%1").arg(i)));
        EXPECT_EQ(value("basic", "Title"), GetParam().withoutText[i]) << i;
    }
}

TEST_P(ValuesByIndex, AreTheSelectionsOwnTitleBeyondTheListedIndexes)
{
    openWith("T");
    const auto beyond = GetParam().withText.size();
    ASSERT_TRUE(mark(GetParam().option, QString("C%1").arg(beyond)));
    EXPECT_EQ(value("basic", "Title"), QString("T%1").arg(beyond));
}

QStringList numbered(int count)
{
    QStringList result;
    for (int i = 0; i < count; ++i)
        result.append(QString("T%1").arg(i));
    return result;
}

const QStringList kNoYes{"RS_STitle_No", "RS_STitle_Yes"};
const QStringList kHalftones{"HC_Binary", "HC_Dither", "HC_ErrorDiffusion"};

INSTANTIATE_TEST_SUITE_P(
    EachOption, ValuesByIndex,
    testing::Values(
        IndexKeys{"QnDensity",
                  "RS_STitle_Density",
                  numbered(12),
                  {"RS_Density_home", "RS_Density_0", "RS_Density_1", "RS_Density_2", "RS_Density_3", "RS_Density_4",
                   "RS_Density_5", "RS_Density_6", "RS_Density_7", "RS_Density_8", "RS_Density_9", "RS_Density_10"}},
        IndexKeys{"QnSpeed",
                  "RS_Speed",
                  numbered(5),
                  {"RS_Speed_home", "RS_Speed_0", "RS_Speed_1", "RS_Speed_2", "RS_Speed_3"}},
        IndexKeys{"QnMedia", "", numbered(2), {"RS_Media_Thermal", "RS_Media_ThermalCopy"}},
        IndexKeys{"QnFormFeedMode",
                  "",
                  numbered(4),
                  {"RS_FormFeedMode_NO", "RS_FormFeedMode_FIX", "RS_FormFeedMode_END", "RS_FormFeedMode_RET"}},
        IndexKeys{"QnPaperFeed",
                  "",
                  numbered(5),
                  {"RS_PaperFeed_NO", "RS_PaperFeed_1/2", "RS_PaperFeed_1", "RS_PaperFeed_1-1/2", "RS_PaperFeed_2"}},
        IndexKeys{"QnPerforated", "", numbered(2), {"RS_Perforated_ON", "RS_Perforated_OFF"}}, // on first, on purpose
        IndexKeys{"QnHalftonePattern", "", kHalftones, kHalftones}, IndexKeys{"QnRollPrinterCase", "", kNoYes, kNoYes},
        IndexKeys{"QnReversal", "", kNoYes, kNoYes}, IndexKeys{"QnMirror", "", kNoYes, kNoYes},
        IndexKeys{"QnBiDiPrint", "", kNoYes, kNoYes}),
    [](const auto &row) { return std::string(row.param.option); });

TEST_F(Summary, OmitsAnOptionThatThePPDLacks)
{
    open(PPDText().standardOption("QnDensity"));
    EXPECT_EQ(order(summary("basic")), QStringList("Print Density"));
}

TEST_F(Summary, HoldsOnlyAnEmptyOrderWhenThereIsNothingToSay)
{
    open(PPDText());
    for (const char *panel : {"basic", "advanced"}) {
        const QJsonObject nothing = summary(panel);
        EXPECT_EQ(nothing.keys(), QStringList(kOrder)) << panel;
        EXPECT_TRUE(nothing[kOrder].toArray().isEmpty()) << panel;
    }
}

TEST_F(Summary, OmitsModelAndVersionThatAreEmpty)
{
    open(PPDText().attribute("ModelName", "").attribute("FileVersion", ""));
    EXPECT_TRUE(order(summary("basic")).isEmpty());
}

TEST_F(Summary, KeepsAnEmptyTitleInTheOrder)
{
    open(PPDText()
             .line("*OpenUI *QnMedia/ : PickOne")
             .line("*DefaultQnMedia: A")
             .line("*QnMedia A/Alpha: \"x\"")
             .line("*CloseUI: *QnMedia"));
    const QJsonObject entries = summary("basic");
    ASSERT_EQ(order(entries).size(), 1);
    EXPECT_EQ(order(entries).first().trimmed(), "");
    EXPECT_EQ(entries[order(entries).first()].toString(), "Alpha");
}

TEST_F(Summary, KeepsATitleInTheOrderThatHasNoCharacterAtAll)
{
    // In this encoding the library makes nothing of these two bytes; any text that a PPD spells empty has a default.
    const QByteArray text = PPDText()
                                .option("QnMedia", "\xff\xfe", "A", {{"A", "Alpha"}})
                                .text()
                                .replace("*LanguageEncoding: UTF-8", "*LanguageEncoding: JIS83-RKSJ");
    QTemporaryDir directory;
    QFile file(directory.filePath("empty.ppd"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    openFile(file.fileName(), {{"paper", "A4"}});
    const QJsonObject entries = summary("basic");
    EXPECT_EQ(order(entries), QStringList(""));
    EXPECT_EQ(entries[""].toString(), "Alpha");
}

TEST_F(Summary, GivesEqualTitlesTheLaterValueAndTwoPlaces)
{
    open(PPDText().option("QnDensity", "Same", "A", {{"A", "Dense"}}).option("QnMedia", "Same", "B", {{"B", "Paper"}}));
    const QJsonObject entries = summary("basic");
    EXPECT_EQ(order(entries), QStringList({"Same", "Same"}));
    EXPECT_EQ(entries["Same"].toString(), "Paper");
}

TEST_F(Summary, LetsTheOrderWinOverAnOptionOfItsName)
{
    open(PPDText().option("QnMedia", kOrder, "A", {{"A", "Alpha"}}));
    EXPECT_EQ(order(summary("basic")), QStringList(kOrder));
}

TEST_F(Summary, TakesTheFirstLineBreakOutOfTheHalftoneValue)
{
    // The table of the bundle has no line break in it; the selection's own title may.
    open(PPDText().option("QnHalftonePattern", "Halftone", "A",
                          {{"A", "a"}, {"B", "b"}, {"C", "c"}, {"D", "Fine<0A>and<0A>slow"}}));
    ASSERT_TRUE(mark("QnHalftonePattern", "D"));
    const QString shown = value("basic", "Halftone");
    EXPECT_EQ(shown.count('\n'), 1);
    EXPECT_TRUE(shown.startsWith("Fineand\nslow")) << shown.toStdString();
}

struct MirrorRow
{
    const char *system;
    bool shown;
};

class MirrorEntry : public Summary, public testing::WithParamInterface<MirrorRow>
{};

TEST_P(MirrorEntry, DependsOnTheSystem)
{
    open(PPDText().standardOption("QnMirror"), "A4", {{"system", GetParam().system}});
    for (const char *panel : {"basic", "advanced"})
        EXPECT_EQ(order(summary(panel)).contains("Mirror Image"), GetParam().shown) << panel;
}

INSTANTIATE_TEST_SUITE_P(Systems, MirrorEntry,
                         testing::Values(MirrorRow{"10.5.0", true}, MirrorRow{"10.5.9", true},
                                         MirrorRow{"10.6.0", false}, MirrorRow{"11.0.0", false}));

struct BiDiRow
{
    const char *uri;
    const char *hidden;
    bool shown;
};

class BiDiEntry : public Summary, public testing::WithParamInterface<BiDiRow>
{};

TEST_P(BiDiEntry, NeedsUSBAndAFlagThatSaysFalse)
{
    open(PPDText()
             .option("QnBiDiPrint", "Bi-directional Printing", "OFF", {{"OFF", "Off"}, {"ON", "On"}})
             .attribute("QnBiDiPrintObjHidden", GetParam().hidden),
         "A4", {{"uri", GetParam().uri}});
    for (const char *panel : {"basic", "advanced"})
        EXPECT_EQ(order(summary(panel)).contains("Bi-directional Printing"), GetParam().shown) << panel;
}

INSTANTIATE_TEST_SUITE_P(Connections, BiDiEntry,
                         testing::Values(BiDiRow{"usb://a", "False", true}, BiDiRow{"QNLRUSB://a", "False", true},
                                         BiDiRow{"usb://a", "false", false}, BiDiRow{"usb://a", "True", false},
                                         BiDiRow{"USB://a", "False", false}, BiDiRow{"ipp://a", "False", false},
                                         BiDiRow{"", "False", false}, BiDiRow{"usb", "False", false}));

TEST_F(Summary, HasNoPaperFeedBeforeItsPanelWasShown)
{
    open(PPDText().allOptions(), "A4", {{"prepare", false}});
    EXPECT_FALSE(order(summary("basic")).contains("Paper Feed"));
    EXPECT_TRUE(order(summary("basic")).contains("Form Feed"));
    EXPECT_FALSE(order(summary("advanced")).contains("Paper Feed"));
}

TEST_F(Summary, KeepsThePaperFeedWhileTheAmountIsOnlyReadOnly)
{
    open(PPDText().allOptions(), "PerfA4");
    show("basic");
    EXPECT_FALSE(control("mPaperFeedTxt")["editable"].toBool());
    EXPECT_TRUE(order(summary("basic")).contains("Paper Feed"));
}

TEST_F(Summary, OmitsThePaperFeedOfTheAdvancedPanelWhereItsMenuIsDisabled)
{
    QTemporaryDir directory;
    const QString bundle = directory.filePath("Copy.plugin");
    ASSERT_EQ(QProcess::execute("cp", {"-r", QN_BUNDLE_DIR, bundle}), 0);
    QFile form(bundle + "/Resources/PrintSettingAdvancedPDE.ui");
    ASSERT_TRUE(form.open(QIODevice::ReadOnly));
    const QByteArray menu = "name=\"mPaperFeedPopUp\">";
    const QByteArray disabled =
        form.readAll().replace(menu, menu + "<property name=\"enabled\"><bool>false</bool></property>");
    form.close();
    ASSERT_TRUE(form.remove() && form.open(QIODevice::WriteOnly) && form.write(disabled) == disabled.size());
    form.close();

    open(PPDText().allOptions(), "A4");
    EXPECT_TRUE(order(summary("advanced")).contains("Paper Feed"));
    open(PPDText().allOptions(), "A4", {{"bundle", bundle}});
    EXPECT_FALSE(order(summary("advanced")).contains("Paper Feed"));
    EXPECT_TRUE(order(summary("basic")).contains("Paper Feed"));
}

TEST_F(Summary, ShowsTheCustomChoiceByItsTextNotByItsAmount)
{
    open(PPDText().allOptions());
    EXPECT_EQ(marked("QnPaperFeed").left(7), "Custom.");
    EXPECT_EQ(value("basic", "Paper Feed"), "Custom");
}

TEST_F(Summary, LooksTextsUpInTheTablesOfTheBundle)
{
    open(PPDText().allOptions(), "A4", {{"language", "de"}});
    EXPECT_EQ(value("basic", "Druckdichte"), "Druckereinstellung verwenden");
}

TEST_F(Summary, ChangesNothing)
{
    open(PPDText().allOptions());
    show("basic");
    const QJsonObject before = state("basic");
    summary("basic");
    EXPECT_EQ(marks().size(), 0U);
    EXPECT_EQ(state("basic"), before);
}

} // namespace
