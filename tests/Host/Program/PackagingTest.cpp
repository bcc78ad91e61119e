// What is installed, and what a file manager is told of us.
#include "Jobs/Document.h"

#include "JobPDF.h"
#include "Print.h"
#include "Results.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString entry(const QString &key)
{
    QFile file(QN_SOURCE_DIR "/packaging/org.qnprint.qnprint.desktop");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith(key.toUtf8() + '='))
            return QString::fromUtf8(line.mid(key.toUtf8().size() + 1));
    return {};
}

struct Sample
{
    const char *type;
    QByteArray content;
};

void PrintTo(const Sample &row, std::ostream *out) { *out << row.type; }

class OfferedTypes : public testing::TestWithParam<Sample>
{};

TEST_P(OfferedTypes, AreTypesThatArePrinted)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("document"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(GetParam().content) > 0);
    file.close();
    const auto document = support::value(host::Document::open(file.fileName()));
    EXPECT_EQ(document->format(), GetParam().type);
    EXPECT_TRUE(entry("MimeType").split(';').contains(GetParam().type));
}

const std::array kSamples{Sample{"application/pdf", "%PDF-1.4 ..."},
                          Sample{"application/postscript", "%!PS-Adobe-3.0"},
                          Sample{"image/png", "\x89PNG\r\n\x1a\n..."},
                          Sample{"image/jpeg", "\xff\xd8\xff..."},
                          Sample{"image/gif", "GIF89a..."},
                          Sample{"image/tiff", QByteArray("II*\0...", 7)},
                          Sample{"text/plain", "words"}};

INSTANTIATE_TEST_SUITE_P(Of, OfferedTypes, testing::ValuesIn(kSamples));

TEST(DesktopEntry, OffersNoOtherTypeAndTakesAFileNameForNothingElse)
{
    EXPECT_EQ(entry("MimeType").split(';', Qt::SkipEmptyParts).size(), static_cast<qsizetype>(kSamples.size()));
    EXPECT_EQ(entry("Exec"), "qnprint -- %f"); // whatever a name begins with, it is a name
    EXPECT_TRUE(QFile::exists(QString(QN_SOURCE_DIR "/packaging/%1.svg").arg(entry("Icon"))));
}

TEST(AnInstallation, HasTheManualAndTheCompletionsWhereTheyAreLookedFor)
{
    const QTemporaryDir prefix;
    ASSERT_EQ(QProcess::execute(QN_CMAKE, {"--install", QN_BUILD_DIR, "--prefix", prefix.path()}), 0);
    for (const auto &[installed, made] : {std::pair{"man/man1/qnprint.1", "qnprint.1"},
                                          {"bash-completion/completions/qnprint", "qnprint.bash"},
                                          {"zsh/site-functions/_qnprint", "_qnprint"},
                                          {"fish/vendor_completions.d/qnprint.fish", "qnprint.fish"}}) {
        QFile there(prefix.filePath(QString("share/") + installed));
        QFile here(QString(QN_MANUAL_DIR "/") + made);
        EXPECT_TRUE(there.open(QIODevice::ReadOnly) && here.open(QIODevice::ReadOnly)) << installed;
        EXPECT_EQ(there.readAll(), here.readAll()) << installed;
    }
    EXPECT_FALSE(QFile::exists(prefix.filePath("bin/qnprint-manual")));
}

TEST(AnInstallation, HasLibrariesThatFindOneAnother)
{
    const QTemporaryDir prefix;
    ASSERT_EQ(QProcess::execute(QN_CMAKE, {"--install", QN_BUILD_DIR, "--prefix", prefix.path()}), 0);
    QDirIterator libraries(prefix.path(), {"*.so*"}, QDir::Files, QDirIterator::Subdirectories);
    int count = 0;
    for (; libraries.hasNext(); ++count) {
        QProcess ldd;
        ldd.start("ldd", {libraries.next()});
        ASSERT_TRUE(ldd.waitForFinished());
        const QByteArray words = ldd.readAll();
        EXPECT_TRUE(words.contains("libc.so") && !words.contains("not found")) << words.toStdString();
    }
    EXPECT_GE(count, 4);
}

TEST(AnInstallation, TellsTheBusWhatToStartAndServesNoDesktopByItself)
{
    const QTemporaryDir prefix;
    ASSERT_EQ(QProcess::execute(QN_CMAKE, {"--install", QN_BUILD_DIR, "--prefix", prefix.path()}), 0);
    const QString name = "org.freedesktop.impl.portal.desktop.qnprint";
    const QSettings service(prefix.filePath("share/dbus-1/services/" + name + ".service"), QSettings::IniFormat);
    EXPECT_EQ(service.value("D-BUS Service/Name"), name);
    EXPECT_TRUE(service.value("D-BUS Service/Exec").toString().startsWith('/'));
    EXPECT_TRUE(service.value("D-BUS Service/Exec").toString().endsWith("/bin/qnprint portal"));
    QFile portal(prefix.filePath("share/xdg-desktop-portal/portals/qnprint.portal"));
    ASSERT_TRUE(portal.open(QIODevice::ReadOnly));
    const QByteArrayList lines = portal.readAll().split('\n');
    EXPECT_TRUE(lines.contains("DBusName=" + name.toUtf8()));
    EXPECT_TRUE(lines.contains("Interfaces=org.freedesktop.impl.portal.Print;"));
    EXPECT_TRUE(lines.contains("UseIn="));
}

TEST(AnInstallation, FindsTheProgramThatPutsPagesOnThePaper)
{
    const QTemporaryDir prefix;
    ASSERT_EQ(QProcess::execute(QN_CMAKE, {"--install", QN_BUILD_DIR, "--prefix", prefix.path()}), 0);
    const QString ticket = support::JobPDF().pages(2, {300, 400}).file(prefix.filePath("ticket.pdf"));
    EXPECT_EQ(QProcess::execute(prefix.filePath("bin/qnprint"),
                                {"--no-dialog", "--ppd", QN_SOURCE_DIR "/examples/ppd/full.ppd", "--output",
                                 prefix.filePath("out"), "-P", "2", ticket}),
              0);
    EXPECT_EQ(support::wordsOf(prefix.filePath("out/ticket.pdf")), QStringList("Page 2"));
}

} // namespace
