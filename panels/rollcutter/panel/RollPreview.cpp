// SPDX-License-Identifier: Apache-2.0
#include "RollPreview.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace rollcutter {

namespace {

constexpr int labelCount = 6;
constexpr int labelsOfCopy = 3;

/// The measures of the picture, in units of the height of a line of text.
constexpr double labelWidth = 1.8;
constexpr double labelHeight = 1.7;
constexpr double gapWidth = 0.9;
constexpr double backingMargin = 0.25;
constexpr double symbolHeight = 1.1;
constexpr double pictureWidth = labelCount * (labelWidth + gapWidth) + backingMargin;
constexpr double pictureHeight = symbolHeight + labelHeight + 2 * backingMargin;

/// Open scissors that point down, in a square of the size 1 around the origin.
QPainterPath scissors()
{
    QPainterPath path;
    for (const int side : {-1, 1}) {
        path.addEllipse(QPointF(side * 0.28, -0.3), 0.17, 0.17);
        path.moveTo(side * 0.2, -0.15);
        path.lineTo(-side * 0.2, 0.5);
    }
    return path;
}

/// The picture's painter, whose unit is the height of a line of text.
class RollPainter {
public:
    RollPainter(QPainter &painter, const QPalette &palette)
        : m_painter(painter)
        , m_palette(palette)
    {
    }

    void backing(double from, double to)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_palette.mid());
        m_painter.drawRect(QRectF(from, symbolHeight, to - from, labelHeight + 2 * backingMargin));
    }

    void label(double left, const QString &text)
    {
        const QRectF area(left, symbolHeight + backingMargin, labelWidth, labelHeight);
        m_painter.setPen(pen(m_palette.text().color(), 0.06));
        m_painter.setBrush(m_palette.base());
        m_painter.drawRoundedRect(area, 0.2, 0.2);
        // A font of one unit would be rounded to whole pixels: the text is drawn as outlines.
        QPainterPath outline;
        QFont font = m_painter.font();
        font.setPixelSize(100);
        outline.addText(0, 0, font, text);
        const QRectF bounds = outline.boundingRect();
        QTransform place;
        place.translate(area.center().x(), area.center().y());
        place.scale(0.011, 0.011);
        place.translate(-bounds.center().x(), -bounds.center().y());
        m_painter.setPen(Qt::NoPen);
        m_painter.fillPath(place.map(outline), m_palette.text());
    }

    void line(double x, Qt::PenStyle style)
    {
        QPen linePen = pen(m_palette.windowText().color(), 0.1);
        linePen.setStyle(style);
        m_painter.setPen(linePen);
        m_painter.drawLine(QPointF(x, symbolHeight - 0.1), QPointF(x, pictureHeight));
    }

    void cut(double x)
    {
        m_painter.save();
        m_painter.translate(x, symbolHeight / 2 - 0.05);
        m_painter.setPen(pen(m_palette.windowText().color(), 0.1));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPath(scissors());
        m_painter.restore();
    }

    void questionMark(double x)
    {
        QPainterPath mark;
        QFont font = m_painter.font();
        font.setPixelSize(100);
        font.setBold(true);
        mark.addText(0, 0, font, QStringLiteral("?"));
        QTransform place;
        place.translate(x - mark.boundingRect().center().x() * 0.011, symbolHeight - 0.15);
        place.scale(0.011, 0.011);
        m_painter.setPen(Qt::NoPen);
        m_painter.fillPath(place.map(mark), m_palette.windowText());
    }

private:
    static QPen pen(const QColor &color, double width)
    {
        return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
    }

    QPainter &m_painter;
    const QPalette &m_palette;
};

} // namespace

RollPreview::RollPreview()
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

std::vector<PDELabel> RollPreview::labels()
{
    std::vector<PDELabel> job(labelCount);
    for (std::size_t index = 0; index < job.size(); ++index)
        job[index] = {(index + 1) % labelsOfCopy == 0, index + 1 == job.size()};
    return job;
}

void RollPreview::setEffects(const PDEStripEffects &effects, bool isTorn)
{
    m_effects = effects;
    m_isTorn = isTorn;
    update();
}

RollPreview::End RollPreview::endAfter(std::size_t label) const
{
    if (m_effects.cutting == PDECutting::NotKnown)
        return End::NotKnown;
    if (label < m_effects.ends.size() && m_effects.ends[label].fullCut)
        return End::Cut;
    return m_isTorn ? End::Tear : End::Nothing;
}

QSize RollPreview::sizeHint() const
{
    const double unit = fontMetrics().height();
    return QSizeF(pictureWidth * unit, pictureHeight * unit).toSize();
}

QSize RollPreview::minimumSizeHint() const
{
    return sizeHint();
}

void RollPreview::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

void RollPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = fontMetrics().height();
    painter.scale(unit, unit);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const double width = this->width() / unit;
    const auto place = [&](double left, double size) { return isMirrored ? width - left - size : left; };

    RollPainter roll(painter, palette());
    double pieceStart = 0;
    for (int index = 0; index < labelCount; ++index) {
        const double left = backingMargin + index * (labelWidth + gapWidth);
        const double middle = left + labelWidth + gapWidth / 2;
        const End end = endAfter(static_cast<std::size_t>(index));
        const bool endsPiece = end == End::Cut || index + 1 == labelCount;
        if (endsPiece) {
            const double pieceEnd = left + labelWidth + (end == End::Cut ? backingMargin : gapWidth);
            roll.backing(place(pieceStart, pieceEnd - pieceStart),
                         place(pieceStart, pieceEnd - pieceStart) + pieceEnd - pieceStart);
            pieceStart = left + labelWidth + gapWidth - backingMargin;
        }
        if (end == End::Cut)
            roll.cut(place(middle, 0));
        else if (end == End::NotKnown)
            roll.questionMark(place(middle, 0));
    }
    for (int index = 0; index < labelCount; ++index) {
        const double left = backingMargin + index * (labelWidth + gapWidth);
        roll.label(place(left, labelWidth), QString::number(index % labelsOfCopy + 1));
        if (endAfter(static_cast<std::size_t>(index)) == End::Tear)
            roll.line(place(left + labelWidth + gapWidth / 2, 0), Qt::DashLine);
    }
}

} // namespace rollcutter
