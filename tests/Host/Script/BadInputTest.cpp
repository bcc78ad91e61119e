// PPD files that are no PPD files, or strange ones: one sentence or a dialog, never a crash.
#include "Dialog.h"

#include <QFile>
#include <QTemporaryDir>

#include <random>

#include <sys/stat.h>

using namespace support;

namespace {

class BadPPD : public DialogTest
{
protected:
    QString fileWith(const QByteArray &content)
    {
        const QString path = m_directory.filePath("bad.ppd");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return path;
    }
    /// Opens the path, and answers the sentence of the refusal.
    QString refusal(const QString &path)
    {
        request({{"do", "open"}, {"ppd", path}});
        EXPECT_FALSE(reply()["ok"].toBool(true));
        EXPECT_TRUE(error().startsWith(path)) << error().toStdString();
        EXPECT_FALSE(error().contains('\n'));
        return error().mid(path.size());
    }
    /// Everything that a person would look at.
    void lookAround()
    {
        for (const char *panel : {"basic", "advanced"}) {
            request({{"do", "show"}, {"panel", panel}});
            request({{"do", "summary"}, {"panel", panel}});
        }
        request({{"do", "state"}});
        EXPECT_TRUE(reply()["ok"].toBool());
        request({{"do", "paper"}, {"name", "RollA4"}});
        request({{"do", "print"}});
        request({{"do", "job"}});
        EXPECT_TRUE(reply()["ok"].toBool());
    }

    QTemporaryDir m_directory;
};

TEST_F(BadPPD, ThatIsMissing) { EXPECT_EQ(refusal("/no/such.ppd"), ": No such file or directory"); }

TEST_F(BadPPD, ThatIsAFolder) { EXPECT_EQ(refusal(m_directory.path()), ": not a file"); }

TEST_F(BadPPD, ThatIsADeviceOrAPipe)
{
    EXPECT_EQ(refusal("/dev/zero"), ": not a file");
    const QString pipe = m_directory.filePath("pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe), 0600), 0);
    EXPECT_EQ(refusal(pipe), ": not a file"); // and nobody waits for a writer
}

TEST_F(BadPPD, ThatIsEmpty) { EXPECT_EQ(refusal(fileWith("")), ": not a PPD file (the file is empty)"); }

TEST_F(BadPPD, ThatIsSomethingElse)
{
    EXPECT_TRUE(refusal(fileWith("%PDF-1.4\n")).contains("not a PPD file (line 1: "));
    EXPECT_TRUE(refusal(fileWith(QByteArray(100000, '\0'))).contains("not a PPD file"));
}

TEST_F(BadPPD, ThatEndsInTheMiddle)
{
    const QByteArray whole = PPDText().allOptions().text();
    for (const qsizetype size : {10, 100, 500, 2000, 4000}) {
        request({{"do", "open"}, {"ppd", fileWith(whole.left(size))}});
        if (reply()["ok"].toBool())
            lookAround();
        else
            EXPECT_TRUE(error().contains("not a PPD file")) << error().toStdString();
    }
}

TEST_F(BadPPD, OfTenMegabytesOpens)
{
    PPDText ppd;
    ppd.allOptions();
    const QByteArray filler(200, 'x');
    for (int i = 0; i < 48000; ++i)
        ppd.attribute("Filler" + QByteArray::number(i), filler);
    open(ppd);
    lookAround();
}

TEST_F(BadPPD, WithoutAnyOptionOfOursShowsNothingAndPrints)
{
    open(PPDText());
    lookAround();
    EXPECT_EQ(request({{"do", "job"}})["options"].toObject(), (QJsonObject{{"PageSize", "RollA4"}}));
}

TEST_F(BadPPD, WithoutPageSizesOpens)
{
    openFile(fileWith("*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n*LanguageEncoding: "
                      "UTF-8\n*NickName: \"Bare\"\n"));
    lookAround();
}

class OptionWithoutChoices : public BadPPD, public testing::WithParamInterface<const char *>
{};

TEST_P(OptionWithoutChoices, IsShownAndSentNowhere)
{
    open(PPDText().option(GetParam(), "Title", "", {}));
    lookAround();
    EXPECT_EQ(marked(GetParam()), "");
}

INSTANTIATE_TEST_SUITE_P(Options, OptionWithoutChoices,
                         testing::Values("QnDensity", "QnSpeed", "QnMedia", "QnFormFeedMode", "QnPaperFeed",
                                         "QnPerforated", "QnHalftonePattern", "QnReversal", "QnMirror", "QnBiDiPrint",
                                         "QnRollPrinterCase", "QnPaperSizeType"));

TEST_F(BadPPD, WithCustomOptionsOfOtherKindsKeepsThemApart)
{
    // A parameter that holds a text must not be written as a number.
    for (const char *type :
         {"string 1 8", "password 1 8", "passcode 1 4", "int 0 3", "points 0 99", "curve 0 2", "invcurve 0 2"}) {
        open(PPDText()
                 .standardOption("QnPaperFeed")
                 .line("*CustomQnPaperFeed True: \"x\"")
                 .line(QByteArray("*ParamCustomQnPaperFeed QnPaperFeed: 1 ") + type));
        lookAround();
    }
}

TEST_F(BadPPD, OfRandomChangesNeverCrashes)
{
    constexpr unsigned kSeed = 20261120;
    constexpr int kRounds = 300;
    const QByteArray whole = PPDText().allOptions().text();
    std::mt19937 random(kSeed);
    const auto below = [&](qsizetype count) {
        return static_cast<qsizetype>(random() % static_cast<unsigned long>(count));
    };
    for (int round = 0; round < kRounds; ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << kSeed << ", round " << round);
        QByteArray changed = whole;
        for (int i = 0; i < 8; ++i) {
            switch (random() % 4) {
            case 0: changed[below(changed.size())] = static_cast<char>(random()); break;
            case 1: changed.remove(below(changed.size()), 1 + below(40)); break;
            case 2: changed.insert(below(changed.size()), changed.mid(below(changed.size()), below(60))); break;
            case 3: changed.insert(below(changed.size()), "*CloseUI: *QnMedia\n\"*/:"); break;
            }
        }
        request({{"do", "open"}, {"ppd", fileWith(changed)}, {"language", "none"}});
        if (reply()["ok"].toBool())
            lookAround();
    }
}

} // namespace
