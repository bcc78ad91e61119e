// A process of a dialog or a job: this program once more. Two dialogs can't live in one process, and none of them, nor
// a document, is to take the service with it.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QProcess>

#include <memory>
#include <optional>

namespace host {

/// An open file that is closed with its last holder; copies share it.
class SharedDescriptor
{
public:
    SharedDescriptor() = default;
    /// Takes a duplicate; the original stays the caller's.
    explicit SharedDescriptor(int descriptor);
    /// -1 for none.
    int number() const { return m_descriptor ? *m_descriptor : -1; }

private:
    std::shared_ptr<const int> m_descriptor;
};

class PortalProcess : public QObject
{
    Q_OBJECT

public:
    enum class Input {
        isClosed,  // behind the request; the process goes on without us
        staysOpen, // as long as we want the process
    };

    explicit PortalProcess(QObject *parent);
    /// A dialog ends with us, a job does not.
    ~PortalProcess() override;

    void start(const char *word, const QJsonObject &request, Input input, const SharedDescriptor &document = {});
    /// Ends a process whose input stays open: it closes what it shows, or is killed when it does not.
    void dismiss();

Q_SIGNALS:
    /// Once. The status is nil when the process did not end by itself; the answer is empty when it gave none.
    void ended(std::optional<int> status, const QJsonObject &answer);

private:
    void end(std::optional<int> status);

    QProcess *m_process;
    Input m_input = Input::isClosed;
    bool m_hasEnded = false;
};

} // namespace host
