// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StripLayout.h"

#include <host/labels/LabelPictures.h>
#include <host/labels/LabelRenderer.h>

#include <QColor>

class QPainter;
class QPalette;

namespace host {
inline namespace strip {

/// The colours of everything that is drawn beside the tape. The tape itself always has the colours of labels.
struct StripColors {
    /// The colours of important text, of other text and lines, and of the background.
    QColor ink;
    QColor faint;
    QColor background;

    /// Black on white, for paper.
    static StripColors forPaper();
    /// The colours of a window with this palette.
    static StripColors forPalette(const QPalette &palette);
};

/// Draws a strip as it leaves the printer: the labels on their backing, every cut at its position, the end
/// that stays in the printer, and the length of each piece.
class StripPainter {
public:
    /// Layout, renderer and pictures are not owned and must outlive the painter. Without pictures, labels are
    /// rendered with pixelsPerMillimetre; with pictures, labels whose picture is not available yet are left
    /// white.
    StripPainter(const StripLayout &layout, const LabelRenderer &renderer, const StripColors &colors,
                 double pixelsPerMillimetre, const LabelPictures *pictures = nullptr);

    /// Draws the part of the strip between left and right. Both are in millimetres of the layout, which must
    /// be the coordinates of the painter.
    void paint(QPainter &painter, double left, double right) const;

private:
    void paintBacking(QPainter &painter, double left, double right) const;
    void paintOutlines(QPainter &painter, double left, double right) const;
    void paintLabel(QPainter &painter, std::size_t index) const;
    void paintPicture(QPainter &painter, std::size_t index, const QImage &picture) const;
    void paintBoundary(QPainter &painter, std::size_t index) const;
    void paintFullCut(QPainter &painter, double x) const;
    void paintHalfCut(QPainter &painter, double x) const;
    void paintCutMark(QPainter &painter, double x) const;
    void paintEnd(QPainter &painter) const;
    void paintPrinter(QPainter &painter, double x) const;
    void paintTornEnd(QPainter &painter, double x) const;
    void paintPieceLength(QPainter &painter, std::size_t index) const;
    void paintText(QPainter &painter, const QRectF &area, const QString &text, const QColor &color) const;
    double units(double count) const { return count * m_layout.unit(); }
    QRectF backing(const QRectF &tape) const;

    const StripLayout &m_layout;
    const LabelRenderer &m_renderer;
    const LabelPictures *m_pictures;
    StripColors m_colors;
    double m_resolution;
};

} // namespace strip
} // namespace host
