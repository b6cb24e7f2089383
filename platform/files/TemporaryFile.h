// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFile>

namespace platform {
inline namespace files {

/// A file that only this user can read and write (0600), whatever the umask is; gone with the object.
///
/// The program holds a lock on the file as long as it is open. A file of this name that no program has locked
/// is what a killed program has left; removeLeftOvers() takes it away.
class TemporaryFile : public QFile {
public:
    /// For a file in the folder, which must be there.
    explicit TemporaryFile(QString folder);
    ~TemporaryFile() override;

    /// The file's path, empty before create().
    QString fileName() const override { return m_path; }
    /// Makes the file and opens it for reading and writing. False, with the reason in errorString(), when it
    /// cannot be made.
    bool create();
    /// Puts the content on the disk and gives the file its final name, in the same folder, in place of what
    /// has that name. The file stays open, and stays when the object goes. False, with the reason in
    /// errorString(); the file then still has its first name.
    bool moveTo(const QString &path);

    /// Removes from a folder the temporary files of this user whose programs have ended without removing
    /// them.
    static void removeLeftOvers(const QString &folder);

private:
    bool fail(int error);

    QString m_folder;
    QString m_path;
    /// Whether the file goes with the object.
    bool m_isTemporary = false;
};

} // namespace files
} // namespace platform
