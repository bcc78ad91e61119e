// The window on a counter's screen of 800 x 600, of which a panel of the desktop takes a part: in every language, with
// the usual fonts and with large ones.
#include "Screen.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

using support::Seen;

namespace {

constexpr QSize kScreen(800, 560);
constexpr int kWidest = 560; // of a window whose summary is folded away
constexpr int kMilliseconds = 20000;

struct Person
{
    const char *language;
    int points; // of the desktop's font
    const char *style;
};

void PrintTo(const Person &person, std::ostream *out)
{
    *out << person.language << ", " << person.points << " points, " << person.style;
}

class SmallScreen : public testing::TestWithParam<Person>
{
protected:
    void SetUp() override
    {
        const auto noScreen = m_screen.start(kScreen);
        ASSERT_FALSE(noScreen) << noScreen->toStdString();
        QFile settings(m_folder.filePath("kdeglobals")); // where the toolkit looks for a desktop's font
        ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
        settings.write("[General]\nfont=DejaVu Sans," + QByteArray::number(GetParam().points) + ",-1,5,50,0,0,0,0,0\n");
        settings.close();
        auto environment = m_screen.extended(QProcessEnvironment::systemEnvironment());
        environment.insert("XDG_CONFIG_HOME", m_folder.path());
        environment.insert("XDG_CURRENT_DESKTOP", "KDE");
        environment.insert("KDE_FULL_SESSION", "true");
        environment.insert("KDE_SESSION_VERSION", "5");
        m_program.setProcessEnvironment(environment);
        m_program.start(QN_PROGRAM,
                        {"-style", GetParam().style, "--ppd", QN_SOURCE_DIR "/examples/ppd/full.ppd", "--language",
                         GetParam().language, QN_SOURCE_DIR "/examples/documents/ticket.pdf"});
        ASSERT_TRUE(m_program.waitForStarted(kMilliseconds)) << m_program.errorString().toStdString();
    }
    void TearDown() override
    {
        m_program.terminate();
        m_program.waitForFinished(kMilliseconds);
    }
    /// What shows once the second panel's tab is there, and stands still.
    std::vector<Seen> look()
    {
        m_screen.waitFor("qnprint", [](const Seen &each) { return each.role == "page tab"; });
        return m_screen.look("qnprint");
    }

    support::Screen m_screen;
    QTemporaryDir m_folder;
    support::Helper m_program;
};

TEST_P(SmallScreen, HasRoomForTheWindowAndItsButtons)
{
    const auto seen = look();
    const auto window = std::ranges::find(seen, QString("dialog"), &Seen::role);
    ASSERT_NE(window, seen.end());
    const QRect screen(QPoint(), kScreen);
    EXPECT_TRUE(screen.contains(window->place));
    if (GetParam().points < 12) {
        EXPECT_LE(window->place.width(), kWidest);
    }
    std::vector<QRect> buttons;
    for (const Seen &each : seen)
        if (each.role == "button" && each.place.bottom() > window->place.bottom() - 60)
            buttons.push_back(each.place);
    ASSERT_GE(buttons.size(), 3U); // another file, Print, Cancel
    for (const QRect &button : buttons) {
        EXPECT_TRUE(window->place.contains(button));
        EXPECT_EQ(std::ranges::count_if(buttons, [&](const QRect &other) { return other.intersects(button); }), 1);
    }
}

TEST_P(SmallScreen, BringsEverythingIntoSightByTab)
{
    // A tab counts as focused along with its row, also when that is not.
    const auto isReached = [](const Seen &each) { return each.isFocused && each.role != "page tab"; };
    const QRect screen(QPoint(), kScreen);
    QStringList reached;
    for (int i = 0; i < 30; ++i) {
        const auto focused = m_screen.waitFor("qnprint", isReached);
        ASSERT_TRUE(focused);
        EXPECT_TRUE(screen.contains(focused->place)) << focused->name.toStdString() << " at " << focused->place.y()
                                                     << ", " << focused->place.height() << " high";
        EXPECT_NE(focused->role, "filler"); // nothing that a person could do anything with
        const QString name = focused->role + ' ' + focused->name + ' ' + focused->label;
        if (reached.contains(name))
            break;
        reached.append(name);
        m_screen.press("Tab");
    }
    EXPECT_GE(reached.size(), 12) << reached.join('|').toStdString();
}

std::vector<Person> people()
{
    std::vector<Person> all;
    for (const char *language : {"en", "de", "fr", "es", "ja", "zh_CN"})
        for (const int points : {9, 16})
            all.push_back({language, points, "fusion"});
    all.push_back({"fr", 9, "adwaita"});
    all.push_back({"de", 9, "adwaita-dark"});
    return all;
}

INSTANTIATE_TEST_SUITE_P(Of, SmallScreen, testing::ValuesIn(people()));

} // namespace
