// The box that asks for a password.
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
    , m_user(new QLineEdit(user, this))
    , m_password(new QLineEdit(this))
{
    arrange(sentence, *m_user, tr("&Log In"));
    (user.isEmpty() ? m_user : m_password)->setFocus();
}

CredentialsBox::CredentialsBox(const QString &sentence, QWidget *parent)
    : QDialog(parent)
    , m_user(nullptr)
    , m_password(new QLineEdit(this))
{
    arrange(sentence, *m_password, tr("&Unlock"));
}

void CredentialsBox::arrange(const QString &sentence, QLineEdit &needed, const QString &button)
{
    setWindowTitle(tr("Password"));
    auto *const why = new QLabel(foundation::withoutControls(sentence));
    why->setTextFormat(Qt::PlainText);
    why->setWordWrap(true);
    why->setMinimumWidth(kWidthInLetters * fontMetrics().averageCharWidth());
    m_password->setEchoMode(QLineEdit::Password);
    auto *const buttons = new QDialogButtonBox;
    auto *const go = buttons->addButton(button, QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    auto *const form = new QFormLayout(this);
    form->addRow(why);
    if (m_user)
        form->addRow(tr("&User name:"), m_user);
    form->addRow(tr("&Password:"), m_password);
    form->addRow(buttons);
    const auto check = [go](const QString &text) { go->setEnabled(!text.isEmpty()); };
    connect(&needed, &QLineEdit::textChanged, this, check);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check(needed.text());
}

Credentials CredentialsBox::credentials() const { return {m_user ? m_user->text() : QString(), m_password->text()}; }

} // namespace host
