// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFile>

namespace platform {
inline namespace files {

/// A file that only this user can read and write (0600), whatever the umask is. The destructor removes it.
///
/// The program holds a lock on the file while the file is open. A file with such a name that no program has
/// locked was left by a program that was killed; removeLeftovers() removes it.
class TemporaryFile : public QFile {
public:
    /// The folder must exist. create() creates the file in it.
    explicit TemporaryFile(QString folder);
    /// Removes the file unless moveTo() has succeeded.
    ~TemporaryFile() override;

    /// The file's path; empty before create().
    QString fileName() const override { return m_path; }
    /// Creates the file and opens it for reading and writing. Returns false, with the reason in
    /// errorString(), if it cannot be created.
    bool create();
    /// Writes the content to the disk and renames the file to path, in the same folder, replacing an existing
    /// file of that name. The file stays open and is no longer removed by the destructor. On failure, returns
    /// false, with the reason in errorString(); the file then keeps its temporary name.
    bool moveTo(const QString &path);

    /// Removes this user's temporary files from the folder if their programs have ended without removing
    /// them.
    static void removeLeftovers(const QString &folder);

private:
    bool fail(int error);

    QString m_folder;
    QString m_path;
    /// Whether the destructor removes the file.
    bool m_isTemporary = false;
};

} // namespace files
} // namespace platform
