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
    Somewhere,      ///< the printer cuts, and decides where
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

/// One row for each style: where it cuts, whether the user tears the labels off, the key of its text, and the
/// key of the sentence about the strip; null if the places of the cuts say everything.
struct CutStyleRow {
    CutStyle style;
    CutPlace place;
    bool isTorn;
    const char *textKey;
    const char *stripKey;
};

/// All styles, in the order of their values.
inline constexpr std::array<CutStyleRow, 13> cutStyleTable = {{
    {CutStyle::EveryLabel, CutPlace::EveryLabel, false, "CUT_EVERY_LABEL", nullptr},
    {CutStyle::EveryFew, CutPlace::EveryFew, false, "CUT_EVERY_FEW", nullptr},
    {CutStyle::EachCopy, CutPlace::EachCopy, false, "CUT_EACH_COPY", nullptr},
    {CutStyle::EachDocument, CutPlace::EachDocument, false, "CUT_EACH_DOCUMENT", nullptr},
    {CutStyle::AtEnd, CutPlace::AtEnd, false, "CUT_AT_END", nullptr},
    {CutStyle::Tear, CutPlace::Nowhere, true, "CUT_TEAR", "STRIP_TEAR"},
    {CutStyle::Peel, CutPlace::Nowhere, false, "CUT_PEEL", "STRIP_PEEL"},
    {CutStyle::Rewind, CutPlace::Nowhere, false, "CUT_REWIND", "STRIP_REWIND"},
    {CutStyle::Applicator, CutPlace::Nowhere, false, "CUT_APPLICATOR", "STRIP_APPLICATOR"},
    {CutStyle::Never, CutPlace::Nowhere, false, "CUT_NEVER", nullptr},
    {CutStyle::Somewhere, CutPlace::NotKnown, false, "CUT_SOMEWHERE", "STRIP_SOMEWHERE"},
    {CutStyle::PrinterSetting, CutPlace::NotKnown, false, "CUT_PRINTER_SETTING", "STRIP_PRINTER_SETTING"},
    {CutStyle::Other, CutPlace::NotKnown, false, "CUT_OTHER", nullptr},
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
