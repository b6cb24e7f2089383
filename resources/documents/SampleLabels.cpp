// SPDX-License-Identifier: Apache-2.0
#include "SampleLabels.h"

#include "Code39.h"
#include "LabelDocument.h"

#include <QPainter>
#include <QPainterPath>

#include <array>

namespace documents {

namespace {

// All measures in tenths of a millimetre. The printer does not reach 3 mm at each side of a 24 mm tape,
// nor 2 mm at each end of a label.
constexpr QSizeF labelSize(24.0, 60.0);
constexpr QRectF printable(20.0, 30.0, 560.0, 180.0);

QFont font(int height, QFont::Weight weight = QFont::Normal)
{
    QFont result(QStringLiteral("DejaVu Sans"));
    result.setPixelSize(height);
    result.setWeight(weight);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

void drawLine(QPainter &painter, const QRectF &place, const QString &text, const QFont &font,
              Qt::Alignment alignment = Qt::AlignLeft)
{
    painter.setFont(font);
    painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, text);
}

void drawCode(QPainter &painter, const QRectF &place, const QString &text)
{
    const std::vector<BarCodeElement> elements = code39(text);
    double units = 0.0;
    for (const BarCodeElement &element : elements)
        units += element.width;
    const double module = place.width() / units;
    double x = place.left();
    for (const BarCodeElement &element : elements) {
        if (element.bar)
            painter.fillRect(QRectF(x, place.top(), element.width * module, place.height()), Qt::black);
        x += element.width * module;
    }
}

struct PropertyTag {
    QString number;
    QString thing;
    QString place;
};

void drawPropertyTag(QPainter &painter, const PropertyTag &tag)
{
    drawLine(painter, {30, 34, 300, 50}, tag.number, font(46, QFont::Bold));
    drawLine(painter, {340, 34, 230, 50}, QStringLiteral("Kvelland Works"), font(24), Qt::AlignRight);
    drawLine(painter, {30, 86, 540, 34}, tag.thing + QStringLiteral(" · ") + tag.place, font(28));
    drawCode(painter, {30, 134, 540, 74}, tag.number);
}

struct CableTag {
    QString from;
    QString to;
    double start; ///< where the print begins, along the tape
};

/// The same text twice, one below the other, so that it can be read from both sides of the cable.
void drawCableTag(QPainter &painter, const CableTag &tag)
{
    constexpr double width = 350.0;
    painter.setPen(QPen(Qt::black, 2.0, Qt::DashLine));
    painter.drawLine(QPointF(tag.start, 120), QPointF(tag.start + width, 120));
    painter.setPen(Qt::black);
    for (const double top : {32.0, 124.0}) {
        drawLine(painter, {tag.start, top, width, 46}, tag.from, font(38, QFont::Bold));
        drawLine(painter, {tag.start, top + 44, width, 38}, QStringLiteral("→ ") + tag.to, font(30));
    }
}

/// A sprig: a stem with pairs of leaves, standing on the point.
void drawSprig(QPainter &painter, QPointF foot)
{
    QPainterPath leaf;
    leaf.cubicTo(14, -20, 40, -22, 54, -8);
    leaf.cubicTo(38, 6, 16, 8, 0, 0);
    painter.save();
    painter.translate(foot);
    painter.setPen(QPen(Qt::black, 5.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, 0), QPointF(0, -120));
    for (const double height : {-20.0, -52.0, -84.0}) {
        for (const double side : {1.0, -1.0}) {
            painter.save();
            painter.translate(0.0, height);
            painter.scale(side, 1.0);
            painter.rotate(-20.0);
            painter.fillPath(leaf, Qt::black);
            painter.restore();
        }
    }
    painter.restore();
}

struct JarTag {
    QString spice;
    QString remark;
    double start;
    double width;
};

void drawJarTag(QPainter &painter, const JarTag &tag)
{
    painter.setPen(QPen(Qt::black, 4.0));
    painter.drawRoundedRect(QRectF(tag.start, printable.top() + 4, tag.width, printable.height() - 8), 22,
                            22);
    drawSprig(painter, {tag.start + 75, 182});
    const double left = tag.start + 145;
    const double width = tag.width - 155;
    painter.setPen(Qt::black);
    drawLine(painter, {left, 62, width, 62}, tag.spice, font(48, QFont::Bold));
    drawLine(painter, {left, 128, width, 40}, tag.remark, font(28));
}

const std::array<PropertyTag, 2> propertyTags = {{
    {QStringLiteral("KV-10042"), QStringLiteral("Laser cutter"), QStringLiteral("Workshop 2")},
    {QStringLiteral("KV-10043"), QStringLiteral("Projector"), QStringLiteral("Seminar room")},
}};

const std::array<CableTag, 2> cableTags = {{
    {QStringLiteral("CORE-SW1 / 24"), QStringLiteral("Panel B, port 17"), 25.0},
    {QStringLiteral("UPLINK 10G"), QStringLiteral("Router, port 2"), 220.0},
}};

const std::array<JarTag, 2> jarTags = {{
    {QStringLiteral("Paprika"), QStringLiteral("best before 06/2027"), 75.0, 450.0},
    {QStringLiteral("Shichimi 七味"), QStringLiteral("soups, purées, grilled eel"), 26.0, 548.0},
}};

} // namespace

QByteArray sampleLabels()
{
    LabelDocument document(QStringLiteral("Labels for the workshop and the kitchen"));
    for (const PropertyTag &tag : propertyTags)
        document.addLabel(labelSize, [&tag](QPainter &painter) { drawPropertyTag(painter, tag); });
    for (const CableTag &tag : cableTags)
        document.addLabel(labelSize, [&tag](QPainter &painter) { drawCableTag(painter, tag); });
    for (const JarTag &tag : jarTags)
        document.addLabel(labelSize, [&tag](QPainter &painter) { drawJarTag(painter, tag); });
    return document.pdf();
}

} // namespace documents
