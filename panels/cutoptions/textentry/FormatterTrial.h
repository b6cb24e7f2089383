// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>

namespace textentry {

/// Tries edits on a formatter of the request's making, for tools that check what a layout's formatter lets
/// through. The request's members, all but "edits" optional:
///
///     style, maxLength, maxValue, minValue   32-bit integers
///     invalid                                list of texts to refuse
///     formatString                           format string
///     notificationObject                     text that notifications carry
///     calendarDate, calendarLocale           ISO 8601 date and locale dictionary: a calendar formatter
///     edits                                  what to try, in order
///
/// What is tried is one of
///
///     {"partial": text or null, "proposed": [location, length] or null,
///      "original": text, "originalSelection": [location, length]}
///     {"format": integer or text}
///     {"objectValue": text}
///
/// Answers {"results": [...]}: of an edit {"accepted", "notification", "object", "beeps"}, where "object"
/// is the text that the notification carried, or "formatter"; of the others {"text"}. Beeps and
/// notifications really happen, and observers receive them. A member that is missing or of a wrong type
/// answers
/// {"error": ...} that names it, and then nothing has been tried.
QJsonObject tryFormatter(const QJsonObject &request);

} // namespace textentry
