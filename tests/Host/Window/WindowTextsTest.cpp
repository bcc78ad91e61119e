// The window's own texts, in each language.
#include "Window/WindowTexts.h"

#include "Print.h"
#include "Window/DialogWindow.h"
#include "Window/MessageLine.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace host;

namespace {

using Texts = QMap<QString, QString>; // context and English text to the language's

Texts textsOf(const QString &language)
{
    QFile file(QString(QN_SOURCE_DIR "/Host/Window/Texts/qnprint_%1.ts").arg(language));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    Texts texts;
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name")
            context = xml.readElementText();
        else if (xml.name() == u"source")
            source = xml.readElementText();
        else if (xml.name() == u"translation")
            texts[context + '/' + source] = xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

QStringList placesIn(const QString &text)
{
    static const QRegularExpression place("%[0-9]");
    QStringList places;
    for (auto each = place.globalMatch(text); each.hasNext();)
        places.append(each.next().captured());
    places.sort();
    return places;
}

class WindowTexts : public testing::TestWithParam<const char *>
{
protected:
    void TearDown() override { useWindowTexts("en"); }
};

TEST_P(WindowTexts, AreAllThereWithTheirPlaces)
{
    const Texts texts = textsOf(GetParam());
    EXPECT_EQ(texts.keys(), textsOf("de").keys());
    EXPECT_GT(texts.size(), 50);
    for (const auto &[english, text] : texts.asKeyValueRange()) {
        EXPECT_FALSE(text.isEmpty()) << english.toStdString();
        EXPECT_EQ(placesIn(text), placesIn(english)) << english.toStdString();
        EXPECT_EQ(text.contains('&'), english.contains('&')) << english.toStdString();
    }
}

TEST_P(WindowTexts, HaveAMnemonicOfItsOwnForEachControl)
{
    useWindowTexts(GetParam());
    PrintDialog dialog({}, nullptr);
    const DialogWindow window(dialog);
    QStringList mnemonics;
    for (const auto *label : window.findChildren<QLabel *>())
        if (label->buddy())
            mnemonics.append(label->text().section('&', 1, 1).left(1).toLower());
    for (const auto *button : window.findChildren<QPushButton *>())
        if (button->text().contains('&'))
            mnemonics.append(button->text().section('&', 1, 1).left(1).toLower());
    EXPECT_EQ(mnemonics.size(), 10); // five fields, Print, Save, Try Again, Choose File, Summary
    EXPECT_EQ(mnemonics.removeDuplicates(), 0) << mnemonics.join(' ').toStdString();
}

TEST_P(WindowTexts, AreShownInTheWindow)
{
    useWindowTexts(QString(GetParam()) + "_XX"); // of whatever country
    PrintDialog dialog({}, nullptr);
    const DialogWindow window(dialog);
    EXPECT_EQ(window.windowTitle(), textsOf(GetParam())["host::DialogWindow/Print"]);
}

TEST_P(WindowTexts, BringTheSystemsWithThemWhateverTheEnvironmentSpeaks)
{
    useWindowTexts(GetParam());
    const Texts texts = textsOf(GetParam());
    const QTemporaryDir folder;
    QFile ppd(folder.filePath("garbage.ppd"));
    ASSERT_TRUE(ppd.open(QIODevice::WriteOnly) && ppd.write("nothing of the kind\n") > 0 && ppd.flush());
    PrintRequest request;
    request.ppd = ppd.fileName();
    PrintDialog dialog(request, nullptr);
    dialog.chooseDocuments({"/no/such.pdf"});
    EXPECT_FALSE(dialog.start());
    const DialogWindow window(dialog);
    const QString missing = texts["foundation::SystemError/No such file or directory"];
    EXPECT_FALSE(missing.isEmpty());
    EXPECT_EQ(window.findChild<MessageLine *>()->said(), "/no/such.pdf: " + missing);
    const QString noPPD = window.findChild<AnnouncedLabel *>("inPlaceOfPanel")->said();
    const auto isSaid = [&](const QString &text) { return noPPD.contains(text); };
    EXPECT_TRUE(isSaid(texts["host::PPDProblems/the header of a PPD file is missing"]) ||
                isSaid(texts["host::PPDProblems/the asterisk before a keyword is missing"]))
        << noPPD.toStdString();
}

TEST_P(WindowTexts, BringTheToolkitsOwnWithThem)
{
    useWindowTexts("en");
    const QString english = QCoreApplication::translate("QPlatformTheme", "Cancel");
    useWindowTexts(GetParam());
    EXPECT_NE(QCoreApplication::translate("QPlatformTheme", "Cancel"), english);
}

INSTANTIATE_TEST_SUITE_P(In, WindowTexts, testing::Values("de", "fr", "es", "ja", "zh_CN"),
                         [](const auto &row) { return row.param; });

TEST(WindowTextsInOtherLanguages, AreEnglish)
{
    useWindowTexts("de");
    useWindowTexts("it_IT");
    PrintDialog dialog({}, nullptr);
    EXPECT_EQ(DialogWindow(dialog).windowTitle(), "Print");
}

} // namespace
