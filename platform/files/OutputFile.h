// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "TemporaryFile.h"

#include <QBuffer>
#include <QDateTime>

#include <functional>
#include <memory>
#include <optional>

namespace platform {
inline namespace files {

/// A file that the program writes to a path that the user has chosen. The file is replaced atomically, can be
/// read by this user only (0600), and replaces nothing but a regular file:
///
/// - Character devices and FIFOs with a reader are written to directly and remain what they are.
/// - Folders, sockets and block devices are rejected.
/// - Symbolic links are rejected, so that another user with write access to the folder cannot choose which
///   file is overwritten. Links to character devices, such as /dev/stdout, are accepted.
class OutputFile {
public:
    /// Does not access the path.
    explicit OutputFile(QString path);

    /// Calls writer to write the content; writer returns false when the device accepts no more data. The path
    /// stays unchanged until commit(). Returns false, with the reason in errorString(), if the path is
    /// rejected or the content cannot be written; no temporary file remains then.
    bool write(const std::function<bool(QIODevice *)> &writer);
    /// Moves the written content to the path. modified, if valid, becomes the modification time of the file;
    /// it has no effect on devices. On failure, returns false, with the reason in errorString(), and the path
    /// is unchanged unless it is a device.
    bool commit(const QDateTime &modified = {});

    /// The path that the constructor received.
    const QString &path() const { return m_path; }
    /// Returns true if commit() has created a file at the path, which can be removed; false if it has written
    /// to a device.
    bool hasCreatedFile() const { return m_hasCreatedFile; }
    /// The reason of the last error, as the end of a sentence without a full stop: "it is a folder".
    const QString &errorString() const { return m_error; }

private:
    /// How the object at the path is written to.
    enum class Way {
        Replace,
        WriteThrough,
        FollowLink, ///< and write to its target
        Reject,     ///< errorString() holds the reason
    };
    Way findWay();
    bool reject(const QString &reason);
    bool writeToDevice();
    bool writeAll(int descriptor);

    QString m_path;
    Way m_way = Way::Reject;
    /// The content is written to one of the two.
    std::unique_ptr<TemporaryFile> m_file;
    QBuffer m_buffer;
    QString m_error;
    bool m_hasCreatedFile = false;
};

} // namespace files
} // namespace platform
