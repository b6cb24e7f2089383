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

/// What the dialog waits for, or lacks, while no printer is ready to be printed on, as a sentence. Null for a
/// dialog without a print server.
QString waitingWords(const host::QueueSession *session);

} // namespace window
} // namespace dialog
