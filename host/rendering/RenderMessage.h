// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

namespace host {
inline namespace rendering {

/// What the renderer is asked to do.
enum class RenderCommand : quint32 {
    Open,      ///< opens the PDF of the descriptor
    ReadSizes, ///< reads the sizes of pages
    Draw,      ///< draws a page into the memory of the descriptor
    Close,     ///< closes the PDF
};

/// A message to the renderer. Both ends are built together; the messages have no version.
struct RenderRequest {
    RenderCommand command = RenderCommand::Open;
    /// Identifies an open PDF; chosen by the sender.
    quint32 document = 0;
    /// The page, from 0, or the first of several.
    qint32 page = 0;
    /// The number of pages; at most maxSizesPerReply.
    qint32 count = 0;
    /// The size of the picture in pixels. A pixel is a QImage::Format_ARGB32_Premultiplied, lines have no
    /// padding.
    qint32 width = 0;
    qint32 height = 0;
};

/// How a request ended.
enum class RenderStatus : quint32 {
    Done,
    Damaged,               ///< the PDF cannot be read, or the page cannot be drawn
    PasswordNeeded,        ///< the PDF is encrypted with a password
    UnsupportedEncryption, ///< the PDF is encrypted in a way that cannot be read
};

/// The renderer's answer. The sizes of pages follow the answer to ReadSizes.
struct RenderReply {
    RenderStatus status = RenderStatus::Done;
    /// The number of pages of the PDF, or the number of sizes that follow.
    qint32 count = 0;
};

/// The size of a page in points.
struct RenderSize {
    double width = 0.0;
    double height = 0.0;
};

/// The max number of sizes in an answer: it must fit into a socket's buffer.
inline constexpr int maxSizesPerReply = 512;
/// The descriptor of the renderer's end of the channel.
inline constexpr int rendererDescriptor = 3;

} // namespace rendering
} // namespace host
