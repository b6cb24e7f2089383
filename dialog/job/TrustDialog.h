// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Trust.h>

#include <QMessageBox>

namespace dialog {
inline namespace job {

/// Asks the user about the safety of a connection. Grants the request when its button is pressed, and refuses
/// it when the dialog is closed in any other way.
class TrustDialog : public QMessageBox {
    Q_OBJECT

public:
    TrustDialog(const host::TrustRequest &request, QWidget *parent);

    /// Refuses when nothing was answered.
    ~TrustDialog() override;

private:
    host::TrustRequest m_request;
};

/// Shows a dialog for every request, in front of the parent or whatever window blocks that.
host::TrustHandler askTrustWithDialog(QWidget *parent);

} // namespace job
} // namespace dialog
