// What a PPD calls its groups, options and choices, in the language of the panels.
#pragma once

#include "Printing/ppd_api.h"

#include <QString>

namespace foundation {
class Bundle;
}

class PPDTexts
{
public:
    /// Both are borrowed.
    PPDTexts(ppd_file_t &ppd, const foundation::Bundle &bundle);

    // The PPD's own translation, else the bundle's of the PPD's text, else that text.

    QString group(const ppd_group_t &group) const;
    QString option(const ppd_option_t &option) const;
    QString choice(const ppd_option_t &option, const ppd_choice_t &choice) const;

    const foundation::Bundle &bundle() const { return m_bundle; }

private:
    QString translated(const char *table, const char *of, const char *text) const;

    ppd_file_t &m_ppd;
    const foundation::Bundle &m_bundle;
};
