// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Background.h>
#include <host/cups/server/CupsServer.h>
#include <host/documents/RegularFile.h>

namespace host {

/// A document's bytes, read piece by piece: of a file, or of standard input. Move-only.
class DocumentSource {
public:
    /// Opens the file, or "-" for standard input. Folders, pipes and devices by name are refused: nobody
    /// knows when they end. A file in another state than expected is refused as well.
    static Result<DocumentSource, CupsError> open(const QString &path,
                                                  const std::optional<FileStamp> &expected = std::nullopt);
    ~DocumentSource();
    DocumentSource(DocumentSource &&other) noexcept;
    DocumentSource &operator=(DocumentSource &&) = delete;

    /// In bytes; -1 for standard input.
    qint64 size() const { return m_size; }
    /// The next piece; empty at the end. A file that has changed meanwhile is an error, at the end at the
    /// latest: nobody has seen what was read of it. Gives up waiting for input when the task is cancelled.
    Result<QByteArray, CupsError> read(const BackgroundTask &task);
    /// Goes back to the beginning. False for standard input, which cannot be read twice.
    bool rewind();

private:
    DocumentSource(QString path, int descriptor, qint64 size);

    CupsError failure(const QString &reason) const;

    QString m_path;
    int m_descriptor;
    qint64 m_size;
    qint64 m_taken = 0;
    std::optional<FileStamp> m_stamp;
};

} // namespace host
