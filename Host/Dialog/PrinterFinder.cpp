// Keeps a window supplied with printers of the CUPS server.
#include "PrinterFinder.h"

#include "Background.h"
#include "Window/DialogWindow.h"

#include <QTimer>

#include <utility>

namespace host {

namespace {

constexpr int kMillisecondsToWait = 25000; // longer than connecting and the silence that is put up with

} // namespace

QueueSupply::QueueSupply(CommandLine line, DialogWindow &window)
    : QObject(&window)
    , m_line(std::move(line))
    , m_window(window)
    , m_wanted(QueueName::fromText(m_line.queue))
{
    connect(&window, &DialogWindow::printerChosen, this, [this](const QString &name) { fetch({name, {}}); });
    connect(&window, &DialogWindow::retryWanted, this, [this] { fetch(m_wanted); });
    // What was chosen is kept, as far as the printer still has it.
    connect(&window, &DialogWindow::printerOutdated, this, [this] {
        fetch({m_shown, m_window.printer().preset}, m_window.printer().jobOptions());
    });
    if (!m_wanted.queue.isEmpty())
        m_window.showPrinterName(m_wanted.queue);
    fetch(m_wanted);
}

void QueueSupply::fetch(const QueueName &name, const OptionValues &carried)
{
    m_wanted = name;
    m_window.wait(tr("Looking for the printer…"));
    inBackground(
        *this,
        [name] {
            Fetched fetched;
            fetched.queue = findQueue(name, &fetched.error);
            return fetched;
        },
        [this, carried, turn = ++m_turn](const Fetched &fetched) {
            if (turn == m_turn)
                use(fetched, carried);
        });
    // Looking has an end of its own; should the library be held up all the same, the person is not.
    QTimer::singleShot(kMillisecondsToWait, this, [this, turn = m_turn] {
        if (turn == m_turn)
            use({std::nullopt, tr("The CUPS server does not answer.")}, {});
    });
}

void QueueSupply::use(const Fetched &fetched, const OptionValues &carried)
{
    ++m_turn; // what comes later is late
    QString error = fetched.error;
    auto printer = fetched.queue ? printerOfQueue(m_line, *fetched.queue, carried, &error) : std::nullopt;
    if (!printer) {
        m_window.offerRetry(error);
    } else {
        show(*std::move(printer));
        if (!carried.isEmpty())
            m_window.say(tr("The printer's description has changed on the server. Please look over the settings."));
    }
    if (!m_hasNames) // only now: a server is busy with many queues for a while, and nobody shall wait for that
        findNames();
}

void QueueSupply::show(Printer printer)
{
    m_shown = printer.name;
    if (!m_names.contains(m_shown))
        m_names.append(m_shown);
    m_window.offerPrinters(m_names, m_shown);
    m_window.usePrinter(std::move(printer));
    const QString panel = std::exchange(m_line.panel, {}); // to show first, and not after every change of the printer
    if (!panel.isEmpty() && !m_window.showPanel(panel))
        m_window.say(tr("There is no panel “%1”.").arg(panel));
}

void QueueSupply::findNames()
{
    inBackground(
        *this, [] { return queueNames(); }, [this](const std::optional<QueueNames> &found) { offer(found); });
}

/// Without names the printer that was asked for may still come; when it does not, that is told.
void QueueSupply::offer(const std::optional<QueueNames> &found)
{
    if (!found)
        return;
    m_hasNames = true;
    m_names = found->names;
    const QString wanted = m_wanted.queue.isEmpty() ? found->standard : m_wanted.queue;
    m_window.offerPrinters(m_names, m_shown.isEmpty() ? wanted : m_shown);
}

} // namespace host
