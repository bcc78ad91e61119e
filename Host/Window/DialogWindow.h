// The print dialog as a window: a face of PrintDialog, which makes all decisions.
#pragma once

#include "PaperChooser.h"

#include "Dialog/DocumentCheck.h"
#include "Dialog/DocumentLock.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class QAction;
class QCheckBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace host {

class PreviewPane;
class SummaryView;

namespace Ui {
class DialogWindow;
}

class DialogWindow : public QDialog
{
    Q_OBJECT

public:
    /// The dialog has to outlive the window.
    explicit DialogWindow(PrintDialog &dialog);
    ~DialogWindow() override;

    /// False when there is no such panel or it has no view; a message tells so.
    bool showPanel(const QString &identifier);
    /// The same as soon as there is a printer.
    void showPanelFirst(const QString &identifier);
    void reject() override;

    /// Serves an application whose document comes later. `title`: what it calls its dialog, and `acceptLabel` what it
    /// calls printing; each may be empty. With another dialog there is a button for it.
    void serveApplication(const QString &title, const QString &acceptLabel, bool offersOthers);
    /// Whether the person wants to see the pages before they are printed.
    bool wantsToLook() const;

    /// Shows the preview, or folds it away.
    void showPreview(bool isShown);
    /// Whether all of it that is to be seen is there.
    bool isComplete() const;

Q_SIGNALS:
    /// The person wants another dialog in place of this one.
    void othersWanted();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void keepRoomOfTabs();
    void centreLabels();
    void addButtons();
    void connectFields();
    void connectDialog();
    void offerPrinters();
    void offerPanels();
    void offerPresets();
    void showDocuments();
    void showTarget();
    void showPaper();
    void showAmount();
    void showMessage();
    void showState();
    void showSettings();
    void showSummary();
    void showPresetName();
    void showPanelAt(int index);
    void showInPlaceOfPanel();
    void setSending(bool isSending);
    void checkDocument();
    void showCheck();
    void showCountOfPages();
    void rememberUnfolded(QPushButton &button, const char *key);
    void unfoldSummary(bool isShown);
    void putBeside(QWidget &part, int stretch);
    void unfold(QWidget &part, bool isUnfolded);
    void fitToScreen();
    void addToPanelSpace(QWidget &view);
    void restoreTabOrder();
    void chooseFiles();
    void askForCredentials(const QString &sentence);
    void askForPassword(const QString &sentence);
    void askForPresetName();
    void askToDeletePreset();

    PrintDialog &m_dialog;
    std::unique_ptr<Ui::DialogWindow> m_ui;
    PaperChooser *m_paper;
    std::unique_ptr<DocumentCheck> m_check; // once the window is there
    std::unique_ptr<DocumentLock> m_lock;   // as well
    QLabel *m_ofPages = nullptr;            // made when they are known
    QPushButton *m_remedy = nullptr;        // made when there is one
    QCheckBox *m_look = nullptr;            // made for an application
    QVBoxLayout *m_beside = nullptr;        // what stands beside the settings; each made when it is first seen
    PreviewPane *m_preview = nullptr;
    SummaryView *m_summary = nullptr;
    QPointer<QWidget> m_focusBeforeJob;
    QString m_user; // who has said a password before
    QAction *m_remove;
    QPushButton *m_print;
    QPushButton *m_cancel;
};

} // namespace host
