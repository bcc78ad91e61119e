// The dialog from the command line.
#include "RunDialog.h"

#include "CommandLine.h"
#include "Dialog/PrintTarget.h"
#include "Dialog/PrinterFinder.h"
#include "Toolkit/Alert.h"
#include "Window/DialogWindow.h"
#include "Window/WindowTexts.h"

#include <QApplication>

#include <atomic>
#include <csignal>
#include <iostream>

namespace host {

namespace {

std::optional<Printer> printerOf(const CommandLine &line, QString *error)
{
    if (!line.ppd.isEmpty())
        return printerOfPPD(line, error);
    const auto queue = findQueue(QueueName::fromText(line.queue), error);
    return queue ? printerOfQueue(line, *queue, {}, error) : std::nullopt;
}

std::atomic<bool> interrupted = false;

/// While it lives, an interrupt stops the job instead of the program, which would leave half a job behind.
class StopJobOnInterrupt
{
public:
    StopJobOnInterrupt()
    {
        for (const int number : {SIGINT, SIGTERM})
            std::signal(number, [](int) { interrupted = true; });
    }
    ~StopJobOnInterrupt()
    {
        for (const int number : {SIGINT, SIGTERM})
            std::signal(number, SIG_DFL);
    }
};

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
    if (!printer->note.isEmpty())
        complain(printer->note);
    if (DialogSession *const session = printer->session.get()) {
        session->start(DialogSession::Prepare::everyPanel);
        const bool agreed = session->shouldPrint();
        for (const QString &remark : session->takeRemarks())
            complain(remark);
        if (!agreed)
            return kRefused;
    }
    const Job job{document, line.title.isEmpty() ? document.title() : line.title, printer->copies, printer->pages,
                  printer->jobOptions()};
    const StopJobOnInterrupt stop;
    const auto result = printer->sink->submit(job, [](qint64, qint64) { return !interrupted; });
    if (!result.done) {
        complain(result.sentence);
        return kRefused;
    }
    std::cout << result.sentence.toStdString() << std::endl;
    return kDone;
}

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

    useWindowTexts(line->language);
    DialogWindow window(std::move(document));
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
        window.showPrinterName(printer->name);
        window.usePrinter(*std::move(printer));
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
    useWindowTexts(line->language);
    DialogWindow window(nullptr);
    window.showPrinterName(printer->name);
    window.usePrinter(*std::move(printer));
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
