// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Trust.h>

namespace dialog {
inline namespace job {

/// A question about the safety of a connection in words, for windows and terminals.
struct TrustWords {
    explicit TrustWords(const host::TrustRequest &request);

    QString title;
    /// What is not certain, in one sentence.
    QString question;
    /// What the user needs to know for the answer.
    QString details;
    /// What granting it is called on a button.
    QString action;
};

} // namespace job
} // namespace dialog
