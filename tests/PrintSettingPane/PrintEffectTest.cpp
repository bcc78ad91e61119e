// What the bundle says that the marked choices do to a printed page.
#include "Dialog.h"

using namespace support;

namespace {

class PrintEffect : public DialogTest
{
protected:
    QJsonValue effect() { return request({{"do", "effect"}})["effect"]; }
    QJsonValue feed() { return effect()["feed"]; }
};

TEST_F(PrintEffect, OfADialogThatHasJustOpenedIsThatOfTheDefaults)
{
    open(PPDText().allOptions(), "A4");
    const QJsonObject said = request({{"do", "effect"}});
    EXPECT_EQ(said, QJsonObject({{"ok", true},
                                 {"effect", QJsonObject{{"halftone", "dither"},
                                                        {"reversed", false},
                                                        {"mirrored", false},
                                                        {"feed", 26},
                                                        {"perforated", false}}}}));
}

TEST_F(PrintEffect, NeedsAnOpenDialog)
{
    EXPECT_EQ(request({{"do", "effect"}}), QJsonObject({{"ok", false}, {"error", "no dialog is open"}}));
}

TEST_F(PrintEffect, IsSaidByNobodyWhereThereAreNoPanels)
{
    open(PPDText().allOptions(), "A4", {{"type", "another type"}});
    EXPECT_TRUE(effect().isNull());
}

TEST_F(PrintEffect, NamesTheMarkedMethodByItsPosition)
{
    open(PPDText().option("QnHalftonePattern", "Halftone", "One",
                          {{"One", ""}, {"Two", ""}, {"Three", ""}, {"Four", ""}}));
    struct Row
    {
        const char *choice;
        QJsonValue method;
    };
    for (const Row &row : {Row{"Two", "dither"}, Row{"Three", "diffusion"}, Row{"One", "binary"}, Row{"Four", {}}}) {
        ASSERT_TRUE(mark("QnHalftonePattern", row.choice));
        EXPECT_EQ(effect()["halftone"], row.method) << row.choice;
    }
}

TEST_F(PrintEffect, OfAPPDWithoutTheOptionsIsNone)
{
    open(PPDText());
    EXPECT_EQ(effect().toObject(), QJsonObject({{"halftone", QJsonValue()},
                                                {"reversed", false},
                                                {"mirrored", false},
                                                {"feed", QJsonValue()},
                                                {"perforated", false}}));
}

TEST_F(PrintEffect, FollowsEachSwitchAlone)
{
    struct Row
    {
        const char *keyword;
        const char *member;
    };
    for (const Row &row :
         {Row{"QnReversal", "reversed"}, Row{"QnMirror", "mirrored"}, Row{"QnPerforated", "perforated"}}) {
        open(PPDText().allOptions(), "RollA4");
        const QJsonObject before = effect().toObject();
        ASSERT_TRUE(mark(row.keyword, "ON"));
        QJsonObject expected = before;
        expected[row.member] = true;
        EXPECT_EQ(effect().toObject(), expected) << row.keyword;
    }
}

TEST_F(PrintEffect, ShowsAReversalThatAPersonChooses)
{
    open(PPDText().allOptions());
    show("advanced");
    click("mReversalChkBx");
    EXPECT_TRUE(effect()["reversed"].toBool());
}

TEST_F(PrintEffect, HasTheAmountWhereThePaperLetsItCount)
{
    struct Row
    {
        const char *paper;
        QJsonValue feed;
    };
    for (const Row &row : {Row{"A4", 26}, Row{"A5Rotated", 26}, Row{"PerfA4", {}}, Row{"RollA4", 26},
                           Row{"ContinuousLetter", 26}, Row{"RetractA4", {}}, Row{"Strange", 26}}) {
        open(PPDText().allOptions(), row.paper, {{"width", 595}, {"height", 842}});
        EXPECT_EQ(feed(), row.feed) << row.paper;
    }
}

TEST_F(PrintEffect, HasNoAmountWhileTheFormFeedIsAnother)
{
    open(PPDText().allOptions(), "A4");
    for (const char *mode : {"FF1", "FF2", "FF3"}) {
        ASSERT_TRUE(mark("QnFormFeedMode", mode));
        EXPECT_TRUE(feed().isNull()) << mode;
    }
    ASSERT_TRUE(mark("QnFormFeedMode", "FF0"));
    EXPECT_EQ(feed(), 26);
}

TEST_F(PrintEffect, HasTheAmountWhereThePPDKnowsNoFormFeed)
{
    open(PPDText().paperFeed(), "A4");
    EXPECT_EQ(feed(), 26);
}

TEST_F(PrintEffect, KnowsNoAmountOfAListedChoice)
{
    open(PPDText().allOptions(), "A4", {{"prepare", false}});
    ASSERT_TRUE(mark("QnPaperFeed", "Feed1"));
    EXPECT_TRUE(feed().isNull());
}

TEST_F(PrintEffect, HasTheAmountAsItWasTyped)
{
    open(PPDText().allOptions(), "A4");
    show("basic");
    for (const int millimetres : {1, 2, 13, 26, 49, 51}) {
        type(QString::number(millimetres));
        ASSERT_TRUE(print());
        EXPECT_EQ(feed(), millimetres);
    }
}

TEST_F(PrintEffect, TellsAnAmountInInchesInMillimetres)
{
    open(PPDText().allOptions(), "A4", {{"locale", "en_US"}});
    EXPECT_EQ(feed(), 25.4);
    show("basic");
    type("0.3");
    ASSERT_TRUE(print());
    EXPECT_EQ(feed(), 7.62);
}

TEST_F(PrintEffect, KeepsTheMarkedAmountWhileARefusedOneStandsInTheField)
{
    open(PPDText().allOptions(), "A4");
    show("basic");
    type("0");
    request({{"do", "save"}, {"panel", "basic"}});
    ASSERT_EQ(job()["QnPaperFeed"], "Custom.1.023622");
    EXPECT_EQ(feed(), 26);
    request({{"do", "save"}, {"panel", "basic"}}); // twice refused is refused
    EXPECT_EQ(feed(), 26);
    ASSERT_TRUE(mark("QnPaperFeed", "0.5"));
    EXPECT_EQ(feed(), 12.7);
}

TEST_F(PrintEffect, ChangesNothing)
{
    open(PPDText().allOptions(), "RollA4");
    const QJsonObject before = request({{"do", "state"}});
    effect();
    EXPECT_EQ(request({{"do", "state"}}), before);
}

} // namespace
