// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobJournal.h"

#include <host/cups/server/CupsServer.h>

namespace host {
inline namespace cups {
inline namespace server {
class BackgroundTask;
} // namespace server
} // namespace cups
} // namespace host

namespace host {
inline namespace cups {
inline namespace jobs {

/// The user's decision about a job that a killed program has left.
enum class LeftJobAction {
    Cancel,
    Release, ///< print what the server has of it
};

/// Describes where the job may be, in a sentence in the user's language.
QString leftJobSentence(const JobRecord &record);

/// Performs the action on the job's own server, with the password and trust prompts of the server asking, and
/// removes the job from the journal. Returns the state of the job in a sentence; also removes a job that is
/// completed or purged. After an error, the job stays in the journal. For background tasks.
Result<QString, CupsError> settleLeftJob(const CupsServer &asking, const JobRecord &record,
                                         LeftJobAction action, BackgroundTask &task);

} // namespace jobs
} // namespace cups
} // namespace host
