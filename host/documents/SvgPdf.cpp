// SPDX-License-Identifier: Apache-2.0
#include "SvgPdf.h"

#include "PdfPages.h"
#include "SvgSource.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>

#include <cmath>

namespace host {
inline namespace documents {

namespace {

struct SvgPdfText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

constexpr double pointsPerPixel = 72.0 / 96.0;
constexpr int resolution = 1200;

QSizeF wholePoints(QSizeF size)
{
    return {std::ceil(size.width()), std::ceil(size.height())};
}

/// The PDF writer rounds pages to whole points but writes them with six decimals, which leaves room for the
/// true size.
bool setTrueSize(QByteArray &pdf, QSizeF size)
{
    const auto box = [](QSizeF points) {
        return QByteArray("/MediaBox [0 0 ") + QByteArray::number(points.width(), 'f', 6) + ' ' +
               QByteArray::number(points.height(), 'f', 6);
    };
    const QByteArray rounded = box(wholePoints(size)) + ']';
    const qsizetype at = pdf.indexOf(rounded);
    // Rounding up never adds a digit before the point without being whole.
    const QByteArray exact = box(size).leftJustified(rounded.size() - 1) + ']';
    if (at < 0 || exact.size() != rounded.size())
        return false;
    pdf.replace(at, rounded.size(), exact);
    return true;
}

/// The page as a PDF, empty when it cannot be drawn. The size is in points.
QByteArray draw(QSvgRenderer &renderer, QSizeF size)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(resolution);
    writer.setPageMargins(QMarginsF());
    writer.setPageSize(
        QPageSize(wholePoints(size), QPageSize::Point, QStringLiteral("label"), QPageSize::ExactMatch));
    QPainter painter;
    if (!painter.begin(&writer))
        return {};
    painter.setRenderHint(QPainter::LosslessImageRendering);
    const double dots = resolution / 72.0;
    // A PDF page is measured from its bottom left.
    const QPointF top(0.0, wholePoints(size).height() - size.height());
    renderer.render(&painter, QRectF(top * dots, size * dots));
    if (!painter.end() || !setTrueSize(buffer.buffer(), size))
        return {};
    return buffer.data();
}

} // namespace

std::optional<DocumentErrorReason> writeSvgPdf(const QByteArray &svg, QIODevice *pdf)
{
    const auto source = SvgSource::read(svg);
    if (!source)
        return source.error();
    // Looked at first, as drawing alone would take its time for a page of kilometres.
    if (source.value().size) {
        if (auto problem = PdfPages::checkSize(*source.value().size * pointsPerPixel, 0))
            return problem;
    }
    DocumentErrorReason damaged{DocumentErrorKind::Damaged, SvgPdfText::tr("it is a damaged SVG")};
    QSvgRenderer renderer;
    if (!renderer.load(source.value().content))
        return damaged;
    const QSizeF size = source.value().size.value_or(renderer.viewBoxF().size()) * pointsPerPixel;
    if (auto problem = PdfPages::checkSize(size, 0))
        return problem;
    if (source.value().size && !source.value().viewBox)
        renderer.setViewBox(QRectF(QPointF(), *source.value().size));
    if (source.value().keepsShape)
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    const QByteArray page = draw(renderer, size);
    if (page.isEmpty())
        return damaged;
    if (pdf->write(page) != page.size())
        return DocumentErrorReason{DocumentErrorKind::NotStored, pdf->errorString()};
    return std::nullopt;
}

} // namespace documents
} // namespace host
