// The table of the bundle's checks.
#include "Checks.h"

#include <algorithm>
#include <array>

namespace checks {

namespace {

struct CheckRow
{
    const char *name;
    PDESeverity severity;
    const char *looksFor;
    const char *why;
    const char *good;
    const char *bad;
    void (*find)(File &file);
};

constexpr std::array kRows{
    CheckRow{
        kHiddenFlag, PDESeverity::warning,
        "For each option its hidden flag, once, with the value \"False\", letter for letter; QnRollPrinterCaseHidden "
        "has no \"Obj\" in its name.",
        "The control stays grey, whatever the option offers.", "*QnMediaObjHidden: \"False\"",
        "*QnMediaObjHidden: \"false\"", findHiddenFlags},
    CheckRow{kOffFirst, PDESeverity::error,
             "For each check box two choices, off first and on second; a default that is on is called ON.",
             "The box goes by position: checked it marks what means off, or shows off while on is the default.",
             "*QnReversal OFF/Off: \"<</QnReversal(OFF)>>setpagedevice\"\n"
             "*QnReversal ON/On: \"<</QnReversal(ON)>>setpagedevice\"",
             "*QnReversal ON/On: \"<</QnReversal(ON)>>setpagedevice\"\n"
             "*QnReversal OFF/Off: \"<</QnReversal(OFF)>>setpagedevice\"",
             findOffFirst},
    CheckRow{kChoiceCount, PDESeverity::error,
             "Four choices of form feed and three of halftone; up to 12 of density, 5 of speed, 4 of the roll printer "
             "case.",
             "Rules and rows go by position: without a place there a choice can't be picked, or means another one.",
             "*QnFormFeedMode FF3/Retract Paper: \"<</QnFormFeedMode(FF3)>>setpagedevice\"\n", "", findChoiceCounts},
    CheckRow{
        kChoiceOrder, PDESeverity::error,
        "Form feed: none, fixed page length, end of page, retract. Halftone: binary, dither, error diffusion; by "
        "keywords and texts. Numbers at the end of keywords of form feed, density and speed that count upward.",
        "The panels know these choices by their position: the paper allows another one than it says, and the fixed "
        "titles are another's.",
        "*QnHalftonePattern Binary/Binary: \"<</QnHalftonePattern(Binary)>>setpagedevice\"\n"
        "*QnHalftonePattern Dither/Dither: \"<</QnHalftonePattern(Dither)>>setpagedevice\"",
        "*QnHalftonePattern Dither/Dither: \"<</QnHalftonePattern(Dither)>>setpagedevice\"\n"
        "*QnHalftonePattern Binary/Binary: \"<</QnHalftonePattern(Binary)>>setpagedevice\"",
        findChoiceOrder},
    CheckRow{
        kFixedItems, PDESeverity::warning,
        "As many choices as a menu has items of its own: 12 of density, 5 of speed, 4 of the roll printer case, 2 of "
        "media and of perforation.",
        "The menu keeps its own items behind the choices, and picking one of these does nothing.",
        "*QnRollPrinterCase OnNoAntiCurl/Used, without Anti-Curl: "
        "\"<</QnRollPrinterCase(OnNoAntiCurl)>>setpagedevice\"\n",
        "", findFixedItems},
    CheckRow{
        kSizeType, PDESeverity::error,
        "The option QnPaperSizeType with the choices QnCutSize, QnPerforatedSize, QnRollSize, QnInfiniteSize, "
        "QnPerforatedRetractSize and QnCustomSize.",
        "The kind of paper is marked by these names: without one the printer is told the kind of the paper before.",
        "*QnPaperSizeType QnRollSize/Roll: \"<</QnPaperSizeType(QnRollSize)>>setpagedevice\"",
        "*QnPaperSizeType RollSize/Roll: \"<</QnPaperSizeType(RollSize)>>setpagedevice\"", findSizeTypes},
    CheckRow{
        kPaperName, PDESeverity::warning, "Page sizes that are called nearly as one that the panels know.",
        "Every name that they do not know counts as an own size: form feed, perforation and QnPaperSizeType are those "
        "of an own size.",
        "*PageSize RollA4/A4, Roll: \"<</PageSize[595 842]/ImagingBBox null>>setpagedevice\"",
        "*PageSize rollA4/A4, Roll: \"<</PageSize[595 842]/ImagingBBox null>>setpagedevice\"", findPaperNames},
    CheckRow{kFeedCustom, PDESeverity::error,
             "For QnPaperFeed a custom option, CustomQnPaperFeed True, with the real parameters QnPaperFeed (inches, "
             "first in the file) and mm, "
             "whose ranges agree within 1 mm and hold 26 mm, 1 inch.",
             "The amount can't be typed, is refused, or is marked as another one.",
             "*ParamCustomQnPaperFeed mm/Millimetres: 2 real 1 51",
             "*ParamCustomQnPaperFeed mm/Millimetres: 2 int 1 51", findFeedCustom},
    CheckRow{kCustomSize, PDESeverity::error,
             "VariablePaperSize and the limits of own sizes, which hold each page size of the PPD and agree with "
             "MaxMediaWidth and MaxMediaHeight.",
             "The basic panel refuses to print on a paper beyond the limits, and without any on every paper.",
             "*ParamCustomPageSize Width: 1 points 72 612", "*ParamCustomPageSize Width: 1 points 72 600",
             findCustomSizes},
    CheckRow{
        kOrigin, PDESeverity::warning,
        "For each control that the PPD places, a point \"{x, y}\" from the lower left corner of a page of 520 x 336 "
        "that has room for it: QnPerforatedStrOrigin and QnPerforatedPopBtnOrigin for the title and the menu of "
        "perforation on the basic panel, QnMirrorChkBtnOrigin and QnBiDiPrintChkBtnOrigin for the boxes of the "
        "advanced one.",
        "Without one the control stands in the lower left corner; else over another one, or out of sight.",
        "*QnPerforatedPopBtnOrigin: \"{216, 164}\"", "*QnPerforatedPopBtnOrigin: \"{216, 120}\"", findOrigins},
    CheckRow{kOriginUnused, PDESeverity::note,
             "Places that are known and move no control that people see: not applied, or on a page that is not shown.",
             "Nothing: the control that people see stays where the interface file has it.", "",
             "*QnDensityStrOrigin: \"{16, 296}\"", findUnusedOrigins},
    CheckRow{kUnknownOption, PDESeverity::warning,
             "Qn keywords that no panel reads, and keywords of a PPD for the panels that are nearly one.",
             "No control shows the option, and the attribute does nothing.", "*QnSpeedObjHidden: \"False\"",
             "*QnSpedeObjHidden: \"False\"", findUnknownOptions},
    CheckRow{kVersion, PDESeverity::warning, "FileVersion and ModelName.",
             "The panels show the one, and the summary both: they stay empty.", "*FileVersion: \"1.5\"\n", "",
             findVersion},
    CheckRow{kNeverShown, PDESeverity::note,
             "Options that some people never see: mirror on systems from 10.6 on, bi-directional print without USB.",
             "Nothing, as long as the printer serves without them.", "", "*OpenUI *QnMirror/Mirror Image: PickOne",
             findNeverShown},
};

/// What the panels show by position. Speed and the halftone rows stand on one panel only.
constexpr std::array kControls{
    std::tuple{"basic", "mFormFeedModePopUp", OptionId::formFeedMode, true},
    std::tuple{"basic", "mPerforatedPopUp", OptionId::perforated, true},
    std::tuple{"basic", "mDensityPopUp", OptionId::density, false},
    std::tuple{"basic", "mMediaPopUp", OptionId::media, false},
    std::tuple{"basic", "mRollPrintPopUp", OptionId::rollPrint, false},
    std::tuple{"advanced", "mDensityPopUp", OptionId::density, false},
    std::tuple{"advanced", "mSpeedPopUp", OptionId::speed, false},
    std::tuple{"advanced", "mHalftoneRadio", OptionId::halftone, false},
    std::tuple{"advanced", "mReversalChkBx", OptionId::reversal, false},
    std::tuple{"advanced", "mMirrorChkBx", OptionId::mirror, false},
    std::tuple{"advanced", "mPerforatedChkBx", OptionId::perforated, false},
    std::tuple{"advanced", "mBiDiPrintChkBx", OptionId::biDiPrint, false},
};

class BundleChecks final : public PDEChecks
{
public:
    std::vector<PDECheck> checks() const override
    {
        std::vector<PDECheck> result;
        result.reserve(kRows.size());
        for (const CheckRow &row : kRows)
            result.push_back({row.name, row.severity, row.looksFor, row.why, row.good, row.bad});
        return result;
    }
    std::vector<PDEFinding> findings(const PDECheckedPPD &ppd) const override
    {
        File file(ppd);
        for (const CheckRow &row : kRows)
            row.find(file);
        return file.take();
    }
    std::vector<PDEOptionControl> controls() const override
    {
        std::vector<PDEOptionControl> result;
        result.reserve(kControls.size());
        for (const auto &[panel, control, option, leads] : kControls)
            result.push_back({panel, control, optionRow(option).keyword, leads});
        return result;
    }
};

} // namespace

const ppd_option_t *File::option(const char *keyword) const
{
    const ppd_option_t *const found = ppdFindOption(ppd(), keyword);
    return found && qstrcmp(found->keyword, keyword) == 0 ? found : nullptr;
}

std::vector<QByteArray> File::choices(const ppd_option_t &option) const
{
    std::vector<QByteArray> result;
    for (int i = 0; i < option.num_choices; ++i)
        if (qstrcmp(option.choices[i].choice, "Custom") != 0) // the library adds that one
            result.emplace_back(option.choices[i].choice);
    return result;
}

bool File::isForPanels() const
{
    return option(kSizeTypeOption) ||
           std::ranges::any_of(kOptionRows, [this](const OptionRow &row) { return option(row.keyword); });
}

const PDEStatement *File::first(QByteArrayView keyword) const
{
    const auto found = std::ranges::find(statements(), keyword, &PDEStatement::keyword);
    return found == statements().end() ? nullptr : &*found;
}

int File::lineOf(const char *attribute, const char *option) const
{
    const PDEStatement *const found = qstrcmp(attribute, option) == 0 ? nullptr : first(attribute);
    const QByteArray opened = QByteArray("*") + option;
    for (const PDEStatement &each : statements())
        if (!found && each.keyword == "OpenUI" && (each.option == opened || each.value == opened))
            return each.line;
    return found ? found->line : 1;
}

int File::lineOfChoice(const char *keyword, QByteArrayView choice) const
{
    for (const PDEStatement &each : statements())
        if (each.keyword == keyword && each.option == choice)
            return each.line;
    return lineOfOption(keyword);
}

void File::add(const char *check, int line, const QString &message, const char *option)
{
    m_findings.push_back({.line = line, .check = check, .message = message, .option = option});
}

void File::addIfContradicted(const char *check, const char *attribute, const char *option)
{
    const PDEStatement *const counts = first(attribute);
    for (const PDEStatement &each : statements())
        if (counts && each.keyword == attribute && each.value != counts->value)
            return add(check, each.line,
                       QString("%1 stands again, with another value: the one in line %2 counts")
                           .arg(attribute, QString::number(counts->line)),
                       option);
}

} // namespace checks

const PDEChecks &bundleChecks()
{
    static const checks::BundleChecks instance;
    return instance;
}
