// Printing from the command line: the dialog without a face, driven to its end.
#include "OpenDialog.h"

#include "Interrupts.h"

#include "Dialog/PrintDialog.h"
#include "Toolkit/Alert.h"

#include <QEventLoop>

#include <iostream>

namespace host {

namespace {

/// Prints as soon as there is a printer, and tells what becomes of it. The exit status.
int runToItsEnd(PrintDialog &dialog)
{
    QEventLoop loop;
    const auto refuse = [&loop](const QString &sentence) {
        complain(sentence);
        loop.exit(kRefused);
    };
    QObject::connect(&dialog, &PrintDialog::remarked, [](const QStringList &sentences) {
        for (const QString &sentence : sentences)
            complain(sentence);
    });
    QObject::connect(&dialog, &PrintDialog::refused, [&loop] { loop.exit(kRefused); });
    QObject::connect(&dialog, &PrintDialog::failed,
                     [&](const foundation::Problem &problem) { refuse(problem.sentence); });
    QObject::connect(&dialog, &PrintDialog::printed, [&loop](const QString &where) {
        std::cout << where.toStdString() << std::endl;
        loop.exit(kDone);
    });
    const auto go = [&] {
        if (dialog.state() == PrintDialog::State::noPrinter)
            return refuse(dialog.problem().sentence);
        if (!dialog.target()->note().isEmpty())
            complain(dialog.target()->note());
        dialog.print();
    };
    if (dialog.state() == PrintDialog::State::looking)
        QObject::connect(&dialog, &PrintDialog::stateChanged, &loop, go, Qt::SingleShotConnection);
    else
        QMetaObject::invokeMethod(&loop, go, Qt::QueuedConnection);
    const Interrupts interrupts([&] {
        if (dialog.state() == PrintDialog::State::sending)
            dialog.stop(); // the program would leave half a job behind
        else
            refuse("stopped");
    });
    return loop.exec();
}

} // namespace

int printWithoutWindow(const CommandLine &line)
{
    if (line.files.size() != 1) {
        complain(line.files.isEmpty() ? QString("--no-dialog: no document to print")
                                      : QString("%1: only one document at a time").arg(line.files[1]));
        return kWrongUse;
    }
    auto document = Document::open(line.files.first());
    if (!document) {
        complain(document.problem().sentence);
        return kRefused;
    }
    toolkit::Alert::setPresenter([](const toolkit::Alert &alert) {
        complain((alert.messageText() + ' ' + alert.informativeText()).simplified());
    });
    PrintDialog dialog(line.request, *std::move(document));
    if (const auto started = dialog.start(); !started) {
        complain(started.problem().sentence);
        return kRefused;
    }
    return runToItsEnd(dialog);
}

} // namespace host
