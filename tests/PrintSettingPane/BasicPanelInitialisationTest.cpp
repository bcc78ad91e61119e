// How the basic panel's controls are built from the PPD.
#include "Dialog.h"

using namespace support;

namespace {

struct Family
{
    const char *keyword;
    const char *hidden;
    const char *label;
    const char *popUp;
    const char *titleKey;
    QStringList items; // of the interface file, and in place of choices without a text
};

void PrintTo(const Family &row, std::ostream *out) { *out << row.keyword; }

const Family kFamily[]{
    {"QnMedia",
     "QnMediaObjHidden",
     "mMediaStr",
     "mMediaPopUp",
     "RS_Media",
     {"RS_Media_Thermal", "RS_Media_ThermalCopy"}},
    {"QnFormFeedMode",
     "QnFormFeedModeObjHidden",
     "mFormFeedModeStr",
     "mFormFeedModePopUp",
     "RS_FormFeedMode",
     {"RS_FormFeedMode_NO", "RS_FormFeedMode_FIX", "RS_FormFeedMode_END", "RS_FormFeedMode_RET"}},
    {"QnRollPrinterCase",
     "QnRollPrinterCaseHidden",
     "mRollPrintStr",
     "mRollPrintPopUp",
     "HC_STitle_RollPrint",
     {"HC_STitle_RollPrint_DEFAULT", "HC_STitle_RollPrint_OFF", "HC_STitle_RollPrint_ON",
      "HC_STitle_RollPrint_ONWithoutAntiCurl"}},
    {"QnPerforated",
     "QnPerforatedObjHidden",
     "mPerforatedStr",
     "mPerforatedPopUp",
     "RS_Perforated",
     {"RS_Perforated_OFF", "RS_Perforated_ON"}},
};

class PopUpFamily : public DialogTest, public testing::WithParamInterface<Family>
{
protected:
    static PPDText::Choices choices(int count, const QByteArray &text = "Text ")
    {
        PPDText::Choices result;
        for (int i = 0; i < count; ++i)
            result.emplace_back("C" + QByteArray::number(i), text + QByteArray::number(i));
        return result;
    }
    int count() const { return static_cast<int>(GetParam().items.size()); }
    void openWith(PPDText ppd, const QJsonObject &more = {})
    {
        open(ppd, "Poster", more);
        show("basic");
    }
};

TEST_P(PopUpFamily, ShowsThePPDsTextsInPlaceOfTheInterfaceFilesItems)
{
    openWith(
        PPDText().option(GetParam().keyword, "Title", "C1", choices(count())).attribute(GetParam().hidden, "False"));
    QStringList expected;
    for (int i = 0; i < count(); ++i)
        expected.append(QString("Text %1").arg(i));
    EXPECT_EQ(titles(GetParam().popUp), expected);
    EXPECT_EQ(text(GetParam().label), "Title : ");
    EXPECT_EQ(selected(GetParam().popUp), 1);
    EXPECT_TRUE(isEnabled(GetParam().popUp));
    EXPECT_EQ(control(GetParam().label)["color"].toString(), "control");
}

TEST_P(PopUpFamily, IsGreyWithoutAFlagThatSaysFalse)
{
    for (const char *flag : {"True", "false", "FALSE", ""}) {
        openWith(PPDText().option(GetParam().keyword, "Title", "C0", choices(2)).attribute(GetParam().hidden, flag));
        EXPECT_FALSE(isEnabled(GetParam().popUp)) << flag;
        EXPECT_EQ(control(GetParam().label)["color"].toString(), "disabled") << flag;
    }
    openWith(PPDText().option(GetParam().keyword, "Title", "C0", choices(2)).attribute("QnOtherObjHidden", "False"));
    EXPECT_FALSE(isEnabled(GetParam().popUp));
    EXPECT_FALSE(isHidden(GetParam().popUp));
}

TEST_P(PopUpFamily, StaysTheInterfaceFilesOwnAndHiddenWithoutTheOption)
{
    openWith(PPDText());
    EXPECT_TRUE(isHidden(GetParam().popUp));
    EXPECT_TRUE(isHidden(GetParam().label));
    EXPECT_EQ(titles(GetParam().popUp), GetParam().items);
}

TEST_P(PopUpFamily, TakesTheFixedTitleWhenTheOptionHasNoReadableText)
{
    openWith(PPDText().option(GetParam().keyword, "bad\xff", "C0", choices(2)));
    EXPECT_EQ(text(GetParam().label), GetParam().titleKey);
}

TEST_P(PopUpFamily, InsertsTheWholeFixedListForEveryChoiceWithoutAReadableText)
{
    openWith(PPDText().option(GetParam().keyword, "Title", "C0", choices(2, "bad\xff")));
    EXPECT_EQ(titles(GetParam().popUp), GetParam().items + GetParam().items + GetParam().items);
}

TEST_P(PopUpFamily, ReplacesWhatStandsAtItsIndexAfterAChoiceWithoutText)
{
    openWith(PPDText().option(GetParam().keyword, "Title", "C0", {{"C0", "bad\xff"}, {"C1", "Readable"}}));
    QStringList expected = GetParam().items + GetParam().items;
    expected[1] = "Readable";
    EXPECT_EQ(titles(GetParam().popUp), expected);
}

TEST_P(PopUpFamily, KeepsTheSelectionWhenNoChoiceIsTheDefaultAndMarksIt)
{
    openWith(PPDText().option(GetParam().keyword, "Title", "", choices(2)));
    EXPECT_EQ(selected(GetParam().popUp), 0);
    EXPECT_EQ(marked(GetParam().keyword), "C0");
}

TEST_P(PopUpFamily, KeepsItemsBeyondThePPDsChoicesAtTheEnd)
{
    openWith(PPDText().option(GetParam().keyword, "Title", "C0", choices(1)).attribute(GetParam().hidden, "False"));
    QStringList expected = GetParam().items;
    expected[0] = "Text 0";
    EXPECT_EQ(titles(GetParam().popUp), expected);
}

TEST_P(PopUpFamily, HasRoomForNineChoices)
{
    openWith(PPDText().option(GetParam().keyword, "Title", "C8", choices(9)));
    EXPECT_EQ(titles(GetParam().popUp).size(), 9);
}

TEST_P(PopUpFamily, LooksThePPDsTextsUpInTheTables)
{
    openWith(
        PPDText().option(GetParam().keyword, "Paper Type", "C0", {{"C0", "Thermal Paper"}, {"C1", "100 % bright"}}),
        {{"language", "de"}});
    EXPECT_EQ(text(GetParam().label), "Papierart:");
    EXPECT_EQ(titles(GetParam().popUp).first(), "Thermopapier");
    EXPECT_EQ(titles(GetParam().popUp)[1], "100 % bright"); // a percent sign is a percent sign
}

INSTANTIATE_TEST_SUITE_P(EachOption, PopUpFamily, testing::ValuesIn(kFamily),
                         [](const auto &row) { return std::string(row.param.keyword); });

class BasicInitialisation : public DialogTest
{};

TEST_F(BasicInitialisation, NeverTouchesTheDensityMenu)
{
    open(PPDText().option("QnDensity", "Title", "B", {{"A", "a"}, {"B", "b"}}).attribute("QnDensityObjHidden", "True"));
    show("basic");
    EXPECT_EQ(titles("mDensityPopUp").size(), 12);
    EXPECT_EQ(titles("mDensityPopUp").first(), "RS_Density_home");
    EXPECT_EQ(text("mDensityStr"), "RS_Density");
    EXPECT_TRUE(isEnabled("mDensityPopUp"));
    EXPECT_EQ(selected("mDensityPopUp"), 1); // by the refresh
}

TEST_F(BasicInitialisation, LocksTheAmountWhenTheDefaultFormFeedIsNotTheFirst)
{
    open(PPDText().paperFeed().option("QnFormFeedMode", "Form Feed", "B", {{"A", "a"}, {"B", "b"}}));
    show("basic");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 1);
    EXPECT_FALSE(control("mPaperFeedTxt")["editable"].toBool());
    EXPECT_FALSE(isEnabled("mPaperFeedStepper"));
    EXPECT_EQ(control("mPaperFeedTxt")["color"].toString(), "disabled");
}

TEST_F(BasicInitialisation, GreysOnlyTheLabelOfAHiddenAmount)
{
    // On continuous paper nothing else locks the amount.
    open(PPDText().option("QnPaperFeed", "Feed", "A", {{"A", "a"}}).attribute("QnPaperFeedObjHidden", "True"), "A4",
         {{"prepare", false}});
    show("basic");
    EXPECT_EQ(text("mPaperFeedStr"), "Feed : ");
    EXPECT_TRUE(control("mPaperFeedTxt")["editable"].toBool());
    EXPECT_TRUE(isEnabled("mPaperFeedStepper"));
}

TEST_F(BasicInitialisation, NamesTheAmountByTheFixedTitleWithoutAReadableText)
{
    open(PPDText().option("QnPaperFeed", "bad\xff", "A", {{"A", "a"}}));
    show("basic");
    EXPECT_EQ(text("mPaperFeedStr"), "RS_PaperFeed");
}

TEST_F(BasicInitialisation, ShowsTheLibrarysCustomChoiceInTheList)
{
    open(PPDText().paperFeed());
    show("basic");
    EXPECT_EQ(selection("mPaperFeed_Selection").toString(), "Custom");
}

TEST_F(BasicInitialisation, KnowsNoFlagOfTheRollPrinterCaseThatIsSpelledLikeTheOthers)
{
    for (const char *flag : {"False", "True"}) {
        open(PPDText()
                 .option("QnRollPrinterCase", "Roll Printer Case", "A", {{"A", "a"}, {"B", "b"}})
                 .attribute("QnRollPrinterCaseObjHidden", flag));
        show("basic");
        EXPECT_FALSE(isEnabled("mRollPrintPopUp")) << flag;
    }
    open(PPDText().standardOption("QnRollPrinterCase").attribute("QnRollPrinterCaseObjHidden", "True"));
    show("basic");
    EXPECT_TRUE(isEnabled("mRollPrintPopUp"));
}

TEST_F(BasicInitialisation, HappensOnce)
{
    open(PPDText().allOptions());
    show("basic");
    pick("mMediaPopUp", 1);
    show("advanced");
    show("basic");
    EXPECT_EQ(selected("mMediaPopUp"), 1); // not the default again
    EXPECT_EQ(titles("mMediaPopUp").size(), 2);
}

TEST_F(BasicInitialisation, WritesTheDeclaredDefaultsBackWhateverWasMarkedMeanwhile)
{
    open(PPDText().allOptions(), "A4", {{"prepare", false}});
    ASSERT_TRUE(mark("QnMedia", "ThermalCopy"));
    show("basic");
    EXPECT_EQ(marked("QnMedia"), "Thermal");
}

} // namespace
