// The advanced panel's options: built from the PPD, written back, used by a person.
#include "Dialog.h"

using namespace support;

namespace {

const QJsonObject kUSB{{"uri", "usb://Qn/Printer"}, {"system", "10.5.0"}};

class AdvancedPanel : public DialogTest
{
protected:
    void openWith(const PPDText &ppd, const QString &paper = "A4", const QJsonObject &more = kUSB)
    {
        open(ppd, paper, more);
        show("advanced");
    }
};

TEST_F(AdvancedPanel, SavesThePaperKindAndSevenOptionsInOrder)
{
    openWith(PPDText().allOptions());
    request({{"do", "save"}, {"panel", "advanced"}});
    EXPECT_EQ(marks(), (Marks{{"QnPaperSizeType", "QnCutSize"},
                              {"QnDensity", "DHome"},
                              {"QnSpeed", "SHome"},
                              {"QnPerforated", "OFF"},
                              {"QnHalftonePattern", "Dither"},
                              {"QnReversal", "OFF"},
                              {"QnMirror", "OFF"},
                              {"QnBiDiPrint", "OFF"}}));
}

struct Menu
{
    const char *keyword;
    const char *hidden;
    const char *label;
    const char *popUp;
    const char *titleKey;
    QStringList items;
};

void PrintTo(const Menu &row, std::ostream *out) { *out << row.keyword; }

class AdvancedMenu : public AdvancedPanel, public testing::WithParamInterface<Menu>
{};

TEST_P(AdvancedMenu, ShowsThePPDsTextsAndDefault)
{
    openWith(PPDText()
                 .option(GetParam().keyword, "Title", "B", {{"A", "a"}, {"B", "b"}})
                 .attribute(GetParam().hidden, "False"));
    EXPECT_EQ(titles(GetParam().popUp).mid(0, 2), QStringList({"a", "b"}));
    EXPECT_EQ(titles(GetParam().popUp).mid(2), GetParam().items.mid(2)); // items beyond the choices stay
    EXPECT_EQ(selected(GetParam().popUp), 1);
    EXPECT_EQ(text(GetParam().label), "Title : ");
    EXPECT_TRUE(isEnabled(GetParam().popUp));
}

TEST_P(AdvancedMenu, IsGreyWithoutAFlagThatSaysFalse)
{
    openWith(PPDText()
                 .option(GetParam().keyword, "Title", "B", {{"A", "a"}, {"B", "b"}})
                 .attribute(GetParam().hidden, "false"));
    EXPECT_FALSE(isEnabled(GetParam().popUp));
    EXPECT_EQ(control(GetParam().label)["color"].toString(), "disabled");
}

TEST_P(AdvancedMenu, InsertsTheFixedListForEveryChoiceWithoutText)
{
    openWith(PPDText().option(GetParam().keyword, "bad\xff", "A", {{"A", "bad\xff"}, {"B", "bad\xff"}}));
    EXPECT_EQ(titles(GetParam().popUp), GetParam().items + GetParam().items + GetParam().items);
    EXPECT_EQ(text(GetParam().label), GetParam().titleKey);
}

INSTANTIATE_TEST_SUITE_P(Menus, AdvancedMenu,
                         testing::Values(Menu{"QnDensity",
                                              "QnDensityObjHidden",
                                              "mDensityStr",
                                              "mDensityPopUp",
                                              "RS_Density",
                                              {"RS_Density_home", "RS_Density_0", "RS_Density_1", "RS_Density_2",
                                               "RS_Density_3", "RS_Density_4", "RS_Density_5", "RS_Density_6",
                                               "RS_Density_7", "RS_Density_8", "RS_Density_9", "RS_Density_10"}},
                                         Menu{"QnSpeed",
                                              "QnSpeedObjHidden",
                                              "mSpeedStr",
                                              "mSpeedPopUp",
                                              "RS_Speed",
                                              {"RS_Speed_home", "RS_Speed_0", "RS_Speed_1", "RS_Speed_2",
                                               "RS_Speed_3"}}),
                         [](const auto &row) { return std::string(row.param.keyword); });

TEST_F(AdvancedPanel, TitlesTheHalftoneRowsItselfWhateverThePPDCallsThem)
{
    openWith(PPDText().option("QnHalftonePattern", "Raster", "C", {{"A", "a"}, {"B", "b"}, {"C", "c"}}));
    EXPECT_EQ(text("mHalftoneTitle"), "Raster : ");
    EXPECT_EQ(control("mHalftoneRadio")["rows"].toArray(), (QJsonArray{"HC_Binary", "HC_Dither", "HC_ErrorDiffusion"}));
    EXPECT_EQ(selected("mHalftoneRadio"), 2);
    EXPECT_EQ(control("mHalftoneView")["picture"].toString(), "Diffusion");
}

TEST_F(AdvancedPanel, ShowsTheHalftoneGroupWithoutTheOptionToo)
{
    openWith(PPDText());
    EXPECT_EQ(text("mHalftoneTitle"), "HC_Halftone");
    EXPECT_EQ(selected("mHalftoneRadio"), -1);
    EXPECT_TRUE(control("mHalftoneView")["picture"].isNull());
    row("mHalftoneRadio", 1);
    EXPECT_TRUE(marks().empty());
    EXPECT_EQ(control("mHalftoneView")["picture"].toString(), "Dither");
}

TEST_F(AdvancedPanel, PreviewsTheRowEvenWhenThePPDHasNoSuchChoice)
{
    openWith(PPDText().option("QnHalftonePattern", "Halftone", "A", {{"A", "a"}, {"B", "b"}}));
    row("mHalftoneRadio", 2);
    EXPECT_TRUE(marks().empty());
    EXPECT_EQ(selected("mHalftoneRadio"), 0); // back to the selection by the refresh
    EXPECT_EQ(control("mHalftoneView")["picture"].toString(), "Binary");
}

TEST_F(AdvancedPanel, StandsAHalftoneOptionWithoutChoices)
{
    openWith(PPDText().option("QnHalftonePattern", "Halftone", "", {}));
    row("mHalftoneRadio", 0);
    EXPECT_TRUE(marks().empty());
}

TEST_F(AdvancedPanel, SavesTheFirstHalftoneWhenNoneIsTheDefault)
{
    open(PPDText().option("QnHalftonePattern", "Halftone", "", {{"A", "a"}, {"B", "b"}, {"C", "c"}}), "A4");
    EXPECT_EQ(marked("QnHalftonePattern"), "A");
}

// The answer for the reversal decides for all three boxes.
struct Flags
{
    const char *reversal;
    const char *mirror;
    bool boxes;
    bool heading; // and its line
};

void PrintTo(const Flags &row, std::ostream *out) { *out << row.reversal << ' ' << row.mirror; }

class OptionBoxes : public AdvancedPanel, public testing::WithParamInterface<Flags>
{};

TEST_P(OptionBoxes, GoByTheReversalsFlag)
{
    PPDText ppd;
    for (const char *keyword : {"QnReversal", "QnMirror", "QnPerforated"})
        ppd.option(keyword, keyword, "OFF", {{"OFF", "Off"}, {"ON", "On"}});
    ppd.attribute("QnReversalObjHidden", GetParam().reversal).attribute("QnMirrorObjHidden", GetParam().mirror);
    ppd.attribute("QnPerforatedObjHidden", "True"); // asked, and not listened to
    openWith(ppd, "RollA4");
    EXPECT_EQ(isEnabled("mReversalChkBx"), GetParam().boxes);
    EXPECT_EQ(isEnabled("mMirrorChkBx"), GetParam().boxes);
    EXPECT_TRUE(isEnabled("mPerforatedChkBx")); // set again by the paper, which wins
    EXPECT_EQ(control("mOptionTitle")["color"].toString(), GetParam().heading ? "control" : "disabled");
    EXPECT_EQ(isAttached("mSeparateLineOP"), GetParam().heading);
    EXPECT_EQ(text("mOptionTitle"), "HC_Option");
}

INSTANTIATE_TEST_SUITE_P(Flags, OptionBoxes,
                         testing::Values(Flags{"False", "False", true, true}, Flags{"False", "True", true, true},
                                         Flags{"True", "False", false, true}, Flags{"True", "True", false, false}));

struct BoxRow
{
    const char *keyword;
    const char *box;
    const char *titleKey;
};

void PrintTo(const BoxRow &row, std::ostream *out) { *out << row.keyword; }

class CheckBoxes : public AdvancedPanel, public testing::WithParamInterface<BoxRow>
{
protected:
    static PPDText with(const QByteArray &standard, const PPDText::Choices &choices, const QByteArray &text = "Title")
    {
        PPDText ppd;
        ppd.option(GetParam().keyword, text, standard, choices);
        for (const char *flag : {"QnReversalObjHidden", "QnMirrorObjHidden", "QnBiDiPrintObjHidden"})
            ppd.attribute(flag, "False");
        return ppd;
    }
    int state(const PPDText &ppd)
    {
        openWith(ppd, "RollA4");
        return control(GetParam().box)["state"].toInt();
    }
};

TEST_P(CheckBoxes, AreCheckedAtFirstWhenTheDefaultIsExactlyON)
{
    EXPECT_EQ(state(with("ON", {{"OFF", "Off"}, {"ON", "On"}})), 1);
    EXPECT_EQ(state(with("OFF", {{"OFF", "Off"}, {"ON", "On"}})), 0);
    // "On" starts unchecked, is saved as the first choice, and so stays unchecked.
    EXPECT_EQ(state(with("On", {{"Off", "Off"}, {"On", "On"}})), 0);
    EXPECT_EQ(marked(GetParam().keyword), "Off");
}

TEST_P(CheckBoxes, TakeThePPDsTitleOrTheFixedOne)
{
    openWith(with("OFF", {{"OFF", "Off"}, {"ON", "On"}}, "Cut & Feed"), "RollA4");
    EXPECT_EQ(control(GetParam().box)["title"].toString(), "Cut & Feed");
    openWith(with("OFF", {{"OFF", "Off"}, {"ON", "On"}}, "bad\xff"), "RollA4");
    EXPECT_EQ(control(GetParam().box)["title"].toString(), GetParam().titleKey);
}

TEST_P(CheckBoxes, MarkTheChoiceAtTheirState)
{
    openWith(with("OFF", {{"OFF", "Off"}, {"ON", "On"}}), "RollA4");
    click(GetParam().box);
    EXPECT_EQ(marks(), (Marks{{GetParam().keyword, "ON"}}));
    click(GetParam().box);
    EXPECT_EQ(marks(), (Marks{{GetParam().keyword, "OFF"}}));
}

TEST_P(CheckBoxes, GoByPositionWhenTheChoicesComeOnFirst)
{
    openWith(with("ON", {{"ON", "On"}, {"OFF", "Off"}}), "RollA4");
    EXPECT_EQ(marked(GetParam().keyword), "OFF"); // checked at first, so the second choice is saved
    click(GetParam().box);
    EXPECT_EQ(marked(GetParam().keyword), "ON");
}

TEST_P(CheckBoxes, ReachTheFirstTwoOfThreeChoices)
{
    openWith(with("OFF", {{"OFF", "Off"}, {"ON", "On"}, {"AUTO", "Auto"}}), "RollA4");
    click(GetParam().box);
    EXPECT_EQ(marked(GetParam().keyword), "ON");
    ASSERT_TRUE(mark(GetParam().keyword, "AUTO"));
    request({{"do", "restore"}, {"panel", "advanced"}});
    EXPECT_EQ(control(GetParam().box)["state"].toInt(), 1); // any index but 0 checks
}

TEST_P(CheckBoxes, StandAnOptionWithoutChoicesOrWithOne)
{
    openWith(with("", {}), "RollA4");
    click(GetParam().box);
    EXPECT_TRUE(marks().empty());
    openWith(with("OFF", {{"OFF", "Off"}}), "RollA4");
    click(GetParam().box);
    EXPECT_TRUE(marks().empty());
    EXPECT_EQ(control(GetParam().box)["state"].toInt(), 0); // back to the selection
}

INSTANTIATE_TEST_SUITE_P(Boxes, CheckBoxes,
                         testing::Values(BoxRow{"QnReversal", "mReversalChkBx", "HC_Reversal"},
                                         BoxRow{"QnMirror", "mMirrorChkBx", "HC_Mirror"},
                                         BoxRow{"QnPerforated", "mPerforatedChkBx", "RS_Perforated"},
                                         BoxRow{"QnBiDiPrint", "mBiDiPrintChkBx", "HC_BiDiPrint"}),
                         [](const auto &row) { return std::string(row.param.keyword); });

TEST_F(AdvancedPanel, FlipsThePerforatedBoxWithoutTheOptionAndMarksNothing)
{
    openWith(PPDText().attribute("QnReversalObjHidden", "False"), "RollA4");
    click("mPerforatedChkBx");
    EXPECT_TRUE(marks().empty());
    EXPECT_EQ(control("mPerforatedChkBx")["state"].toInt(), 1);
}

struct Connection
{
    const char *uri;
    const char *flag;
    bool enabled;
    bool line;
};

void PrintTo(const Connection &row, std::ostream *out) { *out << row.uri << ' ' << row.flag; }

class BiDiBox : public AdvancedPanel, public testing::WithParamInterface<Connection>
{};

TEST_P(BiDiBox, NeedsUSBAndAFlagThatSaysFalse)
{
    openWith(PPDText()
                 .option("QnBiDiPrint", "Title", "OFF", {{"OFF", "Off"}, {"ON", "On"}})
                 .option("QnReversal", "Title", "OFF", {{"OFF", "Off"}, {"ON", "On"}})
                 .attribute("QnBiDiPrintObjHidden", GetParam().flag),
             "A4", {{"uri", GetParam().uri}});
    EXPECT_EQ(isEnabled("mBiDiPrintChkBx"), GetParam().enabled);
    EXPECT_EQ(isAttached("mSeparateLineBI"), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Connections, BiDiBox,
    testing::Values(Connection{"usb://a", "False", true, true}, Connection{"QNLRUSB://a", "False", true, true},
                    Connection{"ipp://a", "False", false, true}, Connection{"USB://a", "False", false, true},
                    Connection{"", "False", false, true}, Connection{"usb://a", "True", false, false}));

struct Used
{
    const char *request;
    const char *control;
    int index;
    const char *keyword;
    const char *choice;
};

void PrintTo(const Used &row, std::ostream *out) { *out << row.control; }

class UsedControl : public AdvancedPanel, public testing::WithParamInterface<Used>
{};

TEST_P(UsedControl, MarksItsChoice)
{
    openWith(PPDText().allOptions(), "RollA4");
    QJsonObject asked{{"do", GetParam().request}, {"panel", "advanced"}, {"control", GetParam().control}};
    asked[QString(GetParam().request) == "row" ? "row" : "index"] = GetParam().index;
    request(asked);
    EXPECT_EQ(marks(), (Marks{{GetParam().keyword, GetParam().choice}}));
}

INSTANTIATE_TEST_SUITE_P(Actions, UsedControl,
                         testing::Values(Used{"pick", "mDensityPopUp", 3, "QnDensity", "D2"},
                                         Used{"pick", "mSpeedPopUp", 4, "QnSpeed", "S3"},
                                         Used{"row", "mHalftoneRadio", 0, "QnHalftonePattern", "Binary"},
                                         Used{"click", "mReversalChkBx", 0, "QnReversal", "ON"},
                                         Used{"click", "mMirrorChkBx", 0, "QnMirror", "ON"},
                                         Used{"click", "mBiDiPrintChkBx", 0, "QnBiDiPrint", "ON"},
                                         Used{"click", "mPerforatedChkBx", 0, "QnPerforated", "ON"}));

TEST_F(AdvancedPanel, ReadsMediaAgainWithTheSpeed)
{
    openWith(PPDText().allOptions());
    ASSERT_TRUE(mark("QnMedia", "ThermalCopy"));
    pick("mSpeedPopUp", 1);
    EXPECT_EQ(selected("mMediaPopUp"), 1);
    EXPECT_EQ(selected("mSpeedPopUp"), 1);
}

} // namespace
