// The window on queues of a real CUPS server, also when that server fails at the worst moment.
#include "QueueWindow.h"
#include "JobPDF.h"

#include "Cups/CupsSink.h"
#include "Dialog/PrinterFinder.h"
#include "Toolkit/Controls.h"
#include "Window/Fields.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTimer>

using namespace host;
using support::CupsServer;
using support::QueueWindow;

namespace {

using support::kTicket;

TEST_F(QueueWindow, StandsBeforeThePrinterDoesAndThenOffersEveryQueue)
{
    ASSERT_TRUE(m_server.addQueue("second", "usb://Qn/Thermal?serial=2"));
    m_server.freeze();
    open();
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(message(), "Looking for the printer…");
    EXPECT_FALSE(canPrint());
    m_server.thaw();
    ASSERT_TRUE(waitFor([this] { return canPrint() && printers()->count() == 2; }));
    EXPECT_EQ(message(), "");
    EXPECT_EQ(printers()->currentText(), "counter");
    find<QSpinBox>()->setValue(4);
    choose(*printers(), "second");
    ASSERT_TRUE(waitFor([this] { return canPrint(); }));
    EXPECT_EQ(m_dialog->target()->name(), "second");
    EXPECT_TRUE(print());
    const auto job = m_server.record(1);
    EXPECT_EQ(job["PRINTER"], "second");
    EXPECT_EQ(job["QnPaperSizeType"], "QnCutSize");
    EXPECT_EQ(job["copies"], "4"); // written before the printer was changed
}

TEST_F(QueueWindow, OffersThePrintersWithoutChoosingOneWhenThereIsNoDefault)
{
    ASSERT_TRUE(m_server.addQueue("second", "usb://Qn/Thermal?serial=2"));
    open("");
    ASSERT_TRUE(waitForMessage("Choose a printer."));
    EXPECT_EQ(printers()->count(), 2);
    EXPECT_EQ(printers()->currentIndex(), -1);
    EXPECT_FALSE(canPrint());
    EXPECT_FALSE(button("Try A&gain")->isVisible()); // it could not help
    choose(*printers(), "counter");
    EXPECT_TRUE(waitFor([this] { return canPrint(); }));
}

TEST_F(QueueWindow, TakesTheOnlyPrinterThereIs)
{
    openAndWait("");
    EXPECT_EQ(printers()->currentText(), "counter");
}

/// A person wants another printer than the default one, which a job has failed on.
class AnotherPrinter : public QueueWindow
{
protected:
    void SetUp() override
    {
        QueueWindow::SetUp();
        ASSERT_EQ(m_server.run("lpadmin", {"-d", "counter"}), 0);
        m_failedQueue = "counter";
    }
};

TEST_F(AnotherPrinter, IsTheOneThatThereIsBesideTheDefault)
{
    ASSERT_TRUE(m_server.addQueue("second", "usb://Qn/Thermal?serial=2"));
    openAndWait("");
    EXPECT_EQ(m_dialog->target()->name(), "second");
    EXPECT_EQ(printers()->currentText(), "second");
}

TEST_F(AnotherPrinter, IsForThePersonToChooseAmongSeveral)
{
    for (const char *name : {"second", "third"})
        ASSERT_TRUE(m_server.addQueue(name, "usb://Qn/Thermal?serial=2"));
    open("");
    ASSERT_TRUE(waitFor([this] { return printers()->count() == 3; }));
    EXPECT_EQ(message(), "Choose a printer.");
    EXPECT_EQ(printers()->currentIndex(), -1);
    EXPECT_FALSE(canPrint());
    choose(*printers(), "counter"); // all the same
    ASSERT_TRUE(waitFor([this] { return canPrint(); }));
    EXPECT_EQ(m_dialog->target()->name(), "counter");
}

TEST_F(AnotherPrinter, IsTheDefaultWhereThatHasNotFailed)
{
    for (const char *name : {"second", "third"})
        ASSERT_TRUE(m_server.addQueue(name, "usb://Qn/Thermal?serial=2"));
    m_failedQueue = "second";
    openAndWait("");
    EXPECT_EQ(m_dialog->target()->name(), "counter");
}

TEST_F(AnotherPrinter, IsTheSameOnceMoreWhereThereIsNoOther)
{
    openAndWait("");
    EXPECT_EQ(printers()->currentText(), "counter");
}

TEST_F(QueueWindow, LooksAgainWhenThereWasNoPrinterYet)
{
    ASSERT_EQ(m_server.run("lpadmin", {"-x", "counter"}), 0);
    open("");
    ASSERT_TRUE(waitForMessage("The print service has no printer yet."));
    ASSERT_TRUE(button("Try A&gain")->isVisible());
    ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
    button("Try A&gain")->click();
    EXPECT_TRUE(waitFor([this] { return canPrint(); })) << message().toStdString();
}

TEST_F(QueueWindow, SaysThatThePrintServiceDoesNotRun)
{
    m_server.stop();
    open();
    ASSERT_TRUE(waitForMessage("The print service does not run."));
    EXPECT_TRUE(button("Try A&gain")->isVisible());
    ASSERT_FALSE(m_server.restart());
    button("Try A&gain")->click();
    EXPECT_TRUE(waitFor([this] { return canPrint(); })) << message().toStdString();
}

TEST_F(QueueWindow, GivesTheFocusBackToPrintWhenAJobDidNotGo)
{
    openAndWait();
    m_server.kill();
    QTest::mouseClick(button("&Print"), Qt::LeftButton);
    ASSERT_TRUE(waitForMessage("counter: no CUPS server answers"));
    EXPECT_EQ(m_window->focusWidget(), button("&Print"));
}

TEST_F(QueueWindow, TellsOfTheJobByWhatTheQueueIsWhenItIsSent)
{
    openAndWait();
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    ASSERT_EQ(m_server.run("cupsdisable", {"-r", "out of paper", "counter"}), 0); // with the window open
    button("&Print")->click();
    ASSERT_TRUE(printed.wait(kPatience));
    EXPECT_EQ(printed[0][1], "ticket.pdf waits: counter is stopped (out of paper)");
    openAndWait();
    QSignalSpy again(m_dialog.get(), &PrintDialog::printed);
    ASSERT_EQ(m_server.run("cupsenable", {"counter"}), 0);
    button("&Print")->click();
    ASSERT_TRUE(again.wait(kPatience));
    EXPECT_EQ(again[0][1], "ticket.pdf: sent to counter");
}

TEST_F(QueueWindow, ShowsThePresetsOfOtherProgramsWithoutWhatTurnsTheReading)
{
    const QString name = QString::fromUtf8("ex\u202epress");
    ASSERT_TRUE(SavedOptions("counter").save({}, {{"QnMedia", "ThermalCopy"}})); // makes the folder
    QFile saved(m_server.path("home/.cups/lpoptions"));
    ASSERT_TRUE(saved.open(QIODevice::Append));
    saved.write("Dest counter/" + name.toUtf8() + " QnMedia=Thermal\n");
    saved.close();
    openAndWait();
    ASSERT_EQ(presets()->count(), 2);
    EXPECT_FALSE(presets()->itemText(1).contains(QChar(0x202e)));
    choose(*presets(), 1);
    EXPECT_FALSE(presets()->currentText().contains(QChar(0x202e)));
    EXPECT_EQ(m_dialog->target()->preset(), name);
    EXPECT_EQ(marked("QnMedia"), "Thermal");
}

TEST_F(QueueWindow, SaysThatTheDefaultsDoNotHoldTheNumberOfCopies)
{
    openAndWait();
    find<QSpinBox>("copies")->setValue(3);
    trigger("Save as &Defaults");
    EXPECT_EQ(message(), "Saved as your defaults for counter, without the number of copies.");
    EXPECT_FALSE(SavedOptions("counter").options().contains("copies"));
}

TEST_F(QueueWindow, PrintsWithReturn)
{
    for (const char *field : {"printers", "papers", "presets", "copies", "pages"}) {
        openAndWait();
        QSignalSpy finished(m_dialog.get(), &PrintDialog::finished);
        m_window->findChild<QWidget *>(field)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(waitFor([&] { return finished.size() == 1; })) << field;
    }
}

TEST_F(QueueWindow, RemembersPrinterAndPresetOfTheLastJob)
{
    ASSERT_TRUE(m_server.addQueue("second", "usb://Qn/Thermal?serial=2"));
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "second/express", "-o", "QnSpeed=S1"}), 0);
    m_prefersLast = true;
    openAndWait("second/express");
    ASSERT_TRUE(print());
    m_prefersLast = false; // as without a window
    openAndWait("counter");
    ASSERT_TRUE(print());
    m_prefersLast = true;
    openAndWait("");
    EXPECT_EQ(printers()->currentText(), "second");
    EXPECT_EQ(presets()->currentText(), "express");
    openAndWait("counter"); // what is asked for counts for more
    EXPECT_EQ(printers()->currentText(), "counter");
    ASSERT_EQ(m_server.run("lpoptions", {"-x", "second/express"}), 0);
    openAndWait("");
    EXPECT_EQ(presets()->currentText(), "Defaults");
    ASSERT_EQ(m_server.run("lpadmin", {"-x", "second"}), 0);
    openAndWait(""); // the only one that is left
    EXPECT_EQ(printers()->currentText(), "counter");
}

TEST_F(QueueWindow, TellsPrintersApartByWhatTheServerSaysOfThem)
{
    ASSERT_EQ(m_server.run("lpadmin", {"-p", "counter", "-D", "Invoices", "-L", "Shop floor 1"}), 0);
    ASSERT_EQ(m_server.run("cupsdisable", {"-r", "Out of paper, call Mia", "counter"}), 0);
    openAndWait();
    ASSERT_TRUE(waitFor([this] { return printers()->currentText() != "counter"; }));
    EXPECT_EQ(printers()->currentText(), "counter – Invoices, Shop floor 1 (stopped: Out of paper, call Mia)");
    EXPECT_EQ(message(), "counter: the queue is stopped; jobs wait until it is started (Out of paper, call Mia)");
}

TEST_F(QueueWindow, DoesNotPrintOnAQueueThatTakesNoJobs)
{
    ASSERT_EQ(m_server.run("cupsreject", {"-r", "closed until noon", "counter"}), 0);
    open();
    ASSERT_TRUE(waitForMessage("counter: the queue does not take jobs now"));
    EXPECT_FALSE(canPrint());
    ASSERT_EQ(m_server.run("cupsaccept", {"counter"}), 0);
    button("Try A&gain")->click();
    EXPECT_TRUE(waitFor([this] { return canPrint(); }));
}

TEST_F(QueueWindow, PutsTheFocusBackAfterAJobThatDidNotGo)
{
    openAndWait();
    pages()->setFocus();
    m_server.kill();
    EXPECT_FALSE(print());
    EXPECT_EQ(QApplication::focusWidget(), pages());
}

TEST_F(QueueWindow, SaysThatAPresetWasChanged)
{
    openAndWait();
    EXPECT_EQ(presets()->currentText(), "Defaults");
    find<QSpinBox>("copies")->setValue(2);
    QApplication::processEvents();
    EXPECT_EQ(presets()->currentText(), "Defaults (changed)");
    savePreset("two");
    EXPECT_EQ(presets()->currentText(), "two");
    moveDown("mMediaPopUp");
    EXPECT_EQ(presets()->currentText(), "two (changed)");
    choose(*presets(), "Defaults");
    choose(*presets(), "two");
    EXPECT_EQ(presets()->currentText(), "two");
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 2); // copies are part of a preset
}

TEST_F(QueueWindow, AsksBeforeAPresetIsReplacedOrDeleted)
{
    // The user's own: lpoptions may save root's for all users.
    ASSERT_TRUE(SavedOptions("counter").save("express", {{"QnSpeed", "S1"}}));
    openAndWait();
    meetBox<PresetNameBox>([this](PresetNameBox &box) {
        auto *const name = box.findChild<QLineEdit *>();
        const auto says = [&box](const QString &text) {
            for (const auto *each : box.findChildren<QPushButton *>())
                if (each->text() == text)
                    return each->isEnabled();
            return false;
        };
        name->setText("Express");
        EXPECT_TRUE(says("&Replace"));
        name->setText("fast");
        EXPECT_TRUE(says("&Save"));
        box.reject();
    });
    trigger("Save as &Preset…");
    EXPECT_EQ(SavedOptions("counter").presets(), QStringList("express"));
    choose(*presets(), "express");
    for (const char *answer : {"Cancel", "&Delete"}) {
        EXPECT_EQ(SavedOptions("counter").presets(), QStringList("express"));
        meetBox<QMessageBox>([answer](QMessageBox &box) {
            for (auto *each : box.buttons())
                if (each->text() == answer)
                    return each->click();
            FAIL();
        });
        trigger("De&lete Preset…");
    }
    EXPECT_EQ(SavedOptions("counter").presets(), QStringList());
    EXPECT_EQ(presets()->currentText(), "Defaults (changed)"); // what is set stays as it is
}

TEST_F(QueueWindow, SaysThatAPresetOfTheSystemStays)
{
    QFile system(m_server.path("etc/lpoptions"));
    ASSERT_TRUE(system.open(QIODevice::WriteOnly) && system.write("Dest counter/express QnSpeed=S1\n") > 0);
    system.close();
    openAndWait();
    choose(*presets(), "express");
    meetBox<QMessageBox>([](QMessageBox &box) { box.buttons().first()->click(); });
    trigger("De&lete Preset…");
    EXPECT_EQ(message(), system.fileName() + ": has the preset “express” for all users; it stays");
    EXPECT_EQ(presets()->currentText(), "express");
}

TEST_F(QueueWindow, LeavesMenusAndNumbersToTheWheelOnlyWhileTheyHaveTheFocus)
{
    openAndWait();
    pages()->setFocus();
    const auto turn = [](QWidget &field) {
        const QPointF middle = field.rect().center();
        QWheelEvent notch(middle, field.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&field, &notch);
        QApplication::processEvents();
    };
    const QString before = papers()->currentText();
    for (QWidget *field : {static_cast<QWidget *>(papers()), static_cast<QWidget *>(printers()),
                           static_cast<QWidget *>(find<QSpinBox>("copies")),
                           static_cast<QWidget *>(find<toolkit::PopUpControl>("mMediaPopUp"))}) {
        turn(*field);
        EXPECT_EQ(QApplication::focusWidget(), pages()) << field->objectName().toStdString();
    }
    EXPECT_EQ(papers()->currentText(), before);
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 1);
    EXPECT_EQ(marked("QnMedia"), "Thermal");
    papers()->setFocus();
    turn(*papers());
    EXPECT_NE(papers()->currentText(), before);
}

TEST_F(QueueWindow, PrintsWhatIsDroppedOnIt)
{
    openAndWait();
    m_dialog->chooseDocuments({});
    EXPECT_EQ(message(), "Choose a file to print, or drop one here.");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(kTicket)});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    EXPECT_EQ(message(), "");
    EXPECT_TRUE(print());
}

TEST_F(QueueWindow, HasItsSizeFromTheBeginning)
{
    m_server.freeze();
    open();
    const QSize before = m_window->size();
    m_server.thaw();
    ASSERT_TRUE(waitFor([this] { return canPrint(); }));
    QApplication::processEvents();
    EXPECT_EQ(m_window->size(), before);
    EXPECT_FALSE(m_window->findChild<FittingScrollArea *>()->verticalScrollBar()->isVisible());
    EXPECT_LE(before.width(), 560);
    EXPECT_LE(before.height(), 560);
    pages()->setText("3-1");
    EXPECT_FALSE(print());
    EXPECT_NE(message(), "");
    EXPECT_EQ(m_window->size(), before); // a message moves nothing
}

TEST_F(QueueWindow, RemembersWhetherTheSummaryIsUnfolded)
{
    openAndWait();
    EXPECT_EQ(m_window->findChild<SummaryView *>(), nullptr);
    EXPECT_LE(m_window->width(), 560);
    summary();
    EXPECT_TRUE(find<SummaryView>()->isVisible());
    const int width = m_window->width();
    openAndWait();
    ASSERT_TRUE(find<SummaryView>());
    EXPECT_TRUE(find<SummaryView>()->isVisible());
    EXPECT_EQ(m_window->width(), width);
    find<QPushButton>("unfold")->click();
    EXPECT_LE(m_window->width(), 560);
    openAndWait();
    EXPECT_EQ(m_window->findChild<SummaryView *>(), nullptr);
}

TEST_F(QueueWindow, PrintsWhatWasChosenInIt)
{
    openAndWait();
    m_dialog->chooseDocuments({support::JobPDF().pages(3, {595, 842}).file(m_server.path("pages.pdf"))});
    choosePaper("RollA4");
    moveDown("mMediaPopUp");
    auto *const amount = find<toolkit::FieldControl>("mPaperFeedTxt");
    amount->paste("40");
    find<QSpinBox>()->setValue(3);
    pages()->setText("2-3");
    ASSERT_TRUE(print()) << message().toStdString();
    const auto job = m_server.record(1);
    EXPECT_EQ(job["QnMedia"], "ThermalCopy");
    EXPECT_EQ(job["QnPaperSizeType"], "QnRollSize");
    EXPECT_NEAR(job["parameter QnPaperFeed"].toDouble(), 40 / 25.4, 0.0001);
    EXPECT_EQ(job["copies"], "3");
    EXPECT_EQ(support::wordsOf(m_server.documentOf(1)), QStringList({"Page 2", "Page 3"})); // its driver takes PDF
}

TEST_F(QueueWindow, OffersPrintingInBothDirectionsOverUSBOnly)
{
    ASSERT_TRUE(m_server.addQueue("far", "socket://127.0.0.1:9"));
    const auto isOffered = [this] {
        const QWidget *view = session().panel("advanced")->panelView();
        return view->findChild<toolkit::CheckControl *>("mBiDiPrintChkBx")->isEnabled();
    };
    openAndWait("counter");
    EXPECT_TRUE(isOffered());
    openAndWait("far");
    EXPECT_FALSE(isOffered());
}

TEST_F(QueueWindow, SaysWhichPagesAreNone)
{
    openAndWait();
    pages()->setText("3-1");
    EXPECT_FALSE(print());
    EXPECT_EQ(message(), "“3-1” are no pages. Write single pages and ranges, such as 1-3,5.");
    EXPECT_EQ(m_server.openJobs(), "");
    pages()->setText("1");
    EXPECT_EQ(message(), ""); // its reason has gone
    EXPECT_TRUE(print());
}

TEST_F(QueueWindow, PrintsSeveralDocumentsEachAsAJobOfItsOwn)
{
    openAndWait();
    m_dialog->chooseDocuments({kTicket, m_server.path("none.pdf"), kTicket});
    EXPECT_EQ(m_window->windowTitle(), "Print ticket.pdf and 1 more");
    EXPECT_EQ(message(), m_server.path("none.pdf") + ": No such file or directory");
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    QSignalSpy finished(m_dialog.get(), &PrintDialog::finished);
    button("&Print")->click();
    ASSERT_TRUE(waitFor([&] { return finished.size() == 1; }));
    EXPECT_EQ(printed.size(), 2);
    EXPECT_FALSE(m_window->isVisible());
    for (const int job : {1, 2})
        EXPECT_EQ(m_server.record(job)["title"], "ticket.pdf");
}

TEST_F(QueueWindow, KeepsTheDocumentsThatWereNotPrinted)
{
    openAndWait();
    m_dialog->chooseDocuments({kTicket, kTicket});
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    QObject::connect(m_dialog.get(), &PrintDialog::printed, [this] { m_server.kill(); });
    button("&Print")->click();
    ASSERT_TRUE(waitForMessage("counter: no CUPS server answers"));
    EXPECT_EQ(printed.size(), 1);
    EXPECT_EQ(m_window->windowTitle(), "Print ticket.pdf");
    EXPECT_TRUE(canPrint());
}

TEST_F(QueueWindow, HasNothingToPrintWithoutADocument)
{
    openAndWait();
    m_dialog->chooseDocuments({});
    m_dialog->chooseDocuments({m_server.path("none.pdf")});
    EXPECT_EQ(message(), m_server.path("none.pdf") + ": No such file or directory");
    EXPECT_FALSE(canPrint());
    m_dialog->chooseDocuments({kTicket});
    EXPECT_EQ(message(), "");
    EXPECT_TRUE(print());
}

TEST_F(QueueWindow, TellsInOneLineWhichChoiceMovedAnother)
{
    openAndWait();
    find<QTabBar>()->setCurrentIndex(1);
    auto *const speed = find<toolkit::PopUpControl>("mSpeedPopUp");
    QTest::keyClick(speed, Qt::Key_End);
    QApplication::processEvents();
    ASSERT_EQ(marked("QnSpeed"), "S3");
    EXPECT_EQ(message(), "");
    find<QTabBar>()->setCurrentIndex(0);
    moveDown("mMediaPopUp");
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy");
    EXPECT_NE(marked("QnSpeed"), "S3");
    EXPECT_TRUE(message().contains("instead of “Fastest”, to go with Paper Type “Thermal Copy Paper”."))
        << message().toStdString();
    EXPECT_EQ(m_alerts, QStringList());
    moveDown("mDensityPopUp");
    EXPECT_EQ(message(), ""); // told once
}

TEST_F(QueueWindow, SavesDefaultsThatEveryProgramFinds)
{
    openAndWait();
    choosePaper("RollA4");
    moveDown("mMediaPopUp");
    trigger("Save as &Defaults");
    EXPECT_EQ(message(), "Saved as your defaults for counter.");
    ASSERT_EQ(m_server.run("lp", {"-d", "counter", kTicket}), 0);
    const auto job = m_server.record(1);
    EXPECT_EQ(job["PageSize"], "RollA4");
    EXPECT_EQ(job["QnMedia"], "ThermalCopy");
    EXPECT_EQ(job["QnPaperSizeType"], "QnRollSize");
    openAndWait();
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy");
    EXPECT_EQ(session().paper().name, QString("RollA4"));
}

TEST_F(QueueWindow, SavesAndRestoresPresetsThroughThePanels)
{
    openAndWait();
    choosePaper("RollA4");
    moveDown("mMediaPopUp");
    savePreset("express");
    EXPECT_EQ(message(), "Saved as “express” for counter.");
    EXPECT_EQ(items(*presets()), QStringList({"Defaults", "express"}));
    EXPECT_EQ(presets()->currentText(), "express");

    choose(*presets(), "Defaults");
    EXPECT_EQ(marked("QnMedia"), "Thermal");
    EXPECT_EQ(session().paper().name, QString("A4"));
    EXPECT_EQ(find<toolkit::PopUpControl>("mMediaPopUp")->currentIndex(), 0);

    choose(*presets(), "express");
    EXPECT_EQ(message(), ""); // all is as it was saved
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy");
    EXPECT_EQ(marked("PageSize"), "RollA4");
    EXPECT_EQ(find<toolkit::PopUpControl>("mMediaPopUp")->currentIndex(), 1);
    EXPECT_EQ(papers()->currentData(), "RollA4");

    ASSERT_EQ(m_server.run("lp", {"-d", "counter/express", kTicket}), 0);
    EXPECT_EQ(m_server.record(1)["QnMedia"], "ThermalCopy");
    QByteArray options;
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter/express"}, &options), 0);
    EXPECT_TRUE(options.contains("QnMedia=ThermalCopy")) << options.toStdString();

    openAndWait("counter/express");
    EXPECT_EQ(presets()->currentText(), "express");
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy");

    meetBox<QMessageBox>([](QMessageBox &box) { box.buttons().first()->click(); });
    trigger("De&lete Preset…");
    EXPECT_EQ(items(*presets()), QStringList("Defaults (changed)"));
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy"); // what is set stays as it is
}

TEST_F(QueueWindow, KeepsAPresetFromWhatOthersSavedAsDefaults)
{
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter", "-o", "QnDensity=D4", "-o", "number-up=2"}), 0);
    openAndWait();
    EXPECT_EQ(marked("QnDensity"), "D4");
    find<toolkit::PopUpControl>("mDensityPopUp")->setFocus();
    QTest::keyClick(find<toolkit::PopUpControl>("mDensityPopUp"), Qt::Key_Home);
    QApplication::processEvents();
    ASSERT_EQ(marked("QnDensity"), "DHome");
    savePreset("plain");
    // The PPD's own default has to be saved as well: without it the user's own one would come back.
    const OptionValues saved = SavedOptions("counter").options("plain");
    EXPECT_EQ(saved["QnDensity"], "DHome");
    EXPECT_EQ(saved["number-up"], "2");
    choose(*presets(), "Defaults");
    EXPECT_EQ(marked("QnDensity"), "D4");
    choose(*presets(), "plain");
    EXPECT_NE(marked("QnDensity"), "D4");
}

TEST_F(QueueWindow, TellsWhatOfAPresetThePanelsDecideAnew)
{
    // Whatever was saved, the amount begins at 26 mm; the person has to know before they print.
    ASSERT_EQ(
        m_server.run("lpoptions", {"-p", "counter/long", "-o", "PageSize=RollA4", "-o", "QnPaperFeed=Custom.1.5"}), 0);
    openAndWait();
    choose(*presets(), "long");
    EXPECT_EQ(message(), "Paper Feed is not as it was saved: the rules for the paper decide it.");
    EXPECT_EQ(session().marks().all()["QnPaperFeed"], "Custom.1.02362");
}

TEST_F(QueueWindow, TellsWhatOfAPresetThePrinterNoLongerHas)
{
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter/old", "-o", "QnDensity=D99"}), 0);
    openAndWait();
    choose(*presets(), "old");
    EXPECT_EQ(message(), "Print Density is not as it was saved: the printer has no such choice any more.");
}

TEST_F(QueueWindow, TakesCopiesAndPagesOfAPresetIntoTheirFields)
{
    ASSERT_EQ(m_server.run("lpoptions",
                           {"-p", "counter/three", "-o", "copies=3", "-o", "page-ranges=1-2", "-o", "number-up=2"}),
              0);
    openAndWait();
    m_dialog->chooseDocuments({support::JobPDF().pages(3, {595, 842}).file(m_server.path("pages.pdf"))});
    choose(*presets(), "three");
    EXPECT_EQ(find<QSpinBox>()->value(), 3);
    EXPECT_EQ(pages()->text(), "1-2");
    find<QSpinBox>()->setValue(2);
    ASSERT_TRUE(print()) << message().toStdString();
    const auto job = m_server.record(1);
    EXPECT_EQ(job["copies"], "2");
    const QStringList options = job["options"].split(' ');
    EXPECT_EQ(support::wordsOf(m_server.documentOf(1)), QStringList({"Page 1", "Page 2"}));
    EXPECT_TRUE(options.contains("number-up=2"));
}

TEST_F(QueueWindow, TakesNoNameThatOtherProgramsCouldNotRead)
{
    openAndWait();
    meetBox<PresetNameBox>([](PresetNameBox &box) {
        box.findChild<QLineEdit *>()->setText("two words");
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_TRUE(box.isVisible()); // and what was typed stays
        EXPECT_EQ(box.findChildren<QLabel *>().last()->text(),
                  "“two words”: a name is one word without slashes and quotation marks");
        box.reject();
    });
    trigger("Save as &Preset…");
    EXPECT_EQ(SavedOptions("counter").presets(), QStringList());
}

TEST_F(QueueWindow, OffersGeneralSettingsForAQueueWithoutAPPD)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "file://" + m_server.path("tmp/printed")));
    openAndWait("plain");
    EXPECT_EQ(message(), "No driver describes this printer: it has general settings only.");
    EXPECT_EQ(find<QTabBar>()->count(), 1); // of what the server offers
    EXPECT_EQ(papers()->isVisible(), papers()->count() > 0);
    find<QSpinBox>()->setValue(2);
    EXPECT_TRUE(print());
    EXPECT_TRUE(waitFor([this] { return m_server.openJobs().isEmpty(); }));
    ASSERT_TRUE(waitFor([this] { return printers()->findText("counter") >= 0; }));
    choose(*printers(), "counter"); // and back to one that has panels
    ASSERT_TRUE(waitFor([this] { return find<QTabBar>()->count() == 2; }));
}

TEST_F(QueueWindow, ClosesAtOnceWhileAServerKeepsSilent)
{
    m_server.freeze();
    open();
    QElapsedTimer clock;
    clock.start();
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    EXPECT_FALSE(m_window->isVisible());
    m_window.reset();
    EXPECT_LT(clock.elapsed(), 5000); // looking goes on for ten seconds, without anybody waiting for it
    m_server.thaw();
}

TEST_F(QueueWindow, OffersToLookAgainWhenTheServerDiesMeanwhile)
{
    m_server.freeze();
    open();
    ASSERT_TRUE(waitFor([this] { return m_server.hasClient(); }));
    m_server.kill();
    ASSERT_TRUE(waitFor([this] { return button("Try A&gain")->isVisible(); })) << message().toStdString();
    EXPECT_TRUE(message().startsWith("counter: ")) << message().toStdString();
    EXPECT_FALSE(canPrint());
    ASSERT_FALSE(m_server.restart());
    button("Try A&gain")->click();
    ASSERT_TRUE(waitFor([this] { return canPrint(); })) << message().toStdString();
    EXPECT_FALSE(button("Try A&gain")->isVisible());
    EXPECT_TRUE(print());
}

TEST_F(QueueWindow, SaysThatTheServerIsSilent)
{
    m_server.freeze();
    open();
    EXPECT_TRUE(waitForMessage("counter: the CUPS server does not answer"));
    EXPECT_TRUE(button("Try A&gain")->isVisible());
    m_server.thaw();
}

TEST_F(QueueWindow, KeepsTheJobWhenTheServerDiesBeforeItGoes)
{
    openAndWait();
    moveDown("mMediaPopUp");
    m_server.kill();
    EXPECT_FALSE(print());
    EXPECT_EQ(message(), "counter: no CUPS server answers");
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy");
    ASSERT_FALSE(m_server.restart());
    EXPECT_TRUE(print());
    EXPECT_EQ(m_server.record(1)["QnMedia"], "ThermalCopy");
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(QueueWindow, StopsAJobWithCancelAndStaysForTheNext)
{
    openAndWait();
    m_server.freeze();
    button("&Print")->click();
    EXPECT_FALSE(canPrint());
    EXPECT_TRUE(find<QProgressBar>()->isVisible());
    const auto *const progress = QAccessible::queryAccessibleInterface(find<QProgressBar>());
    EXPECT_EQ(progress->role(), QAccessible::ProgressBar);
    EXPECT_EQ(progress->text(QAccessible::Name), "Sending");
    button("Cancel")->click();
    // Of the queue's name is spoken only when the job was on its way already.
    ASSERT_TRUE(waitFor([this] { return message().endsWith("cancelled; nothing was printed"); }));
    EXPECT_TRUE(m_window->isVisible());
    m_server.thaw();
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_TRUE(print());
    EXPECT_FALSE(m_server.record(1).isEmpty());
    EXPECT_EQ(m_server.recordCount(), 1);
}

/// The server's end comes at a moment of the job.
class FatefulSink : public JobSink
{
public:
    FatefulSink(CupsServer &server, double share)
        : m_server(server)
        , m_share(share)
    {}
    foundation::Or<QString> submit(const Job &job, const JobProgress &progress, std::stop_token stop) override
    {
        if (m_share == 0) // the panels have agreed, nothing has gone yet
            m_server.kill();
        CupsSink sink("counter", std::nullopt);
        const auto tell = [&](qint64 done, qint64 total) {
            if (static_cast<double>(done) > m_share * static_cast<double>(total))
                m_server.kill();
            progress(done, total);
        };
        return sink.submit(job, tell, std::move(stop));
    }

private:
    CupsServer &m_server;
    double m_share;
};

struct Moment
{
    const char *name;
    double share;
    const char *message;
};
class EndsOfTheServer : public QueueWindow, public testing::WithParamInterface<Moment>
{};

TEST_P(EndsOfTheServer, AreToldAndLeaveTheWindowAsItIs)
{
    QFile large(m_server.path("tmp/large.txt"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.write(QByteArray(8 << 20, 'x')) && large.flush());
    open("counter", large.fileName());
    ASSERT_TRUE(waitFor([this] { return canPrint(); }));
    m_dialog->target()->setSink(std::make_shared<FatefulSink>(m_server, GetParam().share));
    moveDown("mMediaPopUp");
    EXPECT_FALSE(print());
    EXPECT_TRUE(message().contains(GetParam().message)) << message().toStdString();
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_TRUE(canPrint());
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy");
    EXPECT_EQ(m_server.recordCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(At, EndsOfTheServer,
                         testing::Values(Moment{"BetweenAgreementAndJob", 0, "counter: no CUPS server answers"},
                                         Moment{"InTheMiddleOfTheJob", 0.5, "look before you print again"}),
                         [](const auto &row) { return row.param.name; });

TEST_F(QueueWindow, DoesNotPrintByAPPDThatChangedMeanwhile)
{
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter/express", "-o", "QnSpeed=S1"}), 0);
    m_asked = {{"QnMedia", "Thermal"}};
    openAndWait("counter/express");
    moveDown("mMediaPopUp");
    QTest::qWait(2100); // the server tells changes by the second
    ASSERT_TRUE(
        m_server.addQueue("counter", "usb://Qn/Thermal?serial=1", {{"*DefaultQnDensity:", "*DefaultQnDensity: D4"}}));
    EXPECT_FALSE(print());
    ASSERT_TRUE(waitForMessage("The printer's description has changed on the server. Please look over the settings."));
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_EQ(m_server.recordCount(), 0);
    EXPECT_EQ(marked("QnMedia"), "ThermalCopy"); // the person's own choice stays, also above the command line
    EXPECT_EQ(marked("QnSpeed"), "S1");
    EXPECT_EQ(presets()->currentText(), "express");
    ASSERT_TRUE(waitFor([this] { return canPrint(); }));
    EXPECT_TRUE(print());
    EXPECT_EQ(m_server.record(1)["QnMedia"], "ThermalCopy");
}

TEST_F(QueueWindow, SaysThatTheQueueTakesNoJobs)
{
    openAndWait();
    ASSERT_EQ(m_server.run("cupsreject", {"counter"}), 0);
    EXPECT_FALSE(print());
    EXPECT_TRUE(message().startsWith("counter: ")) << message().toStdString();
    EXPECT_EQ(m_server.openJobs(), "");
    ASSERT_EQ(m_server.run("cupsaccept", {"counter"}), 0);
    EXPECT_TRUE(print());
    EXPECT_EQ(m_server.record(1)["title"], "ticket.pdf");
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(QueueWindow, TellsOfAStoppedQueueBeforeAndLeavesTheJobInIt)
{
    ASSERT_EQ(m_server.run("cupsdisable", {"counter"}), 0);
    openAndWait();
    EXPECT_EQ(message(), "counter: the queue is stopped; jobs wait until it is started");
    EXPECT_TRUE(print());
    EXPECT_TRUE(m_server.openJobs().startsWith("counter-1 "));
    ASSERT_EQ(m_server.run("cupsenable", {"counter"}), 0);
    EXPECT_EQ(m_server.record(1)["title"], "ticket.pdf");
}

} // namespace
