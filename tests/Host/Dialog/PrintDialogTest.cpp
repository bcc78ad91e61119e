// The dialog without a window: nothing that a panel stands on is taken away while it is held or a job is on its way.
#include "Dialog/PrintDialog.h"

#include "PPDText.h"
#include "Print.h"
#include "Results.h"

#include "Foundation/UserDefaults.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>

using namespace host;
using support::value;
using State = PrintDialog::State;

namespace {

constexpr int kMilliseconds = 10000;

/// A job that takes until it is let go or stopped.
class SlowSink final : public JobSink
{
public:
    foundation::Or<QString> submit(const Job &job, const JobProgress &, std::stop_token stop) override
    {
        title = job.title;
        hasBegun = true;
        while (!mayEnd && !stop.stop_requested())
            QThread::msleep(1);
        hasEnded = true;
        if (stop.stop_requested())
            return foundation::Problem{"stopped", foundation::Problem::Kind::unanswered};
        return QString("sent");
    }

    QString title;
    std::atomic<bool> hasBegun = false;
    std::atomic<bool> mayEnd = false;
    std::atomic<bool> hasEnded = false;
};

class DialogWithoutWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("HOME", m_directory.path().toUtf8()); // what is saved here is nobody's
        qputenv("CUPS_SERVERROOT", m_directory.path().toUtf8());
        m_dialog = std::make_unique<PrintDialog>(PrintRequest(),
                                                 value(Document::open(QN_SOURCE_DIR "/examples/documents/ticket.pdf")));
    }
    std::unique_ptr<PrintTarget> printer(const QString &name)
    {
        auto target = value(targetOfQueue({}, value(withPPDOpened({name, {}, {}, CachedPPD{m_ppd, 0, {}}, {}, {}}))));
        target->setSink(m_sink);
        return target;
    }
    QString name() const { return m_dialog->target()->name(); }
    void startJob()
    {
        m_dialog->use(printer("one"));
        m_dialog->print();
        ASSERT_EQ(m_dialog->state(), State::sending);
        while (!m_sink->hasBegun) // the document is looked at before
            QThread::msleep(1);
    }

    QTemporaryDir m_directory;
    foundation::ScopedDefaults m_defaults{m_directory.filePath("defaults.ini")};
    QString m_ppd = support::PPDText().allOptions().file();
    std::shared_ptr<SlowSink> m_sink = std::make_shared<SlowSink>();
    std::unique_ptr<PrintDialog> m_dialog;
};

TEST_F(DialogWithoutWindow, SendsNothingOfADocumentThatHasNoSuchPages)
{
    m_dialog->use(printer("one"));
    m_dialog->setPages("2-3");
    QSignalSpy failures(m_dialog.get(), &PrintDialog::failed);
    m_dialog->print();
    ASSERT_TRUE(failures.wait(kMilliseconds));
    EXPECT_EQ(m_dialog->state(), State::ready);
    EXPECT_TRUE(m_dialog->message().contains("ticket.pdf has only one page, not 2-3"))
        << m_dialog->message().toStdString();
    EXPECT_FALSE(m_sink->hasBegun);
    EXPECT_EQ(m_dialog->documents().size(), 1U);
}

TEST_F(DialogWithoutWindow, UsesAPrinterAtOnceWhenNothingStandsOnTheEarlierOne)
{
    m_dialog->use(printer("one"));
    EXPECT_EQ(m_dialog->state(), State::ready);
    m_dialog->use(printer("two"));
    EXPECT_EQ(name(), "two");
}

TEST_F(DialogWithoutWindow, KeepsThePrinterWhileItIsHeld)
{
    m_dialog->use(printer("one"));
    m_dialog->hold();
    m_dialog->hold(); // a box over a box
    m_dialog->use(printer("two"));
    m_dialog->release();
    QCoreApplication::processEvents();
    EXPECT_EQ(name(), "one");
    m_dialog->release();
    EXPECT_EQ(name(), "one"); // whoever opened the box has not returned yet
    QCoreApplication::processEvents();
    EXPECT_EQ(name(), "two");
}

TEST_F(DialogWithoutWindow, KeepsThePrinterWhenItIsHeldAgainBeforeTheEventLoopRuns)
{
    m_dialog->use(printer("one"));
    m_dialog->hold();
    m_dialog->use(printer("two"));
    m_dialog->release();
    m_dialog->hold();
    QCoreApplication::processEvents();
    EXPECT_EQ(name(), "one");
    m_dialog->release();
    QCoreApplication::processEvents();
    EXPECT_EQ(name(), "two");
}

TEST_F(DialogWithoutWindow, IsNotReleasedMoreOftenThanItWasHeld)
{
    m_dialog->use(printer("one"));
    m_dialog->release();
    m_dialog->hold();
    m_dialog->use(printer("two"));
    QCoreApplication::processEvents();
    EXPECT_EQ(name(), "one");
}

TEST_F(DialogWithoutWindow, KeepsThePrinterWhileAJobIsOnItsWay)
{
    startJob();
    m_dialog->use(printer("two"));
    QCoreApplication::processEvents();
    EXPECT_EQ(name(), "one");
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    m_sink->mayEnd = true;
    ASSERT_TRUE(printed.wait(kMilliseconds));
    EXPECT_EQ(name(), "two");
    EXPECT_EQ(m_sink->title, "ticket.pdf");
}

TEST_F(DialogWithoutWindow, TellsOfTheEndOfAJobWhenTheBoxIsClosed)
{
    startJob();
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    m_dialog->hold();
    m_sink->mayEnd = true;
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_sink->hasEnded.load(); }, kMilliseconds));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_dialog->state(), State::sending);
    m_dialog->release();
    ASSERT_TRUE(printed.wait(kMilliseconds));
    EXPECT_EQ(m_dialog->state(), State::ready);
}

TEST_F(DialogWithoutWindow, DoesNothingElseWhileAJobIsOnItsWay)
{
    startJob();
    m_dialog->print();
    m_dialog->choosePrinter("two");
    m_dialog->lookAgain();
    m_dialog->restorePreset("none");
    m_dialog->savePreset("none");
    m_dialog->choosePaper({"RollA4", std::nullopt});
    EXPECT_EQ(m_dialog->state(), State::sending);
    EXPECT_EQ(m_dialog->target()->paper().name, QString("A4"));
    EXPECT_EQ(m_dialog->target()->savedOptions()->presets(), QStringList());
}

TEST_F(DialogWithoutWindow, StopsAJobAndStays)
{
    startJob();
    QSignalSpy failed(m_dialog.get(), &PrintDialog::failed);
    m_dialog->stop();
    ASSERT_TRUE(failed.wait(kMilliseconds));
    EXPECT_EQ(m_dialog->state(), State::ready);
    EXPECT_EQ(m_dialog->message(), "stopped");
}

TEST_F(DialogWithoutWindow, SendsNoFurtherDocumentWhenAStopComesTooLateForOne)
{
    const QString ticket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";
    m_dialog->chooseDocuments({ticket, ticket});
    startJob();
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    QSignalSpy failed(m_dialog.get(), &PrintDialog::failed);
    m_sink->mayEnd = true; // as if the server had taken it by now
    while (!m_sink->hasEnded)
        QThread::msleep(1); // and the dialog had not heard of it
    m_dialog->stop();
    ASSERT_TRUE(failed.wait(kMilliseconds));
    EXPECT_EQ(printed.size(), 1);
    EXPECT_EQ(m_dialog->documents().size(), 1U);
    EXPECT_EQ(m_dialog->state(), State::ready);
    EXPECT_EQ(m_dialog->message(), "Cancelled. What is left was not printed.");
}

TEST_F(DialogWithoutWindow, SaysOfSeveralDocumentsThatOnlyTheRestWasNotPrinted)
{
    const QString ticket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";
    m_dialog->chooseDocuments({ticket, ticket});
    startJob();
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    QSignalSpy failed(m_dialog.get(), &PrintDialog::failed);
    QObject::connect(m_dialog.get(), &PrintDialog::printed, [this] { m_sink->mayEnd = false; });
    m_sink->mayEnd = true;
    ASSERT_TRUE(printed.wait(kMilliseconds));
    m_dialog->stop();
    ASSERT_TRUE(failed.wait(kMilliseconds));
    EXPECT_EQ(m_dialog->message(), "Cancelled. What is left was not printed.");
    EXPECT_EQ(m_dialog->documents().size(), 1U);
}

TEST_F(DialogWithoutWindow, LeavesNoJobHalfSentWhenItEnds)
{
    startJob();
    m_dialog.reset();
    EXPECT_TRUE(m_sink->hasEnded);
}

TEST_F(DialogWithoutWindow, PrintsTheCopiesAndPagesAskedForElseThoseThatAreSaved)
{
    ASSERT_TRUE(SavedOptions("one").save({}, {{"copies", "3"}, {"page-ranges", "1-2"}}));
    const Queue queue{"one", {}, {}, CachedPPD{m_ppd, 0, {}}, {}, {}};
    const auto saved = value(targetOfQueue({}, value(withPPDOpened(queue))));
    EXPECT_EQ(saved->amount().copies, 3);
    EXPECT_EQ(saved->amount().pages, "1-2");
    PrintRequest request;
    request.copies = 5;
    request.pages = "4";
    const auto asked = value(targetOfQueue(request, value(withPPDOpened(queue))));
    EXPECT_EQ(asked->amount().copies, 5);
    EXPECT_EQ(asked->amount().pages, "4");
}

TEST_F(DialogWithoutWindow, TellsEachChangeOfAPresetASentenceAfterTheOther)
{
    m_dialog->use(printer("one"));
    ASSERT_TRUE(SavedOptions("one").save("old", {{"QnDensity", "Gone"}, {"QnSpeed", "Gone"}}));
    QSignalSpy remarked(m_dialog.get(), &PrintDialog::remarked);
    m_dialog->restorePreset("old");
    QCoreApplication::processEvents();
    ASSERT_EQ(remarked.size(), 1);
    const QStringList sentences = remarked[0][0].toStringList();
    ASSERT_EQ(sentences.size(), 2);
    EXPECT_EQ(m_dialog->message(), sentences[0] + ' ' + sentences[1]);
    EXPECT_TRUE(sentences[0].endsWith("the printer has no such choice any more."));
}

TEST_F(DialogWithoutWindow, SaysThatTheFileOfItsPPDCannotServe)
{
    PrintRequest request;
    request.ppd = "/no/such.ppd";
    PrintDialog dialog(request, nullptr);
    EXPECT_EQ(support::sentence(dialog.start()), "/no/such.ppd: No such file or directory");
    EXPECT_EQ(dialog.target(), nullptr);
}

} // namespace
