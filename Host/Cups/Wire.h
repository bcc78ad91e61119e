// Questions and answers as they go between the dialog and the process that talks with the server.
#pragma once

#include "Queues.h"

#include "Jobs/Job.h"

#include <QJsonObject>

namespace host {

QJsonObject toJson(const foundation::Problem &problem);
QJsonObject toJson(const Credentials &credentials);
QJsonObject toJson(const QueueName &name);
QJsonObject toJson(const Queues &queues);
QJsonObject toJson(const CachedPPD &ppd);
QJsonObject toJson(const Queue &queue);
/// All but the document.
QJsonObject toJson(const Job &job);

foundation::Problem problemFrom(const QJsonObject &json);
Credentials credentialsFrom(const QJsonObject &json);
QueueName queueNameFrom(const QJsonObject &json);
Queues queuesFrom(const QJsonObject &json);
CachedPPD ppdFrom(const QJsonObject &json);
Queue queueFrom(const QJsonObject &json);
Job jobFrom(const QJsonObject &json);

// The members of a line.
namespace wire {
inline constexpr auto kAsk = "ask"; // one of the next four
inline constexpr auto kQueues = "queues";
inline constexpr auto kQueue = "queue";
inline constexpr auto kSend = "send";
inline constexpr auto kCancel = "cancel";
inline constexpr auto kLanguage = "language";
inline constexpr auto kCredentials = "credentials"; // where there are some
inline constexpr auto kSilence = "silence";         // of the server that is put up with, in milliseconds
inline constexpr auto kJob = "job";
inline constexpr auto kPPD = "ppd";

// Of an answer, one of:
inline constexpr auto kAnswer = "answer";
inline constexpr auto kProblem = "problem";

inline constexpr auto kWaits = "waits"; // of a job that was sent: why it waits; missing when it does not

// Of what is told on the way to one:
inline constexpr auto kId = "id";     // of the job that was made; 0 while it is asked for
inline constexpr auto kDone = "done"; // bytes
inline constexpr auto kOf = "of";
} // namespace wire

} // namespace host
