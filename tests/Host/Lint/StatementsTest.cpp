// The text of a PPD taken apart, whatever it is.
#include "Lint/Statements.h"
#include "Print.h"

#include <gtest/gtest.h>

using host::statementsOf;

namespace {

/// "keyword|option|text|value"; a dash for a part that is not there.
QByteArray parts(const PDEStatement &statement)
{
    QByteArrayList all;
    for (const QByteArrayView each : {statement.keyword, statement.option, statement.text, statement.value})
        all.append(each.isNull() ? QByteArray("-") : each.toByteArray());
    return all.join('|');
}

struct Line
{
    const char *text;
    const char *parts;
};

void PrintTo(const Line &row, std::ostream *out) { *out << row.text; }

class StatementLine : public testing::TestWithParam<Line>
{};

TEST_P(StatementLine, IsTakenApart)
{
    const QByteArray content = GetParam().text;
    const auto statements = statementsOf(content);
    ASSERT_EQ(statements.all.size(), 1U);
    EXPECT_EQ(parts(statements.all[0]), GetParam().parts);
    EXPECT_EQ(statements.all[0].line, 1);
    EXPECT_TRUE(statements.isWhole);
}

INSTANTIATE_TEST_SUITE_P(
    Of, StatementLine,
    testing::Values(Line{"*FileVersion: \"1.5\"", "FileVersion|-|-|1.5"},
                    Line{"*OpenUI *PageSize/Media Size: PickOne", "OpenUI|*PageSize|Media Size|PickOne"},
                    Line{"*PageSize A4/A4, Roll: \"<</PageSize[595 842]>>\"",
                         "PageSize|A4|A4, Roll|<</PageSize[595 842]>>"},
                    Line{"*QnPaperFeed Feed1/1/2 inch: \"x\"", "QnPaperFeed|Feed1|1/2 inch|x"},
                    Line{"*QnMedia A/: \"x\"", "QnMedia|A||x"}, Line{"*QnMedia A: \"\"", "QnMedia|A|-|"},
                    Line{"*DefaultQnMedia:A  \r\n", "DefaultQnMedia|-|-|A"}, Line{"*End", "End|-|-|-"},
                    Line{"*Flag \"False\"", "Flag|\"False\"|-|-"}, Line{"*", "|-|-|-"}, Line{"*:", "|-|-|"},
                    Line{"*Code: \"one\ntwo\" behind", "Code|-|-|one\ntwo"},
                    Line{"*Open: \"no end", "Open|-|-|no end"}));

TEST(Statements, AreCountedByTheirLinesHoweverThoseEnd)
{
    const QByteArray content = "*A: 1\r\n*B: \"two\r\nlines\"\r\n\r\n*C: 3\r*D: 4\n*% nothing\n no statement\n*E: 5";
    QByteArray lines;
    const auto statements = statementsOf(content);
    for (const PDEStatement &each : statements.all)
        lines += each.keyword.toByteArray() + QByteArray::number(each.line) + ' ';
    EXPECT_EQ(lines, "A1 B2 C5 D6 E9 ");
}

TEST(Statements, OfAnyBytesEndAndStayFew)
{
    EXPECT_TRUE(statementsOf({}).all.empty());
    const QByteArray many = QByteArray("*\r").repeated(1'000'000);
    const auto statements = statementsOf(many);
    EXPECT_FALSE(statements.isWhole);
    EXPECT_EQ(statements.all.size(), 100'000U);
    const QByteArray zeros(1'000'000, '\0');
    EXPECT_TRUE(statementsOf(zeros).all.empty());
    const QByteArray oneValue = "*A: \"" + QByteArray(1'000'000, '*');
    EXPECT_EQ(statementsOf(oneValue).all.size(), 1U);
}

TEST(Statements, AreFoundByKeywordAndOption)
{
    const QByteArray content = "*OpenUI *A/A: PickOne\n*A x/X: \"\"\n*A y/Y: \"\"\n*A x/Z: \"\"\n*CloseUI: *A";
    const auto statements = statementsOf(content);
    const host::StatementIndex index(statements.all);
    EXPECT_EQ(index.of("A").size(), 3U);
    EXPECT_EQ(index.first("A", "x")->line, 2);
    EXPECT_EQ(index.first("A", "z"), nullptr);
    EXPECT_EQ(index.first("a"), nullptr); // letter case counts
    EXPECT_EQ(index.lineOfOption("A"), 1);
    EXPECT_EQ(host::openedBy(*index.first("OpenUI")).toByteArray(), "A");
    EXPECT_EQ(host::closedBy(*index.first("CloseUI")).toByteArray(), "A");
}

} // namespace
