// Qt's messages and lines of the system log in tests: one that nobody announced fails the test that is running.
#pragma once

#include <QString>
#include <QStringList>

namespace support {

/// Announces one message that contains a text; the test fails when it does not come while this lives.
class ExpectMessage
{
public:
    explicit ExpectMessage(const QString &part);
    ~ExpectMessage();
    ExpectMessage(const ExpectMessage &) = delete;
    ExpectMessage &operator=(const ExpectMessage &) = delete;

    bool matches(const QString &message);

private:
    QString m_part;
    bool m_came = false;
};

/// Keeps every message while it lives, and announces them all.
class RecordMessages
{
public:
    RecordMessages();
    ~RecordMessages();
    RecordMessages(const RecordMessages &) = delete;
    RecordMessages &operator=(const RecordMessages &) = delete;

    const QStringList &messages() const { return m_messages; }
    void record(const QString &message) { m_messages.append(message); }

private:
    QStringList m_messages;
};

/// From now on, unannounced messages fail tests.
void watchMessages();

} // namespace support
