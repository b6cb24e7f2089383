// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"
#include "DocumentPassword.h"
#include "RegularFile.h"

#include <QImage>
#include <QSizeF>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace host {
inline namespace rendering {

class RendererProcess;

} // namespace rendering
} // namespace host

namespace host {
inline namespace documents {

class OpenedDocument;
class PdfPages;
struct PdfSource;

/// A document of a job: its pages in the sequence, and the file that is sent.
struct DocumentFile {
    /// The name from the user: a path, or "-" for standard input.
    QString name;
    /// The first of its pages in the sequence, from 0.
    int firstPage = 0;
    int pageCount = 0;
    /// The file to send: the named file, or a temporary one that exists as long as the LabelDocument.
    QString pathToSend;
    /// The state of the file when its pages were read.
    FileStamp stamp;
    QString mimeType;
};

/// The documents whose pages become labels, in order: PDF, PNG, JPEG and SVG, from files and from standard
/// input, each recognized by its content. Pages are numbered from 0 through all documents.
class LabelDocument {
public:
    /// Opens and checks all documents. Returns the first error. Named pipes are rejected without waiting;
    /// standard input ("-", at most once) is read to its end.
    /// Encrypted documents are an error unless the function returns their passwords.
    static Result<std::unique_ptr<LabelDocument>, DocumentError>
    open(const QStringList &names, const DocumentPasswordSource &askPassword = {});
    static Result<std::unique_ptr<LabelDocument>, DocumentError> open(const QString &name);
    ~LabelDocument();

    /// The documents in the order in which they are printed; at least one.
    const std::vector<DocumentFile> &files() const { return m_files; }
    /// The name of the first document: a path, or "-".
    const QString &path() const { return m_files.front().name; }
    /// Returns the name of the documents for sentences and window titles: the file name of the first one,
    /// and the number of the others.
    QString title() const;

    /// The number of pages of all documents.
    int pageCount() const;
    /// Returns the page counts of the documents, in order.
    std::vector<int> pageCounts() const;
    /// Returns the width and height of the page in points, in reading orientation. For a page that
    /// checkForPrinting() rejects, returns a valid size.
    QSizeF pageSize(int page) const;
    /// Returns the page on a white background. The size is in pixels. A page that cannot be drawn is white.
    QImage render(int page, QSize size) const;

    /// What another thread needs to draw the same pages.
    struct Source {
        Source();
        ~Source();
        Source(Source &&) noexcept;

        /// The documents, and the source of each one's PDF.
        std::vector<DocumentFile> files;
        std::vector<PdfSource> pdfs;
        /// The process that reads the pages for the other thread; cancel() ends its current request.
        std::shared_ptr<RendererProcess> renderer;
    };
    /// Opens the files again, without checks. The pages of a file that has changed are white.
    Source source() const;
    /// Returns the documents of another instance for the calling thread, with files of its own. For drawing
    /// only: the first instance owns the temporary files and checks them before printing.
    static std::unique_ptr<LabelDocument> openAgain(Source source);

    /// Returns whether pageSize() returns without asking the renderer.
    bool isPageSizeKnown(int page) const;
    /// Returns the size in the PDF, in points; it may be empty or invalid.
    QSizeF statedPageSize(int page) const;
    /// Adds a stated size that another instance has read.
    void setStatedPageSize(int page, QSizeF size) const;
    /// Returns the page on a transparent background; null if it cannot be drawn.
    QImage renderTransparent(int page, QSize size) const;
    /// Returns why the page could not be drawn, the end of a sentence; empty as long as it could.
    QString drawingFault(int page) const;
    /// Adds a fault that another instance has found.
    void setDrawingFault(int page, const QString &fault) const;
    /// The number of pages that this instance has drawn.
    int drawingCount() const;

    /// Checks what open() skips to be fast: the last pages of long documents, and whether the files have
    /// changed. Must be called before a job is sent. Needs seconds for
    /// tens of thousands of pages, and no time for pages whose sizes PageCheck has read in the background.
    Result<void, DocumentError> checkForPrinting() const;

private:
    explicit LabelDocument(std::shared_ptr<RendererProcess> renderer);

    void append(const QString &name, std::unique_ptr<OpenedDocument> document);
    /// Returns the index of the document to which the page belongs.
    std::size_t indexOf(int page) const;
    /// A page of one document.
    struct Place {
        const PdfPages &pages;
        int page;
    };
    Place placeOf(int page) const;

    std::shared_ptr<RendererProcess> m_renderer;
    std::vector<DocumentFile> m_files;
    std::vector<std::unique_ptr<OpenedDocument>> m_documents;
};

} // namespace documents
} // namespace host
