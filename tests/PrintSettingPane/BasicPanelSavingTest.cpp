// What the basic panel writes back, and what its actions do.
#include "Dialog.h"

using namespace support;

namespace {

class BasicPanel : public DialogTest
{
protected:
    void openOn(const QString &paper, const QJsonObject &more = {})
    {
        open(PPDText().allOptions(), paper, more);
        show("basic");
    }
    QJsonObject save() { return request({{"do", "save"}, {"panel", "basic"}}); }
};

TEST_F(BasicPanel, SavesThePaperKindAndFiveOptionsInOrderButNotTheDensity)
{
    openOn("A4");
    EXPECT_TRUE(save()["result"].toBool());
    EXPECT_EQ(marks(), (Marks{{"QnPaperSizeType", "QnCutSize"},
                              {"QnMedia", "Thermal"},
                              {"QnRollPrinterCase", "Default"},
                              {"QnFormFeedMode", "FF0"},
                              {"QnPaperFeed", "1.023622"},
                              {"QnPerforated", "OFF"}}));
}

TEST_F(BasicPanel, SavesTheSameTwice)
{
    openOn("RollA4");
    save();
    const Marks first = marks();
    save();
    EXPECT_EQ(marks(), first);
}

TEST_F(BasicPanel, SavesNothingForOptionsThatThePPDLacks)
{
    open(PPDText());
    show("basic");
    save();
    EXPECT_EQ(marks(), (Marks{{"QnPaperSizeType", "QnCutSize"}})); // asked of the host all the same
}

TEST_F(BasicPanel, CutsAnIndexBeyondTheChoicesToTheLastOne)
{
    // The interface file's menu has four items, the PPD two choices and no default.
    open(PPDText()
             .option("QnRollPrinterCase", "Roll Printer Case", "", {{"A", "a"}, {"B", "b"}})
             .attribute("QnRollPrinterCaseHidden", "False"),
         "A4");
    show("basic");
    pick("mRollPrintPopUp", 3); // nothing is marked, and the menu goes back to the selection
    EXPECT_TRUE(marks().empty());
    EXPECT_EQ(selected("mRollPrintPopUp"), 0);
}

TEST_F(BasicPanel, SendsNothingForAnOptionWithoutChoices)
{
    open(PPDText().option("QnMedia", "Paper Type", "", {}));
    show("basic");
    save();
    EXPECT_TRUE(marksOf("QnMedia").isEmpty());
}

// Without a menu, the paper decides before the marked choice does, for the roll printer case as for the form feed.
struct Override
{
    const char *paper;
    const char *formFeed;
    const char *rollCase;
};

void PrintTo(const Override &row, std::ostream *out) { *out << row.paper; }

class WithoutMenus : public BasicPanel, public testing::WithParamInterface<Override>
{};

TEST_P(WithoutMenus, ThePaperDecidesTheFormFeedAndTheRollPrinterCase)
{
    open(PPDText().allOptions(), GetParam().paper,
         {{"prepare", false}, {"defaults", QJsonObject{{"QnFormFeedMode", "FF1"}, {"QnRollPrinterCase", "Off"}}}});
    EXPECT_EQ(marksOf("QnFormFeedMode"), QStringList(GetParam().formFeed));
    EXPECT_EQ(marksOf("QnRollPrinterCase"), QStringList(GetParam().rollCase));
    EXPECT_EQ(marksOf("QnMedia"), QStringList("Thermal")); // no other option goes by the paper
}

INSTANTIATE_TEST_SUITE_P(EachPaper, WithoutMenus,
                         testing::Values(Override{"PerfA4", "FF2", "On"}, Override{"PerfLetter", "FF2", "On"},
                                         Override{"PerfLegal", "FF2", "On"},
                                         Override{"RetractA4", "FF3", "OnNoAntiCurl"},
                                         Override{"RetractLetter", "FF3", "OnNoAntiCurl"},
                                         Override{"RetractLegal", "FF3", "OnNoAntiCurl"},
                                         Override{"ContinuousLetter", "FF0", "Default"}, Override{"A4", "FF1", "Off"},
                                         Override{"RollA4", "FF1", "Off"}, Override{"perfa4", "FF1", "Off"},
                                         Override{"customsize", "FF1", "Off"}));

TEST_F(BasicPanel, CutsThePapersIndexToTheLastChoiceThatThereIs)
{
    open(PPDText().option("QnFormFeedMode", "Form Feed", "A", {{"A", "a"}, {"B", "b"}}), "RetractA4",
         {{"prepare", false}});
    EXPECT_EQ(marksOf("QnFormFeedMode"), QStringList("B"));
}

struct AmountSent
{
    const char *locale;
    const char *typed;
    const char *sent;
};

class SentAmount : public BasicPanel, public testing::WithParamInterface<AmountSent>
{};

TEST_P(SentAmount, IsInInchesWithSixDecimals)
{
    openOn("A4", {{"locale", GetParam().locale}});
    type(GetParam().typed);
    save();
    EXPECT_EQ(marksOf("QnPaperFeed"), QStringList(GetParam().sent));
}

INSTANTIATE_TEST_SUITE_P(Units, SentAmount,
                         testing::Values(AmountSent{"de_DE", "26", "1.023622"}, AmountSent{"de_DE", "1", "0.039370"},
                                         AmountSent{"de_DE", "51", "2.007874"}, AmountSent{"en_GB", "26", "1.023622"},
                                         AmountSent{"en_US", "1.5", "1.500000"}, AmountSent{"en_US", "2.0", "2.000000"},
                                         AmountSent{"en_US", "", "0.000000"}, AmountSent{"de_DE", "x", "0.000000"}));

TEST_F(BasicPanel, SendsTheAmountInEveryFormFeedModeAndOutOfRangeToo)
{
    openOn("A4");
    type("99");
    pick("mFormFeedModePopUp", 2);
    save();
    EXPECT_EQ(marksOf("QnPaperFeed"), QStringList("3.897638"));
    EXPECT_EQ(marked("QnPaperFeed"), "Custom.1.02362"); // the host marks nothing beyond the range
}

struct Action
{
    const char *control;
    int item;
    const char *keyword;
    const char *choice;
};

void PrintTo(const Action &row, std::ostream *out) { *out << row.control; }

class Picking : public BasicPanel, public testing::WithParamInterface<Action>
{};

TEST_P(Picking, MarksTheChoiceAndNothingElse)
{
    openOn("Poster"); // a paper that allows most
    pick(GetParam().control, GetParam().item);
    EXPECT_EQ(marks(), (Marks{{GetParam().keyword, GetParam().choice}}));
    EXPECT_EQ(selected(GetParam().control), GetParam().item);
    EXPECT_EQ(marked(GetParam().keyword), GetParam().choice);
}

INSTANTIATE_TEST_SUITE_P(Actions, Picking,
                         testing::Values(Action{"mDensityPopUp", 11, "QnDensity", "D10"},
                                         Action{"mMediaPopUp", 1, "QnMedia", "ThermalCopy"},
                                         Action{"mFormFeedModePopUp", 1, "QnFormFeedMode", "FF1"},
                                         Action{"mRollPrintPopUp", 2, "QnRollPrinterCase", "On"},
                                         Action{"mPerforatedPopUp", 0, "QnPerforated", "OFF"}));

// A form-feed item picked on a paper: the memo, the perforated menu and the amount.
struct FormFeedPick
{
    const char *paper;
    int item;
    const char *memo;
    const char *perforated; // '+' available
    bool amountOpen;
};

void PrintTo(const FormFeedPick &row, std::ostream *out) { *out << row.paper << ' ' << row.item; }

class FormFeed : public BasicPanel, public testing::WithParamInterface<FormFeedPick>
{};

TEST_P(FormFeed, DecidesMemoPerforationAndAmount)
{
    openOn(GetParam().paper);
    pick("mFormFeedModePopUp", GetParam().item);
    EXPECT_EQ(memo(), GetParam().memo);
    EXPECT_EQ(available("mPerforatedPopUp"), GetParam().perforated);
    EXPECT_EQ(selected("mPerforatedPopUp"), 0);
    EXPECT_EQ(control("mPaperFeedTxt")["editable"].toBool(), GetParam().amountOpen);
    EXPECT_EQ(isEnabled("mPaperFeedStepper"), GetParam().amountOpen);
    for (const char *text : {"mPaperFeedTxt", "mPaperFeedStr", "mMetricSystemStr"})
        EXPECT_EQ(control(text)["color"].toString(), GetParam().amountOpen ? "control" : "disabled") << text;
}

INSTANTIATE_TEST_SUITE_P(
    Papers, FormFeed,
    testing::Values(FormFeedPick{"A4", 0, "NO", "+-", true}, FormFeedPick{"A4", 1, "NO", "+-", false},
                    FormFeedPick{"A4", 2, "NO", "+-", false}, FormFeedPick{"PerfA4", 2, "NO", "+-", false},
                    FormFeedPick{"RollA4", 0, "NO", "+-", true}, FormFeedPick{"RollA4", 1, "YES", "++", false},
                    FormFeedPick{"RollLetter", 1, "YES", "++", false}, FormFeedPick{"RollLegal", 1, "YES", "++", false},
                    FormFeedPick{"customsize", 0, "NO", "+-", true}, FormFeedPick{"customsize", 1, "YES", "++", false},
                    FormFeedPick{"customsize", 2, "NO", "+-", false}, FormFeedPick{"Poster", 1, "NO", "+-", false},
                    FormFeedPick{"ContinuousLetter", 0, "NO", "+-", true},
                    FormFeedPick{"RetractA4", 3, "NO", "+-", false}));

TEST_F(BasicPanel, SwitchesPerforationOffOnTheScreenOnlyWhenTheFormFeedChanges)
{
    openOn("customsize");
    pick("mFormFeedModePopUp", 1);
    pick("mPerforatedPopUp", 1);
    ASSERT_EQ(marked("QnPerforated"), "ON");
    pick("mFormFeedModePopUp", 1); // the item already selected sends its action too; mode 1 leaves the selection
    EXPECT_EQ(selected("mPerforatedPopUp"), 1);
    choosePaper("A4");
    EXPECT_EQ(selected("mPerforatedPopUp"), 0);
}

TEST_F(BasicPanel, GoesBackToItemZeroAndForgetsTheMemoWhenItIsPicked)
{
    openOn("RollA4");
    pick("mFormFeedModePopUp", 1);
    ASSERT_EQ(memo(), "YES");
    pick("mFormFeedModePopUp", 0); // the adjustment by the memo is undone by the selection
    EXPECT_EQ(selected("mFormFeedModePopUp"), 0);
    EXPECT_EQ(memo(), "NO");
    EXPECT_EQ(marked("QnFormFeedMode"), "FF0");
}

TEST_F(BasicPanel, RemembersYesAgainWithTheNextAdjustmentOnTheRoll)
{
    openOn("A4");
    pick("mFormFeedModePopUp", 1); // "NO": not a roll
    choosePaper("RollA4");
    EXPECT_EQ(memo(), "YES");
}

class PerforatedPick : public BasicPanel, public testing::WithParamInterface<const char *>
{};

TEST_P(PerforatedPick, LocksTheFormFeedToItem1)
{
    openOn(GetParam());
    pick("mFormFeedModePopUp", 1);
    pick("mPerforatedPopUp", 1);
    EXPECT_EQ(marks(), (Marks{{"QnPerforated", "ON"}}));
    EXPECT_EQ(available("mFormFeedModePopUp"), "-+--");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 1);
    pick("mPerforatedPopUp", 0);
    EXPECT_EQ(available("mFormFeedModePopUp").left(2), "++");
}

INSTANTIATE_TEST_SUITE_P(RollsAndUserDefined, PerforatedPick,
                         testing::Values("RollA4", "RollLetter", "RollLegal", "customsize"));

TEST_F(BasicPanel, LeavesTheFormFeedAloneOnAnotherPaper)
{
    openOn("Poster", {{"defaults", QJsonObject{{"QnFormFeedMode", "FF1"}}}});
    pick("mPerforatedPopUp", 1);
    EXPECT_EQ(marked("QnPerforated"), "ON");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 1);
    EXPECT_EQ(marks(), (Marks{{"QnPerforated", "ON"}}));
}

TEST_F(BasicPanel, MovesTheFormFeedOfRollPaperFrom2To1AndRemembersItOnlyWithTheNextPaper)
{
    openOn("A4");
    pick("mFormFeedModePopUp", 2); // on plain paper the memo becomes "NO"
    choosePaper("RollA4");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 1);
    EXPECT_EQ(memo(), "NO"); // the rule looks at the item as it was before the move
    choosePaper("RollLetter");
    EXPECT_EQ(memo(), "YES");
}

TEST_F(BasicPanel, OpensTheAmountOfContinuousPaperAgainWithTheNextRefresh)
{
    // Items beyond the four are no mode that the rules know: "not 0".
    PPDText::Choices five{{"A", "a"}, {"B", "b"}, {"C", "c"}, {"D", "d"}, {"E", "e"}};
    open(PPDText()
             .standardOption("QnDensity")
             .option("QnFormFeedMode", "Form Feed", "A", five)
             .attribute("QnFormFeedModeObjHidden", "False"),
         "ContinuousLetter");
    show("basic");
    pick("mFormFeedModePopUp", 4);
    EXPECT_FALSE(control("mPaperFeedTxt")["editable"].toBool());
    pick("mDensityPopUp", 0);
    EXPECT_TRUE(control("mPaperFeedTxt")["editable"].toBool());
}

} // namespace
