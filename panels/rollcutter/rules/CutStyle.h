// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDEUserChoices.h>

#include <QString>

#include <array>
#include <cstddef>

namespace rollcutter {

/// What the printer does at the end of labels, in the words of the user. One radio button each.
enum class CutStyle {
    EveryLabel,
    EveryFew, ///< after a number of labels
    EachCopy,
    EachDocument,
    AtEnd,
    Tear,
    Peel,
    Rewind,
    Applicator,
    Never,
    PrinterSetting, ///< as it is set at the printer's own controls
    Other,          ///< a choice whose meaning only the printer knows
};

/// Where a style cuts.
enum class CutPlace {
    EveryLabel,
    EveryFew,
    EachCopy,
    EachDocument,
    AtEnd,
    Nowhere,
    NotKnown,
};

/// One row for each style: where it cuts, whether the user tears the labels off, and the key of its text.
struct CutStyleRow {
    CutStyle style;
    CutPlace place;
    bool isTorn;
    const char *textKey;
};

inline constexpr std::array<CutStyleRow, 12> cutStyleTable = {{
    {CutStyle::EveryLabel, CutPlace::EveryLabel, false, "CUT_EVERY_LABEL"},
    {CutStyle::EveryFew, CutPlace::EveryFew, false, "CUT_EVERY_FEW"},
    {CutStyle::EachCopy, CutPlace::EachCopy, false, "CUT_EACH_COPY"},
    {CutStyle::EachDocument, CutPlace::EachDocument, false, "CUT_EACH_DOCUMENT"},
    {CutStyle::AtEnd, CutPlace::AtEnd, false, "CUT_AT_END"},
    {CutStyle::Tear, CutPlace::Nowhere, true, "CUT_TEAR"},
    {CutStyle::Peel, CutPlace::Nowhere, false, "CUT_PEEL"},
    {CutStyle::Rewind, CutPlace::Nowhere, false, "CUT_REWIND"},
    {CutStyle::Applicator, CutPlace::Nowhere, false, "CUT_APPLICATOR"},
    {CutStyle::Never, CutPlace::Nowhere, false, "CUT_NEVER"},
    {CutStyle::PrinterSetting, CutPlace::NotKnown, false, "CUT_PRINTER_SETTING"},
    {CutStyle::Other, CutPlace::NotKnown, false, "CUT_OTHER"},
}};

static_assert(
    [] {
        for (std::size_t i = 0; i < cutStyleTable.size(); ++i) {
            if (cutStyleTable[i].style != static_cast<CutStyle>(i))
                return false;
        }
        return cutStyleTable.size() == static_cast<std::size_t>(CutStyle::Other) + 1;
    }(),
    "each style has its row, in the order of the styles");

/// The style's row.
constexpr const CutStyleRow &cutStyleRow(CutStyle style)
{
    return cutStyleTable[static_cast<std::size_t>(style)];
}

/// A way to cut that the printer has: the choices that select it.
struct CutSetting {
    CutStyle style = CutStyle::Other;
    /// The labels between two cuts, for CutStyle::EveryFew.
    int labels = 0;
    PDEChoices choices = {};
    /// The PPD's text of the choice, for CutStyle::Other.
    QString text = {};
};

} // namespace rollcutter
