// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace host {
inline namespace documents {

/// Whether the user is asked for a password for the first time, or because the last one was wrong.
enum class PasswordRound { First, Again };

/// Returns the password that the user enters for the document of this name; absent if the user cancels or
/// cannot be asked.
using DocumentPasswordSource =
    std::function<std::optional<QString>(const QString &name, PasswordRound round)>;

} // namespace documents
} // namespace host
