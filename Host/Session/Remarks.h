// What a person is told about choices that are not as they were made.
#pragma once

#include "OptionWords.h"

#include "PPD/PPDMarks.h"

#include <QCoreApplication>
#include <QStringList>

namespace host {

class Remarks
{
    Q_DECLARE_TR_FUNCTIONS(host::Remarks)

public:
    /// All is borrowed.
    Remarks(const PPDDocument &ppd, const PPDMarks &marks, const OptionWords &words);

    /// Constraints have moved choices.
    void add(const std::vector<PPDMarks::Move> &moves) { m_moves.insert(m_moves.end(), moves.begin(), moves.end()); }
    /// These were to be marked; what is marked otherwise in the end is remarked on.
    void expect(const OptionValues &values) { m_expected = values; }

    /// Another paper was chosen, and these choices with it.
    void addPaper(const QString &paper, const OptionValues &moved);

    /// One sentence each, by what is marked now; the next call starts afresh.
    QStringList take();

private:
    QStringList ofPaper() const;
    QStringList ofMoves() const;
    QStringList ofExpected() const;

    const PPDDocument &m_ppd;
    const PPDMarks &m_marks;
    const OptionWords &m_words;
    QString m_paper; // that was chosen last
    OptionValues m_movedByPaper;
    std::vector<PPDMarks::Move> m_moves;
    OptionValues m_expected;
};

} // namespace host
