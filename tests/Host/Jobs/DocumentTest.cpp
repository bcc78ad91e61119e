// Documents to print: what is taken, and what is said of the rest.
#include "Jobs/Document.h"

#include "Print.h"
#include "Results.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using host::Document;
using support::value;

namespace {

class Documents : public testing::Test
{
protected:
    QString file(const QString &name, const QByteArray &content)
    {
        const QString path = m_directory.filePath(name);
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly) && out.write(content) == content.size());
        return path;
    }
    QString refusal(const QString &path)
    {
        const auto document = Document::open(path);
        return document ? QString("(opened)") : document.problem().sentence;
    }
    QTemporaryDir m_directory;
};

struct Content
{
    QByteArray bytes;
    const char *format; // "": refused
    const char *extension;
};

void PrintTo(const Content &row, std::ostream *out) { *out << row.format; }

class Formats : public Documents, public testing::WithParamInterface<Content>
{};

TEST_P(Formats, AreToldByTheContentNotByTheName)
{
    const auto opened = Document::open(file("misleading.doc", GetParam().bytes));
    ASSERT_EQ(bool(opened), *GetParam().format != '\0');
    if (!opened)
        return;
    const auto &document = *opened;
    EXPECT_EQ(document->format(), GetParam().format);
    EXPECT_EQ(document->extension(), GetParam().extension);
    EXPECT_EQ(document->read(), GetParam().bytes);
    EXPECT_EQ(document->read(), QByteArray()); // the end
    document->rewind();
    EXPECT_EQ(document->read(), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Contents, Formats,
                         testing::Values(Content{"%PDF-1.4\n\x80", "application/pdf", "pdf"},
                                         Content{"%!PS-Adobe-3.0\n", "application/postscript", "ps"},
                                         Content{"\x04%!PS\n", "application/postscript", "ps"},
                                         Content{"\x89PNG\r\n\x1a\n\x80", "image/png", "png"},
                                         Content{"\xff\xd8\xff\xe0", "image/jpeg", "jpg"},
                                         Content{"GIF87a", "image/gif", "gif"}, Content{"GIF89a", "image/gif", "gif"},
                                         Content{QByteArray("II*\0", 4), "image/tiff", "tif"},
                                         Content{QByteArray("MM\0*", 4), "image/tiff", "tif"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, Formats,
    testing::Values(Content{"Plain text\n", "text/plain", "txt"}, Content{"Gr\xc3\xbc\xc3\x9f", "text/plain", "txt"},
                    Content{"MM 10 bolts\n", "text/plain", "txt"}, Content{"II* is no picture", "text/plain", "txt"},
                    Content{"GIF8 is no picture", "text/plain", "txt"}, Content{"PNG", "text/plain", "txt"},
                    Content{"%!TEX root = a.tex\n", "text/plain", "txt"},
                    Content{"<order>2 x <html></order>", "text/plain", "txt"},
                    Content{"a < b, <svg> and <html>", "text/plain", "txt"}));

INSTANTIATE_TEST_SUITE_P(
    RefusedAre, Formats,
    testing::Values(Content{QByteArray("\x7f"
                                       "ELF\0\0",
                                       6),
                            "", ""},
                    Content{QByteArray("RIFF\x10\0\0\0WEBP", 12), "", ""}, Content{"<!DOCTYPE html><p>Hello", "", ""},
                    Content{"\xef\xbb\xbf\n <HTML lang=de>", "", ""}, Content{"<!-- ours -->\n<html>", "", ""},
                    Content{"<svg xmlns='x'/>", "", ""},
                    Content{"<?xml version='1.0'?>\n<!-- a\nb -->\n<!DOCTYPE svg PUBLIC 'x'><svg>", "", ""},
                    Content{"{\\rtf1\\ansi Hello}", "", ""}));

TEST_F(Documents, AreNamedByTheirFile)
{
    const auto document = value(Document::open(file("-o x.pdf", "%PDF-1.4")));
    EXPECT_EQ(document->title(), "-o x.pdf");
    EXPECT_EQ(document->size(), 8);
}

TEST_F(Documents, ThatCannotBePrintedAreNamedInOneSentence)
{
    EXPECT_EQ(refusal("/no/such.pdf"), "/no/such.pdf: No such file or directory");
    EXPECT_EQ(refusal("/tmp"), "/tmp: not a file");
    EXPECT_EQ(refusal("/dev/zero"), "/dev/zero: not a file");
    EXPECT_EQ(refusal(file("empty.pdf", "")), "empty.pdf: the document is empty");
    EXPECT_EQ(refusal(file("x.bin", QByteArray(100, '\0'))),
              "x.bin: can't be printed as it is; PDF, PostScript, PNG, JPEG, GIF, TIFF and plain text can");
    const QString pipe = m_directory.filePath("pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe), 0600), 0);
    EXPECT_EQ(refusal(pipe), pipe + ": not a file"); // and nobody waits for a writer
}

TEST_F(Documents, AreReadByDescriptorOnceTheyAreOpen)
{
    const QString path = file("a.txt", "first");
    const auto document = value(Document::open(path));
    ASSERT_TRUE(QFile::remove(path));
    file("a.txt", "another");
    EXPECT_EQ(document->read(), QByteArray("first"));
}

TEST_F(Documents, AreReadWholeHoweverLongTheyAre)
{
    QByteArray text(200000, 'a');
    for (qsizetype i = 0; i < text.size(); i += 997)
        text[i] = '\n';
    const auto document = value(Document::open(file("long.txt", text)));
    EXPECT_EQ(document->size(), text.size());
    QByteArray read;
    for (auto part = document->read(); part && !part->isEmpty(); part = document->read())
        read += *part;
    EXPECT_EQ(read, text);
}

TEST_F(Documents, AreLookedIntoBeyondTheirFirstLine)
{
    EXPECT_EQ(refusal(file("late.bin", QByteArray(4095, 'a') + '\0')),
              "late.bin: can't be printed as it is; PDF, PostScript, PNG, JPEG, GIF, TIFF and plain text can");
    EXPECT_TRUE(Document::open(file("later.txt", QByteArray(4096, 'a') + '\0'))); // a sample is looked into, not all
}

TEST_F(Documents, AreReceivedByTheirDescriptor)
{
    QFile sent(file("a.pdf", "%PDF-1.4 received"));
    ASSERT_TRUE(sent.open(QIODevice::ReadOnly));
    const auto document = value(Document::received(::dup(sent.handle())));
    EXPECT_EQ(document->title(), "the document");
    EXPECT_EQ(document->format(), "application/pdf");
    EXPECT_EQ(document->read(), QByteArray("%PDF-1.4 received"));
    EXPECT_EQ(support::sentence(Document::received(-1)), "the document can't be read any more");
}

/// Standard input is a file while this lives.
class StandardInput
{
public:
    explicit StandardInput(const QString &path)
        : m_before(::dup(STDIN_FILENO))
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        ::dup2(file.handle(), STDIN_FILENO);
    }
    ~StandardInput()
    {
        ::dup2(m_before, STDIN_FILENO);
        ::close(m_before);
    }
    StandardInput(const StandardInput &) = delete;
    StandardInput &operator=(const StandardInput &) = delete;

private:
    int m_before;
};

TEST_F(Documents, AreTakenWholeFromStandardInput)
{
    const QByteArray text = QByteArray("0123456789\n").repeated(30000);
    const StandardInput input(file("long.txt", text));
    const auto document = value(Document::open("-"));
    EXPECT_EQ(document->size(), text.size());
    EXPECT_EQ(document->read(), text.first(65536));
}

TEST_F(Documents, OfStandardInputThatDoNotFitAreRefused)
{
    const StandardInput input(file("long.txt", QByteArray(300000, 'x')));
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{100000, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString told = refusal("-");
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(told, "standard input: File too large");
}

TEST_F(Documents, OfStandardInputWithoutEndAreRefused)
{
    const QString path = file("long.txt", "x");
    ASSERT_TRUE(QFile::resize(path, (qint64{1} << 30) + 1));
    const StandardInput input(path);
    EXPECT_EQ(refusal("-"), "standard input: there is too much of it");
}

TEST_F(Documents, OfStandardInputThatCannotBeKeptAreRefused)
{
    const StandardInput input(file("a.txt", "words"));
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc"); // which takes no files
    const QString told = refusal("-");
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    EXPECT_TRUE(told.startsWith("standard input: ")) << told.toStdString();
}

TEST_F(Documents, ComeFromStandardInputToo)
{
    qputenv("TMPDIR", m_directory.path().toUtf8());
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const int before = ::dup(STDIN_FILENO);
    ::dup2(ends[0], STDIN_FILENO);
    const QByteArray text = "%PDF-1.4 from a pipe";
    ASSERT_EQ(::write(ends[1], text.constData(), static_cast<std::size_t>(text.size())), text.size());
    ::close(ends[1]);
    const auto opened = Document::open("-");
    ::dup2(before, STDIN_FILENO);
    ::close(before);
    ::close(ends[0]);
    const auto document = value(opened);
    EXPECT_EQ(document->title(), "standard input");
    EXPECT_EQ(QDir(m_directory.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList()); // not even while it is open
    EXPECT_EQ(document->read(), text);
}

} // namespace
