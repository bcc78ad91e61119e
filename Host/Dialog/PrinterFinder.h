// Keeps a window supplied with printers of the CUPS server: which there are, and the one that is chosen.
// Everything that asks the server is done in the background.
#pragma once

#include "Cups/Queues.h"
#include "Program/CommandLine.h"

#include <QObject>

namespace host {

class DialogWindow;
struct Printer;

class QueueSupply : public QObject
{
    Q_OBJECT

public:
    /// The window owns it. Starts with the queue of the command line.
    QueueSupply(CommandLine line, DialogWindow &window);

private:
    struct Fetched
    {
        std::optional<Queue> queue;
        QString error;
    };

    void fetch(const QueueName &name, const OptionValues &carried = {});
    void use(const Fetched &fetched, const OptionValues &carried);
    void show(Printer printer);
    void findNames();
    void offer(const std::optional<QueueNames> &found);

    CommandLine m_line;
    DialogWindow &m_window;
    QueueName m_wanted;
    QStringList m_names;
    bool m_hasNames = false; // all of them
    QString m_shown;         // the queue in the window; empty before there is one
    int m_turn = 0;          // of fetching: only the last one counts, and only once
};

} // namespace host
