// Replies of a script kept in a file, and those of an earlier run compared with them.
#pragma once

#include "Foundation/Or.h"

#include <QByteArrayList>
#include <QSaveFile>

#include <memory>

namespace host {

class RecordedReplies
{
public:
    /// An empty name is no file. A problem when the file to record into can't be written or the expected one not read;
    /// both may be the same.
    static foundation::Or<std::unique_ptr<RecordedReplies>> open(const QString &record, const QString &expect);

    void add(const QByteArray &reply);

    /// Replaces the file to record into. Before this it is as it was.
    foundation::Or<void> write();
    /// A unified diff between the replies that were expected and those that came; empty when all are the same, however
    /// they are written. Replies are written out over several lines, each behind a line with its number.
    QByteArray differences() const;

private:
    RecordedReplies() = default;

    QString m_expectedName;
    QByteArrayList m_expected;
    QByteArrayList m_replies;
    std::unique_ptr<QSaveFile> m_record;
};

} // namespace host
