// Which bundle serves a printer, where several stand side by side.
#include "PPDText.h"
#include "Print.h"
#include "Results.h"

#include "Foundation/Locale.h"
#include "Foundation/UserDefaults.h"
#include "Session/DialogSession.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using host::DialogSession;
using support::PPDText;
using support::value;

namespace {

/// One plug-in directory before all others, and nothing in the others counts.
class BundleChoice : public testing::Test
{
protected:
    BundleChoice() { qputenv("QNPRINT_PLUGIN_PATH", m_folder.path().toUtf8()); }
    ~BundleChoice() override
    {
        m_session.reset();
        qunsetenv("QNPRINT_PLUGIN_PATH");
    }
    /// Of another interface version, or of none that can be read.
    void putBroken(const QString &name, const QByteArray &info)
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(name));
        QFile file(m_folder.filePath(name + "/Info.json"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(info) == info.size());
    }
    void open(const PPDText &ppd, bool byClaims = true)
    {
        m_session.reset();
        DialogSession::Parameters parameters;
        parameters.ppdPath = ppd.file();
        parameters.bundles = byClaims ? DialogSession::Bundles::byClaims : DialogSession::Bundles::first;
        m_session = value(DialogSession::open(parameters));
        m_session->start(DialogSession::Prepare::everyPanel);
    }
    QStringList panels() const
    {
        QStringList identifiers;
        for (const auto &panel : m_session->panels())
            identifiers.append(panel->identifier());
        return identifiers;
    }
    /// Whether code of that name is in this process.
    static bool isLoaded(const char *code)
    {
        QFile maps("/proc/self/maps");
        EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
        return maps.readAll().contains(code);
    }
    static PPDText office()
    {
        return PPDText()
            .line("*OpenGroup: Quality/Quality")
            .option("Density", "Density", "A", {{"A", "a"}, {"B", "b"}})
            .line("*CloseGroup: Quality");
    }

    QTemporaryDir m_folder;
    foundation::ScopedDefaults m_defaults{m_folder.filePath("defaults.ini")};
    foundation::ScopedLocale m_locale{QLocale("de_DE")};
    std::unique_ptr<DialogSession> m_session;
};

const QStringList kOurs{"basic", "advanced"};

TEST_F(BundleChoice, FallsOnTheOneThatTakesCareOfAnOption)
{
    open(PPDText().standardOption("QnMedia"));
    EXPECT_EQ(panels(), kOurs);
    EXPECT_TRUE(m_session->bundleProblems().isEmpty());
}

TEST_F(BundleChoice, LooksAtNoGeneralOneWhereAnotherServes)
{
    open(PPDText().standardOption("QnMedia"));
    open(PPDText().attribute("APDialogExtension", "QNKVPageSettings15.plugin"));
    EXPECT_EQ(panels(), kOurs); // named, whatever it claims
    EXPECT_FALSE(isLoaded("/General.so"));
    open(office());
    EXPECT_TRUE(isLoaded("/General.so"));
}

TEST_F(BundleChoice, FallsOnTheGeneralOneWhereNobodyTakesCareOfAnything)
{
    open(office());
    EXPECT_EQ(panels(), QStringList{"Quality"});
    EXPECT_TRUE(m_session->bundleProblems().isEmpty());
    open(office().attribute("APDialogExtension", "/Library/Printers/NotHere.plugin"));
    EXPECT_EQ(panels(), QStringList{"Quality"});
}

TEST_F(BundleChoice, IsForAScriptWhatItWas)
{
    open(office(), false);
    EXPECT_EQ(panels(), kOurs);
}

TEST_F(BundleChoice, TellsWhyTheOneThatThePPDNamesCanNotServe)
{
    putBroken("Named.plugin", R"({"executable":"x","principalClass":"y","abiVersion":99})");
    open(PPDText().standardOption("QnMedia").attribute("APDialogExtension", "Named.plugin"));
    EXPECT_EQ(panels(), kOurs);
    ASSERT_EQ(m_session->bundleProblems().size(), 1);
    EXPECT_TRUE(m_session->bundleProblems().first().contains("Named.plugin: made for interface version 99"));
}

TEST_F(BundleChoice, PassesOverWhatIsBrokenWithASentenceEach)
{
    putBroken("Broken.plugin", "{");
    putBroken("Empty.plugin", R"({"executable":"x.so","principalClass":"y","abiVersion":102})");
    open(office());
    EXPECT_EQ(panels(), QStringList{"Quality"});
    ASSERT_EQ(m_session->bundleProblems().size(), 2);
    for (const QString &sentence : m_session->bundleProblems())
        EXPECT_FALSE(sentence.contains('\n')) << sentence.toStdString();
}

TEST_F(BundleChoice, TellsOfABrokenGeneralOneWhenThatIsWanted)
{
    putBroken("general/Broken.plugin", "{");
    open(PPDText().standardOption("QnMedia"));
    EXPECT_TRUE(m_session->bundleProblems().isEmpty());
    open(office());
    EXPECT_EQ(panels(), QStringList{"Quality"}); // of the next directory
    EXPECT_EQ(m_session->bundleProblems().size(), 1);
}

TEST_F(BundleChoice, ServesASessionAfterAnother)
{
    open(office());
    EXPECT_TRUE(m_session->mark("Density", "B"));
    open(PPDText().allOptions());
    EXPECT_EQ(panels(), kOurs);
    open(office());
    EXPECT_EQ(panels(), QStringList{"Quality"});
}

TEST_F(BundleChoice, MakesTheWordsOfAPersonThoseOfTheOneThatServes)
{
    open(office());
    EXPECT_TRUE(m_session->mark("Density", "B"));
    const auto rows = m_session->differences();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows.front().title + '=' + rows.front().value, "Density=b");
}

TEST_F(BundleChoice, LetsTheDialogTellWhatAConstraintHasMoved)
{
    open(office()
             .option("Tray", "Tray", "Upper", {{"Upper", "Upper Tray"}, {"Lower", "Lower Tray"}})
             .line("*UIConstraints: *Tray Lower *Density B\n*UIConstraints: *Density B *Tray Lower"));
    EXPECT_TRUE(m_session->mark("Tray", "Lower"));
    EXPECT_TRUE(m_session->mark("Density", "B"));
    EXPECT_EQ(m_session->takeRemarks(),
              QStringList{"Tray “Upper Tray” instead of “Lower Tray”, to go with Density “b”."});
}

TEST_F(BundleChoice, LetsTheDialogHearOfEveryAmount)
{
    open(office()
             .option("Width", "Width", "A", {{"A", "a"}})
             .line("*CustomWidth True: \"x\"\n*ParamCustomWidth Width: 1 points 0 720"));
    int changes = 0;
    m_session->setListener({.panelMarks = {}, .changed = [&](const QString &, const QString &) { ++changes; }});
    for (const char *points : {"72", "144", "144"})
        EXPECT_TRUE(m_session->mark("Width", points));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(m_session->differences().back().value, "50,8 mm");
}

TEST_F(BundleChoice, LetsTheDialogTellATextAndNeverACode)
{
    open(office()
             .option("Pin", "PIN Printing", "None", {{"None", "Off"}})
             .line("*CustomPin True: \"x\"\n*ParamCustomPin Code: 1 passcode 4 8")
             .option("Mark", "Watermark", "None", {{"None", "Off"}})
             .line("*CustomMark True: \"x\"\n*ParamCustomMark Words: 1 string 0 20"));
    EXPECT_TRUE(m_session->mark("Pin", "Custom.0042"));
    EXPECT_TRUE(m_session->mark("Mark", "Custom.0012"));
    const auto rows = m_session->differences();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows.front().title + '=' + rows.front().value, "PIN Printing=••••••");
    EXPECT_EQ(rows.back().title + '=' + rows.back().value, "Watermark=0012");
    const host::OptionValues kept = m_session->settings({{"Pin", "Custom.0042"}});
    EXPECT_EQ(kept["Pin"], "Custom");
    EXPECT_EQ(kept["Mark"], "Custom.0012");
    EXPECT_EQ(m_session->marks().forJob()["Pin"], "Custom.0042");
    m_session->restore(kept);
    EXPECT_TRUE(m_session->takeRemarks().isEmpty());
    EXPECT_EQ(m_session->marks().forJob()["Pin"], "Custom.0042"); // of this dialog, still
}

} // namespace
