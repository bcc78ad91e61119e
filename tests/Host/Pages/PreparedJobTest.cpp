// Jobs as they are sent: what is in the PDF that a driver gets.
#include "Pages/PreparedJob.h"

#include "JobPDF.h"
#include "Print.h"
#include "Results.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

using namespace host;
using support::JobPDF;
using support::sentence;
using support::value;

namespace {

constexpr printing::Paper kA4{595, 842};
const QSizeF kA4Size(kA4.width, kA4.height);
const Sheet kSheet{kA4, QRectF(9, 9, 577, 824)};
constexpr auto kA4Box = "/MediaBox[0 0 595 842]";

class Prepared : public testing::Test
{
protected:
    Job job(const QString &path, const QString &pages = {}) const
    {
        return {value(Document::open(path)), "a title", 2, pages, {{"PageSize", "A4"}, {"print-scaling", "auto"}}};
    }
    Job job(const JobPDF &document, const QString &pages = {}) const
    {
        return job(document.file(m_folder.filePath("ticket.pdf")), pages);
    }
    /// What arrives, as a file.
    QString sent(const Job &job, Scaling scaling = Scaling::automatic) const
    {
        const auto prepared = value(preparedJob(job, {kSheet, scaling, true}, {}));
        const QString path = m_folder.filePath("sent.pdf");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        prepared.document->rewind();
        for (QByteArray part; !(part = prepared.document->read().value_or(QByteArray())).isEmpty();)
            file.write(part);
        return path;
    }
    QString refusal(const Job &job) const { return sentence(preparedJob(job, {kSheet, Scaling::automatic, true}, {})); }

    QTemporaryDir m_folder;
};

TEST_F(Prepared, LeavesSheetsOfTheChosenPaperAsTheyCame)
{
    const Job asked = job(JobPDF().pages(3, kA4Size));
    const auto prepared = value(preparedJob(asked, {kSheet, Scaling::automatic, true}, {}));
    EXPECT_EQ(prepared.document, asked.document);
    EXPECT_EQ(prepared.title, "a title");
    EXPECT_EQ(prepared.copies, 2);
    EXPECT_EQ(prepared.options, OptionValues({{"PageSize", "A4"}}));
}

TEST_F(Prepared, LeavesSheetsThatDifferByAFractionOfAPoint)
{
    const Job asked = job(JobPDF().pages(1, {595.28, 841.89}), "1");
    const auto prepared = value(preparedJob(asked, {kSheet, Scaling::automatic, true}, {}));
    EXPECT_EQ(prepared.document, asked.document);
    EXPECT_EQ(prepared.pages, "");
}

TEST_F(Prepared, HasThePagesOfTheRangeAndNoOthers)
{
    const Job asked = job(JobPDF().pages(5, kA4Size), "2,4-5");
    EXPECT_EQ(support::wordsOf(sent(asked)), QStringList({"Page 2", "Page 4", "Page 5"}));
    const auto prepared = value(preparedJob(asked, {kSheet, Scaling::automatic, true}, {}));
    EXPECT_EQ(prepared.pages, "");
    EXPECT_EQ(prepared.copies, 2);
    EXPECT_EQ(prepared.document->title(), "ticket.pdf");
    EXPECT_EQ(prepared.document->extension(), "pdf");
}

TEST_F(Prepared, HoldsNothingOfThePagesThatAreNotPrinted)
{
    const QByteArray shared = "/Resources<</Font<</F 3 0 R/G 100 0 R>>>>";
    const QString path = sent(job(JobPDF()
                                      .page(kA4Box + shared, "BT /G 24 Tf 70 70 Td (secret) Tj ET")
                                      .words(kA4Box + shared, "Page 2")
                                      .object("<</Type/Font/Subtype/Type1/BaseFont/SecretFont>>")
                                      .object("<</First 102 0 R/Last 102 0 R>>")
                                      .object("<</Title(SecretTitle)/Parent 101 0 R/Dest[4 0 R/Fit]>>")
                                      .catalogue("/Outlines 101 0 R"),
                                  "2"));
    EXPECT_EQ(support::wordsOf(path), QStringList("Page 2"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(file.readAll().contains("Secret"));
}

TEST_F(Prepared, PutsEachPageOnASheet)
{
    const QString path = sent(job(JobPDF()
                                      .words("/MediaBox[0 0 300 400]", "small")
                                      .words("/MediaBox[0 0 842 595]", "landscape")
                                      .words("/MediaBox[0 0 1190 1684]", "large")));
    EXPECT_EQ(support::sizesOf(path), std::vector<QSizeF>(3, kA4Size));
    EXPECT_EQ(support::wordsOf(path), QStringList({"small", "landscape", "large"}));
}

/// A black square in a corner of what is looked at, and where its middle comes to lie, in points from the upper left.
struct Mark
{
    const char *name;
    QByteArray entries;
    QByteArray square;
    Scaling scaling;
    QPointF middle;
};

void PrintTo(const Mark &row, std::ostream *out) { *out << row.name; }

class MarkOnThePage : public Prepared, public testing::WithParamInterface<Mark>
{};

TEST_P(MarkOnThePage, ComesToLieWhereThePlacementHasIt)
{
    const Mark &row = GetParam();
    const QString path = sent(job(JobPDF().page(row.entries, row.square + " re f")), row.scaling);
    const QImage picture = support::pictureOf(path, 1, 72);
    ASSERT_EQ(picture.size(), kA4Size.toSize());
    QRect black;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qGray(picture.pixel(x, y)) < 128)
                black |= QRect(x, y, 1, 1);
    const QPointF middle = QRectF(black).center();
    EXPECT_NEAR(middle.x(), row.middle.x(), 1) << black.width() << " x " << black.height();
    EXPECT_NEAR(middle.y(), row.middle.y(), 1) << black.width() << " x " << black.height();
}

// The square is 20 points wide and touches a corner of the page, 10 points from its middle.
INSTANTIATE_TEST_SUITE_P(
    Of, MarkOnThePage,
    testing::Values(
        Mark{"SmallPage", "/MediaBox[0 0 395 642]", "0 0 20 20", Scaling::automatic, {110, 732}},
        Mark{"LandscapePage", "/MediaBox[0 0 842 595]", "0 0 20 20", Scaling::none, {10, 10}},
        Mark{"RotatedPage", "/MediaBox[0 0 642 395]/Rotate 90", "0 0 20 20", Scaling::none, {110, 110}},
        Mark{"PageUpsideDown", "/MediaBox[0 0 395 642]/Rotate 180", "0 0 20 20", Scaling::none, {485, 110}},
        Mark{"PageRotatedTheOtherWay", "/MediaBox[0 0 642 395]/Rotate -90", "0 0 20 20", Scaling::none, {485, 732}},
        Mark{"RotatedLandscape", "/MediaBox[0 0 395 642]/Rotate 90", "0 0 20 20", Scaling::none, {485, 110}},
        Mark{
            "CroppedPage", "/MediaBox[0 0 900 900]/CropBox[100 50 495 692]", "100 50 20 20", Scaling::none, {110, 732}},
        Mark{"CroppedBeyondThePage",
             "/MediaBox[0 0 395 642]/CropBox[-50 -50 900 900]",
             "0 0 20 20",
             Scaling::none,
             {110, 732}},
        Mark{"PageAwayFromTheOrigin", "/MediaBox[-300 200 95 842]", "-300 200 20 20", Scaling::none, {110, 732}},
        Mark{"PageInLargeUnits", "/MediaBox[0 0 197.5 321]/UserUnit 2", "0 0 10 10", Scaling::none, {110, 732}},
        // 824 points high from 9 on: 824/1000 of what it was, and so 412 points wide
        Mark{"FittedPage", "/MediaBox[0 0 500 1000]", "0 0 20 20", Scaling::fit, {99.74, 824.76}}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(Prepared, ShowsFormsAndCommentsAsTheyArePrinted)
{
    const QByteArray appearance = "<</Type/XObject/Subtype/Form/BBox[0 0 200 40]/Resources<</Font<</F 3 0 R>>>>/Length "
                                  "30>>stream\nBT /F 24 Tf 5 5 Td (WORD) Tj ET  \nendstream";
    const auto note = [](int appears, int flags, const QByteArray &box) {
        return "<</Type/Annot/Subtype/Stamp/Rect[" + box + "]/F " + QByteArray::number(flags) + "/AP<</N " +
               QByteArray::number(appears) + " 0 R>>>>";
    };
    const auto pdf = JobPDF()
                         .words("/MediaBox[0 0 400 500]/Annots[100 0 R 101 0 R]", "Page 1")
                         .object(note(102, 4, "100 200 300 240")) // printed
                         .object(note(103, 6, "100 300 300 340")) // hidden
                         .object(QByteArray(appearance).replace("WORD", "seen"))
                         .object(QByteArray(appearance).replace("WORD", "gone"));
    EXPECT_EQ(support::wordsOf(sent(job(pdf))), QStringList("seen Page 1"));
}

TEST_F(Prepared, KeepsHiddenLayersHidden)
{
    const auto pdf =
        JobPDF()
            .page("/MediaBox[0 0 400 500]/Resources<</Properties<</L 100 0 R>>>>", "/OC /L BDC 0 0 400 500 re f EMC")
            .object("<</Type/OCG/Name(Layer)>>")
            .catalogue("/OCProperties<</OCGs[100 0 R]/D<</OFF[100 0 R]>>>>");
    const QImage picture = support::pictureOf(sent(job(pdf)), 1, 72);
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(qGray(picture.pixel(297, 421)), 255);
}

TEST_F(Prepared, LeavesPagesAndScalingToTheServerWhereItDoesThem)
{
    const Job asked = job(JobPDF().pages(3, {300, 400}), "2");
    const auto prepared = value(preparedJob(asked, {kSheet, Scaling::fit, false}, {}));
    EXPECT_EQ(prepared.document, asked.document);
    EXPECT_EQ(prepared.pages, "2");
    EXPECT_EQ(prepared.options, asked.options);
}

TEST_F(Prepared, RefusesPagesBeyondTheEndWhoeverPicksThem)
{
    const Job three = job(JobPDF().pages(3, kA4Size), "1,3-9");
    EXPECT_EQ(refusal(three), "ticket.pdf has only 3 pages, not 1,3-9");
    EXPECT_EQ(sentence(preparedJob(three, {kSheet, Scaling::automatic, false}, {})), refusal(three));
    EXPECT_EQ(sentence(preparedJob(three, {std::nullopt, Scaling::automatic, true}, {})), refusal(three));
    EXPECT_EQ(refusal(job(JobPDF().pages(1, kA4Size), "2")), "ticket.pdf has only one page, not 2");
}

TEST_F(Prepared, RefusesADamagedDocument)
{
    const QString path = m_folder.filePath("ticket.pdf");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("%PDF-1.4 and nothing else") > 0);
    file.close();
    EXPECT_EQ(refusal(job(path)), "ticket.pdf: the document is damaged");
}

TEST_F(Prepared, RefusesALockedDocumentAndTakesOneThatIsOnlyGuarded)
{
    const QString plain = JobPDF().pages(2, kA4Size).file(m_folder.filePath("plain.pdf"));
    const auto encrypted = [&](const QString &user) {
        const QString path = m_folder.filePath("ticket.pdf");
        EXPECT_EQ(QProcess::execute("qpdf", {"--encrypt", user, "owner", "256", "--", plain, path}), 0);
        return path;
    };
    EXPECT_EQ(refusal(job(encrypted("brown fox"))), "ticket.pdf: the document is locked with a password");
    EXPECT_EQ(support::wordsOf(sent(job(encrypted(""), "2"))), QStringList("Page 2"));
}

TEST_F(Prepared, ChecksNeitherPostScriptNorAnythingWithoutAProgramThatReadsPDF)
{
    const QString path = m_folder.filePath("ticket.ps");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("%!PS-Adobe-3.0 and nothing else") > 0);
    file.close();
    EXPECT_EQ(value(preparedJob(job(path, "7"), {kSheet, Scaling::automatic, true}, {})).pages, "7");
    qputenv("PATH", "/nowhere");
    const Job asked = job(JobPDF().pages(1, kA4Size), "7");
    const auto prepared = value(preparedJob(asked, {kSheet, Scaling::automatic, true}, {}));
    EXPECT_EQ(prepared.document, asked.document);
    EXPECT_EQ(prepared.pages, "7");
    EXPECT_EQ(prepared.options, asked.options);
}

TEST_F(Prepared, IsStopped)
{
    std::stop_source source;
    source.request_stop();
    const auto stopped =
        preparedJob(job(JobPDF().pages(3, kA4Size), "2"), {kSheet, Scaling::automatic, true}, source.get_token());
    EXPECT_EQ(sentence(stopped), "cancelled; nothing was printed");
    ASSERT_FALSE(stopped);
    EXPECT_EQ(stopped.problem().kind, foundation::Problem::Kind::unanswered); // as when a server is left
}

} // namespace
