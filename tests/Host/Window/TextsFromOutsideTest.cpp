// Texts of a PPD, a server and a file name are text wherever the window shows them, whatever they could be taken for.
#include "PPDText.h"
#include "WindowTest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHelpEvent>
#include <QRegularExpression>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QToolTip>
#include <QTreeWidgetItemIterator>

#include <clocale>
#include <thread>

using namespace host;

namespace {

/// One printer, one queue, one file, each with all that could be taken for more than text; and so is each option, each
/// choice and each paper of the PPD.
class WindowOfTextsFromOutside : public support::WindowTest
{
protected:
    static constexpr auto kHarmful = "<img src='/dev/zero'><b>&amp;</b>\x1b[31m \xe2\x80\xaegnp";
    // "<b" would begin a byte in hexadecimal, as "<1B>" is one
    static constexpr auto kHarmfulInPPD = "<img src='|dev|zero'><u>&amp;</u><1B>[31m \xe2\x80\xaegnp";

    void SetUp() override
    {
        qputenv("HOME", m_directory.path().toUtf8());
        qputenv("CUPS_SERVERROOT", m_directory.path().toUtf8());
        setUp(m_directory.filePath("defaults.ini"));
        const auto harmful = QString::fromUtf8(kHarmful);
        const QString file = m_directory.filePath(QString(harmful).replace('/', '|') + ".pdf");
        ASSERT_TRUE(QFile::copy(support::kTicket, file));
        PrintRequest request;
        request.language = "de";
        makeDialog(request, file);
        const CachedPPD ppd{makePPD(), 0, {}};
        const Queue queue{harmful, {}, {}, ppd, {}, harmful};
        m_dialog->use(support::value(targetOfQueue(request, openedInGerman(queue))));
        showWindow();
    }
    /// The library keeps the texts of one language, that of the environment, and finds out which once a thread.
    static OpenedQueue openedInGerman(const Queue &queue)
    {
        qputenv("LC_ALL", "de_DE.UTF-8");
        std::setlocale(LC_MESSAGES, "C"); // or what the application took at its start would count
        OpenedQueue opened;
        std::thread([&] { opened = support::value(withPPDOpened(queue)); }).join();
        return opened;
    }
    /// Options, choices and papers are called after what they are; papers are in the window's language as well.
    QString makePPD()
    {
        support::PPDText text;
        text.allOptions().attribute("ModelName", kHarmful).attribute("FileVersion", kHarmful);
        text.line("*UIConstraints: *PageSize A5 *QnMirror OFF").line("*UIConstraints: *QnMirror OFF *PageSize A5");
        QByteArrayList lines = text.text().split('\n');
        static const QRegularExpression named(R"(^\*(OpenUI \*|PageSize |Qn\w+ )\w+/)");
        for (QByteArray &line : lines) {
            const auto match = named.match(QString::fromUtf8(line));
            const QByteArray kind = match.captured(1) == "OpenUI *"    ? "option "
                                    : match.captured(1) == "PageSize " ? "paper "
                                                                       : "choice ";
            if (match.hasMatch())
                line.insert(match.capturedEnd(), kHarmfulInPPD + kind);
        }
        lines.append("*cupsLanguages: \"de\"");
        lines.append("*de.PageSize Letter/" + QByteArray(kHarmfulInPPD) + "translated: \"\"");
        QFile file(m_directory.filePath("harmful.ppd"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(lines.join('\n') + '\n') > 0);
        return file.fileName();
    }
    /// What a tool tip shows, which guesses whether it is HTML.
    static QString shown(const QString &tip)
    {
        QTextDocument document;
        document.setHtml(tip);
        return Qt::mightBeRichText(tip) ? document.toPlainText() : tip;
    }
    static QStringList shown(QStringList tips)
    {
        std::ranges::transform(tips, tips.begin(), [](const QString &tip) { return shown(tip); });
        return tips;
    }

    QStringList labels() const
    {
        QStringList texts;
        for (const auto *label : m_window->findChildren<QLabel *>()) {
            if (label->windowType() == Qt::ToolTip)
                continue;
            texts.append(label->text());
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()));
        }
        return texts;
    }
    QStringList buttons() const
    {
        QStringList texts;
        for (const auto *each : m_window->findChildren<QAbstractButton *>())
            texts.append(each->text());
        return texts;
    }
    QStringList menuEntries() const
    {
        QStringList texts;
        for (const auto *menu : m_window->findChildren<QComboBox *>())
            for (int i = 0; i < menu->count(); ++i)
                texts.append(menu->itemText(i));
        return texts;
    }
    QStringList otherTexts() const
    {
        QStringList texts{m_window->windowTitle()};
        for (const auto *each : m_window->findChildren<QAction *>())
            texts << each->text() << each->toolTip();
        for (const auto *each : m_window->findChildren<QGroupBox *>())
            texts << each->title();
        for (const auto *each : m_window->findChildren<QLineEdit *>())
            texts << each->text() << each->placeholderText();
        for (const auto *each : m_window->findChildren<QTabBar *>())
            for (int i = 0; i < each->count(); ++i)
                texts << each->tabText(i) << shown(each->tabToolTip(i));
        return texts;
    }
    QStringList summaryTexts()
    {
        QStringList texts = summary();
        for (QTreeWidgetItemIterator item(m_window->findChild<SummaryView *>()); *item; ++item)
            for (int column = 0; column < 2; ++column)
                EXPECT_EQ(shown((*item)->toolTip(column)), (*item)->text(column));
        return texts;
    }
    QStringList whatAssistiveTechnologyReads() const
    {
        QStringList texts;
        for (auto *each : m_window->findChildren<QWidget *>()) {
            texts << each->accessibleName() << each->accessibleDescription();
            if (const auto *known = QAccessible::queryAccessibleInterface(each))
                for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
                    texts << known->text(kind);
        }
        return texts;
    }
    /// Those that are set, and those that come where the mouse rests.
    QStringList toolTips() const
    {
        QStringList tips;
        for (auto *each : m_window->findChildren<QWidget *>()) {
            if (!each->isVisible())
                continue;
            QHelpEvent rest(QEvent::ToolTip, each->rect().center(), each->mapToGlobal(each->rect().center()));
            QApplication::sendEvent(each, &rest);
            tips << each->toolTip() << QToolTip::text();
            QToolTip::hideText();
        }
        return tips;
    }
    /// Not even in parts: what turns the reading, what controls a terminal, what was a picture.
    static void expectHarmless(const QStringList &texts)
    {
        for (const QString &text : texts) {
            EXPECT_FALSE(text.contains(QChar::ObjectReplacementCharacter)) << text.toStdString();
            EXPECT_FALSE(text.contains('\x1b') || text.contains(QChar(0x202e))) << text.toStdString();
        }
    }
    static bool showsOne(const QStringList &texts, const QString &kind)
    {
        return std::ranges::any_of(
            texts, [&](const QString &text) { return text.contains("<img") && text.contains("gnp" + kind); });
    }

    QTemporaryDir m_directory;
};

TEST_F(WindowOfTextsFromOutside, ShowsThemAsText)
{
    choosePaper("A5"); // which moves another choice, and says so
    EXPECT_TRUE(showsOne({message()}, "paper ")) << message().toStdString();
    EXPECT_TRUE(showsOne({message()}, "option ")) << message().toStdString();
    expectHarmless({message()});
    for (const char *panel : {"basic", "advanced"}) {
        ASSERT_TRUE(m_window->showPanel(panel));
        for (const QStringList &texts :
             {labels(), buttons(), menuEntries(), otherTexts(), whatAssistiveTechnologyReads(), shown(toolTips())})
            expectHarmless(texts);
        EXPECT_TRUE(showsOne(labels(), "option ")) << panel;
        EXPECT_TRUE(showsOne(buttons() + menuEntries(), "choice ")) << panel;
        EXPECT_TRUE(showsOne(whatAssistiveTechnologyReads(), "choice ")) << panel;
        EXPECT_TRUE(showsOne(shown(toolTips()), "choice ")) << panel;
    }
    EXPECT_TRUE(showsOne(menuEntries(), "paper "));
    EXPECT_TRUE(showsOne(menuEntries(), "translated"));
    EXPECT_TRUE(showsOne(shown(toolTips()), "paper "));
}

TEST_F(WindowOfTextsFromOutside, ShowsThemAsTextInTheSummary)
{
    choosePaper("A5");
    const QStringList rows = summaryTexts();
    expectHarmless(rows);
    for (const QString kind : {"", "paper ", "option ", "choice "}) // the first is the printer's name
        EXPECT_TRUE(showsOne(rows, kind)) << kind.toStdString();
}

TEST_F(WindowOfTextsFromOutside, ShowsThemAsTextInTitlesAndMessages)
{
    m_dialog->savePreset(QString::fromUtf8(kHarmful)); // which is refused by name
    EXPECT_TRUE(showsOne({m_window->windowTitle()}, {}));
    EXPECT_TRUE(showsOne({message()}, {})) << message().toStdString();
    EXPECT_TRUE(showsOne(shown(toolTips()), {}));
    expectHarmless({m_window->windowTitle(), message()});
    expectHarmless(shown(toolTips()));
}

} // namespace
