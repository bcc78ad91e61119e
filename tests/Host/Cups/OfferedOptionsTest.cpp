// What a server offers for a queue without a PPD, as a PPD.
#include "Cups/Queues.h"

#include "PPD/PPDDocument.h"

#include "Results.h"

#include <gtest/gtest.h>

#include <array>

using namespace host;

namespace {

struct ChoiceRow
{
    const char *name;
    const char *word;
    const char *choice;
    const char *title;
    const char *text;
};

void PrintTo(const ChoiceRow &row, std::ostream *out) { *out << row.word << '=' << row.choice; }

constexpr std::array kRows{
    ChoiceRow{"OneSided", "sides", "one-sided", "2-Sided Printing", "Off (1-Sided)"},
    ChoiceRow{"LongEdge", "sides", "two-sided-long-edge", "2-Sided Printing", "Long-Edge (Portrait)"},
    ChoiceRow{"ShortEdge", "sides", "two-sided-short-edge", "2-Sided Printing", "Short-Edge (Landscape)"},
    ChoiceRow{"Draft", "print-quality", "3", "Print Quality", "Draft"},
    ChoiceRow{"Normal", "print-quality", "4", "Print Quality", "Normal"},
    ChoiceRow{"High", "print-quality", "5", "Print Quality", "High"},
    ChoiceRow{"AutomaticColor", "print-color-mode", "auto", "Color Mode", "Automatic"},
    ChoiceRow{"Color", "print-color-mode", "color", "Color Mode", "Color"},
    ChoiceRow{"Grey", "print-color-mode", "monochrome", "Color Mode", "Grayscale"},
    ChoiceRow{"BlackAndWhite", "print-color-mode", "bi-level", "Color Mode", "Black and White"},
    ChoiceRow{"Portrait", "orientation-requested", "3", "Orientation", "Portrait"},
    ChoiceRow{"Landscape", "orientation-requested", "4", "Orientation", "Landscape"},
    ChoiceRow{"ReverseLandscape", "orientation-requested", "5", "Orientation", "Reverse Landscape"},
    ChoiceRow{"ReversePortrait", "orientation-requested", "6", "Orientation", "Reverse Portrait"},
    ChoiceRow{"AutomaticOrientation", "orientation-requested", "7", "Orientation", "Automatic"},
};

/// As good as a server that offers everything.
OfferedOption everything(const QString &word, const QString &standard)
{
    OfferedOption offer{word, {}, standard};
    for (const ChoiceRow &row : kRows)
        if (word == row.word)
            offer.choices.append(row.choice);
    return offer;
}

std::unique_ptr<PPDDocument> documentOf(const OfferedOptions &offers)
{
    return support::value(PPDDocument::ofText(ppdOf(offers)));
}

QString standardOf(const PPDDocument &ppd, const QString &word)
{
    const ppd_option_t *const option = ppd.option(offeredKeyword(word));
    return option ? option->defchoice : "";
}

class Offer : public testing::TestWithParam<ChoiceRow>
{};

TEST_P(Offer, IsTheChoiceOfAPPDByItsNameForPeople)
{
    const auto &row = GetParam();
    const auto ppd = documentOf({everything(row.word, row.choice)});
    const QString keyword = offeredKeyword(row.word);
    ASSERT_TRUE(ppd->hasOption(keyword));
    EXPECT_EQ(ppd->optionText(keyword), row.title);
    EXPECT_EQ(ppd->choiceText(keyword, row.choice), row.text);
    EXPECT_EQ(standardOf(*ppd, row.word), row.choice);
    EXPECT_EQ(asSaid({{keyword, row.choice}}), OptionValues({{row.word, row.choice}}));
    EXPECT_EQ(asOffered({{row.word, row.choice}}), OptionValues({{keyword, row.choice}}));
}

INSTANTIATE_TEST_SUITE_P(Of, Offer, testing::ValuesIn(kRows),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(Offers, KeepToTheOrderOfPeopleWhateverThatOfTheServer)
{
    const auto ppd =
        documentOf({{"print-quality", {"5", "3"}, "5"}, {"sides", {"two-sided-long-edge", "one-sided"}, ""}});
    ASSERT_EQ(ppd->options().size(), 2U);
    EXPECT_EQ(ppd->options()[0]->keyword, offeredKeyword("sides"));
    EXPECT_STREQ(ppd->options()[1]->choices[0].choice, "3");
}

TEST(Offers, BeginWithThePrintersOwnWayWhereTheServerDoesNotSayWhichThatIs)
{
    for (const char *standard : {"", "somehow"}) {
        const auto ppd = documentOf({everything("sides", standard)});
        const QString own = standardOf(*ppd, "sides");
        EXPECT_EQ(ppd->choiceText(offeredKeyword("sides"), own), "Printer Default");
        EXPECT_STREQ(ppd->options().front()->choices[0].choice, own.toUtf8().constData());
        EXPECT_EQ(asSaid({{offeredKeyword("sides"), own}}), OptionValues());
    }
}

TEST(Offers, ThatNoTextIsKnownOfComeLastByTheirOwnNames)
{
    const auto ppd =
        documentOf({{"print-color-mode", {"process-monochrome", "monochrome", "auto-monochrome"}, "auto-monochrome"}});
    const QString keyword = offeredKeyword("print-color-mode");
    const ppd_option_t &option = *ppd->option(keyword);
    ASSERT_EQ(option.num_choices, 3);
    EXPECT_STREQ(option.choices[0].choice, "monochrome");
    EXPECT_STREQ(option.choices[1].choice, "process-monochrome");
    EXPECT_EQ(ppd->choiceText(keyword, "auto-monochrome"), "auto-monochrome");
    EXPECT_EQ(standardOf(*ppd, "print-color-mode"), "auto-monochrome");
}

TEST(Offers, AreNothingWhereThereIsNothingToChoose)
{
    EXPECT_EQ(ppdOf({}), "");
    EXPECT_EQ(ppdOf({{"sides", {"one-sided"}, "one-sided"}}), "");
    EXPECT_EQ(ppdOf({{"sides", {"one-sided"}, ""}}), "");
    EXPECT_EQ(ppdOf({{"sides", {}, "one-sided"}}), "");
    EXPECT_EQ(ppdOf({{"copies", {"1", "2"}, "1"}}), "");
}

struct OddRow
{
    const char *name;
    const char *value;
};

void PrintTo(const OddRow &row, std::ostream *out) { *out << row.name; }

class OddValue : public testing::TestWithParam<OddRow>
{};

TEST_P(OddValue, OfAServerDoesNotGetIntoAPPD)
{
    const QStringList sound{"one-sided", "two-sided-long-edge"};
    const QString odd = GetParam().value;
    EXPECT_EQ(ppdOf({{"sides", sound + QStringList(odd), "one-sided"}}), ppdOf({{"sides", sound, "one-sided"}}));
    EXPECT_EQ(ppdOf({{"sides", sound, odd}}), ppdOf({{"sides", sound, ""}}));
    EXPECT_EQ(ppdOf({{odd, sound, "one-sided"}}), "");
}

INSTANTIATE_TEST_SUITE_P(Such, OddValue,
                         testing::Values(OddRow{"AStatement", "x/y: \"\"\n*cupsFilter: \"z\""},
                                         OddRow{"ALineEndBehindAWord", "word\n"}, OddRow{"ALineEnd", "\n"},
                                         OddRow{"NoWord", ""}, OddRow{"TwoWords", "two words"}, OddRow{"ASlash", "a/b"},
                                         OddRow{"AColon", "a:b"}, OddRow{"Letters", "b\u00e9id"},
                                         OddRow{"WhatTheLibraryRenames", "Custom"},
                                         OddRow{"WhatItRenamesToo", "custom.sides"}, OddRow{"OurOwn", "own"},
                                         OddRow{"ALongWord", "a-word-of-forty-one-letters-is-one-too-many"}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(Offers, WithoutAnEndLeaveTheQueueWithoutAPanel)
{
    Queue queue;
    queue.name = "endless";
    queue.offers = {{"sides", {}, ""}};
    for (int i = 0; i < 100'000; ++i)
        queue.offers[0].choices.append(QString("side-%1").arg(i));
    const auto opened = withPPDOpened(queue);
    EXPECT_EQ(support::sentence(opened), "(none)");
    EXPECT_FALSE(opened->ppd);
    EXPECT_EQ(opened->queue.name, "endless");
}

TEST(Offers, AreOptionsOfADriverAndNoWordsOfServers)
{
    for (const QString &word : wordsToOffer()) {
        EXPECT_FALSE(canBeDriverOption(word)) << word.toStdString();
        EXPECT_TRUE(canBeDriverOption(offeredKeyword(word))) << word.toStdString();
    }
}

TEST(Offers, ThatAreNumbersGoByTheirNamesAsWell)
{
    EXPECT_EQ(asOffered({{"print-quality", "high"}}), asOffered({{"print-quality", "5"}}));
    EXPECT_EQ(asOffered({{"print-quality", "High"}}), asOffered({{"print-quality", "5"}}));
    EXPECT_EQ(asOffered({{"orientation-requested", "landscape"}}), asOffered({{"orientation-requested", "4"}}));
    EXPECT_NE(asOffered({{"print-quality", "4abc"}}), asOffered({{"print-quality", "4"}}));
}

TEST(MarksOfOtherOptions, AreNotSaid) { EXPECT_EQ(asSaid({{"PageSize", "A4"}}), OptionValues()); }

} // namespace
