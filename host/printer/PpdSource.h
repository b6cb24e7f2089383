// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdError.h"
#include "PpdHandle.h"
#include "PpdText.h"

#include <cups/file.h>

namespace host {
inline namespace printer {

/// The file from which a PPD is read. It is opened once, checked in bounded memory and then passed to libcups
/// with the same descriptor, so that replacing the file meanwhile cannot circumvent the checks.
class PpdSource {
public:
    /// Opens the file and checks that it is a regular file, that its uncompressed text has at most
    /// maxTextSize bytes and no more statements than PpdCounts allows, and that compressed data is complete.
    static Result<PpdSource, PpdError> open(const QString &path, qint64 maxTextSize);

    /// Parses the file with libcups. Also reports an error if the text ends inside a value. Must be called
    /// only once.
    Result<PpdHandle, PpdError> parse();

    /// What was collected while the text was checked.
    const PpdText &text() const { return m_text; }

private:
    struct Close {
        void operator()(cups_file_t *file) const { cupsFileClose(file); }
    };

    PpdSource(QString path, cups_file_t *file);

    Result<void, PpdError> check(qint64 maxTextSize, int descriptor);

    Result<qint64, PpdError> scan(qint64 maxTextSize);

    QString m_path;
    PpdText m_text;
    std::unique_ptr<cups_file_t, Close> m_file;
};

} // namespace printer
} // namespace host
