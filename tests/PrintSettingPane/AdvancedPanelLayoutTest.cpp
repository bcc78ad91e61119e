// The advanced panel's life cycle, and where its controls stand.
#include "Dialog.h"

using namespace support;

namespace {

const QJsonObject kOldSystem{{"system", "10.5.0"}};

struct Control
{
    const char *option;
    const char *control;
    const char *originKey;
    bool moved;
};

void PrintTo(const Control &row, std::ostream *out) { *out << row.control; }

class AdvancedLayout : public DialogTest, public testing::WithParamInterface<Control>
{
protected:
    void SetUp() override { use("advanced"); }
};

TEST_P(AdvancedLayout, HidesAControlWithoutItsOption)
{
    open(PPDText(), "A4", kOldSystem);
    EXPECT_TRUE(isHidden(GetParam().control));
}

TEST_P(AdvancedLayout, MovesOnlyMirrorAndBiDirectionalPrint)
{
    open(PPDText().standardOption(GetParam().option), "A4", kOldSystem);
    const QPointF fromFile = originOf(control(GetParam().control));
    open(PPDText().standardOption(GetParam().option).attribute(GetParam().originKey, "{33, 44}"), "A4", kOldSystem);
    EXPECT_FALSE(isHidden(GetParam().control));
    EXPECT_EQ(originOf(control(GetParam().control)), GetParam().moved ? QPointF(33, 44) : fromFile);
    EXPECT_EQ(fromFile == QPointF(0, 0), GetParam().moved); // without the attribute, a moved one is in the corner
}

INSTANTIATE_TEST_SUITE_P(
    Controls, AdvancedLayout,
    testing::Values(Control{"QnDensity", "mDensityStr", "QnDensityStrOrigin", false},
                    Control{"QnDensity", "mDensityPopUp", "QnDensityPopBtnOrigin", false},
                    Control{"QnSpeed", "mSpeedStr", "QnSpeedStrOrigin", false},
                    Control{"QnSpeed", "mSpeedPopUp", "QnSpeedPopBtnOrigin", false},
                    Control{"QnMedia", "mMediaStr", "QnMediaStrOrigin", false},
                    Control{"QnMedia", "mMediaPopUp", "QnMediaPopBtnOrigin", false},
                    Control{"QnFormFeedMode", "mFormFeedModeStr", "QnFormFeedModeStrOrigin", false},
                    Control{"QnFormFeedMode", "mFormFeedModePopUp", "QnFormFeedModePopBtnOrigin", false},
                    Control{"QnPaperFeed", "mPaperFeedStr", "QnPaperFeedStrOrigin", false},
                    Control{"QnPaperFeed", "mPaperFeedPopUp", "QnPaperFeedPopBtnOrigin", false},
                    Control{"QnPerforated", "mPerforatedStr", "QnPerforatedStrOrigin", false},
                    Control{"QnPerforated", "mPerforatedPopUp", "QnPerforatedPopBtnOrigin", false},
                    Control{"QnReversal", "mOptionTitle", "QnOptionStrOrigin", false},
                    Control{"QnReversal", "mReversalChkBx", "QnReversalChkBtnOrigin", false},
                    Control{"QnMirror", "mMirrorChkBx", "QnMirrorChkBtnOrigin", true},
                    Control{"QnBiDiPrint", "mBiDiPrintChkBx", "QnBiDiPrintChkBtnOrigin", true}));

class AdvancedLifeCycle : public AdvancedLayout
{};

TEST_F(AdvancedLifeCycle, ShowsNoRuleForPerforatedBoxAndHalftoneGroup)
{
    open(PPDText());
    for (const char *name : {"mPerforatedChkBx", "mHalftoneTitle", "mHalftoneRadio", "mHalftoneView"})
        EXPECT_FALSE(isHidden(name)) << name;
}

TEST_F(AdvancedLifeCycle, CarriesOnItsPageWhatBelongsThere)
{
    open(PPDText().allOptions(), "RollA4", kOldSystem);
    show("advanced");
    EXPECT_EQ(control("tabView")["current"].toString(), "2");
    for (const char *name : {"mMediaPopUp", "mFormFeedModePopUp", "mPerforatedPopUp", "mPaperFeedPopUp"}) {
        request({{"do", "menu"}, {"panel", "advanced"}, {"control", name}});
        EXPECT_EQ(error(), QString("%1: the control is on a page that is not shown").arg(name));
    }
    menu("mDensityPopUp");
    menu("mSpeedPopUp");
    click("mReversalChkBx");
    click("mMirrorChkBx");
    click("mPerforatedChkBx");
    row("mHalftoneRadio", 2);
}

TEST_F(AdvancedLifeCycle, ClaimsOnlyWhatTheBasicPanelLeaves)
{
    const auto keys = [this] { return request({{"do", "keys"}, {"panel", "advanced"}})["result"].toArray(); };
    open(PPDText().standardOption("QnMedia"));
    EXPECT_EQ(keys(), QJsonArray());
    open(PPDText().allOptions());
    EXPECT_EQ(keys(), (QJsonArray{"QnDensityUS", "QnDensity", "QnSpeedUS", "QnSpeed", "QnHalftonePattern", "QnReversal",
                                  "QnMirror", "QnBiDiPrint"}));
}

TEST_F(AdvancedLifeCycle, HasANameOfItsOwnAndTheKindOfBoth)
{
    open(PPDText(), "A4", {{"language", "en"}});
    request({{"do", "name"}, {"panel", "advanced"}});
    const QString kind = reply()["kind"].toString();
    EXPECT_EQ(reply()["result"].toString(), "Advanced Settings");
    request({{"do", "name"}, {"panel", "basic"}});
    EXPECT_EQ(reply()["result"].toString(), "Print Settings");
    EXPECT_EQ(reply()["kind"].toString(), kind);
    EXPECT_EQ(kind, "org.qnprint.printer.cups.pde.PrintSettingPDEKind");
}

TEST_F(AdvancedLifeCycle, HasTheSpeedToItself)
{
    open(PPDText().allOptions());
    const auto speedControls = [&](const QString &panel) {
        return state(panel)["panels"][panel].toObject()["controls"].toObject().keys().filter("Speed");
    };
    EXPECT_EQ(speedControls("advanced"), QStringList({"mSpeedPopUp", "mSpeedStr"}));
    use("advanced");
    EXPECT_FALSE(isHidden("mSpeedPopUp") || isHidden("mSpeedStr"));
    EXPECT_TRUE(speedControls("basic").isEmpty());
}

TEST_F(AdvancedLifeCycle, PrintsWithoutACheckOfItsOwn)
{
    open(PPDText().allOptions());
    request({{"do", "print"}, {"panel", "advanced"}});
    EXPECT_TRUE(reply()["result"].toBool());
    EXPECT_EQ(marks(), (Marks{{"QnPaperSizeType", "QnCutSize"}}));
}

} // namespace
