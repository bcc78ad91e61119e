// The window under a person's hands.
#include "PPDText.h"
#include "WindowTest.h"

#include "Jobs/FolderSink.h"
#include "Toolkit/Controls.h"
#include "Window/Fields.h"
#include "Window/PaperChooser.h"
#include "Window/SummaryView.h"

#include <QAccessible>
#include <QDir>
#include <QDoubleSpinBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QHelpEvent>
#include <QMimeData>
#include <QPointer>
#include <QSignalSpy>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QToolTip>
#include <QTreeWidgetItemIterator>

#include <gtest/gtest.h>

#include <clocale>
#include <thread>

using namespace host;

namespace {

class Window : public support::WindowTest
{
protected:
    void SetUp() override
    {
        qputenv("HOME", m_directory.path().toUtf8()); // what is saved here is nobody's
        qputenv("CUPS_SERVERROOT", m_directory.path().toUtf8());
        setUp(m_directory.filePath("defaults.ini"));
        makeDialog({}, ticket());
        const CachedPPD ppd{support::PPDText().allOptions().file(), 0, {}};
        auto printer = support::value(targetOfQueue({}, support::value(withPPDOpened({"Test", {}, {}, ppd, {}, {}}))));
        printer->setSink(std::make_shared<FolderSink>(m_out));
        m_dialog->use(std::move(printer));
        showWindow();
    }
    /// As a desktop delivers it: to the window, which finds out what lies under the pointer.
    void drop(const QWidget &on, const QString &file)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        data.setText(file);
        const QPoint at = on.mapTo(m_window.get(), on.rect().center());
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window->windowHandle(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window->windowHandle(), &dropped);
    }
    void chooseFile(const QString &file)
    {
        button("Choose &File…")->click();
        const QPointer<QFileDialog> box = find<QFileDialog>();
        ASSERT_TRUE(box);
        auto *const name = box->findChild<QLineEdit *>("fileNameEdit");
        ASSERT_TRUE(name);
        name->setText(file);
        auto *const open = box->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
        ASSERT_TRUE(QTest::qWaitFor([open] { return open->isEnabled(); }));
        QTest::mouseClick(open, Qt::LeftButton);
        ASSERT_TRUE(QTest::qWaitFor([box] { return !box; }));
    }
    QString emptyFile() const
    {
        QFile file(m_directory.filePath("empty.pdf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    /// A text, which goes with every paper and has no pages before it is laid out: the window has nothing to say of it.
    QString ticket() const
    {
        QFile file(m_directory.filePath("ticket.pdf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("A ticket\n") > 0);
        return file.fileName();
    }
    QTemporaryDir m_directory;
    QString m_out = m_directory.filePath("out");
};

TEST_F(Window, TakesTheFileOfItsButton)
{
    m_dialog->chooseDocuments({});
    ASSERT_FALSE(canPrint());
    chooseFile(support::kTicket);
    EXPECT_EQ(m_window->windowTitle(), "Print ticket.pdf");
    EXPECT_TRUE(canPrint());
}

TEST_F(Window, KeepsItsDocumentWhenTheFileOfItsButtonIsNone)
{
    chooseFile(emptyFile());
    EXPECT_EQ(message(), "empty.pdf: the document is empty");
    EXPECT_EQ(m_window->windowTitle(), "Print ticket.pdf");
    EXPECT_TRUE(canPrint());
    chooseFile(support::kTicket);
    EXPECT_EQ(message(), "");
}

TEST_F(Window, KeepsItsDocumentWhenWhatIsDroppedIsNone)
{
    drop(*m_window, emptyFile());
    EXPECT_EQ(message(), "empty.pdf: the document is empty");
    EXPECT_EQ(m_window->windowTitle(), "Print ticket.pdf");
    EXPECT_TRUE(canPrint());
}

TEST_F(Window, TakesWhatIsDroppedOnAFieldAsADocument)
{
    for (QLineEdit *field : {pages(), find<QSpinBox>("copies")->findChild<QLineEdit *>(),
                             static_cast<QLineEdit *>(find<toolkit::FieldControl>("mPaperFeedTxt"))}) {
        m_dialog->chooseDocuments({});
        const QString before = field->text();
        drop(*field, support::kTicket);
        EXPECT_EQ(field->text(), before) << field->objectName().toStdString();
        EXPECT_EQ(m_window->windowTitle(), "Print ticket.pdf") << field->objectName().toStdString();
    }
}

/// What assistive technology says of a field beside its name.
QString descriptionOf(QWidget &field)
{
    return QAccessible::queryAccessibleInterface(&field)->text(QAccessible::Description);
}

TEST_F(Window, DescribesThePagesByWhatIsWrongWithThemAsLongAsItIs)
{
    const QString usual = descriptionOf(*pages());
    QTest::keyClicks(pages(), "3-1");
    EXPECT_EQ(descriptionOf(*pages()), usual);
    QTest::mouseClick(button("&Print"), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), pages());
    EXPECT_EQ(descriptionOf(*pages()), "“3-1” are no pages. Write single pages and ranges, such as 1-3,5.");
    QTest::keyClicks(pages(), "1-2");
    EXPECT_EQ(descriptionOf(*pages()), usual);
}

/// What a person sees who rests on something.
QString toldBy(QWidget &widget)
{
    QToolTip::hideText();
    const QPoint at = widget.rect().center();
    QHelpEvent rest(QEvent::ToolTip, at, widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &rest);
    return QToolTip::text();
}

TEST_F(Window, TellsTheWholeOfATextThatAMenuHasNoRoomFor)
{
    EXPECT_EQ(toldBy(*printers()), "");
    const QString name = "<b>counter " + QString(300, 'x');
    const int width = m_window->width();
    printers()->setItemText(printers()->currentIndex(), name);
    QApplication::processEvents();
    EXPECT_EQ(m_window->width(), width);
    EXPECT_TRUE(toldBy(*printers()).contains(name.toHtmlEscaped())) << toldBy(*printers()).toStdString();
}

TEST_F(Window, CutsAMessageThatIsTooLongAndTellsTheWholeOfIt)
{
    auto *const line = find<MessageLine>();
    const QString sentence = QString("Every word of it counts. ").repeated(20).trimmed();
    m_dialog->say(About::settings, sentence);
    EXPECT_TRUE(line->text().endsWith("…")) << line->text().toStdString();
    EXPECT_TRUE(sentence.startsWith(line->text().chopped(1)));
    EXPECT_LE(line->heightForWidth(line->width()), line->height()); // nothing of it is below the line
    EXPECT_TRUE(line->toolTip().contains(sentence)) << line->toolTip().toStdString();
    EXPECT_EQ(line->accessibleName(), sentence);
    const auto shown = line->text().size();
    m_window->resize(m_window->width() * 3 / 2, m_window->height());
    QApplication::processEvents();
    EXPECT_GT(line->text().size(), shown);
    m_dialog->say(About::settings, "Short.");
    EXPECT_EQ(line->text(), "Short.");
    EXPECT_EQ(line->toolTip(), "");
}

TEST_F(Window, ClaimsNoAmountWhileItsFieldIsGrey)
{
    ASSERT_TRUE(summary().contains("Paper Feed=26 mm"));
    auto *const formFeed = find<toolkit::PopUpControl>("mFormFeedModePopUp");
    auto *const amount = find<toolkit::FieldControl>("mPaperFeedTxt");
    ASSERT_TRUE(amount->isEnabled());
    QTest::keyClick(formFeed, Qt::Key_Down);
    QApplication::processEvents();
    ASSERT_NE(formFeed->currentIndex(), 0);
    EXPECT_TRUE(summary().filter("Paper Feed").isEmpty()) << summary().join('|').toStdString();
    QTest::keyClick(formFeed, Qt::Key_Up);
    QApplication::processEvents();
    EXPECT_TRUE(summary().contains("Paper Feed=26 mm"));
}

TEST_F(Window, ShowsTheFirstPanelPreparedAndTheOthersRightAfter)
{
    EXPECT_EQ(session().panelOnDisplay(), session().panel("basic"));
    EXPECT_TRUE(session().panel("basic")->panelView()->isVisible());
    EXPECT_TRUE(session().panel("advanced")->inspection().isInterfaceLoaded());
    EXPECT_FALSE(session().panel("advanced")->panelView()->isVisible());
}

TEST_F(Window, TellsTheUnitOfTheAmountWithItsField)
{
    EXPECT_EQ(find<QLineEdit>("mPaperFeedTxt")->accessibleDescription(), "mm");
}

TEST_F(Window, GoesFromPanelToPanelByKey)
{
    auto *const tabs = find<QTabBar>();
    EXPECT_EQ(tabs->count(), 2);
    tabs->setFocus();
    QTest::keyClick(tabs, Qt::Key_Right);
    EXPECT_EQ(session().panelOnDisplay(), session().panel("advanced"));
    EXPECT_TRUE(session().panel("advanced")->panelView()->isVisible());
    EXPECT_FALSE(session().panel("basic")->panelView()->isVisible());
}

TEST_F(Window, ShowsTheSummaryAgainAfterEveryChange)
{
    EXPECT_EQ(summary(), QStringList({"Printer=Test", "Paper=A4", "Copies=1", "Pages=all", "Paper Feed=26 mm"}));
    auto *const media = find<toolkit::PopUpControl>("mMediaPopUp");
    media->setFocus();
    QTest::keyClick(media, Qt::Key_Down);
    QApplication::processEvents();
    EXPECT_TRUE(summary().contains("Paper Type=Thermal Copy Paper"));
    find<QSpinBox>("copies")->setValue(3);
    pages()->setText("2");
    choosePaper("RollA4");
    const QStringList rows = summary();
    EXPECT_EQ(rows.mid(0, 4), QStringList({"Printer=Test", "Paper=RollA4", "Copies=3", "Pages=2"}));
    EXPECT_TRUE(rows.contains("Paper Feed=26 mm")) << rows.join('\n').toStdString();
}

TEST_F(Window, LeadsTabThroughItsControlsAsTheyStandAndBack)
{
    const QList<QWidget *> expected{find<toolkit::PopUpControl>("mDensityPopUp"),
                                    find<toolkit::PopUpControl>("mMediaPopUp"),
                                    find<toolkit::PopUpControl>("mFormFeedModePopUp"),
                                    find<toolkit::PopUpControl>("mPerforatedPopUp"),
                                    find<toolkit::FieldControl>("mPaperFeedTxt"),
                                    find<toolkit::StepperControl>("mPaperFeedStepper"),
                                    find<toolkit::PopUpControl>("mRollPrintPopUp"),
                                    button("Choose &File…"),
                                    button("S&ummary"),
                                    button("Previe&w"),
                                    button("&Print")};
    find<QTabBar>()->setFocus();
    for (QWidget *next : expected) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next) << next->objectName().toStdString();
    }
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_NE(QApplication::focusWidget(), button("&Print")); // nothing held the focus
}

TEST_F(Window, GivesTheTitlesOfTheSummaryTheRoomTheyNeedButNeverTheValuesHalf)
{
    summary();
    m_window->resize(1000, m_window->height());
    auto *const view = find<SummaryView>();
    view->show({{"Reverse Black and White", "Yes"}});
    EXPECT_GT(view->columnWidth(0), view->fontMetrics().horizontalAdvance("Reverse Black and White"));
    view->show({{QString(300, 'x'), "26 mm"}});
    EXPECT_LE(view->columnWidth(0), view->viewport()->width() / 2);
    EXPECT_TRUE(view->topLevelItem(0)->toolTip(0).contains(QString(300, 'x')));
}

TEST_F(Window, HasAMnemonicOfItsOwnForEachControl)
{
    QStringList mnemonics;
    for (const auto *label : m_window->findChildren<QLabel *>())
        if (label->buddy() && label->text().contains('&') && !label->text().contains("&&"))
            mnemonics.append(label->text().section('&', 1, 1).left(1).toLower());
    for (const auto *each : m_window->findChildren<QPushButton *>())
        if (each->text().contains('&'))
            mnemonics.append(each->text().section('&', 1, 1).left(1).toLower());
    EXPECT_GE(mnemonics.size(), 4);
    EXPECT_EQ(mnemonics.removeDuplicates(), 0) << mnemonics.join(' ').toStdString();
}

TEST_F(Window, GoesThroughThePanelsWithAnotherPaper)
{
    choosePaper("PerfA4");
    EXPECT_EQ(find<toolkit::PopUpControl>("mFormFeedModePopUp")->currentIndex(), 2);
    EXPECT_TRUE(summary().contains("Form Feed=End of Page"));
    EXPECT_EQ(message(), "PerfA4 comes with: Form Feed “End of Page”.");
}

TEST_F(Window, OffersASizeOfTheUsersOwnWithinThePPDsLimits)
{
    const auto sides = m_window->findChildren<QDoubleSpinBox *>();
    ASSERT_EQ(sides.size(), 2);
    EXPECT_FALSE(sides[0]->isVisible());
    choosePaper("customsize");
    EXPECT_TRUE(sides[0]->isVisible());
    sides[0]->setValue(100);
    sides[1]->setValue(9999);
    Q_EMIT sides[1]->editingFinished();
    ASSERT_TRUE(session().paper().size);
    EXPECT_NEAR(session().paper().size->width, 100 * 72 / 25.4, 0.001);
    EXPECT_LE(session().paper().size->height, 3600);
    EXPECT_EQ(session().paper().name, QString("customsize"));
}

TEST_F(Window, SaysWhatAPaperMayMeasureWhenASideIsOutsideIt)
{
    papers()->setFocus();
    QTest::keyClick(papers(), Qt::Key_End);
    ASSERT_EQ(papers()->currentData(), "customsize");
    auto *const width = find<LengthBox>("paperWidth");
    EXPECT_EQ(width->toolTip(), "26 to 215 mm");
    width->setFocus();
    width->selectAll();
    ASSERT_EQ(QApplication::focusWidget(), width);
    QTest::keyClicks(width, "20");
    ASSERT_EQ(width->text(), "20 mm");
    QTest::keyClick(width, Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), width);
    EXPECT_EQ(width->value(), 26);
    EXPECT_EQ(message(), "The printer does not take 20 mm, but 26 to 215 mm.");
    width->setFocus();
    width->selectAll();
    QTest::keyClicks(width, "100");
    QTest::keyClick(width, Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(message(), "");
    EXPECT_NEAR(session().paper().size->width, 100 * 72 / 25.4, 0.001);
}

class OwnSize : public Window
{
protected:
    void SetUp() override
    {
        Window::SetUp();
        papers()->setFocus();
        QTest::keyClick(papers(), Qt::Key_End);
        ASSERT_EQ(papers()->currentData(), "customsize");
        m_width = find<LengthBox>("paperWidth");
        m_width->setFocus();
        m_width->selectAll();
    }
    double width() const { return session().paper().size->width / 72 * 25.4; }

    LengthBox *m_width = nullptr;
};

TEST_F(OwnSize, IsPrintedAsItWasTypedAlsoWhenTheFieldIsNotLeft)
{
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    QTest::keyClicks(m_width, "100");
    QTest::keyClick(m_window.get(), Qt::Key_P, Qt::AltModifier);
    ASSERT_TRUE(printed.wait(10000));
    EXPECT_NEAR(width(), 100, 0.01);
}

TEST_F(OwnSize, ThatWasCorrectedIsReadBeforeItIsPrinted)
{
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    for (const auto &[typed, taken] : {std::pair{"20", 26}, std::pair{"300", 215}}) {
        m_width->setFocus();
        m_width->selectAll();
        QTest::keyClicks(m_width, typed);
        QTest::keyClick(m_width, Qt::Key_Return);
        EXPECT_EQ(message(), QString("The printer does not take %1 mm, but 26 to 215 mm.").arg(typed));
        EXPECT_EQ(m_width->value(), taken);
        EXPECT_EQ(m_dialog->state(), PrintDialog::State::ready);
    }
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            QTest::keyClick(m_width, Qt::Key_Return); // again, as somebody does who has read it
            return m_dialog->state() == PrintDialog::State::sending;
        },
        10000));
    ASSERT_TRUE(printed.wait(10000));
    EXPECT_NEAR(width(), 215, 0.01);
}

TEST_F(OwnSize, StaysExactlyWhenAPersonOnlyWalksThroughItsFields)
{
    m_dialog->choosePaper({"customsize", printing::Paper{288, 432}}); // 4 x 6 inches, 102 x 152 mm as it shows
    Q_EMIT m_dialog->paperChanged();
    QSignalSpy chosen(m_window->findChild<PaperChooser *>(), &PaperChooser::chose);
    ASSERT_EQ(m_width->value(), 102);
    QTest::keyClick(m_width, Qt::Key_Tab);
    QTest::keyClick(find<LengthBox>("paperHeight"), Qt::Key_Tab);
    EXPECT_EQ(chosen.size(), 0);
    EXPECT_DOUBLE_EQ(session().paper().size->width, 288);
}

TEST_F(OwnSize, IsWhatItWasWhenAFieldIsLeftEmpty)
{
    QTest::keyClicks(m_width, "100");
    QTest::keyClick(m_width, Qt::Key_Tab);
    m_width->setFocus();
    m_width->clear();
    QTest::keyClick(m_width, Qt::Key_Tab);
    EXPECT_EQ(m_width->value(), 100);
    EXPECT_EQ(message(), "");
    EXPECT_EQ(m_width->accessibleDescription(), "26 to 215 mm");
}

TEST_F(Window, DoesNotPrintWhenReturnEndsTheAmount)
{
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    auto *const amount = find<toolkit::FieldControl>("mPaperFeedTxt");
    amount->setFocus();
    QTest::keyClicks(amount, "5");
    QTest::keyClick(amount, Qt::Key_Return);
    QApplication::processEvents(); // a job would be on its way by now
    EXPECT_EQ(m_dialog->state(), PrintDialog::State::ready);
    EXPECT_EQ(printed.size(), 0);
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(Window, PrintsIntoTheFolderAndCloses)
{
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    QTest::mouseClick(button("&Print"), Qt::LeftButton);
    ASSERT_TRUE(printed.wait(10000));
    EXPECT_EQ(m_window->result(), QDialog::Accepted);
    EXPECT_EQ(QDir(m_out).entryList(QDir::Files), QStringList({"ticket.json", "ticket.pdf"}));
}

TEST_F(Window, StaysOpenWhenAPanelRefuses)
{
    auto *const amount = find<toolkit::FieldControl>("mPaperFeedTxt");
    amount->paste("0");
    QTest::mouseClick(button("&Print"), Qt::LeftButton);
    EXPECT_EQ(m_alerts, QStringList("The paper feed amount is out of range."));
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_FALSE(QDir(m_out).exists());
}

TEST_F(Window, SaysWhyAJobFailedAndStaysOpen)
{
    QFile file(m_out); // a file in the folder's place
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QTest::mouseClick(button("&Print"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return message().startsWith(m_out); }, 10000));
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_TRUE(button("&Print")->isEnabled());
}

TEST_F(Window, ClosesWithEscape)
{
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    EXPECT_FALSE(m_window->isVisible());
    EXPECT_EQ(m_window->result(), QDialog::Rejected);
}

struct Named
{
    const char *environment;
    const char *language;
    QString name;
};
class PapersOfAPPD : public testing::TestWithParam<Named>
{};

TEST_P(PapersOfAPPD, AreNamedInTheUsersLanguageWhereThePPDHasIt)
{
    // The library keeps the names of one language, that of the environment, and finds out which once a thread.
    qputenv("LC_ALL", GetParam().environment);
    std::setlocale(LC_MESSAGES, "C"); // or what the application took at its start would count
    QString shown;
    std::thread([&shown] {
        const auto ppd = support::value(PPDDocument::open(QN_SOURCE_DIR "/examples/ppd/full.ppd"));
        for (const auto &paper : ppd->papers(GetParam().language))
            if (paper.name == "RollA4")
                shown = paper.text;
    }).join();
    EXPECT_EQ(shown, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(In, PapersOfAPPD,
                         testing::Values(Named{"de_DE.UTF-8", "de_DE", "A4, Rolle"},
                                         Named{"ja_JP.UTF-8", "ja_JP", "A4（ロール紙）"},
                                         Named{"zh_CN.UTF-8", "zh_CN", "A4（卷纸）"},
                                         Named{"it_IT.UTF-8", "it_IT", "A4, Roll"},
                                         Named{"en_US.UTF-8", "en_US", "A4, Roll"}));

} // namespace
