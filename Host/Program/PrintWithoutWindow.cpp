// Printing from the command line: the dialog without a face, driven to its end.
#include "OpenDialog.h"

#include "Interrupts.h"

#include "Dialog/PrintDialog.h"
#include "Toolkit/Alert.h"

#include <QEventLoop>

namespace host {

namespace {

/// Prints as soon as there is a printer, and tells what becomes of it.
class Batch
{
public:
    explicit Batch(PrintDialog &dialog)
        : m_dialog(dialog)
    {
        QObject::connect(&dialog, &PrintDialog::remarked, &m_loop, [](const QStringList &sentences) {
            for (const QString &sentence : sentences)
                complain(sentence);
        });
        QObject::connect(&dialog, &PrintDialog::refused, &m_loop, [this] { m_loop.exit(kRefused); });
        QObject::connect(&dialog, &PrintDialog::failed, &m_loop,
                         [this](const foundation::Problem &problem) { refuse(problem.sentence); });
        QObject::connect(&dialog, &PrintDialog::printed, &m_loop, [this](const QString &where) {
            report(where);
            m_loop.exit(kDone);
        });
    }

    /// The exit status.
    int run()
    {
        if (m_dialog.state() == PrintDialog::State::looking)
            QObject::connect(
                &m_dialog, &PrintDialog::stateChanged, &m_loop, [this] { go(); }, Qt::SingleShotConnection);
        else
            QMetaObject::invokeMethod(&m_loop, [this] { go(); }, Qt::QueuedConnection);
        const Interrupts interrupts([this] { interrupt(); });
        return m_loop.exec();
    }

private:
    void refuse(const QString &sentence)
    {
        complain(sentence);
        m_loop.exit(kRefused);
    }
    void go()
    {
        if (m_dialog.state() == PrintDialog::State::noPrinter)
            return refuse(m_dialog.problem().sentence);
        if (!m_dialog.target()->note().isEmpty())
            complain(m_dialog.target()->note());
        m_dialog.print();
    }
    void interrupt()
    {
        if (m_dialog.state() == PrintDialog::State::sending)
            m_dialog.stop(); // the program would leave half a job behind
        else
            refuse("stopped");
    }

    PrintDialog &m_dialog;
    QEventLoop m_loop;
};

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
    const toolkit::PresentAlerts toStandardError([](const toolkit::Alert &alert) {
        complain((alert.messageText() + ' ' + alert.informativeText()).simplified());
    });
    PrintDialog dialog(line.request, *std::move(document));
    if (const auto started = dialog.start(); !started) {
        complain(started.problem().sentence);
        return kRefused;
    }
    return Batch(dialog).run();
}

} // namespace host
