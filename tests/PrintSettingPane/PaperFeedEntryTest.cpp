// Typing, stepping and checking the paper feed amount.
#include "Dialog.h"
#include "Results.h"

#include "Foundation/Locale.h"
#include "Session/DialogSession.h"
#include "Toolkit/Alert.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace support;

namespace {

const QJsonObject kInches{{"locale", "en_US"}};

class Amount : public DialogTest
{
protected:
    void openIn(const QString &unit, const PPDText &ppd = PPDText().allOptions())
    {
        open(ppd, "A4", unit == "mm" ? QJsonObject() : kInches);
        show("basic");
    }
    QString amount() const { return text("mPaperFeedTxt"); }
    double stepper() const { return control("mPaperFeedStepper")["value"].toDouble(); }
};

TEST_F(Amount, StartsAt26MillimetresOr1Inch)
{
    openIn("mm");
    EXPECT_EQ(amount() + text("mMetricSystemStr"), "26mm");
    EXPECT_EQ(stepper(), 26);
    EXPECT_EQ(control("mPaperFeedStepper")["increment"].toDouble(), 1);
    openIn("inch");
    EXPECT_EQ(amount() + text("mMetricSystemStr"), "1inch");
    EXPECT_EQ(stepper(), 1);
    EXPECT_EQ(control("mPaperFeedStepper")["increment"].toDouble(), 0.1);
}

// What is typed, what remains of it, and whether it alerts; the PPD's maximum is 51 mm, 2.0 inches.
struct Typed
{
    const char *unit;
    QString typed;
    QString remains;
    double stepper;
    int alerts;
};

void PrintTo(const Typed &row, std::ostream *out) { *out << row.unit << ' ' << row.typed.left(20).toStdString(); }

class Typing : public Amount, public testing::WithParamInterface<Typed>
{};

TEST_P(Typing, IsFilteredCutAndChecked)
{
    openIn(GetParam().unit);
    type(GetParam().typed);
    EXPECT_EQ(alerts(), GetParam().alerts);
    EXPECT_EQ(amount(), GetParam().remains);
    EXPECT_DOUBLE_EQ(stepper(), GetParam().stepper);
    EXPECT_TRUE(marks().empty()); // nothing of typing touches the PPD
}

INSTANTIATE_TEST_SUITE_P(
    Millimetres, Typing,
    testing::Values(Typed{"mm", "30", "30", 30, 0}, Typed{"mm", "5a2.7", "527", 99, 1}, // the stepper ends at 99
                    Typed{"mm", ".5", "5", 5, 0}, Typed{"mm", ".", "", 0, 0}, Typed{"mm", ".abc", "", 0, 0},
                    Typed{"mm", "", "", 0, 0}, Typed{"mm", "abc", "abc", 0, 0}, Typed{"mm", "51", "51", 51, 0},
                    Typed{"mm", "52", "52", 52, 1}, Typed{"mm", "099", "099", 99, 0}, // a leading zero never alerts
                    Typed{"mm", "0999", "099", 99, 0}, Typed{"mm", "-5", "5", 5, 0}, Typed{"mm", "1 2", "12", 12, 0},
                    Typed{"mm", "1,5", "15", 15, 0},
                    Typed{"mm", QString::fromUtf8("٣٤"), QString::fromUtf8("٣٤"), 0, 0},
                    Typed{"mm", QString(10000, '1'), "111", 99, 1},
                    Typed{"mm", QString(10000, 'x'), QString(10000, 'x'), 0, 0}));

INSTANTIATE_TEST_SUITE_P(Inches, Typing,
                         testing::Values(Typed{"inch", "1.2.3", "1.2", 1.2, 0}, Typed{"inch", "0.9", "0.9", 0.9, 0},
                                         Typed{"inch", "2.0", "2.0", 2, 0}, Typed{"inch", "2.1", "2.1", 2.1, 1},
                                         Typed{"inch", ".5", ".5", 0.5, 0}, Typed{"inch", ".", ".", 0, 0},
                                         Typed{"inch", "1..2", "1.2", 1.2, 0}, Typed{"inch", "09", "09", 9, 0},
                                         Typed{"inch", ".99", ".99", 0.99, 0}, Typed{"inch", "9", "9", 9, 1},
                                         Typed{"inch", "1,5", "15", 15, 1}, Typed{"inch", "", "", 0, 0},
                                         Typed{"inch", "abc", "abc", 0, 0},
                                         Typed{"inch", QString(10000, '9'), "999", 99, 1}));

// One click after a text was typed: which rule answers.
struct Click
{
    const char *name;
    const char *unit;
    const char *typed;
    int by;
    const char *becomes;
    double stepper;
    int alerts;
};

void PrintTo(const Click &row, std::ostream *out) { *out << row.name; }

class Stepping : public Amount, public testing::WithParamInterface<Click>
{};

TEST_P(Stepping, FollowsItsRule)
{
    openIn(GetParam().unit);
    type(GetParam().typed);
    step(GetParam().by);
    EXPECT_EQ(alerts(), GetParam().alerts);
    EXPECT_EQ(amount(), GetParam().becomes);
    EXPECT_DOUBLE_EQ(stepper(), GetParam().stepper);
    EXPECT_TRUE(marks().empty());
}

std::string clickName(const testing::TestParamInfo<Click> &row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(Millimetres, Stepping,
                         testing::Values(Click{"TextThatEndsWithAFullStopAlerts", "mm", "a.", 1, "a.", 1, 1},
                                         Click{"LeadingZeroFrom1Alerts", "mm", "05", 1, "05", 6, 1},
                                         Click{"MoreThan51Alerts", "mm", "60", -1, "60", 59, 1},
                                         Click{"TwoZerosAlert", "mm", "00", 1, "00", 1, 1},
                                         Click{"ThreeZerosAlert", "mm", "000", 1, "000", 1, 1},
                                         Click{"BeyondTheMaximumStaysThere", "mm", "51", 1, "51", 51, 0},
                                         Click{"EmptyAt0StaysEmpty", "mm", "", -1, "", 0, 0},
                                         Click{"ZeroAt0StaysZero", "mm", "0", -1, "0", 0, 0},
                                         Click{"NoNumberAt0StaysAsItIs", "mm", "a", -1, "a", 0, 0},
                                         Click{"From1DownIs0", "mm", "1", -1, "0", 0, 0},
                                         Click{"FromEmptyUpIs1", "mm", "", 1, "1", 1, 0},
                                         Click{"UpAddsOne", "mm", "10", 1, "11", 11, 0},
                                         Click{"DownTakesOne", "mm", "10", -1, "9", 9, 0},
                                         Click{"FromZeroUpIs1", "mm", "0", 1, "1", 1, 0}),
                         clickName);

INSTANTIATE_TEST_SUITE_P(Inches, Stepping,
                         testing::Values(Click{"TextThatEndsWithAFullStopAlerts", "inch", "1.", 1, "1.", 1.1, 1},
                                         Click{"TextThatBeginsWithAFullStopAlerts", "inch", ".5", 1, ".5", 0.6, 1},
                                         Click{"LeadingZeroFrom1Alerts", "inch", "01", 1, "01", 1.1, 1},
                                         Click{"MoreThan2Alerts", "inch", "2.1", -1, "2.1", 2.0, 1},
                                         Click{"TwoZerosAlert", "inch", "00", 1, "00", 0.1, 1},
                                         Click{"ThreeZerosAlert", "inch", "000", 1, "000", 0.1, 1},
                                         Click{"BeyondTheMaximumIsTwo", "inch", "2", 1, "2.0", 2, 0},
                                         Click{"EmptyDownStaysEmpty", "inch", "", -1, "", 0, 0},
                                         Click{"EmptyUpIsOneTenth", "inch", "", 1, "0.1", 0.1, 0},
                                         Click{"DownToOneTenthIsExact", "inch", "0.2", -1, "0.1", 0.1, 0},
                                         Click{"ZeroAt0StaysZero", "inch", "0", -1, "0", 0, 0},
                                         Click{"From1UpIs1Point1", "inch", "1", 1, "1.1", 1.1, 0},
                                         Click{"FromOneTenthDownIsZeroPointZero", "inch", "0.1", -1, "0.0", 0, 0},
                                         Click{"ManyTenthsStayTenths", "inch", "0.7", -1, "0.6", 0.6, 0}),
                         clickName);

TEST_F(Amount, StepsFromOneTenthToTwoInTenths)
{
    openIn("inch");
    type("0.1");
    for (int tenths = 2; tenths <= 20; ++tenths) {
        step(1);
        EXPECT_EQ(amount(), QString::number(tenths / 10.0, 'f', 1));
    }
    step(1);
    EXPECT_EQ(amount(), "2.0");
}

TEST_F(Amount, LeavesTheStepperMovedByAClickThatAlerts)
{
    openIn("mm");
    type("05");
    step(-1);
    step(-1);
    EXPECT_EQ(amount(), "05");
    EXPECT_EQ(stepper(), 3);
    type("7");
    EXPECT_EQ(stepper(), 7);
}

TEST_F(Amount, GoesToTheFixedTwoInchesEvenWhenThePPDAllowsLess)
{
    openIn("inch", PPDText()
                       .standardOption("QnPaperFeed")
                       .line("*CustomQnPaperFeed True: \"x\"")
                       .line("*ParamCustomQnPaperFeed QnPaperFeed: 1 real 0.03 2.01")
                       .line("*ParamCustomQnPaperFeed mm: 2 real 1 25.5"));
    type("1");
    step(1);
    EXPECT_EQ(amount(), "2.0");
}

// The limit in inches is the PPD's in millimetres over 25.5, in single precision.
struct LimitInInches
{
    const char *millimetres;
    const char *typed;
    int alerts;
};

void PrintTo(const LimitInInches &row, std::ostream *out) { *out << row.millimetres << " mm, " << row.typed; }

class LimitsInInches : public Amount, public testing::WithParamInterface<LimitInInches>
{};

TEST_P(LimitsInInches, AreThePPDsOver25Point5InSinglePrecision)
{
    openIn("inch", PPDText()
                       .standardOption("QnPaperFeed")
                       .line("*CustomQnPaperFeed True: \"x\"")
                       .line("*ParamCustomQnPaperFeed QnPaperFeed: 1 real 0.03 9")
                       .line(QByteArray("*ParamCustomQnPaperFeed mm: 2 real 1 ") + GetParam().millimetres));
    type(GetParam().typed);
    EXPECT_EQ(alerts(), GetParam().alerts);
}

INSTANTIATE_TEST_SUITE_P(Of, LimitsInInches,
                         testing::Values(LimitInInches{"38.2", "1.5", 1}, // over 25.4 it would do
                                         LimitInInches{"38.2", "1.4", 0},
                                         LimitInInches{"56.1", "2.2", 0},   // a little more than 2.2
                                         LimitInInches{"71.4", "2.8", 1})); // a little less than 2.8

struct NoLimits
{
    const char *name;
    QByteArray custom; // the custom option's lines
};

class WithoutLimits : public Amount, public testing::WithParamInterface<NoLimits>
{
protected:
    PPDText ppd() const { return PPDText().standardOption("QnPaperFeed").line(GetParam().custom); }
};

TEST_P(WithoutLimits, EveryTypedAmountAlertsAndAClickGives0MillimetresOr2Inches)
{
    openIn("mm", ppd());
    type("5");
    EXPECT_EQ(alerts(), 1);
    step(1);
    EXPECT_EQ(amount(), "0");
    openIn("inch", ppd());
    type("1");
    EXPECT_EQ(alerts(), 1);
    step(1);
    EXPECT_EQ(amount(), "2.0");
}

INSTANTIATE_TEST_SUITE_P(
    PPDs, WithoutLimits,
    testing::Values(NoLimits{"NoCustomOption", "*% none"},
                    NoLimits{"ParameterIsNotReal",
                             "*CustomQnPaperFeed True: \"x\"\n*ParamCustomQnPaperFeed mm: 1 int 1 51"},
                    NoLimits{"OtherParameterOnly",
                             "*CustomQnPaperFeed True: \"x\"\n*ParamCustomQnPaperFeed QnPaperFeed: 1 real 0 2"},
                    NoLimits{"LimitsOf0", "*CustomQnPaperFeed True: \"x\"\n*ParamCustomQnPaperFeed mm: 1 real 0 0"}),
    [](const auto &row) { return std::string(row.param.name); });

// The check before printing goes by fixed limits, whatever the PPD allows.
struct Printed
{
    const char *unit;
    const char *typed;
    bool accepted;
};

void PrintTo(const Printed &row, std::ostream *out) { *out << row.unit << " \"" << row.typed << '"'; }

class Printing : public Amount, public testing::WithParamInterface<Printed>
{};

TEST_P(Printing, TakesOnlyAnAcceptableAmount)
{
    openIn(GetParam().unit);
    type(GetParam().typed);
    EXPECT_EQ(print(), GetParam().accepted);
    EXPECT_EQ(alerts(), GetParam().accepted ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(Millimetres, Printing,
                         testing::Values(Printed{"mm", "1", true}, Printed{"mm", "26", true}, Printed{"mm", "51", true},
                                         Printed{"mm", "0", false}, Printed{"mm", "52", false},
                                         Printed{"mm", "05", false}, Printed{"mm", "", false},
                                         Printed{"mm", "a", false}, Printed{"mm", "a.", false},
                                         Printed{"mm", "051", false}));
INSTANTIATE_TEST_SUITE_P(Inches, Printing,
                         testing::Values(Printed{"inch", "0.1", true}, Printed{"inch", "0.5", true},
                                         Printed{"inch", "0.9", true}, Printed{"inch", "1", true},
                                         Printed{"inch", "2", true}, Printed{"inch", "2.0", true},
                                         Printed{"inch", "2.1", false}, Printed{"inch", "0", false},
                                         Printed{"inch", "0.0", false}, Printed{"inch", "01", false},
                                         Printed{"inch", "01.5", false}, Printed{"inch", "1.", false},
                                         Printed{"inch", ".5", false}, Printed{"inch", "", false}));

TEST_F(Amount, IsNotCheckedInAnotherFormFeedMode)
{
    openIn("mm");
    type("99");
    pick("mFormFeedModePopUp", 2);
    EXPECT_TRUE(print());
    EXPECT_EQ(alerts(), 0);
}

TEST_F(Amount, PassesBeforeThePanelWasShown)
{
    open(PPDText().allOptions(), "A4", {{"prepare", false}});
    EXPECT_TRUE(print());
    EXPECT_EQ(marksOf("QnPaperFeed"), QStringList("0.000000"));
    EXPECT_EQ(marksOf("QnPaperSizeType"), QStringList({"QnCutSize", "QnCutSize"})); // each panel marks it
}

TEST_F(Amount, AlertsInTheUnitShown)
{
    openIn("mm");
    type("52");
    const QJsonObject expected{{"message", "Unsupported Size Title"},
                               {"informative", "Unsupported Size MSG1"},
                               {"buttons", QJsonArray{"OK"}},
                               {"style", "warning"}};
    EXPECT_EQ(alert(), expected);
    openIn("inch");
    type("3");
    EXPECT_EQ(alert()["informative"].toString(), "Unsupported Size MSG2");
}

TEST_F(Amount, StaysAsItIsWhenReturnIsPressed)
{
    openIn("mm");
    type("52");
    enter();
    EXPECT_EQ(amount(), "52");
    EXPECT_EQ(alerts(), 0);
    EXPECT_TRUE(marks().empty());
}

TEST_F(Amount, EndsAtThePPDsOwnMaximumAndNotAtTheDigitsThatShow)
{
    openIn("mm", PPDText()
                     .standardOption("QnPaperFeed")
                     .line("*CustomQnPaperFeed True: \"x\"")
                     .line("*ParamCustomQnPaperFeed QnPaperFeed: 1 real 0.03 2.01")
                     .line("*ParamCustomQnPaperFeed mm: 2 real 1 50.3"));
    type("50");
    step(1);
    EXPECT_EQ(amount(), "50.2999992370605");
    EXPECT_EQ(stepper(), static_cast<double>(50.3F)); // to the last bit
}

/// The same entry under a person's hands: the panel's real view, mouse and assistive technology.
class AmountInHand : public testing::Test
{
protected:
    void SetUp() override
    {
        host::DialogSession::Parameters parameters;
        parameters.ppdPath = PPDText().allOptions().file();
        parameters.paperName = "A4";
        m_session = value(host::DialogSession::open(parameters));
        m_session->start(host::DialogSession::Prepare::everyPanel);
        PDEPanel &panel = *m_session->panel("basic");
        ASSERT_TRUE(m_session->show(panel));
        panel.panelView()->show();
        m_field = panel.panelView()->findChild<QLineEdit *>("mPaperFeedTxt");
        m_stepper = panel.panelView()->findChild<QWidget *>("mPaperFeedStepper");
        ASSERT_TRUE(m_field && m_stepper);
    }
    void set(const QString &text) { QAccessible::queryAccessibleInterface(m_field)->setText(QAccessible::Value, text); }

    QTemporaryDir m_directory;
    foundation::ScopedDefaults m_defaults{m_directory.filePath("defaults.ini")};
    foundation::ScopedLocale m_locale{QLocale("de_DE")};
    std::unique_ptr<host::DialogSession> m_session;
    QLineEdit *m_field = nullptr;
    QWidget *m_stepper = nullptr;
    int m_alerts = 0;
    toolkit::PresentAlerts m_presented{[this](const toolkit::Alert &) { ++m_alerts; }};
};

TEST_F(AmountInHand, AlertsOnceHoweverLongAnArrowIsHeld)
{
    set("05");
    auto *const up = m_stepper->findChild<QToolButton *>();
    QTest::mousePress(up, Qt::LeftButton);
    QTest::qWait(900);
    QTest::mouseRelease(up, Qt::LeftButton);
    EXPECT_EQ(m_alerts, 1);
    EXPECT_EQ(m_field->text(), "05");
}

TEST_F(AmountInHand, IsFilteredAndCheckedWhenAssistiveTechnologySetsIt)
{
    set("4.7");
    EXPECT_EQ(m_field->text(), "47");
    EXPECT_TRUE(m_session->shouldPrint());
    EXPECT_EQ(m_alerts, 0);
    set("52");
    EXPECT_EQ(m_alerts, 1);
    QAccessible::queryAccessibleInterface(m_field)->editableTextInterface()->deleteText(0, 1);
    EXPECT_EQ(m_field->text(), "2");
    EXPECT_EQ(m_stepper->property("value").toDouble(), 2);
}

} // namespace
