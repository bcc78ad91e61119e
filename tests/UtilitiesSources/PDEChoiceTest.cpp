// Choices of PPD options as objects.
#include "PDEUtilsMethod.h"

#include "PPDText.h"
#include "Print.h"

#include <QFile>

#include <gtest/gtest.h>

using support::PPDText;

namespace {

class Choices : public testing::Test
{
protected:
    ChoiceList of(const PPDText &text)
    {
        m_ppd.reset(ppdOpenFile(QFile::encodeName(text.file()).constData()));
        EXPECT_TRUE(m_ppd);
        ppdMarkDefaults(m_ppd.get());
        return PDEUtilsMethod::arrayFromPPDOption(ppdFindOption(m_ppd.get(), "QnMedia")).value_or(ChoiceList());
    }
    printing::PPDFile m_ppd;
};

TEST_F(Choices, HaveATextForPeopleAndAKeywordForTheDriver)
{
    const auto choices = of(PPDText().option("QnMedia", "Media", "A", {{"A", "Größe"}, {"B", "bad\xff"}}));
    EXPECT_EQ(choices[0].userTitle(), QString("Größe"));
    EXPECT_EQ(choices[0].ppdTitle(), QString("A"));
    EXPECT_EQ(choices[1].userTitle(), std::nullopt);
    EXPECT_EQ(choices[1].userTitle(), std::nullopt); // tried again, and still not readable
    EXPECT_EQ(choices[0].choice(), &ppdFindOption(m_ppd.get(), "QnMedia")->choices[0]);
}

TEST_F(Choices, AnswerTheSameTextObjectTwice)
{
    const auto choices = of(PPDText().option("QnMedia", "Media", "A", {{"A", "Thermal"}}));
    EXPECT_EQ(&choices[0].userTitle(), &choices[0].userTitle());
    EXPECT_EQ(choices[0].userTitle()->constData(), choices[0].userTitle()->constData());
    EXPECT_EQ(choices[0].ppdTitle()->constData(), choices[0].ppdTitle()->constData());
}

TEST_F(Choices, AreTheDefaultByTheDeclarationWhateverIsMarked)
{
    const auto choices = of(PPDText().option("QnMedia", "Media", "B", {{"A", "a"}, {"B", "b"}}));
    ppdMarkOption(m_ppd.get(), "QnMedia", "A");
    EXPECT_FALSE(choices[0].isDefaultChoice());
    EXPECT_TRUE(choices[1].isDefaultChoice());
}

TEST_F(Choices, AreComparedWithTheDefaultOverTheWidthOfAKeyword)
{
    const QByteArray longest(40, 'k'); // as long as the library keeps a keyword
    const auto choices = of(PPDText().option("QnMedia", "Media", longest, {{longest, "a"}, {longest.left(39), "b"}}));
    EXPECT_TRUE(choices[0].isDefaultChoice());
    EXPECT_FALSE(choices[1].isDefaultChoice());
}

TEST_F(Choices, DescribeThemselves)
{
    const auto choices = of(PPDText().option("QnMedia", "Media", "B", {{"A", "a"}, {"B", "b"}, {"C", "bad\xff"}}));
    const auto address = [](const PDEChoice &choice) {
        return "0x" + QString::number(reinterpret_cast<quintptr>(&choice), 16);
    };
    EXPECT_EQ(
        choices[1].description(),
        QString(R"(<PDEChoice %1 userTitle:"b" ppdTitle:"B" marked:YES choice:2 of 3>)").arg(address(choices[1])));
    EXPECT_EQ(choices[2].description(),
              QString(R"x(<PDEChoice %1 userTitle:"(null)" ppdTitle:"C" marked:NO choice:3 of 3>)x")
                  .arg(address(choices[2])));
}

} // namespace
