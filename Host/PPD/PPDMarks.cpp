// Marking choices and resolving constraints. The library keeps custom values in its own parameters, which panels write
// as well and which lose digits: those asked for are kept beside them.
#include "PPDMarks.h"

#include <cstring>
#include <utility>

namespace host {

namespace {

constexpr auto kPageRegion = "PageRegion";

/// Conflicts times constraints: beyond this the library looks for a way out for longer than a person waits, and where
/// so much conflicts there is hardly one. The choices stay then as they were made.
constexpr qint64 kMostToCompare = 1'500'000;

QString text(const char *bytes) { return QString::fromUtf8(bytes); }

} // namespace

PPDMarks::PPDMarks(PPDDocument &document)
    : m_document(document)
    , m_constraints(document)
{
    for (const ppd_option_t *option : m_document.options()) {
        m_declaredDefaults.emplace_back(option->defchoice);
        if (auto custom = CustomValue::fromText(text(option->defchoice)))
            m_customValues.insert(option, *std::move(custom));
    }
    ppdMarkDefaults(m_document.file());
}

void PPDMarks::adoptDefaults(const OptionValues &values)
{
    for (const auto &[keyword, value] : values.asKeyValueRange()) {
        ppd_option_t *const option = canBeDriverOption(keyword) ? m_document.option(keyword) : nullptr;
        const auto choice = option ? m_document.savedChoice(*option, value) : std::nullopt;
        if (!choice)
            continue;
        qstrncpy(option->defchoice, choice->keyword.toUtf8().constData(), sizeof(option->defchoice));
        markOne(*option, *choice);
    }
}

PPDMarks::Effect PPDMarks::restore(const OptionValues &values)
{
    const Keywords before = keywords();
    for (std::size_t i = 0; i < m_document.options().size(); ++i) {
        ppd_option_t &option = *m_document.options()[i];
        if (std::strcmp(option.keyword, kPageRegion) == 0) // marking it would take the mark off the page size
            continue;
        const auto saved = m_document.savedChoice(option, values.value(text(option.keyword)));
        markOne(option, saved.value_or(ChoiceValue::fromText(text(m_declaredDefaults[i]))));
    }
    auto moved = resolveConflicts(nullptr, {});
    return {changesSince(before, nullptr), std::move(moved)};
}

std::optional<PPDMarks::Effect> PPDMarks::mark(const QString &keyword, const QString &choice)
{
    ppd_option_t *const option = m_document.option(keyword);
    const auto value = option ? m_document.choice(*option, choice) : std::nullopt;
    return value ? std::optional(apply(*option, *value)) : std::nullopt;
}

std::optional<PPDMarks::Effect> PPDMarks::markCustomPageSize(const printing::Paper &size)
{
    ppd_option_t *const option = m_document.option(kPageSize);
    if (!option || !m_document.customSizeLimits())
        return std::nullopt;
    return apply(*option, ChoiceValue::ofCustom(CustomValue(size)));
}

PPDMarks::Effect PPDMarks::apply(ppd_option_t &option, const ChoiceValue &choice)
{
    const Keywords before = keywords();
    markOne(option, choice);
    auto moved = resolveConflicts(&option, choice);
    return {changesSince(before, &option), std::move(moved)};
}

void PPDMarks::markOne(ppd_option_t &option, const ChoiceValue &choice)
{
    if (choice.custom)
        m_customValues.insert(&option, *choice.custom);
    // One choice an option is all that a job can say: of many, the library would leave the earlier ones marked.
    const ppd_ui_t kind = std::exchange(option.ui, PPD_UI_PICKONE);
    ppdMarkOption(m_document.file(), option.keyword, choice.text().toUtf8().constData());
    option.ui = kind;
}

/// Without an option asked for, every choice may be moved.
std::vector<PPDMarks::Move> PPDMarks::resolveConflicts(const ppd_option_t *asked, const ChoiceValue &choice)
{
    const int conflicts = ppdConflicts(m_document.file());
    if (conflicts == 0 || qint64{conflicts} * m_constraints.count() > kMostToCompare || isHopeless(asked))
        return {};
    std::vector<Move> moves;
    printing::CupsOptions resolved;
    const QByteArray favoured = choice.text().toUtf8();
    if (!printing::resolveConflicts(m_document.file(), asked ? asked->keyword : nullptr,
                                    asked ? favoured.constData() : nullptr, resolved)) {
        noteHopeless(asked);
        return {};
    }
    for (const cups_option_t &each : resolved) {
        ppd_option_t *const moved = ppdFindOption(m_document.file(), each.name);
        if (!moved || moved == asked)
            continue;
        const Choice before{text(moved->keyword), text(markedKeyword(*moved))};
        markOne(*moved, ChoiceValue::fromText(text(each.value)));
        if (before.choice != markedKeyword(*moved))
            moves.push_back({before, causeOf(before, asked)});
    }
    return moves;
}

/// Resolving fails as a whole when the choices of one group can't agree, and what is marked in other groups has no part
/// in it.
bool PPDMarks::isHopeless(const ppd_option_t *asked) const
{
    return m_hopelessGroup && m_hopelessMarks == m_constraints.marksOfGroup(m_hopelessGroup, asked);
}

void PPDMarks::noteHopeless(const ppd_option_t *asked)
{
    m_hopelessGroup = m_constraints.onlyGroupInConflict();
    if (m_hopelessGroup)
        m_hopelessMarks = m_constraints.marksOfGroup(m_hopelessGroup, asked);
}

/// The choice that now forbids another one; the one asked for before others.
PPDMarks::Choice PPDMarks::causeOf(const Choice &moved, const ppd_option_t *asked) const
{
    printing::CupsOptions conflicts;
    printing::conflictsOf(m_document.file(), moved.keyword.toUtf8().constData(), moved.choice.toUtf8().constData(),
                          conflicts);
    Choice cause;
    for (const cups_option_t &each : conflicts)
        if (moved.keyword != each.name &&
            (cause.keyword.isEmpty() || (asked && qstrcmp(asked->keyword, each.name) == 0)))
            cause = {text(each.name), text(each.value)};
    return cause;
}

const char *PPDMarks::markedKeyword(const ppd_option_t &option) const
{
    const ppd_choice_t *const choice = ppdFindMarkedChoice(m_document.file(), option.keyword);
    return choice ? choice->choice : "";
}

ChoiceValue PPDMarks::marked(const ppd_option_t &option) const
{
    const QString keyword = text(markedKeyword(option));
    const auto custom = m_customValues.constFind(&option);
    return keyword == kCustomChoice && custom != m_customValues.cend() ? ChoiceValue::ofCustom(*custom)
                                                                       : ChoiceValue{keyword};
}

PPDMarks::Keywords PPDMarks::keywords() const
{
    Keywords result;
    result.reserve(m_document.options().size());
    for (const ppd_option_t *option : m_document.options())
        result.emplace_back(markedKeyword(*option));
    return result;
}

std::vector<PPDMarks::Choice> PPDMarks::changesSince(const Keywords &before, const ppd_option_t *first) const
{
    const Keywords after = keywords();
    std::vector<Choice> changes;
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (before[i] == after[i])
            continue;
        const ppd_option_t *const option = m_document.options()[i];
        changes.insert(option == first ? changes.begin() : changes.end(), {text(option->keyword), text(after[i])});
    }
    return changes;
}

OptionValues PPDMarks::all() const
{
    OptionValues values;
    for (const ppd_option_t *option : m_document.options())
        if (const ChoiceValue choice = marked(*option); !choice.keyword.isEmpty())
            values.insert(text(option->keyword), choice.custom && !m_document.customText(*option)
                                                     ? choice.custom->shortText()
                                                     : choice.text());
    return values;
}

OptionValues PPDMarks::forJob() const
{
    OptionValues values;
    for (std::size_t i = 0; i < m_document.options().size(); ++i) {
        const ppd_option_t &option = *m_document.options()[i];
        const ChoiceValue choice = marked(option);
        const bool isPageSize = std::strcmp(option.keyword, kPageSize) == 0;
        const bool isText = choice.custom && m_document.customText(option); // of whatever default, it is another
        const bool isSaid = isPageSize || isText || m_declaredDefaults[i] != choice.keyword.toUtf8();
        if (!choice.keyword.isEmpty() && isSaid && canBeDriverOption(text(option.keyword)))
            values.insert(text(option.keyword), choice.text());
    }
    return values;
}

QString PPDMarks::valueOf(const QString &keyword) const
{
    const ppd_option_t *const option = m_document.option(keyword);
    return option ? marked(*option).text() : QString();
}

QString PPDMarks::choiceOf(const QString &keyword) const
{
    const ppd_option_t *const option = m_document.option(keyword);
    return option ? text(markedKeyword(*option)) : QString();
}

std::optional<printing::Paper> PPDMarks::customPageSize() const
{
    const ppd_option_t *const option = m_document.option(kPageSize);
    const auto custom = option ? marked(*option).custom : std::nullopt;
    return custom ? custom->size() : std::nullopt;
}

} // namespace host
