// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ImageVariant.h"

#include <QPixmap>
#include <QPointF>
#include <QSize>
#include <QString>

#include <array>
#include <memory>

class QPainter;
class QPalette;

namespace platform {
inline namespace images {

/// A picture from a file, drawn at its natural size. Optional variants lie beside NAME.png: NAME@2x.png with
/// twice the resolution for dense screens, and NAME-dark.png and NAME-dark@2x.png for dark themes.
///
/// All files are read at once, so that a picture does not change when its files are replaced. They are
/// checked when they are read and decoded when they are first drawn.
class Image {
public:
    /// Returns the picture; null if NAME.png cannot be read or is damaged. A damaged variant counts as
    /// missing. As long as the files do not change, all callers share a picture that is in use.
    static std::shared_ptr<const Image> initWithContentsOfFile(const QString &path);

    /// The natural size in points, which is the size of NAME.png in pixels.
    QSize size() const { return variant(Theme::Light, Density::Single).size(); }

    /// The file's name without folder and extension.
    const QString &name() const { return m_name; }

    /// Draws the whole picture over the existing content, fully opaque, with its top-left corner at origin.
    /// Chooses the variant for the painter's device and the palette.
    void drawAtPoint(QPainter &painter, QPointF origin, const QPalette &palette) const;

    /// Draws the whole picture, scaled to fit into the rectangle, with its proportions kept, and centred.
    void drawInRect(QPainter &painter, const QRectF &rect, const QPalette &palette) const;

private:
    enum class Theme : std::uint8_t { Light, Dark };
    enum class Density : std::uint8_t { Single, Double };
    static constexpr std::size_t variantCount = 4;
    using Paths = std::array<QString, variantCount>;

    Image(QString name, const Paths &paths);

    static std::size_t slot(Theme theme, Density density);
    const ImageVariant &variant(Theme theme, Density density) const
    {
        return m_variants[slot(theme, density)];
    }
    QPixmap pixmap(double pixelsPerPoint, const QPalette &palette) const;

    QString m_name;
    std::array<ImageVariant, variantCount> m_variants;
};

} // namespace images
} // namespace platform
