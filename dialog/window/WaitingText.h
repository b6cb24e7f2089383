// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {
inline namespace cups {
inline namespace queues {
class QueueSession;
} // namespace queues
} // namespace cups
} // namespace host

namespace dialog {
inline namespace window {

/// Describes in a translated sentence what the dialog is waiting for, or what is missing, while no printer is
/// ready. The session is null for a dialog without a print server.
QString waitingText(const host::QueueSession *session);

} // namespace window
} // namespace dialog
