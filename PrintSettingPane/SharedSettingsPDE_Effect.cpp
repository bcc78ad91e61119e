// What the marked choices do to a printed page. Items count by position, as everywhere in the panels.
#include "SharedSettingsPDE.h"

#include "Printing/Units.h"

#include <cmath>

namespace {

constexpr auto kAmount = "QnPaperFeed"; // the option, and its parameter of inches

constexpr std::array kMethods{PDEPrintEffect::Halftone::binary, PDEPrintEffect::Halftone::dither,
                              PDEPrintEffect::Halftone::diffusion};

/// Inches are marked with six decimals, in single precision: an amount typed in millimetres is itself again.
double millimetres(double inches)
{
    constexpr double kSteps = 10'000;
    return std::round(inches * printing::kMillimetresPerInch * kSteps) / kSteps;
}

} // namespace

/// -1 when the PPD lacks the option, and when none of its choices is marked.
std::int64_t SharedSettingsPDE::markedIndex(OptionId id)
{
    const auto fields = fieldsOf(id);
    return fields && fields->choices ? indexOfMarkedOption(fields->choices, optionRow(id).keyword) : -1;
}

float SharedSettingsPDE::markedInches(const ppd_cparam_t &parameter) const
{
    const float inches = parameter.current.custom_real;
    return mRefusedFeed && mRefusedFeed->written == inches ? mRefusedFeed->marked : inches;
}

/// Nil unless an amount is marked, and the form feed and the paper let it count.
std::optional<double> SharedSettingsPDE::markedFeed()
{
    const auto name = readPaperName();
    const QStringView paperName(name ? *name : QString());
    const auto group =
        paper::groupOf(std::u16string_view(paperName.utf16(), static_cast<std::size_t>(paperName.size())));
    const bool feedsByAmount = !mFormFeedMode_Choices || markedIndex(OptionId::formFeedMode) == 0;
    if (!feedsByAmount || !paper::holds(paper::availability(group).feedAmount, 0, 0))
        return std::nullopt;
    const ppd_choice_t *const marked = ppd ? ppdFindMarkedChoice(ppd, kAmount) : nullptr;
    ppd_coption_t *const custom = ppd ? ppdFindCustomOption(ppd, kAmount) : nullptr;
    const ppd_cparam_t *const amount = custom ? ppdFindCustomParam(custom, kAmount) : nullptr;
    if (!marked || !amount || amount->type != PPD_CUSTOM_REAL || qstrcmp(marked->choice, "Custom") != 0)
        return std::nullopt;
    return millimetres(static_cast<double>(markedInches(*amount)));
}

std::optional<PDEPrintEffect> SharedSettingsPDE::printEffect()
{
    PDEPrintEffect effect;
    const auto method = markedIndex(OptionId::halftone);
    if (method >= 0 && method < std::ssize(kMethods))
        effect.halftone = kMethods[static_cast<std::size_t>(method)];
    effect.reversed = markedIndex(OptionId::reversal) == 1;
    effect.mirrored = markedIndex(OptionId::mirror) == 1;
    effect.perforated = markedIndex(OptionId::perforated) == 1;
    effect.feed = markedFeed();
    return effect;
}
