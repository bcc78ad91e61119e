// A page as a picture, made by the program itself where there is no display.
#include "CupsServer.h"
#include "PDFText.h"
#include "Print.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

namespace {

constexpr auto kPPD = QN_SOURCE_DIR "/examples/ppd/full.ppd";
constexpr int kMilliseconds = 60000;

/// What the first parts of a PNG say.
struct Picture
{
    QSize size;
    int bits = 0;
    int colour = -1; // 0: grey
    quint32 dotsPerMetre = 0;
};

Picture readPicture(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    const auto number = [&](qsizetype at) { return qFromBigEndian<quint32>(bytes.constData() + at); };
    const qsizetype resolution = bytes.indexOf("pHYs") + 4;
    if (bytes.mid(12, 4) != "IHDR" || resolution < 4)
        return {};
    return {QSize(static_cast<int>(number(16)), static_cast<int>(number(20))), bytes[24], bytes[25],
            number(resolution)};
}

/// With a document of three pages: a bar at the top that is longer on each.
class Preview : public testing::Test
{
protected:
    int run(QStringList arguments)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QN_PROGRAM, arguments);
        EXPECT_TRUE(process.waitForFinished(kMilliseconds)) << process.errorString().toStdString();
        m_said = process.readAllStandardError();
        EXPECT_EQ(process.readAllStandardOutput(), "");
        return process.exitCode();
    }
    int preview(const QStringList &options, const QString &document)
    {
        return run(QStringList{"preview", "--ppd", kPPD} + options + QStringList{document, picture()});
    }
    int preview(const QStringList &options = {}) { return preview(options, m_document); }
    QString picture() const { return m_folder.filePath("page.png"); }
    bool isDark(double x, double y) const
    {
        const QImage dots(picture());
        return qGray(dots.pixel(qRound(x / 72 * 203), qRound(y / 72 * 203))) < 128;
    }
    /// Which of the three it is.
    int shownPage() const { return isDark(350, 30) ? 3 : isDark(250, 30) ? 2 : isDark(150, 30) ? 1 : 0; }

    const QString m_document = support::PDFText()
                                   .page({595, 842}, "0 g 100 792 100 40 re f")
                                   .page({595, 842}, "0 g 100 792 200 40 re f")
                                   .page({595, 842}, "0 g 100 792 300 40 re f")
                                   .file();
    QTemporaryDir m_folder;
    QByteArray m_said;
};

TEST_F(Preview, IsTheWholeSheetInTheDotsOfTheHead)
{
    ASSERT_EQ(preview(), 0) << m_said.toStdString();
    const Picture told = readPicture(picture());
    EXPECT_EQ(told.size, QSize(1678, 2374));
    EXPECT_EQ(told.bits, 1);
    EXPECT_EQ(told.colour, 0);
    EXPECT_EQ(told.dotsPerMetre, 7992U); // 203 an inch
    EXPECT_EQ(shownPage(), 1);
    EXPECT_EQ(m_said, "");
}

TEST_F(Preview, HasTheResolutionOfTheHead)
{
    QFile example(kPPD);
    ASSERT_TRUE(example.open(QIODevice::ReadOnly));
    const QString ppd = support::fileOf(example.readAll().replace("203dpi", "300dpi"), "ppd");
    ASSERT_EQ(run({"preview", "--ppd", ppd, m_document, picture()}), 0) << m_said.toStdString();
    EXPECT_EQ(readPicture(picture()).size, QSize(2479, 3508));
    EXPECT_EQ(readPicture(picture()).dotsPerMetre, 11811U);
}

TEST_F(Preview, IsGreyWhereItIsAskedToBePlain)
{
    ASSERT_EQ(preview({"--plain", "-o", "QnReversal=ON"}), 0) << m_said.toStdString();
    EXPECT_EQ(readPicture(picture()).bits, 8);
    EXPECT_EQ(readPicture(picture()).colour, 0);
    EXPECT_EQ(readPicture(picture()).size, QSize(1678, 2374));
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(Preview, CountsThePagesThatArePrinted)
{
    ASSERT_EQ(preview({"--page", "3"}), 0);
    EXPECT_EQ(shownPage(), 3);
    ASSERT_EQ(preview({"-P", "2-3"}), 0);
    EXPECT_EQ(shownPage(), 2);
    ASSERT_EQ(preview({"-P", "2-3", "--page", "2"}), 0);
    EXPECT_EQ(shownPage(), 3);
}

TEST_F(Preview, FollowsTheOptionsOfTheJob)
{
    ASSERT_EQ(preview({"-o", "QnReversal=ON"}), 0) << m_said.toStdString();
    EXPECT_TRUE(isDark(300, 421));
    EXPECT_FALSE(isDark(150, 30));
    ASSERT_EQ(preview({"-o", "QnMirror=ON"}), 0) << m_said.toStdString();
    EXPECT_TRUE(isDark(595 - 150, 30));
    EXPECT_FALSE(isDark(150, 30));
    ASSERT_EQ(preview({"-o", "PageSize=A5"}), 0) << m_said.toStdString();
    EXPECT_EQ(readPicture(picture()).size, QSize(1184, 1678));
    EXPECT_TRUE(isDark(105, 24)); // all of the page, smaller
    ASSERT_EQ(preview({"-o", "PageSize=A5", "-o", "print-scaling=none"}), 0) << m_said.toStdString();
    EXPECT_FALSE(isDark(105, 24)); // its middle
    ASSERT_EQ(preview({"-o", "PageSize=A5", "-o", "print-scaling=none", "-o", "fit-to-page=true"}), 0);
    EXPECT_FALSE(isDark(105, 24));
    ASSERT_EQ(preview({"-o", "PageSize=Custom.200x300"}), 0) << m_said.toStdString();
    EXPECT_EQ(readPicture(picture()).size, QSize(564, 846));
}

TEST_F(Preview, SaysWhatTheServerDoesBesides)
{
    ASSERT_EQ(preview({"-o", "number-up=2", "-o", "mirror=true"}), 0);
    EXPECT_EQ(m_said, "qnprint: not in this picture: mirror=true\nqnprint: not in this picture: number-up=2\n");
    ASSERT_EQ(preview({"-o", "number-up=1"}), 0);
    EXPECT_EQ(m_said, "");
}

struct RefusalRow
{
    QStringList options;
    QString document; // empty: the one of three pages
    QByteArray said;  // behind the program's name; %1 is the document's
};

TEST_F(Preview, IsRefusedInOneSentenceAndLeavesAnOlderPictureAlone)
{
    const QString single = support::PDFText().page({300, 400}).file();
    const QString locked = support::fileOf({}, "pdf");
    ASSERT_EQ(QProcess::execute("qpdf", {"--encrypt", "secret", "owner", "256", "--", single, locked}), 0);
    QFile older(picture());
    ASSERT_TRUE(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    older.close();
    for (const auto &[options, document, said] : {
             RefusalRow{{"--page", "4"}, {}, "--page 4: only 3 pages are printed"},
             RefusalRow{{"--page", "2"}, single, "--page 2: only one page is printed"},
             RefusalRow{{"-P", "2", "--page", "2"}, {}, "--page 2: only one page is printed"},
             RefusalRow{{"-P", "2-4"}, {}, "%1 has only 3 pages, not 2-4"},
             RefusalRow{{}, "/no/such.pdf", "/no/such.pdf: No such file or directory"},
             RefusalRow{{}, support::fileOf("%PDF-1.4\nnothing", "pdf"), "%1: the document is damaged"},
             RefusalRow{{}, locked, "%1: the document is locked with a password"},
         }) {
        const QString name = document.isEmpty() ? m_document : document;
        EXPECT_EQ(preview(options, name), 1) << said.toStdString();
        EXPECT_EQ(m_said, "qnprint: " + QByteArray(said).replace("%1", name.section('/', -1).toUtf8()) + '\n');
        ASSERT_TRUE(older.open(QIODevice::ReadOnly));
        EXPECT_EQ(older.readAll(), "older");
        older.close();
    }
}

TEST_F(Preview, SaysThatThePictureCannotBeWritten)
{
    EXPECT_EQ(run({"preview", "--ppd", kPPD, m_document, "/no/such/page.png"}), 1);
    EXPECT_EQ(m_said, "qnprint: /no/such/page.png: can't be written\n");
}

TEST_F(Preview, NeedsADocumentAPictureAndAPagesNumber)
{
    const auto expectWrong = [this](const QStringList &arguments, const QByteArray &said) {
        EXPECT_EQ(run(arguments), 2) << said.toStdString();
        EXPECT_EQ(m_said, "qnprint: " + said + '\n');
    };
    const QByteArray two = "preview: needs a document and the name of one picture";
    expectWrong({"preview", "--ppd", kPPD, m_document}, two);
    expectWrong({"preview", "--ppd", kPPD, m_document, m_document, picture()}, two);
    for (const QString page : {"0", "-1", "x", "", "99999999999"})
        expectWrong({"preview", "--page=" + page, m_document, picture()},
                    "--page " + page.toUtf8() + ": not a page's number");
    expectWrong({"--no-dialog", "--page", "2", m_document}, "--page goes with preview only");
    expectWrong({"--no-dialog", "--plain", m_document}, "--plain goes with preview only");
}

class PreviewOfAQueue : public Preview
{
protected:
    void SetUp() override
    {
        const auto problem = m_server.start();
        ASSERT_FALSE(problem) << problem->toStdString();
    }
    int previewFor(const QString &queue, const QStringList &options = {})
    {
        return m_server.run(
            QN_PROGRAM, QStringList{"preview", "-d", queue} + options + QStringList{m_document, picture()}, &m_said);
    }
    support::CupsServer m_server;
};

TEST_F(PreviewOfAQueue, FollowsItsSavedOptionsAndPrintsNothing)
{
    ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
    ASSERT_EQ(m_server.run("lpoptions", {"-p", "counter", "-o", "PageSize=A5"}), 0);
    ASSERT_EQ(previewFor("counter"), 0) << m_said.toStdString();
    EXPECT_EQ(readPicture(picture()).size, QSize(1184, 1678));
    EXPECT_EQ(readPicture(picture()).bits, 1);
    EXPECT_EQ(m_server.recordCount(), 0);
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_EQ(previewFor("nowhere"), 1);
    EXPECT_EQ(m_said, "qnprint: nowhere: no such queue\n");
}

TEST_F(PreviewOfAQueue, SaysThatThePaperIsNotKnownWhereNothingTellsIt)
{
    ASSERT_TRUE(m_server.addPlainQueue("office", "usb://Qn/Plain?serial=1"));
    EXPECT_EQ(previewFor("office"), 1);
    EXPECT_EQ(m_said, "qnprint: office: the size of the paper is not known\n");
}

} // namespace
