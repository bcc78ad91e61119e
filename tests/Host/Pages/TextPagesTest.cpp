// Texts become pages as a line printer would make them: 10 characters and 6 lines an inch.
#include "Pages.h"

#include "Messages.h"

#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

using host::laidOut;
using host::Sheet;
using support::PDF;
using support::value;

namespace printing {
static void PrintTo(const Paper &paper, std::ostream *out) { *out << paper.width << " x " << paper.height; }
} // namespace printing

namespace {

constexpr double kColumn = 7.2; // in points
constexpr double kLine = 12;
constexpr double kNear = 0.05;

using TextPages = Pages;

TEST_F(TextPages, ArePDFUnderTheTitleOfTheText)
{
    const auto pages = value(laidOut(document("words", "notes.txt"), kLetter));
    EXPECT_EQ(pages->title(), "notes.txt");
    EXPECT_EQ(pages->format(), "application/pdf");
    EXPECT_EQ(pages->extension(), "pdf");
    EXPECT_EQ(PDF(pages).title(), "notes.txt");
    EXPECT_EQ(PDF(pages).texts(), QStringList("words"));
}

TEST_F(TextPages, AreInAFileThatHasNoNameAndIsTheOwnersAlone)
{
    const auto pages = value(laidOut(document("words"), kLetter));
    struct stat status = {};
    ASSERT_EQ(::fstat(pages->descriptor(), &status), 0);
    EXPECT_EQ(status.st_nlink, 0U);
    EXPECT_EQ(status.st_mode & 0077U, 0U);
}

TEST_F(TextPages, HaveTenCharactersAndSixLinesAnInch)
{
    const auto words = pdf("1         2\n\n\n\n\n\n3").words();
    ASSERT_EQ(words.size(), 3);
    EXPECT_NEAR(words[0].x, 36, kNear);
    EXPECT_NEAR(words[1].x - words[0].x, 72, kNear);
    EXPECT_NEAR(words[2].y - words[0].y, 72, kNear);
    EXPECT_NEAR(words[2].x, words[0].x, kNear);
}

TEST_F(TextPages, KeepTheirColumnsToTheEdgeOfThePaper)
{
    const QByteArray line = QByteArray("x ").repeated(37);
    const auto words = pdf(line).words();
    ASSERT_EQ(words.size(), 37);
    for (int i = 0; i < words.size(); ++i)
        EXPECT_NEAR(words[i].x, 36 + 2 * i * kColumn, kNear);
}

/// A text and the columns that it takes.
struct Wide
{
    const char *text;
    int columns;
};
void PrintTo(const Wide &row, std::ostream *out) { *out << row.text; }
class Columns : public TextPages, public testing::WithParamInterface<Wide>
{};

TEST_P(Columns, AreTheSameWhateverStandsInThem)
{
    const support::RecordMessages remarks; // of Qt, about fonts that lack a script
    const auto words = pdf(QByteArray(GetParam().text) + " X").words();
    ASSERT_FALSE(words.isEmpty());
    EXPECT_EQ(words.last().text, "X");
    EXPECT_NEAR(words.last().x, 36 + (GetParam().columns + 1) * kColumn, kNear);
}

INSTANTIATE_TEST_SUITE_P(OfLetters, Columns,
                         testing::Values(Wide{"", 0}, Wide{"Gr\u00fc\u00dfe", 5}, Wide{"\u043c\u0438\u0440", 3},
                                         Wide{"e\u0301e\u0301", 2}, // marks of their own
                                         Wide{"\u6f22\u5b57", 4}, Wide{"\uff21\uff22", 4}, Wide{"\uff76\uff85", 2},
                                         Wide{"\ud55c\uae00", 4}, Wide{"\u1112\u1161\u11ab", 2}, Wide{"\U0001f600", 2},
                                         Wide{"\u26a1", 2}, Wide{"\u2602", 1}, Wide{"\u2500\u253c", 2},
                                         Wide{"\u0915\u094d\u0937", 2}, Wide{"\u0e01\u0e49", 1}, Wide{"\U00020000", 2},
                                         Wide{"\u3042\u3099", 2}));
INSTANTIATE_TEST_SUITE_P(OfControls, Columns,
                         testing::Values(Wide{"a\x01\x1b\x7f", 1}, Wide{"a\u0085\u009b", 1}, Wide{"a\u202e\u2066", 1},
                                         Wide{"a\u2028\ufeff", 1}, Wide{"a\u200d\u0301", 1}, Wide{"\u0301", 0}));
INSTANTIATE_TEST_SUITE_P(OfTabs, Columns,
                         testing::Values(Wide{"\t", 8}, Wide{"a\t", 8}, Wide{"1234567\t", 8}, Wide{"12345678\t", 16},
                                         Wide{"\u6f22\t", 8}, Wide{"\t\t", 16}));

/// A text and what stands on its pages.
struct Paged
{
    QByteArray text;
    QStringList pages;
};
void PrintTo(const Paged &row, std::ostream *out) { *out << row.text.left(20).toPercentEncoding().toStdString(); }
class Paging : public TextPages, public testing::WithParamInterface<Paged>
{};

TEST_P(Paging, FollowsFormFeedsAndTheLengthOfThePaper)
{
    const PDF result = pdf(GetParam().text);
    EXPECT_EQ(result.pages(), GetParam().pages.size());
    EXPECT_EQ(result.texts(), GetParam().pages);
}

const QByteArray kFullPage = "a" + QByteArray("\n").repeated(60);

INSTANTIATE_TEST_SUITE_P(Of, Paging,
                         testing::Values(Paged{"a\fb", {"a", "b"}}, Paged{"a\f", {"a"}}, Paged{"a\n\f\n", {"a"}},
                                         Paged{"a\f \t\n", {"a"}}, Paged{"a\f\f", {"a"}}, Paged{"\fa", {"", "a"}},
                                         Paged{"a\f\fb", {"a", "", "b"}}, Paged{"a\n\n\fb\n", {"a", "b"}},
                                         Paged{"\n", {""}}, Paged{"\f", {""}}, Paged{kFullPage, {"a"}},
                                         Paged{kFullPage + "b", {"a", "b"}}, Paged{kFullPage + "\fb", {"a", "b"}},
                                         Paged{kFullPage + "\n\fb", {"a", "", "b"}},
                                         Paged{kFullPage + kFullPage, {"a", "a"}}));

/// A text, and the lines (from 0) that its words stand in.
struct Lined
{
    QByteArray text;
    QList<std::pair<QString, int>> words;
};
void PrintTo(const Lined &row, std::ostream *out) { *out << row.text.right(20).toPercentEncoding().toStdString(); }
class Lines : public TextPages, public testing::WithParamInterface<Lined>
{};

TEST_P(Lines, EndWhereTheTextOrThePaperDoes)
{
    const double top = pdf("a").words().first().y;
    QList<std::pair<QString, int>> found;
    for (const PDF::Word &each : pdf(GetParam().text).words())
        found.append({each.text, qRound((each.y - top) / kLine)});
    EXPECT_EQ(found, GetParam().words);
}

const QByteArray kLong(75, 'a');

INSTANTIATE_TEST_SUITE_P(AtLineEnds, Lines,
                         testing::Values(Lined{"a\nb", {{"a", 0}, {"b", 1}}}, Lined{"a\r\nb", {{"a", 0}, {"b", 1}}},
                                         Lined{"a\rb", {{"a", 0}, {"b", 1}}}, Lined{"a\n\rb", {{"a", 0}, {"b", 2}}},
                                         Lined{"a\r\n\r\nb", {{"a", 0}, {"b", 2}}},
                                         Lined{"a\r\rb", {{"a", 0}, {"b", 2}}}));
INSTANTIATE_TEST_SUITE_P(
    AtTheEdge, Lines,
    testing::Values(Lined{kLong + "b", {{kLong, 0}, {"b", 1}}}, Lined{kLong + "\nb", {{kLong, 0}, {"b", 1}}},
                    Lined{kLong + "\r\nb", {{kLong, 0}, {"b", 1}}},
                    Lined{kLong.first(70) + " bbbbbb", {{kLong.first(70), 0}, {"bbbb", 0}, {"bb", 1}}},
                    Lined{kLong.first(74) + "\u6f22", {{kLong.first(74), 0}, {"\u6f22", 1}}},
                    Lined{kLong.first(73) + "\u00e4\u00e4\u00e4",
                          {{kLong.first(73) + "\u00e4\u00e4", 0}, {"\u00e4", 1}}},
                    Lined{kLong + kLong + kLong, {{kLong, 0}, {kLong, 1}, {kLong, 2}}}));

/// Bytes and the text that they are.
struct Encoded
{
    QByteArray bytes;
    QString text;
};
void PrintTo(const Encoded &row, std::ostream *out) { *out << row.bytes.right(20).toPercentEncoding().toStdString(); }
class Encodings : public TextPages, public testing::WithParamInterface<Encoded>
{};

TEST_P(Encodings, AreUTF8OrElseLatin1)
{
    const auto words = pdf(GetParam().bytes).words();
    ASSERT_FALSE(words.isEmpty());
    EXPECT_EQ(words.last().text, GetParam().text);
    EXPECT_NEAR(words.last().x, 36, kNear);
}

INSTANTIATE_TEST_SUITE_P(Of, Encodings,
                         testing::Values(Encoded{"Gr\xc3\xbc\xc3\x9f", "Gr\u00fc\u00df"},
                                         Encoded{"Gr\xfc\xdf", "Gr\u00fc\u00df"},
                                         Encoded{"\xc3\xbc\n\xfc", "\u00fc"}, // all of it is Latin-1 then
                                         Encoded{"\xfc\n\xc3\xbc", "\u00c3\u00bc"},
                                         Encoded{"abc\xc3", "abc\u00c3"}, // ends within a character
                                         Encoded{"\xef\xbb\xbf"
                                                 "abc",
                                                 "abc"},
                                         Encoded{QByteArray(65535, '\r') + "\xc3\xbc", "\u00fc"})); // read in two parts

TEST_F(TextPages, TakeOneLineEndThatIsReadInTwoPartsForOne)
{
    const QByteArray blanks(65534, ' '); // 873 rows of 75 and 59 more: 14 pages and 34 lines
    const auto words = pdf(blanks + "a\r\nb").words();
    ASSERT_EQ(words.size(), 2);
    EXPECT_NEAR(words[1].y - words[0].y, kLine, kNear);
}

TEST_F(TextPages, StayWithinThePrintableArea)
{
    const Sheet sheet{{300, 200}, QRectF(20, 30, 250, 145)}; // 34 columns, 12 lines
    const QRectF ink = pdf(QByteArray("Wg").repeated(1000), sheet).ink();
    EXPECT_TRUE(sheet.printable.contains(ink));
    EXPECT_LT(ink.left(), 20 + 1);
    EXPECT_LT(ink.top(), 30 + 3);
    EXPECT_GT(ink.right(), 20 + 34 * kColumn - 1.5);
    EXPECT_GT(ink.bottom(), 30 + 12 * kLine - 1);
}

TEST_F(TextPages, UseTheWholeSheetWhenNothingIsKnownOfIt)
{
    const auto words = pdf("a", {{300, 200}, {}}).words();
    EXPECT_NEAR(words.first().x, 0, kNear);
}

TEST_F(TextPages, ReadFromTheRightWhereTheirLettersDo)
{
    QMap<QString, double> places;
    for (const auto &each : pdf("\u05d0 \u05d1 \u05d2 X").words())
        places[each.text] = each.x;
    ASSERT_EQ(places.size(), 4);
    EXPECT_GT(places["\u05d0"], places["\u05d1"]);
    EXPECT_GT(places["\u05d1"], places["\u05d2"]);
    EXPECT_GT(places["\u05d2"], places["X"]);
    EXPECT_GT(places["X"], 500); // all of it at the right edge
}

class PageSizes : public TextPages, public testing::WithParamInterface<printing::Paper>
{};

TEST_P(PageSizes, AreThoseOfTheSheetToHalfAPoint)
{
    const QSizeF size = pdf("a", {GetParam(), {}}).pageSize();
    EXPECT_NEAR(size.width(), GetParam().width, 0.5);
    EXPECT_NEAR(size.height(), GetParam().height, 0.5);
}

INSTANTIATE_TEST_SUITE_P(Of, PageSizes,
                         testing::Values(printing::Paper{612, 792}, printing::Paper{595.276, 841.89},
                                         printing::Paper{841.89, 595.276}, printing::Paper{419.528, 297.638},
                                         printing::Paper{226.77, 3000.4}, printing::Paper{50.5, 40.25}));

TEST_F(TextPages, AreRefusedForPapersThatNoPDFHas)
{
    for (const double side : {0.0, -1.0, 14401.0, qQNaN(), qInf()}) {
        EXPECT_EQ(refusal("a", "a.txt", {{side, 792}, {}}), "a.txt: can't be laid out for this paper");
        EXPECT_EQ(refusal("a", "a.txt", {{612, side}, {}}), "a.txt: can't be laid out for this paper");
    }
}

TEST_F(TextPages, ComeOnPaperThatIsTooSmallForOneCharacter) { EXPECT_EQ(pdf("a\u6f22", {{5, 5}, {}}).pages(), 2); }

TEST_F(TextPages, AreTenThousandAtMost)
{
    const Sheet small{{72, 12}, {}};
    const QByteArray most = QByteArray("a\f").repeated(10000);
    EXPECT_EQ(pdf(most, small).pages(), 10000);
    EXPECT_EQ(refusal(most + "a", "long.txt", small), "long.txt: the text is too long to be laid out");
    EXPECT_EQ(pdf(most + "\f\f\n", small).pages(), 10000);
}

TEST_F(TextPages, AreMadeOf64MegabytesAtMost)
{
    document("a\n" + QByteArray(4096, ' '));
    QFile file(path("a.txt"));
    ASSERT_TRUE(file.resize(64 << 20)); // zeros, which are dropped
    EXPECT_EQ(PDF(value(laidOut(value(host::Document::open(path("a.txt"))), kLetter))).texts(), QStringList("a"));
    ASSERT_TRUE(file.resize((64 << 20) + 1));
    EXPECT_EQ(support::sentence(laidOut(value(host::Document::open(path("a.txt"))), kLetter)),
              "a.txt: the text is too long to be laid out");
}

TEST_F(TextPages, AreNotMadeWhenNobodyWantsThemAnyMore)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(support::sentence(laidOut(document("a"), kLetter, stop.get_token())), "cancelled");
}

TEST_F(TextPages, AreGivenUpInTheMiddleWhenNobodyWantsThemAnyMore)
{
    const auto text = document(QByteArray("words of a text without end\n").repeated(300'000));
    std::stop_source stop;
    const std::jthread impatient([&stop] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        stop.request_stop();
    });
    EXPECT_EQ(support::sentence(laidOut(text, kLetter, stop.get_token())), "cancelled");
}

TEST_F(TextPages, ThatCannotBeKeptAreToldOf)
{
    const auto text = document(QByteArray("words\n").repeated(10'000));
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{10'000, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString told = support::sentence(laidOut(text, kLetter));
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(told, "a.txt: its pages can't be kept: File too large");
}

TEST_F(TextPages, CanBeMadeOfTheSameTextAgain)
{
    const auto text = document("words");
    EXPECT_EQ(PDF(value(laidOut(text, kLetter))).texts(), QStringList("words"));
    EXPECT_EQ(PDF(value(laidOut(text, {{300, 200}, {}}))).texts(), QStringList("words"));
}

TEST_F(TextPages, ComeOfWhateverBytesThereAre)
{
    const support::RecordMessages remarks;
    std::mt19937 random(1);
    const Sheet small{{300, 200}, {}};
    for (int i = 0; i < 40; ++i) {
        QString text; // a character of each kind is likely
        for (int j = 0; j < 500; ++j)
            text += QChar::fromUcs4(random() % (j % 2 ? 0x110000 : 0x3000));
        QByteArray bytes = "a" + text.toUtf8().replace('\0', "");
        if (i % 2)
            bytes[int(random() % bytes.size())] = '\xff';
        EXPECT_GE(pdf(bytes, small).pages(), 1);
    }
}

class Untouched : public Pages, public testing::WithParamInterface<const char *>
{};

TEST_P(Untouched, AreDocumentsThatHavePages)
{
    const auto original = document(GetParam());
    EXPECT_EQ(value(laidOut(original, kLetter)), original);
}

INSTANTIATE_TEST_SUITE_P(Of, Untouched, testing::Values("%PDF-1.4\n", "%!PS-Adobe-3.0\n"));

} // namespace
