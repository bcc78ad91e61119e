// The command that GTK calls for a preview: a file with settings, and a document; both are ours to remove.
#include "Print.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr auto kPPD = QN_SOURCE_DIR "/examples/ppd/full.ppd";
constexpr int kMilliseconds = 60000;

class PrintSettings : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath("tmp"));
        ASSERT_TRUE(QFile::copy(QN_SOURCE_DIR "/examples/documents/ticket.pdf", path("tmp/previewAB12CD.pdf")));
        write("tmp/settingsAB12CD.ini", "[Print Settings]\nn-copies=2\nprint-pages=ranges\npage-ranges=4-5\n"
                                        "cups-QnDensity=D3\ncups-QnSpeed=NoSuch\nprinter=Print to File\n\n"
                                        "[Page Setup]\nPPDName=A5\nWidth=148\n\n[Print Job]\ntitle=Invoice\\s17\n");
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    int run(const QString &settings, const QString &document, const QStringList &more = {})
    {
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", path("tmp"));
        environment.insert("XDG_CONFIG_HOME", path("config"));
        program.setProcessEnvironment(environment);
        program.start(QN_PROGRAM, QStringList{"--no-dialog", "--ppd", kPPD, "--output", path("out")} + more +
                                      QStringList{"--print-settings", settings, document});
        const bool hasEnded = program.waitForFinished(kMilliseconds);
        m_said = QString::fromUtf8(program.readAllStandardError());
        return hasEnded && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    int run(const QStringList &more = {})
    {
        return run(path("tmp/settingsAB12CD.ini"), path("tmp/previewAB12CD.pdf"), more);
    }
    /// Of the one job that there is.
    QJsonObject ticket() const
    {
        const QStringList tickets = QDir(path("out")).entryList({"*.json"});
        QFile file(path("out/" + tickets.value(0)));
        return tickets.size() == 1 && file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                                                     : QJsonObject();
    }

    QTemporaryDir m_folder;
    QString m_said;
};

TEST_F(PrintSettings, AreWhatADialogBeginsWith)
{
    EXPECT_EQ(run(), 0) << m_said.toStdString();
    EXPECT_EQ(ticket()["title"], "Invoice 17");
    EXPECT_EQ(ticket()["copies"], 2);
    const QJsonObject options = ticket()["options"].toObject();
    EXPECT_EQ(options["PageSize"], "A5");
    EXPECT_EQ(options["QnDensity"], "D3");
    EXPECT_FALSE(options.contains("QnSpeed")); // a choice that the printer does not have
}

// The application has left the other pages out.
TEST_F(PrintSettings, ChooseNoPagesOnceMore)
{
    EXPECT_EQ(run(), 0) << m_said.toStdString();
    EXPECT_FALSE(ticket().contains("pages"));
}

TEST_F(PrintSettings, CountForLessThanTheCommandLine)
{
    EXPECT_EQ(run({"-n", "3", "-t", "Order", "-o", "PageSize=A4"}), 0) << m_said.toStdString();
    EXPECT_EQ(ticket()["title"], "Order");
    EXPECT_EQ(ticket()["copies"], 3);
    EXPECT_EQ(ticket()["options"].toObject()["PageSize"], "A4");
}

TEST_F(PrintSettings, GoWithTheirDocumentWhenTheyAreTemporary)
{
    EXPECT_EQ(run(), 0) << m_said.toStdString();
    EXPECT_EQ(QDir(path("tmp")).entryList(QDir::Files), QStringList());
}

TEST_F(PrintSettings, OfAPersonStay)
{
    ASSERT_TRUE(QFile::rename(path("tmp/settingsAB12CD.ini"), path("settingsAB12CD.ini")));
    ASSERT_TRUE(QFile::rename(path("tmp/previewAB12CD.pdf"), path("tmp/invoice.pdf")));
    EXPECT_EQ(run(path("settingsAB12CD.ini"), path("tmp/invoice.pdf")), 0) << m_said.toStdString();
    EXPECT_TRUE(QFile::exists(path("settingsAB12CD.ini"))); // in another folder
    EXPECT_TRUE(QFile::exists(path("tmp/invoice.pdf")));    // by another name
}

TEST_F(PrintSettings, ThatAreALinkStay)
{
    write("mine.ini", "[Print Settings]\nn-copies=2\n");
    ASSERT_TRUE(QFile::link(path("mine.ini"), path("tmp/settingsLINK00.ini")));
    EXPECT_EQ(run(path("tmp/settingsLINK00.ini"), path("tmp/previewAB12CD.pdf")), 0) << m_said.toStdString();
    EXPECT_TRUE(QFile::exists(path("mine.ini")));
    EXPECT_TRUE(QFile::exists(path("tmp/settingsLINK00.ini")));
}

TEST_F(PrintSettings, StayWithADocumentThatCantBePrinted)
{
    write("tmp/previewAB12CD.pdf", "");
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(QDir(path("out")).entryList({"*.json"}), QStringList());
}

TEST_F(PrintSettings, ThatAreNoneAreNamed)
{
    write("none.ini", "[Other]\nx=1\n");
    EXPECT_EQ(run(path("none.ini"), path("tmp/previewAB12CD.pdf")), 2);
    EXPECT_EQ(m_said, QString("qnprint: %1: there are no print settings in it\n").arg(path("none.ini")));
    EXPECT_TRUE(QFile::exists(path("tmp/previewAB12CD.pdf")));
}

} // namespace
