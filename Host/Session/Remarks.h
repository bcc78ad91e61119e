// What a person is told about choices that are not as they were made.
#pragma once

#include "PPD/PPDMarks.h"

#include <QCoreApplication>
#include <QStringList>

namespace foundation {
class Bundle;
}

namespace host {

class Remarks
{
    Q_DECLARE_TR_FUNCTIONS(host::Remarks)

public:
    /// All is borrowed. Names of choices are the panels' where they have one, else the PPD's in `language`.
    Remarks(const PPDDocument &ppd, const PPDMarks &marks, const foundation::Bundle &bundle, QString language);

    /// Constraints have moved choices.
    void add(const std::vector<PPDMarks::Move> &moves) { m_moves.insert(m_moves.end(), moves.begin(), moves.end()); }
    /// These were to be marked; what is marked otherwise in the end is remarked on.
    void expect(const OptionValues &values) { m_expected = values; }

    /// One sentence each, by what is marked now; the next call starts afresh.
    QStringList take();

private:
    QStringList ofMoves() const;
    QStringList ofExpected() const;
    QString optionText(const QString &keyword) const;
    QString choiceText(const PPDMarks::Choice &choice) const;
    QString inWords(const PPDMarks::Choice &choice) const;

    const PPDDocument &m_ppd;
    const PPDMarks &m_marks;
    const foundation::Bundle &m_bundle;
    QString m_language;
    std::vector<PPDMarks::Move> m_moves;
    OptionValues m_expected;
};

} // namespace host
