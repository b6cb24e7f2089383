// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdError.h"
#include "PpdHandle.h"
#include "PpdText.h"

#include <cups/file.h>

namespace host {

/// The file that a PPD is read from: opened once, looked through in bounded memory, then handed to libcups
/// from the same descriptor, so that a file replaced meanwhile cannot slip past the checks.
class PpdSource {
public:
    /// Opens the file and checks that it is one, that its text (unpacked) is no larger than largestText
    /// bytes and has no more statements than PpdCounts allows, and that it does not end too early.
    static Result<PpdSource, PpdError> open(const QString &path, qint64 largestText);

    /// Has libcups read it.
    Result<PpdHandle, PpdError> parse();

    /// What the text told on its way.
    const PpdText &text() const { return m_text; }

private:
    struct Close {
        void operator()(cups_file_t *file) const { cupsFileClose(file); }
    };

    PpdSource(QString path, cups_file_t *file);

    std::optional<PpdError> check(qint64 largestText, int descriptor);

    Result<qint64, PpdError> readThrough(qint64 largestText);

    QString m_path;
    PpdText m_text;
    std::unique_ptr<cups_file_t, Close> m_file;
};

} // namespace host
