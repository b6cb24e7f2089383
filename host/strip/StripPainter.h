// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StripLayout.h"

#include <host/documents/LabelPictures.h>
#include <host/documents/LabelRenderer.h>

#include <QColor>

class QPainter;
class QPalette;

namespace host {

/// The colours of what is drawn beside the tape. The tape itself is always the colour of labels.
struct StripColors {
    QColor ink;
    QColor faint;
    QColor background;

    /// Black on white, for paper.
    static StripColors forPaper();
    /// Those of a window.
    static StripColors forPalette(const QPalette &palette);
};

/// Draws a strip as it leaves the printer: the labels on their backing, every cut where it happens, the end
/// that stays in the printer, and each piece's length.
class StripPainter {
public:
    /// Layout, renderer and pictures are borrowed. Without pictures, labels are drawn with that many pixels
    /// a millimetre; with pictures, labels whose picture is not there yet are left white.
    StripPainter(const StripLayout &layout, const LabelRenderer &renderer, const StripColors &colors,
                 double pixelsPerMillimetre, const LabelPictures *pictures = nullptr);

    /// Draws what lies between left and right, in the layout's millimetres, which must be the painter's
    /// coordinates.
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

} // namespace host
