// Documents that are locked with a password: the window asks for it, and what it opens is shown, checked and sent.
#include "PDFText.h"
#include "PPDText.h"
#include "WindowTest.h"

#include "Jobs/FolderSink.h"
#include "Window/CredentialsBox.h"
#include "Window/PreviewPane.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace host;

namespace {

constexpr auto kPassword = "open sesame";

class LockedDocument : public support::WindowTest
{
protected:
    void SetUp() override { setUp(m_directory.filePath("defaults.ini")); }
    void TearDown() override
    {
        WindowTest::TearDown();
        qputenv("PATH", m_path);
    }

    /// Three pages; as another program locks them.
    static QString locked(const QString &password = kPassword, const QString &owner = "owner",
                          const QStringList &how = {"256"})
    {
        const QString plain = support::PDFText().page({595, 842}).page({595, 842}).page({595, 842}).file();
        QString file = support::fileOf({}, "pdf");
        EXPECT_EQ(QProcess::execute("qpdf", QStringList{"--allow-weak-crypto", "--encrypt", password, owner} + how +
                                                QStringList{"--", plain, file}),
                  0);
        return file;
    }
    void open(const QString &document, const PrintRequest &request = {})
    {
        makeDialog(request, document);
        const CachedPPD ppd{support::PPDText().allOptions().file(), 0, {}};
        auto printer = support::value(targetOfQueue({}, support::value(withPPDOpened({"Test", {}, {}, ppd, {}, {}}))));
        printer->setSink(std::make_shared<FolderSink>(m_directory.filePath("out")));
        m_dialog->use(std::move(printer));
        showWindow();
    }
    /// Nothing is read and nothing asked for any more.
    void settle()
    {
        QApplication::processEvents();
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_window->isComplete(); }, 20000));
        QApplication::processEvents();
    }
    CredentialsBox *box()
    {
        const bool came = QTest::qWaitFor([this] { return isAsking(); }, 20000);
        return came ? m_window->findChild<CredentialsBox *>() : nullptr;
    }
    bool isAsking() const
    {
        const auto *const found = m_window->findChild<CredentialsBox *>();
        return found && found->isVisible();
    }
    QString askedFor()
    {
        const auto *const asking = box();
        return asking ? asking->findChild<QLabel *>()->text() : QString();
    }
    QLineEdit *field() { return box()->findChild<QLineEdit *>(); }
    void answer(const QString &password)
    {
        const QPointer<CredentialsBox> asking = box();
        ASSERT_TRUE(asking);
        field()->setText(password);
        QTest::keyClick(field(), Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([asking] { return !asking; }, 20000));
    }
    void cancel()
    {
        const QPointer<CredentialsBox> asking = box();
        ASSERT_TRUE(asking);
        QTest::keyClick(asking, Qt::Key_Escape);
        ASSERT_TRUE(QTest::qWaitFor([asking] { return !asking; }, 20000));
    }
    bool waitForPages(const QString &text)
    {
        return QTest::qWaitFor(
            [&] {
                const auto labels = m_window->findChildren<QLabel *>();
                return std::ranges::any_of(labels, [&](auto *l) { return l->isVisible() && l->text() == text; });
            },
            20000);
    }
    QString said(const char *sentence, const QString &document) const
    {
        return QFileInfo(document).fileName() + ": " + sentence;
    }
    QStringList printed() const
    {
        return QDir(m_directory.filePath("out")).entryList({"*.pdf"}, QDir::Files, QDir::Name);
    }
    bool print()
    {
        QSignalSpy finished(m_dialog.get(), &PrintDialog::finished);
        button("&Print")->click();
        return QTest::qWaitFor([&] { return finished.size() == 1; }, 20000);
    }
    /// How many pages a job has for whoever has no password.
    QString pagesOf(const QString &job) const
    {
        QProcess reading;
        reading.start("pdfinfo", {m_directory.filePath("out/" + job)});
        reading.waitForFinished();
        return QString::fromUtf8(reading.readAllStandardOutput()).section("Pages:", 1).section('\n', 0, 0).trimmed();
    }
    /// From now on, programs are those of this folder, and those that are called otherwise in it.
    void putPrograms(const QByteArray &qpdf)
    {
        QDir(m_directory.path()).mkdir("bin");
        for (const char *name : {"pdfinfo", "pdftoppm"})
            QFile::link(QStandardPaths::findExecutable(name), m_directory.filePath(QString("bin/") + name));
        QFile file(m_directory.filePath("bin/qpdf"));
        if (!qpdf.isEmpty()) {
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\n" + qpdf + '\n') > 0);
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        qputenv("PATH", m_directory.filePath("bin").toUtf8());
    }
    bool isWrittenDown(const QByteArray &text) const
    {
        QDirIterator files(m_directory.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext())
            if (QFile file(files.next()); file.open(QIODevice::ReadOnly) && file.readAll().contains(text))
                return true;
        return false;
    }

    static constexpr auto kLocked = "the document is locked with a password";
    QTemporaryDir m_directory;

private:
    QByteArray m_path = qgetenv("PATH");
};

struct Encryption
{
    const char *what;
    QStringList how;
    QString password;
};

void PrintTo(const Encryption &row, std::ostream *out) { *out << row.what; }

class Encrypted : public LockedDocument, public testing::WithParamInterface<Encryption>
{};

TEST_P(Encrypted, IsShownCheckedAndSentUnlocked)
{
    const QString document = locked(GetParam().password, "owner", GetParam().how);
    open(document);
    EXPECT_EQ(askedFor(), said(kLocked, document));
    EXPECT_EQ(field()->echoMode(), QLineEdit::Password);
    EXPECT_EQ(box()->findChildren<QLineEdit *>().size(), 1);
    EXPECT_EQ(message(), said(kLocked, document));
    answer(GetParam().password);
    ASSERT_TRUE(waitForPages("of 3")) << message().toStdString();
    EXPECT_EQ(message(), "");
    EXPECT_TRUE(m_window->windowTitle().contains(QFileInfo(document).fileName()));
    button("Previe&w")->click();
    settle();
    const auto &preview = m_window->findChild<PreviewPane *>()->preview();
    EXPECT_FALSE(preview.picture().isNull()) << preview.problem().toStdString();
    ASSERT_TRUE(print()) << message().toStdString();
    ASSERT_EQ(printed().size(), 1);
    EXPECT_EQ(pagesOf(printed()[0]), "3");
}

INSTANTIATE_TEST_SUITE_P(Rows, Encrypted,
                         testing::Values(Encryption{"AES-256", {"256"}, kPassword},
                                         Encryption{"AES-256, any letters", {"256"}, "pässwörd € 鍵"},
                                         Encryption{"AES-128", {"128", "--use-aes=y"}, kPassword},
                                         Encryption{"AES-128, European letters", {"128", "--use-aes=y"}, "pässwörd"},
                                         Encryption{"RC4", {"128", "--use-aes=n"}, kPassword},
                                         Encryption{"the owner's", {"256"}, "owner"}));

TEST_F(LockedDocument, IsUnlockedWithAccentsThatAreTypedAsMarksOfTheirOwn)
{
    open(locked("pässwörd"));
    answer(QString("pässwörd").normalized(QString::NormalizationForm_D));
    EXPECT_TRUE(waitForPages("of 3")) << message().toStdString();
}

TEST_F(LockedDocument, ThatAnybodyMayReadAsksForNothing)
{
    open(locked("", "owner"));
    EXPECT_TRUE(waitForPages("of 3"));
    EXPECT_FALSE(isAsking());
    EXPECT_TRUE(print());
}

TEST_F(LockedDocument, TakesNoEmptyPassword)
{
    open(locked());
    ASSERT_TRUE(box());
    for (auto *each : box()->findChildren<QPushButton *>())
        EXPECT_EQ(each->isEnabled(), each->text() != "&Unlock") << each->text().toStdString();
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_TRUE(isAsking());
}

TEST_F(LockedDocument, StaysLockedAfterThreeWrongPasswordsUntilItIsPrinted)
{
    const QString document = locked();
    open(document);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(askedFor(), said(i == 0 ? kLocked : "the password is wrong", document));
        answer("wrong");
    }
    const QString refusal = said("stays locked; no password was right", document);
    ASSERT_TRUE(QTest::qWaitFor([&] { return message() == refusal; }, 20000)) << message().toStdString();
    QTest::qWait(0); // what is queued would open a box
    EXPECT_FALSE(isAsking());
    button("&Print")->click();
    EXPECT_EQ(askedFor(), said(kLocked, document));
    EXPECT_EQ(message(), said(kLocked, document)); // once
    QSignalSpy finished(m_dialog.get(), &PrintDialog::finished);
    answer(kPassword);
    ASSERT_TRUE(QTest::qWaitFor([&] { return finished.size() == 1; }, 20000)) << message().toStdString();
    ASSERT_EQ(printed().size(), 1);
    EXPECT_EQ(pagesOf(printed()[0]), "3");
}

TEST_F(LockedDocument, IsNotPrintedWhenNobodyKnowsThePassword)
{
    const QString document = locked();
    open(document);
    cancel();
    EXPECT_EQ(message(), said(kLocked, document));
    button("&Print")->click();
    cancel();
    settle();
    EXPECT_EQ(message(), said(kLocked, document));
    EXPECT_EQ(m_dialog->state(), PrintDialog::State::ready);
    EXPECT_EQ(printed(), QStringList());
}

TEST_F(LockedDocument, ThatIsExchangedIsAskedForNoMore)
{
    open(locked());
    const QPointer<CredentialsBox> asking = box();
    ASSERT_TRUE(asking);
    m_dialog->chooseDocuments({support::kTicket});
    settle();
    EXPECT_FALSE(isAsking());
    EXPECT_EQ(m_dialog->documents().front()->title(), "ticket.pdf");
    const QString other = locked("another");
    m_dialog->chooseDocuments({other});
    EXPECT_EQ(askedFor(), said(kLocked, other));
    answer("another");
    EXPECT_TRUE(waitForPages("of 3"));
}

TEST_F(LockedDocument, ThatIsExchangedWhileItIsOpenedStaysAway)
{
    const QString document = locked();
    putPrograms("exec /bin/sleep 1000");
    open(document);
    answer(kPassword);
    m_dialog->chooseDocuments({support::kTicket});
    settle();
    QTest::qWait(100); // what is queued would put it there
    EXPECT_EQ(m_dialog->documents().front()->title(), "ticket.pdf");
    EXPECT_FALSE(isAsking());
    EXPECT_EQ(message(), "");
}

TEST_F(LockedDocument, IsPrintedOnceWhenPrintIsPressedWhileItIsOpened)
{
    const QString document = locked();
    putPrograms("/bin/sleep 1; exec " + QStandardPaths::findExecutable("qpdf").toUtf8() + " \"$@\"");
    open(document);
    answer(kPassword);
    EXPECT_TRUE(print()) << message().toStdString();
    EXPECT_EQ(printed().size(), 1);
    EXPECT_FALSE(isAsking());
}

TEST_F(LockedDocument, WaitsForTheBoxThatStandsOverTheWindow)
{
    open(support::kTicket);
    settle();
    QMessageBox over(m_window.get());
    over.open();
    QApplication::processEvents();
    const QString document = locked();
    m_dialog->chooseDocuments({document});
    settle();
    EXPECT_FALSE(isAsking());
    over.close();
    EXPECT_EQ(askedFor(), said(kLocked, document));
}

TEST_F(LockedDocument, IsAskedForByNoWindowThatHasGone)
{
    open(locked());
    m_window->done(QDialog::Rejected); // before anything has been read
    settle();
    QTest::qWait(100);
    EXPECT_FALSE(isAsking());
    open(locked());
    ASSERT_TRUE(box());
    m_window.reset();
    const QString document = locked();
    putPrograms("exec /bin/sleep 1000");
    open(document);
    answer(kPassword);
    m_window.reset(); // the program with it: else this test would last
}

TEST_F(LockedDocument, BehindAnotherIsAskedForWhenThatIsPrinted)
{
    const QString document = locked();
    open(support::kTicket);
    m_dialog->chooseDocuments({support::kTicket, document});
    settle();
    EXPECT_FALSE(isAsking());
    QSignalSpy finished(m_dialog.get(), &PrintDialog::finished);
    button("&Print")->click();
    EXPECT_EQ(askedFor(), said(kLocked, document));
    EXPECT_EQ(printed().size(), 1);
    answer(kPassword);
    ASSERT_TRUE(QTest::qWaitFor([&] { return finished.size() == 1; }, 20000)) << message().toStdString();
    EXPECT_EQ(printed().size(), 2);
}

TEST_F(LockedDocument, NamesTheProgramThatIsMissing)
{
    const QString document = locked();
    putPrograms({});
    open(document);
    const QString missing = said(kLocked, document) + "; qpdf, which unlocks it, is missing";
    EXPECT_TRUE(QTest::qWaitFor([&] { return message() == missing; }, 20000)) << message().toStdString();
    button("&Print")->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_dialog->state() == PrintDialog::State::ready; }, 20000));
    EXPECT_EQ(message(), missing);
    EXPECT_FALSE(isAsking());
}

TEST_F(LockedDocument, ThatIsDamagedAsWellIsToldOf)
{
    const QString document = locked();
    putPrograms("exit 2");
    open(document);
    answer(kPassword);
    const QString damaged = said("can't be unlocked; it is damaged, or too large", document);
    EXPECT_TRUE(QTest::qWaitFor([&] { return message() == damaged; }, 20000)) << message().toStdString();
}

TEST_F(LockedDocument, IsNotPrintedInPartWhereThereIsNoRoomForIt)
{
    const QString document = locked();
    putPrograms(QStandardPaths::findExecutable("qpdf").toUtf8() + " \"$@\" | /usr/bin/head -c 1000"); // ends well
    open(document);
    answer(kPassword);
    const QString damaged = said("can't be unlocked; it is damaged, or too large", document);
    EXPECT_TRUE(QTest::qWaitFor([&] { return message() == damaged; }, 20000)) << message().toStdString();
}

TEST_F(LockedDocument, LeavesItsPasswordNowhere)
{
    const QString document = locked();
    putPrograms("printf '%s\\n' \"$0\" \"$@\" >" + m_directory.filePath("arguments").toUtf8() + "\n/usr/bin/env >" +
                m_directory.filePath("environment").toUtf8() + "\nexec " +
                QStandardPaths::findExecutable("qpdf").toUtf8() + " \"$@\"");
    open(document);
    answer(kPassword);
    ASSERT_TRUE(waitForPages("of 3")) << message().toStdString();
    EXPECT_TRUE(isWrittenDown("--decrypt"));
    EXPECT_TRUE(isWrittenDown("PATH="));
    EXPECT_FALSE(isWrittenDown(kPassword));
    EXPECT_FALSE(qEnvironmentVariableIsSet("QPDF_PASSWORD"));
}

TEST_F(LockedDocument, GoesAsItIsWhereThatIsWanted)
{
    PrintRequest request;
    request.raw = true;
    open(locked(), request);
    settle();
    QTest::qWait(0);
    EXPECT_FALSE(isAsking());
    ASSERT_TRUE(print());
    EXPECT_EQ(pagesOf(printed()[0]), "");
}

} // namespace
