// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Trust.h>

#include <QMessageBox>

namespace dialog {
inline namespace job {

/// Asks the user about the security of a connection. Grants the request when its button is pressed, and
/// declines it when the dialog is closed in any other way. Deletes itself when it is closed.
class TrustDialog : public QMessageBox {
    Q_OBJECT

public:
    /// Shows the question as TrustText describes it.
    TrustDialog(const host::TrustRequest &request, QWidget *parent);

    /// Declines the request if it has not been granted.
    ~TrustDialog() override;

private:
    host::TrustRequest m_request;
};

/// Returns a handler that shows a dialog for each request, in front of the parent or of the modal window that
/// blocks it. The parent may be destroyed before the handler.
host::TrustHandler askTrustWithDialog(QWidget *parent);

} // namespace job
} // namespace dialog
