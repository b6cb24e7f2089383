// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionTable.h"

#include <array>
#include <initializer_list>
#include <optional>
#include <string_view>

/// The effect of a predefined combination on the box of each option, indexed by OptionKind: checked, cleared,
/// or absent if the combination leaves the box unchanged.
using PresetBoxes = std::array<std::optional<bool>, OptionCount>;

/// A predefined combination in the pop-up button with pictures.
struct Preset {
    /// The tag of its item in the pop-up button.
    PresetTag tag;
    /// What it does to the boxes.
    PresetBoxes boxes;
    /// The name of the picture, which is also the title of the item in the layout file.
    std::string_view picture;

    /// The state of the option's box; absent if the preset leaves it unchanged.
    constexpr std::optional<bool> stateOf(OptionKind kind) const
    {
        return boxes[static_cast<std::size_t>(kind)];
    }
};

/// The boxes of a combination that decides about some options: checks these, clears the others. No
/// combination turns mirror printing on, and each turns it off; the user checks it afterwards.
consteval PresetBoxes presetBoxes(std::initializer_list<OptionKind> decided,
                                  std::initializer_list<OptionKind> checked)
{
    PresetBoxes boxes{};
    boxes[static_cast<std::size_t>(OptionKind::Mirror)] = false;
    for (const OptionKind kind : decided)
        boxes[static_cast<std::size_t>(kind)] = false;
    for (const OptionKind kind : checked)
        boxes[static_cast<std::size_t>(kind)] = true;
    return boxes;
}

/// A combination for paper labels.
consteval PresetBoxes presetForLabels(std::initializer_list<OptionKind> checked)
{
    return presetBoxes({OptionKind::CutLabel, OptionKind::CutAtEnd}, checked);
}

/// A combination of cuts for tape.
consteval PresetBoxes presetForTape(std::initializer_list<OptionKind> checked)
{
    return presetBoxes({OptionKind::CutLabel, OptionKind::AutoCut, OptionKind::HalfCut,
                        OptionKind::ChainPrint, OptionKind::SpecialTape},
                       checked);
}

/// A combination for printers that print cut marks.
consteval PresetBoxes presetWithMarks(std::initializer_list<OptionKind> checked)
{
    return presetBoxes({OptionKind::ChainPrint, OptionKind::CutMark}, checked);
}

/// The presets in the order of their tags.
inline constexpr std::array<Preset, PresetNoCutMark> presets = {{
    {PresetLabelsUncut, presetForLabels({}), "EveryEndMirrorOffOffOff"},
    {PresetLabelsCutAtEnd, presetForLabels({OptionKind::CutAtEnd}), "EveryEndMirrorOffOnOff"},
    {PresetLabelsCutEvery, presetForLabels({OptionKind::CutLabel}), "EveryEndMirrorOnOffOff"},
    {PresetTapeUncut, presetForTape({}), "AHCMOffOffOffOff"},
    {PresetTapeChain, presetForTape({OptionKind::ChainPrint}), "AHCMOffOffOnOff"},
    {PresetTapeHalfCut, presetForTape({OptionKind::HalfCut}), "AHCMOffOnOffOff"},
    {PresetTapeHalfCutChain, presetForTape({OptionKind::HalfCut, OptionKind::ChainPrint}), "AHCMOffOnOnOff"},
    {PresetTapeCut, presetForTape({OptionKind::CutLabel, OptionKind::AutoCut}), "AHCMOnOffOffOff"},
    {PresetTapeCutChain, presetForTape({OptionKind::CutLabel, OptionKind::AutoCut, OptionKind::ChainPrint}),
     "AHCMOnOffOnOff"},
    {PresetTapeCutHalfCut, presetForTape({OptionKind::CutLabel, OptionKind::AutoCut, OptionKind::HalfCut}),
     "AHCMOnOnOffOff"},
    {PresetTapeCutHalfCutChain,
     presetForTape({OptionKind::CutLabel, OptionKind::AutoCut, OptionKind::HalfCut, OptionKind::ChainPrint}),
     "AHCMOnOnOnOff"},
    {PresetSpecialTape, presetBoxes({OptionKind::SpecialTape}, {OptionKind::SpecialTape}), "SPMROnOff"},
    {PresetCutMark, presetWithMarks({OptionKind::CutMark}), "CTMROnOffOff"},
    {PresetCutMarkChain, presetWithMarks({OptionKind::CutMark, OptionKind::ChainPrint}), "CTMROnOnOff"},
    {PresetNoCutMarkChain, presetWithMarks({OptionKind::ChainPrint}), "CTMROffOnOff"},
    {PresetNoCutMark, presetWithMarks({}), "CTMROffOffOff"},
}};

/// Returns the preset with this tag; null for any other tag. The presets are never deleted.
constexpr const Preset *presetWithTag(int tag)
{
    if (tag < 1 || tag > static_cast<int>(presets.size()))
        return nullptr;
    return &presets[static_cast<std::size_t>(tag - 1)];
}

/// Whether each tag has its preset, at its place.
consteval bool hasPresetForEachTag()
{
    for (std::size_t index = 0; index < presets.size(); ++index) {
        if (presets[index].tag != static_cast<int>(index) + 1)
            return false;
    }
    return true;
}
static_assert(hasPresetForEachTag(), "presets lacks a tag, or is not in the order of PresetTag");
