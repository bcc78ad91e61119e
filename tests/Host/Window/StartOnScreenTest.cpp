// The program started with what can't serve, by somebody who does not look at a terminal.
#include "Print.h"
#include "Screen.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <iostream>

using support::Seen;

namespace {

constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";
constexpr auto kPPD = QN_SOURCE_DIR "/examples/ppd/full.ppd";
constexpr int kMilliseconds = 20000;
constexpr int kTries = 4;

class StartOnScreen : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto noScreen = m_screen.start();
        ASSERT_FALSE(noScreen) << noScreen->toStdString();
        write("empty", "");
        write("garbage", "*PPD-Ad\nnothing of the kind\n");
        write("picture.webp", QByteArray("RIFF\x1a\0\0\0WEBPVP8L", 16));
        ASSERT_TRUE(QDir(m_folder.path()).mkdir("folder"));
    }
    void TearDown() override
    {
        if (HasFailure())
            for (const Seen &each : m_screen.look("qnprint"))
                std::cerr << each.role.toStdString() << " \"" << each.name.toStdString() << "\"\n";
        if (m_program.state() != QProcess::NotRunning) {
            m_program.kill();
            m_program.waitForFinished(kMilliseconds);
        }
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    void start(const QString &ppd, const QString &document, const QStringList &more = {})
    {
        auto environment = m_screen.extended(QProcessEnvironment::systemEnvironment());
        environment.insert("HOME", m_folder.path());
        environment.insert("XDG_CONFIG_HOME", m_folder.path());
        m_program.setProcessEnvironment(environment);
        m_program.start(QN_PROGRAM, QStringList{"--language", "en", "--ppd", ppd, "--output", path("out")} + more +
                                        QStringList{document});
        ASSERT_TRUE(m_program.waitForStarted(kMilliseconds)) << m_program.errorString().toStdString();
    }
    bool says(const QString &sentence) const
    {
        return m_screen
            .waitFor("qnprint", [&](const Seen &each) { return each.role == "alert" && each.name.contains(sentence); })
            .has_value();
    }
    bool canPress(const QString &button, int milliseconds = kMilliseconds) const
    {
        return m_screen
            .waitFor(
                "qnprint",
                [&](const Seen &each) { return each.role == "button" && each.name == button && each.isEnabled; },
                milliseconds)
            .has_value();
    }
    /// By keys. The first Return may be for the names that are offered under the one that is typed.
    bool chooseFile(const QString &file) const
    {
        m_screen.press("alt+f");
        const auto isName = [](const Seen &each) { return each.role == "text" && each.name == "File name:"; };
        if (!m_screen.waitFor("qnprint", isName))
            return false;
        m_screen.type(file);
        for (int i = 0; i < kTries; ++i) {
            m_screen.press("Return");
            if (canPress("Print", kMilliseconds / kTries))
                return true;
        }
        return false;
    }
    bool ended(int status)
    {
        return m_program.waitForFinished(kMilliseconds) && m_program.exitStatus() == QProcess::NormalExit &&
               m_program.exitCode() == status;
    }
    /// Once it has ended.
    QByteArray toldOnTerminal() { return m_program.readAllStandardError(); }
    bool hasPrinted() const { return QFile::exists(path("out/ticket.pdf")); }

    QTemporaryDir m_folder;
    support::Screen m_screen;
    QProcess m_program;
};

struct Row
{
    const char *name;
    QString file; // in the test's folder
    const char *sentence;
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }

class UnprintableDocument : public StartOnScreen, public testing::WithParamInterface<Row>
{};

TEST_P(UnprintableDocument, IsToldInTheWindowWhichTakesAnother)
{
    start(kPPD, path(GetParam().file));
    ASSERT_TRUE(says(GetParam().file + GetParam().sentence));
    ASSERT_TRUE(chooseFile(kTicket));
    m_screen.press("alt+p");
    EXPECT_TRUE(ended(0));
    EXPECT_TRUE(hasPrinted());
    EXPECT_TRUE(toldOnTerminal().contains(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(That, UnprintableDocument,
                         testing::Values(Row{"IsMissing", "none.pdf", ": No such file or directory"},
                                         Row{"IsEmpty", "empty", ": the document is empty"},
                                         Row{"IsAFolder", "folder", ": not a file"},
                                         Row{"IsOfAnUnknownKind", "picture.webp", ": can't be printed as it is"}),
                         [](const auto &row) { return row.param.name; });

class UnusablePPD : public StartOnScreen, public testing::WithParamInterface<Row>
{};

TEST_P(UnusablePPD, IsToldInTheWindowWhichLooksAgain)
{
    start(path(GetParam().file), kTicket);
    ASSERT_TRUE(says(GetParam().file + GetParam().sentence));
    ASSERT_TRUE(canPress("Try Again"));
    QDir(m_folder.path()).rmdir(GetParam().file);
    QFile::remove(path(GetParam().file));
    ASSERT_TRUE(QFile::copy(kPPD, path(GetParam().file)));
    m_screen.press("alt+g");
    ASSERT_TRUE(canPress("Print"));
    m_screen.press("alt+p");
    EXPECT_TRUE(ended(0));
    EXPECT_TRUE(hasPrinted());
}

TEST_P(UnusablePPD, EndsTheProgramWithItsStatusWhenTheWindowIsClosed)
{
    start(path(GetParam().file), kTicket);
    ASSERT_TRUE(says(GetParam().sentence));
    m_screen.press("Escape");
    EXPECT_TRUE(ended(1));
    EXPECT_FALSE(hasPrinted());
    EXPECT_TRUE(toldOnTerminal().contains(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(That, UnusablePPD,
                         testing::Values(Row{"IsMissing", "none.ppd", ": No such file or directory"},
                                         Row{"IsEmpty", "empty", ": not a PPD file (the file is empty)"},
                                         Row{"IsAFolder", "folder", ": not a file"},
                                         Row{"IsGarbage", "garbage", ": not a PPD file (line 1: "}),
                         [](const auto &row) { return row.param.name; });

TEST_F(StartOnScreen, TellsOfAPanelThatIsNotThereAndShowsTheOthers)
{
    start(kPPD, kTicket, {"--panel", "nosuch"});
    ASSERT_TRUE(says("There is no panel “nosuch”."));
    m_screen.press("alt+p");
    EXPECT_TRUE(ended(0));
    EXPECT_TRUE(hasPrinted());
}

TEST_F(StartOnScreen, EndsAsWrongUseWhenThePanelIsNotThereAndTheWindowIsClosed)
{
    start(kPPD, kTicket, {"--panel", "nosuch"});
    ASSERT_TRUE(says("There is no panel “nosuch”."));
    m_screen.press("Escape");
    EXPECT_TRUE(ended(2));
    EXPECT_TRUE(toldOnTerminal().contains("qnprint: --panel nosuch: there is no such panel\n"));
}

} // namespace
