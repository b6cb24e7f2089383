// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OutputError.h"

#include <platform/OutputFile.h>

#include <functional>
#include <memory>

namespace host {
inline namespace strip {

/// Writes several files to a folder so that either all of them appear there or none. Each file is first
/// written to a temporary file beside its final path; commit() moves all of them into place once all are
/// complete. Paths that platform::OutputFile rejects are rejected here, too.
class OutputFiles {
public:
    /// Creates the folder and its missing parents, accessible to this user only, unless the folder exists. An
    /// error is reported by commit().
    explicit OutputFiles(QString folder);
    /// Removes all created files and folders unless commit() succeeded.
    ~OutputFiles();
    OutputFiles(const OutputFiles &) = delete;
    OutputFiles &operator=(const OutputFiles &) = delete;

    /// Writes one file with the function, which returns false if the device cannot hold the data. Does
    /// nothing after an earlier error.
    void write(const QString &name, const std::function<bool(QIODevice *)> &writer);
    /// Moves all files into place. Returns the first error of this or an earlier operation.
    Result<void, OutputError> commit();

private:
    void createFolder();
    void fail(OutputErrorKind kind, const QString &path, const QString &reason);

    QString m_folder;
    /// The topmost folder that was created; absent if the folder existed.
    std::optional<QString> m_createdFolder;
    std::vector<std::unique_ptr<platform::OutputFile>> m_files;
    Result<void, OutputError> m_outcome;
    bool m_done = false;
};

} // namespace strip
} // namespace host
