// SPDX-License-Identifier: Apache-2.0
#include "PngEncoder.h"

#include <csetjmp>

#include <png.h>

namespace pictures {

namespace {

constexpr int maxCompressionLevel = 9;

void append(png_structp png, png_bytep data, std::size_t size)
{
    static_cast<QByteArray *>(png_get_io_ptr(png))
        ->append(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

void flush(png_structp) {}

/// Returns whether the whole image was written. This function must not have objects with destructors: libpng
/// reports errors with longjmp().
bool write(png_structp png, png_infop info, const QImage &image)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    png_set_IHDR(png, info, static_cast<png_uint_32>(image.width()), static_cast<png_uint_32>(image.height()),
                 8, PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(png, maxCompressionLevel);
    png_write_info(png, info);
    for (int row = 0; row < image.height(); ++row)
        png_write_row(png, image.constScanLine(row));
    png_write_end(png, nullptr);
    return true;
}

} // namespace

QByteArray encodedPng(const QImage &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    QByteArray bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (info)
        png_set_write_fn(png, &bytes, append, flush);
    if (!info || pixels.isNull() || !write(png, info, pixels))
        bytes.clear();
    png_destroy_write_struct(&png, &info);
    return bytes;
}

} // namespace pictures
