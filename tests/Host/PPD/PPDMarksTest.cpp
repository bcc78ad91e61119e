// Marking choices in a real PPD, and what constraints make of it.
#include "PPD/PPDMarks.h"

#include "PPDText.h"
#include "Print.h"
#include "Results.h"

#include <gtest/gtest.h>

using namespace host;
using support::PPDText;

namespace {

class Marked : public testing::Test
{
protected:
    void open(const PPDText &ppd)
    {
        m_document = support::value(PPDDocument::open(ppd.file()));
        m_marks = std::make_unique<PPDMarks>(*m_document);
    }
    /// Speed S3 and thermal copy paper exclude each other.
    static PPDText withConstraint()
    {
        return PPDText()
            .allOptions()
            .line("*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3")
            .line("*UIConstraints: *QnSpeed S3 *QnMedia ThermalCopy");
    }

    std::unique_ptr<PPDDocument> m_document;
    std::unique_ptr<PPDMarks> m_marks;
};

TEST_F(Marked, AreTheDefaultsAtFirst)
{
    open(PPDText().allOptions());
    EXPECT_EQ(m_marks->choiceOf("QnMedia"), "Thermal");
    EXPECT_EQ(m_marks->pageSizeName(), "A4");
    EXPECT_EQ(m_marks->choiceOf("QnNothing"), "");
}

class NamesOfOthers : public Marked, public testing::WithParamInterface<const char *>
{};

TEST_P(NamesOfOthers, AreNoOptionsOfAJobWhateverThePPDSays)
{
    const QString name = GetParam();
    open(PPDText().allOptions().option(GetParam(), "Text", "C0", {{"C0", "First"}, {"C1", "Second"}}));
    ASSERT_TRUE(m_marks->mark(name, "C1"));
    ASSERT_TRUE(m_marks->mark("QnMedia", "ThermalCopy"));
    EXPECT_FALSE(m_marks->forJob().contains(name));
    EXPECT_TRUE(m_marks->forJob().contains("QnMedia"));
    EXPECT_EQ(m_document->unknownAmong({{name, "2"}, {"QnMedia", "Thermal"}}), (OptionValues{{name, "2"}}));
}

INSTANTIATE_TEST_SUITE_P(Of, NamesOfOthers,
                         testing::Values("copies", "media", "job-name", "document-format", "Job-Name", "raw", "sides",
                                         "requesting-user-name", "job-sheets=classified"));

TEST_F(Marked, ReportsTheOptionAskedForFirstAndWhatMovedWithItsCause)
{
    open(withConstraint());
    ASSERT_TRUE(m_marks->mark("QnSpeed", "S3"));
    const auto effect = m_marks->mark("QnMedia", "ThermalCopy");
    ASSERT_TRUE(effect);
    ASSERT_EQ(effect->changed.size(), 2U);
    EXPECT_EQ(effect->changed[0].keyword, "QnMedia");
    EXPECT_EQ(effect->changed[1].keyword, "QnSpeed"); // before media in the file
    ASSERT_EQ(effect->moved.size(), 1U);
    EXPECT_EQ(effect->moved[0].from.keyword, "QnSpeed");
    EXPECT_EQ(effect->moved[0].from.choice, "S3");
    EXPECT_EQ(effect->moved[0].cause.keyword, "QnMedia");
    EXPECT_EQ(effect->moved[0].cause.choice, "ThermalCopy");
}

TEST_F(Marked, ReportsTheOthersInTheOrderOfTheFile)
{
    open(PPDText()
             .allOptions()
             .line("*UIConstraints: *QnSpeed S3 *QnDensity D10")
             .line("*UIConstraints: *QnSpeed S3 *QnMedia ThermalCopy"));
    ASSERT_TRUE(m_marks->mark("QnMedia", "ThermalCopy"));
    ASSERT_TRUE(m_marks->mark("QnDensity", "D10"));
    const auto effect = m_marks->mark("QnSpeed", "S3");
    ASSERT_TRUE(effect);
    QStringList keywords;
    for (const auto &changed : effect->changed)
        keywords.append(changed.keyword);
    EXPECT_EQ(keywords, QStringList({"QnSpeed", "QnDensity", "QnMedia"}));
}

TEST_F(Marked, ReportsNothingWhenAllIsAsBefore)
{
    open(PPDText().allOptions());
    const auto effect = m_marks->mark("QnMedia", "Thermal");
    ASSERT_TRUE(effect);
    EXPECT_TRUE(effect->changed.empty());
    EXPECT_TRUE(effect->moved.empty());
}

TEST_F(Marked, RestoreSavedValuesAndDeclaredDefaultsElsewhere)
{
    open(PPDText().allOptions());
    ASSERT_TRUE(m_marks->mark("QnSpeed", "S3"));
    m_marks->restore({{"QnMedia", "ThermalCopy"}, {"QnPaperFeed", "Custom.1.5"}, {"QnDensity", "Gone"}, {"Gone", "A"}});
    EXPECT_EQ(m_marks->choiceOf("QnMedia"), "ThermalCopy");
    EXPECT_EQ(m_marks->choiceOf("QnSpeed"), "SHome");
    EXPECT_EQ(m_marks->choiceOf("QnDensity"), "DHome");
    EXPECT_EQ(m_marks->all()["QnPaperFeed"], "Custom.1.5");
}

TEST_F(Marked, GiveAJobEveryDigitAndOnlyWhatTheFileDoesNotDeclare)
{
    open(PPDText().allOptions());
    ASSERT_TRUE(m_marks->mark("QnPaperFeed", "1.0236220472"));
    EXPECT_EQ(m_marks->forJob(), (OptionValues{{"PageSize", "A4"}, {"QnPaperFeed", "Custom.1.0236220472"}}));
    EXPECT_EQ(m_marks->all()["QnPaperFeed"], "Custom.1.02362");
}

struct SavedSize
{
    const char *text;
    printing::Paper points;
    const char *inAJob;
};

TEST_F(Marked, TakeSavedSizesInEachUnit)
{
    for (const auto &[text, points, inAJob] :
         {SavedSize{"Custom.100x200mm", {283.465, 566.929}, "Custom.283.465x566.929"},
          SavedSize{"Custom.10x20cm", {283.465, 566.929}, "Custom.283.465x566.929"},
          SavedSize{"Custom.4x6in", {288, 432}, "Custom.288x432"},
          SavedSize{"Custom.0.5x1ft", {432, 864}, "Custom.432x864"},
          SavedSize{"Custom.400x500pt", {400, 500}, "Custom.400x500"}}) {
        open(PPDText().allOptions());
        m_marks->adoptDefaults({{"PageSize", text}});
        EXPECT_EQ(m_marks->customPageSize(), points) << text;
        EXPECT_EQ(m_marks->forJob()["PageSize"], inAJob) << text;
    }
}

TEST_F(Marked, TakeSizesOfTheUsersOwnWithinTheLimitsOnly)
{
    open(PPDText().allOptions());
    m_marks->restore({{"PageSize", "Custom.400x500"}});
    EXPECT_EQ(m_marks->customPageSize(), (printing::Paper{400, 500}));
    m_marks->restore({{"PageSize", "Custom.10x500"}}); // narrower than the PPD's least
    EXPECT_EQ(m_marks->pageSizeName(), "A4");
    EXPECT_EQ(m_marks->customPageSize(), std::nullopt);
}

} // namespace
