// Which options of a PPD hang together by its constraints.
#pragma once

#include "PPDDocument.h"

#include <QByteArray>
#include <QHash>

namespace host {

class Constraints
{
public:
    /// The document has to outlive this.
    explicit Constraints(const PPDDocument &document);

    int count() const { return m_count; }

    // Options are of one group when constraints lead from one to the other; any of them stands for the group, the same
    // one each time.

    /// Null when conflicts are in no group or in more than one. What is in conflict is what the library has told last.
    const ppd_option_t *onlyGroupInConflict() const;
    /// What the options of a group are marked with, and the one among them that is asked for.
    QByteArray marksOfGroup(const ppd_option_t *group, const ppd_option_t *asked) const;

private:
    void readPairs();
    void readAttributes();
    void join(const ppd_option_t *one, const ppd_option_t *other);
    const ppd_option_t *groupOf(const ppd_option_t *option) const;

    const PPDDocument &m_document;
    int m_count = 0;
    QHash<const ppd_option_t *, const ppd_option_t *> m_next; // towards the one that stands for the group
};

} // namespace host
