// SPDX-License-Identifier: Apache-2.0
#include "PdfPages.h"

#include <host/rendering/RemotePdf.h>

#include <QCoreApplication>
#include <QPainter>

#include <cmath>

namespace host {
inline namespace documents {

namespace {

struct PdfPagesText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

/// The number of sizes that are read together: reading one costs less than the message that requests it.
constexpr int sizesAtOnce = 100;

/// Returns why a PDF or a page cannot be read, as the end of a sentence.
QString faultText(RenderFault fault)
{
    switch (fault) {
    case RenderFault::Missing:
        return PdfPagesText::tr("the program that reads PDFs cannot be started");
    case RenderFault::Crashed:
        return PdfPagesText::tr("the program that reads PDFs has crashed");
    case RenderFault::TooLong:
        return PdfPagesText::tr("reading it takes too long");
    case RenderFault::Forbidden:
        return PdfPagesText::tr("it attempts what no document may do");
    case RenderFault::TooLarge:
        return PdfPagesText::tr("there is not enough memory");
    case RenderFault::PasswordNeeded:
        return PdfPagesText::tr("it is encrypted and needs a password");
    case RenderFault::UnsupportedEncryption:
        return PdfPagesText::tr("its encryption is not supported");
    case RenderFault::Canceled:
    case RenderFault::Damaged:
        break;
    }
    return PdfPagesText::tr("the PDF is damaged");
}

DocumentErrorKind faultKind(RenderFault fault)
{
    switch (fault) {
    case RenderFault::Missing:
        return DocumentErrorKind::Unreadable;
    case RenderFault::TooLong:
    case RenderFault::TooLarge:
        return DocumentErrorKind::TooLarge;
    case RenderFault::PasswordNeeded:
        return DocumentErrorKind::Encrypted;
    case RenderFault::UnsupportedEncryption:
        return DocumentErrorKind::UnsupportedEncryption;
    default:
        return DocumentErrorKind::Damaged;
    }
}

double withinLimits(double side)
{
    return std::isnan(side) ? 1.0 : qBound(1.0, side, PdfPages::maxSide.number());
}

} // namespace

PdfPages::PdfPages(PageSizes sizes)
    : m_sizes(std::move(sizes))
{
}

PdfPages::~PdfPages() = default;

Result<std::unique_ptr<PdfPages>, DocumentErrorReason>
PdfPages::open(std::unique_ptr<QFile> file, std::shared_ptr<RendererProcess> renderer)
{
    std::unique_ptr<PdfPages> pages(new PdfPages({}));
    pages->m_pdf = std::make_unique<RemotePdf>(std::move(renderer), std::move(file));
    const auto count = pages->m_pdf->open();
    if (!count)
        return DocumentErrorReason{faultKind(count.error()), faultText(count.error())};
    if (count.value() < 1)
        return DocumentErrorReason{DocumentErrorKind::Empty, PdfPagesText::tr("it has no pages")};
    pages->m_sizes.resize(static_cast<std::size_t>(count.value()));
    if (const auto checked = pages->checkPagesUpTo(qMin(checkedAtOnce, pages->pageCount())); !checked)
        return checked.error();
    return pages;
}

std::unique_ptr<PdfPages> PdfPages::openAgain(PdfSource source, std::shared_ptr<RendererProcess> renderer)
{
    std::unique_ptr<PdfPages> pages(new PdfPages(std::move(source.sizes)));
    if (source.file)
        pages->m_pdf = std::make_unique<RemotePdf>(std::move(renderer), std::move(source.file));
    return pages;
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
        readSizes(page);
    return known.value_or(QSizeF());
}

void PdfPages::readSizes(int first) const
{
    if (!m_pdf)
        return;
    auto sizes = m_pdf->sizes(first, qMin(sizesAtOnce, pageCount() - first));
    // Only one of the pages may be at fault.
    if (!sizes && sizes.error() != RenderFault::Canceled)
        sizes = m_pdf->sizes(first, 1);
    if (!sizes) {
        if (sizes.error() == RenderFault::Canceled)
            return;
        m_drawingFaults.insert(first, faultText(sizes.error()));
        sizes = std::vector<QSizeF>(1);
    }
    for (auto index = static_cast<std::size_t>(first); const QSizeF &size : sizes.value())
        m_sizes[index++] = size;
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
    if (!m_pdf)
        return {};
    auto drawn = m_pdf->draw(page, size);
    if (drawn)
        return std::move(drawn).value();
    if (drawn.error() != RenderFault::Canceled)
        m_drawingFaults.insert(page, faultText(drawn.error()));
    return {};
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
