// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OutputError.h"

#include <platform/OutputFile.h>

#include <functional>
#include <memory>

namespace host {

/// Several files that appear in a folder together or not at all: each is written beside its place first,
/// and only when all are whole do they take their places. What platform::OutputFile refuses is refused.
class OutputFiles {
public:
    /// Makes the folder, with those above it, for this user alone when it is not there.
    explicit OutputFiles(QString folder);
    /// Takes away what was made, unless commit() succeeded.
    ~OutputFiles();
    OutputFiles(const OutputFiles &) = delete;
    OutputFiles &operator=(const OutputFiles &) = delete;

    /// Writes one file with the function, which answers false when the device takes no more. Does nothing
    /// after a failure.
    void write(const QString &name, const std::function<bool(QIODevice *)> &writer);
    /// Puts all files in their places. Nothing when all went well, else the first failure.
    std::optional<OutputError> commit();

private:
    void makeFolder();
    void fail(OutputFailure kind, const QString &path, const QString &reason);

    QString m_folder;
    /// The topmost folder that was made.
    QString m_madeFolder;
    std::vector<std::unique_ptr<platform::OutputFile>> m_files;
    std::optional<OutputError> m_error;
    bool m_done = false;
};

} // namespace host
