// Options by name: which words can be a printer's, and how the paper is called.
#include "PPD/OptionValues.h"

#include "Print.h"

#include <gtest/gtest.h>

using namespace host;

namespace {

class WordsOfServers : public testing::TestWithParam<const char *>
{};

TEST_P(WordsOfServers, AreNoOptionsOfAPrinterInWhateverLetterCase)
{
    const QString word = GetParam();
    EXPECT_FALSE(canBeDriverOption(word));
    EXPECT_FALSE(canBeDriverOption(word.toUpper()));
    EXPECT_TRUE(isServerOption(word));
    EXPECT_TRUE(canBeDriverOption(word + 'x'));
    EXPECT_TRUE(canBeDriverOption('x' + word));
}

INSTANTIATE_TEST_SUITE_P(OfRequests, WordsOfServers,
                         testing::Values("attributes-charset", "attributes-natural-language", "auth-info",
                                         "compression", "device-uri", "document-charset", "document-format",
                                         "document-name", "document-natural-language", "document-number",
                                         "document-password", "ipp-attribute-fidelity", "last-document", "printer-uri",
                                         "requested-attributes", "requesting-user-name", "time-at-creation"));
INSTANTIATE_TEST_SUITE_P(
    OfJobs, WordsOfServers,
    testing::Values("copies", "finishing-template", "finishings", "finishings-col", "imposition-template",
                    "job-account-id", "job-account-type", "job-accounting-sheets", "job-accounting-user-id",
                    "job-authorization-uri", "job-billing", "job-cancel-after", "job-copies", "job-delay-output-until",
                    "job-error-action", "job-hold-until", "job-hold-until-time", "job-id", "job-impressions",
                    "job-k-octets", "job-media-sheets", "job-name", "job-originating-host-name",
                    "job-originating-user-name", "job-pages-per-set", "job-password", "job-password-encryption",
                    "job-phone-number", "job-printer-uri", "job-priority", "job-recipient-name", "job-retain-until",
                    "job-save-disposition", "job-sheet-message", "job-sheets", "job-state", "job-uri", "job-uuid"));
INSTANTIATE_TEST_SUITE_P(OfPages, WordsOfServers,
                         testing::Values("media", "media-col", "multiple-document-handling", "number-up",
                                         "number-up-layout", "orientation-requested", "output-bin", "overrides",
                                         "page-delivery", "page-ranges", "print-color-mode", "print-content-optimize",
                                         "print-quality", "print-rendering-intent", "print-scaling",
                                         "printer-resolution", "sides"));
INSTANTIATE_TEST_SUITE_P(OfFilters, WordsOfServers,
                         testing::Values("brightness", "columns", "cpi", "fit-to-page", "fitplot", "gamma", "hue",
                                         "landscape", "lpi", "mirror", "natural-scaling", "output-format",
                                         "outputorder", "page-border", "page-bottom", "page-left", "page-right",
                                         "page-set", "page-top", "penwidth", "position", "ppi", "prettyprint",
                                         "print-as-raster", "raw", "resolution", "saturation", "scaling", "wrap"));

struct Keyword
{
    QString text;
    bool isOne;
};

void PrintTo(const Keyword &row, std::ostream *out) { *out << '"' << row.text.toStdString() << '"'; }

class Keywords : public testing::TestWithParam<Keyword>
{};

TEST_P(Keywords, AreWordsOfPlainCharacters) { EXPECT_EQ(canBeDriverOption(GetParam().text), GetParam().isOne); }

INSTANTIATE_TEST_SUITE_P(Of, Keywords,
                         testing::Values(Keyword{"QnMedia", true}, Keyword{"!", true}, Keyword{"~", true},
                                         Keyword{"a-b.c:d/e", true}, Keyword{"", false}, Keyword{"Resolution", true},
                                         Keyword{"resolution", false}, Keyword{"a b", false}, Keyword{" ", false},
                                         Keyword{"a\tb", false}, Keyword{"a\nb", false},
                                         Keyword{QString("a") + QChar(0x7f), false}, Keyword{"ä", false},
                                         Keyword{"a\"b", false}, Keyword{"a'b", false}, Keyword{"a\\b", false},
                                         Keyword{"a=b", false}, Keyword{"a{b", false}, Keyword{"a}b", false}));

class WordsOfBoth : public testing::TestWithParam<const char *>
{};

TEST_P(WordsOfBoth, AreTakenByFiltersAndCanBeAPrinters)
{
    EXPECT_TRUE(isServerOption(GetParam()));
    EXPECT_TRUE(canBeDriverOption(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Of, WordsOfBoth,
                         testing::Values("collate", "media-color", "media-size", "media-source", "media-type"));

struct Meant
{
    const char *written;
    const char *meant; // "": nobody knows
};

void PrintTo(const Meant &row, std::ostream *out) { *out << row.written; }

class Misspelt : public testing::TestWithParam<Meant>
{};

/// A letter in three may be wrong, missing or too many.
TEST_P(Misspelt, WordsLeadToTheNearestOne)
{
    EXPECT_EQ(similarOption(GetParam().written, {"QnMedia", "QnMirror", "QnSpeed", "PageSize"}), GetParam().meant);
}

INSTANTIATE_TEST_SUITE_P(Of, Misspelt,
                         testing::Values(Meant{"QnMedai", "QnMedia"}, Meant{"qnmedia", "QnMedia"},
                                         Meant{"QnMdia", "QnMedia"}, Meant{"QnMediaa", "QnMedia"}, Meant{"nSpee", ""},
                                         Meant{"QnSpe", ""}, Meant{"QnSped", "QnSpeed"}, Meant{"nSpeedy", "QnSpeed"},
                                         Meant{"Pagesze", "PageSize"}, Meant{"copis", "copies"}, Meant{"side", "sides"},
                                         Meant{"wrapp", "wrap"}, Meant{"", ""}, Meant{"x", ""},
                                         Meant{"entirely-different", ""}));

TEST(Misspelt, WordsOfMoreThanFortyLettersAreNotLookedUp)
{
    const QString longest(40, 'x');
    EXPECT_EQ(similarOption(longest, {longest}), longest);
    EXPECT_EQ(similarOption(longest + 'x', {longest}), "");
}

TEST(ThePaper, IsCalledPageSizeByPrintersWithAPPD)
{
    const OptionValues speed{{"QnSpeed", "S1"}};
    EXPECT_EQ(withMediaAsPageSize(speed), speed);
    EXPECT_EQ(withMediaAsPageSize({{"media", "RollA4"}, {"QnSpeed", "S1"}}),
              (OptionValues{{"PageSize", "RollA4"}, {"QnSpeed", "S1"}}));
    EXPECT_EQ(withMediaAsPageSize({{"media", "RollA4,Tray1,Labels"}}), (OptionValues{{"PageSize", "RollA4"}}));
    EXPECT_EQ(withMediaAsPageSize({{"media", "RollA4"}, {"PageSize", "A5"}}), (OptionValues{{"PageSize", "A5"}}));
}

} // namespace
