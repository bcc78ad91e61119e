// Printing from the command line: the dialog without a face, driven to its end.
#include "PrintUnseen.h"

#include "Interrupts.h"
#include "OpenDialog.h"

#include "Dialog/PrintDialog.h"
#include "Foundation/PlainText.h"
#include "Toolkit/Alert.h"

#include <QEventLoop>

namespace host {

using foundation::Or;
using foundation::Problem;

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
        QObject::connect(&dialog, &PrintDialog::refused, &m_loop, [this] { fail(Problem()); });
        QObject::connect(&dialog, &PrintDialog::failed, &m_loop, [this](const Problem &problem) { fail(problem); });
        QObject::connect(&dialog, &PrintDialog::printed, &m_loop, [](const QString &where, const QString &fate) {
            report(fate.isEmpty() ? where : where + ' ' + foundation::plainLine(fate));
        });
        QObject::connect(&dialog, &PrintDialog::finished, &m_loop, [this] {
            m_hasPrinted = true;
            m_loop.exit();
        });
    }

    Or<void> run()
    {
        if (m_dialog.state() == PrintDialog::State::looking)
            QObject::connect(
                &m_dialog, &PrintDialog::stateChanged, &m_loop, [this] { go(); }, Qt::SingleShotConnection);
        else
            QMetaObject::invokeMethod(&m_loop, [this] { go(); }, Qt::QueuedConnection);
        const Interrupts interrupts([this] { interrupt(); });
        m_loop.exec();
        return m_hasPrinted ? Or<void>() : Or<void>(m_problem);
    }

private:
    void fail(const Problem &problem)
    {
        m_problem = problem;
        m_loop.exit();
    }
    void go()
    {
        if (m_dialog.state() == PrintDialog::State::noPrinter)
            return fail(m_dialog.problem());
        if (!m_dialog.target()->note().isEmpty())
            complain(m_dialog.target()->note());
        for (const QString &doubt : m_dialog.target()->doubts())
            complain(doubt);
        m_dialog.print();
    }
    void interrupt()
    {
        if (m_dialog.state() == PrintDialog::State::sending)
            m_dialog.stop(); // the program would leave half a job behind
        else
            fail(Problem{"cancelled; nothing was printed"});
    }

    PrintDialog &m_dialog;
    QEventLoop m_loop;
    bool m_hasPrinted = false;
    Problem m_problem;
};

} // namespace

Or<void> printUnseen(PrintDialog &dialog) { return Batch(dialog).run(); }

int printWithoutWindow(const CommandLine &line)
{
    if (line.files.isEmpty()) {
        complain("--no-dialog: no document to print");
        return kWrongUse;
    }
    const toolkit::PresentAlerts toStandardError([](const toolkit::Alert &alert) {
        complain((alert.messageText() + ' ' + alert.informativeText()).simplified());
    });
    PrintDialog dialog(line.request, nullptr);
    dialog.chooseDocuments(line.files);
    removeTemporaries(line);
    if (dialog.documents().size() < static_cast<std::size_t>(line.files.size())) {
        complain(dialog.message()); // and none of the others is printed either
        return kRefused;
    }
    if (const auto started = dialog.start(); !started) {
        complain(started.problem().sentence);
        return kRefused;
    }
    const auto printed = printUnseen(dialog);
    if (printed)
        return kDone;
    if (!printed.problem().sentence.isEmpty()) // a panel that does not agree has told why
        complain(printed.problem().sentence);
    for (std::size_t i = 1; i < dialog.documents().size(); ++i)
        complain(QString("%1: not printed").arg(dialog.documents()[i]->title()));
    return kRefused;
}

} // namespace host
