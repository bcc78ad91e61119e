// What a job says besides its options.
#include "Jobs/PageRanges.h"

#include "Print.h"

#include <gtest/gtest.h>

using namespace host;

namespace {

struct Pages
{
    const char *text;
    std::optional<QString> ranges;
};
class PageRanges : public testing::TestWithParam<Pages>
{};

TEST_P(PageRanges, AreInOrderAndWithoutOverlaps) { EXPECT_EQ(readPageRanges(GetParam().text), GetParam().ranges); }

INSTANTIATE_TEST_SUITE_P(Of, PageRanges,
                         testing::Values(Pages{"", ""}, Pages{"  ", ""}, Pages{"3", "3"}, Pages{"1-3,5", "1-3,5"},
                                         Pages{" 5 , 1 - 3 ", "1-3,5"}, Pages{"3,3,2", "2-3"},
                                         Pages{"1-5,2-3,7", "1-5,7"}, Pages{"1,2,3", "1-3"}, Pages{"1,3", "1,3"},
                                         Pages{"4-4", "4"}, Pages{"0", std::nullopt}, Pages{"3-1", std::nullopt},
                                         Pages{"1-", std::nullopt}, Pages{"-1", std::nullopt},
                                         Pages{"1,,2", std::nullopt}, Pages{"1;2", std::nullopt},
                                         Pages{"a", std::nullopt}, Pages{"1.5", std::nullopt}, Pages{"٣", std::nullopt},
                                         Pages{"99999999999", std::nullopt}, Pages{"1-999999999", "1-999999999"}));

struct Number
{
    const char *text;
    std::optional<int> copies;
};
class Copies : public testing::TestWithParam<Number>
{};

TEST_P(Copies, AreFromOneToTheMost) { EXPECT_EQ(readCopies(GetParam().text), GetParam().copies); }

INSTANTIATE_TEST_SUITE_P(Of, Copies,
                         testing::Values(Number{"1", 1}, Number{"999", 999}, Number{"0", std::nullopt},
                                         Number{"1000", std::nullopt}, Number{"-1", std::nullopt},
                                         Number{"", std::nullopt}, Number{"x", std::nullopt},
                                         Number{"1.5", std::nullopt}));

TEST(PagesOfADocument, AreAllWhereNoRangesAreGiven) { EXPECT_EQ(pagesAmong("", 3), (std::vector{1, 2, 3})); }

TEST(PagesOfADocument, AreThoseOfTheRanges)
{
    EXPECT_EQ(pagesAmong("1-2,4", 4), (std::vector{1, 2, 4}));
    EXPECT_EQ(pagesAmong("3", 3), std::vector{3});
}

TEST(PagesOfADocument, AreNoneBeyondItsEnd)
{
    for (const char *ranges : {"4", "2-4", "1,7-9", "1-999999999"})
        EXPECT_EQ(pagesAmong(ranges, 3), std::nullopt) << ranges;
}

} // namespace
