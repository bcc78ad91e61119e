// People who print from their applications: real ones, through the portal's real front end, with the dialog on a real
// screen and a real print server behind it.
#include "Desktop.h"
#include "JobPDF.h"
#include "Print.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <iostream>

using support::CupsServer;
using support::Desktop;
using support::PrintingApplication;
using support::Seen;
using Guards = CupsServer::Setup::Guards;
using Place = PrintingApplication::Place;

namespace {

constexpr int kMilliseconds = 20000;

/// Where a page is not white.
QRect inkOf(const QImage &page)
{
    QRect ink;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (qGray(page.pixel(x, y)) < 128)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

class OnDesktop : public testing::Test
{
protected:
    void SetUp() override { setUp(Desktop::Backends::ours); }
    void setUp(Desktop::Backends backends)
    {
        const auto noDesktop = m_desktop.start(backends);
        ASSERT_FALSE(noDesktop) << noDesktop->toStdString();
    }
    /// Whatever a test has done, nothing is left of it but the service, and nothing at all when the person logs out.
    void TearDown() override
    {
        if (HasFailure())
            for (const Seen &each : m_desktop.screen().look("qnprint"))
                std::cerr << each.role.toStdString() << " \"" << each.name.toStdString() << "\" ["
                          << each.label.toStdString() << "] " << (each.isEnabled ? "" : "disabled") << '\n';
        EXPECT_TRUE(isAlone("portal")) << "a process is left";
        EXPECT_EQ(m_desktop.temporaryFiles().join(' '), "");
        m_desktop.end();
        EXPECT_TRUE(becomes([this] { return m_desktop.processes().empty(); })) << "a process is left behind";
    }
    /// Waits without an event loop: where the bus has gone, one would end the test.
    static bool becomes(const std::function<bool()> &isSo)
    {
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < kMilliseconds; QThread::msleep(50))
            if (isSo())
                return true;
        return false;
    }
    /// Whether nothing of ours goes on but the service, if it has come yet.
    bool isAlone(const QByteArray &service)
    {
        return becomes([&] { return m_desktop.processes().size() == m_desktop.processes(service).size(); });
    }
    std::optional<Seen> wait(const std::function<bool(const Seen &)> &isIt) const
    {
        return m_desktop.screen().waitFor("qnprint", isIt);
    }
    bool canPress(const QString &button) const
    {
        return wait([&](const Seen &each) { return each.role == "button" && each.name == button && each.isEnabled; })
            .has_value();
    }
    void activate(qulonglong window) const
    {
        m_desktop.screen().ask("xdotool", {"windowactivate", "--sync", QString::number(window)});
    }
    bool shows(const QString &label, const QString &value) const
    {
        return wait([&](const Seen &each) { return each.label == label && each.name == value; }).has_value();
    }
    bool choosePaper(const QString &paper) const
    {
        m_desktop.screen().press("alt+e");
        m_desktop.screen().type(paper);
        return shows("Paper:", paper);
    }
    /// Into the field that the keys lead to, in place of what it says.
    void fill(const QString &keys, const QString &text) const
    {
        m_desktop.screen().press(keys);
        m_desktop.screen().press("ctrl+a");
        m_desktop.screen().type(text);
    }
    /// A printing application whose window shows.
    std::unique_ptr<PrintingApplication> application(const QJsonObject &wish, Place place = Place::open) const
    {
        auto made = std::make_unique<PrintingApplication>(m_desktop);
        if (const auto notThere = made->start(wish, place))
            throw std::runtime_error(notThere->toStdString());
        return made;
    }
    QStringList wordsOf(int job) { return support::wordsOf(m_desktop.server().documentOf(job)); }
    /// Ends a process of ours as a crash would.
    void kill(const QByteArray &word) const
    {
        for (const pid_t process : m_desktop.processes(word))
            ::kill(process, SIGKILL);
    }

    mutable Desktop m_desktop;
};

struct ApplicationRow
{
    const char *name;
    int gtk;
    Place place;
};

void PrintTo(const ApplicationRow &row, std::ostream *out) { *out << row.name; }

class FromApplication : public OnDesktop, public testing::WithParamInterface<ApplicationRow>
{
protected:
    void SetUp() override
    {
        if (GetParam().place == Place::sandbox && !PrintingApplication::canHaveSandbox())
            GTEST_SKIP() << "this system lets nobody have a sandbox (no user namespaces)";
        OnDesktop::SetUp();
    }
    void TearDown() override
    {
        if (!IsSkipped())
            OnDesktop::TearDown();
    }
};

TEST_P(FromApplication, PrintsOnThePaperThatAPersonChoseWithItsOptions)
{
    const auto application = this->application({{"gtk", GetParam().gtk}}, GetParam().place);
    application->print();
    ASSERT_TRUE(canPress("Print"));
    ASSERT_TRUE(choosePaper("A5"));
    ASSERT_TRUE(m_desktop.screen().choose(
        "qnprint", [](const Seen &each) { return each.role == "combo box" && each.name == "Thermal Paper"; },
        "Thermal Copy Paper"));
    fill("alt+c", "2");
    m_desktop.screen().press("alt+p");

    const QJsonObject paper = application->told("begin");
    EXPECT_EQ(paper["paper"].toString(), "iso_a5");
    EXPECT_NEAR(paper["width"].toDouble(), 148, 0.5);
    EXPECT_NEAR(paper["height"].toDouble(), 210, 0.5);
    EXPECT_EQ(application->told("done")["result"].toString(), "apply");
    const auto job = m_desktop.server().record(1);
    EXPECT_EQ(job["title"], GetParam().place == Place::sandbox ? "org.qnprint.Ticket" : "Document"); // GTK tells none
    EXPECT_EQ(job["PRINTER"], "counter");
    EXPECT_EQ(job["PageSize"], "A5");
    EXPECT_EQ(job["QnMedia"], "ThermalCopy");
    EXPECT_EQ(job["copies"], "2");
    EXPECT_EQ(wordsOf(1), QStringList({"page 1", "page 2"})); // not four
    for (const QSizeF &size : support::sizesOf(m_desktop.server().documentOf(1))) {
        EXPECT_NEAR(size.width(), 420, 1);
        EXPECT_NEAR(size.height(), 595, 1);
    }
    EXPECT_EQ(m_desktop.server().recordCount(), 1);
}

INSTANTIATE_TEST_SUITE_P(Of, FromApplication,
                         testing::Values(ApplicationRow{"Gtk3", 3, Place::open}, ApplicationRow{"Gtk4", 4, Place::open},
                                         ApplicationRow{"SandboxedGtk3", 3, Place::sandbox},
                                         ApplicationRow{"SandboxedGtk4", 4, Place::sandbox}),
                         [](const auto &row) { return row.param.name; });

class WithGtk : public FromApplication
{};

INSTANTIATE_TEST_SUITE_P(Of, WithGtk,
                         testing::Values(ApplicationRow{"Gtk3", 3, Place::open},
                                         ApplicationRow{"Gtk4", 4, Place::open}),
                         [](const auto &row) { return row.param.name; });

TEST_P(WithGtk, TheDialogBelongsToTheWindowAndCancellingItIsTold)
{
    const auto application = this->application({{"gtk", GetParam().gtk}});
    application->print();
    ASSERT_TRUE(canPress("Print"));
    const auto dialog = m_desktop.window();
    ASSERT_TRUE(dialog);
    const QByteArray properties = m_desktop.properties(*dialog);
    const QByteArray owner = QByteArray::number(application->window(), 16);
    EXPECT_TRUE(properties.contains("WM_TRANSIENT_FOR(WINDOW): window id # 0x" + owner + '\n'))
        << properties.toStdString();
    EXPECT_TRUE(properties.contains("_NET_WM_STATE_MODAL")) << properties.toStdString();
    EXPECT_TRUE(properties.contains("_NET_WM_NAME(UTF8_STRING) = \"Print\"")) << properties.toStdString();
    m_desktop.screen().press("Escape");
    EXPECT_EQ(application->told("done")["result"].toString(), "cancel");
    EXPECT_TRUE(application->close());
    EXPECT_EQ(m_desktop.server().openJobs(), "");
    EXPECT_EQ(m_desktop.server().recordCount(), 0);
}

TEST_P(WithGtk, AJobIsPrintedWhoseApplicationEndsAtOnce)
{
    const auto application = this->application({{"gtk", GetParam().gtk}, {"endsAtOnce", true}});
    application->print();
    ASSERT_TRUE(canPress("Print"));
    fill("alt+a", "2");
    m_desktop.screen().press("alt+p");
    ASSERT_TRUE(application->hasEnded());
    EXPECT_EQ(m_desktop.server().record(1)["PRINTER"], "counter");
    EXPECT_EQ(wordsOf(1), QStringList("page 2"));
}

TEST_P(WithGtk, ALandscapePageStaysOne)
{
    const auto application = this->application({{"gtk", GetParam().gtk}, {"landscape", true}});
    application->print();
    ASSERT_TRUE(canPress("Print"));
    ASSERT_TRUE(choosePaper("A5"));
    m_desktop.screen().press("alt+p");
    const QJsonObject paper = application->told("begin");
    EXPECT_EQ(paper["orientation"].toString(), "landscape");
    EXPECT_EQ(paper["paper"].toString(), "iso_a5");
    EXPECT_EQ(m_desktop.server().record(1)["PageSize"], "A5");
    const auto sizes = support::sizesOf(m_desktop.server().documentOf(1));
    ASSERT_EQ(sizes.size(), 2U);
    EXPECT_NEAR(sizes[0].width(), 420, 1); // of the paper
    const QRect words = inkOf(support::pictureOf(m_desktop.server().documentOf(1), 1, 72));
    EXPECT_GT(words.height(), 2 * words.width()) << "they don't stand along the longer side";
}

TEST_F(OnDesktop, WhatAnApplicationHasKeptComesInAndGoesOutAgain)
{
    // With this driver, the server chooses the pages.
    ASSERT_TRUE(m_desktop.server().addQueue(
        "store", "usb://Qn/Thermal?serial=store",
        {{"*cupsFilter2:", "*cupsFilter2: \"application/vnd.cups-pdf application/vnd.qn-pdf 0 qnfilter\""}}));
    const auto application = this->application({{"gtk", 3},
                                                {"settings", QJsonObject{{"n-copies", "3"},
                                                                         {"printer", "store"},
                                                                         {"print-pages", "ranges"},
                                                                         {"page-ranges", "1"},
                                                                         {"cups-QnDensity", "D3"},
                                                                         {"own-key", "own value"}}}});
    application->print();
    ASSERT_TRUE(shows("Printer:", "store"));
    ASSERT_TRUE(canPress("Print"));
    m_desktop.screen().press("alt+p");
    const QJsonObject kept = application->told("done")["settings"].toObject();
    EXPECT_EQ(kept["printer"].toString(), "store");
    EXPECT_EQ(kept["cups-QnDensity"].toString(), "D3");
    EXPECT_EQ(kept["own-key"].toString(), "own value");
    EXPECT_EQ(kept["n-copies"].toString(), "1"); // they are made already
    const auto job = m_desktop.server().record(1);
    EXPECT_EQ(job["PRINTER"], "store");
    EXPECT_EQ(job["QnDensity"], "D3");
    EXPECT_EQ(job["copies"], "3");
    EXPECT_TRUE(job["options"].contains("page-ranges=2")) << job["options"].toStdString();

    application->print(); // with what it has kept now
    ASSERT_TRUE(shows("Printer:", "store"));
    ASSERT_TRUE(canPress("Print"));
    m_desktop.screen().press("alt+p");
    EXPECT_EQ(m_desktop.server().record(2)["QnDensity"], "D3");
}

TEST_F(OnDesktop, APersonLooksAtThePagesBeforeTheyArePrinted)
{
    const auto application = this->application({{"gtk", 4}});
    application->print();
    ASSERT_TRUE(canPress("Print"));
    ASSERT_TRUE(choosePaper("A5"));
    fill("alt+c", "2");
    m_desktop.screen().press("alt+l");
    m_desktop.screen().press("alt+p");
    EXPECT_EQ(application->told("done")["result"].toString(), "apply");
    ASSERT_TRUE(wait([](const Seen &each) { return each.role == "label" && each.name == "Page 1 of 2"; }));
    EXPECT_TRUE(shows("Paper:", "A5"));
    EXPECT_EQ(m_desktop.server().openJobs(), "");
    ASSERT_TRUE(canPress("Print"));
    m_desktop.screen().press("alt+p");
    const auto job = m_desktop.server().record(1);
    EXPECT_EQ(job["PageSize"], "A5");
    EXPECT_EQ(job["copies"], "2");
    EXPECT_EQ(wordsOf(1), QStringList({"page 1", "page 2"}));
}

TEST_F(OnDesktop, ADialogThatDiesTakesNobodyWithIt)
{
    const auto application = this->application({{"gtk", 3}});
    application->print();
    ASSERT_TRUE(canPress("Print"));
    const auto service = m_desktop.processes("portal");
    ASSERT_EQ(service.size(), 1U);
    kill("prepare-for-application");
    EXPECT_EQ(application->told("done")["result"].toString(), "cancel");
    application->print();
    ASSERT_TRUE(canPress("Print"));
    m_desktop.screen().press("alt+p");
    EXPECT_EQ(m_desktop.server().record(1)["PRINTER"], "counter");
    EXPECT_EQ(m_desktop.processes("portal"), service);
}

TEST_F(OnDesktop, AServiceThatDiesTakesItsDialogWithItAndTheNextOneServes)
{
    const auto application = this->application({{"gtk", 3}});
    application->print();
    ASSERT_TRUE(canPress("Print"));
    kill("portal");
    EXPECT_EQ(application->told("done")["result"].toString(), "cancel");
    EXPECT_TRUE(isAlone("portal"));
    application->print();
    ASSERT_TRUE(canPress("Print"));
    m_desktop.screen().press("alt+p");
    EXPECT_EQ(m_desktop.server().record(1)["PRINTER"], "counter");
}

bool isPrintButton(const Seen &each) { return each.role == "button" && each.name == "Print" && each.isEnabled; }

TEST_F(OnDesktop, TwoApplicationsAtOnceEachGetTheirOwn)
{
    const auto first = application({{"gtk", 3}});
    first->print();
    ASSERT_TRUE(canPress("Print"));
    const auto firstDialog = m_desktop.window();
    ASSERT_TRUE(choosePaper("A5"));
    const auto second = application({{"gtk", 4}});
    second->print();
    ASSERT_TRUE(becomes([this] {
        const auto seen = m_desktop.screen().look("qnprint");
        return std::ranges::count_if(seen, isPrintButton) == 2;
    }));
    const auto secondDialog = m_desktop.window();
    ASSERT_NE(secondDialog, firstDialog);
    activate(*secondDialog);
    fill("alt+c", "2");
    m_desktop.screen().press("alt+p");
    EXPECT_EQ(second->told("begin")["paper"].toString(), "iso_a4");
    EXPECT_EQ(m_desktop.server().record(1)["copies"], "2");
    activate(*firstDialog);
    m_desktop.screen().press("alt+p");
    EXPECT_EQ(first->told("begin")["paper"].toString(), "iso_a5");
    EXPECT_EQ(m_desktop.server().record(2)["copies"], "1");
    EXPECT_EQ(m_desktop.server().record(2)["PageSize"], "A5");
}

TEST_F(OnDesktop, ADocumentComesThroughAPipeByAnotherConnection)
{
    const auto application =
        this->application({{"gtk", 3}, {"document", QN_SOURCE_DIR "/examples/documents/ticket.pdf"}});
    application->print();
    ASSERT_TRUE(canPress("Print"));
    const auto dialog = m_desktop.window();
    ASSERT_TRUE(dialog);
    const QByteArray properties = m_desktop.properties(*dialog);
    EXPECT_TRUE(properties.contains("_NET_WM_NAME(UTF8_STRING) = \"Print\""))
        << properties.toStdString(); // no mnemonic
    const QByteArray owner = QByteArray::number(application->window(), 16);
    EXPECT_TRUE(properties.contains("WM_TRANSIENT_FOR(WINDOW): window id # 0x" + owner + '\n'))
        << properties.toStdString();
    m_desktop.screen().press("alt+p");
    EXPECT_EQ(application->told("begin")["page-setup"].toObject()["PPDName"].toString(), "A4");
    EXPECT_EQ(application->told("done")["response"].toInt(-1), 0);
    const auto job = m_desktop.server().record(1);
    EXPECT_EQ(job["title"], "A ticket");
    EXPECT_EQ(support::wordsOf(m_desktop.server().documentOf(1)),
              support::wordsOf(QN_SOURCE_DIR "/examples/documents/ticket.pdf"));
}

class WithOthers : public OnDesktop
{
protected:
    static constexpr auto kOthers = "xdg-desktop-portal-gtk";

    void SetUp() override { setUp(Desktop::Backends::oursAndGtks); }
};

TEST_F(WithOthers, APersonPrintsWithTheDialogOfTheDesktop)
{
    const auto application = this->application({{"gtk", 3}});
    application->print();
    ASSERT_TRUE(canPress("Print"));
    m_desktop.screen().press("alt+o");
    EXPECT_TRUE(m_desktop.window(kOthers));
    EXPECT_TRUE(isAlone("portal"));
    EXPECT_TRUE(becomes([this] { // that dialog is still looking for its printers
        QThread::msleep(500);
        m_desktop.screen().press("alt+p");
        return m_desktop.screen().ask("xdotool", {"search", "--onlyvisible", "--class", kOthers}).isEmpty();
    }));
    EXPECT_EQ(application->told("done")["result"].toString(), "apply");
    EXPECT_EQ(m_desktop.server().record(1)["PRINTER"], "counter");
    EXPECT_EQ(wordsOf(1), QStringList({"page 1", "page 2"}));
}

TEST_F(WithOthers, APrinterWithoutPanelsOfOursHasTheDialogOfTheDesktopAtOnce)
{
    ASSERT_TRUE(m_desktop.server().addPlainQueue("laser", "usb://Qn/Thermal?serial=laser"));
    ASSERT_EQ(m_desktop.server().run("lpadmin", {"-d", "laser"}), 0);
    const auto application = this->application({{"gtk", 3}});
    application->print();
    EXPECT_TRUE(m_desktop.window(kOthers));
    EXPECT_TRUE(isAlone("portal"));
    EXPECT_EQ(m_desktop.screen().ask("xdotool", {"search", "--class", "qnprint"}), ""); // shown or not
    m_desktop.screen().press("Escape");
    EXPECT_EQ(application->told("done")["result"].toString(), "cancel");
}

/// It asks by one process and prints by another. It asks only where the portal has a file chooser, too.
TEST_F(WithOthers, ABrowserPrintsOnThePaperThatAPersonChose)
{
    if (QStandardPaths::findExecutable("chromium").isEmpty())
        GTEST_SKIP() << "chromium is not installed";
    const QString page = m_desktop.server().path("page.html");
    QFile file(page);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("<title>A fare</title><p>Two zones") > 0);
    file.close();
    support::Helper browser;
    browser.setProcessEnvironment(m_desktop.environment());
    browser.start("chromium", {"--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-print-preview",
                               "--user-data-dir=" + m_desktop.server().path("browser"), page});
    ASSERT_TRUE(becomes([this] {
        return !m_desktop.screen().ask("xdotool", {"search", "--onlyvisible", "--name", "A fare"}).isEmpty();
    }));
    m_desktop.screen().press("ctrl+p");
    ASSERT_TRUE(canPress("Print"));
    ASSERT_TRUE(choosePaper("A5"));
    fill("alt+c", "2");
    m_desktop.screen().press("alt+p");
    const auto job = m_desktop.server().record(1);
    EXPECT_EQ(job["title"], "A fare");
    EXPECT_EQ(job["PageSize"], "A5");
    EXPECT_EQ(job["copies"], "2");
    EXPECT_TRUE(wordsOf(1).join(' ').contains("Two zones"));
    const auto sizes = support::sizesOf(m_desktop.server().documentOf(1));
    ASSERT_EQ(sizes.size(), 1U);
    EXPECT_NEAR(sizes[0].width(), 420, 1);
    browser.terminate();
    browser.waitForFinished(kMilliseconds);
}

/// Between the dialog and the document the printer has become unable to take it.
class NotPrinted : public OnDesktop
{
protected:
    void SetUp() override
    {
        OnDesktop::SetUp();
        m_application = application({{"gtk", 3}, {"waits", true}});
        m_application->print();
        ASSERT_TRUE(canPress("Print"));
        fill("alt+c", "2");
        m_desktop.screen().press("alt+p");
        ASSERT_FALSE(m_application->told("begin").isEmpty());
    }
    void TearDown() override
    {
        m_application.reset();
        OnDesktop::TearDown();
    }
    void sendTheDocument() const
    {
        m_application->print();
        ASSERT_EQ(m_application->told("done")["result"].toString(), "apply");
        ASSERT_TRUE(canPress("Try Again"));
        const auto box = m_desktop.window();
        ASSERT_TRUE(box);
        const QByteArray properties = m_desktop.properties(*box);
        EXPECT_TRUE(properties.contains(" Was Not Printed\"")) << properties.toStdString();
    }
    /// The sentence in the box.
    bool says(const QString &words) const
    {
        return wait([&](const Seen &each) { return each.role == "label" && each.name.contains(words); }).has_value();
    }

    std::unique_ptr<PrintingApplication> m_application;
};

TEST_F(NotPrinted, AJobIsTriedAgain)
{
    m_desktop.server().stop();
    sendTheDocument();
    EXPECT_TRUE(says("no CUPS server answers"));
    m_desktop.screen().press("alt+a");
    ASSERT_TRUE(canPress("Try Again")) << "nothing has changed";
    const auto notThere = m_desktop.server().restart();
    ASSERT_FALSE(notThere) << notThere->toStdString();
    m_desktop.screen().press("alt+a");
    EXPECT_EQ(m_desktop.server().record(1)["copies"], "2");
    EXPECT_EQ(wordsOf(1), QStringList({"page 1", "page 2"}));
}

/// The printer has come to want to know who prints.
class Guarded : public NotPrinted
{
protected:
    void guard(Guards guards) const
    {
        m_desktop.server().stop();
        const auto notThere = m_desktop.server().restart({.guards = guards});
        ASSERT_FALSE(notThere) << notThere->toStdString();
    }
    bool asksWhoPrints() const
    {
        return wait([](const Seen &each) { return each.role == "button" && each.name == "Log In"; }).has_value();
    }
    /// Into the box that asks, which goes then.
    void identify(const QString &password, const QString &why = kAsksForPassword) const
    {
        ASSERT_TRUE(asksWhoPrints());
        EXPECT_TRUE(says(why));
        const auto windows = [this] {
            return m_desktop.screen().ask("xdotool", {"search", "--onlyvisible", "--class", "qnprint"});
        };
        const QByteArray before = windows();
        fill("alt+u", CupsServer::kUser);
        fill("alt+p", password);
        m_desktop.screen().press("Return");
        ASSERT_TRUE(becomes([&] { return windows() != before; }));
    }
    void expectWhatWasSettled()
    {
        const auto job = m_desktop.server().record(1);
        EXPECT_EQ(job["user"], CupsServer::kUser);
        EXPECT_EQ(job["PRINTER"], "counter");
        EXPECT_EQ(job["copies"], "2");
        EXPECT_EQ(wordsOf(1), QStringList({"page 1", "page 2"}));
        EXPECT_EQ(m_desktop.server().recordCount(), 1);
    }

    static constexpr auto kAsksForPassword = "counter: the CUPS server asks for a password";
    static constexpr auto kRefusal = "counter: the CUPS server does not accept the user name or the password";
};

struct GuardRow
{
    const char *name;
    Guards guards;
};

void PrintTo(const GuardRow &row, std::ostream *out) { *out << row.name; }

class GuardedBy : public Guarded, public testing::WithParamInterface<GuardRow>
{};

INSTANTIATE_TEST_SUITE_P(A, GuardedBy,
                         testing::Values(GuardRow{"ServerThatAsksWhoPrints", Guards::printing},
                                         GuardRow{"ServerThatAsksWhoLooks", Guards::everything}),
                         [](const auto &row) { return row.param.name; });

TEST_P(GuardedBy, PrintsWhatWasSettledAsSoonAsAPersonSaysWhoTheyAre)
{
    guard(GetParam().guards);
    m_application->print();
    identify(CupsServer::kPassword);
    expectWhatWasSettled();
}

TEST_F(Guarded, AsksThreeTimesAndOnceMoreWhenAPersonTriesAgain)
{
    guard(Guards::printing);
    m_application->print();
    for (int i = 0; i < 3; ++i)
        ASSERT_NO_FATAL_FAILURE(identify("wrong", i == 0 ? kAsksForPassword : kRefusal));
    ASSERT_TRUE(canPress("Try Again"));
    EXPECT_TRUE(says(kRefusal));
    m_desktop.screen().press("alt+a");
    identify(CupsServer::kPassword);
    expectWhatWasSettled();
}

TEST_F(Guarded, KeepsTheDocumentOfAPersonWhoDoesNotSay)
{
    guard(Guards::printing);
    m_application->print();
    ASSERT_TRUE(asksWhoPrints());
    m_desktop.screen().press("Escape");
    ASSERT_TRUE(canPress("Save as PDF…"));
    EXPECT_TRUE(says(kAsksForPassword));
    m_desktop.screen().press("Escape");
}

TEST_F(Guarded, AsksWhenAJobIsTriedAgainThatFailedOtherwise)
{
    m_desktop.server().stop();
    sendTheDocument();
    guard(Guards::printing);
    m_desktop.screen().press("alt+a");
    identify(CupsServer::kPassword);
    expectWhatWasSettled();
}

TEST_F(NotPrinted, AJobIsPrintedOnAnotherPrinter)
{
    ASSERT_EQ(m_desktop.server().run("cupsreject", {"counter"}), 0);
    sendTheDocument();
    EXPECT_TRUE(says("counter"));
    m_desktop.screen().press("alt+p");
    ASSERT_TRUE(shows("Printer:", "office")) << "counter is the default, but it has failed";
    ASSERT_TRUE(canPress("Print"));
    m_desktop.screen().press("alt+p");
    EXPECT_EQ(m_desktop.server().record(1)["PRINTER"], "office");
    EXPECT_EQ(wordsOf(1), QStringList({"page 1", "page 2"}));
}

TEST_F(NotPrinted, AJobIsSavedAsAPDF)
{
    m_desktop.server().kill();
    sendTheDocument();
    m_desktop.screen().press("alt+s");
    ASSERT_TRUE(wait([](const Seen &each) { return each.role == "text" && each.isFocused; }));
    m_desktop.screen().press("ctrl+a");
    const QString path = m_desktop.server().path("saved.pdf");
    m_desktop.screen().type(path);
    m_desktop.screen().press("Return");
    EXPECT_TRUE(becomes([&] { return support::wordsOf(path) == QStringList({"page 1", "page 2"}); }));
}

} // namespace
