// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SentJob.h"
#include "WalkedServer.h"

namespace dialogwalk {

/// The options that the filter received, including copies.
OptionTexts optionsOf(const test_support::RecordedDocument &document);

/// Compares what the server recorded of the jobs with what the dialog showed before Print was pressed: the
/// document's bytes, every option that was shown as sent, and the strip that the printer makes of it. Waits
/// until all jobs have passed the filters. Returns one line for each difference.
QStringList disagreementsOnServer(WalkedServer &server, const std::vector<SentJob> &jobs);

} // namespace dialogwalk
