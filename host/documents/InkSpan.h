// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QRect>

#include <optional>

namespace host {
inline namespace documents {

/// A stretch of rows or columns of an image: the first, and the one after the last.
struct InkSpan {
    int first = 0;
    int end = 0;

    bool operator==(const InkSpan &) const = default;
};

/// The rows of the area from the first with ink to the last; absent when the area is blank. Ink is what a
/// printer that has only black prints; lighter grey comes out white. The image may be transparent.
std::optional<InkSpan> inkedRows(const QImage &image, const QRect &area);
/// The same for columns.
std::optional<InkSpan> inkedColumns(const QImage &image, const QRect &area);

} // namespace documents
} // namespace host
