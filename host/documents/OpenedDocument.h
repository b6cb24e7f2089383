// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PdfPages.h"
#include "RegularFile.h"

#include <platform/TemporaryFile.h>

#include <memory>

namespace host {
inline namespace documents {

/// One of the documents that were named: its pages, and the PDF that is sent. A PDF by name is sent as it
/// is; everything else becomes a temporary PDF that is gone with the object, so that what is shown is what is
/// printed, whatever the print server makes of images.
class OpenedDocument {
public:
    /// The most bytes of an image or SVG that are read: more than the largest image has that is printed.
    static constexpr qint64 maxImageBytes = 256LL * 1024 * 1024;
    static constexpr qint64 maxSvgBytes = 64LL * 1024 * 1024;

    /// Opens a file, or standard input by its name "-", which is read to its end.
    static Result<std::unique_ptr<OpenedDocument>, DocumentErrorReason> open(const QString &name);
    /// The pages of another instance, for another thread. Has no path, so it is not for printing.
    static std::unique_ptr<OpenedDocument> openAgain(PdfSource source);
    /// The source for openAgain(), without a file when the file at the path is another one now.
    PdfSource source() const;

    const PdfPages &pages() const { return *m_pages; }
    /// The path of the PDF to send.
    const QString &path() const { return m_path; }
    /// In which state it was read.
    const FileStamp &stamp() const { return m_stamp; }
    /// Checks what opening leaves out: the pages beyond the first hundreds, and whether the file at the path
    /// is still the one that was opened.
    std::optional<DocumentErrorReason> checkForPrinting() const;

private:
    OpenedDocument() = default;

    std::unique_ptr<platform::TemporaryFile> m_temporary;
    QString m_path;
    FileStamp m_stamp;
    std::unique_ptr<PdfPages> m_pages;
};

} // namespace documents
} // namespace host
