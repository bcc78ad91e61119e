// The print dialog as a window.
#include "DialogWindow.h"

#include "ui_DialogWindow.h"

#include "Foundation/PlainText.h"
#include "Jobs/PageRanges.h"
#include "Toolkit/TextControls.h"

#include <QInputDialog>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>

namespace host {

DialogWindow::DialogWindow(PrintDialog &dialog)
    : m_dialog(dialog)
    , m_ui(std::make_unique<Ui::DialogWindow>())
    , m_paper(nullptr)
    , m_remove(nullptr)
    , m_print(nullptr)
    , m_cancel(nullptr)
{
    m_ui->setupUi(this);
    const QString title = foundation::plainLine(m_dialog.documentName());
    setWindowTitle(title.isEmpty() ? tr("Print") : tr("Print %1").arg(title));
    m_ui->tabs->setDrawBase(false);
    m_ui->tabs->setExpanding(false);
    m_ui->copies->setMaximum(kMaximumCopies);
    m_paper = new PaperChooser({m_ui->papers, m_ui->ownSize, m_ui->paperWidth, m_ui->paperHeight}, this);
    addButtons();
    connectFields();
    connectDialog();
    offerPrinters();
    showTarget();
    showAmount();
    showMessage();
    showState();
}

/// The panels own their views; only their place was here.
DialogWindow::~DialogWindow()
{
    while (QWidget *view = m_ui->panelSpace->currentWidget()) {
        m_ui->panelSpace->removeWidget(view);
        view->setParent(nullptr);
    }
}

void DialogWindow::addButtons()
{
    auto *menu = new QMenu(m_ui->save);
    menu->addAction(tr("Save as &Defaults"), this, [this] { m_dialog.savePreset({}); });
    menu->addAction(tr("Save as &Preset…"), this, &DialogWindow::askForPresetName);
    m_remove = menu->addAction(tr("De&lete Preset"), &m_dialog, &PrintDialog::removePreset);
    m_ui->save->setMenu(menu);
    m_print = m_ui->buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    m_cancel = m_ui->buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    m_print->setDefault(true);
}

void DialogWindow::connectFields()
{
    connect(m_ui->printers, &QComboBox::activated, this,
            [this] { m_dialog.choosePrinter(m_ui->printers->currentText()); });
    connect(m_ui->presets, &QComboBox::activated, this,
            [this] { m_dialog.restorePreset(m_ui->presets->currentData().toString()); });
    connect(m_paper, &PaperChooser::chose, &m_dialog, &PrintDialog::choosePaper);
    connect(m_ui->copies, &QSpinBox::valueChanged, &m_dialog, &PrintDialog::setCopies);
    connect(m_ui->pages, &QLineEdit::textChanged, &m_dialog, &PrintDialog::setPages);
    connect(m_ui->tabs, &QTabBar::currentChanged, this, &DialogWindow::showPanelAt);
    connect(m_ui->retry, &QPushButton::clicked, &m_dialog, &PrintDialog::lookAgain);
    connect(m_ui->buttons, &QDialogButtonBox::accepted, &m_dialog, &PrintDialog::print);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &DialogWindow::reject);
}

void DialogWindow::connectDialog()
{
    connect(&m_dialog, &PrintDialog::stateChanged, this, &DialogWindow::showState);
    connect(&m_dialog, &PrintDialog::printersChanged, this, &DialogWindow::offerPrinters);
    connect(&m_dialog, &PrintDialog::targetChanged, this, &DialogWindow::showTarget);
    connect(&m_dialog, &PrintDialog::presetsChanged, this, &DialogWindow::offerPresets);
    connect(&m_dialog, &PrintDialog::paperChanged, this, &DialogWindow::showPaper);
    connect(&m_dialog, &PrintDialog::amountChanged, this, &DialogWindow::showAmount);
    connect(&m_dialog, &PrintDialog::messageChanged, this, &DialogWindow::showMessage);
    connect(&m_dialog, &PrintDialog::settingsChanged, this, &DialogWindow::refreshSummary);
    connect(&m_dialog, &PrintDialog::progressed, m_ui->progress, &QProgressBar::setValue);
    connect(&m_dialog, &PrintDialog::printed, this, &DialogWindow::accept);
    connect(&m_dialog, &PrintDialog::pagesRefused, this, [this] {
        m_ui->pages->setFocus();
        m_ui->pages->selectAll();
    });
}

void DialogWindow::offerPrinters()
{
    m_ui->printers->clear();
    m_ui->printers->addItems(m_dialog.printers());
    // None rather than one that is not meant.
    m_ui->printers->setCurrentIndex(m_ui->printers->findText(m_dialog.chosenPrinter()));
}

void DialogWindow::showTarget()
{
    showPaper();
    offerPanels();
    offerPresets();
    if (isVisible())
        m_dialog.prepareAll();
}

void DialogWindow::showPaper()
{
    m_ui->form->setRowVisible(m_ui->paperRow, true); // every part of it, so before the chooser hides some
    if (!m_dialog.target())
        return m_ui->ownSize->hide();
    m_paper->offer(*m_dialog.target());
    if (m_paper->isEmpty())
        m_ui->form->setRowVisible(m_ui->paperRow, false);
}

void DialogWindow::showAmount()
{
    m_ui->copies->setValue(m_dialog.amount().copies);
    m_ui->pages->setText(m_dialog.amount().pages);
}

void DialogWindow::showMessage()
{
    m_ui->message->setText(foundation::withoutControls(m_dialog.message()));
    m_ui->message->setVisible(!m_dialog.message().isEmpty());
}

void DialogWindow::showState()
{
    const auto state = m_dialog.state();
    const bool isSending = state == PrintDialog::State::sending;
    m_ui->settings->setEnabled(!isSending);
    m_print->setEnabled(state == PrintDialog::State::ready);
    m_ui->retry->setVisible(state == PrintDialog::State::noPrinter);
    m_ui->progress->setVisible(isSending);
    if (isSending)
        m_ui->progress->setValue(0);
    else if (state != PrintDialog::State::looking)
        m_dialog.lookForOthers();
}

bool DialogWindow::event(QEvent *event)
{
    // A panel's alert, the box for a name, whatever stands over this window: code that stands on the printer waits.
    if (event->type() == QEvent::WindowBlocked)
        m_dialog.hold();
    else if (event->type() == QEvent::WindowUnblocked)
        m_dialog.release();
    return QDialog::event(event);
}

void DialogWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // After the first frame, before any input: a panel's first display writes its defaults back.
    QTimer::singleShot(0, this, [this] {
        m_dialog.prepareAll();
        refreshSummary();
    });
}

void DialogWindow::offerPanels()
{
    const QSignalBlocker blocker(m_ui->tabs);
    while (m_ui->tabs->count() > 0)
        m_ui->tabs->removeTab(0);
    if (m_dialog.target())
        for (const auto &panel : m_dialog.target()->panels())
            m_ui->tabs->addTab(toolkit::withoutMnemonic(panel->panelName()));
    showPanelAt(m_ui->tabs->currentIndex());
}

/// What no queue stands for can't be saved, and so there is nothing to choose from either.
void DialogWindow::offerPresets()
{
    const PrintTarget *const target = m_dialog.target();
    const SavedOptions *const saved = target ? target->savedOptions() : nullptr;
    m_ui->presets->clear();
    m_ui->presets->addItem(tr("Defaults"), QString());
    for (const QString &name : saved ? saved->presets() : QStringList())
        m_ui->presets->addItem(name, name);
    const QString preset = target ? target->preset() : QString();
    m_ui->presets->setCurrentIndex(std::max(0, m_ui->presets->findData(preset, Qt::UserRole, Qt::MatchFixedString)));
    m_ui->form->setRowVisible(m_ui->presetRow, saved || !target);
    m_ui->presets->setEnabled(saved);
    m_ui->save->setEnabled(saved);
    m_remove->setEnabled(m_ui->presets->currentIndex() > 0);
}

bool DialogWindow::showPanel(const QString &identifier)
{
    const auto &panels = m_dialog.target()->panels();
    const auto found =
        std::ranges::find_if(panels, [&](const auto &panel) { return panel->identifier() == identifier; });
    if (found == panels.end() || !(*found)->panelView())
        return false;
    m_ui->tabs->setCurrentIndex(static_cast<int>(found - panels.begin()));
    return true;
}

void DialogWindow::showPanelFirst(const QString &identifier)
{
    connect(
        &m_dialog, &PrintDialog::targetChanged, this,
        [this, identifier] {
            if (!showPanel(identifier))
                m_dialog.setMessage(tr("There is no panel “%1”.").arg(identifier));
        },
        Qt::SingleShotConnection);
}

void DialogWindow::showPanelAt(int index)
{
    if (index >= 0) {
        PDEPanel &panel = *m_dialog.target()->panels()[static_cast<std::size_t>(index)];
        if (!m_dialog.show(panel))
            return;
        addToPanelSpace(*panel.panelView());
    }
    refreshSummary();
}

void DialogWindow::addToPanelSpace(QWidget &view)
{
    if (m_ui->panelSpace->indexOf(&view) < 0) {
        m_ui->panelSpace->addWidget(&view);
        restoreTabOrder();
    }
    m_ui->panelSpace->setCurrentWidget(&view);
}

/// Qt appends late children to the tab order; what stands below the panel goes behind them, so that Tab follows the
/// screen. Only widgets that take the focus count there. The box of the buttons stays where it is, before the panel,
/// and must not pass the focus on to its first button.
void DialogWindow::restoreTabOrder()
{
    m_ui->buttons->setFocusProxy(nullptr);
    QWidget *last = previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus)
        last = last->previousInFocusChain();
    for (QWidget *below : {static_cast<QWidget *>(m_ui->summary), static_cast<QWidget *>(m_ui->retry),
                           static_cast<QWidget *>(m_print), static_cast<QWidget *>(m_cancel)}) {
        setTabOrder(last, below);
        last = below;
    }
}

void DialogWindow::refreshSummary()
{
    static const PDEPanels kNone;
    if (isVisible())
        m_ui->summary->show(m_dialog.target() ? m_dialog.target()->panels() : kNone);
}

void DialogWindow::askForPresetName()
{
    bool isGiven = false;
    const QString name = QInputDialog::getText(this, tr("Save as Preset"), tr("&Name:"), QLineEdit::Normal,
                                               m_dialog.target()->preset(), &isGiven)
                             .trimmed();
    if (isGiven && !name.isEmpty())
        m_dialog.savePreset(name);
}

void DialogWindow::reject()
{
    if (m_dialog.state() == PrintDialog::State::sending)
        m_dialog.stop(); // the job ends, the dialog stays
    else
        QDialog::reject();
}

} // namespace host
