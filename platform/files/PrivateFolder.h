// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace platform {
inline namespace files {

/// Creates the folder and its missing parent folders for this user only (0700), whatever the umask is.
/// Existing folders stay unchanged. Returns std::nullopt if the folder exists afterwards, otherwise the
/// reason why it does not.
std::optional<QString> createPrivateFolders(const QString &folder);

/// Restricts access to a folder to this user (0700). For folders that belong to the program; does nothing if
/// the system does not permit the change.
void restrictToUser(const QString &folder);

/// Returns the folder for the state that programs keep between two starts: $XDG_STATE_HOME, or ~/.local/state
/// if that is not an absolute path (XDG Base Directory Specification). Does not create it.
QString stateFolder();

} // namespace files
} // namespace platform
