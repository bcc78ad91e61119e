// The window on a printer that no bundle was made for.
#include "PPDText.h"
#include "WindowTest.h"

#include <QDir>
#include <QFile>
#include <QTabBar>
#include <QTemporaryDir>

using namespace host;
using support::PPDText;

namespace {

class OfficePrinter : public support::WindowTest
{
protected:
    void SetUp() override { setUp(m_folder.filePath("defaults.ini")); }
    void TearDown() override
    {
        support::WindowTest::TearDown();
        qunsetenv("QNPRINT_PLUGIN_PATH");
    }
    void open(const PPDText &ppd)
    {
        PrintRequest request;
        request.ppd = ppd.file();
        request.output = m_folder.path();
        makeDialog(request);
        ASSERT_TRUE(m_dialog->start());
        showWindow();
    }
    static PPDText office()
    {
        return PPDText()
            .line("*OpenGroup: Output/Output")
            .option("Tray", "Tray", "Upper", {{"Upper", "Upper Tray"}, {"Lower", "Lower Tray"}})
            .line("*CloseGroup: Output")
            .line("*OpenGroup: Quality/Quality & More")
            .option("Density", "Density", "A", {{"A", "Light"}, {"B", "Dark"}})
            .line("*CloseGroup: Quality")
            .line("*UIConstraints: *Tray Lower *Density B\n*UIConstraints: *Density B *Tray Lower");
    }
    QStringList tabs()
    {
        QStringList texts;
        const auto *const bar = find<QTabBar>("tabs");
        for (int i = 0; i < bar->count(); ++i)
            texts.append(bar->tabText(i));
        return texts;
    }

    QTemporaryDir m_folder;
};

TEST_F(OfficePrinter, HasAPanelForEachGroupOfItsPPD)
{
    open(office());
    EXPECT_EQ(tabs(), QStringList({"Output", "Quality && More"}));
    EXPECT_EQ(message(), "");
    choose(*find<QComboBox>("Tray"), "Lower Tray");
    EXPECT_EQ(summary().last(), "Tray=Lower Tray");
}

TEST_F(OfficePrinter, TellsWhatAConstraintHasMoved)
{
    open(office());
    choose(*find<QComboBox>("Tray"), "Lower Tray");
    find<QTabBar>("tabs")->setCurrentIndex(1);
    choose(*find<QComboBox>("Density"), "Dark");
    EXPECT_EQ(message(), "Tray “Upper Tray” instead of “Lower Tray”, to go with Density “Dark”.");
    find<QTabBar>("tabs")->setCurrentIndex(0);
    EXPECT_EQ(find<QComboBox>("Tray")->currentText(), "Upper Tray");
}

TEST_F(OfficePrinter, ScrollsWhereAGroupIsLong)
{
    PPDText ppd;
    ppd.line("*OpenGroup: Long/Long");
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        ppd.option(QByteArray("Xx") + letter, QByteArray("Option ") + letter, "A", {{"A", "a"}, {"B", "b"}});
    open(ppd.line("*CloseGroup: Long"));
    auto *const last = m_window->findChild<QComboBox *>("XxZ");
    const auto isSeen = [last] { return !last->visibleRegion().isEmpty(); };
    EXPECT_FALSE(isSeen());
    QWidget *const before = last->previousInFocusChain();
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    EXPECT_TRUE(last->hasFocus());
    EXPECT_TRUE(isSeen());
}

TEST_F(OfficePrinter, WithNothingToChooseSaysSo)
{
    open(PPDText());
    EXPECT_EQ(tabs(), QStringList());
    EXPECT_EQ(message(), "The plug-in has no settings for this printer. It is printed with the driver's defaults.");
}

TEST_F(OfficePrinter, TellsOfABundleThatCanNotServe)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("New.plugin"));
    QFile info(m_folder.filePath("New.plugin/Info.json"));
    ASSERT_TRUE(info.open(QIODevice::WriteOnly) &&
                info.write(R"({"executable":"x","principalClass":"y","abiVersion":999})") > 0 && info.flush());
    qputenv("QNPRINT_PLUGIN_PATH", m_folder.path().toUtf8());
    open(office());
    EXPECT_EQ(tabs().size(), 2);
    EXPECT_TRUE(message().contains("New.plugin: made for interface version 999")) << message().toStdString();
}

} // namespace
