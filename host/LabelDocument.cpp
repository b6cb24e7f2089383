// SPDX-License-Identifier: Apache-2.0
#include "LabelDocument.h"

#include "OpenedDocument.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace host {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(host::LabelDocument)
};

} // namespace

LabelDocument::LabelDocument() = default;
LabelDocument::~LabelDocument() = default;

Result<std::unique_ptr<LabelDocument>, DocumentError> LabelDocument::open(const QStringList &names)
{
    if (names.isEmpty())
        return DocumentError{DocumentFailure::Missing, Text::tr("No document is named")};
    if (names.count(standardInputName.toString()) > 1)
        return documentError({DocumentFailure::InputTaken, Text::tr("it can be read only once")},
                             standardInputName.toString());
    std::unique_ptr<LabelDocument> document(new LabelDocument);
    for (const QString &name : names) {
        auto opened = OpenedDocument::open(name);
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

void LabelDocument::append(const QString &name, std::unique_ptr<OpenedDocument> document)
{
    m_files.push_back({name, m_files.empty() ? 0 : pageCount(), document->pages().pageCount(),
                       document->path(), document->stamp(), QStringLiteral("application/pdf")});
    m_documents.push_back(std::move(document));
}

QString LabelDocument::title() const
{
    QString first = path() == standardInputName ? Text::tr("standard input") : QFileInfo(path()).fileName();
    if (m_files.size() == 1)
        return first;
    return Text::tr("%1 and %n more", nullptr, static_cast<int>(m_files.size()) - 1).arg(first);
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

QSizeF LabelDocument::pageSize(int page) const
{
    const std::size_t index = indexOf(page);
    return m_documents[index]->pages().pageSize(page - m_files[index].firstPage);
}

QImage LabelDocument::render(int page, QSize size) const
{
    const std::size_t index = indexOf(page);
    return m_documents[index]->pages().render(page - m_files[index].firstPage, size);
}

std::optional<DocumentError> LabelDocument::checkForPrinting() const
{
    for (std::size_t i = 0; i < m_documents.size(); ++i) {
        if (const auto problem = m_documents[i]->checkForPrinting())
            return documentError(*problem, m_files[i].name);
    }
    return std::nullopt;
}

bool LabelDocument::checkAhead(const QDeadlineTimer &until) const
{
    return std::ranges::all_of(m_documents,
                               [&](const auto &document) { return document->pages().checkAhead(until); });
}

} // namespace host
