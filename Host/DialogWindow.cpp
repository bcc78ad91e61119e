// The print dialog as a window.
#include "DialogWindow.h"

#include "PaperChooser.h"
#include "SummaryView.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabBar>
#include <QThreadPool>
#include <QTimer>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int kMostCopies = 999;
constexpr int kPanelWidth = 520;
constexpr int kPanelHeight = 336;
constexpr int kSummaryWidth = 320;

} // namespace

DialogWindow::DialogWindow(std::unique_ptr<Document> document)
    : m_document(std::move(document))
    , m_printers(new QComboBox)
    , m_paper(new PaperChooser)
    , m_copies(new QSpinBox)
    , m_tabs(new QTabBar)
    , m_panelSpace(new QWidget)
    , m_summary(new SummaryView)
    , m_message(new QLabel)
    , m_progress(new QProgressBar)
{
    setWindowTitle(m_document ? tr("Print %1").arg(m_document->title()) : tr("Print"));
    m_copies->setRange(1, kMostCopies);
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_tabs->setAccessibleName(tr("Panels"));
    m_panelSpace->setMinimumSize(kPanelWidth, kPanelHeight);
    m_panelSpace->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_summary->setMinimumWidth(kSummaryWidth);
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_message->hide();
    m_progress->hide();
    layOut();

    connect(m_tabs, &QTabBar::currentChanged, this, &DialogWindow::showPanelAt);
    connect(m_printers, &QComboBox::activated, this, [this] { Q_EMIT printerChosen(m_printers->currentText()); });
    connect(m_paper, &PaperChooser::chose, this, [this] {
        if (m_session && m_paper->chosen())
            m_session->changePaper(*m_paper->chosen());
        refreshSummary();
    });
}

DialogWindow::~DialogWindow()
{
    if (m_stop)
        m_stop->store(true);
    QThreadPool::globalInstance()->waitForDone(); // a job being sent holds document and sink
    m_session.reset();                            // and with it the panels' views, before their parents go
}

void DialogWindow::layOut()
{
    auto *form = new QFormLayout;
    form->addRow(tr("P&rinter:"), m_printers);
    form->addRow(tr("Pap&er:"), m_paper);
    form->addRow(tr("&Copies:"), m_copies);
    m_copies->setMaximumWidth(m_copies->sizeHint().width() * 2);

    m_buttons = new QDialogButtonBox;
    m_print = m_buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    m_cancel = m_buttons->addButton(QDialogButtonBox::Cancel);
    m_print->setDefault(true);
    m_print->setEnabled(false);
    connect(m_print, &QPushButton::clicked, this, &DialogWindow::print);
    connect(m_cancel, &QPushButton::clicked, this, &DialogWindow::reject);

    auto *left = new QVBoxLayout;
    left->addLayout(form);
    left->addSpacing(8);
    left->addWidget(m_tabs);
    left->addWidget(m_panelSpace);
    left->addStretch();

    m_columns = new QHBoxLayout;
    m_columns->addLayout(left);
    m_columns->addWidget(m_summary, 1);

    m_column = new QVBoxLayout(this);
    m_column->addLayout(m_columns, 1);
    m_column->addWidget(m_message);
    m_column->addWidget(m_progress);
    m_column->addWidget(m_buttons);
}

void DialogWindow::setCopies(int copies) { m_copies->setValue(copies); }

void DialogWindow::offerPrinters(const QStringList &names, const QString &chosen)
{
    m_printers->clear();
    m_printers->addItems(names);
    m_printers->setCurrentText(chosen);
}

void DialogWindow::usePrinter(std::unique_ptr<DialogSession> session, std::unique_ptr<JobSink> sink)
{
    m_session.reset(); // two sessions must not be alive at once
    m_session = std::move(session);
    m_sink = std::move(sink);
    m_session->onChange = [this](const QString &, const QString &) {
        QMetaObject::invokeMethod(this, &DialogWindow::refreshSummary, Qt::QueuedConnection);
    };
    m_session->start(DialogSession::Prepare::firstPanel);
    m_paper->offer(*m_session);
    offerPanels();
    m_print->setEnabled(true);
    say(m_session->panels() && !m_session->panels()->empty()
            ? QString()
            : tr("The plug-in has no settings for this printer. It is printed with the driver's defaults."));
    if (isVisible())
        m_session->prepareAll();
}

void DialogWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // After the first frame, before any input: a panel's first display writes its defaults back.
    QTimer::singleShot(0, this, [this] {
        if (m_session)
            m_session->prepareAll();
        refreshSummary();
    });
}

void DialogWindow::offerPanels()
{
    const QSignalBlocker blocker(m_tabs);
    while (m_tabs->count() > 0)
        m_tabs->removeTab(0);
    if (m_session->panels())
        for (const auto &panel : *m_session->panels())
            m_tabs->setTabData(m_tabs->addTab(panel->panelName().replace('&', "&&")), panel->inspection().identifier());
    showPanelAt(m_tabs->currentIndex());
}

bool DialogWindow::showPanel(const QString &identifier)
{
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (m_tabs->tabData(i) != identifier)
            continue;
        m_tabs->setCurrentIndex(i);
        return m_session->panelOnDisplay() == m_session->panel(identifier);
    }
    return false;
}

void DialogWindow::showPanelAt(int index)
{
    PDEPanel *const panel = m_session ? m_session->panel(m_tabs->tabData(index).toString()) : nullptr;
    if (!panel)
        return;
    if (!m_session->show(*panel))
        return say(tr("%1: the plug-in has no interface for this panel.").arg(panel->panelName()));
    for (QObject *child : m_panelSpace->children())
        if (auto *view = qobject_cast<QWidget *>(child))
            view->hide();
    QWidget *const view = panel->panelView();
    if (view->parentWidget() != m_panelSpace) {
        view->setParent(m_panelSpace);
        view->move(0, 0);
        joinAfterThePanel();
    }
    view->show();
    refreshSummary();
}

/// A view that joins the window late stands last in the order of Tab. What is below it on the screen joins once more.
void DialogWindow::joinAfterThePanel()
{
    for (const auto &[part, place, stretch] : {std::tuple{static_cast<QWidget *>(m_summary), m_columns, 1},
                                               std::tuple{static_cast<QWidget *>(m_buttons), m_column, 0}}) {
        part->setParent(nullptr);
        place->addWidget(part, stretch);
        part->show();
    }
}

void DialogWindow::refreshSummary()
{
    if (isVisible())
        m_summary->show(m_session ? m_session->panels() : nullptr);
}

void DialogWindow::say(const QString &sentence)
{
    m_message->setText(sentence);
    m_message->setVisible(!sentence.isEmpty());
}

void DialogWindow::print()
{
    if (!m_document)
        return say(tr("There is no document to print."));
    if (m_stop || !m_session->shouldPrint()) // a panel that refuses has told the user why
        return;
    say({});
    setSending(true);
    const QString title = m_jobTitle.isEmpty() ? m_document->title() : m_jobTitle;
    Job job{*m_document, title, m_copies->value(), m_session->ppd().jobOptions()};
    QThreadPool::globalInstance()->start([this, job, sink = m_sink.get(), stop = m_stop] {
        const auto result = sink->submit(job, [this, stop](qint64 done, qint64 total) {
            const int percent = total > 0 ? static_cast<int>(done * 100 / total) : 0;
            QMetaObject::invokeMethod(m_progress, "setValue", Qt::QueuedConnection, Q_ARG(int, percent));
            return !stop->load();
        });
        QMetaObject::invokeMethod(
            this, [this, result] { finish(result); }, Qt::QueuedConnection);
    });
}

void DialogWindow::finish(const JobSink::Result &result)
{
    const bool stopped = m_stop->load();
    setSending(false);
    if (result.done) {
        Q_EMIT printed(result.sentence);
        return accept();
    }
    say(stopped ? tr("Stopped. Nothing was printed.") : result.sentence);
}

void DialogWindow::setSending(bool sending)
{
    m_stop = sending ? std::make_shared<std::atomic<bool>>(false) : nullptr;
    m_progress->setValue(0);
    m_progress->setVisible(sending);
    for (QWidget *part :
         {static_cast<QWidget *>(m_printers), static_cast<QWidget *>(m_paper), static_cast<QWidget *>(m_copies),
          static_cast<QWidget *>(m_tabs), m_panelSpace, static_cast<QWidget *>(m_print)})
        part->setEnabled(!sending);
}

void DialogWindow::reject()
{
    if (m_stop)
        m_stop->store(true); // the job ends, the dialog stays
    else
        QDialog::reject();
}

} // namespace host
