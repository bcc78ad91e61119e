// A printer's answer that comes while a box is open over the window: an alert that a panel's own code has opened and
// stands beneath, or the box for a preset's name. Nothing of the printer may go before the box does.
#include "CupsServer.h"
#include "WindowTest.h"

#include "Dialog/PrinterFinder.h"
#include "Toolkit/Controls.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

using namespace host;
using support::CupsServer;

namespace {

constexpr int kMilliseconds = 40000;

enum class Box { alert, nameBox };
enum class Comes { printer, printerWithoutPPD, problem };

struct Meeting
{
    const char *name;
    Box box;
    Comes answer;
};

class BoxOverTheWindow : public support::WindowTest, public testing::WithParamInterface<Meeting>
{
protected:
    void SetUp() override
    {
        const auto problem = m_server.start();
        ASSERT_FALSE(problem) << problem->toStdString();
        m_server.adoptEnvironment();
        setUp(m_server.path("defaults.ini"));
        ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
        ASSERT_TRUE(m_server.addQueue("second", "usb://Qn/Thermal?serial=2"));
        ASSERT_TRUE(m_server.addPlainQueue("plain", "file://" + m_server.path("tmp/printed")));
        PrintRequest request;
        request.queue = "counter";
        makeDialog(request);
        ASSERT_TRUE(m_dialog->start());
        showWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return canPrint() && printers()->count() == 3; }, kMilliseconds));
    }
    /// Opens the box; returns when it is closed.
    void openBox(Box box)
    {
        if (box == Box::nameBox)
            return trigger("Save as &Preset…");
        const toolkit::PresentAlerts asBoxes({});
        auto *const amount = find<toolkit::FieldControl>("mPaperFeedTxt");
        amount->setFocus();
        amount->selectAll();
        QTest::keyClicks(amount, "60");
    }
    void letAnswerCome(Comes answer)
    {
        auto *const finder = m_dialog->findChild<PrinterFinder *>();
        QSignalSpy found(finder, &PrinterFinder::found);
        QSignalSpy failed(finder, &PrinterFinder::failed);
        if (answer == Comes::problem)
            m_server.kill();
        else
            m_server.thaw();
        ASSERT_TRUE(QTest::qWaitFor([&] { return found.size() + failed.size() == 1; }, kMilliseconds));
        ASSERT_EQ(failed.size(), answer == Comes::problem ? 1 : 0);
    }

    CupsServer m_server;
};

TEST_P(BoxOverTheWindow, KeepsThePrinterUntilItIsClosed)
{
    const auto [name, box, answer] = GetParam();
    const QPointer<QWidget> panel = session().panelOnDisplay()->panelView();
    m_server.freeze();
    choose(*printers(), answer == Comes::printerWithoutPPD ? "plain" : "second");
    ASSERT_EQ(m_dialog->state(), PrintDialog::State::looking);
    bool boxWasOpen = false;
    QTimer::singleShot(0, m_window.get(), [&] {
        auto *const open = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(open);
        boxWasOpen = true;
        letAnswerCome(answer);
        EXPECT_EQ(m_dialog->state(), PrintDialog::State::looking);
        EXPECT_EQ(m_dialog->target()->name(), "counter");
        EXPECT_TRUE(panel);
        if (auto *const question = qobject_cast<PresetNameBox *>(open))
            question->findChild<QLineEdit *>()->setText("late");
        open->accept();
    });
    openBox(box);
    ASSERT_TRUE(boxWasOpen);
    EXPECT_TRUE(panel); // the code that opened the box has returned to it
    const auto state = answer == Comes::problem ? PrintDialog::State::noPrinter : PrintDialog::State::ready;
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_dialog->state() == state; }, kMilliseconds));
    EXPECT_EQ(m_dialog->target()->name(), answer == Comes::printer             ? "second"
                                          : answer == Comes::printerWithoutPPD ? "plain"
                                                                               : "counter");
    EXPECT_EQ(SavedOptions("counter").presets(), box == Box::nameBox ? QStringList("late") : QStringList());
}

INSTANTIATE_TEST_SUITE_P(When, BoxOverTheWindow,
                         testing::Values(Meeting{"AnAlertMeetsAPrinter", Box::alert, Comes::printer},
                                         Meeting{"AnAlertMeetsAPlainPrinter", Box::alert, Comes::printerWithoutPPD},
                                         Meeting{"AnAlertMeetsAProblem", Box::alert, Comes::problem},
                                         Meeting{"ANameMeetsAPrinter", Box::nameBox, Comes::printer},
                                         Meeting{"ANameMeetsAPlainPrinter", Box::nameBox, Comes::printerWithoutPPD},
                                         Meeting{"ANameMeetsAProblem", Box::nameBox, Comes::problem}),
                         [](const auto &row) { return row.param.name; });

} // namespace
