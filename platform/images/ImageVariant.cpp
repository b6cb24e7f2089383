// SPDX-License-Identifier: Apache-2.0
#include "ImageVariant.h"

#include <platform/PngFile.h>

#include <QFile>

namespace platform {
inline namespace images {

ImageVariant::ImageVariant(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    m_bytes = file.readAll();
    // readAll() reserves more memory than it needs, for each of a hundred files.
    m_bytes.squeeze();
    if (const std::optional<QSize> size = sizeOfIntactPng(m_bytes)) {
        m_size = *size;
        return;
    }
    // Other file formats have no checksums: only decoding shows whether a file is intact.
    if (!path.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive))
        m_pixmap.loadFromData(m_bytes);
    m_bytes.clear();
    m_size = m_pixmap.size();
}

const QPixmap &ImageVariant::pixmap() const
{
    if (!m_bytes.isEmpty())
        m_pixmap.loadFromData(std::exchange(m_bytes, QByteArray()));
    return m_pixmap;
}

} // namespace images
} // namespace platform
