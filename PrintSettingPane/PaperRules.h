// Which settings go with which kind of paper: tables, and the few functions that look things up in them.
// Both panels use them; no widgets here. FF n and PF n are the items of the form-feed and the perforated menu, always
// by position, F and P the selected ones.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace paper {

/// The kind of paper, known by the name of the paper size only.
enum class Group { plain, perforated, roll, continuous, retract, other };
inline constexpr std::size_t kGroups = 6;

struct NamedPaper
{
    std::u16string_view name;
    Group group;
};

inline constexpr std::array kPapers{
    NamedPaper{u"A4", Group::plain},
    NamedPaper{u"Legal", Group::plain},
    NamedPaper{u"Letter", Group::plain},
    NamedPaper{u"A5", Group::plain},
    NamedPaper{u"A5Rotated", Group::plain},
    NamedPaper{u"PerfLetter", Group::perforated},
    NamedPaper{u"PerfA4", Group::perforated},
    NamedPaper{u"PerfLegal", Group::perforated},
    NamedPaper{u"RollLetter", Group::roll},
    NamedPaper{u"RollA4", Group::roll},
    NamedPaper{u"RollLegal", Group::roll},
    NamedPaper{u"ContinuousLetter", Group::continuous},
    NamedPaper{u"RetractA4", Group::retract},
    NamedPaper{u"RetractLegal", Group::retract},
    NamedPaper{u"RetractLetter", Group::retract},
};

/// Exact, letter case included. A missing name is of the group other.
constexpr Group groupOf(std::optional<std::u16string_view> name)
{
    const auto *const found = name ? std::ranges::find(kPapers, *name, &NamedPaper::name) : kPapers.end();
    return found == kPapers.end() ? Group::other : found->group;
}

/// A size that the user defined. Where a person picks a form feed or a perforation it counts as roll paper, although
/// as a paper it belongs to the group other: two rules that nearly agree, and are kept apart on purpose.
inline constexpr std::u16string_view kUserDefinedPaper = u"customsize";

constexpr bool isRollOrUserDefined(std::optional<std::u16string_view> name)
{
    return groupOf(name) == Group::roll || name == kUserDefinedPaper;
}

/// The row of a group. Every table below has one row a group, in the order of the groups.
template <class Row>
constexpr const Row &rowOf(const std::array<Row, kGroups> &table, Group group)
{
    return table[static_cast<std::size_t>(group)];
}

template <class Row>
constexpr bool hasARowForEachGroup(const std::array<Row, kGroups> &table)
{
    return std::ranges::all_of(table, [&](const Row &row) { return &rowOf(table, row.group) == &row; });
}

/// When an item or a control is on.
enum class When { never, always, formFeed0, formFeed1, perforated0 };

constexpr bool holds(When when, int formFeed, int perforated)
{
    switch (when) {
    case When::never: return false;
    case When::always: return true;
    case When::formFeed0: return formFeed == 0;
    case When::formFeed1: return formFeed == 1;
    case When::perforated0: return perforated == 0;
    }
    return false;
}

/// When the check box of the advanced panel is on. The memo is the panels' matter.
enum class PerforatedBox { never, formFeed1, byMemo };

struct Availability
{
    Group group;
    std::array<When, 4> formFeed;   // FF 0 to FF 3
    std::array<When, 2> perforated; // PF 0 and PF 1
    When feedAmount;                // the amount entry of the basic panel
    PerforatedBox perforatedBox;
    const char *sizeType; // choice of QnPaperSizeType
};

namespace rows {
using enum Group;
using enum When;
using Box = PerforatedBox;
inline constexpr std::array<Availability, kGroups> kAvailability{{
    // clang-format off
    //            FF 0         FF 1    FF 2         FF 3      PF 0    PF 1       amount      box             size type
    {plain,      {always,      always, always,      never},  {always, never},     formFeed0, Box::never,     "QnCutSize"},
    {perforated, {never,       never,  always,      never},  {always, never},     never,     Box::never,     "QnPerforatedSize"},
    {roll,       {perforated0, always, never,       never},  {always, formFeed1}, formFeed0, Box::byMemo,    "QnRollSize"},
    {continuous, {always,      never,  never,       never},  {always, never},     always,    Box::never,     "QnInfiniteSize"},
    {retract,    {never,       never,  never,       always}, {always, never},     formFeed0, Box::never,     "QnPerforatedRetractSize"},
    {other,      {perforated0, always, perforated0, never},  {always, formFeed1}, formFeed0, Box::formFeed1, "QnCustomSize"},
    // clang-format on
}};
static_assert(hasARowForEachGroup(kAvailability));
} // namespace rows

constexpr const Availability &availability(Group group) { return rowOf(rows::kAvailability, group); }

/// How selections move away from what the paper does not allow.
struct Correction
{
    enum class If { is3, is2or3, isNot0, isNot2, isNot3 };
    enum class Item { nothing, PF1 };

    Group group;
    If wrong;     // about the selected form-feed item
    int formFeed; // the item selected instead
    Item enables; // together with that move
    Item clears;  // PF 1, where it is selected, becomes PF 0
};

constexpr bool holds(Correction::If condition, int formFeed)
{
    switch (condition) {
    case Correction::If::is3: return formFeed == 3;
    case Correction::If::is2or3: return formFeed == 2 || formFeed == 3;
    case Correction::If::isNot0: return formFeed != 0;
    case Correction::If::isNot2: return formFeed != 2;
    case Correction::If::isNot3: return formFeed != 3;
    }
    return false;
}

namespace rows {
using enum Correction::If;
using enum Correction::Item;
inline constexpr std::array<Correction, kGroups> kCorrections{{
    // clang-format off
    {.group = plain,      .wrong = is3,    .formFeed = 1, .enables = nothing, .clears = PF1},
    {.group = perforated, .wrong = isNot2, .formFeed = 2, .enables = nothing, .clears = PF1},
    {.group = roll,       .wrong = is2or3, .formFeed = 1, .enables = PF1,     .clears = nothing},
    {.group = continuous, .wrong = isNot0, .formFeed = 0, .enables = nothing, .clears = PF1},
    {.group = retract,    .wrong = isNot3, .formFeed = 3, .enables = PF1,     .clears = PF1}, // PF 1 is refused again when its menu opens
    {.group = other,      .wrong = is3,    .formFeed = 1, .enables = nothing, .clears = nothing},
    // clang-format on
}};
static_assert(hasARowForEachGroup(kCorrections));
} // namespace rows

constexpr const Correction &correction(Group group) { return rowOf(rows::kCorrections, group); }

/// One step of validating a menu item. A refusal ends the steps when it names the item that is asked about; disabling
/// is a side effect, whichever item that is.
struct MenuStep
{
    enum class Verb { disable, refuse };
    enum class Menu { formFeed, perforated };
    enum class If { always, formFeed0, formFeed0or2, perforated1 };

    Verb verb = Verb::disable;
    Menu menu = Menu::formFeed;
    int item = 0;
    If condition = If::always;
};

constexpr bool holds(MenuStep::If condition, int formFeed, int perforated)
{
    switch (condition) {
    case MenuStep::If::always: return true;
    case MenuStep::If::formFeed0: return formFeed == 0;
    case MenuStep::If::formFeed0or2: return formFeed == 0 || formFeed == 2;
    case MenuStep::If::perforated1: return perforated == 1;
    }
    return false;
}

struct MenuSteps
{
    Group group;
    std::span<const MenuStep> steps;
};

namespace rows {
using If = MenuStep::If;
constexpr MenuStep disableFF(int item, If condition = If::always)
{
    return {MenuStep::Verb::disable, MenuStep::Menu::formFeed, item, condition};
}
constexpr MenuStep refuseFF(int item) { return {MenuStep::Verb::refuse, MenuStep::Menu::formFeed, item}; }
constexpr MenuStep refusePF1(If condition = If::always)
{
    return {MenuStep::Verb::refuse, MenuStep::Menu::perforated, 1, condition};
}

inline constexpr std::array kPlainSteps{refuseFF(3), refusePF1()};
inline constexpr std::array kPerforatedSteps{disableFF(0), disableFF(1), refuseFF(3), refusePF1()};
inline constexpr std::array kRollSteps{disableFF(2), refuseFF(3), refusePF1(If::formFeed0),
                                       disableFF(0, If::perforated1)};
inline constexpr std::array kContinuousSteps{disableFF(1), disableFF(2), refuseFF(3), refusePF1()};
inline constexpr std::array kRetractSteps{disableFF(0), disableFF(1), disableFF(2), refusePF1()};
inline constexpr std::array kOtherSteps{refusePF1(If::formFeed0or2), disableFF(0, If::perforated1),
                                        disableFF(2, If::perforated1), refuseFF(3)};

inline constexpr std::array<MenuSteps, kGroups> kMenuSteps{{
    {plain, kPlainSteps},
    {perforated, kPerforatedSteps},
    {roll, kRollSteps},
    {continuous, kContinuousSteps},
    {retract, kRetractSteps},
    {other, kOtherSteps},
}};
static_assert(hasARowForEachGroup(kMenuSteps));
} // namespace rows

constexpr std::span<const MenuStep> menuSteps(Group group) { return rowOf(rows::kMenuSteps, group).steps; }

/// The form-feed item that a paper stands for where no menu says otherwise; nil: the marked one. The roll printer case
/// is saved by the same table, which is intended.
constexpr std::optional<int> formFeedWithoutMenu(Group group)
{
    switch (group) {
    case Group::perforated: return 2;
    case Group::retract: return 3;
    case Group::continuous: return 0;
    default: return std::nullopt;
    }
}

static_assert(groupOf(u"A4") == Group::plain && groupOf(u"a4") == Group::other);
static_assert(groupOf(std::nullopt) == Group::other && groupOf(kUserDefinedPaper) == Group::other);

} // namespace paper
