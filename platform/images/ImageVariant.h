// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace platform {
inline namespace images {

/// One file of a picture, held in memory and decoded when it is first drawn.
class ImageVariant {
public:
    /// No picture.
    ImageVariant() = default;
    /// Reads the file. Without a file, or when the file is broken, this is no picture.
    explicit ImageVariant(const QString &path);

    bool isNull() const { return m_size.isEmpty(); }
    /// The size in pixels.
    QSize size() const { return m_size; }
    /// The decoded picture; null for no picture.
    const QPixmap &pixmap() const;

private:
    QSize m_size;
    /// Empty once it is decoded.
    mutable QByteArray m_bytes;
    mutable QPixmap m_pixmap;
};

} // namespace images
} // namespace platform
