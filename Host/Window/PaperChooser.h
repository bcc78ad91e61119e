// The paper of the dialog: the PPD's sizes, and a size of the user's own within the PPD's limits.
#pragma once

#include "Session/DialogSession.h"

#include <QHBoxLayout>

class QComboBox;
class QDoubleSpinBox;

namespace host {

/// A row for a form. It is a layout and no widget of its own, so that assistive technology finds the label beside the
/// menu.
class PaperChooser : public QHBoxLayout
{
    Q_OBJECT

public:
    PaperChooser();

    /// What a label of the paper belongs to.
    QComboBox *menu() const { return m_names; }
    /// Whether a person may choose.
    void setChoosable(bool choosable);

    /// Shows the papers of a session, with its own selected; nothing is reported.
    void offer(const DialogSession &session);
    /// Shows papers of a printer without a session; one is selected when it has that name, else none.
    void offer(const std::vector<PPDDocument::PageSize> &papers, const QString &name);
    /// Nil before anything was offered.
    std::optional<ChosenPaper> chosen() const;

Q_SIGNALS:
    void chose(); // a person did

private:
    void choose();

    QComboBox *m_names;
    QWidget *m_ownSize;
    QDoubleSpinBox *m_width;
    QDoubleSpinBox *m_height;
    double m_pointsPerUnit;
    std::vector<PPDDocument::PageSize> m_sizes;
};

} // namespace host
