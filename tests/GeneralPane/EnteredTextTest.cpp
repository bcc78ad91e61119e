// Texts, passcodes and passwords that a PPD takes beside its choices.
#include "Dialog.h"

#include "Toolkit/Controls.h"

#include <QApplication>

using namespace support;

namespace {

PPDText withTexts(const QByteArray &more = {})
{
    PPDText ppd;
    ppd.line("*OpenGroup: Job/Job")
        .option("Pin", "PIN Printing", "None", {{"None", "Off"}})
        .line("*CustomPin True: \"x\"\n*ParamCustomPin Code: 1 passcode 4 8")
        .option("Key", "Key", "None", {{"None", "Off"}})
        .line("*CustomKey True: \"x\"\n*ParamCustomKey Word: 1 password 0 16")
        .option("Mark", "Watermark", "None", {{"None", "Off"}, {"Draft", "Draft"}})
        .line("*CustomMark True: \"x\"\n*ParamCustomMark Words: 1 string 2 20");
    if (!more.isEmpty())
        ppd.line(more);
    ppd.line("*CloseGroup: Job");
    return ppd;
}

class EnteredText : public DialogTest
{
protected:
    void open(const PPDText &ppd = withTexts(), QJsonObject more = {})
    {
        more["bundle"] = QN_GENERAL_BUNDLE_DIR;
        Dialog::open(ppd, "A4", more);
        show("Job");
    }
    static toolkit::FieldControl *field(const QString &name)
    {
        for (QWidget *each : QApplication::allWidgets())
            if (auto *const found = qobject_cast<toolkit::FieldControl *>(each); found && found->objectName() == name)
                return found;
        return nullptr;
    }
    bool isFieldThere(const QString &option)
    {
        request({{"do", "enter"}, {"panel", "Job"}, {"control", option + ".amount"}});
        return reply()["ok"].toBool();
    }
};

TEST_F(EnteredText, HasAFieldAndAHintWhileTheCustomChoiceIsChosen)
{
    open(withTexts(), {{"language", "en"}});
    EXPECT_EQ(titles("Pin").size(), 2);
    EXPECT_FALSE(isFieldThere("Pin"));
    pick("Pin", 1);
    EXPECT_TRUE(isFieldThere("Pin"));
    EXPECT_EQ(text("Pin.amount"), "");
    EXPECT_EQ(text("Pin.range"), "4 to 8 digits");
    EXPECT_EQ(text("Key.range"), "1 to 16 characters"); // without any it is none
    EXPECT_EQ(text("Mark.range"), "2 to 20 characters");
    pick("Pin", 0);
    EXPECT_FALSE(isFieldThere("Pin"));
}

TEST_F(EnteredText, IsMarkedAsItIsTypedWhereItIsAllowed)
{
    open();
    pick("Mark", 2);
    EXPECT_EQ(marked("Mark"), "Custom");
    type("a", "Mark.amount");
    EXPECT_TRUE(marks().empty());
    type("a b", "Mark.amount");
    EXPECT_EQ(marked("Mark"), "Custom.a b");
    type("a b, \"c\" \\ 日本ü", "Mark.amount");
    EXPECT_EQ(job()["Mark"], "Custom.a b, \"c\" \\ 日本ü");
    EXPECT_TRUE(print());
    type(QString(21, 'x'), "Mark.amount");
    EXPECT_TRUE(marks().empty());
}

TEST_F(EnteredText, StopsPrintingWhereItIsNotAllowed)
{
    open(withTexts(), {{"language", "en"}});
    pick("Pin", 1);
    for (const char *wrong : {"", "123", "123456789", "12a4", "12 34", "１２３４"}) {
        type(wrong, "Pin.amount");
        EXPECT_FALSE(print()) << wrong;
        ASSERT_EQ(alerts(), 1);
        EXPECT_EQ(alert()["message"], "The code is not supported.");
        EXPECT_EQ(alert()["informative"], "PIN Printing: 4 to 8 digits");
    }
    type("1234", "Pin.amount");
    EXPECT_TRUE(print());
    pick("Mark", 2);
    for (const QString &wrong : {QString("a"), QString("a\tb"), QString("ab\nc"), QString("ab") + QChar(0xd800)}) {
        type(wrong, "Mark.amount");
        EXPECT_FALSE(print()) << wrong.toStdString();
        EXPECT_EQ(alert()["message"], "The text is not supported.");
        EXPECT_EQ(alert()["informative"], "Watermark: 2 to 20 characters");
    }
}

TEST_F(EnteredText, MayBeTheKeywordOfAChoiceOrANumber)
{
    open();
    pick("Mark", 2);
    for (const QString text : {"None", "Draft", "Custom", "Custom.x", "0012", "1.50", "{a=b}"}) {
        type(text, "Mark.amount");
        EXPECT_EQ(job()["Mark"], "Custom." + text);
        EXPECT_EQ(marked("Mark"), "Custom." + text); // digit for digit
        EXPECT_EQ(this->text("Mark.amount"), text);
    }
    pick("Pin", 1);
    type("0042", "Pin.amount");
    EXPECT_EQ(job()["Pin"], "Custom.0042");
}

TEST_F(EnteredText, HidesWhatIsSecret)
{
    open(withTexts(), {{"language", "en"}});
    for (const char *option : {"Pin", "Key"}) {
        pick(option, 1);
        type("12345678", option + QString(".amount"));
        const auto *const hidden = field(option + QString(".amount"));
        ASSERT_TRUE(hidden);
        EXPECT_EQ(hidden->text(), "12345678");
        EXPECT_EQ(hidden->displayText(), QString(8, hidden->displayText().front()));
        EXPECT_FALSE(hidden->displayText().contains('1'));
        EXPECT_FALSE(hidden->allowsExpansionToolTips());
    }
    pick("Mark", 2);
    type("shown", "Mark.amount");
    EXPECT_EQ(field("Mark.amount")->displayText(), "shown");
    const QJsonObject told = summary("Job");
    EXPECT_EQ(told["PIN Printing"], "••••••");
    EXPECT_EQ(told["Key"], "••••••"); // of whatever length
    EXPECT_EQ(told["Watermark"], "shown");
}

TEST_F(EnteredText, IsThereAgainWhenItsChoiceIs)
{
    open();
    pick("Mark", 2);
    type("mine", "Mark.amount");
    pick("Mark", 1);
    EXPECT_EQ(job()["Mark"], "Draft");
    pick("Mark", 2);
    EXPECT_EQ(job()["Mark"], "Custom.mine");
    EXPECT_EQ(text("Mark.amount"), "mine");
}

TEST_F(EnteredText, IsShownAsItIsMarkedFromElsewhere)
{
    open(withTexts(), {{"defaults", QJsonObject{{"Mark", "Custom.a b"}, {"Pin", "Custom.12"}}}});
    EXPECT_TRUE(marks().empty());
    EXPECT_EQ(text("Mark.amount"), "a b");
    EXPECT_EQ(marked("Pin"), "None"); // it is too short
    EXPECT_TRUE(mark("Mark", "Custom.other"));
    EXPECT_EQ(text("Mark.amount"), "a b"); // the choice is the same to a panel
    show("Job");
    EXPECT_FALSE(mark("Mark", "o"));
    EXPECT_FALSE(mark("Mark", "other")); // a text without the prefix is the keyword of a choice
    EXPECT_FALSE(mark("Pin", "Custom.12a4"));
}

TEST_F(EnteredText, KeepsToLimitsThatAJobCanCarry)
{
    open(withTexts("*OpenUI *Odd/Odd: PickOne\n*DefaultOdd: A\n*Odd A/A: \"x\"\n*CloseUI: *Odd\n"
                   "*CustomOdd True: \"x\"\n*ParamCustomOdd T: 1 string -5 2000000000\n"
                   "*OpenUI *Fix/Fix: PickOne\n*DefaultFix: A\n*Fix A/A: \"x\"\n*CloseUI: *Fix\n"
                   "*CustomFix True: \"x\"\n*ParamCustomFix T: 1 password 6 6\n"
                   "*OpenUI *Not/Not: PickOne\n*DefaultNot: A\n*Not A/A: \"x\"\n*Not B/B: \"x\"\n*CloseUI: *Not\n"
                   "*CustomNot True: \"x\"\n*ParamCustomNot T: 1 password 500 900\n"
                   "*OpenUI *No/No: PickOne\n*DefaultNo: A\n*No A/A: \"x\"\n*No B/B: \"x\"\n*CloseUI: *No\n"
                   "*CustomNo True: \"x\"\n*ParamCustomNo T: 1 passcode -9 -3"),
         {{"language", "en"}});
    EXPECT_EQ(text("Odd.range"), "up to 248 characters");
    EXPECT_EQ(text("Fix.range"), "6 characters");
    EXPECT_EQ(titles("Not").size(), 2);
    EXPECT_EQ(titles("No").size(), 2);
    pick("Odd", 1);
    EXPECT_EQ(job()["Odd"], "Custom."); // no text is one here
    type(QString(248, 'x'), "Odd.amount");
    EXPECT_TRUE(print());
    type(QString(125, QChar(0xe4)), "Odd.amount"); // 250 bytes
    EXPECT_FALSE(print());
}

} // namespace
