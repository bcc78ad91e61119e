// `qnprint lint` as people and build machines meet it.
#include "Lint.h"
#include "Session/PlugIn.h"

#include "Foundation/Shadow.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <sys/resource.h>

using namespace support;

namespace {

constexpr auto kFull = QN_SOURCE_DIR "/examples/ppd/full.ppd";
constexpr int kMilliseconds = 60'000;

class LintCommand : public LintTest
{
protected:
    /// The exit status. There is no display.
    int run(const QStringList &arguments)
    {
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
        program.setProcessEnvironment(environment);
        program.start(QN_PROGRAM, QStringList("lint") + arguments);
        program.closeWriteChannel();
        EXPECT_TRUE(program.waitForFinished(kMilliseconds)) << program.errorString().toStdString();
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        m_output = QString::fromUtf8(program.readAllStandardOutput());
        m_said = QString::fromUtf8(program.readAllStandardError());
        return program.exitCode();
    }
    /// Of all programs that this test has run, and of those that they ran, the most that one has used: in megabytes.
    static long memoryUsed()
    {
        rusage usage{};
        ::getrusage(RUSAGE_CHILDREN, &usage);
        return usage.ru_maxrss / 1024;
    }
    static constexpr long kMostMemory = foundation::kHasShadow ? 4000 : 200;

    QString m_output;
    QString m_said;
};

TEST_F(LintCommand, SucceedsWhereNothingCounts)
{
    EXPECT_EQ(run({kFull}), 0);
    EXPECT_TRUE(m_output.startsWith(QString(kFull) + ":190: note: QnMirror is not shown")) << m_output.toStdString();
    EXPECT_TRUE(m_output.section('\n', 0, 0).endsWith("[never-shown]"));
    EXPECT_EQ(m_said, "");
    EXPECT_EQ(run({"--strict", kFull}), 0);
}

TEST_F(LintCommand, FailsByErrorsAndWhereItIsStrictByWarnings)
{
    const QString warning = fileOf(edited(fullPPD(), "*QnMediaObjHidden: \"False\"", "*QnMediaObjHidden: \"No\""));
    EXPECT_EQ(run({warning}), 0);
    EXPECT_TRUE(m_output.contains(": warning: QnMediaObjHidden is \"No\"")) << m_output.toStdString();
    EXPECT_EQ(run({"--strict", warning}), 1);
    const QString error = fileOf(edited(fullPPD(), "2 real 1 51", "2 real 1 20"));
    EXPECT_EQ(run({error}), 1);
    EXPECT_EQ(run({kFull, error, kFull}), 1); // one of several is enough
    EXPECT_EQ(m_output.count("[feed-custom]"), 1);
    EXPECT_EQ(m_output.count("[origin-unused]"), 3);
}

TEST_F(LintCommand, SortsByLine)
{
    const QString file = fileOf(edited(edited(fullPPD(), "2 real 1 51", "2 real 1 20"), "*FileVersion: \"1.5\"\n", ""));
    run({"--json", file});
    int last = 1;
    for (const QString &line : m_output.split('\n', Qt::SkipEmptyParts)) {
        const int each = QJsonDocument::fromJson(line.toUtf8())["line"].toInt();
        EXPECT_GE(each, last) << m_output.toStdString();
        last = each;
    }
    EXPECT_GT(last, 200);
}

TEST_F(LintCommand, TellsEachFindingAsAnObjectOfJSON)
{
    EXPECT_EQ(run({"--json", kFull}), 0);
    const QStringList lines = m_output.split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3);
    const QJsonObject object = QJsonDocument::fromJson(lines[0].toUtf8()).object();
    EXPECT_EQ(object, (QJsonObject{{"file", kFull},
                                   {"line", 190},
                                   {"severity", "note"},
                                   {"check", "never-shown"},
                                   {"message", "QnMirror is not shown on systems from 10.6 on"},
                                   {"option", "QnMirror"}}));
    EXPECT_TRUE(QJsonDocument::fromJson(lines[2].toUtf8()).object()["option"].isNull());
}

TEST_F(LintCommand, ExplainsEveryCheck)
{
    const auto checks = value(host::checksFor({}));
    EXPECT_GT(checks.size(), 20U);
    for (const PDECheck &check : checks) {
        EXPECT_EQ(run({"--explain", check.name}), 0);
        EXPECT_EQ(m_output, host::explained(check));
        EXPECT_TRUE(m_output.startsWith(check.name + " (") && m_output.contains(check.looksFor))
            << m_output.toStdString();
        EXPECT_FALSE(check.looksFor.isEmpty() || check.why.isEmpty()) << check.name.toStdString();
    }
    EXPECT_EQ(run({"--json", "--explain", "origin"}), 0);
    EXPECT_EQ(QJsonDocument::fromJson(m_output.toUtf8())["severity"].toString(), "warning");
}

TEST_F(LintCommand, IsDescribedByTheDocumentOfItsChecks)
{
    EXPECT_EQ(run({"--explain", "all"}), 0);
    EXPECT_EQ(m_output, QString::fromUtf8(contentOf(QN_SOURCE_DIR "/docs/lint.md")))
        << "write it anew: qnprint lint --explain all > docs/lint.md";
}

struct Misuse
{
    QStringList arguments;
    const char *said;
};

TEST_F(LintCommand, IsUsedWronglyWithoutAPPDWithAnUnknownCheckAndWithABundleThatIsNone)
{
    for (const Misuse &row : {Misuse{{}, "lint: needs a PPD"}, Misuse{{"--json"}, "lint: needs a PPD"},
                              Misuse{{"--explain", "off-last"}, "--explain off-last: no such check; all shows them"},
                              Misuse{{"--bundle", "/nowhere", kFull}, "/nowhere: no such plug-in bundle"},
                              Misuse{{"--frills", kFull}, "Unknown option 'frills'."}}) {
        EXPECT_EQ(run(row.arguments), 2) << row.said;
        EXPECT_EQ(m_said, QString("qnprint: %1\n").arg(row.said));
        EXPECT_EQ(m_output, "");
    }
}

TEST_F(LintCommand, HasItsOptionsToItself)
{
    for (const char *option : {"--json", "--strict", "--bundle=x", "--explain=x"}) {
        QProcess program;
        program.start(QN_PROGRAM, {"--no-dialog", option, "x.pdf"});
        program.closeWriteChannel();
        EXPECT_TRUE(program.waitForFinished(kMilliseconds));
        EXPECT_EQ(program.exitCode(), 2);
        EXPECT_TRUE(program.readAllStandardError().endsWith("goes with lint only\n")) << option;
    }
}

TEST_F(LintCommand, TakesTheBundleThatIsAskedFor)
{
    const QString file = fileOf(edited(fullPPD(), "QNKVPageSettings15.plugin", "Another.plugin"));
    EXPECT_EQ(run({"--bundle", QN_BUNDLE_DIR, file}), 0);
    EXPECT_TRUE(m_output.contains("[never-shown]"));
    EXPECT_FALSE(m_output.contains("[extension]")); // nobody asked which one the PPD names
}

TEST_F(LintCommand, GoesWithoutTheChecksThatABundleDoesNotBring)
{
    const QString bundle = m_directory.filePath("LastWords.plugin");
    ASSERT_TRUE(QDir().mkdir(bundle) && QFile::copy(QN_LAST_WORDS, bundle + "/LastWords.so"));
    QFile info(bundle + "/Info.json");
    ASSERT_TRUE(info.open(QIODevice::WriteOnly));
    info.write(QJsonDocument({{"executable", "LastWords.so"},
                              {"principalClass", "LastWords"},
                              {"abiVersion", kPDEInterfaceVersion},
                              {"build", host::buildTag()}})
                   .toJson());
    info.close();
    const QString file = fileOf(edited(fullPPD(), "*DefaultQnMedia: Thermal", "*DefaultQnMedia: None"));
    EXPECT_EQ(run({"--bundle", bundle, file}), 1);
    EXPECT_TRUE(m_output.contains(":1: note: LastWords.plugin brings no checks of its own: those common to all PPDs "
                                  "are made [unchecked]"));
    EXPECT_TRUE(m_output.contains("[default-choice]"));
    EXPECT_FALSE(m_output.contains("[never-shown]")) << m_output.toStdString();
    EXPECT_EQ(run({"--bundle", bundle, "--explain", "never-shown"}), 2);
}

TEST_F(LintCommand, RefusesWhatIsNoPPDInOneLineEach)
{
    const QByteArray head = "*PPD-Adobe: \"4.3\"\n";
    const QByteArray binary = QByteArray("\x7f"
                                         "ELF\0\1\2\xff",
                                         8)
                                  .repeated(4096);
    for (const QByteArray &content :
         {QByteArray(), QByteArray("Dear reader,\n"), binary, head + binary, head.repeated(100'000)}) {
        const QString file = fileOf(content);
        EXPECT_EQ(run({file}), 1) << content.left(40).toStdString();
        EXPECT_EQ(m_output.count('\n'), 1) << m_output.left(1000).toStdString();
        EXPECT_TRUE(m_output.startsWith(file + ':') && m_output.endsWith(" [open]\n")) << m_output.toStdString();
        EXPECT_EQ(m_said, "");
    }
    const QString huge = fileOf(head);
    ASSERT_TRUE(QFile::resize(huge, qint64{1} << 30));
    for (const QString &path : {huge, m_directory.path(), QString("/dev/zero"), QString("/nowhere/printer.ppd")}) {
        EXPECT_EQ(run({path}), 1);
        EXPECT_TRUE(m_output.startsWith(path + ":1: error: ") && m_output.endsWith(" [open]\n"))
            << m_output.toStdString();
    }
    EXPECT_LT(memoryUsed(), kMostMemory);
}

TEST_F(LintCommand, ComesToAnEndOnPPDsOfFiveMegabytes)
{
    QByteArray texts = fullPPD();
    QByteArray choices;
    constexpr int kLines = foundation::kHasShadow ? 10'000 : 45'000;
    for (int i = 0; i < kLines; ++i) {
        const QByteArray number = QByteArray::number(i);
        texts += "*QnThing" + number + " Some" + number + "/Text of a thing: \"" + QByteArray(60, 'x') + "\"\n";
        choices += "*QnMedia M" + number + "/Text of a paper: \"" + QByteArray(60, 'x') + "\"\n";
    }
    run({fileOf(texts)});
    EXPECT_TRUE(m_output.contains("[unknown-option]"));
    EXPECT_EQ(run({fileOf(edited(fullPPD(), "*CloseUI: *QnMedia\n", choices + "*CloseUI: *QnMedia\n"))}), 0);
    // A smaller one may be looked over whole.
    EXPECT_TRUE(foundation::kHasShadow || m_output.contains("[unchecked]")) << m_output.left(1000).toStdString();
    EXPECT_LT(memoryUsed(), kMostMemory);
}

TEST_F(LintCommand, DoesNotLetAPPDControlTheTerminal)
{
    run({fileOf(edited(fullPPD(), "*DefaultQnMedia: Thermal", "*DefaultQnMedia: \x1b[31mred"))});
    EXPECT_TRUE(m_output.contains("[default-choice]")) << m_output.toStdString();
    EXPECT_FALSE(m_output.contains('\x1b'));
}

} // namespace
