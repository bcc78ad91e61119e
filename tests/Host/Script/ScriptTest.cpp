// `qnprint script` as driver makers use it: shapes of replies, refusals, the real program.
#include "Dialog.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>

using namespace support;

namespace {

class ScriptLines : public testing::Test
{
protected:
    QJsonObject say(const QByteArray &line)
    {
        const auto reply = m_script.reply(line);
        return reply ? QJsonDocument::fromJson(*reply).object() : QJsonObject{{"silent", true}};
    }
    host::Script m_script;
};

struct BadLine
{
    QByteArray line;
    const char *error;
    bool known; // an object with a known `do`
};

void PrintTo(const BadLine &row, std::ostream *out) { *out << row.line.left(40).toStdString(); }

class BadLines : public ScriptLines, public testing::WithParamInterface<BadLine>
{};

TEST_P(BadLines, AreAnsweredInOneSentence)
{
    const QJsonObject reply = say(GetParam().line);
    EXPECT_EQ(reply.keys(), QStringList({"error", "ok"}));
    EXPECT_FALSE(reply["ok"].toBool(true));
    EXPECT_TRUE(reply["error"].toString().contains(GetParam().error)) << reply["error"].toString().toStdString();
    EXPECT_FALSE(reply["error"].toString().contains('\n'));
    EXPECT_EQ(m_script.allLinesKnown(), GetParam().known);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadLines,
    testing::Values(
        BadLine{"{", "not JSON", false}, BadLine{"nonsense", "not JSON", false},
        BadLine{"[1,2]", "not a JSON object", false}, BadLine{"\"text\"", "not JSON", false},
        BadLine{"{}", "member \"do\" is missing", false}, BadLine{R"({"do":"fly"})", "unknown request \"fly\"", false},
        BadLine{R"({"do":7})", "unknown request", false},
        BadLine{R"({"do":"open"})", "member \"ppd\" is missing", true},
        BadLine{R"({"do":"open","ppd":1})", "member \"ppd\" is not a string", true},
        BadLine{R"({"do":"open","ppd":"x","prepare":"yes"})", "member \"prepare\" is not true or false", true},
        BadLine{R"({"do":"open","ppd":"x","paper":5})", "member \"paper\" is not a string", true},
        BadLine{R"({"do":"open","ppd":"x","width":5})", "member \"height\" is missing", true},
        BadLine{R"({"do":"open","ppd":"x","defaults":{"A":1}})", "member \"defaults\" is not an object of strings",
                true},
        BadLine{R"({"do":"open","ppd":"x","defaults":[]})", "member \"defaults\" is not an object of strings", true},
        BadLine{R"({"do":"open","ppd":"x","system":"eleven"})", "\"eleven\" is not a system version", true},
        BadLine{R"({"do":"open","ppd":"x","system":"11.0"})", "is not a system version", true},
        BadLine{R"({"do":"open","ppd":"x","locale":"xx_nowhere_zz"})", "is not a known locale", true},
        BadLine{R"({"do":"open","ppd":"/no/such.ppd"})", "/no/such.ppd: No such file", true},
        BadLine{R"({"do":"show","panel":"basic"})", "no dialog is open", true},
        BadLine{R"({"do":"state"})", "no dialog is open", true},
        BadLine{R"({"do":"close"})", "no dialog is open", true}, BadLine{R"({"do":"hide"})", "no dialog is open", true},
        BadLine{QByteArray(2000, '['), "not JSON", false},
        BadLine{QByteArray("{\"do\":\"open\",\"ppd\":\"a\0b\"}", 25), "No such file", true},
        BadLine{"{\"do\":\"\xff\"}", "", false}));

TEST_F(ScriptLines, SkipsBlankLinesAndComments)
{
    for (const char *line : {"", "   ", "\t", "\r", "# {\"do\":\"state\"}", "#"})
        EXPECT_TRUE(say(line)["silent"].toBool()) << line;
    EXPECT_TRUE(m_script.allLinesKnown());
    EXPECT_FALSE(say(" # not at the beginning").contains("silent"));
}

struct Refusal
{
    QByteArray request; // on an open dialog with the basic panel on display
    QString error;
};

void PrintTo(const Refusal &row, std::ostream *out) { *out << row.request.toStdString(); }

class Refusals : public DialogTest, public testing::WithParamInterface<Refusal>
{};

TEST_P(Refusals, AreWhatAPersonCouldNotDo)
{
    open(PPDText().allOptions(), "PerfA4", {{"defaults", QJsonObject{{"QnFormFeedMode", "FF2"}}}});
    show("basic");
    menu("mMediaPopUp");
    const QJsonObject before = state("basic");
    request(QJsonDocument::fromJson(GetParam().request).object());
    EXPECT_FALSE(reply()["ok"].toBool(true));
    EXPECT_EQ(error(), GetParam().error);
    EXPECT_EQ(reply().keys(), QStringList({"error", "ok"}));
    EXPECT_EQ(state("basic"), before);
}

INSTANTIATE_TEST_SUITE_P(
    Requests, Refusals,
    testing::Values(Refusal{R"({"do":"show","panel":"third"})", "the dialog has no panel \"third\""},
                    Refusal{R"({"do":"menu","panel":"basic"})", "member \"control\" is missing"},
                    Refusal{R"({"do":"menu","panel":"basic","control":"mNothing"})",
                            "the panel has no control \"mNothing\""},
                    Refusal{R"({"do":"menu","panel":"advanced","control":"mSpeedPopUp"})",
                            "mSpeedPopUp: its panel is not on display"},
                    Refusal{R"({"do":"menu","panel":"basic","control":"mPaperFeedPopUp"})",
                            "mPaperFeedPopUp: the control is hidden"},
                    Refusal{R"({"do":"row","panel":"basic","control":"mHalftoneRadio","row":0})",
                            "mHalftoneRadio: the control is on a page that is not shown"},
                    Refusal{R"({"do":"click","panel":"basic","control":"mHalftoneDummyView"})",
                            "mHalftoneDummyView: the control has been removed"},
                    Refusal{R"({"do":"click","panel":"basic","control":"mMediaPopUp"})",
                            "mMediaPopUp: not a control of the kind that this request is for"},
                    Refusal{R"({"do":"pick","panel":"basic","control":"mMediaPopUp","index":2})",
                            "mMediaPopUp: the menu has no item 2"},
                    Refusal{R"({"do":"pick","panel":"basic","control":"mMediaPopUp","index":-1})",
                            "mMediaPopUp: the menu has no item -1"},
                    Refusal{R"({"do":"pick","panel":"basic","control":"mMediaPopUp","index":0.5})",
                            "member \"index\" is not a whole number"},
                    Refusal{R"({"do":"pick","panel":"basic","control":"mMediaPopUp","index":1e300})",
                            "member \"index\" is not a whole number"},
                    Refusal{R"({"do":"pick","panel":"basic","control":"mMediaPopUp"})", "member \"index\" is missing"},
                    Refusal{R"({"do":"pick","panel":"basic","control":"mFormFeedModePopUp","index":0})",
                            "mFormFeedModePopUp: item 0 is not available"},
                    Refusal{R"({"do":"type","panel":"basic","control":"mPaperFeedTxt","text":"5"})",
                            "mPaperFeedTxt: the field is not editable"},
                    Refusal{R"({"do":"enter","panel":"basic","control":"mPaperFeedTxt"})",
                            "mPaperFeedTxt: the field is not editable"},
                    Refusal{R"({"do":"step","panel":"basic","control":"mPaperFeedStepper","by":1})",
                            "mPaperFeedStepper: the control is disabled"},
                    Refusal{R"({"do":"step","panel":"basic","control":"mPaperFeedStepper","by":2})",
                            "member \"by\" is neither 1 nor -1"},
                    Refusal{R"({"do":"paper"})", "member \"name\" is missing"},
                    Refusal{R"({"do":"paper","name":"A4","width":100})", "member \"height\" is missing"},
                    Refusal{R"({"do":"mark","key":"QnMedia"})", "member \"choice\" is missing"},
                    Refusal{R"({"do":"print","panel":"third"})", "the dialog has no panel \"third\""}));

TEST_F(Refusals, OfABoxThatIsDisabled)
{
    open(PPDText().allOptions(), "A4");
    show("advanced");
    request({{"do", "click"}, {"panel", "advanced"}, {"control", "mPerforatedChkBx"}});
    EXPECT_EQ(error(), "mPerforatedChkBx: the control is disabled");
}

class ReplyShapes : public DialogTest
{};

TEST_F(ReplyShapes, CarryMarksAndAlertsWherePanelsMayRun)
{
    open(PPDText().allOptions());
    EXPECT_EQ(reply().keys(), QStringList({"accepted", "alerts", "marks", "ok", "panels"}));
    show("basic");
    EXPECT_EQ(reply().keys(), QStringList({"alerts", "marks", "ok"}));
    menu("mMediaPopUp");
    EXPECT_EQ(reply().keys(), QStringList({"alerts", "items", "marks", "ok"}));
    request({{"do", "name"}, {"panel", "basic"}});
    EXPECT_EQ(reply().keys(), QStringList({"alerts", "kind", "marks", "ok", "result"}));
    request({{"do", "job"}});
    EXPECT_EQ(reply().keys(), QStringList({"ok", "options"}));
    request({{"do", "state"}});
    EXPECT_EQ(reply().keys(), QStringList({"defaults", "display", "marked", "ok", "panels"}));
    EXPECT_EQ(reply()["panels"].toObject().keys(), QStringList({"advanced", "basic"}));
}

struct Members
{
    const char *panel;
    const char *control;
    QString kind;
    QStringList more; // beside the members of every control
};

void PrintTo(const Members &row, std::ostream *out) { *out << row.control; }

class ControlMembers : public DialogTest, public testing::WithParamInterface<Members>
{};

TEST_P(ControlMembers, AreThoseOfTheKind)
{
    open(PPDText().allOptions());
    use(GetParam().panel);
    QStringList expected = QStringList{"attached", "enabled", "hidden", "kind", "origin"} + GetParam().more;
    expected.sort();
    const QJsonObject shown = control(GetParam().control);
    EXPECT_EQ(shown["kind"].toString(), GetParam().kind);
    EXPECT_EQ(shown.keys(), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ControlMembers,
    testing::Values(Members{"basic", "mMediaStr", "label", {"text", "color"}},
                    Members{"basic", "mPaperFeedTxt", "field", {"text", "color", "editable", "expansionToolTips"}},
                    Members{"basic", "mMediaPopUp", "popup", {"items", "selected"}},
                    Members{"advanced", "mReversalChkBx", "check", {"title", "state"}},
                    Members{"advanced", "mHalftoneRadio", "radio", {"rows", "selected"}},
                    Members{"basic", "mPaperFeedStepper", "stepper", {"value", "minimum", "maximum", "increment"}},
                    Members{"basic", "tabView", "tabs", {"tabs", "current"}},
                    Members{"advanced", "mHalftoneView", "halftone", {"picture"}},
                    Members{"basic", "mSeparateLineOP", "view", {}},
                    Members{"basic", "mHalftoneDummyView", "view", {}}));

TEST_F(ReplyShapes, DescribeTheStepperOfTheInterfaceFile)
{
    open(PPDText().allOptions());
    const QJsonObject stepper = control("mPaperFeedStepper");
    EXPECT_EQ(stepper["minimum"].toDouble(), 0);
    EXPECT_EQ(stepper["maximum"].toDouble(), 99);
    EXPECT_EQ(stepper["increment"].toDouble(), 1);
}

/// The program itself, over its standard streams.
class Program : public testing::Test
{
protected:
    int run(const QByteArray &input)
    {
        QProcess process;
        process.setWorkingDirectory(QN_SOURCE_DIR);
        process.start(QN_PROGRAM, {"script"});
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(20000));
        m_output = process.readAllStandardOutput();
        return process.exitCode();
    }
    QByteArray m_output;
};

TEST_F(Program, EndsWith0AtTheEndOfInput)
{
    EXPECT_EQ(run(""), 0);
    EXPECT_EQ(run("# nothing\n\n{\"do\":\"state\"}\n"), 0); // refused, but known
    EXPECT_EQ(m_output, "{\"error\":\"no dialog is open\",\"ok\":false}\n");
}

TEST_F(Program, EndsWith2WhenALineWasNoKnownRequestAndGoesOnAllTheSame)
{
    EXPECT_EQ(run("nonsense\n{\"do\":\"open\",\"ppd\":\"examples/ppd/full.ppd\"}\n"), 2);
    EXPECT_EQ(m_output.count('\n'), 2);
    EXPECT_TRUE(m_output.contains("\"accepted\":true"));
}

TEST_F(Program, RepliesAtOnce)
{
    QProcess process;
    process.start(QN_PROGRAM, {"script"});
    process.write("{\"do\":\"state\"}\n");
    ASSERT_TRUE(process.waitForReadyRead(20000)); // before its input ends
    EXPECT_TRUE(process.readLine().contains("no dialog is open"));
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(20000));
}

} // namespace
