// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ImageFacts.h"

#include <host/base/Result.h>

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <QSize>
#include <QString>

#include <optional>

namespace host {
inline namespace images {

/// The max number of pixels of an image: several times what a label printer prints on a metre of tape. The
/// pixels of a PNG, and of a JPEG that cannot be embedded unchanged, are decoded first; for these, the max is
/// half as many. More pixels would need a gigabyte of memory.
inline constexpr qint64 maxImagePixels = 64LL * 1024 * 1024;
/// The resolution of images that state none, in dots per inch.
inline constexpr double defaultImageResolution = 96.0;

/// Why an image cannot be a page.
enum class ImageFault {
    Damaged,
    Incomplete,    ///< the end of the file is missing
    TooManyPixels, ///< pixels() returns how many there are
};

/// An image in a form that a PDF can contain.
struct PdfImage {
    QSize pixels;
    /// 1 for gray, 3 for red, green and blue.
    int colors = 3;
    /// How the data is compressed, by the name that PDF has for it.
    QByteArray filter;
    QByteArray data;
};

/// Reads a PNG or JPEG and converts it to the form in which its page contains it. No pixel is lost;
/// transparent pixels become white.
class ImageSource {
public:
    /// The format is "png" or "jpeg". The content is borrowed.
    ImageSource(const QByteArray &content, const QByteArray &format);

    /// Loads what reads images of the format. For processes that cannot open files later.
    static void load(const QByteArray &format);

    /// Returns whether the image can be read, from its first bytes and its end. The other functions require
    /// it.
    Result<void, ImageFault> check();
    /// The size that the image states, in pixels.
    QSize pixels() const { return m_size; }
    /// The size of the page in points, after the rotation that the image's metadata requests: it follows from
    /// the resolution that the image states.
    QSizeF pageSize() const;
    /// Decodes the image. Absent if it is damaged.
    std::optional<PdfImage> read();

private:
    bool fitsAsItIs() const;
    bool isTurned() const;
    std::optional<PdfImage> asItIs();

    const QByteArray &m_content;
    ImageFacts m_facts;
    QBuffer m_buffer;
    QImageReader m_reader;
    QSize m_size;
};

} // namespace images
} // namespace host
