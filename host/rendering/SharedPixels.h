// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RenderChannel.h"

#include <QImage>

#include <optional>

namespace host {
inline namespace rendering {

/// The pixels of a picture in memory that two processes share, so that pictures are not copied
/// (memfd_create(2)). The memory's size is sealed: no process can shorten it while the other one reads it.
class SharedPixels {
public:
    static constexpr QImage::Format format = QImage::Format_ARGB32_Premultiplied;

    /// Creates transparent pixels. Returns nothing if there is not enough memory.
    static std::optional<SharedPixels> make(QSize size);
    /// Maps the memory that another process has created. Returns nothing if it is too small for the size.
    static std::optional<SharedPixels> map(OwnedDescriptor memory, QSize size);

    /// The memory, to be sent to the other process.
    int descriptor() const { return m_memory.number(); }
    /// The picture; reads and writes the shared memory. The memory exists as long as any copy of the picture.
    QImage &image() { return m_image; }

private:
    SharedPixels(OwnedDescriptor memory, QImage image);

    OwnedDescriptor m_memory;
    QImage m_image;
};

} // namespace rendering
} // namespace host
