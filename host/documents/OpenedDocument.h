// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentPassword.h"
#include "PdfPages.h"
#include "RegularFile.h"

#include <platform/TemporaryFile.h>

#include <memory>

namespace host {
inline namespace documents {

/// An open document: its pages, and the PDF that is sent. A PDF file is sent unchanged; everything else is
/// converted to a temporary PDF, which is removed with the object, so that the printed page is the one that
/// is shown, whatever filters for images the print server has.
class OpenedDocument {
public:
    /// The max numbers of bytes of an image and an SVG: more than the largest image that can be printed.
    static constexpr qint64 maxImageBytes = 256LL * 1024 * 1024;
    static constexpr qint64 maxSvgBytes = 64LL * 1024 * 1024;

    /// Opens a file, or for "-" standard input, which is read to its end. The renderer reads its PDF. Asks
    /// for the password of an encrypted PDF until it is right, or absent: a decrypted copy is shown and sent.
    static Result<std::unique_ptr<OpenedDocument>, DocumentErrorReason>
    open(const QString &name, const std::shared_ptr<RendererProcess> &renderer,
         const DocumentPasswordSource &askPassword);
    /// Returns the pages of another instance for another thread. Has no path, so it cannot be printed.
    static std::unique_ptr<OpenedDocument> openAgain(PdfSource source,
                                                     const std::shared_ptr<RendererProcess> &renderer);
    /// Returns the source for openAgain(), without a file if the file at the path has been replaced.
    PdfSource source() const;

    /// The pages of the PDF.
    const PdfPages &pages() const { return *m_pages; }
    /// The path of the PDF to send.
    const QString &path() const { return m_path; }
    /// The state of the file when it was read.
    const FileStamp &stamp() const { return m_stamp; }
    /// Checks what open() skips: the pages after the first hundreds, and whether the file at the path has
    /// changed.
    Result<void, DocumentErrorReason> checkForPrinting() const;

private:
    OpenedDocument() = default;

    /// Makes the temporary file the PDF that is shown and sent. Returns the open file.
    Result<RegularFile, DocumentErrorReason> replaceBy(std::unique_ptr<platform::TemporaryFile> pdf);
    Result<void, DocumentErrorReason> openPages(RegularFile file,
                                                const std::shared_ptr<RendererProcess> &renderer);
    /// Opens a decrypted copy of the PDF. Returns the reason if the user enters no password.
    Result<void, DocumentErrorReason> openDecrypted(const DocumentErrorReason &reason, const QString &name,
                                                    const std::shared_ptr<RendererProcess> &renderer,
                                                    const DocumentPasswordSource &askPassword);

    std::unique_ptr<platform::TemporaryFile> m_temporary;
    QString m_path;
    FileStamp m_stamp;
    std::unique_ptr<PdfPages> m_pages;
};

} // namespace documents
} // namespace host
