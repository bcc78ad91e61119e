// The preview with what turns its pages.
#pragma once

#include "PageView.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QToolButton;

namespace host {

class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    /// The dialog has to outlive the pane.
    explicit PreviewPane(PrintDialog &dialog, QWidget *parent = nullptr);

    const PagePreview &preview() const { return m_preview; }

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void offerScalings();
    void follow();

    PrintDialog &m_dialog;
    PagePreview m_preview;
    PageView *m_view;
    QToolButton *m_back;
    QLabel *m_number;
    QToolButton *m_forward;
    QToolButton *m_zoom;
    QCheckBox *m_asPrinted;
    QComboBox *m_scaling;
    QLabel *m_unseen;
};

} // namespace host
