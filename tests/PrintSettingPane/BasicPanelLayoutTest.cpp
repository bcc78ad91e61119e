// The basic panel's life cycle, and where its controls stand.
#include "Dialog.h"

using namespace support;

namespace {

struct Group
{
    const char *option;
    QStringList controls;
    QStringList origins; // attributes beside the controls
    bool moved;          // by those attributes
};

void PrintTo(const Group &row, std::ostream *out) { *out << row.option; }

const QJsonObject kOldSystem{{"system", "10.5.0"}};

class BasicLayout : public DialogTest, public testing::WithParamInterface<Group>
{};

TEST_P(BasicLayout, HidesTheControlsOfAnOptionThatThePPDLacks)
{
    open(PPDText(), "A4", kOldSystem);
    for (const QString &control : GetParam().controls)
        EXPECT_TRUE(isHidden(control)) << control.toStdString();
}

TEST_P(BasicLayout, MovesOnlyTheGroupsThatThePPDMayPlace)
{
    open(PPDText().standardOption(GetParam().option), "A4", kOldSystem);
    std::vector<QPointF> places;
    for (const QString &name : GetParam().controls)
        places.push_back(originOf(control(name)));

    PPDText ppd;
    ppd.standardOption(GetParam().option);
    for (int i = 0; i < GetParam().origins.size(); ++i)
        ppd.attribute(GetParam().origins[i].toLatin1(), QString("{%1, %2}").arg(30 + i).arg(40 + i).toLatin1());
    open(ppd, "A4", kOldSystem);
    for (int i = 0; i < GetParam().controls.size(); ++i) {
        const QJsonObject shown = control(GetParam().controls[i]);
        EXPECT_FALSE(shown["hidden"].toBool());
        // Without its attribute, a group that the PPD may place stands in the corner.
        EXPECT_EQ(places[static_cast<std::size_t>(i)] == QPointF(0, 0), GetParam().moved);
        const QPointF expected = GetParam().moved ? QPointF(30 + i, 40 + i) : places[static_cast<std::size_t>(i)];
        EXPECT_EQ(originOf(shown), expected) << GetParam().controls[i].toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Groups, BasicLayout,
    testing::Values(
        Group{"QnDensity", {"mDensityStr", "mDensityPopUp"}, {"QnDensityStrOrigin", "QnDensityPopBtnOrigin"}, false},
        Group{"QnMedia", {"mMediaStr", "mMediaPopUp"}, {"QnMediaStrOrigin", "QnMediaPopBtnOrigin"}, false},
        Group{"QnFormFeedMode",
              {"mFormFeedModeStr", "mFormFeedModePopUp"},
              {"QnFormFeedModeStrOrigin", "QnFormFeedModePopBtnOrigin"},
              false},
        Group{"QnRollPrinterCase",
              {"mRollPrintStr", "mRollPrintPopUp"},
              {"QnRollPrintCaseStrOrigin", "QnRollPrintCasePopBtnOrigin"},
              false},
        Group{"QnPaperFeed",
              {"mPaperFeedStr", "mPaperFeedTxt", "mMetricSystemStr"},
              {"QnPaperFeedStrOrigin", "QnPaperFeedPopBtnOrigin", "QnPaperFeedPopBtnOrigin"},
              false},
        Group{"QnPerforated",
              {"mPerforatedStr", "mPerforatedPopUp"},
              {"QnPerforatedStrOrigin", "QnPerforatedPopBtnOrigin"},
              true},
        Group{"QnReversal", {"mOptionTitle", "mReversalChkBx"}, {"QnOptionStrOrigin", "QnReversalChkBtnOrigin"}, true},
        Group{"QnMirror", {"mOptionTitle", "mMirrorChkBx"}, {"QnOptionStrOrigin", "QnMirrorChkBtnOrigin"}, true},
        Group{"QnBiDiPrint", {"mBiDiPrintChkBx"}, {"QnBiDiPrintChkBtnOrigin"}, true}),
    [](const auto &row) { return std::string(row.param.option); });

// Which lines and boxes remain, by the options that the PPD has: reversal, mirror, bi-directional print.
struct Lines
{
    const char *options; // "RMB", "-" for one that is missing
    bool optionTitle;
    bool lineOP;
    bool lineBI;
};

void PrintTo(const Lines &row, std::ostream *out) { *out << row.options; }

class OptionGroup : public DialogTest, public testing::WithParamInterface<Lines>
{};

TEST_P(OptionGroup, KeepsTitleAndLinesOnlyWhereTheyAreNeeded)
{
    PPDText ppd;
    const QString options(GetParam().options);
    for (const char *keyword : {"QnReversal", "QnMirror", "QnBiDiPrint"})
        if (options.contains(keyword[2]))
            ppd.standardOption(keyword);
    open(ppd, "A4", kOldSystem);
    EXPECT_EQ(!isHidden("mOptionTitle"), GetParam().optionTitle);
    EXPECT_EQ(isAttached("mSeparateLineOP"), GetParam().lineOP);
    EXPECT_EQ(isAttached("mSeparateLineBI"), GetParam().lineBI);
    EXPECT_EQ(!isHidden("mReversalChkBx"), options.contains('R'));
    EXPECT_EQ(!isHidden("mMirrorChkBx"), options.contains('M'));
    EXPECT_EQ(!isHidden("mBiDiPrintChkBx"), options.contains('B'));
}

INSTANTIATE_TEST_SUITE_P(Options, OptionGroup,
                         testing::Values(Lines{"RMB", true, true, true}, Lines{"RM-", true, true, false},
                                         Lines{"R-B", true, true, true}, Lines{"-MB", true, true, true},
                                         Lines{"R--", true, true, false}, Lines{"-M-", true, true, false},
                                         Lines{"--B", false, true, false}, Lines{"---", false, false, false}));

struct System
{
    QJsonValue version;
    bool mirror;
};

void PrintTo(const System &row, std::ostream *out) { *out << row.version.toString("null").toStdString(); }

class MirrorBox : public DialogTest, public testing::WithParamInterface<System>
{};

TEST_P(MirrorBox, IsWithheldFromSystem10Point6On)
{
    open(PPDText().standardOption("QnMirror"), "A4", kOldSystem); // the version test of the plug-in runs here, once
    open(PPDText().standardOption("QnMirror").attribute("QnMirrorChkBtnOrigin", "{20, 50}"), "A4",
         {{"system", GetParam().version}});
    EXPECT_EQ(!isHidden("mMirrorChkBx"), GetParam().mirror);
    EXPECT_FALSE(isHidden("mOptionTitle")); // the group counts as present all the same
    const QPointF place = originOf(control("mMirrorChkBx"));
    EXPECT_EQ(place == QPointF(20, 50), GetParam().mirror);
}

INSTANTIATE_TEST_SUITE_P(Systems, MirrorBox,
                         testing::Values(System{"10.4.0", true}, System{"10.5.9", true}, System{"10.6.0", false},
                                         System{"10.15.7", false}, System{"11.0.0", false},
                                         System{QJsonValue(), true})); // a system that does not answer counts as 0

class UnreadablePlace : public DialogTest, public testing::WithParamInterface<const char *>
{};

TEST_P(UnreadablePlace, IsTheCorner)
{
    open(PPDText().standardOption("QnPerforated").attribute("QnPerforatedStrOrigin", GetParam()));
    EXPECT_EQ(originOf(control("mPerforatedStr")), QPointF(0, 0));
}

INSTANTIATE_TEST_SUITE_P(Values, UnreadablePlace, testing::Values("", "12, 34", "{12}", "{a, b}", "{12, 34", "12 34"));

TEST_F(OptionGroup, OutOfSightKeepsItsPlaceForTheRecord)
{
    open(PPDText());
    const QJsonObject line = control("mSeparateLineOP");
    EXPECT_FALSE(line["attached"].toBool());
    EXPECT_FALSE(line["hidden"].toBool());
    EXPECT_GT(originOf(line).y(), 0);
}

class BasicLifeCycle : public DialogTest
{};

TEST_F(BasicLifeCycle, ReplacesThePlaceholderByThePreview)
{
    open(PPDText().allOptions());
    EXPECT_FALSE(isAttached("mHalftoneDummyView"));
    EXPECT_TRUE(isAttached("mHalftoneView"));
    EXPECT_EQ(control("mHalftoneView")["kind"].toString(), "halftone");
    EXPECT_EQ(originOf(control("mHalftoneView")), originOf(control("mHalftoneDummyView")));
}

TEST_F(BasicLifeCycle, ShowsItsOwnPageAndNamesBoth)
{
    open(PPDText().allOptions());
    const QJsonObject tabs = control("tabView");
    EXPECT_EQ(tabs["current"].toString(), "1");
    EXPECT_EQ(tabs["tabs"].toArray(), (QJsonArray{QJsonObject{{"id", "1"}, {"label", "STEXT_TAB1"}},
                                                  QJsonObject{{"id", "2"}, {"label", "STEXT_TAB2"}}}));
}

TEST_F(BasicLifeCycle, ShowsTheFilesVersionOrNothingAfterTheColon)
{
    open(PPDText().attribute("FileVersion", "1.5"));
    EXPECT_EQ(text("versionStr"), "ver : 1.5");
    open(PPDText());
    EXPECT_EQ(text("versionStr"), "ver : ");
}

TEST_F(BasicLifeCycle, ClaimsEveryOptionThatThePPDHas)
{
    const auto keys = [this] { return request({{"do", "keys"}, {"panel", "basic"}})["result"].toArray(); };
    open(PPDText().standardOption("QnDensity"));
    EXPECT_EQ(keys(), (QJsonArray{"QnDensityUS", "QnDensity"}));
    open(PPDText().allOptions());
    EXPECT_EQ(keys(), (QJsonArray{"QnDensityUS", "QnDensity", "QnSpeedUS", "QnSpeed", "QnMedia", "QnFormFeedMode",
                                  "QnPaperFeed", "QnPerforated", "QnHalftonePattern", "QnReversal", "QnRollPrinterCase",
                                  "QnMirror", "QnBiDiPrint"}));
    EXPECT_TRUE(marks().empty()); // built once: asking again saves nothing
}

TEST_F(BasicLifeCycle, HasNoControlsBeforeItsFirstDisplay)
{
    open(PPDText().allOptions(), "A4", {{"prepare", false}});
    const QJsonObject panel = state("basic")["panels"][QString("basic")].toObject();
    EXPECT_FALSE(panel["loaded"].toBool());
    EXPECT_TRUE(panel["controls"].toObject().isEmpty());
    show("basic");
    EXPECT_TRUE(state("basic")["panels"][QString("basic")].toObject()["loaded"].toBool());
}

TEST_F(BasicLifeCycle, ForgetsTheMemoWithTheNextDialog)
{
    open(PPDText().allOptions(), "RollA4");
    show("basic");
    pick("mFormFeedModePopUp", 1);
    ASSERT_EQ(memo(), "YES");
    open(PPDText().allOptions(), "RollA4");
    EXPECT_EQ(memo(), "");
}

TEST_F(BasicLifeCycle, ConnectsEveryControlOfItsInterfaceFile)
{
    open(PPDText().allOptions());
    for (const char *panel : {"basic", "advanced"}) {
        const QJsonObject controls = state(panel)["panels"][QString(panel)].toObject()["controls"].toObject();
        EXPECT_GE(controls.size(), 25) << panel;
        for (auto each = controls.begin(); each != controls.end(); ++each)
            EXPECT_TRUE(each.value().isObject()) << panel << ' ' << each.key().toStdString();
    }
}

} // namespace
