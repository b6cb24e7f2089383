// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <host/base/Length.h>

#include <QFile>
#include <QHash>
#include <QImage>
#include <QSizeF>

#include <memory>
#include <optional>
#include <vector>

namespace host {
inline namespace rendering {

class RemotePdf;
class RendererProcess;

} // namespace rendering
} // namespace host

namespace host {
inline namespace documents {

/// The sizes of pages in the PDF, in points; absent for pages that are not read yet.
using PageSizes = std::vector<std::optional<QSizeF>>;

/// What another thread needs to read the same PDF: a file of its own, null if the PDF can no longer be read,
/// and the known sizes.
struct PdfSource {
    std::unique_ptr<QFile> file;
    PageSizes sizes;
};

/// The pages of a PDF, numbered from 0. An instance belongs to one thread. The PDF is read in the process of
/// the renderer, which several PDFs share.
class PdfPages {
public:
    /// The max side of a page: the usual limit of PDF readers.
    static constexpr Points maxSide{14400.0};
    /// The number of pages that open() checks. Reading the sizes of thousands of pages takes seconds; the
    /// other pages are checked before they are printed.
    static constexpr int checkedAtOnce = 500;

    /// Opens the PDF and checks the sizes of its first pages. The file is read as pages are drawn.
    static Result<std::unique_ptr<PdfPages>, DocumentErrorReason>
    open(std::unique_ptr<QFile> file, std::shared_ptr<RendererProcess> renderer);
    /// Returns the PDF of another instance, which has checked it. The pages of a source without a file are
    /// white.
    static std::unique_ptr<PdfPages> openAgain(PdfSource source, std::shared_ptr<RendererProcess> renderer);
    ~PdfPages();

    /// The number of pages; at least 1.
    int pageCount() const { return static_cast<int>(m_sizes.size()); }
    /// Returns width and height in points. For a page that cannot be printed, returns a valid size.
    QSizeF pageSize(int page) const;
    /// Returns the size in the PDF, in points; it may be empty or invalid.
    QSizeF statedSize(int page) const;
    /// The sizes that have been read.
    const PageSizes &knownSizes() const { return m_sizes; }
    /// Adds a size that another instance has read.
    void setStatedSize(int page, QSizeF size) const { m_sizes[static_cast<std::size_t>(page)] = size; }
    /// Returns the page on a white background. The size is in pixels. A page that cannot be drawn is white.
    QImage render(int page, QSize size) const;
    /// Returns the page on a transparent background; null if it cannot be drawn. Faster than render().
    QImage renderTransparent(int page, QSize size) const;
    /// Returns why the page could not be drawn, the end of a sentence; empty as long as it could.
    QString drawingFault(int page) const { return m_drawingFaults.value(page); }
    /// Adds a fault that another instance has found.
    void setDrawingFault(int page, const QString &fault) const { m_drawingFaults.insert(page, fault); }
    /// The number of pages that this instance has drawn.
    int drawingCount() const { return m_drawingCount; }
    /// Checks the pages that are not checked yet. The error names the first one that cannot be printed.
    Result<void, DocumentErrorReason> checkPages() const { return checkPagesUpTo(pageCount()); }

    /// Returns an error if a page of this size, in points, cannot be printed.
    static Result<void, DocumentErrorReason> checkSize(QSizeF size, int page);

private:
    explicit PdfPages(PageSizes sizes);

    void readSizes(int first) const;
    Result<void, DocumentErrorReason> checkPagesUpTo(int end) const;

    /// Null if the PDF can no longer be read. Reading changes the object only visibly to the renderer.
    std::unique_ptr<RemotePdf> m_pdf;
    mutable PageSizes m_sizes;
    mutable QHash<int, QString> m_drawingFaults;
    mutable int m_drawingCount = 0;
    /// The pages before this one can be printed.
    mutable int m_checked = 0;
};

} // namespace documents
} // namespace host
