// Values that no PPD lists: how they are read, written and compared.
#include "PPD/CustomValue.h"

#include "Print.h"

#include <gtest/gtest.h>

using namespace host;

namespace {

struct Written
{
    const char *text;
    std::optional<double> number;
    std::optional<printing::Paper> size;
    const char *shortText;
};

void PrintTo(const Written &row, std::ostream *out) { *out << row.text; }

class CustomValues : public testing::TestWithParam<Written>
{};

TEST_P(CustomValues, AreNumbersOrSizesOrTexts)
{
    const auto value = CustomValue::fromText(GetParam().text);
    ASSERT_TRUE(value);
    EXPECT_EQ(value->text(), GetParam().text); // digit for digit
    EXPECT_EQ(value->number(), GetParam().number);
    EXPECT_EQ(value->size().has_value(), GetParam().size.has_value());
    if (GetParam().size) {
        EXPECT_NEAR(value->size()->width, GetParam().size->width, 1e-9);
        EXPECT_NEAR(value->size()->height, GetParam().size->height, 1e-9);
    }
    EXPECT_EQ(value->shortText(), GetParam().shortText);
}

constexpr auto kNone = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    Of, CustomValues,
    testing::Values(Written{"Custom.1.5", 1.5, kNone, "Custom.1.5"},
                    Written{"Custom.1.0236220472", 1.0236220472, kNone, "Custom.1.02362"},
                    Written{"Custom.+.5", 0.5, kNone, "Custom.0.5"}, Written{"Custom.1.", 1.0, kNone, "Custom.1"},
                    Written{"Custom.1e3", kNone, kNone, "Custom.1e3"}, Written{"Custom.", kNone, kNone, "Custom."},
                    Written{"Custom.400x500", kNone, printing::Paper{400, 500}, "Custom.400x500"},
                    Written{"Custom.400x500pt", kNone, printing::Paper{400, 500}, "Custom.400x500pt"},
                    Written{"Custom.1x2in", kNone, printing::Paper{72, 144}, "Custom.1x2in"},
                    Written{"Custom.1x2ft", kNone, printing::Paper{864, 1728}, "Custom.1x2ft"},
                    Written{"Custom.25.4x50.8mm", kNone, printing::Paper{72, 144}, "Custom.25.4x50.8mm"},
                    Written{"Custom.2.54x5.08cm", kNone, printing::Paper{72, 144}, "Custom.2.54x5.08cm"},
                    Written{"Custom.0.0254x0.0508m", kNone, printing::Paper{72, 144}, "Custom.0.0254x0.0508m"},
                    Written{"Custom.1x2yd", kNone, kNone, "Custom.1x2yd"},
                    Written{"Custom.1..2x3", kNone, kNone, "Custom.1..2x3"},
                    Written{"Custom.-1x2", kNone, kNone, "Custom.-1x2"}));

TEST(CustomValuesWithoutPrefix, AreNone)
{
    EXPECT_FALSE(CustomValue::fromText("1.5"));
    EXPECT_FALSE(CustomValue::fromText("custom.1.5"));
    EXPECT_FALSE(CustomValue::fromText("Custom"));
    EXPECT_FALSE(ChoiceValue::fromText("A4").custom);
    EXPECT_EQ(ChoiceValue::fromText("Custom.1.5").keyword, "Custom");
}

TEST(CustomValuesOfPapers, AreInPoints)
{
    EXPECT_EQ(CustomValue(printing::Paper{400, 500.25}).text(), "Custom.400x500.25");
}

struct Pair
{
    const char *one;
    const char *other;
    bool same;
};

class Choices : public testing::TestWithParam<Pair>
{};

TEST_P(Choices, AreTheSameWhenTheyMeanTheSame)
{
    EXPECT_EQ(isSameChoice(GetParam().one, GetParam().other), GetParam().same);
    EXPECT_EQ(isSameChoice(GetParam().other, GetParam().one), GetParam().same);
}

INSTANTIATE_TEST_SUITE_P(
    Of, Choices,
    testing::Values(Pair{"A4", "A4", true}, Pair{"A4", "a4", false}, Pair{"Custom.1.5", "Custom.1.50", true},
                    Pair{"Custom.1.02362", "Custom.1.023622", true}, Pair{"Custom.1.5", "Custom.1.51", false},
                    Pair{"Custom.some", "Custom.other", false}, Pair{"Custom.some", "Custom.0", false},
                    Pair{"Custom.1.5", "1.5", false}, Pair{"", "", true}, Pair{"", "A4", false}));

} // namespace
