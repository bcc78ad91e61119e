// Which print dialog applications get: by a user's choice, which leaves everything else as the desktop has it.
#include "Print.h"
#include "Results.h"

#include "Portal/Backends.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

namespace {

class Portals : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("XDG_CONFIG_HOME", path("config").toUtf8());
        qputenv("XDG_CONFIG_DIRS", path("system").toUtf8());
        qputenv("XDG_DATA_HOME", path("data").toUtf8());
        qputenv("XDG_DATA_DIRS", path("share").toUtf8());
        qputenv("XDG_CURRENT_DESKTOP", "Test:GNOME");
        qunsetenv("XDG_DESKTOP_PORTAL_DIR");
        addPortal("gtk", "gnome");
        addPortal("kde", "KDE");
        addPortal("qnprint", "");
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &text) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    /// Empty where there is none.
    QByteArray text(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void addPortal(const QByteArray &name, const QByteArray &desktops,
                   const QByteArray &interfaces = "org.freedesktop.impl.portal.Print;") const
    {
        write("share/xdg-desktop-portal/portals/" + name + ".portal",
              "[portal]\nDBusName=org.test." + name + "\nInterfaces=" + interfaces + "\nUseIn=" + desktops + '\n');
    }

    static constexpr auto kUsers = "config/xdg-desktop-portal/portals.conf";
    static constexpr auto kDesktops = "share/xdg-desktop-portal/gnome-portals.conf";

    QTemporaryDir m_folder;
};

TEST_F(Portals, GetTheDesktopsOwnDefaultsWithOurs)
{
    write(kDesktops, "[preferred]\ndefault=gnome;gtk;\norg.freedesktop.impl.portal.Secret=keyring\n");
    const QString told = support::value(host::enablePortal());
    const QByteArray written = text(kUsers);
    EXPECT_TRUE(written.contains("org.freedesktop.impl.portal.Print=qnprint;gnome;gtk\n")) << written.toStdString();
    EXPECT_TRUE(written.contains("default=gnome;gtk;\norg.freedesktop.impl.portal.Secret=keyring\n"))
        << written.toStdString();
    EXPECT_TRUE(told.contains(path(kUsers))) << told.toStdString();
    EXPECT_TRUE(told.contains("systemctl --user restart xdg-desktop-portal")) << told.toStdString();
}

TEST_F(Portals, GetWhatServesTheDesktopWhereThatHasNoPreferences)
{
    support::value(host::enablePortal());
    EXPECT_TRUE(text(kUsers).contains("default=gtk\n")) << text(kUsers).toStdString();
    EXPECT_TRUE(text(kUsers).contains("org.freedesktop.impl.portal.Print=qnprint;gtk\n"));
}

TEST_F(Portals, AreAsBeforeWhenItIsTakenBack)
{
    write(kDesktops, "[preferred]\ndefault=gnome;gtk;\n");
    support::value(host::enablePortal());
    const QString told = support::value(host::disablePortal());
    EXPECT_FALSE(QFileInfo(path(kUsers)).dir().exists());
    EXPECT_TRUE(told.contains(path(kUsers))) << told.toStdString();
}

TEST_F(Portals, KeepWhatElseAUserHasInTheFolder)
{
    constexpr auto kOther = "config/xdg-desktop-portal/notes";
    write(kOther, "mine");
    support::value(host::enablePortal());
    support::value(host::disablePortal());
    EXPECT_FALSE(QFile::exists(path(kUsers)));
    EXPECT_EQ(text(kOther), "mine");
}

TEST_F(Portals, KeepAUsersOwnFile)
{
    const QByteArray own = "# mine\n[preferred]\ndefault=kde\norg.freedesktop.impl.portal.FileChooser=gtk\n";
    write(kUsers, own);
    support::value(host::enablePortal());
    EXPECT_TRUE(text(kUsers).startsWith("# mine\n[preferred]\n"));
    EXPECT_TRUE(text(kUsers).contains("org.freedesktop.impl.portal.Print=qnprint;kde\n"));
    EXPECT_TRUE(text(kUsers).contains("default=kde\norg.freedesktop.impl.portal.FileChooser=gtk\n"));
    support::value(host::disablePortal());
    EXPECT_EQ(text(kUsers), own);
}

TEST_F(Portals, KeepAUsersOwnChoiceForPrintingBehindOurs)
{
    const QByteArray own = "[preferred]\ndefault=gtk\norg.freedesktop.impl.portal.Print=kde\n";
    write(kUsers, own);
    support::value(host::enablePortal());
    EXPECT_TRUE(text(kUsers).contains("org.freedesktop.impl.portal.Print=qnprint;kde\n"));
    EXPECT_EQ(host::otherPrintBackend(), "org.test.kde");
    support::value(host::disablePortal());
    EXPECT_TRUE(text(kUsers).contains("org.freedesktop.impl.portal.Print=kde\n")) << text(kUsers).toStdString();
    EXPECT_TRUE(text(kUsers).contains("default=gtk\n"));
}

TEST_F(Portals, KeepWhatAUserHasChangedInAFileThatWasMade)
{
    support::value(host::enablePortal());
    write(kUsers, text(kUsers) + "org.freedesktop.impl.portal.Secret=keyring\n");
    support::value(host::disablePortal());
    EXPECT_TRUE(text(kUsers).contains("org.freedesktop.impl.portal.Secret=keyring\n"));
    EXPECT_FALSE(text(kUsers).contains("Print="));
}

TEST_F(Portals, EnabledTwiceAreTheSame)
{
    support::value(host::enablePortal());
    const QByteArray once = text(kUsers);
    EXPECT_TRUE(support::value(host::enablePortal()).contains("already"));
    EXPECT_EQ(text(kUsers), once);
}

TEST_F(Portals, DisabledWithoutEverHavingBeenEnabledSayThat)
{
    EXPECT_TRUE(support::value(host::disablePortal()).contains("don't print with qnprint"));
    EXPECT_FALSE(QFile::exists(path(kUsers)));
}

TEST_F(Portals, OfTheAdministratorStay)
{
    const QByteArray ours = "[preferred]\ndefault=gtk\norg.freedesktop.impl.portal.Print=qnprint;gtk\n";
    write("system/xdg-desktop-portal/portals.conf", ours);
    const auto answer = host::disablePortal();
    ASSERT_FALSE(answer);
    EXPECT_TRUE(answer.problem().sentence.contains("administrator"));
    EXPECT_EQ(text("system/xdg-desktop-portal/portals.conf"), ours);
    EXPECT_TRUE(host::portalStatus().startsWith("Applications print with qnprint"));
    EXPECT_TRUE(support::value(host::enablePortal()).contains(path("system/xdg-desktop-portal/portals.conf")));
}

TEST_F(Portals, ThatCantBeWrittenAreNamed)
{
    write("config", "a file where the folder would be");
    const auto answer = host::enablePortal();
    ASSERT_FALSE(answer);
    EXPECT_TRUE(answer.problem().sentence.contains(path(kUsers))) << answer.problem().sentence.toStdString();
}

TEST_F(Portals, TellHowTheyStand)
{
    EXPECT_TRUE(host::portalStatus().contains("don't print with qnprint"));
    support::value(host::enablePortal());
    EXPECT_TRUE(host::portalStatus().contains("print with qnprint, by " + path(kUsers)));
    EXPECT_TRUE(host::portalStatus().contains("org.test.gtk"));
    QFile::remove(path("share/xdg-desktop-portal/portals/qnprint.portal"));
    EXPECT_TRUE(host::portalStatus().startsWith(path(kUsers) + " prefers qnprint.\nThe portal does not find qnprint"));
    EXPECT_TRUE(support::value(host::enablePortal()).endsWith("qnprint.portal is not installed."));
}

struct OtherRow
{
    const char *name;
    const char *preferences; // of the user; null: none
    const char *desktop;
    const char *other;
};
void PrintTo(const OtherRow &row, std::ostream *out) { *out << row.name; }

class OtherBackend : public Portals, public testing::WithParamInterface<OtherRow>
{};

TEST_P(OtherBackend, IsTheNextOneThatShowsPrintDialogs)
{
    qputenv("XDG_CURRENT_DESKTOP", GetParam().desktop);
    addPortal("files", "GNOME", "org.freedesktop.impl.portal.FileChooser;");
    if (GetParam().preferences)
        write(kUsers, GetParam().preferences);
    EXPECT_EQ(host::otherPrintBackend(), GetParam().other);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OtherBackend,
    testing::Values(OtherRow{"BehindOurs", "[preferred]\ndefault=gtk\norg.freedesktop.impl.portal.Print=qnprint;kde\n",
                             "GNOME", "org.test.kde"},
                    OtherRow{"ByDefault", "[preferred]\ndefault=kde\n", "GNOME", "org.test.kde"},
                    OtherRow{"WhenOursIsAlone", "[preferred]\ndefault=kde\norg.freedesktop.impl.portal.Print=qnprint\n",
                             "GNOME", "org.test.kde"},
                    OtherRow{"NotOneThatIsNotThere", "[preferred]\ndefault=nosuch;kde\n", "GNOME", "org.test.kde"},
                    OtherRow{"NotOneWithoutPrinting", "[preferred]\ndefault=files;kde\n", "GNOME", "org.test.kde"},
                    OtherRow{"OfTheDesktop", nullptr, "KDE", "org.test.kde"},
                    OtherRow{"OfAnyDesktop", nullptr, "Somewhere", "org.test.gtk"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(Portals, WithoutAnotherBackEndHaveNone)
{
    for (const char *name : {"gtk", "kde"})
        QFile::remove(path(QString("share/xdg-desktop-portal/portals/%1.portal").arg(name)));
    EXPECT_EQ(host::otherPrintBackend(), std::nullopt);
    EXPECT_TRUE(host::portalStatus().contains("no other print dialog"));
}

} // namespace
