// The process that talks with the server. It waits for its question, answers it, and is gone. What it may use is
// limited from the beginning, and when the dialog goes it does not stay. No signal has a handler here, so that none
// interrupts a call.
#include "Answering.h"

#include "Printers.h"
#include "SentJob.h"
#include "ServerConnection.h"

#include "Cups/Wire.h"
#include "Foundation/Shadow.h"

#include <QFile>
#include <QJsonDocument>

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <sys/resource.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace host {

using foundation::Or;
using foundation::Problem;
using namespace std::chrono_literals;

namespace {

constexpr int kDialog = STDIN_FILENO;
constexpr rlim_t kBytesOfMemory = rlim_t{200} * 1024 * 1024; // beyond those that the program itself takes
constexpr rlim_t kBytesOfFile = rlim_t{64} * 1024 * 1024;
constexpr auto kTimeAlone = 10s; // to cancel a job after the dialog has gone

std::atomic<bool> dialogHasGone = false;

void limit(__rlimit_resource resource, rlim_t most)
{
    rlimit now{};
    ::getrlimit(resource, &now);
    now.rlim_cur = qMin(most, now.rlim_max);
    now.rlim_max = now.rlim_cur;
    ::setrlimit(resource, &now);
}

rlim_t bytesMapped()
{
    QFile status("/proc/self/statm"); // its first number: pages in all
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    return status.readAll().split(' ').first().toULongLong() * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

/// A server that makes us crash or grow brings down this process only, and leaves nothing behind.
void limitOurselves()
{
    std::set_terminate([] { ::_exit(EXIT_FAILURE); });
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, kBytesOfFile);
    if (!foundation::kHasShadow)
        limit(RLIMIT_AS, bytesMapped() + kBytesOfMemory);
}

/// What came along with the question: a descriptor, or -1.
int descriptorIn(msghdr &message)
{
    const cmsghdr *const header = CMSG_FIRSTHDR(&message);
    if (!header || header->cmsg_type != SCM_RIGHTS)
        return -1;
    int descriptor = -1;
    std::memcpy(&descriptor, CMSG_DATA(header), sizeof(descriptor));
    return descriptor;
}

struct Question
{
    QJsonObject json;
    int document = -1;
};

/// Nil when the dialog goes without a question.
std::optional<Question> readQuestion()
{
    Question question;
    QByteArray text;
    std::array<char, 65536> part{};
    while (!text.endsWith('\n')) {
        iovec content{part.data(), part.size()};
        alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control{};
        msghdr message{};
        message.msg_iov = &content;
        message.msg_iovlen = 1;
        message.msg_control = control.data();
        message.msg_controllen = control.size();
        const ssize_t count = ::recvmsg(kDialog, &message, MSG_CMSG_CLOEXEC);
        if (count <= 0)
            return std::nullopt;
        text.append(part.data(), count);
        question.document = qMax(question.document, descriptorIn(message));
    }
    question.json = QJsonDocument::fromJson(text).object();
    return question;
}

/// A line to the dialog; it may have gone, and then nobody minds.
void tell(const QJsonObject &json)
{
    const QByteArray line = QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
    for (qsizetype told = 0; told < line.size();) {
        const ssize_t count =
            ::send(kDialog, line.data() + told, static_cast<std::size_t>(line.size() - told), MSG_NOSIGNAL);
        if (count < 0)
            return;
        told += count;
    }
}

/// Whatever comes after the question asks us to stop: a line, or the end of the dialog.
void stopWhenTold(const std::stop_source &stop)
{
    char byte = 0;
    ssize_t count = 1;
    while (count > 0) {
        count = ::recv(kDialog, &byte, 1, 0);
        dialogHasGone = count <= 0;
        stop.request_stop();
    }
    std::this_thread::sleep_for(kTimeAlone);
    ::_exit(EXIT_FAILURE);
}

template <class Value>
Or<QJsonObject> inJson(const Or<Value> &answer)
{
    return answer ? Or<QJsonObject>(toJson(*answer)) : answer.problem();
}

Or<QJsonObject> send(const QJsonObject &json, int descriptor, std::chrono::milliseconds patience,
                     const std::stop_token &stop)
{
    auto document = Document::received(descriptor);
    if (!document)
        return document.problem();
    JobOrder order{json[wire::kQueue].toString(), {}, jobFrom(json), patience};
    order.job.document = *std::move(document);
    if (json.contains(wire::kPPD))
        order.ppd = ppdFrom(json[wire::kPPD].toObject());
    int job = 0;
    const auto madeOne = [&job](int made) {
        job = made;
        tell({{wire::kId, made}});
    };
    const auto sent = sendJob(
        order, madeOne, [](qint64 done, qint64 total) { tell({{wire::kDone, done}, {wire::kOf, total}}); }, stop);
    if (sent) {
        QJsonObject answer{{wire::kId, sent->id}};
        if (sent->whyItWaits)
            answer[wire::kWaits] = *sent->whyItWaits;
        return answer;
    }
    if (job > 0 && dialogHasGone)
        (void)cancelJob(job, patience); // nobody else will
    return sent.problem();
}

Or<QJsonObject> cancel(int id, std::chrono::milliseconds patience)
{
    const auto cancelled = cancelJob(id, patience);
    return cancelled ? Or<QJsonObject>(QJsonObject()) : cancelled.problem();
}

Or<QJsonObject> answer(const Question &question, const std::stop_token &stop)
{
    const QString asked = question.json[wire::kAsk].toString();
    const QJsonObject job = question.json[wire::kJob].toObject();
    const std::chrono::milliseconds patience(question.json[wire::kSilence].toInteger());
    if (asked == wire::kQueues)
        return inJson(askForQueues(patience));
    if (asked == wire::kQueue)
        return inJson(askForQueue(queueNameFrom(question.json[wire::kQueue].toObject()), patience));
    if (asked == wire::kSend)
        return send(job, question.document, patience, stop);
    if (asked == wire::kCancel)
        return cancel(job[wire::kId].toInt(), patience);
    return Problem{QStringLiteral("%1: no such question").arg(asked)};
}

} // namespace

void answerConversation(const std::function<void(const QString &language)> &speak)
{
    limitOurselves();
    const auto question = readQuestion();
    if (!question)
        ::_exit(EXIT_SUCCESS);
    speak(question->json[wire::kLanguage].toString());
    setCredentials(credentialsFrom(question->json[wire::kCredentials].toObject()));
    const std::stop_source stop;
    std::thread(stopWhenTold, stop).detach();
    const auto answered = answer(*question, stop.get_token());
    tell(answered ? QJsonObject{{wire::kAnswer, *answered}}
                  : QJsonObject{{wire::kProblem, toJson(answered.problem())}});
    ::_exit(EXIT_SUCCESS);
}

} // namespace host
