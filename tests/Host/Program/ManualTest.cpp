// What tells a person how the program is used: all of it comes from one source, row by row.
#include "Program/Usage.h"

#include "Print.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

namespace host {

void PrintTo(const OptionRow &row, std::ostream *out) { *out << row.description; }

} // namespace host

namespace {

constexpr auto kPage = QN_MANUAL_DIR "/qnprint.1";
constexpr int kMilliseconds = 20000;

struct Said
{
    int status = -1;
    QString output;
    QString errors;
};

Said run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(display);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(kMilliseconds)) << process.errorString().toStdString();
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList words(const QString &text) { return text.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts); }

/// As it is read, without where the lines end.
const QString &page()
{
    static const QString text =
        ' ' + words(run("groff", {"-man", "-Tascii", "-P-cbou", "-rHY=0", kPage}).output).join(' ') + ' ';
    return text;
}

const QString &help()
{
    static const QString text = ' ' + words(run(QN_PROGRAM, {"--help"}).output).join(' ') + ' ';
    return text;
}

/// A text that is none would be found everywhere.
bool has(const QString &where, const QString &text) { return !text.isEmpty() && where.contains(' ' + text + ' '); }

/// "-d, --destination"
QString names(const host::OptionRow &row)
{
    QStringList all;
    if (row.letter)
        all.append(QString("-%1").arg(row.letter));
    if (row.word)
        all.append(QString("--%1").arg(row.word));
    return all.join(", ");
}

class EveryOption : public testing::TestWithParam<host::OptionRow>
{};

TEST_P(EveryOption, IsToldInTheHelp)
{
    const auto &row = GetParam();
    const QString value = row.value ? QString(" <%1>").arg(row.value) : QString();
    EXPECT_TRUE(has(help(), names(row) + value + ' ' + row.description)) << help().toStdString();
}

TEST_P(EveryOption, IsToldInTheManualPage)
{
    const auto &row = GetParam();
    const QString value = row.value ? QString(" %1").arg(row.value) : QString();
    EXPECT_TRUE(has(page(), names(row) + value + ' ' + row.description)) << page().toStdString();
    EXPECT_TRUE(!row.more || has(page(), row.more)) << page().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Of, EveryOption, testing::ValuesIn(host::kOptionRows), [](const auto &row) {
    return QString(names(row.param)).remove(QRegularExpression("\\W")).toStdString();
});

TEST(Help, TellsOfTheOtherUsesToo)
{
    for (const host::FaceRow &row : host::kFaceRows)
        EXPECT_TRUE(has(help(), QString("qnprint %1 %2").arg(row.synopsis, row.description))) << help().toStdString();
}

TEST(Help, IsGivenOnTheOtherUsesAsWell)
{
    for (const host::FaceRow &row : host::kFaceRows)
        EXPECT_EQ(words(run(QN_PROGRAM, {row.word, "--help"}).output), words(help()));
}

TEST(ManualPage, IsSoundToTheFormatter)
{
    const auto said = run("groff", {"-man", "-Tutf8", "-ww", "-z", kPage});
    EXPECT_EQ(said.status, 0);
    EXPECT_EQ(said.errors, "");
}

TEST(ManualPage, TellsOfEveryUseAndEveryExitStatus)
{
    for (const host::FaceRow &row : host::kFaceRows) {
        EXPECT_TRUE(has(page(), QString("qnprint %1").arg(row.synopsis)));
        EXPECT_TRUE(has(page(), QString("%1 %2").arg(row.description, row.more))) << page().toStdString();
    }
    for (const host::ExitRow &row : host::kExitRows)
        EXPECT_TRUE(has(page(), QString("%1 %2").arg(QString::number(row.status), row.description)));
}

TEST(ManualPage, TellsOfTheEnvironmentTheFilesTheOutputAndGivesExamples)
{
    const auto expectAll = [](const auto &rows) {
        for (const host::TermRow &row : rows)
            EXPECT_TRUE(has(page(), QString("%1 %2").arg(row.term, row.description))) << page().toStdString();
    };
    expectAll(host::kEnvironmentRows);
    expectAll(host::kFileRows);
    expectAll(host::kOutputRows);
    expectAll(host::kExampleRows);
}

TEST(ManualPage, CanBeCopiedFrom)
{
    QFile file(kPage);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray source = file.readAll();
    EXPECT_TRUE(source.contains("\\-\\-no\\-dialog"));
    EXPECT_FALSE(source.contains("--"));  // would be read as hyphens
    EXPECT_FALSE(source.contains("'"));   // as the end of a quotation
    EXPECT_FALSE(source.contains(" ~/")); // as an accent
}

/// Each fails for what it names, which is not there, and not for how.
TEST(Examples, AreNoWrongUse)
{
    for (const host::TermRow &row : host::kExampleRows) {
        QStringList arguments = QProcess::splitCommand(QString(row.term));
        ASSERT_FALSE(arguments.isEmpty());
        ASSERT_EQ(arguments.takeFirst(), "qnprint");
        arguments.removeIf([](const QString &each) { return each.startsWith('<'); }); // which is the shell's
        const auto said = run(QN_PROGRAM, arguments);
        EXPECT_EQ(said.status, host::kRefused) << row.term << ": " << said.errors.toStdString();
    }
}

} // namespace
