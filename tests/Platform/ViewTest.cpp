// Handles of controls: coordinates, removal, and the control that is not there.
#include "Toolkit/Handles.h"

#include <QApplication>

#include <gtest/gtest.h>

using namespace toolkit;

namespace {

class Views : public testing::Test
{
protected:
    void SetUp() override
    {
        m_form.resize(300, 200);
        m_label.setGeometry(10, 20, 100, 30);
        ASSERT_TRUE(m_view.connect(&m_label));
    }
    QWidget m_form;
    LabelControl &m_label = *new LabelControl(&m_form);
    View m_view;
};

TEST_F(Views, CountFromTheLowerLeftCornerUpward)
{
    EXPECT_EQ(m_view.frameOrigin(), QPointF(10, 150));
    m_view.setFrameOrigin({0, 0});
    EXPECT_EQ(m_label.geometry(), QRect(0, 170, 100, 30));
    m_view.setFrameOrigin({12, 34});
    EXPECT_EQ(m_label.geometry(), QRect(12, 136, 100, 30));
    EXPECT_EQ(m_view.frameOrigin(), QPointF(12, 34));
}

TEST_F(Views, StayWithinWhatAWidgetCanTakeWhateverAFileAsksFor)
{
    m_view.setFrameOrigin({1e300, -1e300});
    EXPECT_EQ(m_label.pos(), QPoint(QWIDGETSIZE_MAX, 200 - 30 + QWIDGETSIZE_MAX));
}

TEST_F(Views, HaveFlagsOfTheirOwnWhateverTheirParentsAre)
{
    m_form.setEnabled(false);
    EXPECT_TRUE(m_view.isEnabled());
    EXPECT_FALSE(m_view.isHidden()); // although the form was never shown
    m_view.setHidden(true);
    EXPECT_TRUE(m_view.isHidden());
    m_view.setEnabled(false);
    m_form.setEnabled(true);
    EXPECT_FALSE(m_view.isEnabled());
}

TEST_F(Views, LeaveTheFormForGood)
{
    m_view.removeFromSuperview();
    EXPECT_FALSE(m_view.isAttached());
    EXPECT_EQ(m_label.parentWidget(), nullptr);
    EXPECT_EQ(m_view.frameOrigin(), QPointF(10, 150));
    EXPECT_FALSE(m_view.isHidden());
    m_view.setHidden(false);
    EXPECT_FALSE(m_label.isVisible()); // no window of its own pops up
    m_view.setHidden(true);
    EXPECT_TRUE(m_view.isHidden());
    m_view.setFrameOrigin({1, 2});
    EXPECT_EQ(m_view.frameOrigin(), QPointF(1, 2));
    m_view.removeFromSuperview();
    EXPECT_FALSE(m_view.isAttached());
}

TEST(RemovedViews, EndWithTheirFormerSuperview)
{
    auto form = std::make_unique<QWidget>();
    QPointer<LabelControl> label(new LabelControl(form.get()));
    View view;
    ASSERT_TRUE(view.connect(label));
    view.removeFromSuperview();
    ASSERT_TRUE(label);
    form.reset();
    EXPECT_FALSE(label);
    EXPECT_FALSE(view);
}

TEST_F(Views, TakeThePlaceOfOthers)
{
    auto *const other = new QWidget;
    other->setGeometry(m_view.frame());
    replaceSubview(m_view, other);
    EXPECT_EQ(other->parentWidget(), &m_form);
    EXPECT_FALSE(other->isHidden());
    EXPECT_FALSE(m_view.isAttached());
}

TEST(NoControl, TakesEveryOrderAndAnswersNothing)
{
    PopUpButton popUp;
    EXPECT_FALSE(popUp);
    popUp.setHidden(true);
    popUp.setEnabled(true);
    popUp.setFrameOrigin({1, 1});
    popUp.removeFromSuperview();
    popUp.setNeedsDisplay();
    popUp.selectItemAtIndex(3);
    popUp.insertItemWithTitle("a", 0);
    popUp.removeItemAtIndex(0);
    EXPECT_EQ(popUp.indexOfSelectedItem(), 0);
    EXPECT_FALSE(popUp.itemAtIndex(0));
    popUp.itemAtIndex(0).setEnabled(true);
    EXPECT_FALSE(popUp.isEnabled());
    EXPECT_FALSE(popUp.isHidden());
    EXPECT_EQ(popUp.frame(), QRect());

    TextField field;
    field.setStringValue("a");
    field.setEditable(true);
    field.setTextColor(TextColor::control);
    field.setAllowsExpansionToolTips(true);
    field.becomeFirstResponder();
    EXPECT_EQ(field.stringValue(), std::nullopt);
    EXPECT_EQ(field.doubleValue(), 0.0);
    EXPECT_EQ(field.integerValue(), 0);

    CheckBox box;
    box.setState(1);
    box.setTitle("a");
    EXPECT_EQ(box.state(), 0);
    RadioMatrix radio;
    radio.selectRow(1);
    radio.setRowTitle(0, "a");
    EXPECT_EQ(radio.selectedRow(), 0);
    Stepper stepper;
    stepper.setDoubleValue(3);
    stepper.setIncrement(2);
    EXPECT_EQ(stepper.doubleValue(), 0.0);
    TabView tabs;
    tabs.setLabel("1", "a");
    replaceSubview(popUp, nullptr);
}

TEST(Handles, TakeOnlyControlsOfTheirKind)
{
    PopUpControl menu;
    FieldControl field;
    PopUpButton popUp;
    EXPECT_FALSE(popUp.connect(&field));
    EXPECT_FALSE(popUp.connect(nullptr));
    EXPECT_FALSE(popUp);
    EXPECT_TRUE(popUp.connect(&menu));
    TextField text;
    EXPECT_FALSE(text.connect(&menu));
    EXPECT_TRUE(text.connect(&field));
}

TEST(Handles, ShowNumbersAsTexts)
{
    FieldControl control;
    TextField field;
    ASSERT_TRUE(field.connect(&control));
    field.setDoubleValue(0.1 + 0.2);
    EXPECT_EQ(field.stringValue(), QString("0.3"));
    field.setIntegerValue(51);
    EXPECT_EQ(field.doubleValue(), 51.0);
    field.setStringValue("1.9 inch");
    EXPECT_EQ(field.integerValue(), 1);
}

TEST(MenuItems, AreTheSameWhenMenuAndIndexAre)
{
    PopUpControl one;
    PopUpControl other;
    for (PopUpControl *menu : {&one, &other})
        for (int i = 0; i < 2; ++i)
            menu->insertTitle("item", i);
    EXPECT_EQ(MenuItem(&one, 1), MenuItem(&one, 1));
    EXPECT_NE(MenuItem(&one, 1), MenuItem(&one, 0));
    EXPECT_NE(MenuItem(&one, 1), MenuItem(&other, 1));
    EXPECT_FALSE(MenuItem(&one, 2));
    EXPECT_FALSE(MenuItem(&one, -1));
}

TEST(Tabs, ShowOnePageAndKeepLabels)
{
    TabControl tabs;
    for (const char *identifier : {"1", "2"}) {
        auto *page = new QWidget(&tabs);
        page->setProperty("identifier", identifier);
    }
    tabs.setCurrent("2");
    EXPECT_EQ(tabs.identifiers(), QStringList({"1", "2"}));
    EXPECT_TRUE(tabs.findChildren<QWidget *>()[0]->isHidden());
    EXPECT_FALSE(tabs.findChildren<QWidget *>()[1]->isHidden());
    tabs.setLabel("1", "Everyday");
    tabs.setLabel("3", "None");
    EXPECT_EQ(tabs.label("1"), "Everyday");
    EXPECT_EQ(tabs.label("3"), "");
}

} // namespace
