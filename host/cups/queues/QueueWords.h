// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

namespace host {

/// How urgent a state is, for the choice of an icon or colour.
enum class StateSeverity { Good, Warning, Error };

/// How the queue is, one sentence each, in the user's language: what it does, what keeps it from printing,
/// whether it takes jobs, and in the end the server's own words when they say more.
QStringList queueSentences(const Destination &destination);
/// The worst of what queueSentences() tells.
StateSeverity queueSeverity(const Destination &destination);

/// What IPP's keyword means, for instance "media-empty-error": "The label roll or tape is empty.". Keywords
/// that nobody has agreed on are answered as they are, with blanks for dashes.
QString stateReasonSentence(const QString &reason);
StateSeverity stateReasonSeverity(const QString &reason);

} // namespace host
