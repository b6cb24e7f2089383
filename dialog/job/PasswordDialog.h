// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Passwords.h>

#include <QDialog>

class QLineEdit;

namespace dialog {
inline namespace job {

/// Asks the user for the name and password that a print server requests. Answers the request when the dialog
/// is accepted, and declines it when the dialog is closed in any other way. Deletes itself when it is closed.
class PasswordDialog : public QDialog {
    Q_OBJECT

public:
    /// Shows the request's prompt, with its user name filled in.
    PasswordDialog(const host::PasswordRequest &request, QWidget *parent);

    /// Declines the request if it has not been answered.
    ~PasswordDialog() override;

    /// Answers or declines the request, and closes the dialog.
    void done(int result) override;

private:
    host::PasswordRequest m_request;
    QLineEdit *m_user;
    QLineEdit *m_password;
};

/// Returns a handler that shows a dialog for each request, in front of the parent or of the modal window that
/// blocks it. The parent may be destroyed before the handler.
host::PasswordHandler askWithDialog(QWidget *parent);

} // namespace job
} // namespace dialog
