// What panels ask of a PPD, on real PPD files.
#include "PDEUtilsMethod.h"

#include "PPDText.h"
#include "Print.h"

#include <QFile>

#include <gtest/gtest.h>

using support::PPDText;

namespace {

printing::PPDFile opened(const PPDText &text)
{
    printing::PPDFile ppd(ppdOpenFile(QFile::encodeName(text.file()).constData()));
    EXPECT_TRUE(ppd);
    ppdMarkDefaults(ppd.get());
    return ppd;
}

TEST(Attributes, AreTextsOrNil)
{
    const auto ppd =
        opened(PPDText().attribute("FileVersion", "1.5").attribute("Empty", "").attribute("Broken", "a\xff"));
    EXPECT_EQ(PDEUtilsMethod::ppdAttrValStr(ppd.get(), "FileVersion"), QString("1.5"));
    EXPECT_EQ(PDEUtilsMethod::ppdAttrValStr(ppd.get(), "Missing"), std::nullopt);
    EXPECT_EQ(PDEUtilsMethod::ppdAttrValStr(ppd.get(), "Broken"), std::nullopt);
    EXPECT_EQ(PDEUtilsMethod::ppdAttrValStr(nullptr, "FileVersion"), std::nullopt);
    EXPECT_TRUE(PDEUtilsMethod::ppdAttrValStr(ppd.get(), "Empty").has_value()); // empty is not missing
}

TEST(HiddenFlags, SupportAControlOnlyWhenTheySayFalse)
{
    const auto supported = [](const char *value) {
        return PDEUtilsMethod::isSupportedItem(opened(PPDText().attribute("QnMediaObjHidden", value)).get(),
                                               "QnMediaObjHidden");
    };
    EXPECT_TRUE(supported("False"));
    for (const char *value : {"false", "FALSE", "True", "", " False", "False "})
        EXPECT_FALSE(supported(value)) << '"' << value << '"';
    EXPECT_FALSE(PDEUtilsMethod::isSupportedItem(opened(PPDText()).get(), "QnMediaObjHidden"));
    EXPECT_FALSE(PDEUtilsMethod::isSupportedItem(nullptr, "QnMediaObjHidden"));
}

TEST(Origins, ArePointsOrTheCorner)
{
    const auto ppd = opened(PPDText().attribute("QnMediaStrOrigin", "{12, 34}").attribute("Empty", ""));
    EXPECT_EQ(PDEUtilsMethod::originItem(ppd.get(), "QnMediaStrOrigin"), QPointF(12, 34));
    EXPECT_EQ(PDEUtilsMethod::originItem(ppd.get(), "Missing"), QPointF(0, 0));
    EXPECT_EQ(PDEUtilsMethod::originItem(ppd.get(), "Empty"), QPointF(0, 0));
}

TEST(OptionTexts, AreReadInBothEncodings)
{
    const auto ppd = opened(PPDText()
                                .option("QnMedia", "Größe", "A", {{"A", "Mittel"}})
                                .option("QnSpeed", "bad\xff", "A", {{"A", "bad\xff"}}));
    EXPECT_EQ(PDEUtilsMethod::ppdOptionTextStr(ppd.get(), "QnMedia"), QString("Größe"));
    EXPECT_EQ(PDEUtilsMethod::ppdOptionTextStr(ppd.get(), "QnNone"), std::nullopt);
    ppd_option_t *const media = ppdFindOption(ppd.get(), "QnMedia");
    ppd_option_t *const speed = ppdFindOption(ppd.get(), "QnSpeed");
    EXPECT_EQ(PDEUtilsMethod::createOptionTitle(media), QString("Größe"));
    EXPECT_EQ(PDEUtilsMethod::createChoiceTitle(&media->choices[0]), QString("Mittel"));
    EXPECT_EQ(PDEUtilsMethod::createOptionTitle(speed), std::nullopt);
    EXPECT_EQ(PDEUtilsMethod::createChoiceTitle(&speed->choices[0]), std::nullopt);
    EXPECT_EQ(PDEUtilsMethod::createOptionTitle(nullptr), std::nullopt);
    EXPECT_EQ(PDEUtilsMethod::createChoiceTitle(nullptr), std::nullopt);
    EXPECT_TRUE(PDEUtilsMethod::runningOn105OrLater());
}

TEST(ChoiceLists, FollowThePPDsOrder)
{
    const auto ppd = opened(
        PPDText().option("QnMedia", "M", "B", {{"A", "a"}, {"B", "b"}, {"C", "c"}}).option("QnSpeed", "S", "", {}));
    const auto choices = PDEUtilsMethod::arrayFromPPDOption(ppdFindOption(ppd.get(), "QnMedia"));
    ASSERT_TRUE(choices);
    QStringList keywords;
    for (const PDEChoice &choice : *choices)
        keywords.append(choice.ppdTitle().value_or(QString()));
    EXPECT_EQ(keywords, QStringList({"A", "B", "C"}));
    EXPECT_EQ(PDEUtilsMethod::arrayFromPPDOption(nullptr), std::nullopt);
    const auto empty = PDEUtilsMethod::arrayFromPPDOption(ppdFindOption(ppd.get(), "QnSpeed"));
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->empty());
}

TEST(ChoiceLists, FindAKeywordOrTheDefault)
{
    const auto ppd = opened(
        PPDText().option("QnMedia", "M", "B", {{"A", "a"}, {"B", "b"}}).option("QnSpeed", "S", "", {{"A", "a"}}));
    const auto choices = *PDEUtilsMethod::arrayFromPPDOption(ppdFindOption(ppd.get(), "QnMedia"));
    EXPECT_EQ(PDEUtilsMethod::findChoiceForString("A", choices), &choices[0]);
    EXPECT_EQ(PDEUtilsMethod::findChoiceForString("a", choices), nullptr);
    EXPECT_EQ(PDEUtilsMethod::findChoiceForString(std::nullopt, choices), &choices[1]);
    const auto undecided = *PDEUtilsMethod::arrayFromPPDOption(ppdFindOption(ppd.get(), "QnSpeed"));
    EXPECT_EQ(PDEUtilsMethod::findChoiceForString(std::nullopt, undecided), nullptr);
}

TEST(LabelsOfControls, AreGreyedAndOtherControlsLeftAlone)
{
    toolkit::LabelControl label;
    toolkit::CheckControl box;
    toolkit::View text(&label);
    toolkit::View other(&box);
    PDEUtilsMethod::setEnabledForText(false, text);
    EXPECT_EQ(label.textColor(), toolkit::TextColor::disabledControl);
    PDEUtilsMethod::setEnabledForText(true, text);
    EXPECT_EQ(label.textColor(), toolkit::TextColor::control);
    PDEUtilsMethod::setEnabledForText(false, other);
    EXPECT_TRUE(other.isEnabled());
    toolkit::View none;
    PDEUtilsMethod::setEnabledForText(false, none);
}

TEST(StringHelpers, FindCutAndMeasure)
{
    EXPECT_EQ(PDEUtilsMethod::deleteString("a\nb\nc", "\n"), QString("ab\nc")); // the first one only
    EXPECT_EQ(PDEUtilsMethod::deleteString("abc", "\n"), std::nullopt);
    EXPECT_EQ(PDEUtilsMethod::deleteString("abc", "abc"), QString(""));
    EXPECT_TRUE(PDEUtilsMethod::scanString("Roll paper", "paper"));
    EXPECT_FALSE(PDEUtilsMethod::scanString("Roll paper", "Paper"));
    EXPECT_EQ(PDEUtilsMethod::stringLengthConvertedToEncoding(std::nullopt), 0);
    EXPECT_EQ(PDEUtilsMethod::stringLengthConvertedToEncoding(QString("")), 0);
    EXPECT_EQ(PDEUtilsMethod::stringLengthConvertedToEncoding(QString("Größe")), 7);
    EXPECT_EQ(PDEUtilsMethod::stringLengthConvertedToEncoding(QString::fromUtf8("用紙")), 6);
}

} // namespace
