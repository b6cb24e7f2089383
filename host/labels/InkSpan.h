// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QRect>

#include <optional>

namespace host {
inline namespace labels {

/// A range of rows or columns of an image: the first one, and the one after the last.
struct InkSpan {
    int first = 0;
    int end = 0;

    bool operator==(const InkSpan &) const = default;
};

/// Returns the rows of the area from the first to the last with ink; absent if the area is blank. Ink is
/// what a black-only printer prints; lighter gray is white. The image may be transparent.
std::optional<InkSpan> inkedRows(const QImage &image, const QRect &area);
/// Returns the same for columns.
std::optional<InkSpan> inkedColumns(const QImage &image, const QRect &area);

} // namespace labels
} // namespace host
