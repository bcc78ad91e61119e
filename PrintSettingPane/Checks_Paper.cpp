// Checks of papers: their names, their limits, the amount that is fed behind them; and of what nobody may see.
#include "Checks.h"

#include "FeedUnits.h"

#include "Printing/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace checks {

namespace {

/// How the known names of a kind of paper begin.
constexpr std::array kKindWords{"perf", "roll", "continuous", "retract"};

QString nameOf(const paper::NamedPaper &known)
{
    return QString::fromUtf16(known.name.data(), static_cast<qsizetype>(known.name.size()));
}

bool isKnown(const QString &name)
{
    return std::ranges::any_of(paper::kPapers, [&](const auto &known) { return name == nameOf(known); });
}

/// The known name that another one is meant for; empty when it looks like none. Short names differ by one letter from
/// many that are papers of their own.
QString knownLike(const QString &name)
{
    constexpr qsizetype kShort = 5;
    for (const auto &known : paper::kPapers) {
        const QString other = nameOf(known);
        if (name.compare(other, Qt::CaseInsensitive) == 0)
            return other;
        if (other.size() >= kShort && foundation::editDistance(name.toLower(), other.toLower()) <= 1)
            return other;
    }
    return {};
}

} // namespace

void findPaperNames(File &file)
{
    for (const PDEStatement &each : file.statements()) {
        const QString name = QString::fromUtf8(each.option);
        if (each.keyword != "PageSize" || name.isEmpty() || name.size() > PPD_MAX_NAME || isKnown(name))
            continue;
        const QString like = knownLike(name);
        const bool isOfAKind = std::ranges::any_of(
            kKindWords, [&](const char *word) { return name.startsWith(word, Qt::CaseInsensitive); });
        if (like.isEmpty() && !isOfAKind)
            continue;
        const QString meant = like.isEmpty() ? QString() : QString(" (%1 is)").arg(like);
        file.add(kPaperName, each.line,
                 QString("%1 is no paper that the panels know%2: it counts as an own size, and the printer is told "
                         "QnCustomSize")
                     .arg(name, meant),
                 "PageSize");
    }
}

namespace {

constexpr auto kFeed = "QnPaperFeed";
constexpr auto kMillimetreParameter = "mm";
constexpr auto kCustomKeyword = "CustomQnPaperFeed";

struct Range
{
    double least;
    double most;
};

/// Nil when it is missing or no real number; that is then found.
std::optional<Range> rangeOf(ppd_coption_t &custom, const char *name, File &file)
{
    const ppd_cparam_t *const parameter = ppdFindCustomParam(&custom, name);
    if (parameter && parameter->type == PPD_CUSTOM_REAL)
        return Range{parameter->minimum.custom_real, parameter->maximum.custom_real};
    file.add(kFeedCustom, file.lineOf(kCustomKeyword, kFeed),
             QString(parameter ? "the parameter %1 of %2 is not real: %3" : "the parameter %1 of %2 is missing: %3")
                 .arg(name, kFeed,
                      qstrcmp(name, kFeed) == 0 ? "the amount reaches neither the page nor the preview"
                                                : "every amount is beyond the limit, and refused"),
             kFeed);
    return std::nullopt;
}

/// Says what is wrong with one range; the amount of the beginning has to be in it. Whether nothing is.
bool isRight(const char *name, const Range &range, const paper::FeedUnit &unit, File &file)
{
    const int line = file.lineOfChoice("ParamCustomQnPaperFeed", name);
    const QString limits = QString("%1 to %2 %3").arg(range.least).arg(range.most).arg(unit.label);
    if (!std::isfinite(range.least) || !std::isfinite(range.most))
        file.add(kFeedCustom, line, QString("the range %1 is not between two numbers").arg(limits), kFeed);
    else if (range.most <= 0 || range.most < range.least)
        file.add(kFeedCustom, line, QString("the range %1 holds no amount: each one is refused").arg(limits), kFeed);
    else if (unit.initial < range.least || unit.initial > range.most)
        file.add(kFeedCustom, line,
                 QString("the range %1 leaves out %2 %3, with which the panel begins: it is refused")
                     .arg(limits)
                     .arg(unit.initial)
                     .arg(unit.label),
                 kFeed);
    else
        return true;
    return false;
}

void findInParameters(ppd_coption_t &custom, File &file)
{
    constexpr double kTolerance = 1; // mm
    const ppd_cparam_t *const first = ppdFirstCustomParam(&custom);
    if (first && qstrcmp(first->name, kFeed) != 0)
        file.add(kFeedCustom, file.lineOfChoice("ParamCustomQnPaperFeed", first->name),
                 QString("the first parameter of %1 is %2 and not %1: inches are held against its range")
                     .arg(kFeed, QString::fromUtf8(first->name)),
                 kFeed);
    const auto inches = rangeOf(custom, kFeed, file);
    const auto millimetres = rangeOf(custom, kMillimetreParameter, file);
    const bool areInchesRight = inches && isRight(kFeed, *inches, paper::kInches, file);
    const bool areMillimetresRight =
        millimetres && isRight(kMillimetreParameter, *millimetres, paper::kMillimetres, file);
    if (!areInchesRight || !areMillimetresRight)
        return;
    const auto differs = [](double inch, double mm) {
        return std::abs(inch * printing::kMillimetresPerInch - mm) > kTolerance;
    };
    if (differs(inches->least, millimetres->least) || differs(inches->most, millimetres->most))
        file.add(kFeedCustom, file.lineOfChoice("ParamCustomQnPaperFeed", kMillimetreParameter),
                 QString("%1 to %2 mm is not %3 to %4 inches: amounts between the two can be typed and are not marked")
                     .arg(millimetres->least)
                     .arg(millimetres->most)
                     .arg(inches->least)
                     .arg(inches->most),
                 kFeed);
}

} // namespace

void findFeedCustom(File &file)
{
    ppd_option_t *const option = ppdFindOption(file.ppd(), kFeed);
    if (!file.option(kFeed))
        return;
    // The parameters alone make one for the library, and then no choice that could be marked.
    ppd_coption_t *const custom = ppdFindCustomOption(file.ppd(), kFeed);
    if (custom && ppdFindChoice(option, "Custom"))
        findInParameters(*custom, file);
    else
        file.add(kFeedCustom, file.lineOf(kCustomKeyword, kFeed),
                 QString("%1 has no custom option, *%2 True: no amount can be marked").arg(kFeed, kCustomKeyword),
                 kFeed);
}

namespace {

struct SideRow
{
    const char *parameter;
    const char *attribute;
    int index; // into the library's limits
};
constexpr std::array kSides{SideRow{"Width", "MaxMediaWidth", 0}, SideRow{"Height", "MaxMediaHeight", 1}};

void findInSide(const SideRow &side, File &file)
{
    const ppd_file_t &ppd = *file.ppd();
    const double least = static_cast<double>(ppd.custom_min[side.index]);
    const double most = static_cast<double>(ppd.custom_max[side.index]);
    const int line = file.lineOfChoice("ParamCustomPageSize", side.parameter);
    const QString limits = QString("%1 from %2 to %3 points").arg(side.parameter).arg(least).arg(most);
    const bool hasLimits = std::ranges::any_of(file.statements(), [&](const PDEStatement &each) {
        return each.keyword == "ParamCustomPageSize" && each.option == side.parameter;
    });
    if (most <= 0 && !hasLimits)
        return file.add(
            kCustomSize, file.lineOf("CustomPageSize", "PageSize"),
            QString("*ParamCustomPageSize %1 is missing: no paper at all is printed on").arg(side.parameter),
            "PageSize");
    if (most <= 0 || most < least)
        return file.add(kCustomSize, line, QString("own sizes have a %1: no paper at all is printed on").arg(limits),
                        "PageSize");
    if (const auto stated = PDEUtilsMethod::ppdAttrValStr(file.ppd(), side.attribute);
        stated && std::abs(foundation::doubleValue(*stated) - most) >= 1)
        file.add(kCustomSize, file.lineOf(side.attribute, "PageSize"),
                 QString("%1 says %2, the limits of own sizes are another %3: the one that stands last counts")
                     .arg(side.attribute, *stated, limits),
                 "PageSize");
    for (const ppd_size_t &size : std::span(ppd.sizes, static_cast<std::size_t>(ppd.num_sizes))) {
        const double measure = static_cast<double>(side.index == 0 ? size.width : size.length);
        if (qstrcmp(size.name, "Custom") != 0 && measure > 0 && (measure < least || measure > most))
            file.add(kCustomSize, file.lineOfChoice("PageSize", size.name),
                     QString("%1 is %2 points, and own sizes have a %3: the panel refuses to print on it")
                         .arg(QString::fromUtf8(size.name))
                         .arg(measure)
                         .arg(limits),
                     "PageSize");
    }
}

} // namespace

void findCustomSizes(File &file)
{
    const auto variable = PDEUtilsMethod::ppdAttrValStr(file.ppd(), "VariablePaperSize");
    if (variable != "True")
        file.add(kCustomSize, file.lineOf("VariablePaperSize", "PageSize"),
                 "*VariablePaperSize is not True: no own size can be chosen", "PageSize");
    for (const SideRow &side : kSides)
        findInSide(side, file);
}

void findVersion(File &file)
{
    struct Row
    {
        const char *attribute;
        const char *consequence;
    };
    for (const Row &row : {Row{"FileVersion", "the panels and the summary show none"},
                           Row{"ModelName", "the summary does not say which printer it is"}})
        if (PDEUtilsMethod::ppdAttrValStr(file.ppd(), row.attribute).value_or(QString()).isEmpty())
            file.add(kVersion, file.lineOf(row.attribute, ""),
                     QString("*%1 is missing or empty: %2").arg(row.attribute, row.consequence));
}

void findNeverShown(File &file)
{
    struct Row
    {
        const char *option;
        const char *who;
    };
    for (const Row &row : {Row{"QnMirror", "is not shown on systems from 10.6 on"},
                           Row{"QnBiDiPrint", "stays grey unless the printer is on USB"}})
        if (file.option(row.option))
            file.add(kNeverShown, file.lineOfOption(row.option), QString("%1 %2").arg(row.option, row.who), row.option);
}

} // namespace checks
