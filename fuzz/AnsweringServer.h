// A server in this process that answers whatever it is asked with what it was given, one answer a request.
#pragma once

#include <QByteArrayList>

#include <thread>

namespace fuzzing {

class AnsweringServer
{
public:
    /// Hangs up behind the last answer. One that does not begin like HTTP is the body of a proper one.
    AnsweringServer(const QString &path, QByteArrayList answers);
    ~AnsweringServer();
    AnsweringServer(const AnsweringServer &) = delete;
    AnsweringServer &operator=(const AnsweringServer &) = delete;

private:
    void listen();
    void serve(int socket);

    int m_socket;
    QByteArrayList m_answers;
    std::jthread m_thread;
};

} // namespace fuzzing
