// What the command says of its options, and of values that they can't take.
#include "Print.h"

#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

class TheCommand : public testing::Test
{
protected:
    /// The exit status.
    int run(const QStringList &arguments)
    {
        QProcess program;
        program.start(QN_PROGRAM, arguments);
        program.closeWriteChannel();
        EXPECT_TRUE(program.waitForFinished());
        m_output = QString::fromUtf8(program.readAllStandardOutput());
        m_said = QString::fromUtf8(program.readAllStandardError());
        return program.exitCode();
    }
    QString m_output;
    QString m_said;
};

TEST_F(TheCommand, SaysOfEveryOptionWhatItTakesAndWhatItIsFor)
{
    ASSERT_EQ(run({"--help"}), 0);
    EXPECT_TRUE(m_output.section('\n', 0, 0).endsWith(" [options] [file...]")) << m_output.toStdString();
    // Names in the first column, words in the second, which also goes on in further lines.
    static const QRegularExpression entry(R"(^  (-\S.*?)(?: {2,}(\S.*)| *)$)", QRegularExpression::MultilineOption);
    QStringList options;
    QStringList purposes;
    for (auto each = entry.globalMatch(m_output); each.hasNext();) {
        const auto match = each.next();
        options.append(match.captured(1));
        purposes.append(match.captured(2));
    }
    EXPECT_EQ(options, QStringList({"-h, --help",
                                    "--version",
                                    "-d, --destination <queue>",
                                    "--ppd <file>",
                                    "--output <folder>",
                                    "-o <keyword=choice>",
                                    "-n <number>",
                                    "-P <pages>",
                                    "-t, --title <title>",
                                    "--raw",
                                    "--no-dialog",
                                    "--page <number>",
                                    "--plain",
                                    "--print-settings <file>",
                                    "--enable",
                                    "--disable",
                                    "--status",
                                    "--record <file>",
                                    "--expect <file>",
                                    "--compare <picture>",
                                    "--json",
                                    "--strict",
                                    "--bundle <folder>",
                                    "--explain <check>",
                                    "--panel <panel>",
                                    "--language <language>",
                                    "--locale <locale>",
                                    "--system-version <version>"}))
        << m_output.toStdString();
    EXPECT_FALSE(purposes.contains(QString())) << m_output.toStdString();
    EXPECT_EQ(purposes.removeDuplicates(), 0) << m_output.toStdString();
}

struct BadValue
{
    QStringList arguments;
    const char *said;
};

void PrintTo(const BadValue &row, std::ostream *out) { *out << row.arguments.join(' ').toStdString(); }

class BadValues : public TheCommand, public testing::WithParamInterface<BadValue>
{};

TEST_P(BadValues, AreNamed)
{
    EXPECT_EQ(run(QStringList{"--no-dialog"} + GetParam().arguments), 2);
    EXPECT_EQ(m_said, QString("qnprint: %1\n").arg(GetParam().said));
    EXPECT_EQ(m_output, "");
}

INSTANTIATE_TEST_SUITE_P(
    Of, BadValues,
    testing::Values(BadValue{{"--locale", "xx_nowhere"}, "--locale xx_nowhere: not a known locale"},
                    BadValue{{"--system-version", "eleven"}, "--system-version eleven: not of the form 11.0.0"},
                    BadValue{{"-n", "0"}, "-n 0: not a number from 1 to 999"},
                    BadValue{{"-P", "0"}, "-P 0: no pages, such as 1-3,5"},
                    BadValue{{"-o", "QnSpeed"}, "-o QnSpeed: not of the form keyword=choice"},
                    BadValue{{"-o", "=S1"}, "-o =S1: not of the form keyword=choice"},
                    BadValue{{"-o", "Qn Speed=S1"}, "-o Qn Speed=S1: not of the form keyword=choice"},
                    BadValue{{"--enable"}, "--enable goes with portal only"},
                    BadValue{{"--disable"}, "--disable goes with portal only"},
                    BadValue{{"--status"}, "--status goes with portal only"},
                    BadValue{{"--print-settings", "/nosuch.ini"}, "/nosuch.ini: No such file or directory"},
                    BadValue{{"--no-such-option"}, "Unknown option 'no-such-option'."}));

} // namespace
