// SPDX-License-Identifier: Apache-2.0
#include "LabelDocument.h"

#include "PdfFile.h"

#include <host/base/Length.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace documents {

namespace {

constexpr int dotsPerInch = 1440;

QPageSize pageSize(QSizeF millimetres)
{
    return QPageSize(host::inPoints(millimetres), QPageSize::Point, QStringLiteral("Label"),
                     QPageSize::ExactMatch);
}

void turnAlongTheTape(QPainter &painter, QSizeF millimetres)
{
    const double dotsPerMillimetre = dotsPerInch / host::millimetresPerInch;
    painter.resetTransform();
    painter.translate(millimetres.width() * dotsPerMillimetre, 0.0);
    painter.rotate(90.0);
    const double dotsPerUnit = dotsPerMillimetre / LabelDocument::unitsPerMillimetre;
    painter.scale(dotsPerUnit, dotsPerUnit);
}

} // namespace

LabelDocument::LabelDocument(QString title)
    : m_title(std::move(title))
{
}

void LabelDocument::addLabel(QSizeF millimetres, std::function<void(QPainter &)> draw)
{
    m_labels.push_back({millimetres, std::move(draw)});
}

void LabelDocument::addBlankLabel(QSizeF millimetres)
{
    addLabel(millimetres, [](QPainter &) {});
}

QByteArray LabelDocument::pdf() const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(m_title);
    writer.setCreator(QStringLiteral("kvprint"));
    writer.setResolution(dotsPerInch);
    QPainter painter;
    QList<QSizeF> sizes;
    for (const Label &label : m_labels) {
        writer.setPageSize(pageSize(label.millimetres));
        writer.setPageMargins(QMarginsF());
        if (sizes.isEmpty())
            painter.begin(&writer);
        else
            writer.newPage();
        sizes.append(host::inPoints(label.millimetres));
        painter.save();
        turnAlongTheTape(painter, label.millimetres);
        label.draw(painter);
        painter.restore();
    }
    painter.end();
    // Qt rounds pages to whole points, so that a label would differ in length from its paper.
    return withPageSizes(bytes, sizes);
}

} // namespace documents
