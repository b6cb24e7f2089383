// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QFile>

#include <memory>
#include <optional>

namespace host {
inline namespace documents {

/// Which file lies at a path, and in which state: another one put in its place, or other content, makes a
/// different stamp.
struct FileStamp {
    quint64 device = 0;
    quint64 number = 0;
    qint64 size = 0;
    qint64 modifiedSeconds = 0;
    qint64 modifiedNanoseconds = 0;

    bool operator==(const FileStamp &) const = default;
};

/// A file that is open for reading.
struct RegularFile {
    std::unique_ptr<QFile> file;
    FileStamp stamp;
};

/// Opens a file. Folders, pipes and devices are rejected, and never waited on.
Result<RegularFile, DocumentErrorReason> openRegularFile(const QString &path);

/// What lies at the path now; nothing when there is nothing.
std::optional<FileStamp> fileStamp(const QString &path);
/// The state of a file that is open.
std::optional<FileStamp> fileStamp(int descriptor);

} // namespace documents
} // namespace host
