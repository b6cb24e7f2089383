// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

/// The rules of the keystroke check, one character after the other as they are told in prose, and with
/// character tables of their own: slow and plain, to hold the formatter against.
namespace reference {

struct Settings {
    std::int32_t style = 0;
    std::int32_t maxLength = 0;
    std::optional<std::int32_t> maxValue;
    std::optional<std::int32_t> minValue;
    QStringList invalid;
};

struct Edit {
    QString partial;
    qsizetype proposedLocation = 0;
    QString original;
    qsizetype originalLocation = 0;
};

struct Verdict {
    bool accepted = true;
    QString notification;
    /// The character that the notification carries; absent when it carries the formatter.
    std::optional<QString> invalidText;

    bool operator==(const Verdict &) const = default;
};

/// Whether the whole text exists in the Macintosh Roman character set.
bool isMacRoman(const QString &text);

/// The verdict in a UTF-8 locale.
Verdict check(const Settings &settings, const Edit &edit);

} // namespace reference
