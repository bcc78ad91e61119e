// The box that asks for a preset's name.
#include "PresetNameBox.h"

#include "Dialog/PrintDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int kWidthInLetters = 40;

} // namespace

PresetNameBox::PresetNameBox(const PrintDialog &dialog, const QString &name, QWidget *parent)
    : QDialog(parent)
    , m_dialog(dialog)
    , m_name(new QLineEdit(name))
    , m_hint(new QLabel)
{
    setWindowTitle(tr("Save as Preset"));
    auto *const label = new QLabel(tr("&Name:"));
    label->setBuddy(m_name);
    m_name->setMinimumWidth(kWidthInLetters * fontMetrics().averageCharWidth());
    m_name->selectAll();
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setMinimumHeight(2 * fontMetrics().lineSpacing()); // so that the box stands still
    auto *const buttons = new QDialogButtonBox;
    m_save = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    auto *const rows = new QVBoxLayout(this);
    for (QWidget *row : {static_cast<QWidget *>(label), static_cast<QWidget *>(m_name), static_cast<QWidget *>(m_hint),
                         static_cast<QWidget *>(buttons)})
        rows->addWidget(row);
    connect(m_name, &QLineEdit::textChanged, this, &PresetNameBox::check);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
}

QString PresetNameBox::name() const { return m_name->text().trimmed(); }

void PresetNameBox::check()
{
    const auto usable = SavedOptions::checkName(name());
    const bool isThere = m_dialog.hasPreset(name());
    m_save->setEnabled(!name().isEmpty() && usable);
    m_save->setText(isThere ? tr("&Replace") : tr("&Save"));
    if (!name().isEmpty() && !usable)
        m_hint->setText(usable.problem().sentence);
    else
        m_hint->setText(isThere ? tr("“%1” is there already; saving replaces it.").arg(name()) : QString());
    m_name->setAccessibleDescription(m_hint->text());
}

} // namespace host
