// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Length.h>

#include <QString>

namespace host {
inline namespace labels {

/// A page on the tape; lengths along the tape.
struct LabelExtent {
    Millimetres length = {};
    /// Blank before the first and after the last mark on the label.
    Millimetres leadingBlank = {};
    Millimetres trailingBlank = {};
    /// Whether nothing is printed on the label.
    bool whollyBlank = false;
    /// Whether the page has marks where the printer cannot print.
    bool isCutOff = false;
    /// Whether the blank is known. Until then it counts as 0.
    bool isMeasured = true;
    /// Why the page cannot be drawn, the end of a sentence; empty if it can.
    QString drawingFault = {};

    bool operator==(const LabelExtent &) const = default;
};

} // namespace labels
} // namespace host
