// What the menus offer when they open.
#include "Dialog.h"
#include "Results.h"

#include "Foundation/UserDefaults.h"
#include "Session/DialogSession.h"

#include <QAccessible>
#include <QComboBox>
#include <QTemporaryDir>
#include <QTest>

using namespace support;

namespace {

// The paper and the selected items when a menu opens, and what both menus offer then.
struct Row
{
    const char *name;
    const char *paper;
    int formFeed;
    int perforated;
    const char *formFeedMenu;   // after the form-feed menu was opened
    const char *perforatedMenu; // after the perforated menu was opened
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }

/// Brings the menus to a state that a person reaches on the way over a user-defined size, where most items are free.
class Menus : public DialogTest
{
protected:
    void start(const Row &row)
    {
        const QString formFeed = QString("FF%1").arg(row.formFeed);
        const QString perforated = row.perforated == 1 ? "ON" : "OFF";
        open(PPDText().allOptions(), row.paper,
             {{"defaults", QJsonObject{{"QnFormFeedMode", formFeed}, {"QnPerforated", perforated}}}});
        show("basic");
        ASSERT_EQ(selected("mFormFeedModePopUp"), row.formFeed);
        ASSERT_EQ(selected("mPerforatedPopUp"), row.perforated);
    }
};

class OpenedMenu : public Menus, public testing::WithParamInterface<Row>
{};

TEST_P(OpenedMenu, OffersWhatThePaperAllows)
{
    start(GetParam());
    menu("mFormFeedModePopUp");
    EXPECT_EQ(available("mFormFeedModePopUp"), GetParam().formFeedMenu);
    start(GetParam());
    menu("mPerforatedPopUp");
    EXPECT_EQ(available("mPerforatedPopUp"), GetParam().perforatedMenu);
}

INSTANTIATE_TEST_SUITE_P(
    Papers, OpenedMenu,
    testing::Values(Row{"PlainItem0", "A4", 0, 0, "+++-", "+-"}, Row{"PlainItem1", "Letter", 1, 0, "+++-", "+-"},
                    Row{"PlainItem2", "A5Rotated", 2, 0, "+++-", "+-"}, Row{"Perforated", "PerfA4", 2, 0, "--+-", "+-"},
                    // The last item of the menu repeats the side effects on those before it.
                    Row{"RollItem0", "RollA4", 0, 0, "++--", "+-"}, Row{"RollItem1", "RollLegal", 1, 0, "++--", "++"},
                    Row{"RollItem1Perforated", "RollLetter", 1, 1, "-+--", "++"},
                    Row{"Continuous", "ContinuousLetter", 0, 0, "+---", "+-"},
                    Row{"Retract", "RetractA4", 3, 0, "---+", "+-"}, Row{"OtherItem0", "Poster", 0, 0, "+++-", "+-"},
                    Row{"OtherItem1", "Poster", 1, 0, "+++-", "++"}, Row{"OtherItem2", "Poster", 2, 0, "+++-", "+-"},
                    Row{"OtherItem1Perforated", "customsize", 1, 1, "-+--", "++"},
                    Row{"OtherLetterCase", "a4", 1, 0, "+++-", "++"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(Menus, OfOtherOptionsChangeTheFormFeedItemsOnTheSide)
{
    start({"", "PerfA4", 2, 0, "", ""});
    choosePaper("Poster");
    choosePaper("RetractLegal");
    const auto items = menu("mMediaPopUp");
    EXPECT_EQ(items.size(), 2);
    for (const auto &item : items)
        EXPECT_TRUE(item.toObject()["enabled"].toBool());
    EXPECT_EQ(available("mFormFeedModePopUp"), "---+");
}

TEST_F(Menus, ReadThePaperNameEachTime)
{
    start({"", "A4", 0, 0, "", ""});
    request({{"do", "paper"}, {"name", "RollA4"}});
    menu("mMediaPopUp");
    EXPECT_EQ(state("basic")["panels"][panel()].toObject()["paperName"].toString(), "RollA4");
}

TEST_F(Menus, RefuseAnItemThatIsNotAvailableAndMarkNothing)
{
    start({"", "A4", 0, 0, "", ""});
    request({{"do", "pick"}, {"panel", "basic"}, {"control", "mFormFeedModePopUp"}, {"index", 3}});
    EXPECT_FALSE(reply()["ok"].toBool());
    EXPECT_EQ(error(), "mFormFeedModePopUp: item 3 is not available");
    EXPECT_EQ(marked("QnFormFeedMode"), "FF0");
}

/// The same menus under a person's hands: the panel's real view, mouse, keyboard and assistive technology.
class MenuInHand : public testing::Test
{
protected:
    void open(const QString &paper)
    {
        host::DialogSession::Parameters parameters;
        parameters.ppdPath = PPDText().allOptions().file();
        parameters.paperName = paper;
        m_session = value(host::DialogSession::open(parameters));
        m_session->start(host::DialogSession::Prepare::everyPanel);
        PDEPanel &panel = *m_session->panel("basic");
        ASSERT_TRUE(m_session->show(panel));
        panel.panelView()->show();
        m_menu = panel.panelView()->findChild<QComboBox *>("mFormFeedModePopUp");
        ASSERT_TRUE(m_menu);
    }
    QString marked() const { return m_session->marks().all()["QnFormFeedMode"]; }
    bool isEnabled(int index) const
    {
        return m_menu->model()->flags(m_menu->model()->index(index, 0)).testFlag(Qt::ItemIsEnabled);
    }

    QTemporaryDir m_directory;
    foundation::ScopedDefaults m_defaults{m_directory.filePath("defaults.ini")};
    std::unique_ptr<host::DialogSession> m_session;
    QComboBox *m_menu = nullptr;
};

TEST_F(MenuInHand, SkipsWithTheArrowKeysWhatThePaperForbids)
{
    open("RollA4");
    QTest::keyClick(m_menu, Qt::Key_Down);
    EXPECT_EQ(marked(), "FF1");
    QTest::keyClick(m_menu, Qt::Key_Down); // items 2 and 3 are not for roll paper
    EXPECT_EQ(m_menu->currentIndex(), 1);
    QTest::keyClick(m_menu, Qt::Key_End);
    EXPECT_EQ(m_menu->currentIndex(), 1);
    QTest::keyClick(m_menu, Qt::Key_Home);
    EXPECT_EQ(marked(), "FF0");
}

TEST_F(MenuInHand, IsValidatedWhenAMouseOpensIt)
{
    open("PerfA4");
    QTest::mouseClick(m_menu, Qt::LeftButton);
    EXPECT_FALSE(isEnabled(0));
    EXPECT_TRUE(isEnabled(2));
    EXPECT_FALSE(isEnabled(3));
    m_menu->hidePopup();
}

TEST_F(MenuInHand, IsValidatedWhenAssistiveTechnologyOpensIt)
{
    open("RetractA4");
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(m_menu);
    ASSERT_TRUE(accessible && accessible->actionInterface());
    accessible->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(isEnabled(0));
    EXPECT_TRUE(isEnabled(3));
    m_menu->hidePopup();
}

} // namespace
