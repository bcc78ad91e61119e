// Completions by the shells themselves. In bash and zsh a line is typed, and what counts is what the program would be
// started with; fish tells what it would offer.
#include "Program/Usage.h"

#include "Print.h"
#include "Terminal.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr int kMilliseconds = 20000;
constexpr auto kReady = "ready> ";
constexpr auto kBash = QN_MANUAL_DIR "/qnprint.bash";
constexpr auto kZsh = QN_MANUAL_DIR "/_qnprint";
constexpr auto kFish = QN_MANUAL_DIR "/qnprint.fish";

QStringList wordsOf(const host::OptionRow &row)
{
    QStringList words;
    if (row.letter)
        words.append(QString("-%1").arg(row.letter));
    if (row.word)
        words.append(QString("--%1").arg(row.word));
    return words;
}

/// A folder with a few files to be in, and beside it two programs: `lpstat` lists what is in `queues`, and `qnprint`
/// writes down its arguments.
class Completions
{
protected:
    Completions()
    {
        put("bin/lpstat", "#!/bin/sh\n[ \"$*\" = -e ] && cat \"$HOME/queues\"\n");
        put("bin/qnprint", "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$HOME/new\" && mv \"$HOME/new\" \"$HOME/arguments\"\n");
        put("here/ticket.pdf", "%PDF");
        put("here/the driver.ppd", "*PPD-Adobe");
        put("here/out folder/inner.ppd", "*PPD-Adobe");
        put("here/outline.txt", "words");
        put("here/counter/express.txt", "words");
        setQueues({"counter", "office"});
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    void setQueues(const QStringList &names) const { put("queues", names.join('\n').toUtf8() + '\n'); }
    /// Whether text of a queue's name was run.
    bool isHarmed() const { return QFile::exists(path("here/harm")); }

    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment;
        environment.insert("HOME", m_folder.path());
        environment.insert("PATH", path("bin") + ":/usr/bin:/bin");
        environment.insert("TERM", "dumb");
        environment.insert("LC_ALL", "C.UTF-8");
        environment.insert("INPUTRC", "/dev/null");
        environment.insert("PS1", kReady);
        return environment;
    }
    QByteArray run(const QString &program, const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.setWorkingDirectory(path("here"));
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(kMilliseconds)) << process.errorString().toStdString();
        return process.readAll();
    }

private:
    void put(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QTemporaryDir m_folder;
};

struct Shell
{
    const char *name;
    QStringList arguments;
    QByteArray preparation;
};

const std::array kShells{
    Shell{"bash", {"--norc", "--noprofile", "-i"}, QByteArray("source ") + kBash},
    Shell{"zsh",
          {"-f", "-i"},
          "fpath=('" QN_MANUAL_DIR "' $fpath); autoload -Uz compinit; compinit -u -D; unsetopt beep"},
};

void PrintTo(const Shell &shell, std::ostream *out) { *out << shell.name; }

/// Typed at a shell's prompt.
class Typing : public Completions
{
protected:
    bool start(const Shell &shell)
    {
        if (!m_terminal.start(shell.name, shell.arguments, environment(), path("here")) || !m_terminal.waitFor(kReady))
            return false;
        m_terminal.type(shell.preparation + '\r');
        return m_terminal.waitFor(kReady);
    }
    /// What the program is started with by a line.
    QStringList argumentsOf(const QByteArray &line)
    {
        QFile file(path("arguments"));
        m_terminal.type(line + '\r');
        while (!file.open(QIODevice::ReadOnly))
            if (!m_terminal.waitFor(kReady)) // a shell may show the line more than once
                return {"nothing"};
        QStringList arguments = QString::fromUtf8(file.readAll()).split('\n');
        arguments.removeLast();
        return arguments;
    }

    support::Terminal m_terminal;
};

struct LineRow
{
    const char *name;
    QByteArray typed;
    QStringList arguments;
};

void PrintTo(const LineRow &row, std::ostream *out) { *out << row.name; }

const std::array kLines{
    LineRow{"AnOption", "qnprint --no\t", {"--no-dialog"}},
    LineRow{"AQueue", "qnprint -d cou\t", {"-d", "counter"}},
    LineRow{"AQueueByTheLongWord", "qnprint --destination off\t", {"--destination", "office"}},
    LineRow{"AQueueBehindASign", "qnprint --destination=cou\t", {"--destination=counter"}},
    LineRow{"NoPreset", "qnprint -d counter/e\t", {"-d", "counter/e"}},
    LineRow{"APPDFileAndNoOther", "qnprint --ppd t\t", {"--ppd", "the driver.ppd"}},
    LineRow{"APPDFileInAFolder", "qnprint --ppd ou\tin\t", {"--ppd", "out folder/inner.ppd"}},
    LineRow{"APPDFileBehindASign", "qnprint --ppd=t\t", {"--ppd=the driver.ppd"}},
    LineRow{"AFolderAndNoFile", "qnprint --output ou\tnew", {"--output", "out folder/new"}},
    LineRow{"NoCopies", "qnprint -n ti\t", {"-n", "ti"}},
    LineRow{"NoChoice", "qnprint -o PageSize=ti\t", {"-o", "PageSize=ti"}},
    LineRow{"NoPanel", "qnprint --panel ti\t", {"--panel", "ti"}},
    LineRow{"ADocument", "qnprint --no-dialog ti\t", {"--no-dialog", "ticket.pdf"}},
    LineRow{"ADocumentAfterAQueue", "qnprint -d counter ti\t", {"-d", "counter", "ticket.pdf"}},
    LineRow{"AFaceAsTheFirstWord", "qnprint scr\t", {"script"}},
    LineRow{"ThePreview", "qnprint pre\t", {"preview"}},
    LineRow{"APictureToBe", "qnprint preview ti\tpage.png", {"preview", "ticket.pdf", "page.png"}},
    LineRow{"NoFaceLater", "qnprint --no-dialog scr\t", {"--no-dialog", "scr"}},
    LineRow{"NoOptionBehindTwoDashes", "qnprint -- --no\t", {"--", "--no"}},
};

class Line : public Typing, public testing::TestWithParam<std::tuple<Shell, LineRow>>
{};

TEST_P(Line, IsCompletedWith)
{
    const auto &[shell, row] = GetParam();
    ASSERT_TRUE(start(shell)) << m_terminal.shown().toStdString();
    EXPECT_EQ(argumentsOf(row.typed), row.arguments) << m_terminal.shown().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Of, Line, testing::Combine(testing::ValuesIn(kShells), testing::ValuesIn(kLines)),
                         [](const auto &row) {
                             return std::string(std::get<0>(row.param).name) + std::get<1>(row.param).name;
                         });

class ShellOfAPerson : public Typing, public testing::TestWithParam<Shell>
{};

TEST_P(ShellOfAPerson, ListsEveryOption)
{
    ASSERT_TRUE(start(GetParam()));
    m_terminal.type("qnprint -\t\t");
    ASSERT_TRUE(m_terminal.waitFor("--system-version"));
    m_terminal.type("\x15\r"); // the line again without words, as an interrupt would throw away what was not read yet
    ASSERT_TRUE(m_terminal.waitFor(kReady));
    const QStringList shown = QString::fromUtf8(m_terminal.shown()).split(QRegularExpression("\\s+"));
    for (const host::OptionRow &row : host::kOptionRows)
        for (const QString &word : wordsOf(row))
            EXPECT_TRUE(shown.contains(word)) << word.toStdString();
}

TEST_P(ShellOfAPerson, ListsTheQueues)
{
    ASSERT_TRUE(start(GetParam()));
    m_terminal.type("qnprint -d \t\t");
    EXPECT_TRUE(m_terminal.waitFor("counter"));
    EXPECT_TRUE(m_terminal.waitFor("office"));
}

TEST_P(ShellOfAPerson, ReadsTheCompletionWithoutAWord)
{
    const QString file = QString(GetParam().name) == "bash" ? kBash : kZsh;
    EXPECT_EQ(run(GetParam().name, {"-n", file}), "");
}

INSTANTIATE_TEST_SUITE_P(Is, ShellOfAPerson, testing::ValuesIn(kShells),
                         [](const auto &row) { return std::string(row.param.name); });

struct NameRow
{
    const char *name;
    const char *text;
};
void PrintTo(const NameRow &row, std::ostream *out) { *out << row.text; }

constexpr std::array kNames{
    NameRow{"Spaces", "the counter of 7"},
    NameRow{"Quotes", "a\"b'c\\d"},
    NameRow{"ACommand", "$(touch harm)"},
    NameRow{"AnOldCommand", "`touch harm`"},
    NameRow{"AnotherCommand", "x;touch harm"},
    NameRow{"AVariable", "${HOME}"},
    NameRow{"Wildcards", "*[a-z]?"},
    NameRow{"AQuotedCommand", "'$(touch harm)'"},
    NameRow{"AColon", "a:b"},
    NameRow{"AnIndex", "a[$(touch harm)]"},
};

class NameOfAQueue : public Typing, public testing::TestWithParam<std::tuple<Shell, NameRow>>
{};

TEST_P(NameOfAQueue, IsTextAndNothingElse)
{
    const auto &[shell, row] = GetParam();
    setQueues({row.text});
    ASSERT_TRUE(start(shell));
    EXPECT_EQ(argumentsOf("qnprint -d \t"), QStringList({"-d", row.text})) << m_terminal.shown().toStdString();
    EXPECT_FALSE(isHarmed());
}

INSTANTIATE_TEST_SUITE_P(With, NameOfAQueue, testing::Combine(testing::ValuesIn(kShells), testing::ValuesIn(kNames)),
                         [](const auto &row) {
                             return std::string(std::get<0>(row.param).name) + std::get<1>(row.param).name;
                         });

class Fish : public Completions, public testing::Test
{
protected:
    /// What is offered for a line, without the descriptions.
    QStringList offers(const QString &line) const
    {
        const QByteArray said =
            run("fish", {"--no-config", "-c", "source $argv[1]; complete -C $argv[2]", kFish, line});
        QStringList offered;
        for (const QString &each : QString::fromUtf8(said).split('\n', Qt::SkipEmptyParts))
            offered.append(each.section('\t', 0, 0));
        offered.sort();
        return offered;
    }
};

TEST_F(Fish, ReadsTheCompletionWithoutAWord) { EXPECT_EQ(run("fish", {"--no-execute", kFish}), ""); }

TEST_F(Fish, OffersEveryOption)
{
    const QStringList offered = offers("qnprint -");
    for (const host::OptionRow &row : host::kOptionRows)
        for (const QString &word : wordsOf(row))
            EXPECT_TRUE(offered.contains(word)) << word.toStdString();
}

TEST_F(Fish, CompletesWhatIsMeant)
{
    EXPECT_EQ(offers("qnprint --no-d"), QStringList{"--no-dialog"}); // --destination has the letters of --no as well
    EXPECT_EQ(offers("qnprint -d "), QStringList({"counter", "office"}));
    EXPECT_EQ(offers("qnprint --destination "), QStringList({"counter", "office"}));
    EXPECT_EQ(offers("qnprint -d counter/e"), QStringList());
    EXPECT_EQ(offers("qnprint --ppd "), QStringList({"counter/", "out folder/", "the driver.ppd"}));
    EXPECT_EQ(offers("qnprint --output "), QStringList({"counter/", "out folder/"}));
    EXPECT_EQ(offers("qnprint -n "), QStringList());
    EXPECT_EQ(offers("qnprint -o "), QStringList());
    EXPECT_EQ(offers("qnprint --panel "), QStringList());
    EXPECT_EQ(offers("qnprint script --expect ou"), QStringList({"out folder/", "outline.txt"}));
    EXPECT_EQ(offers("qnprint --no-dialog ti"), QStringList{"ticket.pdf"});
    EXPECT_EQ(offers("qnprint s"), QStringList({"script", "shot"}));
    EXPECT_EQ(offers("qnprint p"), (QStringList{"portal", "preview"}));
    EXPECT_EQ(offers("qnprint --no-dialog s"), QStringList());
}

TEST_F(Fish, TakesNamesOfQueuesForText)
{
    for (const NameRow &row : kNames) {
        setQueues({row.text});
        EXPECT_EQ(offers("qnprint -d "), QStringList{row.text});
        EXPECT_FALSE(isHarmed()) << row.text;
    }
}

} // namespace
