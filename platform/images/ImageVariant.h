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
    /// Constructs a null variant.
    ImageVariant() = default;
    /// Reads the file. The variant is null if the file does not exist or is damaged.
    explicit ImageVariant(const QString &path);

    /// Returns true if there is no picture.
    bool isNull() const { return m_size.isEmpty(); }
    /// The size in pixels; empty for a null variant.
    QSize size() const { return m_size; }
    /// The decoded picture; null for a null variant. Decodes the file on the first call.
    const QPixmap &pixmap() const;

private:
    QSize m_size;
    /// The content of the file; empty once it is decoded.
    mutable QByteArray m_bytes;
    mutable QPixmap m_pixmap;
};

} // namespace images
} // namespace platform
