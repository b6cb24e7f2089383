// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace platform {
inline namespace files {

/// Makes the folder, with those above it that are missing, for this user alone (0700), whatever the umask is.
/// Folders that are there stay as they are. Nothing when the folder is there afterwards, else why it is not.
std::optional<QString> makePrivateFolders(const QString &folder);

/// Takes a folder away from all but this user (0700). For folders that belong to the program; does nothing
/// where the system does not permit it.
void closeToOthers(const QString &folder);

} // namespace files
} // namespace platform
