// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Passwords.h>

#include <QDialog>

class QLineEdit;

namespace dialog {
inline namespace job {

/// Asks the user for the name and password that a print server wants. Answers the request when it is
/// accepted, and refuses it when it is closed in any other way.
class PasswordDialog : public QDialog {
    Q_OBJECT

public:
    PasswordDialog(const host::PasswordRequest &request, QWidget *parent);

    /// Refuses when nothing was answered.
    ~PasswordDialog() override;

    void done(int result) override;

private:
    host::PasswordRequest m_request;
    QLineEdit *m_user;
    QLineEdit *m_password;
};

/// Shows a dialog for every request, in front of the parent or whatever window blocks that.
host::PasswordHandler askWithDialog(QWidget *parent);

} // namespace job
} // namespace dialog
