// SPDX-License-Identifier: Apache-2.0
#include "LabelDocument.h"

#include "OpenedDocument.h"

#include <host/rendering/RendererProcess.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <numeric>

namespace host {
inline namespace documents {

namespace {

struct LabelDocumentText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

} // namespace

LabelDocument::LabelDocument(std::shared_ptr<RendererProcess> renderer)
    : m_renderer(std::move(renderer))
{
}

LabelDocument::~LabelDocument() = default;
LabelDocument::Source::Source() = default;
LabelDocument::Source::~Source() = default;
LabelDocument::Source::Source(Source &&) noexcept = default;

Result<std::unique_ptr<LabelDocument>, DocumentError>
LabelDocument::open(const QStringList &names, const DocumentPasswordSource &askPassword)
{
    if (names.isEmpty())
        return DocumentError{DocumentErrorKind::Missing, LabelDocumentText::tr("No document is specified")};
    if (names.count(standardInputName.toString()) > 1)
        return documentError(
            {DocumentErrorKind::InputTaken, LabelDocumentText::tr("it can be read only once")},
            standardInputName.toString());
    std::unique_ptr<LabelDocument> document(new LabelDocument(std::make_shared<RendererProcess>()));
    for (const QString &name : names) {
        auto opened = OpenedDocument::open(name, document->m_renderer, askPassword);
        if (!opened)
            return documentError(opened.error(), name);
        document->append(name, std::move(opened).value());
    }
    return document;
}

Result<std::unique_ptr<LabelDocument>, DocumentError> LabelDocument::open(const QString &name)
{
    return open(QStringList(name));
}

LabelDocument::Source LabelDocument::source() const
{
    Source source;
    source.files = m_files;
    source.renderer = std::make_shared<RendererProcess>();
    for (const auto &document : m_documents)
        source.pdfs.push_back(document->source());
    return source;
}

std::unique_ptr<LabelDocument> LabelDocument::openAgain(Source source)
{
    std::unique_ptr<LabelDocument> document(new LabelDocument(std::move(source.renderer)));
    document->m_files = std::move(source.files);
    for (PdfSource &pdf : source.pdfs)
        document->m_documents.push_back(OpenedDocument::openAgain(std::move(pdf), document->m_renderer));
    return document;
}

void LabelDocument::append(const QString &name, std::unique_ptr<OpenedDocument> document)
{
    m_files.push_back({name, m_files.empty() ? 0 : pageCount(), document->pages().pageCount(),
                       document->path(), document->stamp(), QStringLiteral("application/pdf")});
    m_documents.push_back(std::move(document));
}

QString LabelDocument::title() const
{
    QString first =
        path() == standardInputName ? LabelDocumentText::tr("standard input") : QFileInfo(path()).fileName();
    if (m_files.size() == 1)
        return first;
    return LabelDocumentText::tr("%1 and %n more", nullptr, static_cast<int>(m_files.size()) - 1).arg(first);
}

int LabelDocument::pageCount() const
{
    return m_files.back().firstPage + m_files.back().pageCount;
}

std::vector<int> LabelDocument::pageCounts() const
{
    std::vector<int> counts;
    for (const DocumentFile &file : m_files)
        counts.push_back(file.pageCount);
    return counts;
}

std::size_t LabelDocument::indexOf(int page) const
{
    const auto next = std::ranges::upper_bound(m_files, page, {}, &DocumentFile::firstPage);
    return static_cast<std::size_t>(next - m_files.begin()) - 1;
}

LabelDocument::Place LabelDocument::placeOf(int page) const
{
    const std::size_t index = indexOf(page);
    return {m_documents[index]->pages(), page - m_files[index].firstPage};
}

QSizeF LabelDocument::pageSize(int page) const
{
    const Place place = placeOf(page);
    return place.pages.pageSize(place.page);
}

QSizeF LabelDocument::statedPageSize(int page) const
{
    const Place place = placeOf(page);
    return place.pages.statedSize(place.page);
}

bool LabelDocument::isPageSizeKnown(int page) const
{
    const Place place = placeOf(page);
    return place.pages.knownSizes()[static_cast<std::size_t>(place.page)].has_value();
}

void LabelDocument::setStatedPageSize(int page, QSizeF size) const
{
    const Place place = placeOf(page);
    place.pages.setStatedSize(place.page, size);
}

QImage LabelDocument::render(int page, QSize size) const
{
    const Place place = placeOf(page);
    return place.pages.render(place.page, size);
}

QImage LabelDocument::renderTransparent(int page, QSize size) const
{
    const Place place = placeOf(page);
    return place.pages.renderTransparent(place.page, size);
}

QString LabelDocument::drawingFault(int page) const
{
    const Place place = placeOf(page);
    return place.pages.drawingFault(place.page);
}

void LabelDocument::setDrawingFault(int page, const QString &fault) const
{
    const Place place = placeOf(page);
    place.pages.setDrawingFault(place.page, fault);
}

int LabelDocument::drawingCount() const
{
    return std::accumulate(m_documents.begin(), m_documents.end(), 0, [](int sum, const auto &document) {
        return sum + document->pages().drawingCount();
    });
}

Result<void, DocumentError> LabelDocument::checkForPrinting() const
{
    for (std::size_t i = 0; i < m_documents.size(); ++i) {
        if (const auto checked = m_documents[i]->checkForPrinting(); !checked)
            return documentError(checked.error(), m_files[i].name);
    }
    return {};
}

} // namespace documents
} // namespace host
