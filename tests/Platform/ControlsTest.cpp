// The habits of the toolkit's controls, under mouse, keyboard and code.
#include "Toolkit/Alert.h"
#include "Toolkit/Handles.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <functional>

using namespace toolkit;

namespace {

/// A control in a window that is shown, as a person has it.
template <class Control>
class InWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        m_window.resize(400, 300);
        m_control.setGeometry(10, 10, 200, 40);
        m_window.show();
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }
    QWidget m_window;
    Control &m_control = *new Control(&m_window);
};

class PopUps : public InWindow<PopUpControl>
{
protected:
    void SetUp() override
    {
        for (const char *title : {"zero", "one", "two", "three"})
            m_control.insertTitle(title, m_control.count());
        m_control.select(0);
        InWindow::SetUp();
        m_control.setValidator([this](int index) {
            m_asked.append(index);
            return index != m_refused;
        });
    }
    QList<int> m_asked;
    int m_refused = 2;
    QSignalSpy m_chosen{&m_control, &QComboBox::activated};
};

TEST_F(PopUps, AskForEachItemInOrderWhenAMouseOpensThem)
{
    QTest::mouseClick(&m_control, Qt::LeftButton);
    EXPECT_EQ(m_asked, QList<int>({0, 1, 2, 3}));
    EXPECT_TRUE(m_control.isItemEnabled(1));
    EXPECT_FALSE(m_control.isItemEnabled(2));
    m_control.hidePopup();
}

TEST_F(PopUps, AskWhenCodeOrAssistiveTechnologyOpensThem)
{
    m_control.showPopup();
    EXPECT_EQ(m_asked.size(), 4);
    m_control.hidePopup();
    auto *const actions = QAccessible::queryAccessibleInterface(&m_control)->actionInterface();
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_EQ(m_asked.size(), 8);
    m_control.hidePopup();
}

TEST_F(PopUps, SkipWithTheKeysWhatIsRefused)
{
    QTest::keyClick(&m_control, Qt::Key_Down);
    EXPECT_EQ(m_control.currentIndex(), 1);
    QTest::keyClick(&m_control, Qt::Key_Down);
    EXPECT_EQ(m_control.currentIndex(), 3);
    QTest::keyClick(&m_control, Qt::Key_Up);
    EXPECT_EQ(m_control.currentIndex(), 1);
    QTest::keyClick(&m_control, 't'); // "two" is refused, "three" is not
    EXPECT_NE(m_control.currentIndex(), 2);
    EXPECT_GE(m_chosen.size(), 3);
}

TEST_F(PopUps, StayOpenUnderAClickOnWhatIsRefused)
{
    m_control.showPopup();
    QTest::qWait(QApplication::doubleClickInterval() + 50); // until then the menu takes a release for the opening click
    auto *const list = m_control.view();
    const auto click = [&](int item) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(m_control.model()->index(item, 0)).center());
    };
    click(2);
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(m_chosen.size(), 0);
    click(3);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(m_control.currentIndex(), 3);
    EXPECT_EQ(m_chosen.size(), 1);
}

TEST_F(PopUps, LetEffectsOnOtherItemsStand)
{
    m_control.setValidator([this](int index) {
        if (index == 3)
            m_control.setItemEnabled(0, false);
        return true;
    });
    m_control.validateItems();
    EXPECT_FALSE(m_control.isItemEnabled(0));
}

TEST_F(PopUps, SendTheActionForTheItemAlreadySelectedButNothingForCode)
{
    m_control.choose(0);
    EXPECT_EQ(m_chosen.size(), 1);
    m_control.select(1);
    EXPECT_EQ(m_chosen.size(), 1);
}

TEST_F(PopUps, StayAsTheyAreUnderTheWheel)
{
    QWheelEvent wheel({5, 5}, m_control.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&m_control, &wheel);
    EXPECT_EQ(m_control.currentIndex(), 0);
}

TEST(PopUpItems, KeepTheSelectedIndexWhenTheyComeAndGo)
{
    PopUpControl menu;
    EXPECT_EQ(menu.currentIndex(), -1);
    menu.insertTitle("a", 0);
    EXPECT_EQ(menu.currentIndex(), -1); // nothing was selected
    menu.insertTitle("b", 99);          // appends
    menu.select(1);
    menu.insertTitle("front", 0);
    EXPECT_EQ(menu.currentIndex(), 1);
    menu.removeAt(2);
    EXPECT_EQ(menu.currentIndex(), 1);
    menu.removeAt(0);
    EXPECT_EQ(menu.currentIndex(), 0); // cut to the last item
    menu.removeAt(5);
    EXPECT_EQ(menu.count(), 1);
    menu.removeAt(0);
    EXPECT_EQ(menu.currentIndex(), -1);
}

TEST(PopUpItems, ThatDoNotExistCannotBeSelected)
{
    PopUpControl menu;
    menu.insertTitle("a", 0);
    menu.select(0);
    menu.select(1);
    menu.select(-1);
    EXPECT_EQ(menu.currentIndex(), 0);
}

using Boxes = InWindow<CheckControl>;

TEST_F(Boxes, FlipUnderAPersonAndTakeAnyNumberFromCode)
{
    QSignalSpy clicked(&m_control, &QAbstractButton::clicked);
    QTest::mouseClick(&m_control, Qt::LeftButton, {}, {8, 20});
    EXPECT_EQ(m_control.state(), 1);
    QTest::keyClick(&m_control, Qt::Key_Space);
    EXPECT_EQ(m_control.state(), 0);
    EXPECT_EQ(clicked.size(), 2);
    m_control.setState(7);
    EXPECT_EQ(m_control.state(), 1);
    m_control.setState(0);
    EXPECT_EQ(m_control.state(), 0);
    EXPECT_EQ(clicked.size(), 2);
}

class Radios : public InWindow<RadioControl>
{
protected:
    void SetUp() override
    {
        m_control.setRows({"a", "b", "c"});
        InWindow::SetUp();
        m_control.resize(200, 100);
    }
    QSignalSpy m_chosen{&m_control, &RadioControl::chosen};
};

TEST_F(Radios, StartWithoutARowAndIgnoreRowsThatTheyDoNotHave)
{
    EXPECT_EQ(m_control.selectedRow(), -1);
    m_control.select(3);
    m_control.select(-1);
    EXPECT_EQ(m_control.selectedRow(), -1);
    m_control.select(1);
    EXPECT_EQ(m_control.selectedRow(), 1);
    EXPECT_EQ(m_chosen.size(), 0);
}

TEST_F(Radios, AreReachedWithTabAtTheRowThatIsChosen)
{
    QPushButton before(&m_window);
    QPushButton after(&m_window);
    before.show();
    after.show();
    const auto buttons = m_control.findChildren<QRadioButton *>();
    QWidget *last = &before;
    for (QWidget *next : {static_cast<QWidget *>(buttons[0]), static_cast<QWidget *>(buttons[1]),
                          static_cast<QWidget *>(buttons[2]), static_cast<QWidget *>(&after)})
        QWidget::setTabOrder(std::exchange(last, next), next);
    for (const int row : {-1, 0, 1, 2}) {
        m_control.select(row);
        before.setFocus();
        QTest::keyClick(&before, Qt::Key_Tab);
        auto *const reached = qobject_cast<QRadioButton *>(QApplication::focusWidget());
        ASSERT_TRUE(reached) << row;
        EXPECT_EQ(buttons.indexOf(reached), qMax(row, 0));
        EXPECT_EQ(m_control.selectedRow(), row);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &after) << row;
    }
}

TEST_F(Radios, SendTheActionUnderMouseAndArrowKeys)
{
    const auto buttons = m_control.findChildren<QRadioButton *>();
    QTest::mouseClick(buttons[0], Qt::LeftButton, {}, {8, buttons[0]->height() / 2});
    EXPECT_EQ(m_control.selectedRow(), 0);
    EXPECT_EQ(m_chosen.size(), 1);
    buttons[0]->setFocus();
    QTest::keyClick(buttons[0], Qt::Key_Down);
    EXPECT_EQ(m_control.selectedRow(), 1);
    EXPECT_EQ(m_chosen.size(), 2);
}

class Steppers : public InWindow<StepperControl>
{
protected:
    QSignalSpy m_stepped{&m_control, &StepperControl::stepped};
};

TEST_F(Steppers, AreNumbersThatStepForAssistiveTechnology)
{
    auto *const seen = QAccessible::queryAccessibleInterface(&m_control);
    ASSERT_TRUE(seen && seen->valueInterface());
    EXPECT_EQ(seen->role(), QAccessible::SpinBox);
    EXPECT_EQ(seen->valueInterface()->minimumValue(), 0);
    EXPECT_EQ(seen->valueInterface()->maximumValue(), 99);
    EXPECT_EQ(seen->valueInterface()->minimumStepSize(), 1);
    m_control.setValue(26);
    seen->valueInterface()->setCurrentValue(27);
    EXPECT_EQ(seen->valueInterface()->currentValue(), 27);
    seen->valueInterface()->setCurrentValue(26);
    EXPECT_EQ(m_control.value(), 26);
    EXPECT_EQ(m_stepped.size(), 2);
    seen->valueInterface()->setCurrentValue(26);
    EXPECT_EQ(m_stepped.size(), 2);
}

TEST_F(Steppers, HoldTheirValueWithinTheRangeAndNeverWrap)
{
    m_control.setValue(120);
    EXPECT_EQ(m_control.value(), 99);
    m_control.step(1);
    EXPECT_EQ(m_control.value(), 99);
    m_control.setValue(-1);
    EXPECT_EQ(m_control.value(), 0);
    m_control.step(-1);
    EXPECT_EQ(m_control.value(), 0);
    EXPECT_EQ(m_stepped.size(), 2); // a click sends its action all the same
}

TEST_F(Steppers, StepUnderMouseAndArrowKeys)
{
    const auto arrows = m_control.findChildren<QToolButton *>();
    QTest::mouseClick(arrows[0], Qt::LeftButton);
    EXPECT_EQ(m_control.value(), 1);
    QTest::mouseClick(arrows[1], Qt::LeftButton);
    EXPECT_EQ(m_control.value(), 0);
    m_control.setFocus();
    QTest::keyClick(&m_control, Qt::Key_Up);
    m_control.setIncrement(0.1);
    QTest::keyClick(&m_control, Qt::Key_Down);
    EXPECT_DOUBLE_EQ(m_control.value(), 0.9);
    EXPECT_EQ(m_stepped.size(), 4);
}

/// An action that is refused with an alert, under hands that do not let go.
class RefusingSteppers : public Steppers
{
protected:
    void SetUp() override
    {
        Steppers::SetUp();
        m_up = m_control.findChildren<QToolButton *>().first();
        QObject::connect(&m_control, &StepperControl::stepped, &m_control, [] {
            Alert alert;
            alert.addButtonWithTitle("OK");
            alert.runModal();
        });
    }

    // Each way to hold the arrow: how it begins, and what comes again and again.
    void pressMouse() { QTest::mousePress(m_up, Qt::LeftButton); }
    void moveMouse() { QTest::mouseEvent(QTest::MouseMove, m_up, Qt::LeftButton, {}, {m_moved++ % 2 + 3, 5}); }
    void pressKey() { sendKey(false); }
    void repeatKey() { sendKey(true); }
    void pressByAssistiveTechnology()
    {
        QAccessible::queryAccessibleInterface(m_up)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
    }

    /// Long enough for an arrow to repeat itself several times.
    static void hold(const std::function<void()> &begin, const std::function<void()> &repeat = [] {})
    {
        QTimer repeating;
        QObject::connect(&repeating, &QTimer::timeout, repeat);
        repeating.start(50);
        QTimer::singleShot(800, &repeating, &QTimer::stop);
        begin();
        QTest::qWait(900);
    }
    /// How many message boxes stand over the window by then; closes them.
    int boxesUnder(const std::function<void()> &begin, const std::function<void()> &repeat = [] {})
    {
        int boxes = 0;
        QTimer::singleShot(850, [&] {
            for (QWidget *window : QApplication::topLevelWidgets())
                boxes += window->isVisible() && qobject_cast<QMessageBox *>(window) ? 1 : 0;
            m_control.setEnabled(boxes <= 1); // no more of them, or this test would not end either
            while (auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                box->done(0);
        });
        hold(begin, repeat);
        return boxes;
    }

    QToolButton *m_up = nullptr;

private:
    void sendKey(bool again)
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, {}, {}, again);
        QApplication::sendEvent(&m_control, &press);
    }
    int m_moved = 0;
};

TEST_F(Steppers, RepeatWhileAnArrowOrAKeyIsHeld)
{
    auto *const up = m_control.findChildren<QToolButton *>().first();
    QTest::mousePress(up, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_stepped.size() >= 3; }, 3000));
    QTest::mouseRelease(up, Qt::LeftButton);
    const auto steps = m_stepped.size();
    for (const bool again : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, {}, {}, again);
        QApplication::sendEvent(&m_control, &press);
    }
    EXPECT_EQ(m_stepped.size(), steps + 3);
}

TEST_F(RefusingSteppers, ShowOneMessageBoxHoweverLongTheArrowIsHeld)
{
    EXPECT_EQ(boxesUnder([this] { pressMouse(); }), 1);
    EXPECT_FALSE(m_up->isDown());
    hold([] {}, [this] { moveMouse(); }); // the button is still held
    QTest::mouseRelease(m_up, Qt::LeftButton);
    EXPECT_EQ(m_stepped.size(), 1);
    EXPECT_EQ(boxesUnder([this] { pressMouse(); }), 1); // pressed anew
}

TEST_F(RefusingSteppers, ShowOneMessageBoxHoweverLongTheKeyIsHeld)
{
    EXPECT_EQ(boxesUnder([this] { pressKey(); }, [this] { repeatKey(); }), 1);
    EXPECT_EQ(m_stepped.size(), 1);
    EXPECT_EQ(boxesUnder([this] { pressKey(); }), 1);
}

TEST_F(RefusingSteppers, ShowOneMessageBoxWhileAssistiveTechnologyPressesOn)
{
    const auto press = [this] { pressByAssistiveTechnology(); };
    EXPECT_EQ(boxesUnder(press,
                         [&, presses = 0]() mutable {
                             if (presses++ < 10) // all beneath the message box
                                 press();
                         }),
              1);
    EXPECT_EQ(boxesUnder(press), 1);
}

TEST_F(RefusingSteppers, AlertOnceWhoeverPresentsTheAlert)
{
    int alerts = 0;
    const PresentAlerts presented([&](const Alert &) { ++alerts; });
    hold([this] { pressMouse(); }, [this] { moveMouse(); });
    QTest::mouseRelease(m_up, Qt::LeftButton);
    EXPECT_EQ(alerts, 1);
    hold([this] { pressKey(); }, [this] { repeatKey(); });
    EXPECT_EQ(alerts, 2);
    hold([this] { pressByAssistiveTechnology(); });
    EXPECT_EQ(alerts, 3);
    hold([this] { pressMouse(); });
    QTest::mouseRelease(m_up, Qt::LeftButton);
    EXPECT_EQ(alerts, 4);
}

TEST_F(Steppers, StopUnderAnAlertThatAnotherControlOpens)
{
    auto *const up = m_control.findChildren<QToolButton *>().first();
    const PresentAlerts presented([](const Alert &) {});
    QTest::mousePress(up, Qt::LeftButton);
    Alert().runModal();
    QTest::qWait(900);
    EXPECT_EQ(m_stepped.size(), 0);
}

class Fields : public InWindow<FieldControl>
{
protected:
    QSignalSpy m_edited{&m_control, &FieldControl::edited};
    QSignalSpy m_entered{&m_control, &FieldControl::entered};
    QSignalSpy m_ended{&m_control, &FieldControl::editingEnded};
};

TEST_F(Fields, ReportEachEditOfAPersonAndNoneOfCode)
{
    QTest::keyClicks(&m_control, "12");
    EXPECT_EQ(m_edited.size(), 2);
    m_control.setStringValue("345");
    EXPECT_EQ(m_edited.size(), 2);
    m_control.paste("6");
    EXPECT_EQ(m_edited.size(), 3);
}

/// One way to edit the text "12", and what it leaves.
struct Edit
{
    const char *name;
    void (*perform)(FieldControl &field, QAccessibleInterface &accessible);
    const char *becomes;
};

void PrintTo(const Edit &row, std::ostream *out) { *out << row.name; }

const Edit kEdits[]{
    {"AKey", [](FieldControl &field, QAccessibleInterface &) { QTest::keyClick(&field, '3'); }, "123"},
    {"Backspace", [](FieldControl &field, QAccessibleInterface &) { QTest::keyClick(&field, Qt::Key_Backspace); }, "1"},
    {"Paste",
     [](FieldControl &field, QAccessibleInterface &) {
         QApplication::clipboard()->setText("34");
         QTest::keySequence(&field, QKeySequence::Paste);
     },
     "1234"},
    {"Cut",
     [](FieldControl &field, QAccessibleInterface &) {
         field.selectAll();
         QTest::keySequence(&field, QKeySequence::Cut);
     },
     ""},
    {"Drop",
     [](FieldControl &field, QAccessibleInterface &) {
         QMimeData data;
         data.setText("7");
         const QPoint end(field.width() - 2, field.height() / 2);
         QDragEnterEvent enter(end, Qt::CopyAction, &data, Qt::LeftButton, {});
         QApplication::sendEvent(&field, &enter);
         QDropEvent drop(end, Qt::CopyAction, &data, Qt::LeftButton, {});
         QApplication::sendEvent(&field, &drop);
     },
     "127"},
    {"InputMethod",
     [](FieldControl &field, QAccessibleInterface &) {
         QInputMethodEvent commit;
         commit.setCommitString("8");
         QApplication::sendEvent(&field, &commit);
     },
     "128"},
    {"AccessibleInsert",
     [](FieldControl &, QAccessibleInterface &accessible) { accessible.editableTextInterface()->insertText(1, "5"); },
     "152"},
    {"AccessibleDelete",
     [](FieldControl &, QAccessibleInterface &accessible) { accessible.editableTextInterface()->deleteText(0, 1); },
     "2"},
    {"AccessibleReplace",
     [](FieldControl &, QAccessibleInterface &accessible) {
         accessible.editableTextInterface()->replaceText(0, 2, "4.7");
     },
     "4.7"},
    {"AccessibleValue",
     [](FieldControl &, QAccessibleInterface &accessible) { accessible.setText(QAccessible::Value, "4.7"); }, "4.7"},
};

class EditedFields : public Fields, public testing::WithParamInterface<Edit>
{
protected:
    void SetUp() override
    {
        Fields::SetUp();
        m_control.setStringValue("12");
        m_control.setFocus();
        m_control.setCursorPosition(2);
    }
    void perform() { GetParam().perform(m_control, *QAccessible::queryAccessibleInterface(&m_control)); }
};

TEST_P(EditedFields, ReportOneEdit)
{
    perform();
    EXPECT_EQ(m_control.stringValue(), GetParam().becomes);
    EXPECT_EQ(m_edited.size(), 1);
}

TEST_P(EditedFields, TakeACorrectionWhileTheyReport)
{
    QObject::connect(&m_control, &FieldControl::edited, &m_control, [this] { m_control.setStringValue("9"); });
    perform();
    EXPECT_EQ(m_control.stringValue(), "9");
    EXPECT_EQ(m_edited.size(), 1);
}

TEST_P(EditedFields, StayAsTheyAreWhereNobodyMayType)
{
    m_control.setEditable(false);
    perform();
    m_control.setEditable(true);
    m_control.setEnabled(false);
    perform();
    EXPECT_EQ(m_control.stringValue(), "12");
    EXPECT_EQ(m_edited.size(), 0);
}

INSTANTIATE_TEST_SUITE_P(EachWay, EditedFields, testing::ValuesIn(kEdits),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(Fields, ReportUndoAsAnEdit)
{
    QTest::keyClicks(&m_control, "1");
    QTest::keySequence(&m_control, QKeySequence::Undo);
    EXPECT_EQ(m_control.stringValue(), "");
    EXPECT_EQ(m_edited.size(), 2);
}

TEST_F(Fields, ReportNothingThatCodeSets)
{
    TextField field;
    ASSERT_TRUE(field.connect(&m_control));
    field.setStringValue("3");
    field.setIntegerValue(4);
    field.setDoubleValue(4.5);
    m_control.setProperty("text", "5"); // as an interface file does
    EXPECT_EQ(m_control.stringValue(), "5");
    EXPECT_EQ(m_edited.size(), 0);
}

TEST_F(Fields, EndEditingWithReturnAndNotByLosingTheFocus)
{
    auto *const button = new QPushButton(&m_window);
    button->show();
    m_control.setFocus();
    QTest::keyClick(&m_control, Qt::Key_Return);
    EXPECT_EQ(m_entered.size(), 1);
    EXPECT_EQ(m_ended.size(), 1);
    QTest::keyClick(&m_control, Qt::Key_Tab);
    EXPECT_FALSE(m_control.hasFocus()); // nobody is held in the field
    EXPECT_EQ(m_ended.size(), 1);
}

TEST_F(Fields, KeepTheCursorWhenCodeCorrectsTheText)
{
    m_control.setStringValue("1234");
    m_control.setCursorPosition(2);
    m_control.setStringValue("134");
    EXPECT_EQ(m_control.cursorPosition(), 2);
    m_control.setStringValue("1");
    EXPECT_EQ(m_control.cursorPosition(), 1);
}

TEST_F(Fields, TakeTheFocusOnlyWhereAPersonMayType)
{
    auto *const button = new QPushButton(&m_window);
    button->show();
    button->setFocus();
    TextField field;
    ASSERT_TRUE(field.connect(&m_control));
    field.setEditable(false);
    field.becomeFirstResponder();
    EXPECT_FALSE(m_control.hasFocus());
    field.setEditable(true);
    field.becomeFirstResponder();
    EXPECT_TRUE(m_control.hasFocus());
}

TEST(Texts, ShowAnAmpersandAsItIs)
{
    QWidget window;
    LabelControl label(&window);
    LabelControl buddy(&window);
    label.setBuddy(&buddy);
    label.setStringValue("Cut & Feed");
    EXPECT_EQ(label.stringValue(), "Cut & Feed");
    EXPECT_EQ(label.text(), "Cut && Feed"); // Qt's way to write it
    CheckControl box(&window);
    box.setTitle("R&D");
    EXPECT_EQ(box.title(), "R&D");
    EXPECT_EQ(box.shortcut(), QKeySequence());
    label.setStringValue("<b>bold</b>");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

class TextColors : public testing::Test
{
protected:
    static QPalette palette(QColor window, QColor text, QColor disabled)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        for (const auto role : {QPalette::WindowText, QPalette::Text}) {
            palette.setColor(role, text);
            palette.setColor(QPalette::Disabled, role, disabled);
        }
        return palette;
    }
    QWidget m_window;
    LabelControl &m_label = *new LabelControl(&m_window);
};

TEST_F(TextColors, FollowADarkPalette)
{
    m_window.setPalette(palette(Qt::black, Qt::white, Qt::darkGray));
    EXPECT_EQ(m_label.palette().color(QPalette::WindowText), QColor(Qt::white));
    m_label.setTextColor(TextColor::disabledControl);
    EXPECT_EQ(m_label.palette().color(QPalette::Active, QPalette::WindowText), QColor(Qt::darkGray));
    m_label.setTextColor(TextColor::control);
    EXPECT_EQ(m_label.palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(TextColors, FollowAPaletteThatChangesLater)
{
    m_label.setTextColor(TextColor::disabledControl);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(palette(Qt::black, Qt::white, Qt::cyan));
    QApplication::processEvents();
    EXPECT_EQ(m_label.palette().color(QPalette::Active, QPalette::WindowText), QColor(Qt::cyan));
    QApplication::setPalette(before);
    QApplication::processEvents();
    EXPECT_EQ(m_label.palette().color(QPalette::Active, QPalette::WindowText),
              before.color(QPalette::Disabled, QPalette::WindowText));
}

TEST(Alerts, ShowAMessageBoxWithTheirTexts)
{
    Alert alert;
    alert.setMessageText("What");
    alert.setInformativeText("Why");
    alert.addButtonWithTitle("OK");
    QString seen;
    QTimer::singleShot(0, [&] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        seen = box->text() + '/' + box->informativeText() + '/' + box->buttons().first()->text();
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        box->buttons().first()->click();
    });
    alert.runModal();
    EXPECT_EQ(seen, "What/Why/OK");
}

TEST(Alerts, GoToWhoeverPresentsThem)
{
    QStringList seen;
    const auto notedAs = [&](const QString &who) {
        return [&seen, who](const Alert &alert) { seen.append(who + ": " + alert.messageText()); };
    };
    Alert alert;
    alert.setMessageText("What");
    {
        const PresentAlerts outer(notedAs("outer"));
        {
            const PresentAlerts inner(notedAs("inner"));
            alert.runModal();
        }
        alert.runModal();
    }
    EXPECT_EQ(seen, QStringList({"inner: What", "outer: What"}));
    EXPECT_FALSE(Alert::setPresenter({})); // nobody presents them any more
}

} // namespace
