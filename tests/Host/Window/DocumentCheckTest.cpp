// Whether the document goes with the job, as the window tells it.
#include "PPDText.h"
#include "WindowTest.h"

#include "Window/PreviewPane.h"

#include <QFile>
#include <QPdfWriter>
#include <QSpinBox>
#include <QTemporaryDir>

#include <chrono>
#include <thread>

using namespace host;

namespace {

class DocumentInTheWindow : public support::WindowTest
{
protected:
    void SetUp() override { setUp(m_directory.filePath("defaults.ini")); }

    void open(const QString &document, const support::PPDText &ppd = support::PPDText().allOptions())
    {
        makeDialog({}, document);
        const CachedPPD cached{ppd.file(), 0, {}};
        m_dialog->use(
            support::value(targetOfQueue({}, support::value(withPPDOpened({"Test", {}, {}, cached, {}, {}})))));
        showWindow();
        settle();
    }
    void settle()
    {
        QApplication::processEvents();
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_window->isComplete(); }, 20000));
        QApplication::processEvents();
    }
    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(m_directory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }
    /// Empty pages of a size in millimetres.
    QString documentOf(QSizeF size, int pages = 1)
    {
        const QString path = m_directory.filePath("document.pdf");
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(size, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
        QPainter painter(&writer);
        for (int page = 1; page < pages; ++page)
            writer.newPage();
        return path;
    }
    QString ofPages()
    {
        for (auto *each : m_window->findChildren<QLabel *>())
            if (each->isVisible() && each->text().startsWith("of "))
                return each->text();
        return {};
    }
    void type(const QString &text)
    {
        pages()->setText(text);
        QApplication::processEvents();
    }

    QTemporaryDir m_directory;
};

TEST_F(DocumentInTheWindow, TellsHowManyPagesItHas)
{
    open(documentOf({210, 297}, 3));
    EXPECT_EQ(ofPages(), "of 3");
    EXPECT_EQ(message(), "");
    m_dialog->chooseDocuments({documentOf({210, 297})});
    settle();
    EXPECT_EQ(ofPages(), "");
    type("1");
    EXPECT_EQ(ofPages(), "of 1");
}

TEST_F(DocumentInTheWindow, OfTextHasPagesOnlyWhenItIsLaidOut)
{
    open(write("note.txt", "A note.\n"));
    EXPECT_EQ(ofPages(), "");
    EXPECT_EQ(message(), "");
}

TEST_F(DocumentInTheWindow, LacksPagesBeyondItsEndAsSoonAsTheyAreWritten)
{
    open(documentOf({210, 297}, 3));
    type("7-9");
    EXPECT_EQ(message(), "The document has only 3 pages.");
    type("1-3");
    EXPECT_EQ(message(), "");
    type("4");
    m_dialog->chooseDocuments({documentOf({210, 297})});
    settle();
    EXPECT_EQ(message(), "The document has only one page.");
    EXPECT_EQ(ofPages(), "of 1");
}

TEST_F(DocumentInTheWindow, ThatIsDamagedIsToldOfAtOnce)
{
    open(write("broken.pdf", "%PDF-1.4\nnothing of a PDF follows\n"));
    EXPECT_EQ(message(), "broken.pdf: the document is damaged");
    m_dialog->chooseDocuments({support::kTicket});
    settle();
    EXPECT_EQ(message(), "");
}

struct SizeRow
{
    const char *what;
    QSizeF millimetres;
    const char *message;
    const char *remedy; // null: there is no need of one
    const char *paper;  // chosen by it; null: the page is fitted
};

void PrintTo(const SizeRow &row, std::ostream *out) { *out << row.what; }

class SizeOfADocument : public DocumentInTheWindow, public testing::WithParamInterface<SizeRow>
{};

TEST_P(SizeOfADocument, IsComparedWithThePaper)
{
    const SizeRow &row = GetParam();
    open(documentOf(row.millimetres), support::PPDText()
                                          .allOptions()
                                          .line("*PageSize A6/A6: \"\"")
                                          .line("*PaperDimension A6: \"298 420\"")
                                          .line("*ImageableArea A6: \"0 0 298 420\""));
    EXPECT_EQ(message(), row.message);
    auto *const remedy = row.remedy ? button(row.remedy) : nullptr;
    ASSERT_EQ(remedy != nullptr, row.remedy != nullptr);
    if (!remedy)
        return;
    EXPECT_TRUE(remedy->isVisible());
    QTest::mouseClick(remedy, Qt::LeftButton);
    settle();
    EXPECT_EQ(message(), "");
    EXPECT_FALSE(remedy->isVisible());
    if (row.paper)
        EXPECT_EQ(papers()->currentData().toString(), row.paper);
    else
        EXPECT_EQ(m_dialog->target()->jobOptions()["print-scaling"], "fit");
}

// The printer takes own sizes from 25.4 to 216 mm in width and to 1270 mm in length.
INSTANTIATE_TEST_SUITE_P(
    Rows, SizeOfADocument,
    testing::Values(
        SizeRow{"the paper's own", {210, 297}, "", nullptr, nullptr},
        SizeRow{"nearly the paper's own", {212, 297}, "", nullptr, nullptr},
        SizeRow{"turned", {297, 210}, "", nullptr, nullptr}, SizeRow{"shorter", {210, 250}, "", nullptr, nullptr},
        SizeRow{"turned by its shape",
                {200, 100},
                "The document is 200 × 100 mm, the paper 210 × 297.",
                "Use 200 × 100 mm",
                "customsize"},
        SizeRow{"a receipt", {80, 150}, "The document is 80 mm wide, the paper 210.", "Use 80 × 150 mm", "customsize"},
        SizeRow{"a listed paper", {105, 148}, "The document is 105 mm wide, the paper 210.", "Use A6", "A6"},
        SizeRow{"longer", {210, 500}, "The document is 500 mm long, the paper 297.", "Use 210 × 500 mm", "customsize"},
        SizeRow{"wider than any paper",
                {400, 500},
                "The document is 400 mm wide, the paper 210.",
                "Fit to Paper",
                nullptr}));

TEST_F(DocumentInTheWindow, IsComparedWithThePaperThatIsChosenLater)
{
    open(documentOf({210, 297}));
    EXPECT_EQ(message(), "");
    m_dialog->choosePaper({"customsize", printing::Paper{288, 432}});
    settle();
    EXPECT_EQ(message(), "The document is 210 mm wide, the paper 102.");
}

TEST_F(DocumentInTheWindow, IsMeasuredInInchesWhereThoseAreUsed)
{
    const foundation::ScopedLocale american(QLocale("en_US"));
    open(documentOf({80, 150}));
    EXPECT_EQ(message(), "The document is 3.15 in wide, the paper 8.26.");
}

/// A job that lasts until it is stopped.
class LastingSink : public JobSink
{
public:
    foundation::Or<QString> submit(const Job &, const JobProgress &, std::stop_token stop) override
    {
        while (!stop.stop_requested())
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return foundation::Problem{"stopped"};
    }
};

TEST_F(DocumentInTheWindow, OffersNothingToChangeWhileAJobIsOnItsWay)
{
    open(documentOf({80, 150}));
    m_dialog->target()->setSink(std::make_shared<LastingSink>());
    auto *const remedy = button("Use 80 × 150 mm");
    ASSERT_TRUE(remedy && remedy->isVisible());
    button("&Print")->click();
    ASSERT_EQ(m_dialog->state(), PrintDialog::State::sending);
    EXPECT_FALSE(remedy->isVisible());
    m_dialog->setScaling(Scaling::fit);
    EXPECT_FALSE(m_dialog->target()->jobOptions().contains("print-scaling"));
    m_dialog->stop();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_dialog->state() == PrintDialog::State::ready; }, 20000));
    EXPECT_TRUE(remedy->isVisible());
}

TEST_F(DocumentInTheWindow, GoesInTheSizeThatIsChosen)
{
    open(documentOf({80, 150}));
    QTest::mouseClick(m_window->findChild<QPushButton *>("unfoldPreview"), Qt::LeftButton);
    settle();
    auto *const sizes = m_window->findChild<PreviewPane *>()->findChild<QComboBox *>();
    EXPECT_EQ(sizes->currentText(), "Size: automatic");
    struct Row
    {
        const char *text;
        QString option;
    };
    for (const Row &row : {Row{"Size: fit to paper", "fit"}, Row{"Size: as it is", "none"},
                           Row{"Size: fill the paper", "fill"}, Row{"Size: automatic", {}}}) {
        choose(*sizes, row.text);
        settle();
        EXPECT_EQ(m_dialog->target()->jobOptions().value("print-scaling"), row.option);
        EXPECT_EQ(sizes->currentText(), row.text);
    }
}

} // namespace
