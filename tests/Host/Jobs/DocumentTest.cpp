// Documents to print: what is taken, and what is said of the rest.
#include "Jobs/Document.h"

#include "Print.h"
#include "Results.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
                                         Content{"\x89PNG\r\n", "image/png", "png"},
                                         Content{"\xff\xd8\xff\xe0", "image/jpeg", "jpg"},
                                         Content{"GIF89a", "image/gif", "gif"}, Content{"II*", "image/tiff", "tif"},
                                         Content{"Plain text\n", "text/plain", "txt"},
                                         Content{"Gr\xc3\xbc\xc3\x9f", "text/plain", "txt"},
                                         Content{QByteArray("\x7f"
                                                            "ELF\0\0",
                                                            6),
                                                 "", ""}));

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
    EXPECT_EQ(refusal(file("x.bin", QByteArray(100, '\0'))), "x.bin: neither a PDF nor an image nor a text");
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
