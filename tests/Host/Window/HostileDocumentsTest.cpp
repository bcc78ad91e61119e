// Documents that mean no good: the window stays a window, takes so much memory with its helpers and no more, and when
// it closes nothing of it is left.
#include "PDFText.h"
#include "PPDText.h"
#include "WindowTest.h"

#include "Foundation/Shadow.h"
#include "Window/PreviewPane.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSpinBox>
#include <QTabBar>
#include <QTemporaryDir>

#include <atomic>
#include <cerrno>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace host;
using support::PDFText;

namespace {

constexpr long kMostMemory = (foundation::kHasShadow ? 4000L : 600L) * 1024; // KiB

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The most that a process has had in memory, in KiB.
long peakOf(const QByteArray &process)
{
    const QByteArray status = contentOf("/proc/" + process + "/status");
    return status.mid(status.indexOf("VmHWM:") + 6).trimmed().split(' ').first().toLong();
}

/// Of this process and all of its helpers at once. A helper that has not begun yet is still this process once more.
class Memory
{
public:
    long most() const { return m_most; }

private:
    static bool isStillOurs(const QByteArray &process)
    {
        return QFile::symLinkTarget("/proc/" + process + "/exe") == QFile::symLinkTarget("/proc/self/exe");
    }
    static long now()
    {
        long sum = peakOf("self");
        const QDir tasks("/proc/self/task");
        for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            for (const QByteArray &child : contentOf(tasks.filePath(task + "/children")).split(' '))
                if (!child.isEmpty() && !isStillOurs(child))
                    sum += peakOf(child);
        return sum;
    }

    std::atomic<long> m_most = 0;
    std::jthread m_watch{[this](const std::stop_token &stop) {
        while (!stop.stop_requested()) {
            m_most = std::max<long>(m_most, now());
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }};
};

bool hasChildren()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}

enum class Ends { inAPicture, inASentence, inEither, never };

struct Hostile
{
    const char *what;
    QString (*file)();
    Ends how;
};

void PrintTo(const Hostile &row, std::ostream *out) { *out << row.what; }

QString pages(int count)
{
    PDFText document;
    for (int page = 0; page < count; ++page)
        document.page({300, 400});
    return document.file();
}

QString locked()
{
    const QString file = support::fileOf({}, "pdf");
    EXPECT_EQ(QProcess::execute("qpdf", {"--encrypt", "secret", "owner", "256", "--", pages(1), file}), 0);
    return file;
}

/// Nothing but its beginning, and holes.
QString vast()
{
    const QString path = support::fileOf("%PDF-1.4\n", "pdf");
    EXPECT_TRUE(QFile::resize(path, qint64{4} << 30));
    return path;
}

/// A pattern of a hundred million tiles.
QString tiled()
{
    PDFText document;
    const int tile =
        document.stream("0 0 0.01 0.01 re f", "/Type /Pattern /PatternType 1 /PaintType 1 /TilingType 1 "
                                              "/BBox [0 0 0.02 0.02] /XStep 0.02 /YStep 0.02 /Resources << >>");
    return document
        .page({300, 400}, "/Pattern cs /P scn 0 0 300 400 re f",
              "/Resources << /Pattern << /P " + QByteArray::number(tile) + " 0 R >> >>")
        .file();
}

/// As large as pictures are taken, and half transparent. Made by another process, as that takes memory.
QString largePicture()
{
    const QString path = support::fileOf({}, "png");
    if (const pid_t child = ::fork(); child == 0) {
        QImage picture(8192, 8192, QImage::Format_ARGB32);
        picture.fill(QColor(0, 0, 0, 128));
        ::_exit(picture.save(path) ? 0 : 1);
    } else {
        int status = 1;
        EXPECT_TRUE(::waitpid(child, &status, 0) == child && status == 0);
    }
    return path;
}

QString longText() { return support::fileOf(QByteArray("x\n").repeated(64 << 19), "txt"); }

class HostileDocument : public support::WindowTest, public testing::WithParamInterface<Hostile>
{
protected:
    void SetUp() override
    {
        m_document = GetParam().file();
        m_ppd = support::PPDText().allOptions().file(); // before TMPDIR is where only helpers write
        setUp(m_directory.filePath("defaults.ini"));
        qputenv("TMPDIR", m_temporary.path().toUtf8());
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        qunsetenv("TMPDIR");
    }
    void open()
    {
        makeDialog({}, m_document);
        const CachedPPD ppd{m_ppd, 0, {}};
        m_dialog->use(support::value(targetOfQueue({}, support::value(withPPDOpened({"Test", {}, {}, ppd, {}, {}})))));
        showWindow();
        button("Previe&w")->click();
        QApplication::processEvents();
    }
    const PagePreview &preview() { return m_window->findChild<PreviewPane *>()->preview(); }
    bool isBusy() { return !m_window->isComplete(); }
    /// A person turns the copies up and looks at the other panel.
    void use()
    {
        auto *const copies = find<QSpinBox>("copies");
        QTest::keyClick(copies, Qt::Key_Up);
        EXPECT_EQ(m_dialog->amount().copies, 2);
        auto *const tabs = find<QTabBar>("tabs");
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
        EXPECT_EQ(tabs->currentIndex(), 1);
        EXPECT_FALSE(m_window->grab().isNull());
    }
    bool waitForEnd()
    {
        constexpr int kPatience = 100'000; // in milliseconds; that of the preview is 30 s for each program
        return QTest::qWaitFor([this] { return !isBusy(); }, kPatience);
    }

    QString m_document;
    QString m_ppd;
    QTemporaryDir m_directory;
    QTemporaryDir m_temporary;
};

TEST_P(HostileDocument, LeavesTheWindowUsableAndNothingBehind)
{
    const Memory memory;
    open();
    const bool wasBusy = isBusy();
    use();
    if (GetParam().how == Ends::never) {
        EXPECT_TRUE(wasBusy);
        EXPECT_TRUE(isBusy());
    } else {
        ASSERT_TRUE(waitForEnd());
        if (GetParam().how != Ends::inEither) {
            EXPECT_EQ(preview().picture().isNull(), GetParam().how == Ends::inASentence)
                << preview().problem().toStdString();
        }
        EXPECT_EQ(preview().picture().isNull(), !preview().problem().isEmpty());
    }
    m_window->close();
    m_window.reset();
    EXPECT_FALSE(hasChildren());
    EXPECT_EQ(QDir(m_temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    EXPECT_LE(memory.most(), kMostMemory);
    RecordProperty("MiB", static_cast<int>(memory.most() / 1024));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HostileDocument,
    testing::Values(Hostile{"ten thousand pages", [] { return pages(10000); }, Ends::inAPicture},
                    Hostile{"a metre", [] { return PDFText().page({595, 2835}).file(); }, Ends::inAPicture},
                    Hostile{"ten kilometres", [] { return PDFText().page({595, 28'346'457}).file(); },
                            Ends::inASentence},
                    Hostile{"locked", locked, Ends::inASentence},
                    Hostile{"broken", [] { return support::fileOf("%PDF-1.4\n" + QByteArray(100000, '['), "pdf"); },
                            Ends::inASentence},
                    Hostile{"never done", [] { return support::endlessPage().file(); }, Ends::never},
                    Hostile{"heavy", [] { return support::heavyPage().file(); }, Ends::inEither},
                    Hostile{"vast", vast, Ends::never}, Hostile{"tiled", tiled, Ends::never},
                    Hostile{"a large picture", largePicture, Ends::inAPicture},
                    Hostile{"a long text", longText, Ends::inASentence}));

} // namespace
