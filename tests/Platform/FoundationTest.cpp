// What the platform gives a panel beside controls: bundles, defaults, notifications, versions, numbers, the log.
#include "Messages.h"

#include "Foundation/Bundle.h"
#include "Foundation/Locale.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/PlainText.h"
#include "Foundation/SystemLog.h"
#include "Foundation/SystemVersion.h"
#include "Foundation/Text.h"
#include "Foundation/UserDefaults.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cmath>
#include <limits>
#include <sys/stat.h>
#include <vector>

using namespace foundation;

namespace {

struct Number
{
    QString text;
    double value;
    int integer;
};

void PrintTo(const Number &row, std::ostream *out) { *out << '"' << row.text.left(30).toStdString() << '"'; }

class Numbers : public testing::TestWithParam<Number>
{};

TEST_P(Numbers, AreTheLongestPrefixInTheCLocale)
{
    EXPECT_DOUBLE_EQ(doubleValue(GetParam().text), GetParam().value);
    EXPECT_EQ(integerValue(GetParam().text), GetParam().integer);
}

INSTANTIATE_TEST_SUITE_P(Texts, Numbers,
                         testing::Values(Number{"", 0, 0}, Number{"26", 26, 26}, Number{"1.5", 1.5, 1},
                                         Number{"1,5", 1, 1}, Number{"1.5x", 1.5, 1}, Number{"  7", 7, 7},
                                         Number{"-3.5", -3.5, -3}, Number{"+3", 3, 3}, Number{"+-3", 0, 0},
                                         Number{".5", 0.5, 0}, Number{".", 0, 0}, Number{"1.", 1, 1},
                                         Number{"x1", 0, 0}, Number{"inf", 0, 0}, Number{"nan", 0, 0},
                                         Number{"-inf", 0, 0}, Number{"0x10", 0, 0}, Number{"1e2", 100, 1},
                                         Number{"1e-400", 0, 1}, Number{"-1e400", -HUGE_VAL, -1},
                                         Number{QString::fromUtf8("٣"), 0, 0}, Number{"007", 7, 7}));

TEST(NumbersInText, OfTenThousandDigitsAreHeldInRange)
{
    EXPECT_TRUE(std::isinf(doubleValue(QString(10000, '9'))));
    EXPECT_EQ(integerValue(QString(10000, '9')), std::numeric_limits<int>::max());
    EXPECT_EQ(integerValue('-' + QString(10000, '9')), std::numeric_limits<int>::min());
}

TEST(NumbersInText, ShowFifteenDigits)
{
    EXPECT_EQ(stringFromDouble(51), "51");
    EXPECT_EQ(stringFromDouble(0.1), "0.1");
    EXPECT_EQ(stringFromDouble(1.0 / 3), "0.333333333333333");
}

TEST(Points, AreTwoNumbersInBraces)
{
    EXPECT_EQ(pointFromString("{12, 34}"), QPointF(12, 34));
    EXPECT_EQ(pointFromString(" { -1.5 ,2 } "), QPointF(-1.5, 2));
    for (const char *text : {"", "12, 34", "{12}", "{}", "{a, b}", "{1, 2", "{1, 2, 3}"})
        EXPECT_EQ(pointFromString(text), QPointF(0, 0)) << text;
}

TEST(Bytes, AreDecodedOrNil)
{
    EXPECT_EQ(stringFromBytes("Grün", StringEncoding::utf8), QString("Grün"));
    EXPECT_EQ(stringFromBytes("Gr\xfcn", StringEncoding::utf8), std::nullopt);
    EXPECT_EQ(stringFromBytes("Grün", StringEncoding::ascii), std::nullopt);
    EXPECT_EQ(stringFromBytes("ON", StringEncoding::ascii), QString("ON"));
    EXPECT_EQ(stringFromBytes(nullptr, StringEncoding::utf8), std::nullopt);
    ASSERT_TRUE(stringFromBytes("", StringEncoding::utf8)); // empty is not nil
}

struct Version
{
    const char *text;
    bool readable;
    std::int32_t packed;
};

class Versions : public testing::TestWithParam<Version>
{};

TEST_P(Versions, ArePackedAsDecimalDigits)
{
    const auto version = systemVersionFromString(QString(GetParam().text));
    ASSERT_EQ(version.has_value(), GetParam().readable) << GetParam().text;
    if (!version)
        return;
    const ScopedSystemVersion scope(version);
    std::int32_t packed = 0;
    EXPECT_EQ(Gestalt(gestaltSystemVersion, &packed), 0);
    EXPECT_EQ(packed, GetParam().packed);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Versions,
    testing::Values(Version{"10.5.0", true, 0x1050}, Version{"10.6.8", true, 0x1068}, Version{"10.15.7", true, 0x1097},
                    Version{"11.0.0", true, 0x1100}, Version{"9.2.2", true, 0x0922}, Version{"", false, 0},
                    Version{"11", false, 0}, Version{"11.0", false, 0}, Version{"11.0.0.0", false, 0},
                    Version{"11.0.x", false, 0}, Version{"-1.0.0", false, 0}, Version{"010.05.00", true, 0x1050},
                    Version{"2147483647.0.0", true, 0x9900}, Version{"2147483648.0.0", false, 0},
                    Version{"99999999999999999999.0.0", false, 0}, Version{"+1.0.0", false, 0},
                    Version{"1.+0.0", false, 0}, Version{" 11.0.0", false, 0}, Version{"11. 0.0", false, 0},
                    Version{"11.0.0 ", false, 0}, Version{"11.0.0.", false, 0}, Version{".11.0.0", false, 0},
                    Version{"11..0", false, 0}, Version{"0x11.0.0", false, 0}, Version{"１１.0.0", false, 0}));

TEST(Gestalt, AnswersPartsAndFailsWhereItDoesNotKnow)
{
    const ScopedSystemVersion known(SystemVersion{10, 5, 8});
    std::int32_t answer = -1;
    EXPECT_EQ(Gestalt(gestaltSystemVersionMajor, &answer), 0);
    EXPECT_EQ(answer, 10);
    EXPECT_EQ(Gestalt(gestaltSystemVersionMinor, &answer), 0);
    EXPECT_EQ(answer, 5);
    EXPECT_EQ(Gestalt(gestaltSystemVersionBugFix, &answer), 0);
    EXPECT_EQ(answer, 8);
    EXPECT_NE(Gestalt(0x12345678, &answer), 0);
    EXPECT_EQ(answer, 8);
    const ScopedSystemVersion unknown(std::nullopt);
    EXPECT_NE(Gestalt(gestaltSystemVersion, &answer), 0);
    EXPECT_EQ(answer, 8); // untouched
}

TEST(ScopedSystemVersions, GiveBackTheEarlierOneAlsoWhenNested)
{
    const auto before = systemVersion();
    {
        const ScopedSystemVersion outer(SystemVersion{10, 4, 0});
        {
            const ScopedSystemVersion inner(std::nullopt);
            EXPECT_EQ(systemVersion(), std::nullopt);
        }
        EXPECT_EQ(systemVersion(), (SystemVersion{10, 4, 0}));
    }
    EXPECT_EQ(systemVersion(), before);
}

TEST(ScopedLocales, GiveBackTheEarlierOneAlsoWhenNested)
{
    const QLocale before = Locale::current().locale();
    {
        const ScopedLocale outer{QLocale("en_US")};
        {
            const ScopedLocale inner{QLocale("de_DE")};
            EXPECT_TRUE(IsMetric());
        }
        EXPECT_EQ(Locale::current().locale(), QLocale("en_US"));
    }
    EXPECT_EQ(Locale::current().locale(), before);
}

TEST(Metric, IsEveryLocaleThatDoesNotMeasureInUSUnits)
{
    const auto metric = [](const char *name) {
        const ScopedLocale scope{QLocale(name)};
        return IsMetric();
    };
    EXPECT_FALSE(metric("en_US"));
    EXPECT_TRUE(metric("de_DE"));
    EXPECT_TRUE(metric("en_GB"));
    EXPECT_TRUE(metric("ja_JP"));
}

TEST(Defaults, AreKeptInTheStoreUntilTheyAreRemoved)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("defaults.ini");
    auto &defaults = UserDefaults::standard();
    {
        const ScopedDefaults scope(path);
        EXPECT_EQ(defaults.objectForKey("QnPerforated"), std::nullopt);
        defaults.setObjectForKey("YES", "QnPerforated");
    }
    const ScopedDefaults scope(path); // another object over the same file
    EXPECT_EQ(defaults.objectForKey("QnPerforated"), QString("YES"));
    defaults.removeObjectForKey("QnPerforated");
    EXPECT_EQ(defaults.objectForKey("QnPerforated"), std::nullopt);
}

TEST(ScopedStores, GiveBackTheEarlierOneAlsoWhenNested)
{
    const QTemporaryDir directory;
    auto &defaults = UserDefaults::standard();
    const ScopedDefaults outermost(directory.filePath("outermost.ini"));
    {
        const ScopedDefaults outer(directory.filePath("outer.ini"));
        defaults.setObjectForKey("outer", "QnPerforated");
        {
            const ScopedDefaults inner(directory.filePath("inner.ini"));
            EXPECT_EQ(defaults.objectForKey("QnPerforated"), std::nullopt);
            defaults.setObjectForKey("inner", "QnPerforated");
        }
        EXPECT_EQ(defaults.objectForKey("QnPerforated"), QString("outer"));
    }
    EXPECT_EQ(defaults.objectForKey("QnPerforated"), std::nullopt);
}

class Notifications : public testing::Test
{
protected:
    NotificationCenter::Handler noting(const QString &name)
    {
        return [this, name] { m_heard.append(name); };
    }
    NotificationCenter m_center;
    QStringList m_heard;
    int m_first = 0, m_second = 0, m_third = 0;
};

TEST_F(Notifications, ReachObserversInTheOrderOfRegistration)
{
    m_center.addObserver(&m_second, "paper", noting("b"));
    m_center.addObserver(&m_first, "paper", noting("a"));
    m_center.addObserver(&m_third, "other", noting("c"));
    m_center.post("paper");
    EXPECT_EQ(m_heard, QStringList({"b", "a"}));
    m_center.removeObserver(&m_second, "paper");
    m_center.removeObserver(&m_third, "paper"); // not registered for it
    m_center.post("paper");
    EXPECT_EQ(m_heard, QStringList({"b", "a", "a"}));
}

TEST_F(Notifications, AllowObserversToComeAndGoMeanwhile)
{
    m_center.addObserver(&m_first, "paper", [this] {
        m_heard.append("a");
        m_center.removeObserver(&m_first, "paper");
        m_center.removeObserver(&m_second, "paper");
        m_center.addObserver(&m_third, "paper", noting("c"));
    });
    m_center.addObserver(&m_second, "paper", noting("b"));
    m_center.post("paper");
    EXPECT_EQ(m_heard, QStringList("a")); // the removed one is not called, the new one hears of the next
    m_center.post("paper");
    EXPECT_EQ(m_heard, QStringList({"a", "c"}));
}

TEST_F(Notifications, ReachAnObserverThatLeftAndCameBackOnlyTheNextTime)
{
    m_center.addObserver(&m_first, "paper", [this] {
        m_center.removeObserver(&m_second, "paper");
        m_center.addObserver(&m_second, "paper", noting("new"));
    });
    m_center.addObserver(&m_second, "paper", noting("old"));
    m_center.post("paper");
    EXPECT_EQ(m_heard, QStringList());
    m_center.removeObserver(&m_first, "paper");
    m_center.post("paper");
    EXPECT_EQ(m_heard, QStringList("new"));
}

/// One format with its arguments, and the line that it makes.
struct Filled
{
    const char *format;
    std::vector<LogArgument> arguments;
    QString line;
};

void PrintTo(const Filled &row, std::ostream *out) { *out << '"' << row.format << '"'; }

class LogFormat : public testing::TestWithParam<Filled>
{};

TEST_P(LogFormat, IsFilled)
{
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // where there is one; lines do not change with it
    EXPECT_EQ(formattedString(GetParam().format, GetParam().arguments), GetParam().line);
    std::setlocale(LC_ALL, "C");
}

const void *const kNowhere = nullptr;
const void *const kAddress = reinterpret_cast<const void *>(0xbeef);

INSTANTIATE_TEST_SUITE_P(Conversions, LogFormat,
                         testing::Values(Filled{"%@", {QString("ä")}, "ä"}, Filled{"%s", {"ä"}, "ä"},
                                         Filled{"%S", {u"ä"}, "ä"}, Filled{"%d", {-3}, "-3"}, Filled{"%i", {-3}, "-3"},
                                         Filled{"%u", {-1}, "4294967295"}, Filled{"%x", {48879}, "beef"},
                                         Filled{"%X", {48879}, "BEEF"}, Filled{"%o", {8}, "10"},
                                         Filled{"%c", {'A'}, "A"}, Filled{"%C", {u'Ж'}, "Ж"},
                                         Filled{"%f", {1.5}, "1.500000"}, Filled{"%e", {1500.0}, "1.500000e+03"},
                                         Filled{"%g", {1.5}, "1.5"}, Filled{"%a", {1.5}, "0x1.8p+0"},
                                         Filled{"%p", {kAddress}, "0xbeef"}, Filled{"%p", {kNowhere}, "0x0"},
                                         Filled{"%%", {}, "%"}, Filled{"no letters", {"unused"}, "no letters"},
                                         Filled{"%@ %s, %d", {QString("a"), "b", 3}, "a b, 3"}));

INSTANTIATE_TEST_SUITE_P(
    Lengths, LogFormat,
    testing::Values(Filled{"%hd", {65535}, "-1"}, Filled{"%hu", {-1}, "65535"}, Filled{"%hx", {0x12345}, "2345"},
                    Filled{"%d", {0x1'0000'0001LL}, "1"}, Filled{"%ld", {-0x1'0000'0001LL}, "-4294967297"},
                    Filled{"%lld", {std::numeric_limits<long long>::min()}, "-9223372036854775808"},
                    Filled{"%llu", {std::numeric_limits<unsigned long long>::max()}, "18446744073709551615"},
                    Filled{"%lx", {-1}, "ffffffffffffffff"}, Filled{"%zu", {std::size_t{5'000'000'000}}, "5000000000"},
                    Filled{"%lf", {1.5}, "1.500000"}, Filled{"%lc", {u'Ж'}, "Ж"}, Filled{"%ls", {u"ä"}, "ä"}));

INSTANTIATE_TEST_SUITE_P(FlagsWidthAndPrecision, LogFormat,
                         testing::Values(Filled{"%5d|", {3}, "    3|"}, Filled{"%-5d|", {3}, "3    |"},
                                         Filled{"%05d", {-3}, "-0003"}, Filled{"%+d", {3}, "+3"},
                                         Filled{"% d", {3}, " 3"}, Filled{"%#x", {255}, "0xff"},
                                         Filled{"%#o", {8}, "010"}, Filled{"%#d", {8}, "8"}, Filled{"%.3d", {7}, "007"},
                                         Filled{"%*d", {4, 7}, "   7"}, Filled{"%*d|", {-4, 7}, "7   |"},
                                         Filled{"%.*f", {1, 2.25}, "2.2"}, Filled{"%.*f", {-1, 2.25}, "2.250000"},
                                         Filled{"%8.2f", {3.14159}, "    3.14"},
                                         Filled{"%08.2f", {-3.14159}, "-0003.14"}, Filled{"%.f", {2.6}, "3"},
                                         Filled{"%.2e", {1500.0}, "1.50e+03"}, Filled{"%.1a", {1.5}, "0x1.8p+0"},
                                         Filled{"%.3g", {1234.5}, "1.23e+03"}, Filled{"%5s|", {"ab"}, "   ab|"},
                                         Filled{"%-5@|", {QString("ab")}, "ab   |"}, Filled{"%.2s", {"abc"}, "ab"},
                                         Filled{"%3c", {'A'}, "  A"}, Filled{"%8p", {kAddress}, "  0xbeef"}));

INSTANTIATE_TEST_SUITE_P(
    Bad, LogFormat,
    testing::Values(Filled{"%@ and %@", {"one"}, "one and (null)"},
                    Filled{"%d %f %s %c %p",
                           {}, // all missing
                           "(null) (null) (null) (null) (null)"},
                    Filled{"%@", {static_cast<const char *>(nullptr)}, "(null)"}, Filled{"%d", {"text"}, "text"},
                    Filled{"%f", {"text"}, "text"}, Filled{"%p", {"text"}, "text"}, Filled{"%c", {"text"}, "text"},
                    Filled{"%s", {3}, "3"}, Filled{"%@", {2.5}, "2.5"}, Filled{"%f", {3}, "3"},
                    Filled{"%x", {2.5}, "2.5"}, Filled{"%d", {kAddress}, "0xbeef"}, Filled{"%s", {kAddress}, "0xbeef"},
                    Filled{"%*d", {"wide", 3}, "3"}, Filled{"%*d", {}, "(null)"}, Filled{"100%", {}, "100%"},
                    Filled{"%q %n %", {"unused"}, "%q %n %"}, Filled{"%5.", {}, "%5."}, Filled{"%*q%d", {1}, "%*q1"},
                    Filled{"%5%", {}, "%"}, Filled{"%999999999999d", {1}, QString(999, ' ') + '1'},
                    Filled{"%.99999999999d", {1}, QString(999, '0') + '1'},
                    Filled{"%*d", {std::numeric_limits<int>::min(), 1}, '1' + QString(999, ' ')}));

TEST(Log, WritesLinesToStandardError)
{
    const LogSink tests = setLogSink({});
    testing::internal::CaptureStderr();
    NSLog("start is %@", {QString("Größe")});
    NSLog("100%");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "start is Größe\n100%\n");
    setLogSink(tests);
}

TEST(Log, GoesToASinkInstead)
{
    QStringList lines;
    const LogSink tests = setLogSink([&](const QString &line) { lines.append(line); });
    NSLog("start is %@", {"QnMedia"});
    setLogSink(tests);
    EXPECT_EQ(lines, QStringList("start is QnMedia"));
}

struct Outside
{
    QString text;
    QString line;
};

void PrintTo(const Outside &row, std::ostream *out) { *out << row.line.left(20).toStdString(); }

class TextFromOutside : public testing::TestWithParam<Outside>
{};

TEST_P(TextFromOutside, IsOneHarmlessLine) { EXPECT_EQ(foundation::plainLine(GetParam().text), GetParam().line); }

INSTANTIATE_TEST_SUITE_P(
    Of, TextFromOutside,
    testing::Values(Outside{"plain", "plain"}, Outside{"", ""}, Outside{"two\nlines", "two lines"},
                    Outside{"\x1b]0;title\x07 red \x1b[31m", "]0;title red [31m"},
                    Outside{QString("a\u2028b\u2029c\u0085d"), "a b c d"}, Outside{QString("gnp\u202exe"), "gnp xe"},
                    Outside{QString("\u2066x\u2069\ufeff"), "x"},
                    Outside{QString("Grüße 印刷 😀"), QString("Grüße 印刷 😀")},
                    Outside{"<b>&amp;</b>", "<b>&amp;</b>"},
                    Outside{QString("a\u200cb\u200dc\u00add"), QString("a\u200cb\u200dc\u00add")},
                    Outside{QString(300, 'x'), QString(300, 'x')},
                    Outside{QString(301, 'x'), QString(299, 'x') + QChar(0x2026)},
                    Outside{QString(1000, 'x'), QString(299, 'x') + QChar(0x2026)},
                    Outside{QString(300, ' ') + QString(299, 'x') + 'y', QString(299, 'x') + 'y'},
                    Outside{QString(298, 'x') + QString("😀").repeated(9), QString(298, 'x') + QChar(0x2026)}));

TEST(TextForToolTips, ShowsAsItIs)
{
    const QString text = "<img src='/dev/zero'> & \"a\"\n  b";
    QTextDocument shown;
    shown.setHtml(foundation::asHtml(text));
    EXPECT_EQ(shown.toPlainText(), text);
    EXPECT_TRUE(Qt::mightBeRichText(foundation::asHtml(text))); // or the escapes would be seen
}

TEST(TextForPrograms, StaysWhole)
{
    const QString path = "/out/" + QString(2000, 'x') + "/a  b.pdf";
    EXPECT_EQ(foundation::withoutControls(path), path);
    EXPECT_EQ(foundation::withoutControls("a\nb\x1b"), "a b ");
}

TEST(OwnDefaults, AreNotReadFromAPipe)
{
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    const QString path = folder.filePath("qnprint/qnprint-tests.conf");
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    auto &defaults = foundation::UserDefaults::standard();
    const auto earlier = defaults.useStore(nullptr);
    EXPECT_EQ(defaults.objectForKey("x"), std::nullopt); // and nobody waits for a writer
    defaults.setObjectForKey("1", "x");
    EXPECT_EQ(defaults.objectForKey("x"), "1");
    defaults.useStore(nullptr);
    EXPECT_FALSE(QFileInfo(path).isFile());
}

} // namespace
