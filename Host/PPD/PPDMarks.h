// The choices that are marked in a PPD: the only place that marks any. Constraints move other options with them.
#pragma once

#include "Constraints.h"
#include "PPDDocument.h"

#include <QHash>

namespace host {

class PPDMarks
{
public:
    struct Choice
    {
        QString keyword; // of the option
        QString choice;
    };

    /// A choice that the PPD's constraints put in another's place, to go with a choice of a further option.
    struct Move
    {
        Choice from;
        Choice cause; // no keyword: all the others together
    };

    /// What marking led to.
    struct Effect
    {
        std::vector<Choice> changed; // each option whose marked choice is another than before
        std::vector<Move> moved;     // in the order of resolving
    };

    /// Marks the defaults. The document has to outlive the marks.
    explicit PPDMarks(PPDDocument &document);
    PPDMarks(const PPDMarks &) = delete;
    PPDMarks &operator=(const PPDMarks &) = delete;

    /// Makes the user's own choices the defaults of their options and marks them. Choices that the PPD lacks are
    /// ignored: saved options outlive the PPD that they were saved for.
    void adoptDefaults(const OptionValues &values);
    /// Marks, for each option, the value given or else its declared default. Values that the PPD lacks are ignored.
    Effect restore(const OptionValues &values);
    /// Marks a listed choice or a number, and resolves constraints in its favour. Nil when nothing could be marked;
    /// otherwise the option asked for comes first among the changed ones, then the others as the PPD has them.
    std::optional<Effect> mark(const QString &keyword, const QString &choice);
    /// Nil when the PPD takes no custom sizes.
    std::optional<Effect> markCustomPageSize(const printing::Paper &size);

    /// Every option with a marked choice; custom values as "Custom.<value>", numbers in their shortest form.
    OptionValues all() const;
    /// What a job has to say: every choice that is not the default which the file declares, and the page size.
    OptionValues forJob() const;
    /// What an option is marked with, custom values as they were asked for; empty when nothing is.
    QString valueOf(const QString &keyword) const;
    /// Keyword of the marked choice; empty when none is.
    QString choiceOf(const QString &keyword) const;
    QString pageSizeName() const { return choiceOf(kPageSize); }
    /// Nil when no custom size is marked.
    std::optional<printing::Paper> customPageSize() const;

private:
    using Keywords = std::vector<QByteArray>; // of marked choices, one an option, empty for none

    Effect apply(ppd_option_t &option, const ChoiceValue &choice);
    void markOne(ppd_option_t &option, const ChoiceValue &choice);
    std::vector<Move> resolveConflicts(const ppd_option_t *asked, const ChoiceValue &choice);
    Choice causeOf(const Choice &moved, const ppd_option_t *asked) const;
    bool isHopeless(const ppd_option_t *asked) const;
    void noteHopeless(const ppd_option_t *asked);
    const char *markedKeyword(const ppd_option_t &option) const;
    ChoiceValue marked(const ppd_option_t &option) const;
    Keywords keywords() const;
    std::vector<Choice> changesSince(const Keywords &before, const ppd_option_t *first) const;

    PPDDocument &m_document;
    std::vector<QByteArray> m_declaredDefaults;              // beside the document's options
    QHash<const ppd_option_t *, CustomValue> m_customValues; // as they were asked for
    Constraints m_constraints;
    const ppd_option_t *m_hopelessGroup = nullptr; // in which no choices agree
    QByteArray m_hopelessMarks;                    // as long as these stand
};

} // namespace host
