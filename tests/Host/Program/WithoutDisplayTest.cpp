// The program where no window can be opened.
#include "Print.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr auto kPPD = QN_SOURCE_DIR "/examples/ppd/full.ppd";
constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";
constexpr int kMilliseconds = 20000;

struct Said
{
    QProcess::ExitStatus end;
    int status;
    QByteArray output;
    QByteArray errors;
};

/// One that says nothing of a display but what is given.
QProcessEnvironment environmentWith(const QMap<QString, QString> &display)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE"})
        environment.remove(name);
    for (const auto &[name, value] : display.asKeyValueRange())
        environment.insert(name, value);
    return environment;
}

Said run(const QStringList &arguments, const QMap<QString, QString> &display = {}, const QByteArray &input = {})
{
    QProcess process;
    process.setProcessEnvironment(environmentWith(display));
    process.start(QN_PROGRAM, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(kMilliseconds)) << process.errorString().toStdString();
    return {process.exitStatus(), process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

struct DisplayRow
{
    const char *name;
    QMap<QString, QString> display;
    QStringList arguments;
    const char *said;
};

void PrintTo(const DisplayRow &row, std::ostream *out) { *out << row.name; }

const std::array kDisplays{
    DisplayRow{"None", {}, {}, ": neither DISPLAY nor WAYLAND_DISPLAY is set"},
    DisplayRow{"AnEmptyName", {{"DISPLAY", ""}}, {}, ": neither DISPLAY nor WAYLAND_DISPLAY is set"},
    DisplayRow{"NobodyThere", {{"DISPLAY", ":9999"}}, {}, " with DISPLAY=:9999"},
    DisplayRow{"AnotherWayland",
               {{"WAYLAND_DISPLAY", "nobody"}, {"XDG_SESSION_TYPE", "wayland"}},
               {},
               " with WAYLAND_DISPLAY=nobody"},
    DisplayRow{"NoSuchPlatform", {{"QT_QPA_PLATFORM", "nosuch"}}, {}, " with QT_QPA_PLATFORM=nosuch"},
    DisplayRow{"APlatformWithoutScreen",
               {{"QT_QPA_PLATFORM", "linuxfb:fb=/dev/null"}},
               {},
               " with QT_QPA_PLATFORM=linuxfb:fb=/dev/null"},
    DisplayRow{"NoneAndAStyle", {}, {"-style", "fusion"}, ": neither DISPLAY nor WAYLAND_DISPLAY is set"},
    DisplayRow{"NoSuchPlatformOnTheLine",
               {{"DISPLAY", ":9999"}},
               {"-platform", "nosuch"},
               " with -platform nosuch DISPLAY=:9999"},
};

class NoDisplay : public testing::TestWithParam<DisplayRow>
{
protected:
    QTemporaryDir m_folder;
};

TEST_P(NoDisplay, IsToldInOneSentenceThatNamesTheWayOut)
{
    const auto &[name, display, arguments, said] = GetParam();
    const auto told = run(arguments + QStringList{"--ppd", kPPD, kTicket}, display);
    EXPECT_EQ(told.end, QProcess::NormalExit);
    EXPECT_EQ(told.status, 1);
    EXPECT_EQ(told.errors,
              QByteArray("qnprint: no window can be opened") + said + "; --no-dialog prints without one\n");
    EXPECT_EQ(told.output, "");
}

TEST_P(NoDisplay, IsNothingToWhoPrintsWithoutAWindow)
{
    const auto &[name, display, arguments, said] = GetParam();
    const auto told =
        run(arguments + QStringList{"--no-dialog", "--ppd", kPPD, "--output", m_folder.path(), kTicket}, display);
    EXPECT_EQ(told.errors, "");
    EXPECT_EQ(told.output, m_folder.filePath("ticket.pdf").toUtf8() + '\n');
    EXPECT_EQ(told.status, 0);
}

TEST_P(NoDisplay, IsNothingToAScriptAndToAPicture)
{
    const auto &[name, display, arguments, said] = GetParam();
    const auto script = run(QStringList{"script"} + arguments, display, "{\"do\":\"state\"}\n");
    EXPECT_EQ(script.errors, "");
    EXPECT_EQ(script.output.count('\n'), 1) << script.output.toStdString();
    EXPECT_EQ(script.status, 0);
    const QString picture = m_folder.filePath("panel.png");
    const auto shot = run(QStringList{"shot"} + arguments + QStringList{"--ppd", kPPD, picture}, display);
    EXPECT_EQ(shot.errors, "");
    EXPECT_FALSE(QImage(picture).isNull());
}

TEST_P(NoDisplay, IsNothingToWrongUse)
{
    const auto &[name, display, arguments, said] = GetParam();
    const auto told = run(arguments + QStringList{"-n", "many", kTicket}, display);
    EXPECT_EQ(told.errors, "qnprint: -n many: not a number from 1 to 999\n");
    EXPECT_EQ(told.status, 2);
}

INSTANTIATE_TEST_SUITE_P(With, NoDisplay, testing::ValuesIn(kDisplays),
                         [](const auto &row) { return std::string(row.param.name); });

struct WrongRow
{
    QStringList arguments;
    const char *said;
};

TEST(WrongUse, IsToldWithoutADisplay)
{
    for (const auto &[arguments, said] : {
             WrongRow{{"--nosuch"}, "Unknown option 'nosuch'."},
             WrongRow{{"-z"}, "Unknown option 'z'."},
             WrongRow{{"-d"}, "Missing value after '-d'."},
             WrongRow{{"-P", "5-1"}, "-P 5-1: no pages, such as 1-3,5"},
             WrongRow{{"-o", "A4"}, "-o A4: not of the form keyword=choice"},
             WrongRow{{"--locale", "klingon"}, "--locale klingon: not a known locale"},
             WrongRow{{"--system-version", "11"}, "--system-version 11: not of the form 11.0.0"},
             WrongRow{{"--output", "."}, "--output goes with --ppd only; a queue has its own way"},
             WrongRow{{"--no-dialog"}, "--no-dialog: no document to print"},
             WrongRow{{"shot"}, "shot: needs --ppd FILE and the name of one picture"},
         }) {
        const auto told = run(arguments);
        EXPECT_EQ(told.errors, QByteArray("qnprint: ") + said + '\n') << arguments.join(' ').toStdString();
        EXPECT_EQ(told.status, 2) << arguments.join(' ').toStdString();
    }
}

/// A panel that is not there is told when the window opens, which is then closed by a signal.
Said opened(const QStringList &arguments)
{
    QProcess process;
    process.setProcessEnvironment(environmentWith({{"DISPLAY", ":9999"}}));
    process.setReadChannel(QProcess::StandardError);
    process.start(QN_PROGRAM, arguments + QStringList{"--ppd", kPPD, "--panel", "nosuch", kTicket});
    QByteArray errors;
    while (!errors.contains("nosuch: ") && process.waitForReadyRead(kMilliseconds))
        errors += process.readAllStandardError();
    process.terminate();
    EXPECT_TRUE(process.waitForFinished(kMilliseconds)) << process.errorString().toStdString();
    return {process.exitStatus(), process.exitCode(), process.readAllStandardOutput(),
            errors + process.readAllStandardError()};
}

TEST(ArgumentsOfQt, AreTakenBesideOurs)
{
    for (const QStringList &arguments : {QStringList{"-platform", "offscreen"},
                                         {"--platform", "offscreen"},
                                         {"-platform", "offscreen", "-style=fusion"},
                                         {"-style", "fusion", "-reverse", "-platform", "offscreen", "-n", "2"}}) {
        const auto told = opened(arguments);
        EXPECT_TRUE(told.errors.contains("qnprint: --panel nosuch: there is no such panel\n"))
            << told.errors.toStdString();
        EXPECT_EQ(told.status, 2);
    }
}

TEST(ArgumentsOfQt, AreNamesOfDocumentsBehindTwoDashes)
{
    const auto told = run({"--no-dialog", "--ppd", kPPD, "--", "-platform"});
    EXPECT_EQ(told.errors, "qnprint: -platform: No such file or directory\n");
}

TEST(ArgumentsOfQt, AreUnknownInAFormThatQtDoesNotTake)
{
    const auto told = run({"--platform=offscreen", kTicket});
    EXPECT_EQ(told.errors, "qnprint: Unknown option 'platform'.\n");
    EXPECT_EQ(told.status, 2);
}

TEST(PlatformsBeforeTheOneThatServes, AreStillTold)
{
    const auto told = opened({"-platform", "nosuch;offscreen"});
    EXPECT_TRUE(told.errors.contains("Could not find the Qt platform plugin \"nosuch\"")) << told.errors.toStdString();
    EXPECT_EQ(told.status, 2);
}

} // namespace
