// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Trust.h>

namespace dialog {
inline namespace job {

/// The translated texts of a question about the security of a connection, for windows and terminals.
struct TrustText {
    explicit TrustText(const host::TrustRequest &request);

    /// The title of a window.
    QString title;
    /// What cannot be verified, in one sentence.
    QString question;
    /// What the user needs to know for the answer.
    QString details;
    /// The text of the button that grants the request.
    QString action;
};

} // namespace job
} // namespace dialog
