// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QFile>
#include <QImage>
#include <QPdfDocument>
#include <QSizeF>

#include <memory>
#include <optional>
#include <vector>

namespace host {
inline namespace documents {

/// Sizes of pages as the PDF states them, in points; absent for pages that are not read yet.
using PageSizes = std::vector<std::optional<QSizeF>>;

/// What another thread needs to read the same PDF: a file of its own, null when the PDF cannot be read any
/// more, and the sizes that are known.
struct PdfSource {
    std::unique_ptr<QFile> file;
    PageSizes sizes;
};

/// The pages of one PDF. Pages count from 0. An instance belongs to one thread; pdfium serves one call at a
/// time, so every call waits while another thread draws a page.
class PdfPages {
public:
    /// The largest side of a page, in points: what PDF readers have always taken as the limit.
    static constexpr double maxSide = 14400.0;
    /// How many pages are checked when the PDF is opened. Asking thousands of pages for their size takes
    /// seconds; the others are checked before they are printed.
    static constexpr int checkedAtOnce = 500;

    /// Opens the PDF and checks the sizes of its first pages. The file is read as pages are drawn.
    static Result<std::unique_ptr<PdfPages>, DocumentErrorReason> open(std::unique_ptr<QFile> file);
    /// The PDF of another instance, which has checked it. Pages of a source without a file are white.
    static std::unique_ptr<PdfPages> openAgain(PdfSource source);

    int pageCount() const { return m_pdf.pageCount(); }
    /// Width and height in points. Of a page that is not fit to print, some size within the limits.
    QSizeF pageSize(int page) const;
    /// The size as the PDF states it; it may be empty or invalid.
    QSizeF statedSize(int page) const;
    /// Those that are known without another look at the PDF.
    const PageSizes &knownSizes() const { return m_sizes; }
    /// Adds a size that another instance has read.
    void setStatedSize(int page, QSizeF size) const { m_sizes[static_cast<std::size_t>(page)] = size; }
    /// The page on white. The size is in pixels; a page that cannot be drawn is left white.
    QImage render(int page, QSize size) const;
    /// The page on nothing: transparent where nothing is drawn, null when it cannot be drawn. Takes less
    /// time.
    QImage renderTransparent(int page, QSize size) const;
    /// How many pages this instance has drawn.
    int drawingCount() const { return m_drawingCount; }
    /// Checks the pages that are not checked yet.
    std::optional<DocumentErrorReason> checkPages() const { return checkPagesUpTo(pageCount()); }

    /// Why a page of that size, in points, cannot be printed.
    static std::optional<DocumentErrorReason> checkSize(QSizeF size, int page);

private:
    PdfPages(std::unique_ptr<QFile> file, PageSizes sizes);

    void load();
    std::optional<DocumentErrorReason> checkPagesUpTo(int end) const;

    std::unique_ptr<QFile> m_file;
    /// Drawing a page changes nothing that can be seen.
    mutable QPdfDocument m_pdf;
    mutable PageSizes m_sizes;
    mutable int m_drawingCount = 0;
    /// The pages before this one are fit to print.
    mutable int m_checked = 0;
};

} // namespace documents
} // namespace host
