// The print dialog as a window.
#include "DialogWindow.h"

#include "ui_DialogWindow.h"

#include "CredentialsBox.h"
#include "PresetNameBox.h"
#include "PreviewPane.h"
#include "SummaryView.h"

#include "Foundation/PlainText.h"
#include "Foundation/UserDefaults.h"
#include "Jobs/PageRanges.h"
#include "Toolkit/TextControls.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>

namespace host {

using foundation::UserDefaults;

namespace {

constexpr auto kSummaryIsUnfolded = "SummaryIsUnfolded";
constexpr auto kPreviewIsUnfolded = "PreviewIsUnfolded";
constexpr int kHeightOfFrame = 40; // that a window manager may add

/// A menu or a number of a panel's, or of a bundle's of somebody else.
bool movesWithWheel(const QWidget &field)
{
    return qobject_cast<const QComboBox *>(&field) || qobject_cast<const QAbstractSpinBox *>(&field) ||
           (qobject_cast<const QAbstractSlider *>(&field) && !qobject_cast<const QScrollBar *>(&field));
}

/// What is dropped on a field is a document, as elsewhere on the window, and not the text of its address.
void leaveDropsToTheWindow(QWidget &fields)
{
    for (QLineEdit *field : fields.findChildren<QLineEdit *>())
        field->setAcceptDrops(false);
}

QStringList localFiles(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    return files;
}

} // namespace

DialogWindow::DialogWindow(PrintDialog &dialog)
    : m_dialog(dialog)
    , m_ui(std::make_unique<Ui::DialogWindow>())
    , m_paper(nullptr)
    , m_remove(nullptr)
    , m_print(nullptr)
    , m_cancel(nullptr)
{
    m_ui->setupUi(this);
    m_ui->tabs->setDrawBase(false);
    m_ui->tabs->setExpanding(false);
    keepRoomOfTabs();
    centreLabels();
    m_ui->copies->setMaximum(kMaximumCopies);
    m_paper = new PaperChooser({m_ui->papers, m_ui->ownSize, m_ui->paperWidth, m_ui->paperHeight}, this);
    for (QWidget *number : {static_cast<QWidget *>(m_ui->copies), static_cast<QWidget *>(m_ui->paperWidth),
                            static_cast<QWidget *>(m_ui->paperHeight)})
        keepFromWheel(*number);
    setAcceptDrops(true);
    leaveDropsToTheWindow(*this);
    addButtons();
    connectFields();
    connectDialog();
    offerPrinters();
    showDocuments();
    showTarget();
    showAmount();
    showMessage();
    showState();
    rememberUnfolded(*m_ui->unfoldPreview, kPreviewIsUnfolded);
    rememberUnfolded(*m_ui->unfold, kSummaryIsUnfolded);
    fitToScreen();
}

/// Pressed as a person left it.
void DialogWindow::rememberUnfolded(QPushButton &button, const char *key)
{
    button.setChecked(UserDefaults::standard().objectForKey(key) == "yes");
    connect(&button, &QPushButton::clicked, this,
            [key](bool isUnfolded) { UserDefaults::standard().setObjectForKey(isUnfolded ? "yes" : "no", key); });
}

/// The panels own their views; only their place was here.
DialogWindow::~DialogWindow()
{
    while (m_ui->panelSpace->count() > 1) { // the first is ours
        QWidget *const view = m_ui->panelSpace->widget(1);
        m_ui->panelSpace->removeWidget(view);
        view->setParent(nullptr);
    }
}

/// The window has its size before it has a printer, and so before there are panels to go by.
void DialogWindow::keepRoomOfTabs()
{
    m_ui->tabs->addTab(tr("Panels"));
    m_ui->tabs->setMinimumHeight(m_ui->tabs->sizeHint().height());
    m_ui->tabs->removeTab(0);
    QSizePolicy policy = m_ui->tabs->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->tabs->setSizePolicy(policy);
}

/// A form puts the label of a field that is much higher than text at its top; some styles have such fields.
void DialogWindow::centreLabels()
{
    for (QLabel *label : {m_ui->printersLabel, m_ui->presetsLabel, m_ui->papersLabel, m_ui->copiesLabel})
        label->setMinimumHeight(label->buddy()->sizeHint().height());
}

void DialogWindow::addButtons()
{
    auto *menu = new QMenu(m_ui->save);
    menu->addAction(tr("Save as &Defaults"), this, [this] { m_dialog.savePreset({}); });
    menu->addAction(tr("Save as &Preset…"), this, &DialogWindow::askForPresetName);
    m_remove = menu->addAction(tr("De&lete Preset…"), this, &DialogWindow::askToDeletePreset);
    m_ui->save->setMenu(menu);
    m_print = m_ui->buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    m_cancel = m_ui->buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    m_cancel->setAutoDefault(false);
    m_print->setDefault(true);
}

void DialogWindow::connectFields()
{
    connect(m_ui->printers, &QComboBox::activated, this,
            [this] { m_dialog.choosePrinter(m_ui->printers->currentData().toString()); });
    connect(m_ui->presets, &QComboBox::activated, this,
            [this] { m_dialog.restorePreset(m_ui->presets->currentData().toString()); });
    connect(m_paper, &PaperChooser::chose, &m_dialog, &PrintDialog::choosePaper);
    connect(m_paper, &PaperChooser::corrected, this,
            [this](const QString &sentence) { m_dialog.say(About::paper, sentence); });
    connect(m_ui->copies, &QSpinBox::valueChanged, &m_dialog, &PrintDialog::setCopies);
    connect(m_ui->pages, &QLineEdit::textChanged, &m_dialog, &PrintDialog::setPages);
    connect(m_ui->tabs, &QTabBar::currentChanged, this, &DialogWindow::showPanelAt);
    connect(m_ui->retry, &QPushButton::clicked, &m_dialog, &PrintDialog::lookAgain);
    connect(m_ui->choose, &QPushButton::clicked, this, &DialogWindow::chooseFiles);
    connect(m_ui->unfold, &QPushButton::toggled, this, &DialogWindow::unfoldSummary);
    connect(m_ui->unfoldPreview, &QPushButton::toggled, this, &DialogWindow::showPreview);
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, [this] {
        if (m_paper->commit())
            m_dialog.print();
    });
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
    connect(&m_dialog, &PrintDialog::settingsChanged, this, &DialogWindow::showSettings);
    connect(&m_dialog, &PrintDialog::progressed, m_ui->progress, &QProgressBar::setValue);
    connect(&m_dialog, &PrintDialog::documentsChanged, this, &DialogWindow::showDocuments);
    connect(&m_dialog, &PrintDialog::finished, this, &DialogWindow::accept);
    connect(&m_dialog, &PrintDialog::prepared, this, &DialogWindow::accept);
    connect(&m_dialog, &PrintDialog::credentialsWanted, this, &DialogWindow::askForCredentials);
    connect(&m_dialog, &PrintDialog::pagesRefused, this, [this] {
        m_ui->pages->setFocus();
        m_ui->pages->selectAll();
    });
}

namespace {

/// "counter – Invoices, Shop floor 1 (stopped)"
QString lineOf(const QueueEntry &printer)
{
    QStringList where{printer.description, printer.location};
    where.removeAll(QString());
    const QString name = foundation::plainLine(printer.name);
    const QString line = where.isEmpty() ? name : name + " – " + where.join(", ");
    return printer.note.isEmpty() ? line : line + " (" + printer.note + ')';
}

} // namespace

void DialogWindow::offerPrinters()
{
    m_ui->printers->clear();
    for (const QueueEntry &printer : m_dialog.printers())
        m_ui->printers->addItem(lineOf(printer), printer.name);
    // None rather than one that is not meant.
    m_ui->printers->setCurrentIndex(m_ui->printers->findData(m_dialog.chosenPrinter()));
    m_ui->retry->setVisible(m_dialog.canLookAgain());
}

void DialogWindow::showDocuments()
{
    const auto &documents = m_dialog.documents();
    if (m_dialog.preparesOnly())
        return;
    if (documents.empty())
        setWindowTitle(tr("Print"));
    else if (documents.size() == 1)
        setWindowTitle(tr("Print %1").arg(foundation::plainLine(documents.front()->title())));
    else
        setWindowTitle(
            tr("Print %1 and %2 more")
                .arg(foundation::plainLine(documents.front()->title()), QString::number(documents.size() - 1)));
    m_print->setEnabled(m_dialog.canPrint());
    showMessage();
}

void DialogWindow::showTarget()
{
    showPaper();
    offerPanels();
    offerPresets();
    if (isVisible())
        m_dialog.prepareAll();
    showSettings();
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
    showInPlaceOfPanel();
    const Messages &messages = m_dialog.messages();
    const bool isSaidAbove = m_ui->panelSpace->currentWidget() == m_ui->inPlaceOfPanel;
    QString text = isSaidAbove ? messages.textBeside(About::printer) : messages.text();
    if (text.isEmpty() && m_dialog.documents().empty() && !m_dialog.preparesOnly() &&
        m_dialog.state() == PrintDialog::State::ready)
        text = tr("Choose a file to print, or drop one here.");
    m_ui->message->say(foundation::withoutControls(text));
    if (const QString wrong = messages.about(About::pages); m_ui->pages->accessibleDescription() != wrong)
        m_ui->pages->setAccessibleDescription(wrong);
}

/// Where a panel would stand: why there is none.
void DialogWindow::showInPlaceOfPanel()
{
    m_ui->inPlaceOfPanel->say(foundation::withoutControls(m_dialog.messages().about(About::printer)));
}

void DialogWindow::showState()
{
    const auto state = m_dialog.state();
    const bool isSending = state == PrintDialog::State::sending;
    if (isSending)
        setSending(true); // before the button goes that may have the focus
    m_print->setEnabled(m_dialog.canPrint());
    if (!isSending)
        setSending(false); // when what had it can have it again
    m_ui->retry->setVisible(m_dialog.canLookAgain());
    if (state != PrintDialog::State::sending && state != PrintDialog::State::looking)
        m_dialog.lookForOthers();
    showMessage();
}

/// The settings can't be reached during a job; the focus is then back where it was.
void DialogWindow::setSending(bool isSending)
{
    m_ui->progress->setVisible(isSending);
    if (isSending == !m_ui->settings->isEnabled())
        return;
    if (isSending) {
        m_ui->progress->setValue(0);
        m_focusBeforeJob = focusWidget();
    }
    for (QWidget *part : {m_ui->settings, static_cast<QWidget *>(m_ui->choose)})
        part->setEnabled(!isSending);
    setAcceptDrops(!isSending && !m_dialog.preparesOnly());
    if (!isSending && m_focusBeforeJob)
        m_focusBeforeJob->setFocus();
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
        showSettings();
        checkDocument();
    });
}

void DialogWindow::checkDocument()
{
    if (m_check)
        return;
    m_check = std::make_unique<DocumentCheck>(m_dialog);
    connect(m_check.get(), &DocumentCheck::changed, this, &DialogWindow::showCheck);
    m_lock = std::make_unique<DocumentLock>(m_dialog);
    connect(m_check.get(), &DocumentCheck::locked, m_lock.get(), &DocumentLock::ask);
    connect(m_lock.get(), &DocumentLock::passwordWanted, this, &DialogWindow::askForPassword);
}

/// Beside those that are to be printed. All of a single page needs no number.
void DialogWindow::showCountOfPages()
{
    const int pages = m_check->pages().value_or(0);
    const bool isTold = pages > 1 || (pages == 1 && !m_dialog.amount().pages.isEmpty());
    if (isTold && !m_ofPages) {
        m_ofPages = new QLabel(m_ui->settings);
        m_ui->amountRow->addWidget(m_ofPages);
    }
    if (!m_ofPages)
        return;
    m_ofPages->setVisible(isTold);
    m_ofPages->setText(tr("of %1", "how many pages").arg(QString::number(pages)));
}

/// How many pages there are, and what helps where they don't go with the paper.
void DialogWindow::showCheck()
{
    showCountOfPages();
    const auto &remedy = m_check->remedy();
    if (remedy && !m_remedy) {
        m_remedy = new QPushButton(this);
        m_remedy->setAutoDefault(false);
        m_ui->messageRow->addWidget(m_remedy);
        connect(m_remedy, &QPushButton::clicked, this, [this] {
            m_check->takeRemedy();
            showPaper();
        });
        restoreTabOrder();
    }
    if (m_remedy) {
        m_remedy->setVisible(remedy && m_dialog.state() == PrintDialog::State::ready);
        m_remedy->setText(remedy ? toolkit::withoutMnemonic(foundation::withoutControls(remedy->text)) : QString());
    }
}

void DialogWindow::serveApplication(const QString &title, const QString &acceptLabel, bool offersOthers)
{
    setWindowTitle(title.isEmpty() ? tr("Print") : title);
    if (!acceptLabel.isEmpty())
        m_print->setText(acceptLabel);
    setAcceptDrops(false);
    m_ui->unfoldPreview->hide(); // there is nothing to be seen yet
    showPreview(false);
    m_ui->choose->disconnect(this);
    m_ui->choose->setText(tr("&Other Printers…"));
    m_ui->choose->setVisible(offersOthers);
    connect(m_ui->choose, &QPushButton::clicked, this, &DialogWindow::othersWanted);
    m_look = new QCheckBox(tr("&Look at the pages before they are printed"));
    m_ui->form->addRow(QString(), m_look);
    restoreTabOrder();
    m_ui->settings->layout()->activate();
    m_ui->scroller->updateGeometry(); // it holds one row more
    layout()->activate();
    fitToScreen();
}

bool DialogWindow::wantsToLook() const { return m_look && m_look->isChecked(); }

void DialogWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void DialogWindow::dropEvent(QDropEvent *event)
{
    m_dialog.chooseDocuments(localFiles(*event->mimeData()));
    event->acceptProposedAction();
}

void DialogWindow::chooseFiles()
{
    auto *const box = new QFileDialog(this, tr("Choose Files to Print"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setFileMode(QFileDialog::ExistingFiles);
    connect(box, &QFileDialog::filesSelected, &m_dialog, &PrintDialog::chooseDocuments);
    box->open();
}

/// No larger than the screen; the settings scroll then, and what prints and cancels stays.
void DialogWindow::fitToScreen()
{
    m_ui->settings->layout()->activate(); // or it still counts what was hidden
    const QSize room = screen()->availableSize() - QSize(0, kHeightOfFrame);
    const bool scrolls = sizeHint().height() > room.height();
    const QSize wanted = sizeHint() + QSize(scrolls ? m_ui->scroller->widthOfBar() : 0, 0);
    resize(wanted.boundedTo(room));
}

void DialogWindow::unfoldSummary(bool isShown)
{
    if (!m_summary) {
        m_summary = new SummaryView(this);
        putBeside(*m_summary, 1);
    }
    unfold(*m_summary, isShown);
    showSettings();
}

void DialogWindow::showPreview(bool isShown)
{
    m_ui->unfoldPreview->setChecked(isShown);
    if (!m_preview && !isShown)
        return;
    if (!m_preview) {
        m_preview = new PreviewPane(m_dialog, this);
        putBeside(*m_preview, 2);
    }
    unfold(*m_preview, isShown);
}

/// The preview above the summary, whichever is seen first.
void DialogWindow::putBeside(QWidget &part, int stretch)
{
    if (!m_beside) {
        m_beside = new QVBoxLayout;
        m_ui->columns->addLayout(m_beside);
    }
    m_beside->insertWidget(&part == m_preview ? 0 : -1, &part, stretch);
    restoreTabOrder();
}

void DialogWindow::unfold(QWidget &part, bool isUnfolded)
{
    part.setVisible(isUnfolded);
    layout()->activate();
    fitToScreen();
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
        m_ui->presets->addItem(foundation::withoutControls(name), name);
    const QString preset = target ? target->preset() : QString();
    m_ui->presets->setCurrentIndex(std::max(0, m_ui->presets->findData(preset, Qt::UserRole, Qt::MatchFixedString)));
    m_ui->form->setRowVisible(m_ui->presetRow, saved || !target);
    m_ui->presets->setEnabled(saved);
    m_ui->save->setEnabled(saved);
    m_remove->setEnabled(m_ui->presets->currentIndex() > 0);
    showPresetName();
}

/// A preset whose settings were changed says so.
void DialogWindow::showPresetName()
{
    const int index = m_ui->presets->currentIndex();
    const QString preset = m_ui->presets->currentData().toString();
    const QString name = preset.isEmpty() ? tr("Defaults") : foundation::withoutControls(preset);
    m_ui->presets->setItemText(index, m_dialog.isPresetChanged() ? tr("%1 (changed)").arg(name) : name);
}

void DialogWindow::showSettings()
{
    showPresetName();
    if (m_summary && m_summary->isVisibleTo(this))
        showSummary();
}

namespace {

/// Where all fields of the panels are grey, an amount that is marked does not count.
bool takeAmounts(const PDEPanels &panels)
{
    bool haveFields = false;
    for (const auto &panel : panels) {
        const QWidget *const view = panel->panelView();
        for (const QLineEdit *field : view ? view->findChildren<QLineEdit *>() : QList<QLineEdit *>()) {
            if (field->isEnabledTo(view) && !field->isReadOnly())
                return true;
            haveFields = true;
        }
    }
    return !haveFields;
}

} // namespace

void DialogWindow::showSummary()
{
    std::vector<SummaryRow> rows = m_dialog.summary();
    if (m_dialog.target() && !takeAmounts(m_dialog.target()->panels()))
        std::erase_if(rows, [](const SummaryRow &row) { return row.isAmount; });
    m_summary->show(rows);
}

bool DialogWindow::isComplete() const
{
    return (!m_preview || !m_preview->preview().isBusy()) && (!m_check || !m_check->isBusy());
}

bool DialogWindow::showPanel(const QString &identifier)
{
    const auto &panels = m_dialog.target()->panels();
    const auto found =
        std::ranges::find_if(panels, [&](const auto &panel) { return panel->identifier() == identifier; });
    if (found == panels.end() || !(*found)->panelView()) {
        m_dialog.say(About::panel, tr("There is no panel “%1”.").arg(identifier));
        return false;
    }
    m_ui->tabs->setCurrentIndex(static_cast<int>(found - panels.begin()));
    return true;
}

void DialogWindow::showPanelFirst(const QString &identifier)
{
    connect(
        &m_dialog, &PrintDialog::targetChanged, this, [this, identifier] { showPanel(identifier); },
        Qt::SingleShotConnection);
}

void DialogWindow::showPanelAt(int index)
{
    m_ui->tabs->setVisible(m_ui->tabs->count() > 0);
    if (index < 0)
        m_ui->panelSpace->setCurrentWidget(m_ui->inPlaceOfPanel);
    else if (PDEPanel &panel = *m_dialog.target()->panels()[static_cast<std::size_t>(index)]; m_dialog.show(panel))
        addToPanelSpace(*panel.panelView());
    showMessage();
}

void DialogWindow::addToPanelSpace(QWidget &view)
{
    if (m_ui->panelSpace->indexOf(&view) < 0) {
        m_ui->panelSpace->addWidget(&view);
        leaveDropsToTheWindow(view);
        for (QWidget *field : view.findChildren<QWidget *>())
            if (movesWithWheel(*field))
                keepFromWheel(*field);
        restoreTabOrder();
    }
    m_ui->panelSpace->setCurrentWidget(&view);
}

/// Qt appends late children to the tab order; what stands beside and below the panel goes behind them, so that Tab
/// follows the screen. Only widgets that take the focus count there. The box of the buttons stays where it is, before
/// the panel, and must not pass the focus on to its first button.
void DialogWindow::restoreTabOrder()
{
    m_ui->buttons->setFocusProxy(nullptr);
    QWidget *last = previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus)
        last = last->previousInFocusChain();
    for (QWidget *below : {static_cast<QWidget *>(m_preview), static_cast<QWidget *>(m_summary),
                           static_cast<QWidget *>(m_ui->retry), static_cast<QWidget *>(m_ui->choose),
                           static_cast<QWidget *>(m_ui->unfold), static_cast<QWidget *>(m_ui->unfoldPreview),
                           static_cast<QWidget *>(m_print), static_cast<QWidget *>(m_cancel)}) {
        if (!below)
            continue;
        setTabOrder(last, below);
        last = below;
    }
}

void DialogWindow::askForPresetName()
{
    PresetNameBox box(m_dialog, m_dialog.target()->preset(), this);
    if (box.exec() == QDialog::Accepted)
        m_dialog.savePreset(box.name());
}

/// Nobody waits here: it is asked from within what the dialog does with an answer.
void DialogWindow::askForCredentials(const QString &sentence)
{
    auto *const box = new CredentialsBox(sentence, m_user.isEmpty() ? qEnvironmentVariable("USER") : m_user, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::accepted, this, [this, box] {
        m_user = box->credentials().user;
        m_dialog.giveCredentials(box->credentials());
    });
    box->open();
}

/// Of a document. A window that has gone asks nobody.
void DialogWindow::askForPassword(const QString &sentence)
{
    if (!isVisible())
        return m_lock->leave();
    auto *const box = new CredentialsBox(sentence, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::accepted, m_lock.get(), [this, box] { m_lock->open(box->credentials().password); });
    connect(box, &QDialog::rejected, m_lock.get(), &DocumentLock::leave);
    connect(m_lock.get(), &DocumentLock::passwordWantedNoMore, box, &QDialog::reject);
    box->open();
}

void DialogWindow::askToDeletePreset()
{
    QMessageBox box(QMessageBox::Question, tr("Delete Preset"),
                    tr("Delete the preset “%1”?").arg(m_dialog.target()->preset()), QMessageBox::NoButton, this);
    box.setTextFormat(Qt::PlainText);
    const auto *const yes = box.addButton(tr("&Delete"), QMessageBox::AcceptRole);
    box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == yes)
        m_dialog.removePreset();
}

void DialogWindow::reject()
{
    if (m_dialog.state() == PrintDialog::State::sending)
        m_dialog.stop(); // the job ends, the dialog stays
    else
        QDialog::reject();
}

} // namespace host
