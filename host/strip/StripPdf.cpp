// SPDX-License-Identifier: Apache-2.0
#include "StripPdf.h"

#include "CutPlanText.h"
#include "StripPainter.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>

namespace host {
inline namespace strip {

namespace {

struct StripPdfText {
    Q_DECLARE_TR_FUNCTIONS(host::strip::StripPdf)
};

/// In millimetres. The length of a PDF page is limited to 5080 mm.
constexpr double maxPageLength = 5000.0;
constexpr double minPageLength = 150.0;
constexpr double margin = 8.0;
constexpr double lineHeight = 5.0;
constexpr Millimetres unit(1.0);
/// The resolution of coordinates in dots per inch, and that of labels in pixels per millimetre (300 dpi).
constexpr int coordinateResolution = 1200;
constexpr double labelResolution = 11.8;

/// The part of the strip that is shown on one page, in millimetres of the layout.
struct Segment {
    double left;
    double right;
};

/// Divides the strip into pages. A page always begins at the start of a label.
std::vector<Segment> segmentsOf(const StripLayout &layout)
{
    const QRectF bounds = layout.bounds();
    std::vector<Segment> segments{{bounds.left(), bounds.right()}};
    for (std::size_t i = 1; i < layout.plan().labels().size(); ++i) {
        const bool last = i + 1 == layout.plan().labels().size();
        const double end = last ? bounds.right() : layout.boundaryAfter(i) + layout.unit();
        if (end - segments.back().left > maxPageLength - 2.0 * margin) {
            segments.back().right = layout.label(i).left();
            segments.push_back({layout.label(i).left(), bounds.right()});
        }
    }
    return segments;
}

QStringList headingLines(const PrintedStrip &strip)
{
    QStringList lines{StripPdfText::tr("%1 on %2, %3").arg(strip.document, strip.printer, strip.paper),
                      cutPlanFigures(strip.plan)};
    return lines + cutPlanDescription(strip.plan);
}

class PdfStrip {
public:
    PdfStrip(const PrintedStrip &strip, QIODevice *device)
        : m_strip(strip)
        , m_layout(strip.plan, Millimetres(strip.renderer.labelSize().height()), unit)
        , m_writer(device)
        , m_lines(headingLines(strip))
        , m_segments(segmentsOf(m_layout))
    {
        m_writer.setResolution(coordinateResolution);
        m_writer.setTitle(m_lines.front());
        m_writer.setCreator(QCoreApplication::applicationName());
        m_writer.setPageMargins(QMarginsF());
    }

    bool write()
    {
        setPageSize(m_segments.front());
        QPainter painter;
        if (!painter.begin(&m_writer))
            return false;
        painter.setRenderHint(QPainter::LosslessImageRendering);
        for (std::size_t i = 0; i < m_segments.size(); ++i) {
            if (i > 0) {
                setPageSize(m_segments[i]);
                if (!m_writer.newPage())
                    return false;
            }
            paintPage(painter, m_segments[i]);
        }
        return painter.end();
    }

private:
    double headingHeight() const { return static_cast<double>(m_lines.size()) * lineHeight; }

    void setPageSize(const Segment &segment)
    {
        const QSizeF size(qMax(minPageLength, segment.right - segment.left + 2.0 * margin),
                          headingHeight() + m_layout.bounds().height() + 3.0 * margin);
        m_writer.setPageSize(QPageSize(size, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    }

    void paintPage(QPainter &painter, const Segment &segment) const
    {
        painter.save();
        const double dotsPerMillimetre = coordinateResolution / millimetresPerInch;
        painter.scale(dotsPerMillimetre, dotsPerMillimetre);
        painter.translate(margin, margin);
        paintHeading(painter);
        painter.translate(-segment.left, headingHeight() + margin - m_layout.bounds().top());
        const StripPainter painted(m_layout, m_strip.renderer, StripColors::forPaper(), labelResolution);
        painter.setClipRect(QRectF(segment.left, m_layout.bounds().top(), segment.right - segment.left,
                                   m_layout.bounds().height()));
        painted.paint(painter, segment.left, segment.right);
        painter.restore();
    }

    void paintHeading(QPainter &painter) const
    {
        painter.save();
        const QTransform toDevice = painter.transform();
        painter.resetTransform();
        for (qsizetype i = 0; i < m_lines.size(); ++i) {
            QFont font;
            font.setPixelSize(qRound(toDevice.m11() * (i == 0 ? 3.8 : 3.2)));
            font.setBold(i == 0);
            painter.setFont(font);
            painter.drawText(toDevice.map(QPointF(0.0, lineHeight * (static_cast<double>(i) + 0.7))),
                             m_lines[i]);
        }
        painter.restore();
    }

    const PrintedStrip &m_strip;
    StripLayout m_layout;
    QPdfWriter m_writer;
    QStringList m_lines;
    std::vector<Segment> m_segments;
};

} // namespace

bool writeStripPdf(const PrintedStrip &strip, QIODevice *device)
{
    return PdfStrip(strip, device).write();
}

} // namespace strip
} // namespace host
