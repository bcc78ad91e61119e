// Texts in controls that can't grow.
#include "Toolkit/Controls.h"
#include "Toolkit/TextControls.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

using namespace toolkit;

namespace {

int widthOf(const QString &text, const QFont &font) { return qCeil(QFontMetricsF(font).horizontalAdvance(text)); }

QFont usualFont()
{
    QFont font;
    font.setPointSizeF(16);
    return font;
}

const QString kText = "Rollenpapiergehäuse des Druckers:";

TEST(TextInANarrowPlace, StaysAsItIsWhereItFits)
{
    const FittingText fitting(kText, usualFont(), widthOf(kText, usualFont()));
    EXPECT_EQ(fitting.text, kText);
    EXPECT_EQ(fitting.font, usualFont());
    EXPECT_FALSE(fitting.isCut);
}

TEST(TextInANarrowPlace, IsInASmallerFontWhereItFitsThen)
{
    const int width = widthOf(kText, usualFont()) * 9 / 10;
    const FittingText fitting(kText, usualFont(), width);
    EXPECT_LT(fitting.font.pointSizeF(), 16);
    EXPECT_GE(fitting.font.pointSizeF(), 12);
    EXPECT_EQ(fitting.text, kText);
    EXPECT_LE(widthOf(fitting.text, fitting.font), width);
}

TEST(TextInANarrowPlace, EndsInAnEllipsisWhereItWouldBeTooSmallToRead)
{
    const int width = widthOf(kText, usualFont()) / 2;
    const FittingText fitting(kText, usualFont(), width);
    EXPECT_EQ(fitting.font.pointSizeF(), 12);
    EXPECT_TRUE(fitting.text.endsWith(QChar(0x2026))) << fitting.text.toStdString();
    EXPECT_TRUE(fitting.isCut);
    EXPECT_LE(widthOf(fitting.text, fitting.font), width);
}

TEST(TextInANarrowPlace, IsMeasuredAlsoInAFontThatIsGivenInPixels)
{
    QFont font;
    font.setPixelSize(30);
    const int width = widthOf(kText, font) * 9 / 10;
    EXPECT_LE(widthOf(kText, FittingText(kText, font, width).font), width);
}

/// What a person sees who rests on a control.
QString toldBy(QWidget &control)
{
    QToolTip::hideText();
    const QPoint at = control.rect().center();
    QHelpEvent rest(QEvent::ToolTip, at, control.mapToGlobal(at));
    QCoreApplication::sendEvent(&control, &rest);
    return QToolTip::text();
}

/// The columns of a control from its left edge to the last one that has ink.
int inkOf(QWidget &control)
{
    const QImage image = control.grab().toImage();
    for (int x = image.width() - 1; x >= 0; --x)
        for (int y = 0; y < image.height(); ++y)
            if (image.pixelColor(x, y).lightness() < 100)
                return x + 1;
    return 0;
}

class NarrowControl : public testing::Test
{
protected:
    void fit(QWidget &control, int share)
    {
        control.setFont(usualFont());
        control.resize(widthOf(kText, usualFont()) * share / 100, 40);
        control.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&control));
    }
};

TEST_F(NarrowControl, ALabelDrawsItsWholeTextSmaller)
{
    LabelControl label;
    label.setStringValue(kText);
    fit(label, 90);
    EXPECT_EQ(toldBy(label), "");
    EXPECT_GT(inkOf(label), label.width() * 9 / 10); // up to the last letter, and that is whole
    EXPECT_LT(inkOf(label), label.width());
}

TEST_F(NarrowControl, ALabelTellsTheWholeOfACutText)
{
    LabelControl label;
    label.setStringValue("<b>" + kText + "</b>");
    fit(label, 40);
    EXPECT_TRUE(toldBy(label).contains("&lt;b&gt;")) << toldBy(label).toStdString();
    EXPECT_EQ(label.stringValue(), "<b>" + kText + "</b>");
    label.setToolTip("of its own");
    EXPECT_EQ(toldBy(label), "of its own");
}

TEST_F(NarrowControl, AMenuTellsTheWholeOfACutText)
{
    PopUpControl menu;
    menu.insertTitle(kText, 0);
    menu.select(0);
    fit(menu, 200);
    EXPECT_EQ(toldBy(menu), "");
    menu.resize(widthOf(kText, usualFont()) / 2, menu.height());
    EXPECT_TRUE(toldBy(menu).contains("Rollenpapier")) << toldBy(menu).toStdString();
    EXPECT_EQ(menu.currentText(), kText);
}

TEST_F(NarrowControl, ACheckBoxDrawsItsWholeTextSmallerThenTellsIt)
{
    CheckControl box;
    box.setTitle(kText + " & more");
    fit(box, 150);
    EXPECT_EQ(toldBy(box), "");
    box.resize(widthOf(kText, usualFont()) * 120 / 100, box.height());
    EXPECT_EQ(toldBy(box), "");
    EXPECT_LT(inkOf(box), box.width());
    EXPECT_GT(inkOf(box), box.width() * 9 / 10);
    box.resize(widthOf(kText, usualFont()) / 2, box.height());
    EXPECT_TRUE(toldBy(box).contains("Druckers: &amp; more")) << toldBy(box).toStdString();
    EXPECT_LT(box.minimumSizeHint().width(), box.sizeHint().width());
}

TEST_F(NarrowControl, AListTellsTheWholeOfACutRow)
{
    RadioControl list;
    list.setRows({kText, "short"});
    fit(list, 150);
    auto &row = *list.findChildren<QRadioButton *>().first();
    EXPECT_EQ(toldBy(row), "");
    list.resize(widthOf(kText, usualFont()) / 2, list.height());
    EXPECT_LE(row.width(), list.width());
    EXPECT_TRUE(toldBy(row).contains("Rollenpapier")) << toldBy(row).toStdString();
}

} // namespace
