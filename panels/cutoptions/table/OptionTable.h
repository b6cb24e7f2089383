// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutSettings.h"
#include "PresetTag.h"

#include <algorithm>
#include <array>
#include <cstdint>

/// The cut options, in the order in which the panel processes them.
enum class OptionKind : std::uint8_t {
    CutLabel,
    CutAtEnd,
    Mirror,
    AutoCut,
    HalfCut,
    ChainPrint,
    SpecialTape,
    RemoveBlkSpace,
    CutMark,
    /// Not an option: the number of options.
    Count,
};

/// The number of options.
inline constexpr std::size_t OptionCount = static_cast<std::size_t>(OptionKind::Count);

/// What the panel knows of one option. Everything that is the same for all options is done by loops over the
/// rows; OptionPDE13_v400_ handles the few options that need more.
struct OptionRow {
    /// The option, which is also the index of the row.
    OptionKind kind;
    /// The keyword of the option in the PPD.
    const char *keyword;
    /// The bit of the row's controls in a set of controls.
    std::uint32_t item;
    /// The object name of the check box in the layout file.
    const char *boxName;
    /// The name of the option's selection in PDEPanelInspection::panelState().
    const char *selectionName;
    /// The keys of the check box's title and of the title in the summary, for a PPD without a text of its
    /// own.
    const char *titleKey;
    const char *summaryKey;

    /// The place of the row in the panel, counted from 1 at the top. The order follows the processing of a
    /// strip: marks and cuts first, print effects last.
    int panelPlace;
    /// The place of the line in the summary, counted from 1: cuts first, in the order in which they are made.
    int summaryPlace;
    /// The height of the row in lines.
    int lines = 1;

    /// The option that the check box edits. The box of the cut-every row edits the automatic cut, which it
    /// shares with the auto-cut box, so that printers with and without a separate box behave alike.
    OptionKind edits = kind;
    /// The default choice for which the box is on when the panel is first shown.
    const char *onDefault = "ON";
    /// Whether the option is saved as off while special tape is on: special tape is never cut.
    bool isOffOnSpecialTape = false;
    /// Whether the box keeps the state that the user has set while the paper disables it.
    bool keepsStateWhileDisabled = false;
    /// What the option does to the strip while its second choice is selected; null for the count, and for an
    /// option without an effect on the strip.
    bool CutSettings::*effect = nullptr;

    /// The combinations that do not apply to a printer with this option.
    PresetSet removedWith = {};
    /// The combinations that do not apply to a printer without this option.
    PresetSet removedWithout = {};
};

/// The options, indexed by their kind.
inline constexpr std::array<OptionRow, OptionCount> optionTable = {{
    {
        .kind = OptionKind::CutLabel,
        .keyword = "KvCutLabel",
        .item = 0x100,
        .boxName = "mCutEveryChkBx",
        .selectionName = "mCutEvery_Selection",
        .titleKey = "RS_CutAtEvery",
        .summaryKey = "RS_STitle_CutLabels",
        .panelPlace = 2,
        .summaryPlace = 1,
        .lines = 2,
        .edits = OptionKind::AutoCut,
        .onDefault = "1",
        .removedWithout = {PresetLabelsCutEvery},
    },
    {
        .kind = OptionKind::CutAtEnd,
        .keyword = "KvCutAtEnd",
        .item = 0x200,
        .boxName = "mCutAndEndChkBx",
        .selectionName = "mCutEnd_Selection",
        .titleKey = "RS_CutAtEnd",
        .summaryKey = "RS_STitle_CutAtEnd",
        .panelPlace = 4,
        .summaryPlace = 3,
        .effect = &CutSettings::cutAtEnd,
        .removedWithout = {PresetLabelsCutAtEnd},
    },
    {
        .kind = OptionKind::Mirror,
        .keyword = "KvMirror",
        .item = 0x400,
        .boxName = "mMirrorPrintChkBx",
        .selectionName = "mMirror_Selection",
        .titleKey = "RS_MirrorPrinting",
        .summaryKey = "RS_STitle_MirrorPrinting",
        .panelPlace = 8,
        .summaryPlace = 7,
        .effect = &CutSettings::mirror,
    },
    {
        .kind = OptionKind::AutoCut,
        .keyword = "KvAutoTapeCut",
        .item = 0x800,
        .boxName = "mAutoCutChkBx",
        .selectionName = "mAutoCut_Selection",
        .titleKey = "RS_AutoTapeCut",
        .summaryKey = "RS_STitle_AutoTapeCut",
        .panelPlace = 3,
        .summaryPlace = 2,
        .isOffOnSpecialTape = true,
        .effect = &CutSettings::automaticCut,
        .removedWithout = {PresetTapeCut, PresetTapeCutChain, PresetTapeCutHalfCut,
                           PresetTapeCutHalfCutChain},
    },
    {
        .kind = OptionKind::HalfCut,
        .keyword = "KvHalfCut",
        .item = 0x1000,
        .boxName = "mHalfCutChkBx",
        .selectionName = "mHalfCut_Selection",
        .titleKey = "RS_HalfCut",
        .summaryKey = "RS_STitle_HalfCut",
        .panelPlace = 5,
        .summaryPlace = 4,
        .isOffOnSpecialTape = true,
        .effect = &CutSettings::halfCut,
        .removedWithout = {PresetTapeHalfCut, PresetTapeHalfCutChain, PresetTapeCutHalfCut,
                           PresetTapeCutHalfCutChain},
    },
    {
        .kind = OptionKind::ChainPrint,
        .keyword = "KvChainPrint",
        .item = 0x2000,
        .boxName = "mChainPrintChkBx",
        .selectionName = "mChainPrint_Selection",
        .titleKey = "RS_ChainPrinting",
        .summaryKey = "RS_STitle_ChainPrint",
        .panelPlace = 7,
        .summaryPlace = 6,
        .isOffOnSpecialTape = true,
        .effect = &CutSettings::chainPrint,
        .removedWithout = {PresetTapeChain, PresetTapeHalfCutChain, PresetTapeCutChain,
                           PresetTapeCutHalfCutChain, PresetCutMarkChain, PresetNoCutMarkChain},
    },
    {
        .kind = OptionKind::SpecialTape,
        .keyword = "KvSpecialTape",
        .item = 0x4000,
        .boxName = "mSpecialTapeChkBx",
        .selectionName = "mSpecialTape_Selection",
        .titleKey = "RS_SpecialTape",
        .summaryKey = "RS_STitle_SpecialTape",
        .panelPlace = 6,
        .summaryPlace = 5,
        .effect = &CutSettings::specialTape,
        .removedWithout = {PresetSpecialTape},
    },
    {
        .kind = OptionKind::RemoveBlkSpace,
        .keyword = "KvRemoveBlkSpace",
        .item = 0x10000,
        .boxName = "mRemoveBlkSpaceChkBx",
        .selectionName = "mRemoveBlkSpace_Selection",
        .titleKey = "RS_RemoveBlkSpace",
        .summaryKey = "RS_STitle_RemoveBlkSpace",
        .panelPlace = 9,
        .summaryPlace = 8,
        .keepsStateWhileDisabled = true,
        .effect = &CutSettings::removeBlank,
    },
    {
        .kind = OptionKind::CutMark,
        .keyword = "KvCutMark",
        .item = 0x80000,
        .boxName = "mCutMarkChkBx",
        .selectionName = "mCutMark_Selection",
        .titleKey = "RS_CutMark",
        .summaryKey = "RS_STitle_CutMark",
        .panelPlace = 1,
        .summaryPlace = 9,
        .isOffOnSpecialTape = true,
        .keepsStateWhileDisabled = true,
        .effect = &CutSettings::cutMark,
        .removedWith = {PresetTapeUncut, PresetTapeChain, PresetTapeHalfCutChain, PresetTapeCutChain,
                        PresetTapeCutHalfCutChain},
        .removedWithout = {PresetCutMark, PresetCutMarkChain, PresetNoCutMarkChain, PresetNoCutMark},
    },
}};

/// The row of the option.
constexpr const OptionRow &optionRow(OptionKind kind)
{
    return optionTable[static_cast<std::size_t>(kind)];
}

/// Whether each option has its row, at the index of its kind.
consteval bool hasRowForEachOption()
{
    for (std::size_t index = 0; index < OptionCount; ++index) {
        if (optionTable[index].kind != static_cast<OptionKind>(index) || !optionTable[index].keyword)
            return false;
    }
    return true;
}
static_assert(hasRowForEachOption(),
              "optionTable lacks a row, or its rows are not in the order of OptionKind");

/// One bit for each control that can be updated; a set of controls is the bitwise OR of their bits. The
/// cut-every row has one bit for both of its keywords: the count and the automatic cut of its check box.
namespace ItemType {
/// The cut-every row: its box and the count.
inline constexpr std::uint32_t CutEvery = optionRow(OptionKind::CutLabel).item;
/// The cut-at-end box.
inline constexpr std::uint32_t CutAtEnd = optionRow(OptionKind::CutAtEnd).item;
/// The mirror-printing box.
inline constexpr std::uint32_t Mirror = optionRow(OptionKind::Mirror).item;
/// The auto-cut box.
inline constexpr std::uint32_t AutoCut = optionRow(OptionKind::AutoCut).item;
/// The half-cut box.
inline constexpr std::uint32_t HalfCut = optionRow(OptionKind::HalfCut).item;
/// The chain-printing box.
inline constexpr std::uint32_t ChainPrint = optionRow(OptionKind::ChainPrint).item;
/// The special-tape box.
inline constexpr std::uint32_t SpecialTape = optionRow(OptionKind::SpecialTape).item;
/// The remove-blank-space box.
inline constexpr std::uint32_t RemoveBlkSpace = optionRow(OptionKind::RemoveBlkSpace).item;
/// The cut-mark box.
inline constexpr std::uint32_t CutMark = optionRow(OptionKind::CutMark).item;
/// The pop-up button of the predefined combinations.
inline constexpr std::uint32_t OptionPopUp = 0x40000;
} // namespace ItemType

/// Whether each option has one bit that no other option and not the pop-up button has.
consteval bool hasBitForEachOption()
{
    std::uint32_t used = ItemType::OptionPopUp;
    for (const OptionRow &row : optionTable) {
        if (row.item == 0 || (row.item & (row.item - 1)) != 0 || (row.item & used) != 0)
            return false;
        used |= row.item;
    }
    return true;
}
static_assert(hasBitForEachOption(),
              "two rows of optionTable have the same item, or one is not a single bit");

/// Whether the places in the rows, &OptionRow::panelPlace or &OptionRow::summaryPlace, are 1 to OptionCount,
/// each once.
consteval bool isPlaceOfEachOption(int OptionRow::*place)
{
    for (int wanted = 1; wanted <= static_cast<int>(OptionCount); ++wanted) {
        if (std::ranges::count(optionTable, wanted, place) != 1)
            return false;
    }
    return true;
}
static_assert(isPlaceOfEachOption(&OptionRow::panelPlace), "panelPlace is not 1 to OptionCount, each once");
static_assert(isPlaceOfEachOption(&OptionRow::summaryPlace),
              "summaryPlace is not 1 to OptionCount, each once");

/// The options in the order of their places.
consteval std::array<OptionKind, OptionCount> optionsInOrder(int OptionRow::*place)
{
    std::array<OptionKind, OptionCount> order{};
    for (const OptionRow &row : optionTable)
        order[static_cast<std::size_t>(row.*place - 1)] = row.kind;
    return order;
}

/// The options from the top of the panel to its bottom.
inline constexpr std::array<OptionKind, OptionCount> panelOrder = optionsInOrder(&OptionRow::panelPlace);
/// The options in the order of the summary.
inline constexpr std::array<OptionKind, OptionCount> summaryOrder = optionsInOrder(&OptionRow::summaryPlace);
