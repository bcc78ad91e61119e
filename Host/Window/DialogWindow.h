// The print dialog as a window: a face of DialogSession, which makes all decisions.
#pragma once

#include "Dialog/PrintTarget.h"

#include <QDialog>

#include <atomic>

class QAction;
class QBoxLayout;
class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTabBar;

namespace host {

class PaperChooser;
class SummaryView;

class DialogWindow : public QDialog
{
    Q_OBJECT

public:
    /// `document` may be null: the dialog then has nothing to print.
    explicit DialogWindow(std::unique_ptr<Document> document);
    ~DialogWindow() override;

    /// Of the job; without one the document's name.
    void setTitle(const QString &title) { m_jobTitle = title; }

    /// The printer's name as the only one, until there are more to choose from.
    void showPrinterName(const QString &name) { offerPrinters({name}, name); }
    void offerPrinters(const QStringList &names, const QString &chosen);
    /// The printer to set up and to print on. Its session must not be started yet.
    void usePrinter(Printer printer);
    const Printer &printer() const { return m_printer; }

    /// One sentence under the panel; an empty one takes it away.
    void say(const QString &sentence);
    /// Nothing can be printed until a printer comes. Cancel works as ever.
    void wait(const QString &sentence);
    /// Says why there is no printer, with a button to look once more.
    void offerRetry(const QString &sentence);

    /// False when there is no such panel or it has no view.
    bool showPanel(const QString &identifier);

Q_SIGNALS:
    void printerChosen(const QString &name);
    void retryWanted();
    /// The printer has changed so that the settings may no longer fit; nothing was printed.
    void printerOutdated();
    /// The job went out; the sentence says where to.
    void printed(const QString &sentence);

public Q_SLOTS:
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void layOutForm();
    void layOut();
    void offerPanels();
    void offerPresets();
    void showPanelAt(int index);
    void joinAfterThePanel();
    void refreshSummary();
    void settleSoon();
    void settle();
    void sayForNow(const QString &sentence);
    void restorePreset(const QString &preset);
    void save(const QString &preset);
    void savePresetAs();
    void removePreset();
    std::optional<QString> chosenPages();
    void print();
    void submit(const Job &job);
    void finish(const JobSink::Result &result);
    void setSending(bool sending);

    std::unique_ptr<Document> m_document;
    Printer m_printer;
    QString m_jobTitle;
    std::shared_ptr<std::atomic<bool>> m_stop; // of the job being sent; null when none is

    QComboBox *m_printers;
    QComboBox *m_presets;
    QFormLayout *m_form;
    QPushButton *m_save;
    QAction *m_remove;
    PaperChooser *m_paper;
    QSpinBox *m_copies;
    QLineEdit *m_pages;
    QTabBar *m_tabs;
    QWidget *m_panelSpace;
    SummaryView *m_summary;
    QLabel *m_message;
    QPushButton *m_retry;
    bool m_saysRemark = false; // on choices; goes with the next ones
    bool m_isToSettle = false;
    QProgressBar *m_progress;
    QBoxLayout *m_column;
    QBoxLayout *m_columns;
    QDialogButtonBox *m_buttons;
    QPushButton *m_print;
    QPushButton *m_cancel;
};

} // namespace host
