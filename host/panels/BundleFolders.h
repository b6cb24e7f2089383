// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace host {
inline namespace panels {

/// A folder in which panel bundles are installed.
struct BundleFolder {
    QString path;
    /// Whether the folder belongs to the program's own installation: a user who can write to it can also
    /// replace the program, so that its files need no check.
    bool isOfProgram = false;
};

/// Returns the folders that are searched for panel bundles, in this order: those of $KVPRINT_PANELS
/// (separated by colons, for writers of panels), the folder of the program's installation, kvprint/panels in
/// each folder of $XDG_DATA_DIRS, and $XDG_DATA_HOME/kvprint/panels. Folders that do not exist are included.
/// Relative paths are skipped, as the XDG Base Directory Specification requires.
QList<BundleFolder> bundleFolders();

/// Returns why code in this file or folder must not be loaded, as the end of a sentence: other users than
/// root and the current one can write to it, or it belongs to another user. Absent if it can be loaded; a
/// path that does not exist is an error as well.
std::optional<QString> untrustedReason(const QString &path);

} // namespace panels
} // namespace host
