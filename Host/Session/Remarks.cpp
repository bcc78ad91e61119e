// What a person is told about choices that are not as they were made.
#include "Remarks.h"

#include "Foundation/Bundle.h"

namespace host {

Remarks::Remarks(const PPDDocument &ppd, const PPDMarks &marks, const foundation::Bundle &bundle, QString language)
    : m_ppd(ppd)
    , m_marks(marks)
    , m_bundle(bundle)
    , m_language(std::move(language))
{}

QStringList Remarks::take()
{
    const QStringList remarks = ofMoves() + ofExpected();
    m_moves.clear();
    m_expected.clear();
    return remarks;
}

QStringList Remarks::ofMoves() const
{
    QStringList remarks;
    for (const auto &[from, cause] : m_moves) {
        const QString now = m_marks.choiceOf(from.keyword);
        if (now == from.choice)
            continue; // it is back where it was
        const QString sentence = tr("%1 instead of “%2”, to go with %3.")
                                     .arg(inWords({from.keyword, now}), choiceText(from),
                                          cause.keyword.isEmpty() ? tr("the other choices") : inWords(cause));
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
        if (keyword == kPageSize || !m_ppd.hasOption(keyword) || isSameChoice(marked.value(keyword), value))
            continue;
        const QString sentence = m_ppd.accepts(keyword, value)
                                     ? tr("%1 is not as it was saved: the rules for the paper decide it.")
                                     : tr("%1 is not as it was saved: the printer has no such choice any more.");
        remarks.append(sentence.arg(optionText(keyword)));
    }
    return remarks;
}

QString Remarks::optionText(const QString &keyword) const
{
    return m_bundle.localizedString(m_ppd.optionText(keyword));
}

QString Remarks::choiceText(const PPDMarks::Choice &choice) const
{
    const QString key = m_ppd.choiceText(choice.keyword, choice.choice);
    const QString text = m_bundle.localizedString(key);
    return text == key ? m_ppd.choiceText(choice.keyword, choice.choice, m_language) : text;
}

QString Remarks::inWords(const PPDMarks::Choice &choice) const
{
    return QString("%1 “%2”").arg(optionText(choice.keyword), choiceText(choice));
}

} // namespace host
