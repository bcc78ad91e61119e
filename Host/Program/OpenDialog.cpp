// The window from the command line, and its picture.
#include "OpenDialog.h"

#include "Cups/Conversation.h"
#include "Interrupts.h"
#include "Window/DialogWindow.h"
#include "Window/Notification.h"
#include "Window/WindowTexts.h"

#include <QApplication>

namespace host {

namespace {

/// Shows the panel that the command line names; one that is not there yet, as soon as its printer comes.
int showPanel(DialogWindow &window, const PrintDialog &dialog, const QString &panel)
{
    if (panel.isEmpty())
        return kDone;
    if (!dialog.target()) {
        window.showPanelFirst(panel);
    } else if (!window.showPanel(panel)) {
        complain(QString("--panel %1: there is no such panel").arg(panel));
        return kWrongUse;
    }
    return kDone;
}

/// Shows the window until it closes. A signal closes it, and all that is open over it; a job that is on its way is
/// stopped first, and what becomes of it is said where the signal came from.
int showUntilClosed(DialogWindow &window, PrintDialog &dialog)
{
    const auto close = [&window] {
        while (QWidget *const box = QApplication::activeModalWidget()) {
            if (box == &window || !box->close())
                break;
        }
        window.done(QDialog::Rejected);
    };
    const Interrupts interrupts([&dialog, close] {
        if (dialog.state() != PrintDialog::State::sending)
            return close();
        QObject::connect(&dialog, &PrintDialog::failed, &dialog, [close](const foundation::Problem &problem) {
            complain(problem.sentence);
            close();
        });
        dialog.stop();
    });
    return window.exec() == QDialog::Accepted ? kDone : kRefused;
}

/// Opens the dialog in its window and hands that over; the exit status.
int withWindow(const CommandLine &line, const QStringList &files,
               const std::function<int(DialogWindow &window, PrintDialog &dialog)> &use)
{
    PrintDialog dialog(line.request, nullptr);
    if (!files.isEmpty())
        dialog.chooseDocuments(files);
    QObject::connect(&dialog, &PrintDialog::printed, [](const QString &where, const QString &fate) {
        report(where);
        if (!fate.isEmpty())
            notify(fate);
    });
    if (const auto started = dialog.start(); !started) {
        complain(started.problem().sentence);
        return kRefused;
    }
    DialogWindow window(dialog);
    const int status = showPanel(window, dialog, line.panel);
    return status == kDone ? use(window, dialog) : status;
}

} // namespace

int openDialog(const CommandLine &line)
{
    useWindowTexts(line.request.language);
    setConversationLanguage(line.request.language);
    return withWindow(line, line.files, showUntilClosed);
}

int takeShot(const CommandLine &line)
{
    if (line.request.ppd.isEmpty() || line.files.isEmpty() || line.files.size() > 2) {
        complain("shot: needs --ppd FILE and the name of one picture, with a document before it or without");
        return kWrongUse;
    }
    useWindowTexts(line.request.language);
    const QStringList documents = line.files.first(line.files.size() - 1);
    return withWindow(line, documents, [&](DialogWindow &window, PrintDialog &dialog) {
        if (dialog.documents().size() < static_cast<std::size_t>(documents.size())) {
            complain(dialog.message());
            return kRefused;
        }
        window.showPreview(!documents.isEmpty());
        window.show();
        QCoreApplication::processEvents();
        while (!window.isComplete())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents(); // what has come last takes its place
        if (window.grab().save(line.files.last()))
            return kDone;
        complain(QString("%1: can't be written").arg(line.files.last()));
        return kRefused;
    });
}

} // namespace host
