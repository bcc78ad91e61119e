// The other end of a conversation: the process that talks with the server.
#pragma once

#include <QString>

#include <functional>

namespace host {

/// Answers the one question that comes on standard input, and ends the process. `speak` sets the language.
[[noreturn]] void answerConversation(const std::function<void(const QString &language)> &speak);

} // namespace host
