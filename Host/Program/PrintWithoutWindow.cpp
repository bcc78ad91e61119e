// Printing from the command line: the dialog without a face, driven to its end.
#include "OpenDialog.h"

#include "Interrupts.h"

#include "Dialog/PrintDialog.h"
#include "Foundation/PlainText.h"
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
                         [this](const foundation::Problem &problem) { fail(problem); });
        QObject::connect(&dialog, &PrintDialog::printed, &m_loop, [](const QString &where, const QString &fate) {
            report(fate.isEmpty() ? where : where + ' ' + foundation::plainLine(fate));
        });
        QObject::connect(&dialog, &PrintDialog::finished, &m_loop, [this] { m_loop.exit(kDone); });
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
    void fail(const foundation::Problem &problem)
    {
        refuse(problem.sentence);
        for (std::size_t i = 1; i < m_dialog.documents().size(); ++i)
            complain(QString("%1: not printed").arg(m_dialog.documents()[i]->title()));
    }
    void go()
    {
        if (m_dialog.state() == PrintDialog::State::noPrinter)
            return refuse(m_dialog.problem().sentence);
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
            refuse("cancelled; nothing was printed");
    }

    PrintDialog &m_dialog;
    QEventLoop m_loop;
};

} // namespace

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
    if (dialog.documents().size() < static_cast<std::size_t>(line.files.size())) {
        complain(dialog.message()); // and none of the others is printed either
        return kRefused;
    }
    if (const auto started = dialog.start(); !started) {
        complain(started.problem().sentence);
        return kRefused;
    }
    return Batch(dialog).run();
}

} // namespace host
