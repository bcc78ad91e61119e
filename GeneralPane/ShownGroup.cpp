// Which options, and as what: tables, and what applies them.
#include "ShownGroup.h"

#include "PPDTexts.h"

#include "Printing/ServerWords.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace {

constexpr auto kInstalled = "InstallableOptions"; // group of what the printer is fitted with
constexpr auto kCustom = "Custom";

/// The dialog has a field of its own for these, or orders copies itself.
constexpr std::array kOptionsOfTheDialog{"PageSize", "PageRegion", "Collate"};

/// Two choices of which one is the other's negation.
constexpr std::array<std::pair<const char *, const char *>, 5> kOffAndOn{
    {{"False", "True"}, {"Off", "On"}, {"No", "Yes"}, {"Disabled", "Enabled"}, {"Disable", "Enable"}}};

bool isSame(const QString &one, const char *other)
{
    return one.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
}

/// A keyword that stands in place of a text reads like one only when it is a plain word: "Duplex", not "xxRIPMode2".
bool hasText(const ppd_option_t &option)
{
    const QString text = QString::fromUtf8(option.text).trimmed();
    if (text != QString::fromUtf8(option.keyword))
        return !text.isEmpty();
    return !text.isEmpty() && text.front().isUpper() &&
           std::ranges::all_of(text.sliced(1), [](QChar letter) { return letter.isLower(); });
}

bool isOfTheSystem(const QString &keyword)
{
    return printing::isWordOfServers(keyword) ||
           std::ranges::any_of(kOptionsOfTheDialog, [&](const char *each) { return isSame(keyword, each); });
}

/// A custom choice can't be made that stands for something which can't be entered.
std::vector<ShownChoice> choicesOf(ppd_file_t &ppd, const ppd_option_t &option, bool hasEntry, const PPDTexts &texts)
{
    const bool leavesCustomOut = !hasEntry && ppdFindCustomOption(&ppd, option.keyword);
    std::vector<ShownChoice> choices;
    for (int i = 0; i < option.num_choices; ++i) {
        const ppd_choice_t &choice = option.choices[i];
        const QString keyword = QString::fromUtf8(choice.choice);
        if (keyword != kCustom || !leavesCustomOut)
            choices.push_back({keyword, texts.choice(option, choice)});
    }
    return choices;
}

bool areOffAndOn(const ShownChoice &off, const ShownChoice &on)
{
    return std::ranges::any_of(kOffAndOn, [&](const auto &pair) {
        return isSame(off.keyword, pair.first) && isSame(on.keyword, pair.second);
    });
}

ShownOption shown(ppd_file_t &ppd, const ppd_option_t &option, const PPDTexts &texts)
{
    ShownOption result;
    result.keyword = QString::fromUtf8(option.keyword);
    result.title = texts.option(option);
    result.entry = CustomEntry::of(ppd, option, texts.bundle());
    result.choices = choicesOf(ppd, option, result.entry != nullptr, texts);
    if (option.ui == PPD_UI_PICKMANY)
        result.appearance = ShownOption::Appearance::list;
    if (result.choices.size() != 2 || result.entry)
        return result;
    if (areOffAndOn(result.choices[1], result.choices[0]))
        std::swap(result.choices[0], result.choices[1]);
    if (areOffAndOn(result.choices[0], result.choices[1]))
        result.appearance = ShownOption::Appearance::checkBox;
    return result;
}

void addOptions(const ppd_group_t &group, ppd_file_t &ppd, const PPDTexts &texts, const QString &heading,
                std::vector<ShownOption> &options)
{
    QString above = heading;
    for (int i = 0; i < group.num_options; ++i) {
        const ppd_option_t &option = group.options[i];
        if (!hasText(option) || isOfTheSystem(QString::fromUtf8(option.keyword)))
            continue;
        ShownOption each = shown(ppd, option, texts);
        if (each.choices.size() < 2)
            continue;
        each.heading = std::exchange(above, QString());
        options.push_back(std::move(each));
    }
    for (int i = 0; i < group.num_subgroups; ++i)
        addOptions(group.subgroups[i], ppd, texts, texts.group(group.subgroups[i]), options);
}

} // namespace

std::vector<ShownGroup> shownGroups(ppd_file_t &ppd, const PPDTexts &texts)
{
    std::vector<ShownGroup> groups;
    std::vector<ShownGroup> installed; // comes last
    for (int i = 0; i < ppd.num_groups; ++i) {
        const ppd_group_t &group = ppd.groups[i];
        ShownGroup each{QString::fromUtf8(group.name), texts.group(group), {}};
        addOptions(group, ppd, texts, {}, each.options);
        if (!each.options.empty())
            (each.name == kInstalled ? installed : groups).push_back(std::move(each));
    }
    std::ranges::move(installed, std::back_inserter(groups));
    return groups;
}
