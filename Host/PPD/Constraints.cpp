// Which options hang together. Groups are trees: each option leads to another one of its group, the last to itself.
#include "Constraints.h"

#include <span>

namespace host {

Constraints::Constraints(const PPDDocument &document)
    : m_document(document)
{
    readPairs();
    readAttributes();
}

void Constraints::readPairs()
{
    ppd_file_t *const ppd = m_document.file();
    for (const ppd_const_t &each : std::span(ppd->consts, static_cast<std::size_t>(ppd->num_consts)))
        join(ppdFindOption(ppd, each.option1), ppdFindOption(ppd, each.option2));
    m_count += ppd->num_consts;
}

/// Of the form "*Option Choice *Option Choice …".
void Constraints::readAttributes()
{
    ppd_file_t *const ppd = m_document.file();
    const char *const name = "cupsUIConstraints";
    for (const ppd_attr_t *each = ppdFindAttr(ppd, name, nullptr); each; each = ppdFindNextAttr(ppd, name, nullptr)) {
        const ppd_option_t *first = nullptr;
        for (const QByteArray &word : QByteArray(each->value).split(' ')) {
            const ppd_option_t *const option =
                word.startsWith('*') ? ppdFindOption(ppd, word.constData() + 1) : nullptr;
            join(first ? first : option, option);
            first = first ? first : option;
        }
        ++m_count;
    }
}

const ppd_option_t *Constraints::groupOf(const ppd_option_t *option) const
{
    const ppd_option_t *next = m_next.value(option);
    while (next != option) {
        option = next;
        next = m_next.value(option);
    }
    return option;
}

void Constraints::join(const ppd_option_t *one, const ppd_option_t *other)
{
    if (!one || !other)
        return;
    for (const ppd_option_t *each : {one, other})
        if (!m_next.contains(each))
            m_next[each] = each;
    const ppd_option_t *const group = groupOf(one);
    m_next[groupOf(other)] = group;
    m_next[other] = group;
}

const ppd_option_t *Constraints::onlyGroupInConflict() const
{
    const ppd_option_t *only = nullptr;
    for (const auto &[option, next] : m_next.asKeyValueRange()) {
        if (!option->conflicted)
            continue;
        const ppd_option_t *const group = groupOf(option);
        if (only && only != group)
            return nullptr;
        only = group;
    }
    return only;
}

QByteArray Constraints::marksOfGroup(const ppd_option_t *group, const ppd_option_t *asked) const
{
    QByteArray marks;
    for (const ppd_option_t *option : m_document.options()) {
        if (!m_next.contains(option) || groupOf(option) != group)
            continue;
        const ppd_choice_t *const choice = ppdFindMarkedChoice(m_document.file(), option->keyword);
        marks += QByteArray(option == asked ? "!" : " ") + (choice ? choice->choice : "");
    }
    return marks;
}

} // namespace host
