// SPDX-License-Identifier: Apache-2.0
#include "PdfPages.h"

#include <QCoreApplication>
#include <QPainter>

#include <cmath>

namespace host {
inline namespace documents {

namespace {

struct PdfPagesText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

Result<void, DocumentErrorReason> checkLoaded(QPdfDocument::Error error)
{
    switch (error) {
    case QPdfDocument::Error::None:
        return {};
    case QPdfDocument::Error::IncorrectPassword:
        return DocumentErrorReason{DocumentErrorKind::Encrypted,
                                   PdfPagesText::tr("it is encrypted; remove its password first")};
    case QPdfDocument::Error::UnsupportedSecurityScheme:
        return DocumentErrorReason{DocumentErrorKind::Encrypted,
                                   PdfPagesText::tr("its encryption is not supported")};
    default:
        return DocumentErrorReason{DocumentErrorKind::Damaged, PdfPagesText::tr("the PDF is damaged")};
    }
}

double withinLimits(double side)
{
    return std::isnan(side) ? 1.0 : qBound(1.0, side, PdfPages::maxSide.number());
}

} // namespace

PdfPages::PdfPages(std::unique_ptr<QFile> file, PageSizes sizes)
    : m_file(std::move(file))
    , m_sizes(std::move(sizes))
{
}

Result<std::unique_ptr<PdfPages>, DocumentErrorReason> PdfPages::open(std::unique_ptr<QFile> file)
{
    std::unique_ptr<PdfPages> pages(new PdfPages(std::move(file), {}));
    pages->load();
    if (const auto loaded = checkLoaded(pages->m_pdf.error()); !loaded)
        return loaded.error();
    if (pages->pageCount() < 1)
        return DocumentErrorReason{DocumentErrorKind::Empty, PdfPagesText::tr("it has no pages")};
    pages->m_sizes.resize(static_cast<std::size_t>(pages->pageCount()));
    if (const auto checked = pages->checkPagesUpTo(qMin(checkedAtOnce, pages->pageCount())); !checked)
        return checked.error();
    return pages;
}

std::unique_ptr<PdfPages> PdfPages::openAgain(PdfSource source)
{
    std::unique_ptr<PdfPages> pages(new PdfPages(std::move(source.file), std::move(source.sizes)));
    if (pages->m_file)
        pages->load();
    return pages;
}

void PdfPages::load()
{
    m_pdf.load(m_file.get());
}

QSizeF PdfPages::pageSize(int page) const
{
    const QSizeF size = statedSize(page);
    return {withinLimits(size.width()), withinLimits(size.height())};
}

QSizeF PdfPages::statedSize(int page) const
{
    std::optional<QSizeF> &known = m_sizes[static_cast<std::size_t>(page)];
    if (!known)
        known = m_pdf.pagePointSize(page);
    return *known;
}

QImage PdfPages::render(int page, QSize size) const
{
    // A PDF page is transparent where nothing is drawn; labels are white there.
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawImage(QPoint(), renderTransparent(page, size));
    return image;
}

QImage PdfPages::renderTransparent(int page, QSize size) const
{
    ++m_drawingCount;
    return m_pdf.render(page, size);
}

Result<void, DocumentErrorReason> PdfPages::checkSize(QSizeF size, int page)
{
    // Written so that NaN is rejected.
    if (!(size.width() >= 1.0 && size.height() >= 1.0))
        return DocumentErrorReason{DocumentErrorKind::BadPage,
                                   PdfPagesText::tr("page %1 has no area").arg(page + 1)};
    if (!(size.width() <= maxSide.number() && size.height() <= maxSide.number()))
        return DocumentErrorReason{DocumentErrorKind::BadPage, PdfPagesText::tr("page %1 is longer than %2 m")
                                                                   .arg(page + 1)
                                                                   .arg(Metres(maxSide).number(), 0, 'f', 2)};
    return {};
}

Result<void, DocumentErrorReason> PdfPages::checkPagesUpTo(int end) const
{
    for (; m_checked < end; ++m_checked) {
        if (auto checked = checkSize(statedSize(m_checked), m_checked); !checked)
            return checked;
    }
    return {};
}

} // namespace documents
} // namespace host
