// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Length.h>

#include <QByteArray>
#include <QHash>
#include <QMarginsF>
#include <QSizeF>

#include <optional>
#include <string_view>

namespace host {
inline namespace printer {

/// The sizes and margins of a PPD's papers, from statements such as *PaperDimension W24H60/Tape: "68 170".
/// Names are exact: libcups treats papers whose names differ only in case as one, and keeps one size for all
/// of them.
class PpdPaperSizes {
public:
    /// Adds a statement, given as its text up to the colon, including the asterisk, and its value without
    /// quotes. Ignores statements of other kinds.
    void addStatement(std::string_view statement, std::string_view value);

    /// The maximum size of a paper: longer than any roll of labels or of continuous paper, and as
    /// wide as the widest printers. Drawing such a paper takes a moment; a paper of a million kilometres
    /// would use up all memory.
    static constexpr Metres maxLongSide{100.0};
    static constexpr Metres maxShortSide{5.0};
    /// Returns whether width and length, in points, are numbers greater than 0 and within the maximum size in
    /// either orientation.
    static bool isUsable(const QSizeF &size);

    /// Width and length in points; absent if the PPD does not state a size or the size is not usable.
    std::optional<QSizeF> size(const QByteArray &paper) const;
    /// The size that the PPD states if it is not usable, in points; absent if the size is usable or missing.
    std::optional<QSizeF> unusableSize(const QByteArray &paper) const;
    /// The unprintable margins, in points; absent if the PPD does not state a valid printable area or the
    /// size is not usable.
    std::optional<QMarginsF> margins(const QByteArray &paper) const;

private:
    /// The printable area, in points from the lower left corner.
    struct Area {
        double left;
        double bottom;
        double right;
        double top;
    };

    QHash<QByteArray, QSizeF> m_sizes;
    QHash<QByteArray, Area> m_areas;
};

} // namespace printer
} // namespace host
