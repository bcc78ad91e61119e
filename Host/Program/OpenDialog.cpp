// The window from the command line, and its picture.
#include "OpenDialog.h"

#include "Cups/Conversation.h"
#include "Window/DialogWindow.h"
#include "Window/WindowTexts.h"

#include <QApplication>

#include <iostream>

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

/// Opens the dialog in its window and hands that over; the exit status.
int withWindow(const CommandLine &line, const std::shared_ptr<Document> &document,
               const std::function<int(DialogWindow &window)> &use)
{
    PrintDialog dialog(line.request, document);
    QObject::connect(&dialog, &PrintDialog::printed, [](const QString &where) {
        std::cout << where.toStdString() << '\n' << std::flush;
    });
    if (const auto started = dialog.start(); !started) {
        complain(started.problem().sentence);
        return kRefused;
    }
    DialogWindow window(dialog);
    const int status = showPanel(window, dialog, line.panel);
    return status == kDone ? use(window) : status;
}

} // namespace

int openDialog(const CommandLine &line)
{
    if (line.files.size() > 1) {
        complain(QString("%1: only one document at a time").arg(line.files[1]));
        return kWrongUse;
    }
    useWindowTexts(line.request.language);
    setConversationLanguage(line.request.language);
    std::shared_ptr<Document> document;
    if (!line.files.isEmpty()) {
        auto opened = Document::open(line.files.first());
        if (!opened) {
            complain(opened.problem().sentence);
            return kRefused;
        }
        document = *std::move(opened);
    }
    return withWindow(line, document,
                      [](DialogWindow &window) { return window.exec() == QDialog::Accepted ? kDone : kRefused; });
}

int takeShot(const CommandLine &line)
{
    if (line.request.ppd.isEmpty() || line.files.size() != 1) {
        complain("shot: needs --ppd FILE and the name of one picture");
        return kWrongUse;
    }
    useWindowTexts(line.request.language);
    return withWindow(line, nullptr, [&line](DialogWindow &window) {
        window.show();
        QCoreApplication::processEvents();
        if (window.grab().save(line.files.first()))
            return kDone;
        complain(QString("%1: can't be written").arg(line.files.first()));
        return kRefused;
    });
}

} // namespace host
