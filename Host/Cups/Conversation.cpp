// The dialog's end of a conversation: a process, a socket, a clock.
#include "Conversation.h"

#include "Wire.h"

#include "Foundation/RegularFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace host {

using foundation::Or;
using foundation::Problem;
using Clock = std::chrono::steady_clock;

namespace {

constexpr qsizetype kLongestLine = qsizetype{32} * 1024 * 1024;

struct ConversationTexts
{
    Q_DECLARE_TR_FUNCTIONS(host::Conversation)
};

/// A file descriptor of ours.
class Descriptor
{
public:
    explicit Descriptor(int number = -1)
        : m_number(number)
    {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor &&other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {}
    Descriptor &operator=(Descriptor &&) = delete;

    int number() const { return m_number; }
    void close()
    {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }

private:
    int m_number;
};

/// Signals that a terminal sends to all its programs, and those that end one, concern the dialog only: the process goes
/// on until it is told, or finds that the dialog has gone.
class SpawnAttributes
{
public:
    SpawnAttributes()
    {
        ::posix_spawnattr_init(&m_attributes);
        sigset_t none;
        sigset_t all;
        ::sigemptyset(&none);
        ::sigfillset(&all);
        ::posix_spawnattr_setsigmask(&m_attributes, &none);
        ::posix_spawnattr_setsigdefault(&m_attributes, &all);
        ::posix_spawnattr_setpgroup(&m_attributes, 0);
        ::posix_spawnattr_setflags(&m_attributes,
                                   POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&m_attributes); }
    SpawnAttributes(const SpawnAttributes &) = delete;
    SpawnAttributes &operator=(const SpawnAttributes &) = delete;

    const posix_spawnattr_t *get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes{};
};

/// Standard input is the conversation; standard output is nobody's.
class SpawnFiles
{
public:
    explicit SpawnFiles(int socket)
    {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawn_file_actions_adddup2(&m_actions, socket, STDIN_FILENO);
        ::posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    }
    ~SpawnFiles() { ::posix_spawn_file_actions_destroy(&m_actions); }
    SpawnFiles(const SpawnFiles &) = delete;
    SpawnFiles &operator=(const SpawnFiles &) = delete;

    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

/// The process at the other end. It ends with its owner.
class Partner
{
public:
    /// Null when it can't be started; `errno` says why.
    static std::unique_ptr<Partner> start(const QByteArray &program)
    {
        std::array<int, 2> ends{};
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
            return nullptr;
        Descriptor ours(ends[0]);
        const Descriptor theirs(ends[1]);
        std::array<char *, 3> arguments{const_cast<char *>("qnprint"), const_cast<char *>(kConversation), nullptr};
        pid_t process = 0;
        errno = ::posix_spawn(&process, program.constData(), SpawnFiles(theirs.number()).get(), SpawnAttributes().get(),
                              arguments.data(), environ);
        if (errno != 0)
            return nullptr;
        return std::unique_ptr<Partner>(new Partner(std::move(ours), process));
    }
    ~Partner()
    {
        ::kill(m_process, SIGKILL);
        while (::waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    Partner(const Partner &) = delete;
    Partner &operator=(const Partner &) = delete;

    int socket() const { return m_socket.number(); }

    /// A line, and a descriptor unless it is -1. False when nobody is there.
    bool say(const QByteArray &line, int descriptor = -1)
    {
        qsizetype said = 0;
        while (said < line.size()) {
            const ssize_t count = saySome(line.sliced(said), said == 0 ? descriptor : -1);
            if (count < 0 && errno != EINTR)
                return false;
            said += qMax<ssize_t>(count, 0);
        }
        return true;
    }

    /// Takes in what has arrived. False at the end.
    bool hear()
    {
        std::array<char, 65536> part{};
        const ssize_t count = ::recv(socket(), part.data(), part.size(), MSG_DONTWAIT);
        if (count < 0)
            return errno == EAGAIN || errno == EINTR;
        m_heard.append(part.data(), count);
        return count > 0 && m_heard.size() <= kLongestLine;
    }

    /// The next whole line; nil when it has not arrived yet.
    std::optional<QJsonObject> nextLine()
    {
        const qsizetype end = m_heard.indexOf('\n');
        if (end < 0)
            return std::nullopt;
        const QByteArray line = m_heard.first(end);
        m_heard.remove(0, end + 1);
        return QJsonDocument::fromJson(line).object();
    }

private:
    Partner(Descriptor socket, pid_t process)
        : m_socket(std::move(socket))
        , m_process(process)
    {}

    ssize_t saySome(const QByteArray &text, int descriptor) const
    {
        iovec content{const_cast<char *>(text.data()), static_cast<std::size_t>(text.size())};
        msghdr message{};
        message.msg_iov = &content;
        message.msg_iovlen = 1;
        alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control{};
        if (descriptor >= 0) {
            message.msg_control = control.data();
            message.msg_controllen = control.size();
            cmsghdr *const header = CMSG_FIRSTHDR(&message);
            header->cmsg_level = SOL_SOCKET;
            header->cmsg_type = SCM_RIGHTS;
            header->cmsg_len = CMSG_LEN(sizeof(int));
            std::memcpy(CMSG_DATA(header), &descriptor, sizeof(int));
        }
        return ::sendmsg(socket(), &message, MSG_NOSIGNAL);
    }

    Descriptor m_socket;
    pid_t m_process;
    QByteArray m_heard;
};

/// The process that waits for the next conversation, and what the next ones are to be like.
struct Readiness
{
    std::mutex mutex;
    std::unique_ptr<Partner> partner;
    QByteArray program = "/proc/self/exe";
    QString language = "en";
    std::optional<Credentials> credentials;
};

Readiness &readiness()
{
    static Readiness instance;
    return instance;
}

/// Begins with the process that waits; with a new one when there is none, or when something has ended it.
std::unique_ptr<Partner> begin(QJsonObject question, const Patience &patience, int descriptor)
{
    Readiness &ready = readiness();
    const std::scoped_lock lock(ready.mutex);
    question[wire::kLanguage] = ready.language;
    if (ready.credentials)
        question[wire::kCredentials] = toJson(*ready.credentials);
    question[wire::kSilence] = static_cast<qint64>(patience.serverSilence.count());
    const QByteArray line = QJsonDocument(question).toJson(QJsonDocument::Compact) + '\n';
    auto partner = std::move(ready.partner);
    if (!partner || !partner->say(line, descriptor)) {
        partner = Partner::start(ready.program);
        if (partner && !partner->say(line, descriptor))
            return nullptr;
    }
    return partner;
}

/// Becomes readable when a stop is requested.
class StopSign
{
public:
    explicit StopSign(const std::stop_token &stop)
        : m_event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
        , m_raise(stop, Raise{m_event.number()})
    {}

    int descriptor() const { return m_event.number(); }
    /// Whether it was raised; lowers it.
    bool take()
    {
        eventfd_t count = 0;
        return ::eventfd_read(m_event.number(), &count) == 0;
    }

private:
    struct Raise
    {
        int event;
        void operator()() const { ::eventfd_write(event, 1); }
    };

    Descriptor m_event;
    std::stop_callback<Raise> m_raise;
};

class Listening
{
public:
    Listening(Partner &partner, const Patience &patience, const std::stop_token &stop)
        : m_partner(partner)
        , m_patience(patience)
        , m_sign(stop)
        , m_end(Clock::now() + patience.silence)
    {}

    Or<QJsonObject> answer(const std::function<void(const QJsonObject &)> &tell)
    {
        for (;;) {
            while (const auto line = m_partner.nextLine()) {
                if (line->contains(wire::kProblem))
                    return problemFrom((*line)[wire::kProblem].toObject());
                if (line->contains(wire::kAnswer))
                    return (*line)[wire::kAnswer].toObject();
                if (tell)
                    tell(*line);
                if (!m_isStopped)
                    m_end = Clock::now() + m_patience.silence;
            }
            if (const auto problem = wait())
                return *problem;
        }
    }

private:
    /// Until something has arrived, or a problem when nothing will.
    std::optional<Problem> wait()
    {
        std::array<pollfd, 2> events{pollfd{m_partner.socket(), POLLIN, 0}, pollfd{m_sign.descriptor(), POLLIN, 0}};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_end - Clock::now()).count();
        if (left <= 0)
            return unanswered(m_isStopped ? ConversationTexts::tr("stopped")
                                          : ConversationTexts::tr("the CUPS server does not answer"));
        ::poll(events.data(), events.size(), static_cast<int>(left));
        if (m_sign.take())
            stop();
        else if (events[0].revents != 0 && !m_partner.hear())
            return unanswered(ConversationTexts::tr("the CUPS server's answer can't be read"));
        return std::nullopt;
    }

    void stop()
    {
        m_isStopped = true;
        m_end = Clock::now() + m_patience.farewell;
        if (m_patience.farewell.count() > 0)
            m_partner.say("{}\n"); // any line asks the process to stop
    }

    static Problem unanswered(const QString &sentence) { return {sentence, Problem::Kind::unanswered}; }

    Partner &m_partner;
    Patience m_patience;
    StopSign m_sign;
    Clock::time_point m_end;
    bool m_isStopped = false;
};

} // namespace

Or<QJsonObject> converse(const QJsonObject &question, const Patience &patience, const std::stop_token &stop,
                         int descriptor, const std::function<void(const QJsonObject &)> &tell)
{
    const auto partner = begin(question, patience, descriptor);
    if (!partner)
        return Problem{ConversationTexts::tr("no process can be started: %1").arg(foundation::systemErrorText(errno)),
                       Problem::Kind::unanswered};
    return Listening(*partner, patience, stop).answer(tell);
}

void prepareConversation()
{
    Readiness &ready = readiness();
    const std::scoped_lock lock(ready.mutex);
    if (!ready.partner)
        ready.partner = Partner::start(ready.program);
}

void setConversationLanguage(const QString &language)
{
    Readiness &ready = readiness();
    const std::scoped_lock lock(ready.mutex);
    ready.language = language;
}

void setConversationCredentials(const std::optional<Credentials> &credentials)
{
    Readiness &ready = readiness();
    const std::scoped_lock lock(ready.mutex);
    ready.credentials = credentials;
}

void setConversationProgram(const QString &path)
{
    Readiness &ready = readiness();
    const std::scoped_lock lock(ready.mutex);
    ready.partner.reset();
    ready.program = QFile::encodeName(path);
}

} // namespace host
