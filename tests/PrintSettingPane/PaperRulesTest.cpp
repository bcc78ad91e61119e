// The tables of paper names and kinds, by themselves.
#include "PaperRules.h"

#include <gtest/gtest.h>

using namespace paper;

namespace {

struct Name
{
    std::u16string_view name;
    Group group;
};

class Groups : public testing::TestWithParam<Name>
{};

TEST_P(Groups, AreKnownByTheExactName) { EXPECT_EQ(groupOf(GetParam().name), GetParam().group); }

INSTANTIATE_TEST_SUITE_P(
    Names, Groups,
    testing::Values(Name{u"A4", Group::plain}, Name{u"Letter", Group::plain}, Name{u"Legal", Group::plain},
                    Name{u"A5", Group::plain}, Name{u"A5Rotated", Group::plain}, Name{u"PerfA4", Group::perforated},
                    Name{u"PerfLetter", Group::perforated}, Name{u"PerfLegal", Group::perforated},
                    Name{u"RollA4", Group::roll}, Name{u"RollLetter", Group::roll}, Name{u"RollLegal", Group::roll},
                    Name{u"ContinuousLetter", Group::continuous}, Name{u"RetractA4", Group::retract},
                    Name{u"RetractLetter", Group::retract}, Name{u"RetractLegal", Group::retract},
                    Name{u"a4", Group::other}, Name{u"ROLLA4", Group::other}, Name{u"A4 ", Group::other},
                    Name{u"A4Rotated", Group::other}, Name{u"PerfA5", Group::other},
                    Name{u"ContinuousA4", Group::other}, Name{u"customsize", Group::other}, Name{u"", Group::other}));

TEST(PaperNames, ThatAreMissingAreOther) { EXPECT_EQ(groupOf(std::nullopt), Group::other); }

TEST(PaperNames, CountAsRollForAPersonAlsoWhenUserDefined)
{
    for (const auto name : {u"RollA4", u"RollLetter", u"RollLegal", u"customsize"})
        EXPECT_TRUE(isRollOrUserDefined(name));
    for (const auto name : {u"A4", u"PerfA4", u"RetractA4", u"ContinuousLetter", u"Customsize", u""})
        EXPECT_FALSE(isRollOrUserDefined(name));
    EXPECT_FALSE(isRollOrUserDefined(std::nullopt));
}

TEST(Corrections, TakeIndexesThatNoTableNamesByTheWords)
{
    // -1 for an empty menu, 4 and more for a PPD with many modes: "is not 2" holds for them, "is 3" does not.
    for (const int item : {-1, 4, 9}) {
        EXPECT_FALSE(holds(correction(Group::plain).wrong, item)) << item;
        EXPECT_TRUE(holds(correction(Group::perforated).wrong, item)) << item;
        EXPECT_FALSE(holds(correction(Group::roll).wrong, item)) << item;
        EXPECT_TRUE(holds(correction(Group::continuous).wrong, item)) << item;
        EXPECT_TRUE(holds(correction(Group::retract).wrong, item)) << item;
        EXPECT_FALSE(holds(correction(Group::other).wrong, item)) << item;
    }
}

TEST(Availability, OfAnEmptyMenuGoesByTheWords)
{
    EXPECT_FALSE(holds(When::formFeed0, -1, 0));
    EXPECT_FALSE(holds(When::perforated0, 0, -1));
    EXPECT_TRUE(holds(When::always, -1, -1));
    EXPECT_FALSE(holds(When::never, 0, 0));
}

} // namespace
