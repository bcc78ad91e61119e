// A driver's own tests: replies and pictures kept, and compared with those of now.
#include "Print.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr auto kScript = "# What the panel shows.\n"
                         R"({"do":"open","ppd":"driver.ppd","locale":"de_DE"})"
                         "\n\n"
                         R"({"do":"show","panel":"basic"})"
                         "\n"
                         R"({"do":"state","panel":"basic"})"
                         "\n";

class Driver : public testing::Test
{
protected:
    Driver() { QFile::copy(QN_SOURCE_DIR "/examples/ppd/full.ppd", path("driver.ppd")); }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    /// Another text for the first kind of media: the driver has changed.
    void change() const { write("driver.ppd", read("driver.ppd").replace("QnMedia Thermal/", "QnMedia Thermal/New ")); }

    /// The exit status.
    int run(const QString &program, const QStringList &arguments, const QByteArray &input = {})
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", QFileInfo(QN_PROGRAM).path() + ':' + environment.value("PATH"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.start(program, arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
        m_output = process.readAllStandardOutput();
        m_errors = process.readAllStandardError();
        return process.exitCode();
    }
    int script(const QStringList &arguments) { return run(QN_PROGRAM, QStringList("script") + arguments, kScript); }
    int shot(const QStringList &arguments)
    {
        return run(QN_PROGRAM, QStringList{"shot", "--ppd", "driver.ppd", "--panel", "basic"} + arguments);
    }

    QTemporaryDir m_folder;
    QByteArray m_output;
    QByteArray m_errors;
};

TEST_F(Driver, HasItsRepliesRecordedAsTheyAreGiven)
{
    EXPECT_EQ(script({"--record", "kept"}), 0);
    EXPECT_EQ(m_output.count('\n'), 3);
    EXPECT_EQ(read("kept"), m_output);
    EXPECT_EQ(m_errors, "");
}

TEST_F(Driver, ThatHasNotChangedGivesTheRepliesThatAreExpected)
{
    ASSERT_EQ(script({"--record", "kept"}), 0);
    EXPECT_EQ(script({"--expect", "kept"}), 0);
    EXPECT_EQ(m_errors, "");
    EXPECT_EQ(m_output, read("kept"));
}

TEST_F(Driver, MayHaveItsRepliesRecordedInOtherWhitespaceAndWithRemarks)
{
    ASSERT_EQ(script({"--record", "kept"}), 0);
    write("kept", "# Of last year.\n\n" + read("kept").replace("\"ok\":true", " \"ok\" : true "));
    EXPECT_EQ(script({"--expect", "kept"}), 0);
    EXPECT_EQ(m_errors, "");
}

TEST_F(Driver, ThatHasChangedIsToldByTheLinesThatDiffer)
{
    ASSERT_EQ(script({"--record", "kept"}), 0);
    change();
    EXPECT_EQ(script({"--expect", "kept"}), 1);
    EXPECT_TRUE(m_errors.startsWith("--- kept\n+++ replies now\n@@ -")) << m_errors.toStdString();
    EXPECT_EQ(m_errors.count("\n-"), 1) << m_errors.toStdString();
    EXPECT_EQ(m_errors.count("\n+"), 2) << m_errors.toStdString(); // the second line of the heading is one
    EXPECT_TRUE(m_errors.contains(" @@ reply 3\n")) << m_errors.toStdString();
    EXPECT_TRUE(m_errors.contains("\"title\": \"New ")) << m_errors.toStdString();
}

TEST_F(Driver, ThatGivesFewerRepliesIsTold)
{
    ASSERT_EQ(script({"--record", "kept"}), 0);
    write("kept", read("kept") + "{\"ok\":true}\n");
    EXPECT_EQ(script({"--expect", "kept"}), 1);
    EXPECT_TRUE(m_errors.endsWith("-reply 4\n-{\n-    \"ok\": true\n-}\n")) << m_errors.toStdString();
}

TEST_F(Driver, CanBeComparedAndRecordedAnewInTheSameFile)
{
    ASSERT_EQ(script({"--record", "kept"}), 0);
    change();
    EXPECT_EQ(script({"--expect", "kept", "--record", "kept"}), 1);
    EXPECT_EQ(read("kept"), m_output);
    EXPECT_EQ(script({"--expect", "kept"}), 0);
}

TEST_F(Driver, IsNotAskedAnythingWhereAFileOfRepliesCanNotBeUsed)
{
    EXPECT_EQ(script({"--expect", "nosuch"}), 1);
    EXPECT_EQ(m_errors, "qnprint: nosuch: No such file or directory\n");
    EXPECT_EQ(m_output, "");
    EXPECT_EQ(script({"--record", "nosuch/kept"}), 1);
    EXPECT_TRUE(m_errors.startsWith("qnprint: nosuch/kept: ")) << m_errors.toStdString();
    EXPECT_EQ(m_output, "");
}

TEST_F(Driver, ThatHasNotChangedLooksAsItDid)
{
    ASSERT_EQ(shot({"kept.png"}), 0) << m_errors.toStdString();
    EXPECT_EQ(shot({"--compare", "kept.png", "new.png"}), 0);
    EXPECT_EQ(m_errors, "");
    EXPECT_EQ(QImage(path("new.png")), QImage(path("kept.png")));
    EXPECT_FALSE(QFile::exists(path("new-differences.png")));
}

int redDots(const QImage &picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += qRed(picture.pixel(x, y)) != qBlue(picture.pixel(x, y)) ? 1 : 0;
    return count;
}

TEST_F(Driver, ThatHasChangedIsShownByThePlacesThatDiffer)
{
    ASSERT_EQ(shot({"kept.png"}), 0) << m_errors.toStdString();
    QImage kept(path("kept.png"));
    for (int x = 10; x < 30; ++x)
        kept.setPixelColor(x, 40, Qt::green);
    ASSERT_TRUE(kept.save(path("kept.png")));
    EXPECT_EQ(shot({"--compare", "kept.png", "new.png"}), 1);
    EXPECT_EQ(m_errors, "qnprint: new.png: 20 dots differ from kept.png, within 20 x 1 at 10, 40; "
                        "new-differences.png has them in red\n");
    const QImage differences(path("new-differences.png"));
    EXPECT_EQ(differences.size(), kept.size());
    EXPECT_EQ(redDots(differences), 20);
}

TEST_F(Driver, WhosePictureHasAnotherSizeDiffersWhereThereWasNone)
{
    ASSERT_EQ(shot({"kept.png"}), 0) << m_errors.toStdString();
    const QImage whole(path("kept.png"));
    ASSERT_TRUE(whole.copy(0, 0, whole.width(), whole.height() - 5).save(path("kept.png")));
    EXPECT_EQ(shot({"--compare", "kept.png", "new.png"}), 1);
    EXPECT_EQ(redDots(QImage(path("new-differences.png"))), whole.width() * 5);
}

TEST_F(Driver, IsNotShownWhereThereIsNoEarlierPicture)
{
    EXPECT_EQ(shot({"--compare", "nosuch.png", "new.png"}), 1);
    EXPECT_TRUE(m_errors.startsWith("qnprint: nosuch.png: ")) << m_errors.toStdString();
    EXPECT_FALSE(QFile::exists(path("new.png")));
}

TEST_F(Driver, IsKeptByTheExampleForServersThatTestEveryChange)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("tests"));
    write("tests/basic.jsonl", kScript);
    ASSERT_EQ(script({"--record", "tests/basic.replies"}), 0);
    ASSERT_EQ(shot({"--locale", "de_DE", "tests/basic.png"}), 0) << m_errors.toStdString();
    constexpr auto kExample = QN_SOURCE_DIR "/examples/ci/check-driver";
    EXPECT_EQ(run(kExample, {"driver.ppd", "tests"}), 0) << m_errors.toStdString();
    EXPECT_TRUE(m_output.startsWith("driver.ppd:")) << m_output.toStdString(); // what lint has to say
    EXPECT_TRUE(m_output.endsWith("\ntests/basic.jsonl\ntests/basic.png\n")) << m_output.toStdString();
    change();
    EXPECT_EQ(run(kExample, {"driver.ppd", "tests"}), 1);
    EXPECT_TRUE(m_errors.contains("+++ replies now")) << m_errors.toStdString();
    EXPECT_TRUE(m_errors.contains("qnprint: differences/basic.png: ")) << m_errors.toStdString();
}

TEST_F(Driver, IsComparedByTheFaceThatTheOptionBelongsTo)
{
    EXPECT_EQ(run(QN_PROGRAM, {"shot", "--ppd", "driver.ppd", "--record", "kept", "new.png"}), 2);
    EXPECT_EQ(m_errors, "qnprint: --record goes with script only\n");
    EXPECT_EQ(run(QN_PROGRAM, {"script", "--compare", "kept.png"}), 2);
    EXPECT_EQ(m_errors, "qnprint: --compare goes with shot only\n");
}

struct WrongLineRow
{
    const char *name;
    QStringList line;
    const char *sentence;
};
void PrintTo(const WrongLineRow &row, std::ostream *out) { *out << row.name; }

class WrongLine : public Driver, public testing::WithParamInterface<WrongLineRow>
{};

TEST_P(WrongLine, IsToldAndNothingIsWritten)
{
    write("kept", "before");
    EXPECT_EQ(run(QN_PROGRAM, GetParam().line), 2);
    EXPECT_EQ(m_errors, QString("qnprint: %1\n").arg(GetParam().sentence));
    QFile kept(path("kept"));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "before");
}

INSTANTIATE_TEST_SUITE_P(
    With, WrongLine,
    testing::Values(
        WrongLineRow{"AScriptAsAFile",
                     {"script", "basic.jsonl"},
                     "script: takes no file, and not basic.jsonl; its lines come by standard input"},
        WrongLineRow{"NothingToExpect", {"script", "--expect", ""}, "--expect: needs a value"},
        WrongLineRow{"NothingToRecord", {"script", "--record", ""}, "--record: needs a value"},
        WrongLineRow{"NothingToCompare", {"shot", "--compare", "", "new.png"}, "--compare: needs a value"},
        WrongLineRow{"NoBundle", {"lint", "--bundle", "", "driver.ppd"}, "--bundle: needs a value"},
        WrongLineRow{"NothingToExplain", {"lint", "--explain", "", "driver.ppd"}, "--explain: needs a value"},
        WrongLineRow{"NoPPD", {"--no-dialog", "--ppd", "", "kept"}, "--ppd: needs a value"},
        WrongLineRow{"NoPrinter", {"--no-dialog", "-d", "", "kept"}, "--destination: needs a value"},
        WrongLineRow{
            "NoFolder", {"--no-dialog", "--ppd", "driver.ppd", "--output", "", "kept"}, "--output: needs a value"},
        WrongLineRow{"NoPanel", {"--panel", "", "kept"}, "--panel: needs a value"},
        WrongLineRow{"NoSettings", {"--print-settings", "", "kept"}, "--print-settings: needs a value"}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace
