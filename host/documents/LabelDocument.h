// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentError.h"
#include "RegularFile.h"

#include <QImage>
#include <QSizeF>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace host {
inline namespace documents {

class OpenedDocument;
class PdfPages;
struct PdfSource;

/// One of the documents of a job: its place in the sequence of pages, and what is sent of it.
struct DocumentFile {
    /// As the user named it: a path, or "-" for standard input.
    QString name;
    /// The first of its pages in the sequence, counted from 0.
    int firstPage = 0;
    int pageCount = 0;
    /// A file to read and what it holds: the named file itself, or a temporary one that lives as long as the
    /// LabelDocument does.
    QString pathToSend;
    /// In which state its pages were read.
    FileStamp stamp;
    QString mimeType;
};

/// The documents whose pages become labels, one after the other: PDF, PNG, JPEG and SVG, from files and from
/// standard input, each recognised by its content. Pages count from 0 through all of them.
class LabelDocument {
public:
    /// Opens the documents and checks them, or none of them. Never waits on a pipe by name, but reads
    /// standard input ("-", at most once) to its end.
    static Result<std::unique_ptr<LabelDocument>, DocumentError> open(const QStringList &names);
    static Result<std::unique_ptr<LabelDocument>, DocumentError> open(const QString &name);
    ~LabelDocument();

    /// At least one, in the order in which they are printed.
    const std::vector<DocumentFile> &files() const { return m_files; }
    /// The first document's name: a path, or "-".
    const QString &path() const { return m_files.front().name; }
    /// What the documents are called in a sentence or a window's title: the first one's file name, and how
    /// many more there are.
    QString title() const;

    int pageCount() const;
    /// The documents' page counts, in order.
    std::vector<int> pageCounts() const;
    /// Width and height of the page in points, as one reads it. Of a page that checkForPrinting rejects, some
    /// size that a PDF page can have.
    QSizeF pageSize(int page) const;
    /// The page on white. The size is in pixels; a page that cannot be drawn is left white.
    QImage render(int page, QSize size) const;

    /// What another thread needs to draw the same pages.
    struct Source {
        Source();
        ~Source();
        Source(Source &&) noexcept;

        std::vector<DocumentFile> files;
        std::vector<PdfSource> pdfs;
    };
    /// Opens the files once more, quickly; what has changed since is left out, and its pages are white.
    Source source() const;
    /// The documents of another instance, read with files of its own by the thread that calls. For drawing
    /// only: the first instance keeps the temporary files and checks them before printing.
    static std::unique_ptr<LabelDocument> openAgain(Source source);

    /// Whether pageSize() answers without waiting for pdfium, which another thread may keep busy.
    bool isPageSizeKnown(int page) const;
    /// The size as the PDF states it; it may be empty or invalid.
    QSizeF statedPageSize(int page) const;
    /// Adds a stated size that another instance has read.
    void setStatedPageSize(int page, QSizeF size) const;
    /// The page on nothing: transparent where nothing is drawn, null when it cannot be drawn.
    QImage renderTransparent(int page, QSize size) const;
    /// How many pages this instance has drawn.
    int drawingCount() const;

    /// Checks what opening leaves out so as to be quick: pages far behind in long documents, and whether the
    /// files are still what was opened. To be asked before anything is sent; takes seconds for tens of
    /// thousands of pages, and no time for those whose sizes PageCheck has read in the background.
    std::optional<DocumentError> checkForPrinting() const;

private:
    LabelDocument();

    void append(const QString &name, std::unique_ptr<OpenedDocument> document);
    /// The document that the page belongs to.
    std::size_t indexOf(int page) const;
    /// A page of one document.
    struct Place {
        const PdfPages &pages;
        int page;
    };
    Place placeOf(int page) const;

    std::vector<DocumentFile> m_files;
    std::vector<std::unique_ptr<OpenedDocument>> m_documents;
};

} // namespace documents
} // namespace host
