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

    /// Width and length in points; nothing when the PPD does not tell.
    std::optional<QSizeF> size(const QByteArray &paper) const;
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
