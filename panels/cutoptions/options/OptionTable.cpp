// SPDX-License-Identifier: Apache-2.0
#include "OptionTable.h"

// Columns: cut every, cut at end, mirror, auto cut, half cut, chain, special tape, blank space, cut mark.
const std::array<Preset, 16> presets = {{
    {1, "000......", "EveryEndMirrorOffOffOff"},
    {2, "010......", "EveryEndMirrorOffOnOff"},
    {3, "100......", "EveryEndMirrorOnOffOff"},
    {4, "0.00000..", "AHCMOffOffOffOff"},
    {5, "0.00010..", "AHCMOffOffOnOff"},
    {6, "0.00100..", "AHCMOffOnOffOff"},
    {7, "0.00110..", "AHCMOffOnOnOff"},
    {8, "1.01000..", "AHCMOnOffOffOff"},
    {9, "1.01010..", "AHCMOnOffOnOff"},
    {10, "1.01100..", "AHCMOnOnOffOff"},
    {11, "1.01110..", "AHCMOnOnOnOff"},
    {12, "..0...1..", "SPMROnOff"},
    {13, "..0..0..1", "CTMROnOffOff"},
    {14, "..0..1..1", "CTMROnOnOff"},
    {15, "..0..1..0", "CTMROffOnOff"},
    {16, "..0..0..0", "CTMROffOffOff"},
}};

std::optional<bool> Preset::stateOf(OptionKind kind) const
{
    switch (boxes[static_cast<std::size_t>(kind)]) {
    case '0':
        return false;
    case '1':
        return true;
    default:
        return std::nullopt;
    }
}

const Preset *presetWithTag(int tag)
{
    if (tag < 1 || tag > static_cast<int>(presets.size()))
        return nullptr;
    return &presets[static_cast<std::size_t>(tag - 1)];
}
