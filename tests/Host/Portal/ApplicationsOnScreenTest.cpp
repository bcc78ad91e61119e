// People who print from their applications: real ones, through the portal's real front end, with the dialog on a real
// screen and a real print server behind it.
#include "Desktop.h"
#include "JobPDF.h"
#include "Print.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <csignal>
#include <iostream>

using support::Desktop;
using support::PrintingApplication;
using support::Seen;
using Place = PrintingApplication::Place;

namespace {

constexpr int kMilliseconds = 20000;

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
    bool shows(const QString &label, const QString &value) const
    {
        return wait([&](const Seen &each) { return each.label == label && each.name == value; }).has_value();
    }
    /// Into the field that the keys lead to, in place of what it says.
    void fill(const QString &keys, const QString &text) const
    {
        m_desktop.screen().press(keys);
        m_desktop.screen().press("ctrl+a");
        m_desktop.screen().type(text);
    }
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
    PrintingApplication application(m_desktop);
    const auto notThere = application.start({{"gtk", GetParam().gtk}}, GetParam().place);
    ASSERT_FALSE(notThere) << notThere->toStdString();
    application.print();
    ASSERT_TRUE(canPress("Print"));
    m_desktop.screen().press("alt+e");
    m_desktop.screen().type("A5");
    ASSERT_TRUE(shows("Paper:", "A5"));
    ASSERT_TRUE(m_desktop.screen().choose(
        "qnprint", [](const Seen &each) { return each.role == "combo box" && each.name == "Thermal Paper"; },
        "Thermal Copy Paper"));
    fill("alt+c", "2");
    m_desktop.screen().press("alt+p");

    const QJsonObject paper = application.told("begin");
    EXPECT_EQ(paper["paper"].toString(), "iso_a5");
    EXPECT_NEAR(paper["width"].toDouble(), 148, 0.5);
    EXPECT_NEAR(paper["height"].toDouble(), 210, 0.5);
    EXPECT_EQ(application.told("done")["result"].toString(), "apply");
    const auto job = m_desktop.server().record(1);
    EXPECT_EQ(job["PRINTER"], "counter");
    EXPECT_EQ(job["PageSize"], "A5");
    EXPECT_EQ(job["QnMedia"], "ThermalCopy");
    EXPECT_EQ(job["copies"], "2");
    EXPECT_EQ(support::wordsOf(m_desktop.server().documentOf(1)), QStringList({"page 1", "page 2"})); // not four
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

} // namespace
