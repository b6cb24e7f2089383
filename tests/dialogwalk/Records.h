// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SentJob.h"
#include "WalkedServer.h"

namespace dialogwalk {

/// The options that the filter was given, copies among them.
OptionTexts optionsOf(const test_support::RecordedDocument &document);

/// Holds what the server recorded of the jobs to what the dialog showed before Print was pressed: the
/// document's bytes, every option that was shown as sent, and the strip that the printer makes of it. Waits
/// until all jobs have passed the filters. A line for each departure.
QStringList departuresOnServer(WalkedServer &server, const std::vector<SentJob> &jobs);

} // namespace dialogwalk
