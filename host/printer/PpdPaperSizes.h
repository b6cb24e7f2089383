// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QHash>
#include <QMarginsF>
#include <QSizeF>

#include <optional>
#include <string_view>

namespace host {

/// The sizes of a PPD's papers, from statements such as *PaperDimension W24H60/Tape: "68 170". Under exact
/// names: libcups takes papers whose names differ only in the case of letters for one, and keeps one size for
/// all.
class PpdPaperSizes {
public:
    /// Takes a statement up to its colon, asterisk included, with its value without quotes; one that is of
    /// something else is passed over.
    void addStatement(std::string_view statement, std::string_view value);

    /// The largest paper, in metres: longer than any roll of labels or of continuous paper, and as wide as
    /// the widest printers. To draw such a paper takes a moment; one of a million kilometres takes all
    /// memory.
    static constexpr double maxLongSide = 100.0;
    static constexpr double maxShortSide = 5.0;
    /// Whether width and length, in points, are numbers above 0 and within the largest paper, either way
    /// round.
    static bool isUsable(const QSizeF &size);

    /// Width and length in points; nothing when the PPD has none, or one that is not usable.
    std::optional<QSizeF> size(const QByteArray &paper) const;
    /// The size that the PPD has in place of a usable one; nothing when the size is usable or unknown.
    std::optional<QSizeF> unusableSize(const QByteArray &paper) const;
    /// What the printer cannot reach at each edge, in points; nothing when the PPD does not tell.
    std::optional<QMarginsF> margins(const QByteArray &paper) const;

private:
    /// What it can reach.
    struct Area {
        double left;
        double bottom;
        double right;
        double top;
    };

    QHash<QByteArray, QSizeF> m_sizes;
    QHash<QByteArray, Area> m_areas;
};

} // namespace host
