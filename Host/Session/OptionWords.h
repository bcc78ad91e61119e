// Options and choices in the words of a person: the panels' where they have one, else the PPD's.
#pragma once

#include "PPD/PPDDocument.h"

namespace foundation {
class Bundle;
}

namespace host {

class OptionWords
{
public:
    /// All is borrowed.
    OptionWords(const PPDDocument &ppd, const foundation::Bundle &bundle, QString language);

    /// From now on the words of this one.
    void use(const foundation::Bundle &bundle) { m_bundle = &bundle; }

    /// "Form Feed"
    QString option(const QString &keyword) const;
    /// "End of Page"; an amount with its unit, "26 mm", where the PPD tells which; a text, or dots for a secret one.
    QString choice(const QString &keyword, const ChoiceValue &choice) const;
    /// "Form Feed “End of Page”"
    QString both(const QString &keyword, const ChoiceValue &choice) const;

private:
    QString custom(const QString &keyword, const CustomValue &value) const;
    std::optional<QString> amount(const QString &keyword, const CustomValue &value) const;

    const PPDDocument &m_ppd;
    const foundation::Bundle *m_bundle;
    QString m_language;
};

} // namespace host
