// SPDX-License-Identifier: Apache-2.0
#include "InkSpan.h"

#include <algorithm>

namespace host {
inline namespace labels {

namespace {

bool isInk(QRgb pixel)
{
    constexpr int white = 250;
    const int alpha = qAlpha(pixel);
    // Most of a label is transparent, and the gray below costs more.
    return alpha != 0 && (qGray(pixel) * alpha + 255 * (255 - alpha)) / 255 < white;
}

/// Images as pdfium draws them need no conversion.
QImage readable(const QImage &image)
{
    const bool isDirect =
        image.format() == QImage::Format_ARGB32 || image.format() == QImage::Format_RGB32 || image.isNull();
    return isDirect ? image : image.convertToFormat(QImage::Format_ARGB32);
}

const QRgb *rowOf(const QImage &image, int row)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(row));
}

} // namespace

std::optional<InkSpan> inkedRows(const QImage &image, const QRect &area)
{
    const QImage pixels = readable(image);
    const QRect inside = area & pixels.rect();
    const auto hasInk = [&](int row) {
        const QRgb *const line = rowOf(pixels, row);
        return std::any_of(line + inside.left(), line + inside.right() + 1, isInk);
    };
    int first = inside.top();
    while (first <= inside.bottom() && !hasInk(first))
        ++first;
    if (first > inside.bottom())
        return std::nullopt;
    int last = inside.bottom();
    while (!hasInk(last))
        --last;
    return InkSpan{first, last + 1};
}

std::optional<InkSpan> inkedColumns(const QImage &image, const QRect &area)
{
    const QImage pixels = readable(image);
    const QRect inside = area & pixels.rect();
    int first = inside.right() + 1;
    int last = inside.left() - 1;
    // Row by row, in the order in memory; each row only as far as it can widen the span.
    for (int row = inside.top(); row <= inside.bottom(); ++row) {
        const QRgb *const line = rowOf(pixels, row);
        first = static_cast<int>(std::find_if(line + inside.left(), line + first, isInk) - line);
        int column = inside.right();
        while (column > last && !isInk(line[column]))
            --column;
        last = column;
    }
    if (first > inside.right())
        return std::nullopt;
    return InkSpan{first, last + 1};
}

} // namespace labels
} // namespace host
