// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Background.h>
#include <host/cups/server/CupsServer.h>
#include <host/documents/RegularFile.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Reads the content of a document in parts, from a file or from standard input. Move-only.
class DocumentSource {
public:
    /// Opens the file, or standard input for "-". Folders, and pipes and devices by name, are errors, because
    /// their end is unknown. A file whose state differs from the expected one is also an error.
    static Result<DocumentSource, CupsError> open(const QString &path,
                                                  const std::optional<FileStamp> &expected = std::nullopt);
    ~DocumentSource();
    DocumentSource(DocumentSource &&other) noexcept;
    DocumentSource &operator=(DocumentSource &&) = delete;

    /// The size in bytes; absent for standard input.
    std::optional<qint64> size() const { return m_size; }
    /// Reads the next part; empty at the end. A file that changes while it is read is an error, which is
    /// returned at the end at the latest: the content that was read was never shown to the user. Returns an
    /// empty part if the task is canceled while waiting for standard input.
    Result<QByteArray, CupsError> read(const BackgroundTask &task);
    /// Returns to the beginning. Returns false for standard input, which cannot be read twice, and if the
    /// file cannot be positioned.
    bool rewind();

private:
    DocumentSource(QString path, int descriptor);

    CupsError failure(const QString &reason) const;

    QString m_path;
    int m_descriptor;
    std::optional<qint64> m_size = {};
    qint64 m_taken = 0;
    std::optional<FileStamp> m_stamp;
};

} // namespace jobs
} // namespace cups
} // namespace host
