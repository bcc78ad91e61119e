// Marking choices in a real PPD, and what constraints make of it.
#include "PPD/PPDMarks.h"

#include "PPDText.h"
#include "Print.h"
#include "Results.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <clocale>
#include <thread>

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
    /// The library keeps the texts of one language, that of the environment, and finds out which once a thread.
    void openIn(const char *environment, const PPDText &ppd)
    {
        const QByteArray before = qgetenv("LC_ALL");
        qputenv("LC_ALL", environment);
        std::setlocale(LC_MESSAGES, "C"); // or what the application took at its start would count
        std::thread([&] { open(ppd); }).join();
        qputenv("LC_ALL", before);
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

PPDText withText(const QByteArray &standard)
{
    return PPDText()
        .option("Note", "Note", standard, {{"None", "None"}, {"No", "No"}})
        .line("*CustomNote True: \"x\"\n*ParamCustomNote Words: 1 string 3 8");
}

TEST_F(Marked, TakeATextWithItsPrefixThatIsNeitherTooShortNorTooLong)
{
    open(withText("None"));
    for (const char *wrong : {"abc", "Custom.ab", "Custom.abcdefghi", "Custom.", ""})
        EXPECT_FALSE(m_marks->mark("Note", wrong)) << wrong;
    for (const char *text : {"Custom.abc", "Custom.0012", "Custom.None", "Custom.1.500"}) {
        ASSERT_TRUE(m_marks->mark("Note", text)) << text;
        EXPECT_EQ(m_marks->all()["Note"], text); // digit for digit
        EXPECT_EQ(m_marks->forJob()["Note"], text);
    }
    m_marks->restore({{"Note", "Custom.saved"}});
    EXPECT_EQ(m_marks->valueOf("Note"), "Custom.saved");
    m_marks->restore({{"Note", "Custom.too much to keep"}});
    EXPECT_EQ(m_marks->valueOf("Note"), "None");
    EXPECT_FALSE(m_document->accepts("Note", "Custom.No")); // nor is it the choice
    m_marks->adoptDefaults({{"Note", "Custom.mine"}});
    EXPECT_EQ(m_marks->valueOf("Note"), "Custom.mine");
}

TEST_F(Marked, GiveAJobATextAlsoWhereTheFileDeclaresACustomDefault)
{
    open(withText("Custom"));
    ASSERT_TRUE(m_marks->mark("Note", "Custom.abc"));
    EXPECT_EQ(m_marks->forJob()["Note"], "Custom.abc");
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

/// A custom option of one parameter, of a kind and a range.
struct Parameter
{
    const char *kind;
    const char *least;
    const char *largest;
    const char *below;
    const char *beyond;
};

void PrintTo(const Parameter &row, std::ostream *out) { *out << row.kind; }

class Parameters : public Marked, public testing::WithParamInterface<Parameter>
{};

TEST_P(Parameters, TakeNumbersWithinTheirRangeBothEndsIncluded)
{
    const auto &[kind, least, largest, below, beyond] = GetParam();
    open(PPDText()
             .standardOption("QnDensity")
             .line("*CustomQnDensity True: \"x\"")
             .line(QByteArray("*ParamCustomQnDensity Amount: 1 ") + kind + ' ' + least + ' ' + largest));
    for (const char *taken : {least, largest}) {
        EXPECT_TRUE(m_marks->mark("QnDensity", taken)) << taken;
        EXPECT_TRUE(m_document->accepts("QnDensity", QString("Custom.") + taken)) << taken;
        EXPECT_EQ(m_marks->all()["QnDensity"], QString("Custom.") + taken);
    }
    for (const char *refused : {below, beyond, "D"}) {
        EXPECT_FALSE(m_marks->mark("QnDensity", refused)) << refused;
        EXPECT_FALSE(m_document->accepts("QnDensity", QString("Custom.") + refused)) << refused;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Parameters,
                         testing::Values(Parameter{"real", "0.5", "2.5", "0.49", "2.51"},
                                         Parameter{"curve", "0.5", "2.5", "0.49", "2.51"},
                                         Parameter{"invcurve", "0.5", "2.5", "0.49", "2.51"},
                                         Parameter{"points", "10", "20", "9.9", "20.1"},
                                         Parameter{"int", "3", "7", "2", "8"}));

TEST_F(Marked, TakeNoNumberWhereATextIsAskedFor)
{
    open(PPDText()
             .standardOption("QnDensity")
             .line("*CustomQnDensity True: \"x\"")
             .line("*ParamCustomQnDensity Name: 1 string 1 9"));
    EXPECT_FALSE(m_marks->mark("QnDensity", "5"));
}

/// Sizes at each limit of width and height, and beyond it.
TEST_F(Marked, TakeSizesUpToEachLimit)
{
    open(PPDText().customPageRange(100, 200, 300, 400));
    for (const char *within : {"100x350", "200x350", "150x300", "150x400"})
        EXPECT_TRUE(m_document->accepts("PageSize", QString("Custom.") + within)) << within;
    for (const char *beyond : {"99.9x350", "200.1x350", "150x299.9", "150x400.1", "0x350", "x"})
        EXPECT_FALSE(m_document->accepts("PageSize", QString("Custom.") + beyond)) << beyond;
}

TEST_F(Marked, HaveTheirTextsFromTheFile)
{
    openIn("de_AT.UTF-8", PPDText()
                              .option("QnMedia", "Paper Type", "Thermal",
                                      {{"Thermal", "Thermal Paper"}, {"Copy", "Copy Paper"}, {"Bare", ""}})
                              .line("*de.QnMedia Thermal/Thermopapier: \"\"")
                              .line("*de.QnMedia Copy/: \"\"")
                              .line("*de_AT.QnMedia Thermal/Thermopapier, eh klar: \"\""));
    EXPECT_EQ(m_document->optionText("QnMedia"), "Paper Type");
    EXPECT_EQ(m_document->optionText("QnNothing"), "QnNothing");
    const auto text = [this](const char *choice, const char *language) {
        return m_document->choiceText("QnMedia", choice, language);
    };
    EXPECT_EQ(text("Thermal", ""), "Thermal Paper");
    EXPECT_EQ(text("Thermal", "fr"), "Thermal Paper");
    EXPECT_EQ(text("Thermal", "de"), "Thermopapier");
    EXPECT_EQ(text("Thermal", "de_CH"), "Thermopapier");
    EXPECT_EQ(text("Thermal", "de_AT"), "Thermopapier, eh klar");
    EXPECT_EQ(text("Copy", "de"), "Copy Paper"); // no words there
    EXPECT_EQ(text("Gone", "de"), "Gone");
    EXPECT_EQ(m_document->choiceText("QnNothing", "A", "de"), "A");
}

TEST_F(Marked, HaveThePapersThatHaveASize)
{
    openIn("de_DE.UTF-8", PPDText().line("*de.PageSize A4/A4, hoch: \"\""));
    const auto papers = m_document->papers("de");
    ASSERT_EQ(papers.size(), support::paperNames().size()); // but for the user's own
    EXPECT_EQ(papers[0].name, "A4");
    EXPECT_EQ(papers[0].text, "A4, hoch");
    EXPECT_EQ(papers[0].size, (printing::Paper{595, 842}));
    EXPECT_EQ(papers.back().name, support::paperNames().back());
    EXPECT_EQ(m_document->pageSize("A4"), (printing::Paper{595, 842}));
    EXPECT_EQ(m_document->pageSize("a4"), std::nullopt);
    EXPECT_EQ(m_document->pageSize("Custom"), std::nullopt);
}

/// `count` options of three choices each; every choice of one forbids every choice of the next.
PPDText withoutAWayOut(PPDText ppd, int count)
{
    for (int i = 0; i < count; ++i)
        ppd.option("Bound" + QByteArray::number(i), "Bound", "C0", {{"C0", "0"}, {"C1", "1"}, {"C2", "2"}});
    for (int i = 0; i < count; ++i)
        for (int a = 0; a < 3; ++a)
            for (int b = 0; b < 3; ++b)
                ppd.line("*UIConstraints: *Bound" + QByteArray::number(i) + " C" + QByteArray::number(a) + " *Bound" +
                         QByteArray::number((i + 1) % count) + " C" + QByteArray::number(b));
    return ppd;
}

class WithoutAWayOut : public Marked, public testing::WithParamInterface<int>
{};

/// Where the library gives up, choices stay as they were made, also those of constraints that could be resolved.
TEST_P(WithoutAWayOut, StaysAsItWasMarked)
{
    open(withoutAWayOut(withConstraint(), GetParam()));
    ASSERT_TRUE(m_marks->mark("QnSpeed", "S3"));
    for (const char *choice : {"ThermalCopy", "Thermal", "ThermalCopy"}) {
        const auto effect = m_marks->mark("QnMedia", choice);
        ASSERT_TRUE(effect);
        EXPECT_TRUE(effect->moved.empty());
        EXPECT_EQ(m_marks->choiceOf("QnMedia"), choice);
        EXPECT_EQ(m_marks->choiceOf("QnSpeed"), "S3");
    }
    const auto bound = m_marks->mark("Bound1", "C2"); // another situation, as hopeless as the one before
    ASSERT_TRUE(bound);
    EXPECT_EQ(bound->changed.size(), 1U);
    EXPECT_EQ(m_marks->choiceOf("Bound1"), "C2");
}

INSTANTIATE_TEST_SUITE_P(Of, WithoutAWayOut, testing::Values(3, 300, 900)); // the last is more than is tried

TEST_F(Marked, FindsAWayOutAgainWhenThereIsOne)
{
    // Two groups, each with a way out.
    open(withConstraint()
             .option("Bound", "Bound", "C0", {{"C0", "0"}, {"C1", "1"}})
             .option("Free", "Free", "F2", {{"F0", "0"}, {"F2", "2"}})
             .line("*UIConstraints: *Bound C1 *Free F0")
             .line("*UIConstraints: *Free F0 *Bound C1"));
    ASSERT_TRUE(m_marks->mark("Bound", "C1"));
    const auto effect = m_marks->mark("Free", "F0");
    ASSERT_TRUE(effect);
    EXPECT_EQ(m_marks->choiceOf("Bound"), "C0");
    ASSERT_TRUE(m_marks->mark("QnSpeed", "S3"));
    ASSERT_TRUE(m_marks->mark("QnMedia", "ThermalCopy"));
    EXPECT_NE(m_marks->choiceOf("QnSpeed"), "S3");
}

struct TooMuch
{
    const char *name;
    QByteArray (*lines)(int count);
    int most;
    const char *sentence;
};

void PrintTo(const TooMuch &row, std::ostream *out) { *out << row.name; }

QByteArray repeated(int count, const QByteArray &before, const QByteArray &after)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += before + QByteArray::number(i) + after + '\n';
    return lines;
}

class LargePPDs : public testing::TestWithParam<TooMuch>
{};

TEST_P(LargePPDs, AreOpenedUpToALimitAndRefusedBeyondIt)
{
    const int already = 200; // what a small printer has of each, at most
    const auto within = PPDDocument::open(PPDText().line(GetParam().lines(GetParam().most - already)).file());
    EXPECT_TRUE(within) << (within ? "" : within.problem().sentence.toStdString());
    const QString path = PPDText().line(GetParam().lines(GetParam().most + 1)).file();
    EXPECT_EQ(support::sentence(PPDDocument::open(path)), path + ": not opened (" + GetParam().sentence + ')');
}

INSTANTIATE_TEST_SUITE_P(
    By, LargePPDs,
    testing::Values(TooMuch{"Keywords", [](int count) { return repeated(count, "*Word", " S/T: \"v\""); }, 50000,
                            "more than 50000 keywords"},
                    TooMuch{"Options",
                            [](int count) {
                                QByteArray lines;
                                for (int i = 0; i < count; ++i)
                                    lines += "*OpenUI *O/O: PickOne\n*DefaultO: A\n*O A/A: \"\"\n*CloseUI: *O\n";
                                return lines;
                            },
                            4000, "more than 4000 options"},
                    TooMuch{"PageSizes", [](int count) { return repeated(count, "*PageSize P", "/P: \"\""); }, 4000,
                            "more than 4000 page sizes"},
                    TooMuch{"Constraints", [](int count) { return repeated(count, "*UIConstraints: *A C", " *B C0"); },
                            10000, "more than 10000 constraints"}),
    [](const auto &row) { return row.param.name; });

/// As many lines that begin so that the file holds `count` of them.
QByteArray filledUp(const QByteArray &beginning, const QByteArray &line, int count)
{
    QByteArray text = PPDText().text();
    const auto already = text.count('\n' + beginning) + (text.startsWith(beginning) ? 1 : 0);
    return text + (line + '\n').repeated(count - already);
}

bool isOpened(const QByteArray &text)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("full.ppd"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    const auto opened = PPDDocument::open(file.fileName());
    return opened || !opened.problem().sentence.contains("not opened");
}

TEST(LimitsOfAPPD, AreTheLastThatIsTaken)
{
    for (const auto &[beginning, line, most] :
         {std::tuple{"*", "*% nothing", 50000}, std::tuple{"*UIConstraints:", "*UIConstraints: *A C *B C", 10000},
          std::tuple{"*NonUIConstraints:", "*NonUIConstraints: *A C *B C", 10000},
          std::tuple{"*cupsUIConstraints ", "*cupsUIConstraints a: \"*A C *B C\"", 10000},
          std::tuple{"*PageSize ", "*PageSize P: \"\"", 4000}, std::tuple{"*OpenUI ", "*OpenUI *O/O: PickOne", 4000}}) {
        EXPECT_TRUE(isOpened(filledUp(beginning, line, most))) << beginning;
        EXPECT_FALSE(isOpened(filledUp(beginning, line, most + 1))) << beginning;
    }
    QByteArray text = PPDText().text() + QByteArray("*% nothing\n").repeated(10000);
    text += "*% " + QByteArray(16 * 1024 * 1024 - 4 - text.size(), 'x') + '\n';
    EXPECT_TRUE(isOpened(text));
    EXPECT_FALSE(isOpened(text + '\n'));
}

TEST(APPDOfManyMegabytes, IsRefusedAlsoWhenItIsPackedSmall)
{
    const QByteArray large = PPDText().text() + QByteArray("*% nothing\n").repeated(1 << 21);
    const QTemporaryDir folder;
    QFile plain(folder.filePath("large.ppd"));
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly) && plain.write(large) == large.size());
    plain.close();
    EXPECT_TRUE(support::sentence(PPDDocument::open(plain.fileName())).endsWith("not opened (the file is too large)"));
    QProcess gzip;
    gzip.start("gzip", {plain.fileName()});
    ASSERT_TRUE(gzip.waitForFinished() && gzip.exitCode() == 0);
    const QString packed = plain.fileName() + ".gz";
    ASSERT_LT(QFileInfo(packed).size(), 1 << 20);
    EXPECT_TRUE(support::sentence(PPDDocument::open(packed)).endsWith("not opened (the file is too large)"));
}

} // namespace
