// How both panels follow the kind of paper.
#include "Dialog.h"

using namespace support;

namespace {

enum class AmountIs { open, locked };

// Where the basic panel starts from, the paper that is chosen, and what it shows then. "+" available, "-" not.
struct Row
{
    const char *name;
    const char *from; // paper, form feed and perforated items: "A4 F0 P0"
    const char *paper;
    const char *formFeed;   // FF 0 to FF 3
    const char *perforated; // PF 0, PF 1
    int selectedFormFeed;
    int selectedPerforated;
    AmountIs amount;
    const char *memo; // "": none
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }

class ItemsAfterChoosing : public DialogTest, public testing::WithParamInterface<Row>
{
protected:
    /// Brings the basic panel to "PAPER Fn Pn", as a person would.
    void start(const QStringList &from)
    {
        open(PPDText().allOptions(), from[0]);
        show("basic");
        if (const int formFeed = from[1].mid(1).toInt(); selected("mFormFeedModePopUp") != formFeed)
            pick("mFormFeedModePopUp", formFeed);
        if (from[2] == "P1")
            pick("mPerforatedPopUp", 1);
    }
};

TEST_P(ItemsAfterChoosing, AreThoseOfThePaper)
{
    start(QString(GetParam().from).split(' '));
    choosePaper(GetParam().paper);
    EXPECT_EQ(available("mFormFeedModePopUp"), GetParam().formFeed);
    EXPECT_EQ(available("mPerforatedPopUp"), GetParam().perforated);
    EXPECT_EQ(selected("mFormFeedModePopUp"), GetParam().selectedFormFeed);
    EXPECT_EQ(selected("mPerforatedPopUp"), GetParam().selectedPerforated);
    const bool open = GetParam().amount == AmountIs::open;
    EXPECT_EQ(control("mPaperFeedTxt")["editable"].toBool(), open);
    EXPECT_EQ(isEnabled("mPaperFeedStepper"), open);
    for (const char *text : {"mPaperFeedTxt", "mPaperFeedStr", "mMetricSystemStr"})
        EXPECT_EQ(control(text)["color"].toString(), open ? "control" : "disabled") << text;
    EXPECT_EQ(memo(), GetParam().memo);
}

std::string rowName(const testing::TestParamInfo<Row> &row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(
    FromItem0, ItemsAfterChoosing,
    testing::Values(Row{"Plain", "A4 F0 P0", "Letter", "+++-", "+-", 0, 0, AmountIs::open, ""},
                    Row{"Perforated", "A4 F0 P0", "PerfA4", "--+-", "+-", 2, 0, AmountIs::locked, ""},
                    Row{"Roll", "A4 F0 P0", "RollA4", "++--", "+-", 0, 0, AmountIs::open, ""},
                    Row{"Continuous", "A4 F0 P0", "ContinuousLetter", "+---", "+-", 0, 0, AmountIs::open, ""},
                    // "++": moving the form feed enables perforated item 1
                    Row{"Retract", "A4 F0 P0", "RetractA4", "---+", "++", 3, 0, AmountIs::locked, ""},
                    Row{"Other", "A4 F0 P0", "Poster", "+++-", "+-", 0, 0, AmountIs::open, ""},
                    Row{"UserDefined", "A4 F0 P0", "customsize", "+++-", "+-", 0, 0, AmountIs::open, ""}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    FromItem1, ItemsAfterChoosing,
    testing::Values(Row{"Plain", "A4 F1 P0", "A5", "+++-", "+-", 1, 0, AmountIs::locked, "NO"},
                    Row{"Perforated", "A4 F1 P0", "PerfLetter", "--+-", "+-", 2, 0, AmountIs::locked, "NO"},
                    Row{"Roll", "A4 F1 P0", "RollLetter", "++--", "++", 1, 0, AmountIs::locked, "YES"},
                    Row{"Continuous", "A4 F1 P0", "ContinuousLetter", "+---", "+-", 0, 0, AmountIs::open, "NO"},
                    Row{"Retract", "A4 F1 P0", "RetractLetter", "---+", "++", 3, 0, AmountIs::locked, "NO"},
                    Row{"Other", "A4 F1 P0", "Poster", "+++-", "++", 1, 0, AmountIs::locked, "NO"}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    FromItem2, ItemsAfterChoosing,
    testing::Values(Row{"Plain", "A4 F2 P0", "Legal", "+++-", "+-", 2, 0, AmountIs::locked, "NO"},
                    Row{"Perforated", "A4 F2 P0", "PerfLegal", "--+-", "+-", 2, 0, AmountIs::locked, "NO"},
                    Row{"Roll", "A4 F2 P0", "RollLegal", "++--", "++", 1, 0, AmountIs::locked, "NO"},
                    Row{"Continuous", "A4 F2 P0", "ContinuousLetter", "+---", "+-", 0, 0, AmountIs::open, "NO"},
                    Row{"Retract", "A4 F2 P0", "RetractLegal", "---+", "++", 3, 0, AmountIs::locked, "NO"},
                    Row{"Other", "A4 F2 P0", "a4", "+++-", "+-", 2, 0, AmountIs::locked, "NO"}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    FromItem3, ItemsAfterChoosing,
    testing::Values(Row{"Plain", "RetractA4 F3 P0", "A5Rotated", "+++-", "+-", 1, 0, AmountIs::locked, ""},
                    Row{"Perforated", "RetractA4 F3 P0", "PerfA4", "--+-", "+-", 2, 0, AmountIs::locked, ""},
                    Row{"Roll", "RetractA4 F3 P0", "RollA4", "++--", "++", 1, 0, AmountIs::locked, ""},
                    Row{"Continuous", "RetractA4 F3 P0", "ContinuousLetter", "+---", "+-", 0, 0, AmountIs::open, ""},
                    Row{"Retract", "RetractA4 F3 P0", "RetractLegal", "---+", "+-", 3, 0, AmountIs::locked, ""},
                    Row{"Other", "RetractA4 F3 P0", "Poster", "+++-", "+-", 1, 0, AmountIs::locked, ""}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    FromPerforated, ItemsAfterChoosing,
    testing::Values(Row{"Plain", "customsize F1 P1", "A4", "+++-", "+-", 1, 0, AmountIs::locked, "YES"},
                    Row{"Perforated", "customsize F1 P1", "PerfA4", "--+-", "+-", 2, 0, AmountIs::locked, "YES"},
                    Row{"Roll", "customsize F1 P1", "RollA4", "-+--", "++", 1, 1, AmountIs::locked, "YES"},
                    Row{"Continuous", "customsize F1 P1", "ContinuousLetter", "+---", "+-", 0, 0, AmountIs::open,
                        "YES"},
                    Row{"Retract", "customsize F1 P1", "RetractA4", "---+", "++", 3, 0, AmountIs::locked, "YES"},
                    Row{"Other", "customsize F1 P1", "Poster", "-+--", "++", 1, 1, AmountIs::locked, "YES"}),
    rowName);

struct Kind
{
    const char *paper;
    const char *choice;
};

class PaperKind : public DialogTest, public testing::WithParamInterface<Kind>
{};

TEST_P(PaperKind, IsMarkedByBothPanelsOnAPaperChangeAndBeforePrinting)
{
    open(PPDText().allOptions(), GetParam().paper[0] == 'A' ? "Letter" : "A4");
    choosePaper(GetParam().paper);
    EXPECT_EQ(marksOf("QnPaperSizeType"), QStringList(2, QString(GetParam().choice)));
    EXPECT_EQ(marked("QnPaperSizeType"), GetParam().choice);
    print();
    EXPECT_EQ(marksOf("QnPaperSizeType").value(0), GetParam().choice);
}

INSTANTIATE_TEST_SUITE_P(
    EachName, PaperKind,
    testing::Values(Kind{"A4", "QnCutSize"}, Kind{"Letter", "QnCutSize"}, Kind{"Legal", "QnCutSize"},
                    Kind{"A5", "QnCutSize"}, Kind{"A5Rotated", "QnCutSize"}, Kind{"PerfA4", "QnPerforatedSize"},
                    Kind{"PerfLetter", "QnPerforatedSize"}, Kind{"PerfLegal", "QnPerforatedSize"},
                    Kind{"RollA4", "QnRollSize"}, Kind{"RollLetter", "QnRollSize"}, Kind{"RollLegal", "QnRollSize"},
                    Kind{"ContinuousLetter", "QnInfiniteSize"}, Kind{"RetractA4", "QnPerforatedRetractSize"},
                    Kind{"RetractLetter", "QnPerforatedRetractSize"}, Kind{"RetractLegal", "QnPerforatedRetractSize"},
                    Kind{"customsize", "QnCustomSize"}, Kind{"a4", "QnCustomSize"}, Kind{"A4 ", "QnCustomSize"},
                    Kind{"ROLLA4", "QnCustomSize"}, Kind{"ContinuousA4", "QnCustomSize"}, Kind{"", "QnCustomSize"}),
    [](const auto &row) { return "Row" + std::to_string(row.index) + (*row.param.paper ? std::string("_") : ""); });

class Paper : public DialogTest
{
protected:
    void openOn(const QString &paper, const QJsonObject &more = {})
    {
        open(PPDText().allOptions(), paper, more);
        show("basic");
    }
};

TEST_F(Paper, WithoutANameCountsAsOther)
{
    openOn("RollA4");
    request({{"do", "paper"}, {"name", QJsonValue()}, {"width", 500}, {"height", 500}});
    EXPECT_EQ(marksOf("QnPaperSizeType").value(0), "QnCustomSize");
    EXPECT_TRUE(state("basic")["panels"][panel()].toObject()["paperName"].isNull());
    EXPECT_EQ(available("mFormFeedModePopUp"), "+++-");
}

TEST_F(Paper, OfAVeryLongNameCountsAsOther)
{
    openOn("A4");
    choosePaper(QString(10000, 'A'), 500, 500);
    EXPECT_EQ(marksOf("QnPaperSizeType").value(0), "QnCustomSize");
}

TEST_F(Paper, OnTheRollStoresTheMemoOnlyOnceItemOneWasThereAtEntry)
{
    openOn("A4");
    pick("mFormFeedModePopUp", 2);
    choosePaper("RollA4");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 1);
    EXPECT_EQ(memo(), "NO");
    choosePaper("RollA4"); // again, now from item 1
    EXPECT_EQ(memo(), "YES");
}

TEST_F(Paper, OnTheRollFollowsTheMemoEvenWhenItemZeroWasMarked)
{
    openOn("RollA4");
    pick("mFormFeedModePopUp", 1);
    ASSERT_EQ(memo(), "YES");
    choosePaper("ContinuousLetter"); // item 0
    ASSERT_EQ(selected("mFormFeedModePopUp"), 0);
    choosePaper("RollLetter");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 1);
    EXPECT_EQ(marked("QnFormFeedMode"), "FF1");
    // In that call the items went by the item at entry; the next refresh turns both.
    EXPECT_EQ(available("mPerforatedPopUp"), "+-");
    EXPECT_TRUE(control("mPaperFeedTxt")["editable"].toBool());
    choosePaper("RollLetter");
    EXPECT_EQ(available("mPerforatedPopUp"), "++");
    EXPECT_FALSE(control("mPaperFeedTxt")["editable"].toBool());
}

TEST_F(Paper, TurnsExpansionToolTipsOffOnPlainPaperOnlyAndNeverOnAgain)
{
    openOn("PerfA4"); // locked, but not on plain paper
    EXPECT_TRUE(control("mPaperFeedTxt")["expansionToolTips"].toBool());
    choosePaper("A4"); // item 2: locked on plain paper
    EXPECT_FALSE(control("mPaperFeedTxt")["expansionToolTips"].toBool());
    pick("mFormFeedModePopUp", 0);
    choosePaper("RollA4");
    EXPECT_FALSE(control("mPaperFeedTxt")["expansionToolTips"].toBool());
}

TEST_F(Paper, IsHeardByTheBasicPanelBeforeTheAdvancedOneEvenBeforeTheyWereShown)
{
    open(PPDText().allOptions(), "A4", {{"prepare", false}});
    choosePaper("RollA4");
    QStringList keys;
    for (const auto &[key, choice] : marks())
        keys.append(key);
    EXPECT_EQ(keys, QStringList({"QnPaperSizeType", "QnMedia", "QnRollPrinterCase", "QnFormFeedMode", "QnPaperFeed",
                                 "QnPerforated", "QnPaperSizeType", "QnDensity", "QnSpeed", "QnPerforated",
                                 "QnHalftonePattern", "QnReversal", "QnMirror", "QnBiDiPrint"}));
}

struct Size
{
    const char *name;
    double width;
    double height;
    bool printed;
};

class SizeCheck : public DialogTest, public testing::WithParamInterface<Size>
{};

// Limits of the PPD: 72 to 612 wide, 100 to 900 high.
TEST_P(SizeCheck, KeepsToThePPDsLimits)
{
    open(PPDText().allOptions().customPageRange(72, 612, 100, 900), "A4");
    show("basic");
    choosePaper("customsize", GetParam().width, GetParam().height);
    EXPECT_EQ(print(), GetParam().printed);
    EXPECT_EQ(alerts(), GetParam().printed ? 0 : 1);
    EXPECT_EQ(marks().empty(), !GetParam().printed); // a refusal marks nothing
}

INSTANTIATE_TEST_SUITE_P(
    Sides, SizeCheck,
    testing::Values(Size{"AtTheLargestWidth", 612, 500, true}, Size{"AboveTheLargestWidth", 612.01, 500, false},
                    Size{"AtTheLargestHeight", 300, 900, true}, Size{"AboveTheLargestHeight", 300, 900.01, false},
                    Size{"AtTheLeastWidth", 72, 500, true}, Size{"BelowTheLeastWidth", 71.99, 500, false},
                    Size{"AtTheLeastHeight", 300, 100, true}, Size{"BelowTheLeastHeight", 300, 99.99, false},
                    Size{"SwappedIsJudgedAsItStands", 900, 612, false}, Size{"Nothing", 0, 0, false}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(Paper, IsOutOfRangeWhereThePPDsBoundsAreZero)
{
    open(PPDText().allOptions().customPageRange(0, 0, 0, 0), "A4");
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(print());
        EXPECT_EQ(alerts(), 1);
    }
}

TEST_F(Paper, OfUnknownSizePrints)
{
    openOn("A4");
    choosePaper("Poster"); // the PPD has no such size, and none was given
    EXPECT_TRUE(print());
    EXPECT_EQ(alerts(), 0);
}

TEST_F(Paper, OutOfRangeIsToldInAWarning)
{
    openOn("A4");
    choosePaper("customsize", 700, 700);
    EXPECT_FALSE(print());
    const QJsonObject expected{{"message", "Unsupported Paper Title"},
                               {"informative", "Unsupported Paper MSG1\n\nUnsupported Paper MSG2\nUnsupported Paper "
                                               "MSG3\nUnsupported Paper MSG4"},
                               {"buttons", QJsonArray{"OK"}},
                               {"style", "warning"}};
    EXPECT_EQ(alert(), expected);
}

TEST_F(Paper, OutOfRangeIsNoMatterToTheAdvancedPanel)
{
    openOn("A4");
    choosePaper("customsize", 700, 700);
    request({{"do", "print"}, {"panel", "advanced"}});
    EXPECT_TRUE(reply()["result"].toBool());
    EXPECT_EQ(alerts(), 0);
    EXPECT_EQ(marksOf("QnPaperSizeType"), QStringList("QnCustomSize"));
}

TEST_F(Paper, KindAndAmountAreMarkedBeforePrinting)
{
    openOn("RollA4");
    request({{"do", "print"}, {"panel", "basic"}});
    EXPECT_EQ(marks(), (Marks{{"QnPaperSizeType", "QnRollSize"}, {"QnPaperFeed", "1.023622"}}));
}

// The check box of the advanced panel stands where the basic panel has the amount.
struct Box
{
    const char *name;
    const char *paper;
    const char *formFeed; // marked by another part of the dialog
    const char *memo;     // brought about in the basic panel: "" none, "YES" or "NO"
    bool enabled;
};

class PerforatedBox : public DialogTest, public testing::WithParamInterface<Box>
{};

TEST_P(PerforatedBox, FollowsThePaperAndTheMemo)
{
    open(PPDText().allOptions(), "RollA4");
    show("basic");
    if (*GetParam().memo)
        pick("mFormFeedModePopUp", QString(GetParam().memo) == "YES" ? 1 : 0);
    ASSERT_EQ(memo(), GetParam().memo);
    choosePaper("Poster");
    ASSERT_TRUE(mark("QnFormFeedMode", GetParam().formFeed));
    show("advanced"); // its menus follow the marks
    choosePaper(GetParam().paper);
    EXPECT_EQ(isEnabled("mPerforatedChkBx"), GetParam().enabled);
}

INSTANTIATE_TEST_SUITE_P(Papers, PerforatedBox,
                         testing::Values(Box{"Plain", "A4", "FF1", "", false},
                                         Box{"Perforated", "PerfA4", "FF2", "", false},
                                         Box{"RollWithoutMemo", "RollLetter", "FF0", "", true},
                                         Box{"RollWithMemoYes", "RollLetter", "FF1", "YES", true},
                                         Box{"RollWithMemoNo", "RollLetter", "FF0", "NO", false},
                                         Box{"Continuous", "ContinuousLetter", "FF0", "", false},
                                         Box{"Retract", "RetractA4", "FF3", "", false}),
                         [](const auto &row) { return std::string(row.param.name); });

class OtherPaper : public DialogTest, public testing::WithParamInterface<int>
{};

TEST_P(OtherPaper, EnablesTheBoxAndPerforatedItem1InFormFeedMode1Only)
{
    open(PPDText().allOptions(), "Poster",
         {{"defaults", QJsonObject{{"QnFormFeedMode", QString("FF%1").arg(GetParam())}}}});
    show("advanced");
    choosePaper("Banner");
    EXPECT_EQ(isEnabled("mPerforatedChkBx"), GetParam() == 1);
    EXPECT_EQ(available("mPerforatedPopUp"), GetParam() == 1 ? "++" : "+-");
}

INSTANTIATE_TEST_SUITE_P(FormFeed, OtherPaper, testing::Values(0, 1, 2));

TEST_F(Paper, MovesTheAdvancedMenusLikeTheBasicOnes)
{
    openOn("A4");
    show("advanced");
    choosePaper("PerfA4");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 2);
    choosePaper("RetractA4");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 3);
    EXPECT_EQ(available("mPerforatedPopUp"), "++");
    choosePaper("ContinuousLetter");
    EXPECT_EQ(selected("mFormFeedModePopUp"), 0);
    EXPECT_FALSE(isEnabled("mPerforatedChkBx"));
    EXPECT_EQ(memo(), ""); // the advanced panel never stores it
}

} // namespace
