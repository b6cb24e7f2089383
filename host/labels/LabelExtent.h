// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {
inline namespace labels {

/// A page on the tape; lengths along the tape in millimetres.
struct LabelExtent {
    double length = 0.0;
    /// Blank before the first and after the last mark on the label.
    double leadingBlank = 0.0;
    double trailingBlank = 0.0;
    /// Whether nothing is printed on the label.
    bool whollyBlank = false;
    /// Whether the blank is known. Until then it counts as 0.
    bool isMeasured = true;

    bool operator==(const LabelExtent &) const = default;
};

} // namespace labels
} // namespace host
