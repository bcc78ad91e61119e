// The dialog from the command line.
#include "RunDialog.h"

#include "CommandLine.h"
#include "Destinations.h"
#include "DialogWindow.h"
#include "Toolkit/Alert.h"

#include <QApplication>
#include <QThreadPool>

#include <iostream>

namespace host {

namespace {

/// What a printer needs to be used: its session, and where its jobs go.
struct Printer
{
    QString name;
    std::unique_ptr<DialogSession> session;
    std::unique_ptr<JobSink> sink;
};

DialogSession::Parameters parametersFor(const CommandLine &line)
{
    DialogSession::Parameters parameters;
    parameters.localization = line.language;
    return parameters;
}

std::optional<Printer> printerOfPPD(const CommandLine &line, QString *error)
{
    auto parameters = parametersFor(line);
    parameters.ppdPath = line.ppd;
    parameters.defaults = line.options;
    auto session = DialogSession::open(parameters, error);
    if (!session)
        return std::nullopt;
    const QString name = session->ppd().attribute("NickName").value_or(line.ppd);
    return Printer{name, std::move(session), std::make_unique<FolderSink>(line.output)};
}

std::optional<Printer> printerOfQueue(const CommandLine &line, const Queue &queue, QString *error)
{
    auto parameters = parametersFor(line);
    parameters.ppdPath = queue.ppd->path();
    parameters.uri = queue.uri;
    parameters.defaults = queue.savedOptions;
    parameters.defaults.insert(line.options);
    auto session = DialogSession::open(parameters, error);
    if (!session)
        return std::nullopt;
    return Printer{queue.name, std::move(session), std::make_unique<CupsSink>(queue.name)};
}

std::optional<Printer> printerOf(const CommandLine &line, QString *error)
{
    if (!line.ppd.isEmpty())
        return printerOfPPD(line, error);
    const auto queue = findQueue(line.queue, error);
    return queue ? printerOfQueue(line, *queue, error) : std::nullopt;
}

int printWithoutWindow(const CommandLine &line, Document &document)
{
    QString error;
    auto printer = printerOf(line, &error);
    if (!printer) {
        complain(error);
        return kRefused;
    }
    toolkit::Alert::setPresenter([](const toolkit::Alert &alert) {
        complain((alert.messageText() + ' ' + alert.informativeText()).simplified());
    });
    DialogSession &session = *printer->session;
    session.start(DialogSession::Prepare::everyPanel);
    if (!session.shouldPrint())
        return kRefused;
    const Job job{document, line.title.isEmpty() ? document.title() : line.title, line.copies,
                  session.ppd().jobOptions()};
    const auto result = printer->sink->submit(job, [](qint64, qint64) { return true; });
    if (!result.done) {
        complain(result.sentence);
        return kRefused;
    }
    std::cout << result.sentence.toStdString() << std::endl;
    return kDone;
}

/// Keeps a window supplied with the queue that is chosen in it. Nothing of the server is asked on the window's thread.
class QueueSupply : public QObject
{
public:
    QueueSupply(const CommandLine &line, DialogWindow &window)
        : QObject(&window)
        , m_line(line)
        , m_window(window)
    {
        connect(&window, &DialogWindow::printerChosen, this, &QueueSupply::fetch);
        m_window.say(tr("Looking for printers…"));
        fetch(line.queue);
        QThreadPool::globalInstance()->start([this] {
            const QueueNames found = queueNames();
            QMetaObject::invokeMethod(
                this, [this, found] { offer(found); }, Qt::QueuedConnection);
        });
    }

private:
    void offer(const QueueNames &found)
    {
        const QString wanted = m_line.queue.isEmpty() ? found.standard : m_line.queue;
        m_window.offerPrinters(found.names, m_shown.isEmpty() ? wanted : m_shown);
    }

    void fetch(const QString &name)
    {
        const int turn = ++m_turn; // only the last choice counts
        QThreadPool::globalInstance()->start([this, name, turn] {
            QString error;
            const auto queue = findQueue(name, &error);
            QMetaObject::invokeMethod(
                this,
                [this, queue, error, turn] {
                    if (turn == m_turn)
                        use(queue, error);
                },
                Qt::QueuedConnection);
        });
    }

    void use(const std::optional<Queue> &queue, QString error)
    {
        auto printer = queue ? printerOfQueue(m_line, *queue, &error) : std::nullopt;
        if (!printer)
            return m_window.say(error);
        m_shown = printer->name;
        m_window.offerPrinters({m_shown}, m_shown);
        m_window.usePrinter(std::move(printer->session), std::move(printer->sink));
        QThreadPool::globalInstance()->start([this] {
            const QueueNames found = queueNames();
            QMetaObject::invokeMethod(
                this, [this, found] { offer(found); }, Qt::QueuedConnection);
        });
    }

    CommandLine m_line;
    DialogWindow &m_window;
    QString m_shown;
    int m_turn = 0;
};

} // namespace

int runDialog(const QStringList &arguments)
{
    int status = kDone;
    const auto line = readCommandLine(arguments, "[file]", &status);
    if (!line)
        return status;
    if (line->files.size() > 1) {
        complain(QString("%1: only one document at a time").arg(line->files[1]));
        return kWrongUse;
    }
    QString error;
    auto document = line->files.isEmpty() ? nullptr : Document::open(line->files.first(), &error);
    if (!document && !(line->files.isEmpty() && !line->noDialog)) {
        complain(line->files.isEmpty() ? QString("--no-dialog: no document to print") : error);
        return line->files.isEmpty() ? kWrongUse : kRefused;
    }
    if (line->noDialog)
        return printWithoutWindow(*line, *document);

    DialogWindow window(std::move(document));
    window.setCopies(line->copies);
    window.setTitle(line->title);
    QObject::connect(&window, &DialogWindow::printed,
                     [](const QString &where) { std::cout << where.toStdString() << std::endl; });
    if (line->ppd.isEmpty()) {
        new QueueSupply(*line, window); // the window's
    } else {
        auto printer = printerOfPPD(*line, &error);
        if (!printer) {
            complain(error);
            return kRefused;
        }
        window.offerPrinters({printer->name}, printer->name);
        window.usePrinter(std::move(printer->session), std::move(printer->sink));
        if (!line->panel.isEmpty() && !window.showPanel(line->panel)) {
            complain(QString("--panel %1: there is no such panel").arg(line->panel));
            return kWrongUse;
        }
    }
    return window.exec() == QDialog::Accepted ? kDone : kRefused;
}

int runShot(const QStringList &arguments)
{
    int status = kDone;
    const auto line = readCommandLine(arguments, "picture.png", &status);
    if (!line)
        return status;
    if (line->ppd.isEmpty() || line->files.size() != 1) {
        complain("shot: needs --ppd FILE and the name of one picture");
        return kWrongUse;
    }
    QString error;
    auto printer = printerOfPPD(*line, &error);
    if (!printer) {
        complain(error);
        return kRefused;
    }
    DialogWindow window(nullptr);
    window.offerPrinters({printer->name}, printer->name);
    window.usePrinter(std::move(printer->session), std::move(printer->sink));
    if (!line->panel.isEmpty() && !window.showPanel(line->panel)) {
        complain(QString("--panel %1: there is no such panel").arg(line->panel));
        return kWrongUse;
    }
    window.show();
    QCoreApplication::processEvents();
    if (!window.grab().save(line->files.first())) {
        complain(QString("%1: can't be written").arg(line->files.first()));
        return kRefused;
    }
    return kDone;
}

} // namespace host
