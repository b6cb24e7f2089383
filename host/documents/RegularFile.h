// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QFile>

#include <memory>
#include <optional>

namespace host {
inline namespace documents {

/// Identifies the file at a path and its state: a replaced file, or different content, has a different
/// stamp.
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

/// Opens a file. Folders, pipes and devices are rejected without waiting.
Result<RegularFile, DocumentErrorReason> openRegularFile(const QString &path);

/// Returns the stamp of the file at the path; absent if there is none.
std::optional<FileStamp> fileStamp(const QString &path);
/// Returns the stamp of an open file.
std::optional<FileStamp> fileStamp(int descriptor);

} // namespace documents
} // namespace host
