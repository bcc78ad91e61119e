// Documents by anybody, read and drawn by the real programs, and by programs that are worse than those.
#include "PDFText.h"
#include "Print.h"
#include "Results.h"

#include "Foundation/Shadow.h"
#include "Pages/PrintedPages.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>

using namespace host;
using namespace std::chrono_literals;
using support::PDFText;
using support::sentence;
using support::value;

namespace {

constexpr long kMostMemory = 600L * 1024; // KiB

bool hasChildren()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}

long memory(int whose)
{
    rusage used{};
    ::getrusage(whose, &used);
    return used.ru_maxrss;
}

/// Whatever was read: nothing of it is left, neither programs nor files nor memory.
class Reading : public testing::Test
{
protected:
    Reading() { qputenv("TMPDIR", m_temporary.path().toUtf8()); }
    ~Reading() override
    {
        qunsetenv("TMPDIR");
        EXPECT_FALSE(hasChildren());
        EXPECT_EQ(QDir(m_temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
        EXPECT_LT(memory(RUSAGE_SELF) + memory(RUSAGE_CHILDREN), kMostMemory);
    }
    void open(const QByteArray &content) { m_document = value(Document::open(support::fileOf(content, "pdf"))); }
    void open(const PDFText &document) { open(document.text()); }
    /// What is said of the document itself, behind its name.
    QString saidOf(const auto &result) const
    {
        const QString said = sentence(result);
        const QString name = m_document->title() + ": ";
        return said.startsWith(name) ? said.mid(name.size()) : said;
    }
    auto sizes() const { return PageReader(*m_document, m_patience).sizes(m_stop.get_token()); }
    auto draw(int page = 1) const
    {
        return PageReader(*m_document, m_patience).draw(page, {300, 400}, m_stop.get_token());
    }
    /// On a sheet of a size in points, a dot a point.
    auto drawnOn(const printing::Paper &paper) const
    {
        const Sheet sheet{paper, QRectF(0, 0, paper.width, paper.height)};
        return value(PrintedPages::of(m_document, sheet, Scaling::none, {}, {}))
            .sheet(0, SheetDots(sheet, {72, 72}), {});
    }

    std::shared_ptr<Document> m_document;
    std::chrono::milliseconds m_patience = PageReader::kPatience;
    std::stop_source m_stop;

private:
    QTemporaryDir m_temporary;
};

constexpr auto kDamaged = "the document is damaged";
constexpr auto kTakesTooLong = "the document takes too long, or too much memory, to be read";

TEST_F(Reading, TellsTheSizesOfThePagesAsTheyAreLookedAt)
{
    open(PDFText()
             .page({300, 400})
             .page({595.28, 841.89})
             .page({300, 400}, {}, "/Rotate 90")
             .page({300, 400}, {}, "/CropBox [50 50 150 250]"));
    EXPECT_EQ(value(sizes()), (std::vector<QSizeF>{{300, 400}, {595.28, 841.89}, {400, 300}, {100, 200}}));
}

TEST_F(Reading, DrawsThePageThatIsAskedFor)
{
    open(PDFText().page({300, 400}, "0 g 0 0 300 400 re f").page({300, 400}, "0.5 g 0 0 300 400 re f"));
    const QImage first = value(draw(1));
    const QImage second = value(draw(2));
    EXPECT_EQ(first.format(), QImage::Format_Grayscale8);
    EXPECT_EQ(first.size(), QSize(300, 400));
    EXPECT_EQ(qGray(first.pixel(150, 200)), 0);
    EXPECT_NEAR(qGray(second.pixel(150, 200)), 128, 2);
}

TEST_F(Reading, DrawsAPartOfAPageAsItIsInTheWhole)
{
    const QSizeF size(300, 400);
    const QByteArray content = support::pathsOver(size, 100);
    PDFText document;
    for (const char *entries : {"", "/Rotate 90", "/Rotate 180", "/Rotate 270", "/CropBox [50 50 250 350]"})
        document.page(size, content, QByteArray(entries) + ' ' + support::kHalfTransparent);
    open(document);
    const PageReader reader(*m_document, m_patience);
    const QSize dots(333, 290);
    for (int page = 1; page <= 5; ++page) {
        const QImage whole = value(reader.draw(page, dots, {}));
        for (const QRect part : {QRect(0, 0, 333, 290), QRect(97, 103, 111, 57), QRect(332, 289, 1, 1)})
            EXPECT_EQ(value(reader.drawPart(page, dots, part, {})), whole.copy(part)) << page << ", " << part.x();
    }
}

TEST_F(Reading, ScalesAPageThatTheDocumentTurnsAsItIsLookedAt)
{
    open(PDFText().page({400, 300}, "0 g 0 0 400 150 re f", "/Rotate 90")); // dark at the left
    const QImage page = value(PageReader(*m_document).draw(1, {300, 800}, {}));
    for (const int y : {5, 400, 795}) {
        EXPECT_EQ(qGray(page.pixel(140, y)), 0) << y;
        EXPECT_EQ(qGray(page.pixel(160, y)), 255) << y;
    }
}

TEST_F(Reading, SaysThatAPageIsNotThere)
{
    open(PDFText().page({300, 400}));
    EXPECT_EQ(saidOf(draw(2)), kDamaged);
}

TEST_F(Reading, SaysThatADocumentIsDamaged)
{
    const QByteArray whole = PDFText().page({300, 400}).text();
    for (const QByteArray &content :
         {QByteArray("%PDF-"), QByteArray("%PDF-1.4\n") + QByteArray(100000, '\xff'), whole.first(20),
          whole.first(whole.indexOf("/Pages")), QByteArray("%PDF-1.4\n") + QByteArray(100000, '[')}) {
        open(content);
        EXPECT_EQ(saidOf(sizes()), kDamaged) << content.size();
    }
}

TEST_F(Reading, IsDoneWithADocumentOfNoPages)
{
    open(PDFText());
    EXPECT_EQ(saidOf(sizes()), kDamaged);
}

TEST_F(Reading, IsDoneWithAPageTreeThatLoops)
{
    const QByteArray looping = PDFText().page({300, 400}).text().replace("/Kids [4 0 R ]", "/Kids [2 0 R ]");
    open(looping);
    EXPECT_EQ(value(sizes()), std::vector<QSizeF>({{0, 0}}));
    const QImage sheet = value(drawnOn({595, 842}));
    EXPECT_EQ(sheet.pixelColor(297, 421), QColor(Qt::white));
    open(QByteArray(looping).replace("/Count 1", "/Count 999999999"));
    EXPECT_EQ(saidOf(sizes()), kDamaged);
}

TEST_F(Reading, SaysThatADocumentIsLocked)
{
    const QString plain = PDFText().page({300, 400}).file();
    const QString locked = support::fileOf({}, "pdf");
    ASSERT_EQ(QProcess::execute("qpdf", {"--encrypt", "secret", "owner", "256", "--", plain, locked}), 0);
    m_document = value(Document::open(locked));
    EXPECT_EQ(saidOf(sizes()), "the document is locked with a password");
    EXPECT_EQ(saidOf(draw()), "the document is locked with a password");
}

TEST_F(Reading, OpensADocumentThatIsOnlyLockedAgainstChanges)
{
    const QString plain = PDFText().page({300, 400}).file();
    const QString locked = support::fileOf({}, "pdf");
    ASSERT_EQ(QProcess::execute("qpdf", {"--encrypt", "", "owner", "256", "--", plain, locked}), 0);
    m_document = value(Document::open(locked));
    EXPECT_EQ(value(sizes()).size(), 1U);
    EXPECT_TRUE(draw()) << sentence(draw()).toStdString();
}

TEST_F(Reading, TakesTenThousandPages)
{
    PDFText document;
    for (int page = 1; page <= 10000; ++page)
        document.page({300.0, page == 10000 ? 200.0 : 400.0});
    open(document);
    const auto all = value(sizes());
    ASSERT_EQ(all.size(), 10000U);
    EXPECT_EQ(all.back(), QSizeF(300, 200));
    EXPECT_TRUE(draw(10000)) << sentence(draw(10000)).toStdString();
}

TEST_F(Reading, TakesADocumentThatIsLargerThanTheMemoryOfItsPrograms)
{
    constexpr qsizetype kSize = 600 << 20;
    const QString large = support::fileOf("%PDF-1.4\n", "pdf");
    QByteArray text = PDFText().page({300, 400}).text();
    for (qsizetype place = text.indexOf(" 00000 n"); place >= 0; place = text.indexOf(" 00000 n", place + 1))
        text.replace(place - 10, 10,
                     QByteArray::number(text.mid(place - 10, 10).toLongLong() + kSize).rightJustified(10, '0'));
    const auto start = text.indexOf("startxref\n") + 10;
    const auto end = text.indexOf('\n', start);
    text.replace(start, end - start, QByteArray::number(text.mid(start, end - start).toLongLong() + kSize));
    QFile file(large);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(kSize) && file.write(text) == text.size() && file.flush());
    m_document = value(Document::open(large));
    EXPECT_EQ(value(sizes()), (std::vector<QSizeF>{{300, 400}}));
    EXPECT_TRUE(draw()) << sentence(draw()).toStdString();
}

TEST_F(Reading, DrawsAMetreOfPaper)
{
    open(PDFText().page({595, 2835}, "0 g 0 0 20 20 re f"));
    const QImage sheet = value(drawnOn({595, 2835}));
    EXPECT_EQ(sheet.size(), QSize(595, 2835));
    EXPECT_EQ(qGray(sheet.pixel(10, 2825)), 0);
}

constexpr double kTenKilometres = 28'346'457;

TEST_F(Reading, SaysThatPaperIsTooLarge)
{
    open(PDFText().page({300, 400}));
    EXPECT_EQ(sentence(drawnOn({595, kTenKilometres})), "The paper is too large to be shown.");
}

TEST_F(Reading, SaysThatAPageIsTooLarge)
{
    for (const double height : {kTenKilometres, 3e9, 1e10, 1e14}) {
        open(PDFText().page({595, height}));
        EXPECT_EQ(saidOf(drawnOn({595, 842})), "page 1 is too large to be shown") << height;
    }
}

TEST_F(Reading, EndsWithAPageThatIsNeverDone)
{
    m_patience = 1s;
    open(support::endlessPage());
    EXPECT_EQ(saidOf(draw()), kTakesTooLong);
}

TEST_F(Reading, EndsWhenNobodyWantsThePageAnyMore)
{
    open(support::endlessPage());
    const std::jthread impatient([this] {
        std::this_thread::sleep_for(200ms);
        m_stop.request_stop();
    });
    m_patience = 1h;
    EXPECT_FALSE(draw());
}

/// With programs of our own in place of those of poppler.
class Programs : public Reading
{
protected:
    Programs() { qputenv("PATH", m_folder.path().toUtf8()); }
    ~Programs() override { qputenv("PATH", m_path); }
    void put(const QString &name, const QByteArray &script) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\n" + script + '\n') > 0);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void SetUp() override { open(PDFText().page({300, 400})); }

private:
    QTemporaryDir m_folder;
    QByteArray m_path = qgetenv("PATH");
};

TEST_F(Programs, AreNamedWhenTheyAreMissing)
{
    EXPECT_EQ(sentence(sizes()), "Pages can't be shown: pdfinfo is missing (it is part of poppler-utils).");
    EXPECT_EQ(sentence(draw()), "Pages can't be shown: pdftoppm is missing (it is part of poppler-utils).");
}

TEST_F(Programs, HaveSoMuchMemoryAndTimeAndWriteNoFiles)
{
    put("pdfinfo", "echo \"Page 1 size: $(ulimit -v) x $(ulimit -t) pts\"\n"
                   "echo \"Page 2 size: $(ulimit -f) x $(ulimit -c) pts\"");
    EXPECT_EQ(value(sizes()), (std::vector<QSizeF>{{512 * 1024, 20}, {0, 0}}));
}

TEST_F(Programs, ReadTheDocumentFromItsBeginningEachTime)
{
    put("pdfinfo", "read -r line && [ \"$line\" = %PDF-1.4 ] && echo 'Page 1 size: 3 x 4 pts'");
    EXPECT_EQ(value(sizes()), std::vector<QSizeF>({{3, 4}}));
    EXPECT_EQ(value(sizes()), std::vector<QSizeF>({{3, 4}}));
}

TEST_F(Programs, AreEndedByTheClock)
{
    m_patience = 300ms;
    for (const char *script : {"while :; do :; done", "exec /bin/sleep 1000", "exec /bin/sleep 1000 >&- 2>&-"}) {
        put("pdfinfo", script);
        EXPECT_EQ(saidOf(sizes()), kTakesTooLong) << script;
    }
}

TEST_F(Programs, AreEndedWhenTheySayTooMuch)
{
    m_patience = 1h;
    put("pdfinfo", "exec /usr/bin/yes 'Page 1 size: 3 x 4 pts'");
    put("pdftoppm", "exec /bin/cat /dev/zero");
    EXPECT_EQ(saidOf(sizes()), kTakesTooLong);
    EXPECT_EQ(saidOf(draw()), kTakesTooLong);
}

/// Several of them write faster than one reads, so there is always more to be read.
TEST_F(Programs, AreEndedAlthoughTheyNeverStopTalking)
{
    m_patience = 300ms;
    const long before = memory(RUSAGE_SELF);
    const QByteArray forEver = "/usr/bin/yes";
    for (const QByteArray &stream : {QByteArray(), QByteArray(" >&2")}) {
        const QByteArray talker = forEver + stream;
        put("pdfinfo", talker + " & " + talker + " & " + talker + " & exec " + talker);
        EXPECT_EQ(saidOf(sizes()), kTakesTooLong) << stream.toStdString();
    }
    if (!foundation::kHasShadow) {
        EXPECT_LT(memory(RUSAGE_SELF) - before, 32 * 1024); // ten megabytes are taken from a program, and no more kept
    }
}

TEST_F(Programs, AreNotBelievedWhenTheyFail)
{
    put("pdfinfo", "echo 'Page 1 size: 3 x 4 pts'; exit 1");
    EXPECT_EQ(saidOf(sizes()), kDamaged);
    put("pdfinfo", "echo 'Page 1 size: 3 x 4 pts'; kill -SEGV $$"); // as it ends without the memory that it wants
    EXPECT_EQ(saidOf(sizes()), kTakesTooLong);
}

TEST_F(Programs, AreNotBelievedWhenTheyDrawAnother)
{
    for (const char *map : {"P5\\n30 40\\n255\\n", "P5\\n300 400\\n255\\n", "P6\\n300 400\\n255\\n", ""}) {
        put("pdftoppm", QByteArray("printf '") + map + "'");
        EXPECT_EQ(saidOf(draw()), "page 1 can't be drawn");
    }
}

TEST_F(Programs, AreNotBelievedWhenTheyTellOfNoPages)
{
    put("pdfinfo", "echo Pages: 1");
    EXPECT_EQ(saidOf(sizes()), "the document has no pages");
}

TEST_F(Programs, TellOfSoManyPagesAndNoMore)
{
    put("pdfinfo", "i=0; while [ $i -le 100000 ]; do i=$((i+1)); echo \"Page $i size: 3 x 4 pts\"; done");
    EXPECT_EQ(saidOf(sizes()), "the document has too many pages");
}

} // namespace
