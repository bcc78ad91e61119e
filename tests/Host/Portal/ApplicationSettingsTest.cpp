// What applications say of a job before its pages exist, and what they are told: each kind of them has ways of its own.
#include "Print.h"

#include "Portal/ApplicationSettings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include <ostream>

using host::DialogWish;
using host::OptionValues;
using host::PreparedPrint;

namespace {

DialogWish read(const QVariantMap &settings)
{
    DialogWish wish;
    host::readSettings(host::harmlessSettings(settings), wish);
    return wish;
}

struct PagesRow
{
    const char *how;
    const char *ranges;
    const char *pages;
};
void PrintTo(const PagesRow &row, std::ostream *out) { *out << row.how << ' ' << row.ranges; }

class RangesOfAnApplication : public testing::TestWithParam<PagesRow>
{};

TEST_P(RangesOfAnApplication, CountFromZeroAndOnlyWhereTheyAreMeant)
{
    EXPECT_EQ(read({{"print-pages", GetParam().how}, {"page-ranges", GetParam().ranges}}).pages, GetParam().pages);
}

INSTANTIATE_TEST_SUITE_P(Rows, RangesOfAnApplication,
                         testing::Values(PagesRow{"ranges", "0-2,4", "1-3,5"}, PagesRow{"ranges", "0", "1"},
                                         PagesRow{"ranges", "4,0", "1,5"}, PagesRow{"all", "0-2", ""},
                                         PagesRow{"current", "0-2", ""}, PagesRow{"ranges", "", ""},
                                         PagesRow{"ranges", "-1", ""}, PagesRow{"ranges", "2-1", ""},
                                         PagesRow{"ranges", "x", ""}, PagesRow{"ranges", "0-2147483647", ""}));

TEST(SettingsOfAnApplication, NameThePrinterTheCopiesAndTheDriversOptions)
{
    const DialogWish wish = read({{"printer", "counter"},
                                  {"n-copies", "3"},
                                  {"cups-QnDensity", "D9"},
                                  {"cups-QnPaperFeed", "Custom.1.02"},
                                  {"paper-format", "iso_a4"}});
    EXPECT_EQ(wish.printer, "counter");
    EXPECT_EQ(wish.copies, 3);
    EXPECT_EQ(wish.options, (OptionValues{{"QnDensity", "D9"}, {"QnPaperFeed", "Custom.1.02"}}));
}

TEST(SettingsOfAnApplication, WithCopiesThatCantBeHaveNone)
{
    for (const char *copies : {"0", "-1", "1000", "many", "", "1.5"})
        EXPECT_FALSE(read({{"n-copies", copies}}).copies) << copies;
}

TEST(SettingsOfAnApplication, HaveNoOptionsThatAreAnotherThingToTheServer)
{
    EXPECT_TRUE(read({{"cups-copies", "3"}, {"cups-", "x"}, {"cups-a b", "x"}, {"cups-document-format", "x"}})
                    .options.isEmpty());
}

TEST(SettingsOfAnApplication, ThatAreNoStringsAreDropped)
{
    const QVariantMap settings{{"n-copies", 3}, {"printer", QVariantMap()}, {"cups-QnDensity", QStringList{"D9"}}};
    EXPECT_TRUE(host::harmlessSettings(settings).isEmpty());
}

TEST(SettingsOfAnApplication, WithoutEndAreDropped)
{
    EXPECT_TRUE(host::harmlessSettings({{QString(300, 'k'), "v"}, {"k", QString(5000, 'v')}}).isEmpty());
    QVariantMap many;
    for (int i = 0; i < 5000; ++i)
        many[QString::number(i)] = "v";
    EXPECT_EQ(host::harmlessSettings(many).size(), 1000);
}

TEST(SettingsOfAnApplication, WithControlsInThemBecomeOneLine)
{
    const DialogWish wish = read({{"printer", "cou\nnter"}, {"cups-QnDensity", "D9\x1b[2J"}});
    EXPECT_EQ(wish.printer, "cou nter");
    EXPECT_FALSE(wish.options["QnDensity"].contains(QChar(0x1b)));
}

PreparedPrint onRoll()
{
    PreparedPrint prepared;
    prepared.queue = "counter";
    prepared.copies = 2;
    prepared.pages = "1-3";
    prepared.options = {{"PageSize", "RollA4"}, {"QnDensity", "D9"}, {"print-scaling", "fit"}};
    prepared.paper = {"RollA4", "Roll A4", 210, 297, 3, 4, 5, 6};
    return prepared;
}

struct ReturnedRow
{
    const char *key;
    const char *own;      // what the application had; null: nothing
    const char *returned; // null: nothing
};
void PrintTo(const ReturnedRow &row, std::ostream *out) { *out << row.key; }

class ReturnedSetting : public testing::TestWithParam<ReturnedRow>
{};

// Copies and pages stay with us and go to the server: one kind of application would make them itself, the other not.
// A paper in the settings would count for more than the page set-up.
TEST_P(ReturnedSetting, LeavesOurPartOfTheJobToUs)
{
    const auto &[key, own, returned] = GetParam();
    const QVariantMap before = own ? QVariantMap{{key, QString(own)}} : QVariantMap();
    EXPECT_EQ(host::settingsToReturn(before, onRoll()).value(key), returned ? QVariant(QString(returned)) : QVariant());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReturnedSetting,
    testing::Values(ReturnedRow{"n-copies", "3", "1"}, ReturnedRow{"n-copies", nullptr, "1"},
                    ReturnedRow{"print-pages", "ranges", "all"}, ReturnedRow{"page-set", "odd", "all"},
                    ReturnedRow{"reverse", "true", "false"}, ReturnedRow{"collate", "true", "false"},
                    ReturnedRow{"number-up", "4", "1"}, ReturnedRow{"scale", "50", "100"},
                    ReturnedRow{"printer", "office", "counter"}, ReturnedRow{"page-ranges", "0-2", nullptr},
                    ReturnedRow{"paper-format", "iso_a4", nullptr}, ReturnedRow{"paper-width", "210", nullptr},
                    ReturnedRow{"paper-height", "297", nullptr}, ReturnedRow{"orientation", "landscape", nullptr},
                    ReturnedRow{"output-uri", "file:///tmp/x", nullptr}, ReturnedRow{"output-basename", "x", nullptr},
                    ReturnedRow{"output-file-format", "pdf", nullptr}, ReturnedRow{"cups-QnDensity", "D1", "D9"},
                    ReturnedRow{"cups-QnSpeed", "Fast", nullptr}, ReturnedRow{"cups-PageSize", nullptr, "RollA4"},
                    ReturnedRow{"use-color", "true", "true"}, ReturnedRow{"some-app-key", "kept", "kept"}));

TEST(ReturnedSettings, SayOfACodeOnlyThatThereIsOne)
{
    PreparedPrint prepared = onRoll();
    prepared.options["Pin"] = "Custom.0042";
    prepared.options["Key"] = "None";
    prepared.options["Mark"] = "Custom.shown";
    prepared.secrets = QStringList{"Pin", "Key"};
    const QVariantMap returned = host::settingsToReturn({}, host::preparedPrintFromJson(toJson(prepared)));
    EXPECT_EQ(returned["cups-Pin"], "Custom");
    EXPECT_EQ(returned["cups-Key"], "None");
    EXPECT_EQ(returned["cups-Mark"], "Custom.shown");
}

TEST(ReturnedPageSetup, IsAlwaysWhole)
{
    const QVariantMap setup = host::pageSetupToReturn({}, onRoll());
    const QVariantMap expected{{"PPDName", "RollA4"}, {"DisplayName", "Roll A4"}, {"Width", 210.0},
                               {"Height", 297.0},     {"MarginTop", 3.0},         {"MarginBottom", 4.0},
                               {"MarginLeft", 5.0},   {"MarginRight", 6.0},       {"Orientation", "portrait"}};
    EXPECT_EQ(setup, expected);
}

struct OwnPaperRow
{
    const char *name;
    QVariantMap own;
    double width;
    double height;
    double left;
    const char *text;
};
void PrintTo(const OwnPaperRow &row, std::ostream *out) { *out << row.name; }

class ReturnedPageSetupOfAnUnknownPaper : public testing::TestWithParam<OwnPaperRow>
{};

TEST_P(ReturnedPageSetupOfAnUnknownPaper, IsThatOfTheApplicationWhereItHasOne)
{
    const OwnPaperRow &row = GetParam();
    const QVariantMap setup = host::pageSetupToReturn(row.own, {});
    EXPECT_EQ(setup["Width"], row.width);
    EXPECT_EQ(setup["Height"], row.height);
    EXPECT_EQ(setup["MarginLeft"], row.left);
    EXPECT_EQ(setup["DisplayName"], row.text);
    EXPECT_EQ(setup.size(), 9);
}

INSTANTIATE_TEST_SUITE_P(
    Of, ReturnedPageSetupOfAnUnknownPaper,
    testing::Values(OwnPaperRow{"ALetter",
                                {{"DisplayName", "Letter"}, {"Width", 215.9}, {"Height", 279.4}, {"MarginLeft", 6.35}},
                                215.9,
                                279.4,
                                6.35,
                                "Letter"},
                    OwnPaperRow{"Nothing", {}, 210, 297, 0, "A4"},
                    OwnPaperRow{"AWidthAlone", {{"Width", 80.0}}, 210, 297, 0, "A4"},
                    OwnPaperRow{"NoSize", {{"Width", 0.0}, {"Height", 0.0}}, 210, 297, 0, "A4"},
                    OwnPaperRow{"ASizeThatIsNone", {{"Width", std::nan("")}, {"Height", 279.4}}, 210, 297, 0, "A4"},
                    OwnPaperRow{"ASizeWithoutEnd",
                                {{"Width", std::numeric_limits<double>::infinity()}, {"Height", 279.4}},
                                210,
                                297,
                                0,
                                "A4"},
                    OwnPaperRow{"AText", {{"Width", "80"}, {"Height", "200"}}, 210, 297, 0, "A4"},
                    OwnPaperRow{
                        "ANegativeMargin", {{"Width", 80.0}, {"Height", 200.0}, {"MarginLeft", -5.0}}, 80, 200, 0, ""}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(ReturnedPageSetup, KeepsTheOrientationOfTheApplication)
{
    EXPECT_EQ(host::pageSetupToReturn({{"Orientation", "landscape"}}, onRoll())["Orientation"], "landscape");
    EXPECT_EQ(host::pageSetupToReturn({{"Orientation", "sideways"}}, onRoll())["Orientation"], "portrait");
    EXPECT_EQ(host::pageSetupToReturn({{"Orientation", 7}}, onRoll())["Orientation"], "portrait");
}

struct TitleRow
{
    const char *title;
    const char *plain;
};
void PrintTo(const TitleRow &row, std::ostream *out) { *out << row.title; }

class TitleOfADialog : public testing::TestWithParam<TitleRow>
{};

TEST_P(TitleOfADialog, HasNoMnemonicAndNoEllipsis) { EXPECT_EQ(host::plainTitle(GetParam().title), GetParam().plain); }

INSTANTIATE_TEST_SUITE_P(Rows, TitleOfADialog,
                         testing::Values(TitleRow{"&Print…", "Print"}, TitleRow{"_Print...", "Print"},
                                         TitleRow{"Print", "Print"}, TitleRow{"Pri&nt", "Print"},
                                         TitleRow{"Salt & Pepper", "Salt & Pepper"}, TitleRow{"my_file", "my_file"},
                                         TitleRow{"", ""}, TitleRow{"&", "&"}, TitleRow{" Print … ", "Print"}));

TEST(TitleOfAJob, IsTheDocumentsUnlessItIsOnlyTheDialogs)
{
    EXPECT_EQ(host::jobTitle("Invoice 17", "&Print…"), "Invoice 17");
    EXPECT_EQ(host::jobTitle("Print", "Print"), "");
    EXPECT_EQ(host::jobTitle("Print", "&Print…"), "");
    EXPECT_EQ(host::jobTitle("", "Print"), "");
    EXPECT_EQ(host::jobTitle("two\nlines", ""), "two lines");
}

} // namespace
