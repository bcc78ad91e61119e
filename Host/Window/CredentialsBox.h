// The box that asks for a password, and where that matters for who says it.
#pragma once

#include "Cups/Conversation.h"

#include <QDialog>

class QLineEdit;

namespace host {

class CredentialsBox : public QDialog
{
    Q_OBJECT

public:
    /// For a server. `sentence`: why it is asked. `user`: who it probably is.
    CredentialsBox(const QString &sentence, const QString &user, QWidget *parent);
    /// For a document, which knows no names.
    CredentialsBox(const QString &sentence, QWidget *parent);

    Credentials credentials() const;

private:
    void arrange(const QString &sentence, QLineEdit &needed, const QString &button);

    QLineEdit *m_user;
    QLineEdit *m_password;
};

} // namespace host
