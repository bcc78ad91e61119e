// Jobs that go into a folder: whole, beside each other, or not at all.
#include "Jobs/FolderSink.h"

#include "Print.h"
#include "Results.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <utility>

using namespace host;
using support::sentence;
using support::value;

namespace {

class Folder : public testing::Test
{
protected:
    void SetUp() override { document("ticket.pdf", "%PDF-1.4 a ticket"); }
    void document(const QString &name, const QByteArray &content)
    {
        QFile file(m_directory.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        m_document = value(Document::open(file.fileName()));
    }
    foundation::Or<QString> submit(const QString &title = "ticket.pdf", std::stop_token stop = {})
    {
        FolderSink sink(m_out);
        return sink.submit(
            {m_document, title, 2, "1-3,5", {{"PageSize", "A4"}, {"QnPaperFeed", "Custom.1.023622"}}},
            [](qint64, qint64) {}, std::move(stop));
    }
    QStringList files() const { return QDir(m_out).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QByteArray content(const QString &name) const
    {
        QFile file(m_out + '/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(can't be read)");
    }

    QTemporaryDir m_directory;
    QString m_out = m_directory.filePath("out/of/jobs");
    std::shared_ptr<Document> m_document;
};

TEST_F(Folder, ReceivesTheDocumentAndATicketWithEveryOption)
{
    EXPECT_EQ(value(submit()), m_out + "/ticket.pdf");
    EXPECT_EQ(files(), QStringList({"ticket.json", "ticket.pdf"}));
    EXPECT_EQ(content("ticket.pdf"), "%PDF-1.4 a ticket");
    QJsonObject ticket = QJsonDocument::fromJson(content("ticket.json")).object();
    EXPECT_FALSE(ticket.take("created").toString().isEmpty());
    EXPECT_EQ(ticket, (QJsonObject{{"title", "ticket.pdf"},
                                   {"document", "ticket.pdf"},
                                   {"format", "application/pdf"},
                                   {"copies", 2},
                                   {"pages", "1-3,5"},
                                   {"options", QJsonObject{{"PageSize", "A4"}, {"QnPaperFeed", "Custom.1.023622"}}}}));
}

TEST_F(Folder, NeverLosesAnEarlierJob)
{
    ASSERT_TRUE(submit());
    ASSERT_TRUE(submit());
    document("ticket.txt", "words");
    ASSERT_TRUE(submit()); // another extension, the same ticket name
    EXPECT_EQ(files(), QStringList({"ticket-2.json", "ticket-2.pdf", "ticket-3.json", "ticket-3.txt", "ticket.json",
                                    "ticket.pdf"}));
    EXPECT_EQ(content("ticket.pdf"), "%PDF-1.4 a ticket");
}

TEST_F(Folder, IsNotLeftByATitle)
{
    ASSERT_TRUE(submit("../../../escape.pdf"));
    ASSERT_TRUE(submit(".hidden"));
    ASSERT_TRUE(submit(QString(5000, 'x')));
    EXPECT_EQ(files().size(), 6);
    EXPECT_TRUE(files().contains("_.._.._escape.pdf")) << files().join('|').toStdString();
}

TEST_F(Folder, HasNamesOfOneLineWithEverythingThatATitleSays)
{
    ASSERT_TRUE(submit("Invoice 1/2.pdf"));
    ASSERT_TRUE(submit("red\n\x1b[31m.pdf"));
    EXPECT_TRUE(files().contains("Invoice 1_2.pdf")) << files().join('|').toStdString();
    for (const QString &name : files())
        EXPECT_FALSE(name.contains('\n') || name.contains('\x1b')) << name.toStdString();
}

TEST_F(Folder, KeepsNothingOfAJobThatIsStopped)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(sentence(submit("ticket.pdf", stop.get_token())), m_out + ": cancelled; nothing was printed");
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(Folder, KeepsNothingWhenTheDiskIsFull)
{
    document("large.txt", QByteArray(400000, 'x'));
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{100000, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto result = submit();
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, before);
    EXPECT_TRUE(sentence(result).startsWith(m_out + ": ")) << sentence(result).toStdString();
    EXPECT_TRUE(files().isEmpty()) << files().join(' ').toStdString();
}

TEST_F(Folder, TakesNoJobWhenThereIsAFileForTheDocumentOnly)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer opens pipes to look at memory, and takes it for broken without";
#endif
    ASSERT_TRUE(QDir().mkpath(m_out));
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const int next = ::dup(STDIN_FILENO);
    ::close(next);
    const rlimit one{static_cast<rlim_t>(next) + 1, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &one), 0);
    const auto result = submit();
    ::setrlimit(RLIMIT_NOFILE, &limit);
    EXPECT_EQ(sentence(result), m_out + ": can't be written");
    EXPECT_TRUE(files().isEmpty());
}

/// What becomes of the file after its first part has gone.
struct Change
{
    const char *name;
    void (*make)(QFile &file);
};

void PrintTo(const Change &row, std::ostream *out) { *out << row.name; }

class ChangesOfTheDocument : public Folder, public testing::WithParamInterface<Change>
{};

TEST_P(ChangesOfTheDocument, WhileItIsPrintedAreNoticed)
{
    document("growing.txt", QByteArray(400000, 'x'));
    QFile file(m_directory.filePath("growing.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    FolderSink sink(m_out);
    bool isChanged = false;
    const auto sent = sink.submit({m_document, "growing.txt", 1, {}, {}},
                                  [&](qint64, qint64) {
                                      if (!std::exchange(isChanged, true))
                                          GetParam().make(file);
                                  },
                                  {});
    EXPECT_EQ(sentence(sent), m_out + ": growing.txt: has changed while it was printed");
    EXPECT_TRUE(files().isEmpty()) << files().join(' ').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Of, ChangesOfTheDocument,
                         testing::Values(Change{"Cut", [](QFile &file) { file.resize(100000); }},
                                         Change{"Emptied", [](QFile &file) { file.resize(0); }},
                                         Change{"Longer",
                                                [](QFile &file) {
                                                    file.seek(file.size());
                                                    file.write("more");
                                                    file.flush();
                                                }},
                                         Change{"WrittenAnew",
                                                [](QFile &file) {
                                                    file.write(QByteArray(400000, 'y'));
                                                    file.flush();
                                                }}),
                         [](const auto &row) { return row.param.name; });

TEST_F(Folder, TakesADocumentThatChangedBeforeItWasPrinted)
{
    QFile file(m_directory.filePath("ticket.pdf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("%PDF-1.4 another ticket") > 0);
    file.close();
    ASSERT_TRUE(submit());
    EXPECT_EQ(content("ticket.pdf"), "%PDF-1.4 another ticket");
}

/// Titles and what is left of them: at most 240 bytes, and whole characters.
struct Title
{
    QString title;
    QString base;
};

void PrintTo(const Title &row, std::ostream *out) { *out << row.title.left(10).toStdString() << "..."; }

class LongTitles : public Folder, public testing::WithParamInterface<Title>
{};

TEST_P(LongTitles, FitIntoTheFolder)
{
    ASSERT_TRUE(submit(GetParam().title)); // no dot in it: nothing to take off
    ASSERT_TRUE(submit(GetParam().title));
    EXPECT_TRUE(files().contains(GetParam().base + ".pdf")) << files().join(' ').toStdString();
    EXPECT_TRUE(files().contains(GetParam().base + "-2.json"));
}

INSTANTIATE_TEST_SUITE_P(Of, LongTitles,
                         testing::Values(Title{QString(90, u'\u5370'), QString(80, u'\u5370')},
                                         Title{QString(300, u'a'), QString(240, u'a')},
                                         Title{QString("😀").repeated(100), QString("😀").repeated(60)},
                                         Title{"a" + QString("😀").repeated(100), "a" + QString("😀").repeated(59)},
                                         Title{QString(239, u'a') + "ü", QString(239, u'a')}));

enum class UnnamedFiles { had, lacked };

/// Makes system calls fail in this thread, as on a file system that lacks them.
void refuse(const std::vector<std::pair<int, int>> &callsAndErrors, UnnamedFiles unnamed)
{
    const sock_filter theCall = BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr));
    std::vector<sock_filter> program{theCall};
    if (unnamed == UnnamedFiles::lacked)
        program.insert(program.end(), {BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
                                       BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
                                       BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, O_TMPFILE & ~O_DIRECTORY, 0, 1),
                                       BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP), theCall});
    for (const auto &[call, error] : callsAndErrors) {
        program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(error)));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    ASSERT_EQ(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    ASSERT_EQ(::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter), 0);
}

struct FileSystem
{
    const char *name;
    std::vector<std::pair<int, int>> lacks; // system calls and their errors
    UnnamedFiles unnamed = UnnamedFiles::had;
};

void PrintTo(const FileSystem &row, std::ostream *out) { *out << row.name; }

class FileSystems : public Folder, public testing::WithParamInterface<FileSystem>
{};

TEST_P(FileSystems, TakeJobsBesideEachOther)
{
    std::thread([this] {
        refuse(GetParam().lacks, GetParam().unnamed);
        EXPECT_EQ(value(submit()), m_out + "/ticket.pdf");
        QFile other(m_out + "/ticket-2.json"); // of somebody else: the second job's ticket can't have its name
        ASSERT_TRUE(other.open(QIODevice::WriteOnly));
        EXPECT_EQ(value(submit()), m_out + "/ticket-3.pdf");
    }).join();
    EXPECT_EQ(files(), QStringList({"ticket-2.json", "ticket-3.json", "ticket-3.pdf", "ticket.json", "ticket.pdf"}));
    EXPECT_EQ(content("ticket.pdf"), "%PDF-1.4 a ticket");
    EXPECT_EQ(content("ticket-3.pdf"), "%PDF-1.4 a ticket");
    EXPECT_EQ(content("ticket-2.json"), "");
    EXPECT_TRUE(content("ticket-3.json").contains("ticket-3.pdf"));
    EXPECT_EQ(QFile::permissions(m_out + "/ticket.pdf") & (QFile::ReadGroup | QFile::ReadOther), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Of, FileSystems,
    testing::Values(FileSystem{"WithLinks", {}}, FileSystem{"WithoutLinks", {{SYS_linkat, EPERM}}},
                    FileSystem{"WithoutLinksAndUnnamedFiles", {{SYS_linkat, EPERM}}, UnnamedFiles::lacked},
                    FileSystem{"WithoutLinksAndSafeRenames", {{SYS_linkat, EPERM}, {SYS_renameat2, EINVAL}}}),
    [](const auto &row) { return row.param.name; });

TEST_F(Folder, ThatCannotBeWrittenIsNamed)
{
    m_out = "/proc/none";
    EXPECT_EQ(sentence(submit()), "/proc/none: can't be made");
    m_out = m_directory.filePath("ticket.pdf"); // a file
    EXPECT_FALSE(submit());
}

} // namespace
