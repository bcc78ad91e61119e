// The box that asks for a preset's name.
#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace host {

class PrintDialog;

/// Takes no name that can't serve, and says of one that is there already that saving replaces it.
class PresetNameBox : public QDialog
{
    Q_OBJECT

public:
    PresetNameBox(const PrintDialog &dialog, const QString &name, QWidget *parent);
    QString name() const;

private:
    void check();

    const PrintDialog &m_dialog;
    QLineEdit *m_name;
    QLabel *m_hint;
    QPushButton *m_save;
};

} // namespace host
