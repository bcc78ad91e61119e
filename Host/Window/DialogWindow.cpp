// The print dialog as a window.
#include "DialogWindow.h"

#include "PaperChooser.h"
#include "SummaryView.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
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

constexpr int kPanelWidth = 520;
constexpr int kPanelHeight = 336;
constexpr int kSummaryWidth = 392; // the longest value in German
constexpr int kPresetRow = 1;
constexpr int kPaperRow = 2;
constexpr int kCopiesRow = 3;

} // namespace

DialogWindow::DialogWindow(std::unique_ptr<Document> document)
    : m_document(std::move(document))
    , m_printers(new QComboBox)
    , m_presets(new QComboBox)
    , m_form(new QFormLayout)
    , m_save(new QPushButton(tr("Sa&ve")))
    , m_paper(new PaperChooser)
    , m_copies(new QSpinBox)
    , m_pages(new QLineEdit)
    , m_tabs(new QTabBar)
    , m_panelSpace(new QWidget)
    , m_summary(new SummaryView)
    , m_message(new QLabel)
    , m_retry(new QPushButton(tr("Try A&gain")))
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
    m_retry->hide();
    m_progress->hide();
    m_pages->setPlaceholderText(tr("all"));
    m_pages->setToolTip(tr("Single pages and ranges, such as 1-3,5"));
    layOut();

    connect(m_tabs, &QTabBar::currentChanged, this, &DialogWindow::showPanelAt);
    connect(m_printers, &QComboBox::activated, this, [this] { Q_EMIT printerChosen(m_printers->currentText()); });
    connect(m_presets, &QComboBox::activated, this, [this] { restorePreset(m_presets->currentData().toString()); });
    connect(m_retry, &QPushButton::clicked, this, &DialogWindow::retryWanted);
    connect(m_paper, &PaperChooser::chose, this, [this] {
        if (m_printer.session && m_paper->chosen())
            m_printer.session->changePaper(*m_paper->chosen());
        settleSoon();
    });
}

DialogWindow::~DialogWindow()
{
    if (m_stop)
        m_stop->store(true);
    QThreadPool::globalInstance()->waitForDone(); // a job being sent holds document and sink
    m_printer.session.reset();                    // and with it the panels' views, before their parents go
}

void DialogWindow::layOutForm()
{
    auto *menu = new QMenu(m_save);
    menu->addAction(tr("Save as &Defaults"), this, [this] { save({}); });
    menu->addAction(tr("Save as &Preset…"), this, &DialogWindow::savePresetAs);
    m_remove = menu->addAction(tr("De&lete Preset"), this, &DialogWindow::removePreset);
    m_save->setMenu(menu);
    m_save->setAutoDefault(false);
    auto *presets = new QHBoxLayout;
    presets->addWidget(m_presets, 1);
    presets->addWidget(m_save);

    auto *amount = new QHBoxLayout;
    auto *pages = new QLabel(tr("P&ages:"));
    pages->setBuddy(m_pages);
    amount->addWidget(m_copies);
    amount->addSpacing(12);
    amount->addWidget(pages);
    amount->addWidget(m_pages, 1);

    m_form->addRow(tr("P&rinter:"), m_printers);
    m_form->addRow(tr("Pre&set:"), presets);
    m_form->addRow(tr("Pap&er:"), m_paper);
    m_form->addRow(tr("&Copies:"), amount);
    for (const auto &[row, field] :
         {std::pair<int, QWidget *>{kPresetRow, m_presets}, {kPaperRow, m_paper->menu()}, {kCopiesRow, m_copies}})
        if (auto *label = qobject_cast<QLabel *>(m_form->itemAt(row, QFormLayout::LabelRole)->widget()))
            label->setBuddy(field);
    offerPresets();
}

void DialogWindow::layOut()
{
    m_buttons = new QDialogButtonBox;
    m_print = m_buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    m_cancel = m_buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    m_print->setDefault(true);
    m_print->setEnabled(false);
    connect(m_print, &QPushButton::clicked, this, &DialogWindow::print);
    connect(m_cancel, &QPushButton::clicked, this, &DialogWindow::reject);

    auto *left = new QVBoxLayout;
    layOutForm();
    left->addLayout(m_form);
    left->addSpacing(8);
    left->addWidget(m_tabs);
    left->addWidget(m_panelSpace);
    left->addStretch();

    m_columns = new QHBoxLayout;
    m_columns->addLayout(left);
    m_columns->addWidget(m_summary, 1);

    m_column = new QVBoxLayout(this);
    m_column->addLayout(m_columns, 1);
    auto *message = new QHBoxLayout;
    message->addWidget(m_message, 1);
    message->addWidget(m_retry);
    m_column->addLayout(message);
    m_column->addWidget(m_progress);
    m_column->addWidget(m_buttons);
}

void DialogWindow::offerPrinters(const QStringList &names, const QString &chosen)
{
    m_printers->clear();
    m_printers->addItems(names);
    m_printers->setCurrentIndex(m_printers->findText(chosen)); // none rather than one that is not meant
}

void DialogWindow::usePrinter(Printer printer)
{
    // What a person has written stays when the printer is another.
    if (m_copies->value() == m_printer.copies)
        m_copies->setValue(printer.copies);
    if (m_pages->text() == m_printer.pages)
        m_pages->setText(printer.pages);
    m_printer.session.reset(); // two sessions must not be alive at once
    m_printer = std::move(printer);
    m_form->setRowVisible(kPaperRow, true); // every part of it, so before the chooser hides some
    QStringList sentences;
    if (!m_printer.note.isEmpty())
        sentences.append(m_printer.note + '.');
    if (DialogSession *const session = m_printer.session.get()) {
        session->onChange = [this](const QString &, const QString &) { settleSoon(); };
        session->start(DialogSession::Prepare::firstPanel);
        m_paper->offer(*session);
        if (!session->panels() || session->panels()->empty())
            sentences.append(
                tr("The plug-in has no settings for this printer. It is printed with the driver's defaults."));
    } else {
        m_paper->offer(m_printer.papers, m_printer.generalOptions.value("media"));
        sentences.append(tr("No driver describes this printer: it has general settings only."));
    }
    say(sentences.join(' '));
    if (m_paper->menu()->count() == 0)
        m_form->setRowVisible(kPaperRow, false);
    offerPanels();
    offerPresets();
    m_print->setEnabled(true);
    if (isVisible() && m_printer.session)
        m_printer.session->prepareAll();
}

void DialogWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // After the first frame, before any input: a panel's first display writes its defaults back.
    QTimer::singleShot(0, this, [this] {
        if (m_printer.session)
            m_printer.session->prepareAll();
        settle();
    });
}

void DialogWindow::offerPanels()
{
    const QSignalBlocker blocker(m_tabs);
    while (m_tabs->count() > 0)
        m_tabs->removeTab(0);
    if (m_printer.session && m_printer.session->panels())
        for (const auto &panel : *m_printer.session->panels())
            m_tabs->setTabData(m_tabs->addTab(panel->panelName().replace('&', "&&")), panel->identifier());
    showPanelAt(m_tabs->currentIndex());
}

/// What no queue stands for can't be saved, and so there is nothing to choose from either.
void DialogWindow::offerPresets()
{
    m_presets->clear();
    m_presets->addItem(tr("Defaults"), QString());
    if (m_printer.saved)
        for (const QString &name : m_printer.saved->presets())
            m_presets->addItem(name, name);
    m_presets->setCurrentIndex(std::max(0, m_presets->findData(m_printer.preset, Qt::UserRole, Qt::MatchFixedString)));
    m_form->setRowVisible(kPresetRow, m_printer.saved || !m_printer.sink);
    m_presets->setEnabled(m_printer.saved.has_value());
    m_save->setEnabled(m_printer.saved.has_value());
    m_remove->setEnabled(m_presets->currentIndex() > 0);
}

bool DialogWindow::showPanel(const QString &identifier)
{
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (m_tabs->tabData(i) != identifier)
            continue;
        m_tabs->setCurrentIndex(i);
        return m_printer.session->panelOnDisplay() == m_printer.session->panel(identifier);
    }
    return false;
}

void DialogWindow::showPanelAt(int index)
{
    DialogSession *const session = m_printer.session.get();
    PDEPanel *const panel = session ? session->panel(m_tabs->tabData(index).toString()) : nullptr;
    if (!panel)
        return refreshSummary();
    if (!session->show(*panel))
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
        m_summary->show(m_printer.session ? m_printer.session->panels() : nullptr);
}

/// Once for all that one act of a person sets off.
void DialogWindow::settleSoon()
{
    if (!std::exchange(m_isToSettle, true))
        QMetaObject::invokeMethod(this, &DialogWindow::settle, Qt::QueuedConnection);
}

/// After choices: shows what they led to.
void DialogWindow::settle()
{
    m_isToSettle = false;
    refreshSummary();
    if (!m_printer.session || m_stop)
        return;
    const QStringList remarks = m_printer.session->takeRemarks();
    if (!remarks.isEmpty() || m_saysRemark)
        sayForNow(remarks.join(' '));
}

void DialogWindow::sayForNow(const QString &sentence)
{
    say(sentence);
    m_saysRemark = true;
}

void DialogWindow::say(const QString &sentence)
{
    m_message->setText(sentence);
    m_message->setVisible(!sentence.isEmpty());
    m_retry->hide();
    m_saysRemark = false;
}

void DialogWindow::wait(const QString &sentence)
{
    m_print->setEnabled(false);
    say(sentence);
}

void DialogWindow::offerRetry(const QString &sentence)
{
    wait(sentence);
    m_retry->show();
}

void DialogWindow::restorePreset(const QString &preset)
{
    if (!m_printer.session || !m_printer.saved)
        return;
    const OptionValues values = inWordsOfPPDs(m_printer.saved->options(preset));
    m_printer.preset = preset;
    m_printer.session->restore(values);
    m_printer.setGeneralOptions(m_printer.session->ppd().generalAmong(values));
    if (values.contains("copies"))
        m_copies->setValue(m_printer.copies);
    if (values.contains("page-ranges"))
        m_pages->setText(m_printer.pages);
    m_paper->offer(*m_printer.session);
    m_remove->setEnabled(!preset.isEmpty());
    settleSoon();
}

void DialogWindow::save(const QString &preset)
{
    const SavedOptions &saved = *m_printer.saved;
    OptionValues options =
        m_printer.session->ppd().generalAmong(inWordsOfPPDs(saved.options(preset))); // not ours to drop
    options.insert(m_printer.generalOptions);
    options.insert(m_printer.session->settings(saved.options()));
    if (const auto problem = saved.save(preset, options))
        return say(*problem);
    m_printer.preset = preset;
    offerPresets();
    sayForNow(preset.isEmpty() ? tr("Saved as your defaults for %1.").arg(m_printer.name)
                               : tr("Saved as “%1” for %2.").arg(preset, m_printer.name));
}

void DialogWindow::savePresetAs()
{
    bool isGiven = false;
    const QString name =
        QInputDialog::getText(this, tr("Save as Preset"), tr("&Name:"), QLineEdit::Normal, m_printer.preset, &isGiven)
            .trimmed();
    if (!isGiven || name.isEmpty())
        return;
    if (const auto problem = SavedOptions::problemOf(name))
        return say(*problem);
    save(name);
}

void DialogWindow::removePreset()
{
    const QString name = m_presets->currentData().toString();
    if (const auto problem = m_printer.saved->remove(name))
        return say(*problem);
    m_printer.preset.clear(); // what is set stays as it is
    offerPresets();
    sayForNow(tr("“%1” was deleted.").arg(name));
}

std::optional<QString> DialogWindow::chosenPages()
{
    auto pages = readPageRanges(m_pages->text());
    if (pages)
        return pages;
    say(tr("“%1” are no pages. Write single pages and ranges, such as 1-3,5.").arg(m_pages->text()));
    m_pages->setFocus();
    m_pages->selectAll();
    return std::nullopt;
}

void DialogWindow::print()
{
    if (!m_document)
        return say(tr("There is no document to print."));
    const auto pages = chosenPages();
    if (m_stop || !pages || (m_printer.session && !m_printer.session->shouldPrint()))
        return; // a panel that refuses has told the user why
    if (m_printer.session)
        m_printer.session->takeRemarks(); // shown at every choice; now there are none to make
    else if (m_paper->chosen() && m_paper->chosen()->name)
        m_printer.generalOptions["media"] = *m_paper->chosen()->name;
    say({});
    const QString title = m_jobTitle.isEmpty() ? m_document->title() : m_jobTitle;
    submit({*m_document, title, m_copies->value(), *pages, m_printer.jobOptions()});
}

void DialogWindow::submit(const Job &job)
{
    setSending(true);
    QThreadPool::globalInstance()->start([this, job, sink = m_printer.sink.get(), stop = m_stop] {
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
    setSending(false);
    if (result.done) {
        Q_EMIT printed(result.sentence);
        return accept();
    }
    say(result.sentence);
    if (result.outdated)
        Q_EMIT printerOutdated();
}

void DialogWindow::setSending(bool sending)
{
    m_stop = sending ? std::make_shared<std::atomic<bool>>(false) : nullptr;
    m_progress->setValue(0);
    m_progress->setVisible(sending);
    for (QWidget *part :
         {static_cast<QWidget *>(m_printers), static_cast<QWidget *>(m_presets), static_cast<QWidget *>(m_save),
          static_cast<QWidget *>(m_copies), static_cast<QWidget *>(m_pages), static_cast<QWidget *>(m_tabs),
          m_panelSpace, static_cast<QWidget *>(m_print)})
        part->setEnabled(!sending);
    m_paper->setChoosable(!sending);
    if (!sending)
        offerPresets();
}

void DialogWindow::reject()
{
    if (m_stop)
        m_stop->store(true); // the job ends, the dialog stays
    else
        QDialog::reject();
}

} // namespace host
