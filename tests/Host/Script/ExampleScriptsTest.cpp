// Every example script gives the replies that stand beside it.
#include "Script/Script.h"

#include "Foundation/UserDefaults.h"
#include "Print.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QByteArrayList linesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QByteArrayList lines = file.readAll().split('\n');
    lines.removeAll(QByteArray());
    return lines;
}

std::vector<QString> exampleNames()
{
    std::vector<QString> names;
    for (const QString &name : QDir(QN_SOURCE_DIR "/examples/scripts").entryList({"*.jsonl"}))
        names.push_back(name.chopped(6));
    return names;
}

class ExampleScripts : public testing::TestWithParam<QString>
{};

TEST_P(ExampleScripts, GiveTheirRecordedReplies)
{
    const QTemporaryDir directory;
    foundation::UserDefaults::standard().useStore(
        std::make_unique<QSettings>(directory.filePath("defaults.ini"), QSettings::IniFormat));
    ASSERT_TRUE(QDir::setCurrent(QN_SOURCE_DIR)); // the scripts name their files from here
    const QString base = QN_SOURCE_DIR "/examples/scripts/" + GetParam();
    const QByteArrayList expected = linesOf(base + ".replies");
    host::Script script;
    qsizetype next = 0;
    for (const QByteArray &line : linesOf(base + ".jsonl")) {
        const auto reply = script.reply(line);
        if (!reply)
            continue;
        ASSERT_LT(next, expected.size());
        EXPECT_EQ(QJsonDocument::fromJson(*reply), QJsonDocument::fromJson(expected[next])) << line.toStdString();
        ++next;
    }
    EXPECT_EQ(next, expected.size());
    EXPECT_TRUE(script.allLinesKnown());
}

INSTANTIATE_TEST_SUITE_P(Each, ExampleScripts, testing::ValuesIn(exampleNames()),
                         [](const auto &row) { return QString(row.param).replace('-', '_').toStdString(); });

TEST(ExamplePPDs, ConformToTheFormat)
{
    const QDir folder(QN_SOURCE_DIR "/examples/ppd");
    const QStringList names = folder.entryList({"*.ppd"});
    EXPECT_GE(names.size(), 3);
    for (const QString &name : names) {
        QProcess program;
        program.start("cupstestppd", {"-q", folder.filePath(name)});
        ASSERT_TRUE(program.waitForFinished(20000)) << "cupstestppd: " << program.errorString().toStdString();
        EXPECT_EQ(program.exitCode(), 0) << name.toStdString();
    }
}

TEST(ExampleScriptFiles, ExistForEveryKindOfPaper) { EXPECT_GE(exampleNames().size(), 5U); }

} // namespace
