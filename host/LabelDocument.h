// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Result.h"

#include <QFile>
#include <QImage>
#include <QPdfDocument>
#include <QSizeF>

#include <memory>

namespace host {

enum class DocumentFailure {
    Missing,    ///< there is no such file
    NotAFile,   ///< a folder, a pipe or a device
    Unreadable, ///< no permission, or the medium fails
    Empty,      ///< no bytes, or no pages
    NotAPdf,    ///< something else than a PDF, or a damaged one
    Encrypted,  ///< a password is needed
    BadPage,    ///< a page without area, or larger than any PDF page
};
using DocumentError = Failure<DocumentFailure>;

/// The PDF whose pages become labels.
class LabelDocument {
public:
    /// The largest side of a page, in points: what PDF readers have always taken as the limit.
    static constexpr double longestSide = 14400.0;

    /// Opens a PDF and checks the size of every page. Never waits on a pipe.
    static Result<std::unique_ptr<LabelDocument>, DocumentError> open(const QString &path);

    const QString &path() const { return m_path; }
    int pageCount() const { return m_pdf.pageCount(); }
    /// Width and height of the page in points, as one reads it. Pages count from 0.
    QSizeF pageSize(int page) const { return m_pdf.pagePointSize(page); }
    /// The page on white. The size is in pixels; a page that cannot be drawn is left white.
    QImage render(int page, QSize size) const;

private:
    explicit LabelDocument(const QString &path);

    QString m_path;
    QFile m_file;
    /// Drawing a page changes nothing that can be seen.
    mutable QPdfDocument m_pdf;
};

} // namespace host
