#include "PortalProcess.h"

#include "PortalRequest.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTimer>

#include <chrono>
#include <fcntl.h>
#include <unistd.h>

namespace host {

namespace {

using namespace std::chrono_literals;

constexpr auto kFarewell = 2s; // of a dialog that is dismissed
constexpr qint64 kLongestAnswer = qint64{1} << 20;

} // namespace

SharedDescriptor::SharedDescriptor(int descriptor)
{
    const int own = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 3);
    if (own >= 0)
        m_descriptor = std::shared_ptr<const int>(new int(own), [](const int *number) {
            ::close(*number);
            delete number;
        });
}

PortalProcess::PortalProcess(QObject *parent)
    : QObject(parent)
    , m_process(new QProcess(this))
{
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process, &QProcess::finished, this, [this](int status, QProcess::ExitStatus how) {
        end(how == QProcess::NormalExit ? std::optional(status) : std::nullopt);
    });
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end(std::nullopt);
    });
}

PortalProcess::~PortalProcess()
{
    m_process->disconnect(this);
    if (m_input == Input::isClosed && m_process->state() != QProcess::NotRunning)
        m_process->setParent(nullptr); // it would be killed; left to itself it prints
    else
        m_process->kill();
}

void PortalProcess::start(const char *word, const QJsonObject &request, Input input, const SharedDescriptor &document)
{
    m_input = input;
    if (input == Input::isClosed)
        m_process->setStandardOutputFile(QProcess::nullDevice());
    m_process->setChildProcessModifier([document] {
        // Where they are the same, the mark that closes it has to go.
        if (document.number() == kDocumentDescriptor)
            ::fcntl(kDocumentDescriptor, F_SETFD, 0);
        else if (document.number() >= 0)
            ::dup2(document.number(), kDocumentDescriptor);
    });
    m_process->start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(word)});
    m_process->write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    if (input == Input::isClosed)
        m_process->closeWriteChannel();
}

void PortalProcess::dismiss()
{
    m_process->closeWriteChannel();
    QTimer::singleShot(kFarewell, m_process, &QProcess::kill);
}

void PortalProcess::end(std::optional<int> status)
{
    if (std::exchange(m_hasEnded, true))
        return;
    const QByteArray said = m_input == Input::staysOpen ? m_process->read(kLongestAnswer) : QByteArray();
    Q_EMIT ended(status, QJsonDocument::fromJson(said).object());
}

} // namespace host
