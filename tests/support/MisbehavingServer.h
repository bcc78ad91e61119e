// A CUPS server that answers well, but for some questions to which it does something else. On loopback, and gone with
// the test.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <atomic>
#include <list>
#include <mutex>
#include <thread>

namespace support {

/// A server that nobody has chosen: a port on loopback that counts who comes, and hangs up on them.
class Bystander
{
public:
    Bystander();
    ~Bystander();
    Bystander(const Bystander &) = delete;
    Bystander &operator=(const Bystander &) = delete;

    int port() const { return m_port; }
    int visits() const { return m_visits; }

private:
    int m_port = 0;
    int m_socket;
    std::atomic<int> m_visits = 0;
    std::jthread m_listener;
};

class MisbehavingServer
{
public:
    /// The questions that a job asks, in their order.
    enum class Step { standard, attributes, ppd, create, send, cancel, none };

    /// What it does instead of answering.
    enum class Mode {
        rubbishInTheAnswer,
        rubbish,
        halfAnAnswer,
        close,
        tooShortALength,
        hugeLength,
        negativeLength,
        silence,
        drip,
        endlessDrip,
        endlessHeaders,
        endlessLine,
        endlessContinue,
        endlessAnswer,
        endlessBody,
        nesting,
        redirect,     // to the bystander
        namesAnother, // answers well, but the bystander is where printer and job are said to be
        password,
        upgrade,
        error,
        notFound,
        unknownHttpStatus,
        unknownStatus,
        refusal, // with words that would do harm on a terminal
    };

    explicit MisbehavingServer(QMap<Step, Mode> faults);
    ~MisbehavingServer();
    MisbehavingServer(const MisbehavingServer &) = delete;
    MisbehavingServer &operator=(const MisbehavingServer &) = delete;

    /// From now on it answers well.
    void mend();
    /// The PPD of its queue, in place of the full example.
    void setPPD(const QByteArray &ppd);
    /// Makes it the server of this process, once and for good; files of the user go into a folder of its own.
    void adoptEnvironment() const;
    /// The environment in which programs find this server and no other.
    QProcessEnvironment environment() const;
    /// What was asked, in its order.
    QList<Step> asked() const;
    /// The last question of a kind as it came, or its beginning.
    QByteArray heard(Step step) const;
    bool wasAsked(Step step) const { return asked().contains(step); }
    /// Those who went to the server that this one has named in its place.
    int visitsToBystander() const { return m_bystander.visits(); }

private:
    /// A connection and the thread that serves it.
    struct Served
    {
        explicit Served(int connection)
            : socket(connection)
        {}
        ~Served();

        int socket;
        std::atomic<bool> hasEnded = false;
        std::thread thread;
    };

    void listen(const std::stop_token &stop);
    void serve(int connection);

    QMap<Step, Mode> m_faults;
    QTemporaryDir m_folder;
    Bystander m_bystander;
    int m_port = 0;
    int m_socket;
    mutable std::mutex m_mutex;
    QList<Step> m_asked;
    QMap<Step, QByteArray> m_heard;
    QByteArray m_ppd;
    std::list<Served> m_connections; // the listener's
    std::jthread m_listener;
};

} // namespace support
