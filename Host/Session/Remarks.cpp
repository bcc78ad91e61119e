// What a person is told about choices that are not as they were made.
#include "Remarks.h"

namespace host {

Remarks::Remarks(const PPDDocument &ppd, const PPDMarks &marks, const OptionWords &words)
    : m_ppd(ppd)
    , m_marks(marks)
    , m_words(words)
{}

void Remarks::addPaper(const QString &paper, const OptionValues &moved)
{
    m_paper = paper;
    m_movedByPaper = moved;
}

QStringList Remarks::take()
{
    const QStringList remarks = ofPaper() + ofMoves() + ofExpected();
    m_movedByPaper.clear();
    m_moves.clear();
    m_expected.clear();
    return remarks;
}

QStringList Remarks::ofPaper() const
{
    QStringList moved;
    for (const auto &[keyword, value] : m_movedByPaper.asKeyValueRange())
        moved.append(m_words.both(keyword, ChoiceValue::fromText(value)));
    if (moved.isEmpty())
        return {};
    return {tr("%1 comes with: %2.", "a paper, and choices").arg(m_paper, moved.join(tr(", ")))};
}

QStringList Remarks::ofMoves() const
{
    QStringList remarks;
    for (const auto &[from, cause] : m_moves) {
        const QString now = m_marks.choiceOf(from.keyword);
        if (now == from.choice)
            continue; // it is back where it was
        const QString sentence =
            tr("%1 instead of “%2”, to go with %3.")
                .arg(m_words.both(from.keyword, now), m_words.choice(from.keyword, from.choice),
                     cause.keyword.isEmpty() ? tr("the other choices") : m_words.both(cause.keyword, cause.choice));
        if (!remarks.contains(sentence))
            remarks.append(sentence);
    }
    return remarks;
}

QStringList Remarks::ofExpected() const
{
    QStringList remarks;
    const OptionValues marked = m_marks.all();
    for (const auto &[keyword, value] : m_expected.asKeyValueRange()) {
        if (keyword == kPageSize || !m_ppd.hasOption(keyword) || m_marks.choiceOf(keyword) == value ||
            isSameChoice(marked.value(keyword), value))
            continue;
        const QString sentence = m_ppd.accepts(keyword, value)
                                     ? tr("%1 is not as it was saved: the rules for the paper decide it.")
                                     : tr("%1 is not as it was saved: the printer has no such choice any more.");
        remarks.append(sentence.arg(m_words.option(keyword)));
    }
    return remarks;
}

} // namespace host
