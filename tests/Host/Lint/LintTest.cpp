// Each check finds what is wrong, in its line, and nothing in a PPD that is right.
#include "Lint.h"

#include <algorithm>

using namespace support;

namespace {

/// An edit of the full example, and what is found then.
struct Wrong
{
    const char *name;
    const char *check;
    const char *from;
    const char *to;
    const char *where; // the first line that begins so, after the edit; null for line 1
    const char *said;  // among the words of the finding
};

void PrintTo(const Wrong &row, std::ostream *out) { *out << row.name; }

const std::vector<Wrong> kWrongs{
    {"NoHeader", "open", "*PPD-Adobe", "PPD-Adobe", "PPD-Adobe", "the dialog refuses"},
    {"ByteOrderMark", "open", "*PPD-Adobe", "\xef\xbb\xbf*PPD-Adobe", nullptr, "a byte order mark"},
    {"NotConforming", "conformance", "*ShortNickName", "*% ", nullptr, "REQUIRED ShortNickName"},
    {"OptionNotEnded", "structure", "*CloseUI: *QnSpeed\n", "", "*OpenUI *QnSpeed", "not ended"},
    {"AnotherOptionEnded", "structure", "*CloseUI: *QnSpeed\n", "*CloseUI: *QnSpede\n", "*CloseUI: *QnSpede", "ends"},
    {"OptionTwice", "structure", "*OpenUI *QnSpeed/Print", "*OpenUI *QnDensity/Print", "*OpenUI *QnDensity/Print Speed",
     "begins twice"},
    {"ChoiceTwice", "structure", "*QnSpeed S1/", "*QnSpeed S0/", "*QnSpeed S0/Normal", "stands twice"},
    {"DefaultTwice", "structure", "*QnSpeed S0/", "*DefaultQnSpeed: S1\n*QnSpeed S0/", "*DefaultQnSpeed: S1",
     "the last one counts"},
    {"StrayChoice", "structure", "*CloseUI: *QnSpeed\n", "*CloseUI: *QnSpeed\n*QnSpeed S9/Nine: \"\"\n", "*QnSpeed S9",
     "outside of its option"},
    {"NoColon", "structure", "*QnSpeedObjHidden: ", "*QnSpeedObjHidden ", "*QnSpeedObjHidden", "no colon"},
    {"NoFirstMark", "structure", "*QnSpeed S0/Slow: \"", "*QnSpeed S0/Slow: ", "*QnSpeed S0", "one quotation mark"},
    {"NoLastMark", "structure", "(S0)>>setpagedevice\"", "(S0)>>setpagedevice", "*QnSpeed S0", "one quotation mark"},
    {"SizeWithoutDimension", "page-size", "*PaperDimension A5: ", "*% ", "*PageSize A5", "no size"},
    {"SizeWithoutMargins", "page-size", "*ImageableArea A5: ", "*% ", "*PageSize A5", "margins"},
    {"SizeWithoutRegion", "page-size", "*PageRegion A5/", "*% /", "*PageSize A5", "PageRegion"},
    {"DimensionOfNothing", "page-size", "*PaperDimension A5:", "*PaperDimension A6:", "*PaperDimension A6", "nobody"},
    {"DimensionOfOneNumber", "page-size", "\"420 595\"", "\"420\"", "*PaperDimension A5", "not 2 numbers"},
    {"MarginsOffThePaper", "page-size", "*ImageableArea A5: \"9 9 411 586\"", "*ImageableArea A5: \"9 9 411 5866\"",
     "*ImageableArea A5", "not within its paper"},
    {"ConstraintOnNoOption", "constraint", "*UIConstraints: *QnMedia", "*UIConstraints: *QnMeida", "*UIConstraints",
     "never holds"},
    {"ConstraintOnNoChoice", "constraint", "ThermalCopy *QnSpeed S3", "ThermalCopy *QnSpeed S4", "*UIConstraints",
     "never holds"},
    {"ConstraintOfOneOption", "constraint", "ThermalCopy *QnSpeed S3", "ThermalCopy", "*UIConstraints", "two options"},
    {"ConstraintOfAnOptionWithItself", "constraint", "ThermalCopy *QnSpeed S3", "ThermalCopy *QnMedia Thermal",
     "*UIConstraints", "two options"},
    {"DefaultOfNoChoice", "default-choice", "*DefaultQnMedia: Thermal", "*DefaultQnMedia: thermal", "*DefaultQnMedia",
     "none of the choices"},
    {"NoDefault", "default-choice", "*DefaultQnMedia: Thermal\n", "", "*OpenUI *QnMedia", "no default"},
    {"OptionWithoutText", "empty-text", "*OpenUI *QnMedia/Paper Type:", "*OpenUI *QnMedia:", "*OpenUI *QnMedia",
     "no text"},
    {"ChoiceWithoutText", "empty-text", "*QnMedia Thermal/Thermal Paper:", "*QnMedia Thermal:", "*QnMedia Thermal",
     "no text"},
    {"ChoiceWithEmptyText", "empty-text", "*QnMedia Thermal/Thermal Paper:", "*QnMedia Thermal/ :", "*QnMedia Thermal",
     "no text"},
    {"NoEncoding", "encoding", "*LanguageEncoding: UTF-8\n", "", nullptr, "missing"},
    {"UnknownEncoding", "encoding", "*LanguageEncoding: UTF-8", "*LanguageEncoding: UTF8", "*LanguageEncoding",
     "no encoding"},
    {"AnotherEncoding", "encoding", "/Thermal Paper:", "/Th\xe9rmal Paper:", "*QnMedia Thermal", "not UTF-8"},
    {"ControlCharacter", "encoding", "/Thermal Paper:", "/Thermal\x7fPaper:", "*QnMedia Thermal", "control"},
    {"KeywordOfAnotherScript", "open", "*QnMedia Thermal/", "*QnMedia Th\xe9rmal/", "*QnMedia Th", "not allowed"},
    {"TranslatedInPart", "translation", "*de.PageSize A5/A5: \"\"\n", "", "*de.PageSize A4", "for A5"},
    {"TranslationOfNothing", "translation", "*de.PageSize A5/A5: \"\"\n",
     "*de.PageSize A5/A5: \"\"\n*de.PageSize A6/A6: \"\"\n", "*de.PageSize A6", "never shown"},
    {"NoExtension", "extension", "*APDialogExtension", "*% ", nullptr, "is missing"},
    {"ExtensionNotInstalled", "extension", "QNKVPageSettings15.plugin", "Another.plugin", "*APDialogExtension",
     "no bundle"},
    {"PaperForbidsItsFormFeed", "conflict", "*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3",
     "*UIConstraints: *PageSize PerfA4 *QnFormFeedMode FF2", "*UIConstraints", "with the paper PerfA4"},
    {"KindOfPaperForbidsItsFormFeed", "conflict", "*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3",
     "*UIConstraints: *QnPaperSizeType QnRollSize *QnFormFeedMode FF0", "*UIConstraints",
     "with the paper RollA4, then FF0 of QnFormFeedMode"},
    {"PaperForbiddenByOneOfTwo", "conflict", "*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3",
     "*UIConstraints: *PageSize A5 *QnMedia ThermalCopy\n*UIConstraints: *PageSize RollA4 *QnMedia Thermal",
     "*UIConstraints: *PageSize RollA4",
     "with the paper RollA4: the page size that is marked is A4; see *UIConstraints: \"*PageSize RollA4 *QnMedia "
     "Thermal\""},
    {"FormFeedMovesMedia", "conflict", "*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3",
     "*UIConstraints: *QnMedia Thermal *QnFormFeedMode FF1", "*UIConstraints", "the panel shows Thermal of QnMedia"},
    {"PerforationForbidden", "conflict", "*UIConstraints: *QnMedia ThermalCopy *QnSpeed S3",
     "*UIConstraints: *QnFormFeedMode FF1 *QnPerforated ON", "*UIConstraints", "then ON of QnPerforated"},

    {"NoFlag", "hidden-flag", "*QnMediaObjHidden: \"False\"\n", "", "*OpenUI *QnMedia", "media menu stays grey"},
    {"FlagInLowerCase", "hidden-flag", "*QnSpeedObjHidden: \"False\"", "*QnSpeedObjHidden: \"false\"",
     "*QnSpeedObjHidden", "speed menu stays grey"},
    {"FlagOfTheCase", "hidden-flag", "*QnRollPrinterCaseHidden", "*QnRollPrinterCaseObjHidden",
     "*QnRollPrinterCaseObjHidden", "is called QnRollPrinterCaseHidden"},
    {"FlagTwice", "hidden-flag", "*QnMediaObjHidden: \"False\"\n",
     "*QnMediaObjHidden: \"False\"\n*QnMediaObjHidden: \"True\"\n", "*QnMediaObjHidden: \"True\"", "stands again"},
    {"OnFirst", "off-first",
     "*QnMirror OFF/Off: \"<</QnMirror(OFF)>>setpagedevice\"\n*QnMirror ON/On: \"<</QnMirror(ON)>>setpagedevice\"",
     "*QnMirror ON/On: \"\"\n*QnMirror OFF/Off: \"\"", "*QnMirror ON", "means off"},
    {"ThreeForABox", "off-first", "*QnMirror OFF/Off", "*QnMirror Auto/Auto: \"\"\n*QnMirror OFF/Off",
     "*OpenUI *QnMirror", "not two"},
    {"OnByAnotherName", "off-first",
     "*DefaultQnMirror: OFF\n*QnMirror OFF/Off: \"<</QnMirror(OFF)>>setpagedevice\"\n*QnMirror ON/",
     "*DefaultQnMirror: Left\n*QnMirror OFF/Off: \"\"\n*QnMirror Left/", "*DefaultQnMirror", "not called ON"},
    {"ThreeFormFeeds", "choice-count", "*QnFormFeedMode FF3/", "*% /", "*OpenUI *QnFormFeedMode", "3 choices"},
    {"FourHalftones", "choice-count", "*QnHalftonePattern Binary/",
     "*QnHalftonePattern None/None: \"\"\n*QnHalftonePattern Binary/", "*OpenUI *QnHalftonePattern", "4 choices"},
    {"ThirteenDensities", "choice-count", "*QnDensity D0/", "*QnDensity DX/X: \"\"\n*QnDensity D0/",
     "*OpenUI *QnDensity", "13 choices"},
    {"SixSpeeds", "choice-count", "*QnSpeed S0/", "*QnSpeed SX/X: \"\"\n*QnSpeed S0/", "*OpenUI *QnSpeed", "6 choices"},
    {"FiveCases", "choice-count", "*QnRollPrinterCase Off/", "*QnRollPrinterCase X/X: \"\"\n*QnRollPrinterCase Off/",
     "*OpenUI *QnRollPrinterCase", "5 choices"},
    {"FormFeedsOutOfOrder", "choice-order", "*QnFormFeedMode FF0/No", "*QnFormFeedMode FF4/No", "*QnFormFeedMode FF1",
     "out of order"},
    {"HalftonesOutOfOrder", "choice-order",
     "*QnHalftonePattern Binary/Binary: \"<</QnHalftonePattern(Binary)>>setpagedevice\"\n*QnHalftonePattern Dither/",
     "*QnHalftonePattern Dither/Dither: \"\"\n*QnHalftonePattern Binary/", "*QnHalftonePattern Dither", "out of order"},
    {"FormFeedTextsOutOfOrder", "choice-order",
     "FF0/No Form Feed: \"<</QnFormFeedMode(FF0)>>setpagedevice\"\n*QnFormFeedMode FF1/Fixed Page Length:",
     "FF0/Fixed Page Length: \"\"\n*QnFormFeedMode FF1/No Form Feed:", "*QnFormFeedMode FF0",
     "says \"Fixed Page Length\""},
    {"LastFormFeedTextsOutOfOrder", "choice-order",
     "FF2/End of Page: \"<</QnFormFeedMode(FF2)>>setpagedevice\"\n*QnFormFeedMode FF3/Retract Paper:",
     "FF2/Retract Paper: \"\"\n*QnFormFeedMode FF3/End of Page:", "*QnFormFeedMode FF2", "says \"Retract Paper\""},
    {"HalftoneTextsOutOfOrder", "choice-order",
     "Binary/Binary: \"<</QnHalftonePattern(Binary)>>setpagedevice\"\n*QnHalftonePattern Dither/Dither:",
     "Binary/Dither: \"\"\n*QnHalftonePattern Dither/Binary:", "*QnHalftonePattern Binary", "says \"Dither\""},
    {"OneMedia", "fixed-items", "*QnRollPrinterCase Off/", "*% /", "*OpenUI *QnRollPrinterCase", "does nothing"},
    {"NoSizeType", "size-type", "*OpenUI *QnPaperSizeType", "*OpenUI *QnPaperType", nullptr, "never told"},
    {"OneSizeTypeLess", "size-type", "*QnPaperSizeType QnRollSize/", "*% /", "*OpenUI *QnPaperSizeType", "QnRollSize"},
    {"PaperInLowerCase", "paper-name", "*PageSize RollA4/", "*PageSize rollA4/", "*PageSize rollA4", "RollA4 is"},
    {"PaperThatIsNone", "paper-name", "*PageSize PerfA4/", "*PageSize PerfA5/", "*PageSize PerfA5", "own size"},
    {"PaperWithALetterLess", "paper-name", "*PageSize Letter/", "*PageSize Leter/", "*PageSize Leter/", "Letter is"},
    {"NoCustomFeed", "feed-custom",
     "*CustomQnPaperFeed True: \"pop pop\"\n*ParamCustomQnPaperFeed QnPaperFeed/Paper Feed: 1 real 0.03937 2.00788\n"
     "*ParamCustomQnPaperFeed mm/Millimetres: 2 real 1 51\n",
     "", "*OpenUI *QnPaperFeed", "no custom option"},
    {"NoCustomFeedBesideItsParameters", "feed-custom", "*CustomQnPaperFeed True: \"pop pop\"\n", "",
     "*OpenUI *QnPaperFeed", "no custom option"},
    {"CustomFeedOfAnotherName", "feed-custom", "*CustomQnPaperFeed True", "*CustomQnPaperFed True",
     "*OpenUI *QnPaperFeed", "no custom option"},
    {"EndlessMillimetres", "feed-custom", "2 real 1 51", "2 real 1 1e400", "*ParamCustomQnPaperFeed mm",
     "not between two numbers"},
    {"NoMillimetres", "feed-custom", "*ParamCustomQnPaperFeed mm/", "*% /", "*CustomQnPaperFeed",
     "mm of QnPaperFeed is missing"},
    {"MillimetresOfAnotherType", "feed-custom", "2 real 1 51", "2 int 1 51", "*CustomQnPaperFeed", "not real"},
    {"InchesSecond", "feed-custom", "*ParamCustomQnPaperFeed QnPaperFeed/Paper Feed: 1",
     "*ParamCustomQnPaperFeed x/X: 3 real 0 1\n*ParamCustomQnPaperFeed QnPaperFeed/Paper Feed: 1",
     "*ParamCustomQnPaperFeed x", "first parameter"},
    {"RangesThatDiffer", "feed-custom", "2 real 1 51", "2 real 1 45", "*ParamCustomQnPaperFeed mm", "is not 0.03937"},
    {"NoUpperLimit", "feed-custom", "2 real 1 51", "2 real 0 0", "*ParamCustomQnPaperFeed mm", "holds no amount"},
    {"BeginningOutOfRange", "feed-custom", "2 real 1 51", "2 real 30 51", "*ParamCustomQnPaperFeed mm",
     "leaves out 26 mm"},
    {"InchOutOfRange", "feed-custom", "1 real 0.03937 2.00788", "1 real 0.03937 0.9",
     "*ParamCustomQnPaperFeed QnPaperFeed", "leaves out 1 inch"},
    {"NotVariable", "custom-size", "*VariablePaperSize: True", "*VariablePaperSize: False", "*VariablePaperSize",
     "no own size"},
    {"LimitsReversed", "custom-size", "Width: 1 points 72 612", "Width: 1 points 612 72", "*ParamCustomPageSize Width",
     "no paper at all"},
    {"NoLimits", "custom-size", "*ParamCustomPageSize Width: 1 points 72 612\n", "", "*CustomPageSize",
     "ParamCustomPageSize Width is missing"},
    {"LimitsTooSmall", "custom-size", "Height: 2 points 72 3600", "Height: 2 points 72 1000", "*PageSize Legal",
     "refuses to print"},
    {"LimitsThatDiffer", "custom-size", "*MaxMediaWidth: \"612\"", "*MaxMediaWidth: \"620\"", "*MaxMediaWidth",
     "the one that stands last counts"},
    {"NoPoint", "origin", "*QnPerforatedStrOrigin: \"{16, 164}\"", "*QnPerforatedStrOrigin: \"16, 164\"",
     "*QnPerforatedStrOrigin", "lower left corner"},
    {"NoOrigin", "origin", "*QnPerforatedPopBtnOrigin: \"{216, 164}\"\n", "", "*OpenUI *QnPerforated", "is missing"},
    {"OutsideOfThePage", "origin", "*QnPerforatedPopBtnOrigin: \"{216, 164}\"",
     "*QnPerforatedPopBtnOrigin: \"{316, 164}\"", "*QnPerforatedPopBtnOrigin", "outside"},
    {"OnTopOfAnother", "origin", "*QnBiDiPrintChkBtnOrigin: \"{216, 10}\"", "*QnBiDiPrintChkBtnOrigin: \"{216, 40}\"",
     "*QnMirrorChkBtnOrigin", "on top of mBiDiPrintChkBx"},
    {"MirrorOnTopOfAnother", "origin", "*QnMirrorChkBtnOrigin: \"{216, 48}\"", "*QnMirrorChkBtnOrigin: \"{216, 100}\"",
     "*QnMirrorChkBtnOrigin", "on top of mReversalChkBx"},
    {"MirrorOutsideOfThePage", "origin", "*QnMirrorChkBtnOrigin: \"{216, 48}\"", "*QnMirrorChkBtnOrigin: \"{516, 48}\"",
     "*QnMirrorChkBtnOrigin", "outside"},
    {"OriginTwice", "origin", "*QnMirrorChkBtnOrigin: \"{216, 48}\"\n",
     "*QnMirrorChkBtnOrigin: \"{216, 48}\"\n*QnMirrorChkBtnOrigin: \"{0, 0}\"\n", "*QnMirrorChkBtnOrigin: \"{0",
     "stands again"},
    {"UnknownOption", "unknown-option", "*% Thermal",
     "*OpenUI *QnCutter/Cutter: PickOne\n*DefaultQnCutter: A\n*QnCutter A/A: \"\"\n*CloseUI: *QnCutter\n*% Thermal",
     "*OpenUI *QnCutter", "nobody can choose it"},
    {"NearMiss", "unknown-option", "*OpenUI *QnDensity/", "*OpenUI *QnDensty/", "*OpenUI *QnDensty",
     "is QnDensity meant?"},
    {"NearMissWithoutItsPrefix", "unknown-option", "*QnDensityObjHidden", "*nDensityObjHidden", "*nDensityObjHidden",
     "is QnDensityObjHidden meant?"},
    {"UnknownAttribute", "unknown-option", "*% Thermal", "*QnCutterObjHidden: \"False\"\n*% Thermal",
     "*QnCutterObjHidden", "it does nothing"},
    {"NoFileVersion", "version", "*FileVersion: \"1.5\"\n", "", nullptr, "FileVersion"},
    {"NoModelName", "version", "*ModelName: \"Qn Thermal 210\"\n", "", nullptr, "ModelName"},
    {"Mirror", "never-shown", "*% Thermal", "*% Thermal", "*OpenUI *QnMirror", "10.6"},
    {"BiDi", "never-shown", "*% Thermal", "*% Thermal", "*OpenUI *QnBiDiPrint", "USB"},
    {"NotApplied", "origin-unused", "*% Thermal", "*% Thermal", "*QnDensityStrOrigin", "not applied"},
};

int lineOf(const QByteArray &content, const char *beginning)
{
    if (!beginning)
        return 1;
    const qsizetype at = content.startsWith(beginning) ? 0 : content.indexOf(QByteArray("\n") + beginning) + 1;
    return static_cast<int>(content.first(at).count('\n')) + 1;
}

class WrongPPD : public LintTest, public testing::WithParamInterface<Wrong>
{};

TEST_P(WrongPPD, IsFoundInItsLine)
{
    const Wrong &row = GetParam();
    const QByteArray content = edited(fullPPD(), row.from, row.to);
    const QString line = QString("%1: ").arg(lineOf(content, row.where));
    const QStringList all = found(content, row.check);
    const bool isFound =
        std::ranges::any_of(all, [&](const QString &each) { return each.startsWith(line) && each.contains(row.said); });
    EXPECT_TRUE(isFound) << "expected in line " << line.toStdString() << "found: " << all.join('\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Each, WrongPPD, testing::ValuesIn(kWrongs),
                         [](const auto &row) { return std::string(row.param.name); });

/// An edit of the full example that a check must not take for a fault.
struct Right
{
    const char *name;
    const char *check;
    std::vector<std::pair<const char *, const char *>> edits;
};

void PrintTo(const Right &row, std::ostream *out) { *out << row.name; }

const std::vector<Right> kRights{
    {"HalftonesThatEndInDigits",
     "choice-order",
     {{"*DefaultQnHalftonePattern: Dither", "*DefaultQnHalftonePattern: Dither4"},
      {"*QnHalftonePattern Binary/", "*QnHalftonePattern Binary8/"},
      {"*QnHalftonePattern Dither/", "*QnHalftonePattern Dither4/"}}},
    {"TextThatMentionsItsNeighbour", "choice-order", {{"FF2/End of Page:", "FF2/After the page, no retract:"}}},
    {"MirrorAndBiDiInEachOthersPlace",
     "origin",
     {{"*QnMirrorChkBtnOrigin: \"{216, 48}\"", "*QnMirrorChkBtnOrigin: \"{216, 10}\""},
      {"*QnBiDiPrintChkBtnOrigin: \"{216, 10}\"", "*QnBiDiPrintChkBtnOrigin: \"{216, 48}\""}}},
    {"NoPlaceOfAControlOnAPageThatIsNotShown", "origin", {{"*QnOptionStrOrigin: \"{16, 100}\"\n", ""}}},
    {"FlagTwiceTheSame",
     "hidden-flag",
     {{"*QnMediaObjHidden: \"False\"\n", "*QnMediaObjHidden: \"False\"\n*QnMediaObjHidden: \"False\"\n"}}},
    {"AttributeOfAWordOfItsOwn", "unknown-option", {{"*% Thermal", "*Speed: \"1\"\n*% Thermal"}}},
};

class StillRightPPD : public LintTest, public testing::WithParamInterface<Right>
{};

TEST_P(StillRightPPD, IsNotFoundFaultWith)
{
    QByteArray content = fullPPD();
    for (const auto &[from, to] : GetParam().edits)
        content = edited(content, from, to);
    EXPECT_EQ(found(content, GetParam().check), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Each, StillRightPPD, testing::ValuesIn(kRights),
                         [](const auto &row) { return std::string(row.param.name); });

/// A range is wrong, or the two differ: both said of one limit is once too often.
TEST_F(LintTest, FindsALimitThatIsNoNumberOnce)
{
    EXPECT_EQ(found(edited(fullPPD(), "2 real 1 51", "2 real 1 nan"), "feed-custom").size(), 1);
}

TEST_F(LintTest, FindsThatThereAreNoPageSizes)
{
    QByteArrayList lines = fullPPD().split('\n');
    lines.removeIf(
        [](const QByteArray &line) { return line.startsWith("*PageSize ") || line.startsWith("*OpenUI *PageSize/"); });
    EXPECT_TRUE(found(lines.join('\n'), "page-size").contains("1: the PPD has no page sizes: no paper can be chosen"));
}

TEST_F(LintTest, HasAWrongPPDForEveryCheckThatCanFindOne)
{
    for (const PDECheck &check : value(host::checksFor({})))
        EXPECT_TRUE(check.name == "unchecked" || check.name == "no-bundle" ||
                    std::ranges::any_of(kWrongs, [&](const Wrong &row) { return check.name == row.check; }))
            << check.name.toStdString();
}

class RightPPD : public LintTest, public testing::WithParamInterface<const char *>
{};

/// Mirror and bi-directional print are in the examples to show what they do, and the places that are not applied are
/// there because such PPDs have them: these are the notes.
TEST_P(RightPPD, HasNotesAtMost)
{
    const auto linted = lint(contentOf(QString(QN_SOURCE_DIR "/examples/ppd/%1.ppd").arg(GetParam())));
    EXPECT_FALSE(hasFailed(linted, true)) << asLines(GetParam(), linted).toStdString();
    for (const PDEFinding &each : linted.findings)
        EXPECT_TRUE(each.check == "never-shown" || each.check == "origin-unused") << each.message.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Examples, RightPPD, testing::Values("full", "reduced", "japanese"));

TEST_F(LintTest, SaysOfAPrinterOfAnotherKindNothingThatOnlyThePanelsOptionsNeed)
{
    QByteArrayList kept;
    bool isOption = false;
    for (const QByteArray &line : fullPPD().split('\n')) {
        isOption = isOption || line.startsWith("*OpenUI *Qn");
        if (!isOption && !line.startsWith("*Qn") && !line.startsWith("*UIConstraints"))
            kept.append(line);
        isOption = isOption && !line.startsWith("*CloseUI");
    }
    QByteArray content = kept.join('\n');
    content.replace("*CustomQnPaperFeed", "*% ").replace("*ParamCustomQnPaperFeed", "*% ");
    EXPECT_EQ(asLines("other.ppd", lint(content)), "");
}

/// The examples that are shown to people do what is said of them.
class Example : public LintTest, public testing::WithParamInterface<QString>
{
protected:
    static PDECheck checkOf(const QString &name)
    {
        for (const PDECheck &each : value(host::checksFor({})))
            if (each.name == name)
                return each;
        throw std::runtime_error(name.toStdString());
    }
};

TEST_P(Example, OfACheckIsFoundWhereItIsBadOnly)
{
    const PDECheck check = checkOf(GetParam());
    QByteArray good = fullPPD();
    QByteArray bad = good;
    if (check.good.isEmpty() || !good.contains(check.good.toUtf8())) {
        good += check.good.toUtf8() + '\n';
        bad += check.bad.toUtf8() + '\n';
    } else {
        bad = edited(good, check.good.toUtf8(), check.bad.toUtf8());
    }
    EXPECT_FALSE(found(bad, check.name).isEmpty()) << check.bad.toStdString();
    if (check.good.isEmpty())
        return; // it is found wherever the option is
    EXPECT_EQ(found(good, check.name), QStringList());
}

/// Asked before there is an application, by whose place bundles are found.
std::vector<QString> checksWithExamples()
{
    std::vector<QString> names;
    for (const PDECheck &each : value(host::checksFor({.bundle = QN_BUNDLE_DIR})))
        // Those two only tell, and the third one is about a bundle of another name.
        if (each.name != "unchecked" && each.name != "no-bundle" && each.name != "extension")
            names.push_back(each.name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Of, Example, testing::ValuesIn(checksWithExamples()),
                         [](const auto &row) { return QString(row.param).replace('-', '_').toStdString(); });

} // namespace
