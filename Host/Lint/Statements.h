// The text of a PPD taken apart. It may be anybody's bytes: nothing here fails, and nothing grows with them.
#pragma once

#include "PDECheckInterface.h"

#include <QHash>

namespace host {

struct Statements
{
    std::vector<PDEStatement> all; // in the order of the file; views into the content
    bool isWhole = true;           // false where there are more than anybody would look at
};

/// The content has to outlive the answer. Lines may end as on any system.
Statements statementsOf(const QByteArray &content);

/// The option that a statement begins or ends; empty when it does neither.
QByteArrayView openedBy(const PDEStatement &statement);
QByteArrayView closedBy(const PDEStatement &statement);

/// The statements by keyword, letter case included. Borrows them.
class StatementIndex
{
public:
    explicit StatementIndex(std::span<const PDEStatement> statements);

    std::span<const PDEStatement> all() const { return m_all; }
    /// In the order of the file; empty when there is none.
    const std::vector<const PDEStatement *> &of(QByteArrayView keyword) const;
    /// Null when there is none.
    const PDEStatement *first(QByteArrayView keyword) const;
    const PDEStatement *first(QByteArrayView keyword, QByteArrayView option) const;
    /// Where an option begins, or 1.
    int lineOfOption(QByteArrayView keyword) const;

private:
    std::span<const PDEStatement> m_all;
    QHash<QByteArrayView, std::vector<const PDEStatement *>> m_byKeyword;
    QHash<std::pair<QByteArrayView, QByteArrayView>, const PDEStatement *> m_byOption; // the first of each
    QHash<QByteArrayView, int> m_optionLines;
};

} // namespace host
