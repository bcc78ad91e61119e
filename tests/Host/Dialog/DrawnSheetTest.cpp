// What is looked at of a page that takes its time, drawn by the real program, before the whole page is.
#include "PDFText.h"
#include "Print.h"
#include "Results.h"

#include "Dialog/DrawnSheet.h"

#include <gtest/gtest.h>

using namespace host;
using namespace std::chrono_literals;
using Halftone = PDEPrintEffect::Halftone;

namespace {

constexpr PreviewTimes kSlow{PageReader::kPatience, 0ms}; // whatever the machine, the page is expected to take its time
constexpr PreviewTimes kQuick{PageReader::kPatience, 1h};

struct Row
{
    const char *name;
    QSizeF page;
    const char *entries;
    bool turnsLeft;
};

void PrintTo(const Row &row, std::ostream *out) { *out << row.name; }

class PartOfASheet : public testing::TestWithParam<Row>
{
protected:
    /// A page of many paths, on A6 with margins, by the head's dots.
    SheetView view(Halftone method, bool isChanged) const
    {
        SheetView view;
        view.document = m_document;
        view.sheet = {{297, 420}, QRectF(12, 18, 270, 396), GetParam().turnsLeft};
        view.scaling = Scaling::fit;
        view.effect = PDEPrintEffect();
        view.effect->halftone = method;
        view.effect->mirrored = view.effect->reversed = isChanged;
        view.visible = QRect(411, 333, 237, 251);
        return view;
    }

    std::shared_ptr<Document> m_document =
        support::value(Document::open(support::PDFText()
                                          .page(GetParam().page, support::pathsOver(GetParam().page, 200),
                                                QByteArray(GetParam().entries) + ' ' + support::kHalfTransparent)
                                          .file()));
};

TEST_P(PartOfASheet, IsTheSameDotsAsInTheWhole)
{
    for (const bool isChanged : {false, true}) {
        const SheetView solid = view(Halftone::binary, isChanged);
        const SheetView dithered = view(Halftone::dither, isChanged);
        DrawnSheet sheet(kSlow);
        sheet.turnTo(solid, {});
        sheet.drawCoarse({});
        ASSERT_TRUE(sheet.drawPart({})) << sheet.progress().problem.toStdString();
        const QImage earlySolid = sheet.picture();
        sheet.turnTo(dithered, {});
        const QImage earlyDithered = sheet.picture();
        sheet.drawWhole({});
        ASSERT_TRUE(sheet.isWhole()) << sheet.progress().problem.toStdString();
        EXPECT_EQ(earlyDithered.copy(solid.visible), sheet.picture().copy(solid.visible));
        EXPECT_NE(earlyDithered, sheet.picture());
        sheet.turnTo(solid, {});
        EXPECT_EQ(earlySolid.copy(solid.visible), sheet.picture().copy(solid.visible));
        EXPECT_NE(earlySolid, sheet.picture());
    }
}

TEST_P(PartOfASheet, IsDrawnOnceWhateverIsChosen)
{
    DrawnSheet sheet(kSlow);
    SheetView view = this->view(Halftone::binary, false);
    sheet.turnTo(view, {});
    sheet.drawCoarse({});
    ASSERT_TRUE(sheet.drawPart({}));
    const QImage before = sheet.picture();
    view.effect->halftone = Halftone::diffusion;
    sheet.turnTo(view, {});
    EXPECT_FALSE(sheet.drawPart({}));
    EXPECT_EQ(sheet.picture().size(), before.size());
    EXPECT_NE(sheet.picture().copy(view.visible), before.copy(view.visible));
    view.visible.translate(0, 40);
    sheet.turnTo(view, {});
    EXPECT_TRUE(sheet.drawPart({}));
    EXPECT_EQ(sheet.progress().parts.boundingRect(), QRect(411, 333, 237, 291));
}

TEST_P(PartOfASheet, IsNotDrawnWhereTheWholeIsExpectedSoon)
{
    DrawnSheet sheet(kQuick);
    sheet.turnTo(view(Halftone::binary, false), {});
    sheet.drawCoarse({});
    EXPECT_FALSE(sheet.picture().isNull());
    EXPECT_FALSE(sheet.drawPart({}));
}

TEST_P(PartOfASheet, IsNotThatOfAnotherSheet)
{
    DrawnSheet sheet(kSlow);
    SheetView view = this->view(Halftone::binary, false);
    sheet.turnTo(view, {});
    sheet.drawCoarse({});
    ASSERT_TRUE(sheet.drawPart({}));
    view.sheet.size.height += 1;
    sheet.turnTo(view, {});
    EXPECT_TRUE(sheet.picture().isNull());
    EXPECT_TRUE(sheet.progress().parts.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Of, PartOfASheet,
                         testing::Values(Row{"APage", {297, 420}, "", false}, Row{"ALandscape", {420, 297}, "", false},
                                         Row{"ALandscapeTurnedLeft", {420, 297}, "", true},
                                         Row{"OneThatTheDocumentTurns", {297, 420}, "/Rotate 90", false},
                                         Row{"OneThatBothTurn", {500, 297}, "/Rotate 180", true}),
                         testing::PrintToStringParamName());

} // namespace
