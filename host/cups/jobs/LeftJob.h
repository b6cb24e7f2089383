// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobJournal.h"

#include <host/cups/server/CupsServer.h>

namespace host {

class BackgroundTask;

/// What the user wants to become of a job that a killed program has left.
enum class LeftJobAction {
    Cancel,
    Release, ///< print what the server has of it
};

/// Where the job may be, in a sentence.
QString leftJobSentence(const JobRecord &record);

/// Does it on the job's own server, asking for passwords as the given server does, and takes the job out of
/// the journal. Returns the state of the job in a sentence; one that is completed or purged is removed as
/// well. An error leaves it in the journal. For tasks in the background.
Result<QString, CupsError> settleLeftJob(const CupsServer &asking, const JobRecord &record,
                                         LeftJobAction action, BackgroundTask &task);

} // namespace host
