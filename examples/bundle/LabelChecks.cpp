// A check is a row, which people read by `--explain`, and a function that finds. A PPD without any option of the panel
// is some other printer's, of which there is nothing to say.
#include "LabelChecks.h"

#include <algorithm>
#include <array>

namespace {

constexpr auto kMedia = "LbMedia";
constexpr auto kTearOff = "LbTearOff";
constexpr std::array kOptions{kMedia, "LbDarkness", "LbSpeed", kTearOff, "LbLabels"};

int lineOf(const PDECheckedPPD &ppd, QByteArrayView keyword)
{
    const auto found = std::ranges::find(ppd.statements, keyword, &PDEStatement::keyword);
    return found == ppd.statements.end() ? 1 : found->line;
}

/// The panel looks for the choice by its keyword: without it, the tear-off offset is never closed.
std::vector<PDEFinding> findContinuous(const PDECheckedPPD &ppd)
{
    ppd_option_t *const media = ppdFindOption(ppd.file, kMedia);
    if (!media || ppdFindChoice(media, "Continuous"))
        return {};
    return {{lineOf(ppd, "DefaultLbMedia"), "continuous-media",
             "LbMedia has no choice Continuous: the tear-off offset stays open on every media", kMedia}};
}

/// Millimetres are typed, so the parameter has to be a real number.
std::vector<PDEFinding> findTearOff(const PDECheckedPPD &ppd)
{
    if (!ppdFindOption(ppd.file, kTearOff))
        return {};
    const ppd_coption_t *const custom = ppdFindCustomOption(ppd.file, kTearOff);
    const auto *const offset = custom ? static_cast<const ppd_cparam_t *>(cupsArrayFirst(custom->params)) : nullptr;
    if (offset && offset->type == PPD_CUSTOM_REAL)
        return {};
    return {{lineOf(ppd, custom ? "ParamCustomLbTearOff" : "LbTearOff"), "tear-off-custom",
             "LbTearOff has no custom option with a real number: no offset can be typed", kTearOff}};
}

/// "LbDarknes"
std::vector<PDEFinding> findUnknown(const PDECheckedPPD &ppd)
{
    std::vector<PDEFinding> findings;
    for (const PDEStatement &each : ppd.statements) {
        if (each.keyword != "OpenUI")
            continue;
        QByteArray option = each.option.toByteArray();
        option = option.mid(option.startsWith('*') ? 1 : 0).split('/').first();
        const bool isOurs = std::ranges::any_of(kOptions, [&](const char *known) { return option == known; });
        if (option.startsWith("Lb") && !isOurs)
            findings.push_back(
                {each.line, "unknown-option", option + " is read by no panel, and shown nowhere", option});
    }
    return findings;
}

struct Row
{
    PDECheck check;
    std::vector<PDEFinding> (*find)(const PDECheckedPPD &ppd);
};

const std::array<Row, 3> &rows()
{
    static const std::array<Row, 3> kRows{{
        {{"continuous-media", PDESeverity::error, "A choice Continuous of LbMedia.",
          "On continuous media nothing ends a label, and the panel closes the tear-off offset.",
          "*LbMedia Continuous/Continuous: \"\"", "*LbMedia Endless/Continuous: \"\""},
         findContinuous},
        {{"tear-off-custom", PDESeverity::error, "For LbTearOff a custom option with a real number, in millimetres.",
          "Without it, no offset can be typed.", "*ParamCustomLbTearOff Offset/Millimetres: 1 real -5 20",
          "*ParamCustomLbTearOff Offset/Millimetres: 1 int -5 20"},
         findTearOff},
        {{"unknown-option", PDESeverity::warning, "Options that begin with Lb and that no panel reads.",
          "They are shown nowhere; mostly they are misspelt.", "*OpenUI *LbSpeed/Speed: PickOne",
          "*OpenUI *LbSpeeed/Speed: PickOne"},
         findUnknown},
    }};
    return kRows;
}

class LabelChecks final : public PDEChecks
{
public:
    std::vector<PDECheck> checks() const override
    {
        std::vector<PDECheck> all;
        for (const Row &row : rows())
            all.push_back(row.check);
        return all;
    }
    std::vector<PDEFinding> findings(const PDECheckedPPD &ppd) const override
    {
        std::vector<PDEFinding> all;
        for (const Row &row : rows())
            std::ranges::move(row.find(ppd), std::back_inserter(all));
        return all;
    }
    std::vector<PDEOptionControl> controls() const override
    {
        return {{"label", "mediaMenu", kMedia, true},
                {"label", "darknessMenu", "LbDarkness"},
                {"label", "speedMenu", "LbSpeed"}};
    }
};

} // namespace

const PDEChecks &labelChecks()
{
    static const LabelChecks kChecks;
    return kChecks;
}
