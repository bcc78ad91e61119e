// The box that asks who wants to print.
#include "CredentialsBox.h"

#include "Foundation/PlainText.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace host {

namespace {

constexpr int kWidthInLetters = 48;

} // namespace

CredentialsBox::CredentialsBox(const QString &sentence, const QString &user, QWidget *parent)
    : QDialog(parent)
    , m_user(new QLineEdit(user))
    , m_password(new QLineEdit)
{
    setWindowTitle(tr("Password"));
    auto *const why = new QLabel(foundation::withoutControls(sentence));
    why->setTextFormat(Qt::PlainText);
    why->setWordWrap(true);
    why->setMinimumWidth(kWidthInLetters * fontMetrics().averageCharWidth());
    m_password->setEchoMode(QLineEdit::Password);
    auto *const buttons = new QDialogButtonBox;
    auto *const go = buttons->addButton(tr("&Log In"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    auto *const form = new QFormLayout(this);
    form->addRow(why);
    form->addRow(tr("&User name:"), m_user);
    form->addRow(tr("&Password:"), m_password);
    form->addRow(buttons);
    const auto check = [this, go] { go->setEnabled(!m_user->text().isEmpty()); };
    connect(m_user, &QLineEdit::textChanged, this, check);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
    (user.isEmpty() ? m_user : m_password)->setFocus();
}

Credentials CredentialsBox::credentials() const { return {m_user->text(), m_password->text()}; }

} // namespace host
