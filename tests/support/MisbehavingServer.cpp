// A CUPS server that misbehaves: as much HTTP and IPP as a job needs, written out by hand so that each part can be
// wrong.
#include "MisbehavingServer.h"

#include "Cups/Conversation.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <chrono>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <optional>
#include <sys/socket.h>
#include <unistd.h>

namespace support {

namespace {

using namespace std::chrono_literals;
using Step = MisbehavingServer::Step;
using Mode = MisbehavingServer::Mode;

constexpr qint64 kMostBytes = qint64{2} << 30; // what is endless ends here
constexpr int kMostDrips = 3000;
constexpr int kNesting = 20000;
constexpr auto kDrip = 100ms;

// IPP operations and tags.
constexpr int kSendDocument = 0x0006;
constexpr int kCreateJob = 0x0005;
constexpr int kCancelJob = 0x0008;
constexpr int kGetPrinterAttributes = 0x000b;
constexpr int kGetDefault = 0x4001;
constexpr char kOperationAttributes = 0x01;
constexpr char kJobAttributes = 0x02;
constexpr char kEnd = 0x03;
constexpr char kPrinterAttributes = 0x04;

Step stepOf(int operation)
{
    switch (operation) {
    case kGetDefault: return Step::standard;
    case kGetPrinterAttributes: return Step::attributes;
    case kCreateJob: return Step::create;
    case kSendDocument: return Step::send;
    case kCancelJob: return Step::cancel;
    default: return Step::none;
    }
}

QByteArray number(quint32 value, int bytes)
{
    QByteArray text;
    for (int i = bytes - 1; i >= 0; --i)
        text.append(static_cast<char>(value >> (8 * i)));
    return text;
}

QByteArray attribute(int tag, const QByteArray &name, const QByteArray &value)
{
    return char(tag) + number(static_cast<quint32>(name.size()), 2) + name +
           number(static_cast<quint32>(value.size()), 2) + value;
}

QByteArray head(quint32 request, quint32 status = 0)
{
    return number(0x0200, 2) + number(status, 2) + number(request, 4) + kOperationAttributes +
           attribute(0x47, "attributes-charset", "utf-8") + attribute(0x48, "attributes-natural-language", "en");
}

QByteArray printer(int port)
{
    return kPrinterAttributes + attribute(0x42, "printer-name", "counter") +
           attribute(0x45, "printer-uri-supported",
                     "ipp://127.0.0.1:" + QByteArray::number(port) + "/printers/counter") +
           attribute(0x23, "printer-state", number(3, 4)) + attribute(0x22, "printer-is-accepting-jobs", "\x01") +
           attribute(0x23, "printer-type", number(4, 4)) + attribute(0x45, "device-uri", "usb://Qn/Thermal?serial=1") +
           attribute(0x44, "media-supported", "iso_a4_210x297mm") + attribute(0x44, "", "na_letter_8.5x11in") +
           attribute(0x44, "", "om_ticket_80x200mm") + attribute(0x44, "media-default", "na_letter_8.5x11in") +
           attribute(0x44, "sides-supported", "one-sided") + attribute(0x44, "", "two-sided-long-edge") +
           attribute(0x44, "", "tumbling") + attribute(0x44, "sides-default", "two-sided-long-edge") +
           attribute(0x23, "print-quality-supported", number(4, 4)) + attribute(0x23, "", number(5, 4)) +
           attribute(0x13, "print-quality-default", {}) + attribute(0x44, "print-color-mode-supported", "monochrome");
}

QByteArray answerTo(Step step, quint32 request, int port)
{
    switch (step) {
    case Step::standard:
    case Step::attributes: return head(request) + printer(port) + kEnd;
    case Step::create:
        return head(request) + kJobAttributes + attribute(0x21, "job-id", number(7, 4)) +
               attribute(0x45, "job-uri", "ipp://127.0.0.1:" + QByteArray::number(port) + "/jobs/7") +
               attribute(0x23, "job-state", number(3, 4)) + kEnd;
    default: return head(request) + kEnd;
    }
}

QByteArray http(const QByteArray &body, const QByteArray &type, std::optional<qint64> length = std::nullopt,
                const QByteArray &status = "200 OK", const QByteArray &further = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: " + type +
           "\r\nContent-Length: " + QByteArray::number(length.value_or(body.size())) + "\r\n" + further + "\r\n" + body;
}

QByteArray chunkedHead(const QByteArray &type)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type + "\r\nTransfer-Encoding: chunked\r\n\r\n";
}

QByteArray chunk(const QByteArray &content)
{
    return QByteArray::number(content.size(), 16) + "\r\n" + content + "\r\n";
}

/// One connection, as far as a job needs it.
class Connection
{
public:
    explicit Connection(int socket)
        : m_socket(socket)
    {}

    bool say(const QByteArray &text) const
    {
        for (qsizetype said = 0; said < text.size();) {
            const ssize_t count =
                ::send(m_socket, text.data() + said, static_cast<std::size_t>(text.size() - said), MSG_NOSIGNAL);
            if (count <= 0)
                return false;
            said += count;
        }
        return true;
    }
    bool sayByByte(const QByteArray &text, bool inChunks = false) const
    {
        for (const char byte : text) {
            if (!say(inChunks ? chunk(QByteArray(1, byte)) : QByteArray(1, byte)))
                return false;
            std::this_thread::sleep_for(kDrip);
        }
        return true;
    }
    void sayAgainAndAgain(const QByteArray &text) const
    {
        for (qint64 said = 0; said < kMostBytes && say(text);)
            said += text.size();
    }
    void waitForItsEnd() const
    {
        std::array<char, 65536> part{};
        while (::recv(m_socket, part.data(), part.size(), 0) > 0) {
        }
    }

    /// Nil at the end.
    std::optional<QByteArray> line()
    {
        while (!m_heard.contains('\n'))
            if (!hear())
                return std::nullopt;
        const qsizetype end = m_heard.indexOf('\n');
        const QByteArray text = m_heard.first(end).trimmed();
        m_heard.remove(0, end + 1);
        return text;
    }
    std::optional<QByteArray> bytes(qsizetype count)
    {
        while (m_heard.size() < count)
            if (!hear())
                return std::nullopt;
        const QByteArray text = m_heard.first(count);
        m_heard.remove(0, count);
        return text;
    }

private:
    bool hear()
    {
        std::array<char, 65536> part{};
        const ssize_t count = ::recv(m_socket, part.data(), part.size(), 0);
        m_heard.append(part.data(), qMax<ssize_t>(count, 0));
        return count > 0;
    }

    int m_socket;
    QByteArray m_heard;
};

struct Request
{
    bool isGet = false;
    QByteArray body; // the beginning of it
};

constexpr qsizetype kBeginning = 4096;

std::optional<QByteArray> readChunks(Connection &connection)
{
    QByteArray body;
    for (;;) {
        const auto size = connection.line();
        if (!size)
            return std::nullopt;
        const qsizetype count = size->toLongLong(nullptr, 16);
        const auto part = connection.bytes(count);
        if (!part || !connection.line())
            return std::nullopt;
        if (count == 0)
            return body;
        if (body.size() < kBeginning)
            body += *part;
    }
}

std::optional<Request> readRequest(Connection &connection)
{
    const auto first = connection.line();
    if (!first)
        return std::nullopt;
    bool isChunked = false;
    bool isExpecting = false;
    qsizetype length = 0;
    for (;;) {
        const auto field = connection.line();
        if (!field)
            return std::nullopt;
        if (field->isEmpty())
            break;
        const QByteArray name = field->left(field->indexOf(':')).toLower();
        const QByteArray value = field->mid(field->indexOf(':') + 1).trimmed();
        isChunked = isChunked || (name == "transfer-encoding" && value == "chunked");
        isExpecting = isExpecting || name == "expect";
        length = name == "content-length" ? value.toLongLong() : length;
    }
    if (isExpecting)
        connection.say("HTTP/1.1 100 Continue\r\n\r\n");
    const auto body = isChunked ? readChunks(connection) : connection.bytes(length);
    return body ? std::optional(Request{first->startsWith("GET"), *body}) : std::nullopt;
}

const QByteArray kIpp = "application/ipp";
const QByteArray kHarmfulWords = "\x1b]0;owned\x07\x1b[31mprinted as %2\nqnprint: a second line \xe2\x80\xae and more";

QByteArray nested(quint32 request)
{
    const QByteArray opening = attribute(0x4a, "", "m") + attribute(0x34, "", "");
    return head(request) + kPrinterAttributes + attribute(0x34, "media-col-default", "") + opening.repeated(kNesting) +
           attribute(0x37, "", "").repeated(kNesting + 1) + kEnd;
}

/// True when the connection may go on. `elsewhere`: a port that nobody has chosen.
bool misbehave(const Connection &connection, Mode mode, const QByteArray &body, quint32 request, const QByteArray &type,
               int elsewhere)
{
    const auto status = [&](const QByteArray &line, const QByteArray &further = {}) {
        return connection.say(http({}, type, {}, line, further));
    };
    switch (mode) {
    case Mode::rubbishInTheAnswer: return connection.say(http(QByteArray("\x03rubbish\xff").repeated(500), type));
    case Mode::rubbish: connection.say(QByteArray("\x03rubbish\xff\n").repeated(900)); return false;
    case Mode::halfAnAnswer: connection.say(http(body.first(body.size() / 2), type, body.size())); return false;
    case Mode::close: return false;
    case Mode::tooShortALength: return connection.say(http(body, type, qMax<qint64>(1, body.size() / 3)));
    case Mode::hugeLength: connection.say(http(body, type, 1'000'000'000'000'000)); break;
    case Mode::negativeLength: return connection.say(http(body, type, -5));
    case Mode::silence: break;
    case Mode::drip: return connection.sayByByte(http(body, type));
    case Mode::endlessDrip:
        connection.say(chunkedHead(type));
        for (const char byte : body.chopped(1))
            connection.say(chunk(QByteArray(1, byte)));
        connection.sayByByte(attribute(0x41, "a", QByteArray(kMostDrips, 'x')), true);
        return false;
    case Mode::endlessHeaders:
        connection.say("HTTP/1.1 200 OK\r\n");
        connection.sayAgainAndAgain("X-A: " + QByteArray(1000, 'b') + "\r\n");
        return false;
    case Mode::endlessLine:
        connection.say("HTTP/1.1 200 OK\r\nX: ");
        connection.sayAgainAndAgain(QByteArray(65536, 'b'));
        return false;
    case Mode::endlessContinue:
        connection.sayAgainAndAgain(QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(100));
        return false;
    case Mode::endlessAnswer:
        connection.say(chunkedHead(type) + chunk(head(request) + kPrinterAttributes));
        connection.sayAgainAndAgain(chunk(attribute(0x41, "a", QByteArray(30000, 'x'))));
        return false;
    case Mode::endlessBody:
        connection.say(chunkedHead(type));
        connection.sayAgainAndAgain(chunk(QByteArray(65536, '*')));
        return false;
    case Mode::nesting: return connection.say(http(nested(request), type));
    case Mode::redirect:
        return status("301 Moved", "Location: http://127.0.0.1:" + QByteArray::number(elsewhere) + "/other\r\n");
    case Mode::namesAnother: return connection.say(http(body, type));
    case Mode::password: return status("401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n");
    case Mode::upgrade: return status("426 Upgrade Required", "Upgrade: TLS/1.2\r\nConnection: Upgrade\r\n");
    case Mode::error: return status("500 Internal");
    case Mode::notFound: return status("404 Not Found");
    case Mode::unknownHttpStatus: return status("4010 Odd");
    case Mode::unknownStatus: return connection.say(http(head(request, 0x7379) + kEnd, type));
    case Mode::refusal:
        return connection.say(
            http(head(request, 0x0400) + attribute(0x41, "status-message", kHarmfulWords) + kEnd, type));
    }
    connection.waitForItsEnd();
    return false;
}

QByteArray examplePPD()
{
    QFile file(QN_SOURCE_DIR "/examples/ppd/full.ppd");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A socket that listens on a free port of loopback, and which.
int listenOnLoopback(int &port)
{
    const int listening = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    if (::bind(listening, reinterpret_cast<sockaddr *>(&address), size) != 0 || ::listen(listening, 50) != 0 ||
        ::getsockname(listening, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        qFatal("no port on loopback can be had");
    port = ntohs(address.sin_port);
    return listening;
}

} // namespace

Bystander::Bystander()
    : m_socket(listenOnLoopback(m_port))
    , m_listener([this](const std::stop_token &stop) {
        while (!stop.stop_requested()) {
            const int visitor = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
            m_visits += visitor >= 0 ? 1 : 0;
            ::close(visitor);
        }
    })
{}

Bystander::~Bystander()
{
    m_listener.request_stop();
    ::shutdown(m_socket, SHUT_RDWR);
    m_listener.join();
    ::close(m_socket);
}

MisbehavingServer::MisbehavingServer(QMap<Step, Mode> faults)
    : m_faults(std::move(faults))
    , m_socket(listenOnLoopback(m_port))
    , m_ppd(examplePPD())
    , m_listener([this](const std::stop_token &stop) { listen(stop); })
{}

MisbehavingServer::Served::~Served()
{
    ::shutdown(socket, SHUT_RDWR);
    thread.join();
    ::close(socket);
}

MisbehavingServer::~MisbehavingServer()
{
    m_listener.request_stop();
    ::shutdown(m_socket, SHUT_RDWR);
    m_listener.join();
    ::close(m_socket);
    m_connections.clear();
}

QProcessEnvironment MisbehavingServer::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CUPS_SERVER", QString("127.0.0.1:%1").arg(m_port));
    for (const char *folder :
         {"HOME", "CUPS_SERVERROOT", "TMPDIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(folder, m_folder.path());
    return environment;
}

void MisbehavingServer::adoptEnvironment() const
{
    const QProcessEnvironment all = environment();
    for (const QString &name : all.keys())
        qputenv(name.toUtf8().constData(), all.value(name).toUtf8());
    host::setConversationProgram(QN_PROGRAM);
}

void MisbehavingServer::mend()
{
    const std::scoped_lock lock(m_mutex);
    m_faults.clear();
}

void MisbehavingServer::setPPD(const QByteArray &ppd)
{
    const std::scoped_lock lock(m_mutex);
    m_ppd = ppd;
}

QList<Step> MisbehavingServer::asked() const
{
    const std::scoped_lock lock(m_mutex);
    return m_asked;
}

QByteArray MisbehavingServer::heard(Step step) const
{
    const std::scoped_lock lock(m_mutex);
    return m_heard.value(step);
}

/// Some answers have the library connect again and again: what has ended is let go, or threads and files would run out.
void MisbehavingServer::listen(const std::stop_token &stop)
{
    while (!stop.stop_requested()) {
        const int connection = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0)
            continue;
        const int one = 1;
        ::setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &one, sizeof(one));
        m_connections.remove_if([](const Served &each) { return each.hasEnded.load(); });
        Served &served = m_connections.emplace_back(connection);
        served.thread = std::thread([this, &served] {
            serve(served.socket);
            ::shutdown(served.socket, SHUT_RDWR);
            served.hasEnded = true;
        });
    }
}

void MisbehavingServer::serve(int socket)
{
    Connection connection(socket);
    while (const auto request = readRequest(connection)) {
        const auto at = reinterpret_cast<const uchar *>(request->body.constData());
        if (!request->isGet && request->body.size() < 8)
            return;
        const int operation = request->isGet ? 0 : at[2] << 8 | at[3];
        const quint32 id = request->isGet ? 0 : quint32{at[4]} << 24 | at[5] << 16 | at[6] << 8 | at[7];
        const Step step = request->isGet ? Step::ppd : stepOf(operation);
        std::optional<Mode> fault;
        QByteArray ppd;
        {
            const std::scoped_lock lock(m_mutex);
            m_asked.append(step);
            m_heard[step] = request->body;
            if (m_faults.contains(step))
                fault = m_faults[step];
            ppd = m_ppd;
        }
        const QByteArray type = request->isGet ? "application/vnd.cups-ppd" : kIpp;
        const int where = fault == Mode::namesAnother ? m_bystander.port() : m_port;
        const QByteArray body = request->isGet ? ppd : answerTo(step, id, where);
        const bool goesOn = fault ? misbehave(connection, *fault, body, id, type, m_bystander.port())
                                  : connection.say(http(body, type));
        if (!goesOn)
            return;
    }
}

} // namespace support
