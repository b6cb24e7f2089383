// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <initializer_list>

/// The tags of the predefined combinations, which are also the tags of their items in the layout file. Paper
/// labels have combinations of their own. For tape, the names say which options a combination turns on;
/// PresetTapeCut turns on the automatic cut.
enum PresetTag : int {
    PresetLabelsUncut = 1,
    PresetLabelsCutAtEnd,
    PresetLabelsCutEvery,
    PresetTapeUncut,
    PresetTapeChain,
    PresetTapeHalfCut,
    PresetTapeHalfCutChain,
    PresetTapeCut,
    PresetTapeCutChain,
    PresetTapeCutHalfCut,
    PresetTapeCutHalfCutChain,
    PresetSpecialTape,
    PresetCutMark,
    PresetCutMarkChain,
    PresetNoCutMarkChain,
    PresetNoCutMark,
};

/// A set of predefined combinations.
class PresetSet {
public:
    /// An empty set.
    constexpr PresetSet() = default;
    /// The set of these combinations.
    constexpr PresetSet(std::initializer_list<PresetTag> tags)
    {
        for (const PresetTag tag : tags)
            m_bits |= bit(tag);
    }

    /// Whether the combination is in the set.
    constexpr bool contains(PresetTag tag) const { return (m_bits & bit(tag)) != 0; }

private:
    static constexpr std::uint32_t bit(PresetTag tag) { return std::uint32_t{1} << tag; }

    std::uint32_t m_bits = 0;
};
