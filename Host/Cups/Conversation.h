// A conversation with the CUPS server. The library that leads it can't be stopped, and a hostile answer can bring it
// down; so it happens in a process of its own, which is this program once more. What that process may use is limited,
// and it is ended when it says nothing for too long.
#pragma once

#include "Foundation/Or.h"

#include <QJsonObject>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace host {

/// The word on the command line that makes the program the process that talks with the server. For us only.
inline constexpr auto kConversation = "converse-with-server";

struct Patience
{
    /// For a question from its beginning, or from the last thing told on the way to its answer.
    std::chrono::milliseconds silence{30000};
    /// What the process itself puts up with, so that it can bring things in order.
    std::chrono::milliseconds serverSilence{10000};
    /// What is left of it all when a stop is requested.
    std::chrono::milliseconds farewell{0};
};

/// Asks one question. `tell` hears what is said on the way; `descriptor` goes along unless it is -1 and stays the
/// caller's. A problem of the kind `unanswered` when there was no answer: what was asked for may have been done.
foundation::Or<QJsonObject> converse(const QJsonObject &question, const Patience &patience, const std::stop_token &stop,
                                     int descriptor = -1, const std::function<void(const QJsonObject &)> &tell = {});

/// Has a process ready for the next conversation, so that its start takes none of the time of a person.
void prepareConversation();

/// The language of the answers' sentences from now on.
void setConversationLanguage(const QString &language);

/// Who asks, for a server that wants to know. They are kept in memory only, and a conversation says them at most once.
struct Credentials
{
    QString user;
    QString password;
};

/// So often a person is asked to say who they are before that counts as failed.
inline constexpr int kMostTriesToSayWho = 3;

/// Of the conversations from now on; nil for none.
void setConversationCredentials(const std::optional<Credentials> &credentials);

/// The program that becomes the process, for tests, which are another program; else our own.
void setConversationProgram(const QString &path);

} // namespace host
