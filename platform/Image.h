// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QPointF>
#include <QSize>
#include <QString>

#include <memory>

class QPainter;
class QPalette;

namespace platform {

/// A picture from a file, drawn at its natural size. Beside NAME.png there may lie NAME@2x.png with
/// twice the pixels for dense screens, and NAME-dark.png and NAME-dark@2x.png for dark themes.
///
/// Only the file's head is read at first; the pixels are read when the picture is first drawn, so
/// that a panel with two dozen pictures opens without reading the ones it never shows.
class Image {
public:
    /// Null when the file cannot be read as an image.
    static std::shared_ptr<const Image> initWithContentsOfFile(const QString &path);

    /// The natural size in points: the pixels of NAME.png.
    QSize size() const { return m_size; }

    /// The file's name without folder and extension.
    QString name() const;

    /// Draws the whole picture over what is there, fully opaque, with its top-left corner at origin,
    /// choosing the variant that suits the painter's device and the palette.
    void drawAtPoint(QPainter &painter, QPointF origin, const QPalette &palette) const;

    /// Draws the whole picture scaled into the rectangle, keeping its proportions, centred.
    void drawInRect(QPainter &painter, const QRectF &rect, const QPalette &palette) const;

private:
    Image(QString path, QSize size);

    QPixmap pixmap(double pixelsPerPoint, const QPalette &palette) const;

    QString m_path;
    QSize m_size;
};

} // namespace platform
