// The window on a queue that no PPD describes: what the server offers is set in a panel, and jobs say it in the
// server's words.
#include "QueueWindow.h"

#include "MisbehavingServer.h"

#include <QTabBar>

using namespace host;
using support::MisbehavingServer;

namespace {

constexpr auto kSides = "server-sides";
constexpr auto kQuality = "server-print-quality";

class QueueWithoutPPD : public support::QueueWindow
{
protected:
    void SetUp() override
    {
        qputenv("HOME", m_folder.path().toUtf8()); // what is saved here is nobody's
        qputenv("CUPS_SERVERROOT", m_folder.path().toUtf8());
        setUp(m_folder.filePath("defaults.ini"));
        m_queue.name = "plain";
        m_queue.papers = {{"iso_a4_210x297mm", "A4", {595, 842}}};
        m_queue.offers = {{"sides", {"one-sided", "two-sided-long-edge", "two-sided-short-edge"}, "one-sided"},
                          {"print-quality", {"3", "4", "5"}, ""}};
    }
    foundation::Or<std::unique_ptr<PrintTarget>> target(const OptionValues &asked, const OptionValues &carried = {})
    {
        PrintRequest request;
        request.options = asked;
        request.language = m_language;
        return targetOfQueue(request, support::value(withPPDOpened(m_queue)), carried);
    }
    void open(const OptionValues &asked = {}, const OptionValues &carried = {})
    {
        m_window.reset();
        makeDialog({});
        m_dialog->use(support::value(target(asked, carried)));
        showWindow();
    }
    OptionValues job() const { return m_dialog->target()->jobOptions(); }
    QString shown(const char *control) { return find<QComboBox>(control)->currentText(); }

    QTemporaryDir m_folder;
    QString m_language = "en";
    Queue m_queue;
};

TEST_F(QueueWithoutPPD, ShowsWhatTheServerOffersInAPanel)
{
    open();
    EXPECT_EQ(find<QTabBar>("tabs")->count(), 1);
    EXPECT_EQ(items(*find<QComboBox>(kSides)),
              QStringList({"Off (1-Sided)", "Long-Edge (Portrait)", "Short-Edge (Landscape)"}));
    EXPECT_EQ(shown(kSides), "Off (1-Sided)");
    EXPECT_EQ(shown(kQuality), "Printer Default"); // which the server does not say
    EXPECT_EQ(items(*papers()), QStringList("A4"));
    EXPECT_FALSE(m_dialog->target()->hasOwnPanels());
}

TEST_F(QueueWithoutPPD, ShowsItInTheLanguageOfTheDialog)
{
    m_language = "de";
    open();
    EXPECT_EQ(find<QTabBar>("tabs")->tabText(0), "Allgemein");
    EXPECT_EQ(find<QLabel>((QString(kSides) + ".label").toLatin1())->text(), "Zweiseitiger Druck:");
    EXPECT_EQ(items(*find<QComboBox>(kQuality)), QStringList({"Vorgabe des Druckers", "Entwurf", "Normal", "Hoch"}));
}

TEST_F(QueueWithoutPPD, SaysOfAJobWhatThePanelShows)
{
    open();
    EXPECT_EQ(job(), OptionValues({{"sides", "one-sided"}}));
    choose(*find<QComboBox>(kSides), "Short-Edge (Landscape)");
    choose(*find<QComboBox>(kQuality), "Draft");
    EXPECT_EQ(job(), OptionValues({{"sides", "two-sided-short-edge"}, {"print-quality", "3"}}));
    EXPECT_TRUE(summary().contains("2-Sided Printing=Short-Edge (Landscape)")) << summary().join(' ').toStdString();
    choose(*find<QComboBox>(kSides), "Off (1-Sided)");
    choose(*find<QComboBox>(kQuality), "Printer Default"); // which has no word
    EXPECT_EQ(job(), OptionValues({{"sides", "one-sided"}}));
}

TEST_F(QueueWithoutPPD, BeginsWithWhatIsAskedForAndSaved)
{
    ASSERT_TRUE(
        SavedOptions("plain").save({}, {{"sides", "two-sided-long-edge"}, {"print-quality", "3"}, {"cpi", "12"}}));
    open({{"print-quality", "high"}, {"number-up", "2"}, {"media", "iso_a4_210x297mm"}});
    EXPECT_EQ(shown(kSides), "Long-Edge (Portrait)");
    EXPECT_EQ(shown(kQuality), "High");
    EXPECT_EQ(job(), OptionValues({{"sides", "two-sided-long-edge"},
                                   {"print-quality", "5"},
                                   {"cpi", "12"},
                                   {"number-up", "2"},
                                   {"media", "iso_a4_210x297mm"}}));
    choose(*find<QComboBox>(kSides), "Off (1-Sided)");
    EXPECT_EQ(job()["sides"], "one-sided");
}

TEST_F(QueueWithoutPPD, KeepsWhatAPersonHasChosenWhenItIsLookedForAgain)
{
    ASSERT_TRUE(SavedOptions("plain").save({}, {{"print-quality", "3"}}));
    open({{"sides", "two-sided-short-edge"}}, {{"sides", "two-sided-long-edge"}, {"cpi", "12"}, {"QnDensity", "D9"}});
    EXPECT_EQ(shown(kSides), "Long-Edge (Portrait)");
    EXPECT_EQ(shown(kQuality), "Printer Default");                                     // nobody chose another
    EXPECT_EQ(job(), OptionValues({{"sides", "two-sided-long-edge"}, {"cpi", "12"}})); // the driver has gone
}

TEST_F(QueueWithoutPPD, RefusesAChoiceThatTheServerDoesNotOffer)
{
    EXPECT_EQ(support::sentence(target({{"sides", "tumbling"}})),
              "plain: -o sides=tumbling: the printer has no such choice");
}

TEST_F(QueueWithoutPPD, LeavesToTheServerWhatItSaysNothingOf)
{
    open({{"print-color-mode", "monochrome"}, {"QnDensity", "D9"}});
    EXPECT_EQ(job(), OptionValues({{"print-color-mode", "monochrome"}, {"QnDensity", "D9"}, {"sides", "one-sided"}}));
}

TEST_F(QueueWithoutPPD, DropsASavedChoiceThatTheServerNoLongerOffers)
{
    ASSERT_TRUE(SavedOptions("plain").save({}, {{"sides", "tumbling"}}));
    open();
    EXPECT_EQ(shown(kSides), "Off (1-Sided)");
    EXPECT_EQ(job(), OptionValues({{"sides", "one-sided"}}));
}

TEST_F(QueueWithoutPPD, SavesAPresetInTheWordsOfTheServer)
{
    open();
    choose(*find<QComboBox>(kSides), "Long-Edge (Portrait)");
    choose(*papers(), "A4");
    savePreset("both");
    EXPECT_EQ(SavedOptions("plain").options("both"),
              OptionValues({{"copies", "1"}, {"media", "iso_a4_210x297mm"}, {"sides", "two-sided-long-edge"}}));
    choose(*find<QComboBox>(kSides), "Off (1-Sided)");
    choose(*find<QComboBox>(kQuality), "High");
    m_dialog->restorePreset("both");
    EXPECT_EQ(shown(kSides), "Long-Edge (Portrait)");
    EXPECT_EQ(shown(kQuality), "Printer Default");
    EXPECT_EQ(job(), OptionValues({{"media", "iso_a4_210x297mm"}, {"sides", "two-sided-long-edge"}}));
}

TEST_F(QueueWithoutPPD, OverwritesAPresetWithTheDefaultThatIsChosenNow)
{
    ASSERT_TRUE(SavedOptions("plain").save({}, {{"sides", "two-sided-long-edge"}, {"cpi", "12"}}));
    open();
    choose(*find<QComboBox>(kSides), "Off (1-Sided)");
    savePreset("one");
    const OptionValues saved = SavedOptions("plain").options("one"); // else the defaults would count
    EXPECT_EQ(saved["sides"], "one-sided");
    EXPECT_EQ(saved["cpi"], "12");
}

TEST_F(QueueWithoutPPD, LeavesOutOfAPresetWhatWasTakenAway)
{
    ASSERT_TRUE(
        SavedOptions("plain").save("fitted", {{"print-scaling", "fit"}, {"media", "iso_a4_210x297mm"}, {"cpi", "12"}}));
    open();
    m_dialog->restorePreset("fitted");
    m_dialog->setScaling(Scaling::automatic);
    m_dialog->savePreset("fitted");
    EXPECT_EQ(SavedOptions("plain").options("fitted"),
              OptionValues({{"copies", "1"}, {"cpi", "12"}, {"media", "iso_a4_210x297mm"}}));
    m_dialog->restorePreset({});
    m_dialog->savePreset("fitted");
    EXPECT_EQ(SavedOptions("plain").options("fitted"), OptionValues({{"copies", "1"}, {"cpi", "12"}}));
}

TEST_F(QueueWithoutPPD, IsOnThePaperThatThePrinterTakesByItself)
{
    m_queue.papers.push_back({"na_letter_8.5x11in", "Letter", {612, 792}});
    m_queue.standardPaper = "na_letter_8.5x11in";
    open();
    EXPECT_EQ(papers()->currentText(), "Letter");
    ASSERT_TRUE(m_dialog->target()->sheet());
    EXPECT_EQ(m_dialog->target()->sheet()->size.width, 612);
    EXPECT_FALSE(job().contains("media"));
    choose(*papers(), "A4");
    EXPECT_EQ(job()["media"], "iso_a4_210x297mm");
}

TEST_F(QueueWithoutPPD, IsWhatTheSummarySpeaksOfAfterAnotherPrinter)
{
    open({{"sides", "two-sided-long-edge"}});
    EXPECT_TRUE(summary().contains("Printer=plain")) << summary().join(' ').toStdString();
    m_queue.name = "other";
    m_dialog->use(support::value(target({})));
    EXPECT_TRUE(summary().contains("Printer=other")) << summary().join(' ').toStdString();
}

TEST_F(QueueWithoutPPD, HasGeneralSettingsWhereNothingIsOffered)
{
    m_queue.offers.clear();
    open({{"sides", "two-sided-long-edge"}});
    EXPECT_EQ(find<QTabBar>("tabs")->count(), 0);
    EXPECT_EQ(message(), "No driver describes this printer: it has general settings only.");
    EXPECT_EQ(job(), OptionValues({{"sides", "two-sided-long-edge"}}));
}

TEST_F(QueueWithoutPPD, TellsTheServerWhatWasChosen)
{
    const MisbehavingServer server({{MisbehavingServer::Step::ppd, MisbehavingServer::Mode::notFound}});
    server.adoptEnvironment();
    openAndWait();
    EXPECT_EQ(items(*find<QComboBox>(kSides)), QStringList({"Off (1-Sided)", "Long-Edge (Portrait)", "tumbling"}));
    EXPECT_EQ(m_dialog->target()->paper().name, "na_letter_8.5x11in");
    EXPECT_EQ(shown(kSides), "Long-Edge (Portrait)");                          // what this printer does by itself
    EXPECT_FALSE(m_window->findChild<QComboBox *>("server-print-color-mode")); // there is one
    choose(*find<QComboBox>(kSides), "Off (1-Sided)");
    choose(*find<QComboBox>(kQuality), "High");
    ASSERT_TRUE(print()) << message().toStdString();
    const QByteArray said = server.heard(MisbehavingServer::Step::create);
    EXPECT_TRUE(said.contains(QByteArray("\x44\0\5sides\0\x09one-sided", 19))) << said.toHex().toStdString();
    EXPECT_TRUE(said.contains(QByteArray("\x23\0\x0dprint-quality\0\4\0\0\0\5", 22))) << said.toHex().toStdString();
}

class QueueWithoutPPDOfAServer : public support::QueueWindow
{};

TEST_F(QueueWithoutPPDOfAServer, TurnsThePageThatItsPanelTurns)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "usb://Qn/Plain?serial=1"));
    openAndWait("plain");
    EXPECT_EQ(find<QTabBar>("tabs")->count(), 1);
    EXPECT_FALSE(find<QLabel>("inPlaceOfPanel")->isVisible());
    choose(*find<QComboBox>("server-orientation-requested"), "Landscape");
    ASSERT_TRUE(print()) << message().toStdString();
    EXPECT_TRUE(waitFor([this] { return m_server.log().contains("orientation-requested=4"); }));
}

} // namespace
