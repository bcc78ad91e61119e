// The box that asks who wants to print.
#pragma once

#include "Cups/Conversation.h"

#include <QDialog>

class QLineEdit;

namespace host {

class CredentialsBox : public QDialog
{
    Q_OBJECT

public:
    /// `sentence`: why it is asked. `user`: who it probably is.
    CredentialsBox(const QString &sentence, const QString &user, QWidget *parent);

    Credentials credentials() const;

private:
    QLineEdit *m_user;
    QLineEdit *m_password;
};

} // namespace host
