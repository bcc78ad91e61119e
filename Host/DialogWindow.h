// The print dialog as a window: a face of DialogSession, which makes all decisions.
#pragma once

#include "DialogSession.h"
#include "Job.h"

#include <QDialog>

#include <atomic>

class QBoxLayout;
class QComboBox;
class QDialogButtonBox;
class QLabel;
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

    void setCopies(int copies);
    void setTitle(const QString &title) { m_jobTitle = title; }

    /// Names to choose a printer from; a single one is shown as it is.
    void offerPrinters(const QStringList &names, const QString &chosen);
    /// The printer to set up and to print on. The session must not be started yet.
    void usePrinter(std::unique_ptr<DialogSession> session, std::unique_ptr<JobSink> sink);
    /// One sentence under the panel; an empty one takes it away.
    void say(const QString &sentence);

    /// False when there is no such panel or it has no view.
    bool showPanel(const QString &identifier);

Q_SIGNALS:
    void printerChosen(const QString &name);
    /// The job went out; the sentence says where to.
    void printed(const QString &sentence);

public Q_SLOTS:
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void layOut();
    void offerPanels();
    void showPanelAt(int index);
    void joinAfterThePanel();
    void refreshSummary();
    void print();
    void finish(const JobSink::Result &result);
    void setSending(bool sending);

    std::unique_ptr<Document> m_document;
    std::unique_ptr<JobSink> m_sink;
    std::unique_ptr<DialogSession> m_session;
    QString m_jobTitle;
    std::shared_ptr<std::atomic<bool>> m_stop; // of the job being sent; null when none is

    QComboBox *m_printers;
    PaperChooser *m_paper;
    QSpinBox *m_copies;
    QTabBar *m_tabs;
    QWidget *m_panelSpace;
    SummaryView *m_summary;
    QLabel *m_message;
    QProgressBar *m_progress;
    QBoxLayout *m_column;
    QBoxLayout *m_columns;
    QDialogButtonBox *m_buttons;
    QPushButton *m_print;
    QPushButton *m_cancel;
};

} // namespace host
