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

#include <csignal>
#include <sys/resource.h>

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
    EXPECT_TRUE(files().contains("escape.pdf"));
}

TEST_F(Folder, KeepsNothingOfAJobThatIsStopped)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(sentence(submit("ticket.pdf", stop.get_token())), m_out + ": stopped");
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

TEST_F(Folder, ThatCannotBeWrittenIsNamed)
{
    m_out = "/proc/none";
    EXPECT_EQ(sentence(submit()), "/proc/none: can't be made");
    m_out = m_directory.filePath("ticket.pdf"); // a file
    EXPECT_FALSE(submit());
}

} // namespace
