// Servers that want to know who prints, and servers that show a certificate.
#include "MisbehavingServer.h"
#include "QueueWindow.h"

#include "Cups/Conversation.h"
#include "Window/CredentialsBox.h"

#include <QDirIterator>
#include <QFile>
#include <QPointer>

using namespace host;
using support::CupsServer;
using Guards = CupsServer::Setup::Guards;

namespace {

constexpr auto kRefusal = "counter: the CUPS server does not accept the user name or the password";

class GuardedWindow : public support::QueueWindow
{
protected:
    void SetUp() override {}
    void TearDown() override
    {
        QueueWindow::TearDown();
        setConversationCredentials(std::nullopt);
    }
    void startGuarded(const CupsServer::Setup &setup)
    {
        startServer(setup);
        ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
    }
    CredentialsBox *box()
    {
        waitFor([this] { return m_window->findChild<CredentialsBox *>() != nullptr; });
        return m_window->findChild<CredentialsBox *>();
    }
    /// Types into the next box that opens, from whatever opens it, and takes Return for the button.
    void answer(const QString &password)
    {
        const QPointer<CredentialsBox> asking = box();
        ASSERT_TRUE(asking);
        const auto fields = asking->findChildren<QLineEdit *>();
        ASSERT_EQ(fields.size(), 2);
        fields[0]->setText(CupsServer::kUser);
        QTest::keyClicks(fields[1], password);
        QTest::keyClick(fields[1], Qt::Key_Return);
        ASSERT_TRUE(waitFor([asking] { return !asking; }));
    }
    QString askedFor()
    {
        const auto *const asking = box();
        return asking ? asking->findChild<QLabel *>()->text() : QString();
    }
    /// Everything that a file of the test's, but for the server's own of its passwords, has in it.
    bool isWrittenDown(const QByteArray &text) const
    {
        QDirIterator files(m_server.path(""), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.fileName() != m_server.path("passwords") && file.open(QIODevice::ReadOnly) &&
                file.readAll().contains(text))
                return true;
        }
        return false;
    }
};

TEST_F(GuardedWindow, AsksWhoPrintsWhenTheServerWantsToKnow)
{
    startGuarded({.guards = Guards::everything});
    open();
    EXPECT_EQ(askedFor(), "counter: the CUPS server asks for a password");
    EXPECT_EQ(box()->findChildren<QLineEdit *>()[1]->echoMode(), QLineEdit::Password);
    answer(CupsServer::kPassword);
    ASSERT_TRUE(waitFor([this] { return canPrint(); })) << message().toStdString();
    EXPECT_EQ(message(), "");
    EXPECT_TRUE(print()) << message().toStdString();
    EXPECT_EQ(m_server.record(1)["user"], CupsServer::kUser);
    EXPECT_FALSE(isWrittenDown(CupsServer::kPassword));
}

TEST_F(GuardedWindow, AsksWhenItPrintsWhereOnlyThatIsGuarded)
{
    startGuarded({.guards = Guards::printing});
    openAndWait();
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    button("&Print")->click();
    EXPECT_EQ(askedFor(), "counter: the CUPS server asks for a password");
    answer(CupsServer::kPassword);
    ASSERT_TRUE(waitFor([&] { return printed.size() == 1; })) << message().toStdString();
    EXPECT_EQ(m_server.record(1)["user"], CupsServer::kUser);
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(GuardedWindow, AsksThreeTimesAndOnceMoreWhenAPersonTriesAgain)
{
    startGuarded({.guards = Guards::everything});
    open();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(askedFor(), i == 0 ? "counter: the CUPS server asks for a password" : kRefusal);
        answer("wrong");
    }
    ASSERT_TRUE(waitForMessage(kRefusal));
    QTest::qWait(0); // what is queued would open a box
    EXPECT_EQ(m_window->findChild<CredentialsBox *>(), nullptr);
    button("Try A&gain")->click();
    answer(CupsServer::kPassword);
    EXPECT_TRUE(waitFor([this] { return canPrint(); })) << message().toStdString();
}

TEST_F(GuardedWindow, AsksThreeTimesForAJobAndKeepsIt)
{
    startGuarded({.guards = Guards::printing});
    openAndWait();
    button("&Print")->click();
    for (int i = 0; i < 3; ++i)
        answer("wrong");
    ASSERT_TRUE(waitForMessage(kRefusal));
    QTest::qWait(0);
    EXPECT_EQ(m_window->findChild<CredentialsBox *>(), nullptr);
    QSignalSpy printed(m_dialog.get(), &PrintDialog::printed);
    button("&Print")->click();
    answer(CupsServer::kPassword);
    EXPECT_TRUE(waitFor([&] { return printed.size() == 1; })) << message().toStdString();
    EXPECT_EQ(m_server.record(1)["user"], CupsServer::kUser);
    EXPECT_EQ(m_server.recordCount(), 1);
}

TEST_F(GuardedWindow, AsksAgainWhenThePersonHasNoRightToPrint)
{
    startGuarded({.guards = Guards::everything, .mayPrint = "zoe"});
    open();
    answer(CupsServer::kPassword);
    EXPECT_EQ(askedFor(), kRefusal);
    QTest::keyClick(box(), Qt::Key_Escape);
    EXPECT_TRUE(waitForMessage(kRefusal));
}

TEST_F(GuardedWindow, AsksWhoWantsToChooseAPrinterWhereThatIsGuarded)
{
    startGuarded({.guards = Guards::listing});
    open("");
    answer(CupsServer::kPassword);
    EXPECT_TRUE(waitFor([this] { return canPrint(); })) << message().toStdString(); // the only one is taken
}

TEST_F(GuardedWindow, StaysWithoutAPrinterWhenThePersonDoesNotSay)
{
    startGuarded({.guards = Guards::everything});
    open();
    auto *const asking = box();
    ASSERT_TRUE(asking);
    QTest::keyClick(asking, Qt::Key_Escape);
    EXPECT_TRUE(waitForMessage("counter: the CUPS server asks for a password"));
    EXPECT_FALSE(canPrint());
    EXPECT_TRUE(button("Try A&gain")->isVisible());
}

TEST_F(GuardedWindow, SaysAWrongPasswordNoSecondTime)
{
    startGuarded({.guards = Guards::everything});
    open();
    answer("wrong");
    ASSERT_TRUE(box());
    const auto before = m_server.log().count("pam_authenticate() returned");
    EXPECT_EQ(before, 2); // the library says one twice; servers lock accounts after a few
    QTest::keyClick(box(), Qt::Key_Escape);
    ASSERT_TRUE(waitForMessage(kRefusal));
    m_dialog->lookForOthers();
    QTest::qWait(500);
    EXPECT_EQ(m_server.log().count("pam_authenticate() returned"), before);
}

TEST_F(GuardedWindow, WarnsOfOthersOnTheNetworkBeforeAPasswordIsSaid)
{
    using support::MisbehavingServer;
    const MisbehavingServer server({{MisbehavingServer::Step::standard, MisbehavingServer::Mode::password}});
    server.adoptEnvironment();
    setUp(m_server.path("defaults.ini"));
    const QString port = qEnvironmentVariable("CUPS_SERVER").section(':', -1);
    for (const auto &[address, warning] :
         {std::pair{"127.0.0.1", ""},
          std::pair{"[::ffff:127.0.0.1]", // which the library does not know as this machine's
                    "; the connection is not encrypted, so others on the network can read the password"}}) {
        qputenv("CUPS_SERVER", QString("%1:%2").arg(address, port).toUtf8());
        setConversationProgram(QN_PROGRAM); // the process that waits has the environment of before
        open();
        EXPECT_EQ(askedFor(), QString("counter: the CUPS server asks for a password") + warning);
    }
}

TEST_F(GuardedWindow, TellsThatACertificateIsNotTrusted)
{
    startGuarded({.isEncrypted = true});
    openAndWait();
    EXPECT_EQ(message(),
              "the certificate of 127.0.0.1 is not trusted: nobody that this computer trusts vouches for it");
    EXPECT_TRUE(print()) << message().toStdString();
}

TEST_F(GuardedWindow, TellsThatACertificateIsNotTrustedBeforeAPasswordIsSaid)
{
    startGuarded({.guards = Guards::everything, .isEncrypted = true});
    open();
    EXPECT_TRUE(askedFor().startsWith(
        "counter: the CUPS server asks for a password; the certificate of 127.0.0.1 is not trusted: "))
        << askedFor().toStdString();
    answer(CupsServer::kPassword);
    ASSERT_TRUE(waitFor([this] { return canPrint(); })) << message().toStdString();
    EXPECT_TRUE(print());
    EXPECT_EQ(m_server.record(1)["user"], CupsServer::kUser);
    EXPECT_FALSE(isWrittenDown(CupsServer::kPassword));
}

TEST_F(GuardedWindow, TrustsACertificateThatCupsKnows)
{
    startGuarded({.isEncrypted = true});
    const auto own = QDir(m_server.path("etc/ssl")).entryInfoList({"*.crt"});
    ASSERT_EQ(own.size(), 1);
    ASSERT_TRUE(QFile::copy(own[0].filePath(), m_server.path("etc/ssl/127.0.0.1.crt")));
    openAndWait();
    EXPECT_EQ(message(), "");
}

} // namespace
