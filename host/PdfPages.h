// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QImage>
#include <QPdfDocument>
#include <QSizeF>

#include <memory>
#include <optional>

namespace host {

/// The pages of one PDF. Pages count from 0.
class PdfPages {
public:
    /// The largest side of a page, in points: what PDF readers have always taken as the limit.
    static constexpr double longestSide = 14400.0;
    /// How many pages are checked when the PDF is opened. Asking thousands of pages for their size takes
    /// seconds; the others are checked before they are printed.
    static constexpr int checkedAtOnce = 500;

    /// Opens the PDF and checks the sizes of its first pages. The file is read as pages are drawn.
    static Result<std::unique_ptr<PdfPages>, DocumentProblem> open(std::unique_ptr<QFile> file);

    int pageCount() const { return m_pdf.pageCount(); }
    /// Width and height in points. Of a page that is not fit to print, some size within the limits.
    QSizeF pageSize(int page) const;
    /// The page on white. The size is in pixels; a page that cannot be drawn is left white.
    QImage render(int page, QSize size) const;
    /// Checks the pages that are not checked yet.
    std::optional<DocumentProblem> checkPages() const { return checkPagesUpTo(pageCount()); }
    /// Checks at least one of them, and more until the time is over. False while there are others; what is
    /// wrong with a page ends the checking and is told by checkPages().
    bool checkAhead(const QDeadlineTimer &until) const;

    /// Why a page of that size, in points, cannot be printed.
    static std::optional<DocumentProblem> checkSize(QSizeF size, int page);

private:
    explicit PdfPages(std::unique_ptr<QFile> file);

    std::optional<DocumentProblem> checkPagesUpTo(int end) const;

    std::unique_ptr<QFile> m_file;
    /// Drawing a page changes nothing that can be seen.
    mutable QPdfDocument m_pdf;
    /// The pages before this one are fit to print.
    mutable int m_checked = 0;
};

} // namespace host
