// Qt's messages and lines of the system log in tests.
#include "Messages.h"

#include "Foundation/SystemLog.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace support {

namespace {

std::vector<ExpectMessage *> expectations;
RecordMessages *recorder = nullptr;

/// What the offscreen platform says of itself, whatever is under test.
bool isPlatformRemark(const QString &message)
{
    return message.startsWith("This plugin does not support") || message.contains("XDG_RUNTIME_DIR");
}

void take(const QString &message)
{
    if (recorder)
        return recorder->record(message);
    if (std::ranges::any_of(expectations, [&](ExpectMessage *expected) { return expected->matches(message); }))
        return;
    ADD_FAILURE() << "unannounced message: " << message.toStdString();
}

void handle(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && !isPlatformRemark(message))
        take(message);
}

} // namespace

ExpectMessage::ExpectMessage(const QString &part)
    : m_part(part)
{
    expectations.push_back(this);
}

ExpectMessage::~ExpectMessage()
{
    std::erase(expectations, this);
    EXPECT_TRUE(m_came) << "no message came that contains: " << m_part.toStdString();
}

bool ExpectMessage::matches(const QString &message)
{
    const bool matches = message.contains(m_part);
    m_came = m_came || matches;
    return matches;
}

RecordMessages::RecordMessages() { recorder = this; }
RecordMessages::~RecordMessages() { recorder = nullptr; }

void watchMessages()
{
    qInstallMessageHandler(handle);
    foundation::setLogSink(take);
}

} // namespace support
