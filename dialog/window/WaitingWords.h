// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {
class QueueSession;
}

namespace dialog {

/// What the dialog waits for, or lacks, while no printer is ready to be printed on, as a sentence. Null for a
/// dialog without a print server.
QString waitingWords(const host::QueueSession *session);

} // namespace dialog
