// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/documents/DocumentPassword.h>

#include <QDialog>

class QLineEdit;

namespace dialog {
inline namespace job {

/// Asks the user for the password of an encrypted document.
class DocumentPasswordDialog : public QDialog {
    Q_OBJECT

public:
    /// Names the document and, in further rounds, says that the last password was wrong.
    DocumentPasswordDialog(const QString &documentName, host::PasswordRound round, QWidget *parent);

    /// What the user has entered.
    QString password() const;

private:
    QLineEdit *m_password;
};

/// Shows the dialog and waits for the user. For documents that are opened before there is a window.
std::optional<QString> askDocumentPasswordWithDialog(const QString &documentName, host::PasswordRound round);

} // namespace job
} // namespace dialog
