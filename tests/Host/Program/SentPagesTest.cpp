// What is sent is what was previewed: through the program, as it arrives in a folder and at a driver's filter.
#include "CupsServer.h"
#include "JobPDF.h"
#include "Print.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <random>
#include <sys/resource.h>

using support::CupsServer;
using support::JobPDF;
using support::wordsOf;

namespace {

constexpr auto kPPD = QN_SOURCE_DIR "/examples/ppd/full.ppd"; // its driver takes PDF
constexpr int kMilliseconds = 20000;
const QSizeF kA4(595, 842);

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The program, with folders of its own for what it writes, and perhaps with others in place of its helpers.
class Sending : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char *name : {"bin", "lib", "readers", "tmp", "out"})
            QDir(m_folder.path()).mkpath(name);
        m_environment.insert("TMPDIR", path("tmp"));
        m_environment.insert("QNPRINT_PLUGIN_PATH", QN_BUNDLE_DIR "/..");
        m_environment.insert("XDG_RUNTIME_DIR", m_folder.path()); // or Qt makes one
        m_program.setProcessChannelMode(QProcess::MergedChannels);
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString document(const JobPDF &text) const { return text.file(path("ticket.pdf")); }
    /// From now on the program stands in another place, with this beside it in place of the one that arranges pages.
    void replaceArranger(const QByteArray &script)
    {
        ASSERT_TRUE(QFile::copy(QN_PROGRAM, path("bin/qnprint")));
        m_path = path("bin/qnprint");
        if (!script.isEmpty())
            write("lib/qnprint-arrange", script);
    }
    void replaceReader(const QByteArray &script)
    {
        write("readers/pdfinfo", script);
        m_environment.insert("PATH", path("readers") + ':' + m_environment.value("PATH"));
    }
    void start(const QStringList &arguments)
    {
        m_program.setProcessEnvironment(m_environment);
        m_program.start(m_path, arguments);
    }
    /// Into the folder; the exit status.
    int print(const QStringList &arguments)
    {
        start(QStringList{"--no-dialog", "--language", "en", "--ppd", kPPD, "--output", path("out")} + arguments);
        return finish();
    }
    int finish()
    {
        EXPECT_TRUE(m_program.waitForFinished(kMilliseconds));
        m_said = m_program.readAll();
        EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
        return m_program.exitCode();
    }
    QStringList files(const QString &folder) const
    {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    void write(const QString &name, const QByteArray &script)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(script) == script.size());
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QString m_path = QN_PROGRAM;
    QProcess m_program;
    QByteArray m_said;
};

TEST_F(Sending, PutsAPDFIntoTheFolderByteForByteWhenItsPagesAreSheets)
{
    const QString sheets = document(JobPDF().pages(3, kA4));
    ASSERT_EQ(print({sheets}), 0) << m_said.toStdString();
    EXPECT_EQ(contentOf(path("out/ticket.pdf")), contentOf(sheets));
}

TEST_F(Sending, PutsATextIntoTheFolderAsAPDF)
{
    ASSERT_EQ(print({QN_SOURCE_DIR "/examples/documents/invoice.txt"}), 0) << m_said.toStdString();
    EXPECT_EQ(m_said, path("out/invoice.pdf").toUtf8() + '\n');
    EXPECT_EQ(support::sizesOf(path("out/invoice.pdf")), std::vector<QSizeF>(1, kA4));
    const auto ticket = QJsonDocument::fromJson(contentOf(path("out/invoice.json")));
    EXPECT_EQ(ticket["format"].toString(), "application/pdf");
    EXPECT_EQ(ticket["document"].toString(), "invoice.pdf");
    EXPECT_EQ(ticket["title"].toString(), "invoice.txt");
}

TEST_F(Sending, PutsWhatWasGivenIntoTheFolderWhenItIsToBeRaw)
{
    const QString text = QN_SOURCE_DIR "/examples/documents/invoice.txt";
    ASSERT_EQ(print({"--raw", text}), 0) << m_said.toStdString();
    EXPECT_EQ(contentOf(path("out/invoice.txt")), contentOf(text));
    const QString small = document(JobPDF().pages(3, {300, 400}));
    ASSERT_EQ(print({"--raw", "-P", "2-7", "-o", "print-scaling=fit", small}), 0) << m_said.toStdString();
    EXPECT_EQ(contentOf(path("out/ticket.pdf")), contentOf(small));
    const auto ticket = QJsonDocument::fromJson(contentOf(path("out/ticket.json")));
    EXPECT_EQ(ticket["pages"].toString(), "2-7");
    EXPECT_EQ(ticket["options"]["print-scaling"].toString(), "fit");
}

TEST_F(Sending, IsWrongUseOfAPreviewWhenItIsRaw)
{
    start({"preview", "--raw", "--ppd", kPPD, document(JobPDF().pages(1, kA4)), path("page.png")});
    EXPECT_EQ(finish(), 2);
    EXPECT_EQ(m_said, "qnprint: preview and --raw do not go together\n");
}

TEST_F(Sending, RefusesPagesBeyondTheEnd)
{
    EXPECT_EQ(print({"-P", "2-4", document(JobPDF().pages(3, kA4))}), 1);
    EXPECT_EQ(m_said, "qnprint: ticket.pdf has only 3 pages, not 2-4\n");
    EXPECT_EQ(files("out"), QStringList());
}

TEST_F(Sending, RefusesADamagedDocument)
{
    write("ticket.pdf", "%PDF-1.4 and nothing else");
    EXPECT_EQ(print({path("ticket.pdf")}), 1);
    EXPECT_EQ(m_said, "qnprint: ticket.pdf: the document is damaged\n");
    EXPECT_EQ(files("out"), QStringList());
}

TEST_F(Sending, ChecksNothingWithoutAProgramThatReadsPDF)
{
    m_environment.insert("PATH", "/nowhere");
    ASSERT_EQ(print({"-P", "7", document(JobPDF().pages(1, kA4))}), 0) << m_said.toStdString();
    EXPECT_EQ(contentOf(path("out/ticket.pdf")), contentOf(path("ticket.pdf")));
}

struct Arranger
{
    const char *name;
    QByteArray script; // empty: there is none
    const char *said;
};

void PrintTo(const Arranger &row, std::ostream *out) { *out << row.name; }

class SendingWith : public Sending, public testing::WithParamInterface<Arranger>
{};

TEST_P(SendingWith, SendsNothing)
{
    replaceArranger(GetParam().script);
    EXPECT_EQ(print({"-P", "1", document(JobPDF().pages(2, kA4))}), 1);
    EXPECT_EQ(m_said, QByteArray("qnprint: ticket.pdf: ") + GetParam().said + '\n');
    EXPECT_EQ(files("out"), QStringList());
    EXPECT_EQ(files("tmp"), QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    AnArranger, SendingWith,
    testing::Values(Arranger{"ThatIsMissing", "",
                             "can't be put on the paper: qnprint-arrange is missing (it is part of qnprint)."},
                    Arranger{"ThatCrashes", "#!/bin/sh\nkill -SEGV $$\n",
                             "the document takes too long, or too much memory, to be put on the paper"},
                    Arranger{"ThatWritesNoPDF", "#!/bin/sh\nexit 1\n", "the document is damaged"},
                    Arranger{"ThatHasNoRoom", "#!/bin/sh\nexit 2\n", "there is no room for its pages"}),
    [](const auto &row) { return std::string(row.param.name); });

struct LimitRow
{
    const char *name;
    const char *file;
    QByteArray content;
    QStringList arguments;
    const char *said; // %1: the folder
};

void PrintTo(const LimitRow &row, std::ostream *out) { *out << row.name; }

/// No file may be larger than a few pages.
class WithoutRoom : public Sending
{
protected:
    void SetUp() override
    {
        Sending::SetUp();
        m_program.setChildProcessModifier([] {
            rlimit limit{};
            ::getrlimit(RLIMIT_FSIZE, &limit);
            limit.rlim_cur = 10'000; // which everybody may raise
            ::setrlimit(RLIMIT_FSIZE, &limit);
        });
    }
};

TEST_F(WithoutRoom, AProgramBesideUsEndsThatWritesOnAllTheSame)
{
    replaceArranger("#!/bin/sh\nexec head -c 20000 /dev/zero\n");
    EXPECT_EQ(print({"-P", "1", document(JobPDF().pages(2, kA4))}), 1);
    EXPECT_EQ(m_said, "qnprint: ticket.pdf: the document takes too long, or too much memory, to be put on the paper\n");
    EXPECT_EQ(files("out"), QStringList());
}

class SendingWithoutRoom : public WithoutRoom, public testing::WithParamInterface<LimitRow>
{};

TEST_P(SendingWithoutRoom, IsToldAndLeavesNothing)
{
    write(GetParam().file, GetParam().content);
    EXPECT_EQ(print(GetParam().arguments + QStringList(path(GetParam().file))), 1);
    EXPECT_EQ(m_said, "qnprint: " + QString(GetParam().said).replace("%1", path("out")).toUtf8() + '\n');
    EXPECT_EQ(files("out"), QStringList());
    EXPECT_EQ(files("tmp"), QStringList());
}

QByteArray largeText() { return QByteArray("words without end\n").repeated(10'000); }
/// Also when it is packed.
QByteArray largePDF()
{
    std::minstd_rand numbers;
    QByteArray drawing = "0 0 m\n";
    for (int i = 0; i < 10'000; ++i)
        drawing += QByteArray::number(static_cast<uint>(numbers()) % 595) + ' ' + QByteArray::number(i % 842) + " l\n";
    return JobPDF().pages(1, kA4).page("/MediaBox[0 0 595 842]", drawing + "S").text();
}

INSTANTIATE_TEST_SUITE_P(
    For, SendingWithoutRoom,
    testing::Values(
        LimitRow{"ADocumentAsItIs", "large.pdf", largePDF(), {}, "%1: File too large"},
        LimitRow{"ARawDocument", "large.txt", largeText(), {"--raw"}, "%1: File too large"},
        LimitRow{"PagesOfAText", "large.txt", largeText(), {}, "large.txt: its pages can't be kept: File too large"},
        LimitRow{
            "PagesOfADocument", "large.pdf", largePDF(), {"-P", "2"}, "large.pdf: there is no room for its pages"}),
    [](const auto &row) { return std::string(row.param.name); });

/// The processes that a process has started.
QList<pid_t> childrenOf(qint64 process)
{
    QList<pid_t> children;
    for (const QString &thread :
         QDir(QString("/proc/%1/task").arg(process)).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        for (const QByteArray &child :
             contentOf(QString("/proc/%1/task/%2/children").arg(process).arg(thread)).simplified().split(' '))
            if (!child.isEmpty())
                children.append(child.toInt());
    return children;
}

class Stopped : public Sending, public testing::WithParamInterface<const char *>
{};

TEST_P(Stopped, LeavesNothing)
{
    const QByteArray script = "#!/bin/sh\nexec sleep 600\n";
    if (qstrcmp(GetParam(), "Reading") == 0)
        replaceReader(script);
    else
        replaceArranger(script);
    start({"--no-dialog", "--language", "en", "--ppd", kPPD, "--output", path("out"), "-P", "1",
           document(JobPDF().pages(2, kA4))});
    const auto isAtIt = [this] {
        const auto children = childrenOf(m_program.processId());
        return std::ranges::any_of(children, [](pid_t child) {
            return contentOf(QString("/proc/%1/cmdline").arg(child)).startsWith("sleep");
        });
    };
    ASSERT_TRUE(QTest::qWaitFor(isAtIt, kMilliseconds));
    const auto children = childrenOf(m_program.processId());
    ::kill(static_cast<pid_t>(m_program.processId()), SIGINT);
    EXPECT_EQ(finish(), 1);
    EXPECT_EQ(m_said, "qnprint: cancelled; nothing was printed\n");
    for (const pid_t child : children)
        EXPECT_FALSE(QFile::exists(QString("/proc/%1").arg(child)));
    EXPECT_EQ(files("out"), QStringList());
    EXPECT_EQ(files("tmp"), QStringList());
}

INSTANTIATE_TEST_SUITE_P(While, Stopped, testing::Values("Reading", "Arranging"),
                         [](const auto &row) { return std::string(row.param); });

struct Document
{
    const char *name;
    QByteArray page;
    const char *scaling;
};

void PrintTo(const Document &row, std::ostream *out) { *out << row.name; }

class Sent : public Sending, public testing::WithParamInterface<Document>
{};

/// The darkest and the lightest dot around one.
std::pair<int, int> around(const QImage &picture, int x, int y)
{
    std::pair<int, int> both{255, 0};
    for (int row = y - 1; row <= y + 1; ++row)
        for (int column = x - 1; column <= x + 1; ++column) {
            const int grey = picture.constScanLine(row)[column];
            both = {std::min(both.first, grey), std::max(both.second, grey)};
        }
    return both;
}

/// Dots of one picture that the other has nothing like: an edge may lie half a dot beside.
int strangersIn(const QImage &one, const QImage &other, int margin)
{
    constexpr int kLikeness = 40;
    int strangers = 0;
    for (int y = margin; y < one.height() - margin; ++y)
        for (int x = margin; x < one.width() - margin; ++x) {
            const auto [darkest, lightest] = around(other, x, y);
            const int grey = one.constScanLine(y)[x];
            strangers += grey < darkest - kLikeness || grey > lightest + kLikeness;
        }
    return strangers;
}

TEST_P(Sent, IsWhatWasPreviewedDotByDot)
{
    constexpr double kResolution = 203;
    constexpr int kMargin = 27; // dots that the printer can't reach
    const auto [name, page, scaling] = GetParam();
    const QString both = document(JobPDF().pages(1, {300, 400}).page(page, R"(
        BT /F 48 Tf 80 90 Td (Dot by dot) Tj ET 60 60 40 20 re 3 w 120 150 m 260 250 l S f)"));
    const QStringList wanted{"-P", "2", "-o", QString("print-scaling=") + scaling, both};
    start(QStringList{"preview", "--plain", "--ppd", kPPD} + wanted + QStringList(path("page.png")));
    ASSERT_EQ(finish(), 0) << m_said.toStdString();
    ASSERT_EQ(print(wanted), 0) << m_said.toStdString();
    const QImage preview = QImage(path("page.png")).convertToFormat(QImage::Format_Grayscale8);
    const QImage sent =
        support::pictureOf(path("out/ticket.pdf"), 1, kResolution).convertToFormat(QImage::Format_Grayscale8);
    ASSERT_EQ(preview.width(), sent.width());
    ASSERT_EQ(preview.height(), sent.height());
    EXPECT_GT(strangersIn(preview, QImage(preview.size(), QImage::Format_Grayscale8), kMargin), 0);
    EXPECT_EQ(strangersIn(preview, sent, kMargin), 0);
    EXPECT_EQ(strangersIn(sent, preview, kMargin), 0);
}

INSTANTIATE_TEST_SUITE_P(Page, Sent,
                         testing::Values(Document{"Small", "/MediaBox[0 0 400 500]", "auto"},
                                         Document{"SmallAndFitted", "/MediaBox[0 0 400 500]", "fit"},
                                         Document{"SmallAndFilling", "/MediaBox[0 0 400 500]", "fill"},
                                         Document{"Large", "/MediaBox[0 0 842 1191]", "auto"},
                                         Document{"LargeAndCut", "/MediaBox[0 0 842 1191]", "none"},
                                         Document{"Landscape", "/MediaBox[0 0 842 595]", "auto"},
                                         Document{"RotatedAndCropped",
                                                  "/MediaBox[10 20 810 1020]/CropBox[40 40 510 640]/Rotate 90", "fit"}),
                         [](const auto &row) { return std::string(row.param.name); });

class SentToAQueue : public Sending
{
protected:
    void SetUp() override
    {
        Sending::SetUp();
        const auto problem = m_server.start();
        ASSERT_FALSE(problem) << problem->toStdString();
        ASSERT_TRUE(m_server.addQueue("counter", "usb://Qn/Thermal?serial=1"));
        m_environment = m_server.environment();
    }
    int printOn(const QString &queue, const QStringList &arguments)
    {
        start(QStringList{"--no-dialog", "--language", "en", "-d", queue} + arguments);
        return finish();
    }
    CupsServer m_server;
};

TEST_F(SentToAQueue, ArePagesOnSheetsWhereTheDriverTakesPDF)
{
    const QString small = document(JobPDF().pages(3, {300, 400}));
    ASSERT_EQ(printOn("counter", {"-P", "2-3", "-n", "2", "-o", "print-scaling=fit", small}), 0)
        << m_said.toStdString();
    const auto job = m_server.record(1);
    EXPECT_EQ(job["copies"], "2");
    EXPECT_EQ(job["title"], "ticket.pdf");
    for (const char *done : {"page-ranges", "print-scaling"})
        EXPECT_FALSE(job["options"].contains(done)) << job["options"].toStdString();
    EXPECT_EQ(wordsOf(m_server.documentOf(1)), QStringList({"Page 2", "Page 3"}));
    EXPECT_EQ(support::sizesOf(m_server.documentOf(1)), std::vector<QSizeF>(2, kA4));
}

TEST_F(SentToAQueue, LieWhereTheServerPutsThemForOtherDrivers)
{
    ASSERT_TRUE(
        m_server.addQueue("other", "usb://Qn/Thermal?serial=2",
                          {{"*cupsFilter2:", "*cupsFilter2: \"application/vnd.cups-pdf application/vnd.qn-pdf 0 "
                                             "qnfilter\""}}));
    const QString small = document(JobPDF().pages(3, {300, 400}));
    const QStringList wanted{"-P", "2", "-o", "print-scaling=fit", small};
    ASSERT_EQ(printOn("other", wanted), 0) << m_said.toStdString();
    ASSERT_EQ(printOn("counter", wanted), 0) << m_said.toStdString();
    const auto job = m_server.record(1);
    EXPECT_TRUE(job["options"].contains("page-ranges=2")) << job["options"].toStdString();
    EXPECT_TRUE(job["options"].contains("print-scaling=fit")) << job["options"].toStdString();
    m_server.record(2);
    const auto picture = [this](int number) {
        return support::pictureOf(m_server.documentOf(number), 1, 100).convertToFormat(QImage::Format_Grayscale8);
    };
    ASSERT_EQ(picture(1).width(), picture(2).width());
    ASSERT_EQ(picture(1).height(), picture(2).height());
    EXPECT_EQ(strangersIn(picture(1), picture(2), 1), 0);
    EXPECT_EQ(strangersIn(picture(2), picture(1), 1), 0);
}

TEST_F(SentToAQueue, AreTheBytesThatWereGivenWhenTheyAreToBeRaw)
{
    const QString small = document(JobPDF().pages(3, {300, 400}));
    ASSERT_EQ(printOn("counter", {"--raw", "-P", "2", small}), 0) << m_said.toStdString();
    EXPECT_TRUE(m_server.record(1)["options"].contains("page-ranges=2"));
    EXPECT_EQ(contentOf(m_server.documentOf(1)), contentOf(small));
}

TEST_F(SentToAQueue, AreTheBytesThatWereGivenWhereThereIsNoDriver)
{
    ASSERT_TRUE(m_server.addPlainQueue("plain", "file:///dev/null"));
    ASSERT_EQ(m_server.run("cupsdisable", {"plain"}), 0); // the document waits
    write("ticket.pdf", "%PDF-1.4 and nothing else");     // nobody looks
    ASSERT_EQ(printOn("plain", {path("ticket.pdf")}), 0) << m_said.toStdString();
    ASSERT_EQ(m_server.spooled().size(), 1);
    EXPECT_EQ(contentOf(m_server.path("spool/" + m_server.spooled().first())), contentOf(path("ticket.pdf")));
}

TEST_F(SentToAQueue, AreNoneWhenThereAreNoSuchPages)
{
    EXPECT_EQ(printOn("counter", {"-P", "7-9", document(JobPDF().pages(3, kA4))}), 1);
    EXPECT_EQ(m_said, "qnprint: ticket.pdf has only 3 pages, not 7-9\n");
    EXPECT_EQ(m_server.openJobs(), "");
    EXPECT_EQ(m_server.spooled(), QStringList());
}

} // namespace
