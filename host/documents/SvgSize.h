// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSizeF>

#include <optional>

class QXmlStreamAttributes;

namespace host {
inline namespace documents {

/// The natural size of an SVG in px, from the attributes of its root element.
struct SvgSize {
    /// Returns the size that width and height state, completed from the view box if one of them is missing or
    /// relative; otherwise the size of the view box. Absent if the attributes state no size. The result is
    /// not checked: it may be empty or infinite.
    static std::optional<QSizeF> natural(const QXmlStreamAttributes &root);
    /// Returns the size of the view box; absent if the attributes contain no valid view box.
    static std::optional<QSizeF> viewBox(const QXmlStreamAttributes &root);
};

} // namespace documents
} // namespace host
