// How marked choices, the panels' selections and the controls stay in step.
#include "Dialog.h"

using namespace support;

namespace {

struct Option
{
    const char *keyword;
    const char *other; // a choice that is not the default
    const char *field; // the selection field
};

void PrintTo(const Option &row, std::ostream *out) { *out << row.keyword; }

constexpr Option kOptions[]{
    {"QnDensity", "D3", "mDensity_Selection"},
    {"QnSpeed", "S1", "mSpeed_Selection"},
    {"QnMedia", "ThermalCopy", "mMedia_Selection"},
    {"QnFormFeedMode", "FF1", "mFormFeedMode_Selection"},
    {"QnPaperFeed", "Feed2", "mPaperFeed_Selection"},
    {"QnPerforated", "ON", "mPerforated_Selection"},
    {"QnHalftonePattern", "Binary", "mHalftone_Selection"},
    {"QnReversal", "ON", "mReversal_Selection"},
    {"QnMirror", "ON", "mMirror_Selection"},
    {"QnBiDiPrint", "ON", "mBiDiPrint_Selection"},
};

class AReportedChange : public DialogTest, public testing::WithParamInterface<Option>
{};

TEST_P(AReportedChange, IsRecordedByBothPanelsAndTouchesNoControl)
{
    open(PPDText().allOptions());
    for (const char *panel : {"basic", "advanced"}) {
        show(panel);
        QJsonObject before = state(panel);
        ASSERT_TRUE(mark(GetParam().keyword, GetParam().other));
        EXPECT_EQ(selection(GetParam().field).toString(), GetParam().other);
        const auto controls = [&](const QJsonObject &all) -> QJsonValue {
            return all["panels"][QString(panel)].toObject()["controls"];
        };
        // The preview looks at the radio group, which no report touches either.
        EXPECT_EQ(controls(before), controls(state(panel))) << panel;
        EXPECT_TRUE(marks().empty());
    }
}

TEST_P(AReportedChange, ReachesTheControlsWithTheNextRestore)
{
    open(PPDText().allOptions(), "Poster", {{"uri", "usb://a"}});
    ASSERT_TRUE(mark(GetParam().keyword, GetParam().other));
    request({{"do", "restore"}, {"panel", "advanced"}});
    EXPECT_TRUE(reply()["result"].toBool());
    EXPECT_TRUE(marks().empty()); // restoring marks nothing
    use("advanced");
    EXPECT_EQ(selection(GetParam().field).toString(), GetParam().other);
}

INSTANTIATE_TEST_SUITE_P(EachOption, AReportedChange, testing::ValuesIn(kOptions),
                         [](const auto &row) { return std::string(row.param.keyword); });

// What a restore selects, a control at a time.
struct Refreshed
{
    const char *keyword;
    const char *choice;
    const char *panel;
    const char *control;
    const char *member; // of the control's state
    int index;
};

void PrintTo(const Refreshed &row, std::ostream *out) { *out << row.panel << ' ' << row.control; }

class Refresh : public DialogTest, public testing::WithParamInterface<Refreshed>
{};

TEST_P(Refresh, BringsTheControlInLineWithTheMarkedChoice)
{
    open(PPDText().allOptions(), "Poster");
    ASSERT_TRUE(mark(GetParam().keyword, GetParam().choice));
    request({{"do", "restore"}, {"panel", GetParam().panel}});
    use(GetParam().panel);
    EXPECT_EQ(control(GetParam().control)[QString(GetParam().member)].toInt(), GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(
    Controls, Refresh,
    testing::Values(Refreshed{"QnDensity", "D3", "basic", "mDensityPopUp", "selected", 4},
                    Refreshed{"QnMedia", "ThermalCopy", "basic", "mMediaPopUp", "selected", 1},
                    Refreshed{"QnFormFeedMode", "FF2", "basic", "mFormFeedModePopUp", "selected", 2},
                    Refreshed{"QnRollPrinterCase", "On", "basic", "mRollPrintPopUp", "selected", 2},
                    Refreshed{"QnPaperFeed", "Feed3", "basic", "mPaperFeedPopUp", "selected", 3},
                    Refreshed{"QnHalftonePattern", "ErrorDiffusion", "basic", "mHalftoneRadio", "selected", 2},
                    Refreshed{"QnReversal", "ON", "basic", "mReversalChkBx", "state", 1},
                    Refreshed{"QnMirror", "ON", "basic", "mMirrorChkBx", "state", 1},
                    Refreshed{"QnBiDiPrint", "ON", "basic", "mBiDiPrintChkBx", "state", 1},
                    Refreshed{"QnPerforated", "ON", "basic", "mPerforatedPopUp", "selected",
                              0}, // left to its own action
                    Refreshed{"QnDensity", "D3", "advanced", "mDensityPopUp", "selected", 4},
                    Refreshed{"QnSpeed", "S2", "advanced", "mSpeedPopUp", "selected", 3},
                    Refreshed{"QnMedia", "ThermalCopy", "advanced", "mMediaPopUp", "selected", 1},
                    Refreshed{"QnFormFeedMode", "FF2", "advanced", "mFormFeedModePopUp", "selected", 2},
                    Refreshed{"QnPaperFeed", "Feed3", "advanced", "mPaperFeedPopUp", "selected", 3},
                    Refreshed{"QnHalftonePattern", "Binary", "advanced", "mHalftoneRadio", "selected", 0},
                    Refreshed{"QnReversal", "ON", "advanced", "mReversalChkBx", "state", 1},
                    Refreshed{"QnPerforated", "ON", "advanced", "mPerforatedChkBx", "state", 1},
                    Refreshed{"QnMirror", "ON", "advanced", "mMirrorChkBx", "state", 1},
                    Refreshed{"QnBiDiPrint", "ON", "advanced", "mBiDiPrintChkBx", "state", 1}));

class Propagation : public DialogTest
{};

TEST_F(Propagation, OfTheRollPrinterCaseReachesTheBasicPanelOnly)
{
    open(PPDText().allOptions());
    const QJsonValue before = state("advanced")["panels"][QString("advanced")].toObject()["selections"];
    ASSERT_TRUE(mark("QnRollPrinterCase", "On"));
    EXPECT_EQ(selection("mRollPrint_Selection").toString(), "On");
    EXPECT_EQ(state("advanced")["panels"][QString("advanced")].toObject()["selections"], before);
    EXPECT_FALSE(before.toObject().contains("mRollPrint_Selection"));
}

TEST_F(Propagation, MakesTheDefaultTheSelectionWhenNothingIsMarked)
{
    open(PPDText().option("QnMedia", "Paper Type", "B", {{"A", "a"}, {"B", "b"}}), "A4", {{"prepare", false}});
    EXPECT_EQ(selection("mMedia_Selection").toString(), "B");
}

TEST_F(Propagation, LeavesTheSelectionEmptyForAnOptionWithoutChoices)
{
    open(PPDText().option("QnMedia", "Paper Type", "", {}));
    show("basic");
    EXPECT_TRUE(selection("mMedia_Selection").isNull());
    EXPECT_FALSE(summary("basic").contains("Paper Type"));
}

TEST_F(Propagation, MarksTheFirstChoiceOfAnOptionWithoutADefault)
{
    open(PPDText().option("QnSpeed", "Print Speed", "", {{"Slow", "Slow"}, {"Fast", "Fast"}}), "A4",
         {{"prepare", false}});
    EXPECT_EQ(marksOf("QnSpeed"), QStringList("Slow"));
    EXPECT_EQ(marked("QnSpeed"), "Slow");
}

TEST_F(Propagation, OfAPickGoesOverTheHostToTheOtherPanel)
{
    open(PPDText().allOptions());
    show("advanced");
    pick("mSpeedPopUp", 2);
    EXPECT_EQ(marks(), (Marks{{"QnSpeed", "S1"}}));
    use("basic");
    EXPECT_EQ(selection("mSpeed_Selection").toString(), "S1");
}

TEST_F(Propagation, OfADensityPickedInOnePanelShowsInTheOther)
{
    open(PPDText().allOptions());
    show("basic");
    pick("mDensityPopUp", 5);
    show("advanced");
    EXPECT_EQ(selected("mDensityPopUp"), 5);
    pick("mDensityPopUp", 7);
    show("basic");
    EXPECT_EQ(selected("mDensityPopUp"), 7);
    EXPECT_EQ(marked("QnDensity"), "D6");
}

TEST_F(Propagation, OfMediaRefreshesTheSpeedWithIt)
{
    // The constraint moves the speed when the media is picked; the advanced panel's speed menu follows.
    open(PPDText()
             .allOptions()
             .line("*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3")
             .line("*UIConstraints: *QnSpeed S3 *QnMedia ThermalCopy"));
    ASSERT_TRUE(mark("QnSpeed", "S3"));
    show("basic");
    pick("mMediaPopUp", 1);
    EXPECT_NE(selection("mSpeed_Selection").toString(), "S3");
    show("advanced");
    EXPECT_EQ(titles("mSpeedPopUp")[selected("mSpeedPopUp")], "Use Printer Setting");
}

TEST_F(Propagation, OfAnItemBeyondTheChoicesMarksNothingAndTheMenuGoesBack)
{
    open(PPDText().option("QnDensity", "Print Density", "A", {{"A", "a"}, {"B", "b"}}));
    show("basic");
    EXPECT_EQ(titles("mDensityPopUp").size(), 12); // the interface file's own
    pick("mDensityPopUp", 7);
    EXPECT_TRUE(marks().empty());
    EXPECT_EQ(selected("mDensityPopUp"), 0);
}

TEST_F(Propagation, SwitchesPerforationOffAgainWhenTheBasicPanelSavesItsOwnMenu)
{
    open(PPDText().allOptions(), "RollA4");
    show("advanced");
    click("mPerforatedChkBx");
    EXPECT_EQ(marked("QnPerforated"), "ON");
    show("basic");
    show("advanced"); // the basic panel saves as it leaves
    EXPECT_EQ(marksOf("QnPerforated"), QStringList("OFF"));
    EXPECT_EQ(marked("QnPerforated"), "OFF");
}

} // namespace
