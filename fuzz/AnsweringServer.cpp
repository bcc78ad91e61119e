// As much of HTTP as it takes to know where a request ends. Nothing here waits for long: who has to say something and
// does not has lost the connection.
#include "AnsweringServer.h"

#include "Fuzzing.h"

#include <QFile>

#include <array>
#include <cstring>
#include <dlfcn.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace fuzzing {

namespace {

constexpr int kMillisecondsToSpeak = 20;

sockaddr_un addressOf(const QString &path)
{
    sockaddr_un address{AF_UNIX, {}};
    qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof(address.sun_path));
    return address;
}

QByteArray inHttp(const QByteArray &answer)
{
    if (answer.startsWith("HTTP/"))
        return answer;
    return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " + QByteArray::number(answer.size()) +
           "\r\n\r\n" + answer;
}

bool say(int socket, const QByteArray &text)
{
    return ::send(socket, text.data(), static_cast<std::size_t>(text.size()), MSG_NOSIGNAL) == text.size();
}

bool hear(int socket, QByteArray &text)
{
    pollfd event{socket, POLLIN, 0};
    std::array<char, 65536> part{};
    const ssize_t count = ::poll(&event, 1, kMillisecondsToSpeak) > 0 ? ::recv(socket, part.data(), part.size(), 0) : 0;
    text.append(part.data(), qMax<ssize_t>(count, 0));
    return count > 0;
}

bool isWhole(QByteArrayView head, QByteArrayView body)
{
    const qsizetype length = head.indexOf("content-length: ");
    if (length >= 0)
        return body.size() >= head.sliced(length + 16, head.indexOf("\r\n", length) - length - 16).toLongLong();
    return !head.contains("transfer-encoding: chunked") || body.endsWith("0\r\n\r\n");
}

/// False when no whole request comes.
bool readRequest(int socket)
{
    QByteArray text;
    qsizetype end = -1;
    while (end < 0 && hear(socket, text))
        end = text.indexOf("\r\n\r\n");
    if (end < 0)
        return false;
    const QByteArray head = text.first(end + 4).toLower();
    bool goesOn = !head.contains("expect: 100") || say(socket, "HTTP/1.1 100 Continue\r\n\r\n");
    while (goesOn && !isWhole(head, QByteArrayView(text).sliced(end + 4)))
        goesOn = hear(socket, text);
    return goesOn;
}

} // namespace

AnsweringServer::AnsweringServer(const QString &path, QByteArrayList answers)
    : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    , m_answers(std::move(answers))
{
    const sockaddr_un address = addressOf(path);
    QFile::remove(path);
    promise(::bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0 &&
            ::listen(m_socket, 20) == 0);
    m_thread = std::jthread([this] { listen(); });
}

AnsweringServer::~AnsweringServer()
{
    ::shutdown(m_socket, SHUT_RDWR);
    m_thread.join();
    ::close(m_socket);
}

void AnsweringServer::listen()
{
    for (int socket = 0; (socket = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        const timeval patience{0, kMillisecondsToSpeak * 1000};
        ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof(patience));
        serve(socket);
        ::close(socket);
    }
}

void AnsweringServer::serve(int socket)
{
    while (!m_answers.isEmpty() && readRequest(socket))
        if (!say(socket, inHttp(m_answers.takeFirst())))
            return;
}

} // namespace fuzzing

// An answer can name any other server, and the library goes there: to the one above, and to no network.

extern "C" int connect(int socket, const sockaddr *address, socklen_t size)
{
    static const auto real = reinterpret_cast<decltype(&::connect)>(::dlsym(RTLD_NEXT, "connect"));
    const auto *const local = reinterpret_cast<const sockaddr_un *>(address);
    if (address->sa_family == AF_UNIX && QFile::decodeName(local->sun_path).startsWith(fuzzing::pathOf({})))
        return real(socket, address, size);
    errno = ENETUNREACH;
    return -1;
}

extern "C" int getaddrinfo(const char *node, const char *service, const addrinfo *hints, addrinfo **result)
{
    static const auto real = reinterpret_cast<decltype(&::getaddrinfo)>(::dlsym(RTLD_NEXT, "getaddrinfo"));
    addrinfo numeric = hints ? *hints : addrinfo{};
    numeric.ai_flags |= AI_NUMERICHOST;
    return real(node, service, &numeric, result);
}
