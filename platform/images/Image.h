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

/// A picture from a file, drawn at its natural size. Beside NAME.png there may lie NAME@2x.png with
/// twice the pixels for dense screens, and NAME-dark.png and NAME-dark@2x.png for dark themes.
///
/// All of them are read at once, so that a picture stays what it was when its files are replaced; they are
/// checked then and decoded when they are first drawn.
class Image {
public:
    /// Null when NAME.png cannot be read or is broken; another file that is broken counts as missing. As long
    /// as the files are the same ones, everybody who asks for a picture that is in use shares it.
    static std::shared_ptr<const Image> initWithContentsOfFile(const QString &path);

    /// The natural size in points: the pixels of NAME.png.
    QSize size() const { return variant(Theme::Light, Density::Single).size(); }

    /// The file's name without folder and extension.
    const QString &name() const { return m_name; }

    /// Draws the whole picture over what is there, fully opaque, with its top-left corner at origin,
    /// choosing the variant that suits the painter's device and the palette.
    void drawAtPoint(QPainter &painter, QPointF origin, const QPalette &palette) const;

    /// Draws the whole picture scaled into the rectangle, keeping its proportions, centred.
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
