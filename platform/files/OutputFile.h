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

/// A file that the program writes where the user says. It takes its place whole or not at all, can be read by
/// this user only (0600), and replaces nothing but a regular file:
///
/// - Character devices and FIFOs with a reader are written to, and stay what they are.
/// - Folders, sockets and block devices are refused.
/// - Symbolic links are refused, so that another user with write access to the folder cannot choose which
///   file is overwritten; except for those to character devices, such as /dev/stdout.
class OutputFile {
public:
    explicit OutputFile(QString path);

    /// Takes the content from the function, which answers false when the device takes no more. What is at the
    /// path stays as it is. False, with the reason in errorString(), when the path is refused or the content
    /// does not fit; nothing is left then.
    bool write(const std::function<bool(QIODevice *)> &writer);
    /// Puts what was written at the path. A time is when the file counts as modified; it has no meaning for
    /// devices. False, with the reason in errorString(); the path then is as it was, unless it is a device.
    bool commit(const QDateTime &modified = {});

    const QString &path() const { return m_path; }
    /// Whether commit() has put a file there, which can be removed, rather than written to a device.
    bool hasPlacedFile() const { return m_hasPlacedFile; }
    /// The end of a sentence, without a full stop: "it is a folder".
    const QString &errorString() const { return m_error; }

private:
    /// What can be done with what is at the path.
    enum class Way {
        Replace,
        WriteThrough,
        FollowLink, ///< and write through
        Refuse,     ///< errorString() says why
    };
    Way findWay();
    bool refuse(const QString &reason);
    bool writeToDevice();
    bool writeAll(int descriptor);

    QString m_path;
    Way m_way = Way::Refuse;
    /// One of the two takes the content.
    std::unique_ptr<TemporaryFile> m_file;
    QBuffer m_buffer;
    QString m_error;
    bool m_hasPlacedFile = false;
};

} // namespace files
} // namespace platform
