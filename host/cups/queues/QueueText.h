// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

namespace host {
inline namespace cups {
inline namespace queues {

/// The severity of a state, for the choice of an icon or color.
enum class StateSeverity { Good, Warning, Error };

/// Describes the queue in one sentence each, in the user's language: its state, what keeps it from printing,
/// whether it accepts jobs, and finally the server's message if that adds something.
QStringList queueSentences(const Destination &destination);
/// Returns the highest severity among the sentences of queueSentences().
StateSeverity queueSeverity(const Destination &destination);

/// Returns the meaning of an IPP keyword in the user's language, for instance for "media-empty-error": "The
/// label roll or tape is empty.". For an unknown keyword, returns the keyword with spaces in place of
/// hyphens.
QString stateReasonSentence(const QString &reason);
/// Returns the severity of an IPP keyword, such as that of the suffix "-error".
StateSeverity stateReasonSeverity(const QString &reason);

} // namespace queues
} // namespace cups
} // namespace host
