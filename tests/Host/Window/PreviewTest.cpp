// The page beside the settings, as it will come out.
#include "PPDText.h"
#include "WindowTest.h"

#include "Jobs/FolderSink.h"
#include "Pages/Shrinking.h"
#include "Toolkit/Controls.h"
#include "Window/PreviewPane.h"

#include <QCheckBox>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QToolButton>

#include <filesystem>

using namespace host;
using namespace std::chrono_literals;

namespace {

class Preview : public support::WindowTest
{
protected:
    void SetUp() override
    {
        setUp(m_directory.filePath("defaults.ini"));
        makeDialog({});
        const CachedPPD ppd{support::PPDText().allOptions().file(), 0, {}};
        auto printer = support::value(targetOfQueue({}, support::value(withPPDOpened({"Test", {}, {}, ppd, {}, {}}))));
        printer->setSink(std::make_shared<FolderSink>(m_directory.filePath("out")));
        m_dialog->use(std::move(printer));
        showWindow();
    }

    /// Each page is black from its top down to a tenth for each number.
    QString documentOf(int pages)
    {
        const QString path = m_directory.filePath(QStringLiteral("%1 pages.pdf").arg(pages));
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins({});
        QPainter painter(&writer);
        for (int page = 1; page <= pages; ++page) {
            painter.fillRect(0, 0, writer.width(), writer.height() * page / 10, Qt::black);
            if (page < pages)
                writer.newPage();
        }
        return path;
    }
    PreviewPane *pane() { return m_window->findChild<PreviewPane *>(); }
    const PagePreview &preview() { return pane()->preview(); }
    PageView *view() { return m_window->findChild<PageView *>(); }
    QToolButton *tool(const QString &name)
    {
        for (auto *each : m_window->findChildren<QToolButton *>())
            if (each->accessibleName() == name)
                return each;
        return nullptr;
    }
    void press(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    void unfold()
    {
        press(m_window->findChild<QPushButton *>("unfoldPreview"));
        settle();
    }
    void settle()
    {
        QApplication::processEvents();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !preview().isBusy(); }, 20000));
        QApplication::processEvents();
    }
    /// The share of black on the sheet.
    double black()
    {
        const QImage picture = preview().picture().convertToFormat(QImage::Format_Grayscale8);
        double sum = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                sum += 255 - picture.constScanLine(y)[x];
        return sum / 255 / picture.width() / picture.height();
    }
    QString pageNumber()
    {
        for (auto *each : pane()->findChildren<QLabel *>())
            return each->text();
        return {};
    }
    QImage shot() { return view()->grab().toImage(); }

    QTemporaryDir m_directory;
};

TEST_F(Preview, IsFoldedAwayAndNotEvenMadeUntilSomebodyWantsToSeeIt)
{
    EXPECT_EQ(pane(), nullptr);
    EXPECT_LE(m_window->width(), 560);
}

TEST_F(Preview, ShowsTheTicketOnItsPaperAndWhichPageItIs)
{
    unfold();
    EXPECT_GT(black(), 0.005);
    EXPECT_LT(black(), 0.1);
    EXPECT_EQ(pageNumber(), "Page 1 of 1");
    EXPECT_EQ(view()->accessibleDescription(), "Page 1 of 1");
}

TEST_F(Preview, IsRememberedAsItWasLeft)
{
    unfold();
    showWindow();
    EXPECT_TRUE(pane()->isVisible());
    settle();
    EXPECT_FALSE(preview().picture().isNull());
    press(m_window->findChild<QPushButton *>("unfoldPreview"));
    EXPECT_FALSE(pane()->isVisible());
    showWindow();
    EXPECT_EQ(pane(), nullptr);
}

TEST_F(Preview, FollowsEachChoice)
{
    unfold();
    const double before = black();
    m_window->showPanel("advanced");
    press(find<toolkit::CheckControl>("mReversalChkBx"));
    settle();
    EXPECT_GT(black(), 1 - before - 0.1);
}

TEST_F(Preview, FollowsThePaper)
{
    unfold();
    ASSERT_EQ(preview().dots(), QSize(1678, 2374)); // A4 at 203 dots an inch
    m_dialog->choosePaper({"customsize", printing::Paper{288, 432}});
    settle();
    EXPECT_EQ(preview().dots(), QSize(812, 1218));
}

TEST_F(Preview, ShowsThePlainPageWhereItIsNotWantedAsPrinted)
{
    unfold();
    m_window->showPanel("advanced");
    press(find<toolkit::CheckControl>("mReversalChkBx"));
    settle();
    auto *const asPrinted = pane()->findChild<QCheckBox *>();
    EXPECT_EQ(asPrinted->text(), "As pr&inted");
    asPrinted->click();
    settle();
    EXPECT_LT(black(), 0.1);
    asPrinted->click();
    settle();
    EXPECT_GT(black(), 0.9);
}

TEST_F(Preview, TurnsPagesByButtonKeyAndWheel)
{
    m_dialog->chooseDocuments({documentOf(3)});
    unfold();
    EXPECT_NEAR(black(), 0.1, 0.01);
    EXPECT_FALSE(tool("Page before")->isEnabled());
    press(tool("Next page"));
    settle();
    EXPECT_NEAR(black(), 0.2, 0.01);
    EXPECT_EQ(pageNumber(), "Page 2 of 3");
    view()->setFocus();
    QTest::keyClick(view(), Qt::Key_PageDown);
    settle();
    EXPECT_NEAR(black(), 0.3, 0.01);
    EXPECT_FALSE(tool("Next page")->isEnabled());
    QTest::keyClick(view(), Qt::Key_PageDown); // there is no further one
    settle();
    EXPECT_EQ(pageNumber(), "Page 3 of 3");
    QTest::keyClick(view(), Qt::Key_Home);
    settle();
    EXPECT_EQ(pageNumber(), "Page 1 of 3");
    QTest::keyClick(view(), Qt::Key_End);
    settle();
    EXPECT_EQ(pageNumber(), "Page 3 of 3");
    QTest::keyClick(view(), Qt::Key_PageUp);
    settle();
    EXPECT_EQ(pageNumber(), "Page 2 of 3");
    QWheelEvent wheel(QPointF(9, 9), view()->mapToGlobal(QPointF(9, 9)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view()->viewport(), &wheel);
    settle();
    EXPECT_EQ(pageNumber(), "Page 3 of 3");
}

TEST_F(Preview, CountsThePagesThatArePrinted)
{
    m_dialog->chooseDocuments({documentOf(5)});
    unfold();
    pages()->setText("2,4-5");
    settle();
    EXPECT_EQ(pageNumber(), "Page 1 of 3");
    EXPECT_NEAR(black(), 0.2, 0.01);
    press(tool("Next page"));
    press(tool("Next page"));
    settle();
    EXPECT_NEAR(black(), 0.5, 0.01);
    pages()->setText("2"); // fewer than the page that is shown
    settle();
    EXPECT_EQ(pageNumber(), "Page 1 of 1");
    EXPECT_NEAR(black(), 0.2, 0.01);
}

TEST_F(Preview, SaysWhyThereIsNothingToSee)
{
    unfold();
    pages()->setText("7-9");
    settle();
    EXPECT_TRUE(preview().picture().isNull());
    EXPECT_TRUE(preview().problem().contains("7-9")) << preview().problem().toStdString();
    EXPECT_EQ(view()->accessibleDescription(), preview().problem());
    pages()->clear();
    settle();
    EXPECT_FALSE(preview().picture().isNull());
    EXPECT_EQ(preview().problem(), "");
}

TEST_F(Preview, WaitsForADocument)
{
    m_dialog->chooseDocuments({});
    unfold();
    EXPECT_EQ(preview().problem(), "The document's pages will show here.");
    m_dialog->chooseDocuments({support::kTicket});
    settle();
    EXPECT_FALSE(preview().picture().isNull());
}

TEST_F(Preview, ShowsADotAPixelAndScrollsThere)
{
    unfold();
    const QSize fitting = preview().picture().size();
    press(tool("Each dot of the printer as a pixel of the screen"));
    settle();
    EXPECT_EQ(preview().picture().size(), preview().dots());
    EXPECT_EQ(preview().picture().format(), QImage::Format_Mono);
    EXPECT_GT(view()->verticalScrollBar()->maximum(), 1000);
    view()->setFocus();
    QTest::keyClick(view(), Qt::Key_Minus);
    settle();
    EXPECT_EQ(preview().picture().size(), fitting);
    EXPECT_FALSE(tool("Each dot of the printer as a pixel of the screen")->isChecked());
    EXPECT_EQ(view()->verticalScrollBar()->maximum(), 0);
    QTest::keyClick(view(), Qt::Key_Plus);
    settle();
    EXPECT_EQ(preview().picture().size(), preview().dots());
}

TEST_F(Preview, ShowsTheNextPageCoarselyWhereItsDotsTakeTheirTime)
{
    m_dialog->chooseDocuments({documentOf(3)});
    unfold();
    press(tool("Each dot of the printer as a pixel of the screen"));
    settle();
    const QByteArray before = qgetenv("PATH");
    const QDir programs(m_directory.path());
    QFile painter(programs.filePath("pdftoppm")); // which is never done at the head's resolution
    ASSERT_TRUE(painter.open(QIODevice::WriteOnly));
    painter.write("#!/bin/sh\ncase \"$*\" in *'-scale-to-x 1678'*) exec /bin/sleep 1000 ;; esac\nexec " +
                  QStandardPaths::findExecutable("pdftoppm").toUtf8() + " \"$@\"\n");
    painter.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    painter.close();
    qputenv("PATH", programs.path().toUtf8() + ':' + before);
    press(tool("Next page"));
    const bool came = QTest::qWaitFor([this] { return black() > 0.15; }, 20000);
    qputenv("PATH", before);
    EXPECT_TRUE(came);
    EXPECT_NEAR(black(), 0.2, 0.01);
    EXPECT_TRUE(preview().isBusy());
}

TEST_F(Preview, ShowsTheFeedBelowTheSheetAsLongAsItCounts)
{
    unfold();
    const QImage before = shot();
    choose(*find<toolkit::PopUpControl>("mFormFeedModePopUp"), 1);
    settle();
    EXPECT_FALSE(preview().effect()->feed);
    EXPECT_NE(shot(), before);
}

TEST_F(Preview, ShowsThePerforation)
{
    unfold();
    choosePaper("RollA4");
    choose(*find<toolkit::PopUpControl>("mFormFeedModePopUp"), 1);
    settle();
    const QImage before = shot();
    choose(*find<toolkit::PopUpControl>("mPerforatedPopUp"), 1);
    settle();
    EXPECT_TRUE(preview().effect()->perforated);
    EXPECT_NE(shot(), before);
}

TEST_F(Preview, OfAnotherDocumentIsThatOne)
{
    m_dialog->chooseDocuments({documentOf(3)});
    unfold();
    press(tool("Next page"));
    settle();
    m_dialog->chooseDocuments({documentOf(1)});
    settle();
    EXPECT_EQ(pageNumber(), "Page 1 of 1");
    EXPECT_NEAR(black(), 0.1, 0.01);
}

TEST_F(Preview, ShowsTheLatestOfManyChoices)
{
    m_dialog->chooseDocuments({documentOf(9)});
    unfold();
    for (int i = 0; i < 8; ++i)
        press(tool("Next page"));
    settle();
    EXPECT_EQ(pageNumber(), "Page 9 of 9");
    EXPECT_NEAR(black(), 0.9, 0.01);
}

TEST_F(Preview, ShowsNothingOfADocumentThatWentInTheMiddleOfItsWork)
{
    unfold();
    m_dialog->chooseDocuments({documentOf(3)});
    ASSERT_TRUE(preview().isBusy());
    m_dialog->chooseDocuments({});
    settle();
    EXPECT_TRUE(preview().picture().isNull());
    EXPECT_EQ(preview().problem(), "The document's pages will show here.");
}

TEST_F(Preview, OfAPrinterWithoutADriverIsGreyOnItsPaper)
{
    Queue queue;
    queue.name = "Plain";
    queue.papers = {{"iso_a6_105x148mm", "A6", {297.64, 419.53}}};
    m_dialog->use(support::value(targetOfQueue({}, OpenedQueue{queue, nullptr})));
    unfold();
    EXPECT_EQ(preview().problem(), "The size of the paper is not known.");
    m_dialog->choosePaper({"iso_a6_105x148mm", std::nullopt});
    settle();
    EXPECT_EQ(preview().problem(), "");
    EXPECT_EQ(preview().dots(), QSize(839, 1183)); // at 203 dots an inch
    EXPECT_GT(black(), 0.005);
    EXPECT_FALSE(pane()->findChild<QCheckBox *>()->isEnabled());
    press(tool("Each dot of the printer as a pixel of the screen"));
    settle();
    EXPECT_EQ(preview().picture().format(), QImage::Format_Grayscale8);
}

struct UnseenRow
{
    const char *name;
    OptionValues options;
    const char *text;
};

void PrintTo(const UnseenRow &row, std::ostream *out) { *out << row.name; }

class PreviewWithWordsOfTheServer : public Preview, public testing::WithParamInterface<UnseenRow>
{};

TEST_P(PreviewWithWordsOfTheServer, SaysWhatItDoesNotShow)
{
    const CachedPPD ppd{support::PPDText().allOptions().file(), 0, {}};
    PrintRequest request;
    request.options = GetParam().options;
    m_dialog->use(support::value(targetOfQueue(request, support::value(withPPDOpened({"Test", {}, {}, ppd, {}, {}})))));
    unfold();
    const QLabel *const unseen = find<QLabel>("unseen");
    EXPECT_EQ(unseen->isVisible() ? unseen->text() : QString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Such, PreviewWithWordsOfTheServer,
    testing::Values(UnseenRow{"None", {}, ""},
                    UnseenRow{"Others", {{"job-priority", "50"}, {"print-scaling", "fit"}}, ""},
                    UnseenRow{"ManyPagesOnASheet", {{"number-up", "2"}}, "Not in this picture: number-up=2"},
                    UnseenRow{"OnePageOnASheet", {{"number-up", "1"}}, ""},
                    UnseenRow{"Landscape", {{"landscape", "true"}}, "Not in this picture: landscape=true"},
                    UnseenRow{"Mirror", {{"mirror", "true"}}, "Not in this picture: mirror=true"},
                    UnseenRow{"Border", {{"page-border", "single"}}, "Not in this picture: page-border=single"},
                    UnseenRow{"EvenPages", {{"page-set", "even"}}, "Not in this picture: page-set=even"},
                    UnseenRow{"Order", {{"outputorder", "reverse"}}, "Not in this picture: outputorder=reverse"},
                    UnseenRow{
                        "Turned", {{"orientation-requested", "6"}}, "Not in this picture: orientation-requested=6"},
                    UnseenRow{"TwoOfThem",
                              {{"position", "top-left"}, {"number-up", "4"}},
                              "Not in this picture: number-up=4, position=top-left"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(Preview, SaysInTheWordsOfThePanelWhatItDoesNotShow)
{
    Queue queue;
    queue.name = "Plain";
    queue.papers = {{"iso_a6_105x148mm", "A6", {297.64, 419.53}}};
    queue.offers = {{"orientation-requested", {"3", "4"}, ""}};
    m_dialog->use(support::value(targetOfQueue({}, support::value(withPPDOpened(queue)))));
    m_dialog->choosePaper({"iso_a6_105x148mm", std::nullopt});
    unfold();
    EXPECT_FALSE(find<QLabel>("unseen")->isVisible());
    choose(*find<QComboBox>("server-orientation-requested"), "Landscape");
    settle();
    EXPECT_TRUE(find<QLabel>("unseen")->isVisible());
    EXPECT_EQ(find<QLabel>("unseen")->text(), "Not in this picture: Orientation: Landscape");
    m_dialog->chooseDocuments({});
    settle();
    EXPECT_FALSE(find<QLabel>("unseen")->isVisible()); // there is none
}

TEST_F(Preview, GoesWithTheWindowInTheMiddleOfItsWork)
{
    m_dialog->chooseDocuments({documentOf(3)});
    press(m_window->findChild<QPushButton *>("unfoldPreview"));
    ASSERT_TRUE(preview().isBusy());
    m_window.reset();
}

/// A view of its own, as of pages that take their time, and with a program in place of pdftoppm that tells what it was
/// asked for.
class PreviewInParts : public Preview
{
protected:
    void SetUp() override
    {
        Preview::SetUp();
        const QDir folder(m_directory.path());
        ASSERT_TRUE(folder.mkpath("asked") && folder.mkpath("programs"));
        m_dialog->chooseDocuments({documentOf(3)});
        qputenv("PATH", folder.filePath("programs").toUtf8() + ':' + m_path);
        write("");
    }
    void TearDown() override
    {
        m_view.reset();
        m_preview.reset();
        qputenv("PATH", m_path);
        Preview::TearDown();
    }
    /// The program never ends where its arguments match a pattern of the shell. It may make no file, but links.
    void write(const QByteArray &neverEnding)
    {
        const QByteArray asked = m_directory.filePath("asked").toUtf8();
        QFile program(m_directory.filePath("programs/pdftoppm"));
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\nln -s -- \"$*\" " + asked + "/$(ls " + asked + " | wc -l)\ncase \"$*\" in\n" +
                      (neverEnding.isEmpty() ? QByteArray() : neverEnding + ") exec sleep 1000 ;;\n") + "esac\nexec " +
                      m_painter + " \"$@\"\n");
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void look(PageView::Zoom zoom, const PreviewTimes &times = {PageReader::kPatience, 0ms})
    {
        m_preview = std::make_unique<PagePreview>(*m_dialog, times);
        m_view = std::make_unique<PageView>(*m_preview);
        m_view->setZoom(zoom);
        m_view->resize(300, 300);
        m_view->show();
        m_preview->setShown(true);
    }
    /// What the program was asked for, in order: "coarse", "whole", and "part 1000" for one from that dot down.
    QStringList asked()
    {
        QStringList all;
        for (int number = 0;; ++number) {
            std::error_code none;
            const auto link = m_directory.filePath("asked/%1").arg(number).toStdString();
            const auto words = QString::fromStdString(std::filesystem::read_symlink(link, none).string()).split(' ');
            if (none)
                return all;
            const bool isInDots = words.value(words.indexOf("-scale-to-x") + 1) == "1678";
            all += words.contains("-H") ? "part " + words.value(words.indexOf("-y") + 1)
                                        : QString(isInDots ? "whole" : "coarse");
        }
    }
    bool waitUntil(const std::function<bool()> &isSo) { return QTest::qWaitFor(isSo, 20000); }
    bool waitForEnd()
    {
        return waitUntil([this] { return !m_preview->isBusy(); });
    }
    bool hasDots() { return m_preview->picture().size() == m_preview->dots(); }
    void scrollTo(int pixel) { m_view->verticalScrollBar()->setValue(pixel); }

    std::unique_ptr<PagePreview> m_preview;
    std::unique_ptr<PageView> m_view;
    const QByteArray m_painter = QStandardPaths::findExecutable("pdftoppm").toUtf8();

private:
    const QByteArray m_path = qgetenv("PATH");
};

constexpr auto kPart = "*' -H '*";
constexpr auto kPartAtTheTop = "*' -y 0 -W '*";
constexpr auto kWhole = "*' -scale-to-y 2374 /'*";

TEST_F(PreviewInParts, ComeAfterTheCoarsePageAndBeforeTheWhole)
{
    look(PageView::Zoom::dots);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(asked(), QStringList({"coarse", "part 0", "whole"}));
    EXPECT_TRUE(hasDots());
    scrollTo(1000);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(asked().size(), 3);
}

TEST_F(PreviewInParts, ShowBeforeTheWholeIsThere)
{
    write(kWhole);
    look(PageView::Zoom::dots);
    EXPECT_TRUE(waitUntil([this] { return hasDots(); }));
    EXPECT_EQ(m_preview->problem(), "");
    EXPECT_TRUE(m_preview->isBusy());
}

TEST_F(PreviewInParts, AreNotDrawnWhereTheSheetIsSeenAsAWhole)
{
    look(PageView::Zoom::fit);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(asked(), QStringList({"coarse", "whole"}));
    m_view->setZoom(PageView::Zoom::dots);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(hasDots());
    EXPECT_EQ(asked(), QStringList({"coarse", "whole"}));
}

TEST_F(PreviewInParts, AreNotDrawnOfAPageThatIsQuick)
{
    look(PageView::Zoom::dots, {PageReader::kPatience, 1h});
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(asked(), QStringList({"coarse", "whole"}));
    EXPECT_TRUE(hasDots());
}

TEST_F(PreviewInParts, AreGivenUpWhenNobodySeesThemAnyMore)
{
    write(kPartAtTheTop);
    look(PageView::Zoom::dots);
    ASSERT_TRUE(waitUntil([this] { return asked().size() == 2; }));
    scrollTo(700);
    scrollTo(1000);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(asked().first(2), QStringList({"coarse", "part 0"}));
    EXPECT_TRUE(asked().last(2).first().startsWith("part 99")) << asked().join(", ").toStdString();
    EXPECT_EQ(asked().last(), "whole");
}

TEST_F(PreviewInParts, ComeFirstAlsoWhereTheWholeIsBegun)
{
    write(kWhole);
    look(PageView::Zoom::fit);
    ASSERT_TRUE(waitUntil([this] { return asked().contains("whole"); }));
    m_view->setZoom(PageView::Zoom::dots);
    EXPECT_TRUE(waitUntil([this] { return hasDots(); }));
    EXPECT_TRUE(waitUntil([this] { return asked().size() == 4; }));
    EXPECT_EQ(asked(), QStringList({"coarse", "whole", "part 0", "whole"}));
}

TEST_F(PreviewInParts, FollowAChoiceBeforeTheWholeIsThere)
{
    write(kWhole);
    look(PageView::Zoom::dots);
    ASSERT_TRUE(waitUntil([this] { return hasDots(); }));
    EXPECT_EQ(m_preview->picture().format(), QImage::Format_Mono);
    m_preview->setBurnt(false);
    EXPECT_TRUE(waitUntil([this] { return m_preview->picture().format() == QImage::Format_Grayscale8; }));
    EXPECT_TRUE(hasDots());
    EXPECT_EQ(asked().filter("part").size(), 1);
}

TEST_F(PreviewInParts, StayAndGoOnWhereTheWholeTakesTooLong)
{
    write(kWhole);
    look(PageView::Zoom::dots, {5s, 0ms});
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(m_preview->problem().contains("takes too long")) << m_preview->problem().toStdString();
    EXPECT_TRUE(hasDots());
    const QImage seen = m_view->viewport()->grab().toImage();
    EXPECT_EQ(seen.pixelColor(seen.width() / 2, 20), QColor(Qt::black)); // the page
    EXPECT_EQ(seen.pixelColor(seen.width() / 2, seen.height() - 6), m_view->palette().color(QPalette::Window));
    scrollTo(1000);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(asked().last().startsWith("part 99")) << asked().join(", ").toStdString();
    EXPECT_EQ(asked().count("whole"), 1);
    EXPECT_TRUE(m_preview->problem().contains("takes too long"));
    EXPECT_TRUE(hasDots());
    m_view->setZoom(PageView::Zoom::fit);
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(m_preview->picture().isNull());
}

TEST_F(PreviewInParts, AreNoMoreThanAnAttemptWhereTheyTakeTooLongThemselves)
{
    write(kPart);
    look(PageView::Zoom::dots, {3s, 0ms});
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(asked(), QStringList({"coarse", "part 0", "whole"}));
    EXPECT_TRUE(hasDots());
    EXPECT_EQ(m_preview->problem(), "");
}

TEST(Shrinking, KeepsTheGreyOfAHalftone)
{
    QImage dots(100, 100, QImage::Format_Mono);
    for (int y = 0; y < dots.height(); ++y)
        for (int x = 0; x < dots.width(); ++x)
            dots.setPixel(x, y, (x + y) % 2);
    const QImage small = shrunk(dots, {10, 10});
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x)
            EXPECT_EQ(small.pixelColor(x, y).red(), 127);
}

TEST(Shrinking, MeansTheDotsOfEachPixelWhateverTheSize)
{
    QImage grey(7, 5, QImage::Format_Grayscale8);
    grey.fill(90U);
    for (const QSize size : {QSize(1, 1), QSize(3, 2), QSize(6, 4), QSize(7, 5), QSize(20, 9)}) {
        const QImage other = shrunk(grey, size);
        ASSERT_EQ(other.size(), size);
        EXPECT_EQ(other.pixelColor(0, 0).red(), 90);
        EXPECT_EQ(other.pixelColor(size.width() - 1, size.height() - 1).red(), 90);
    }
}

} // namespace
