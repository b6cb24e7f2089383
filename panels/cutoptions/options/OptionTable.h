// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

class QString;

/// The nine cut options, in the order in which the panel visits them.
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
};

inline constexpr std::size_t OptionCount = 9;

/// One bit for each control that can be refreshed; a set of controls is the OR of their bits. The cut-every
/// row has one bit for both its keywords, the count and the automatic cut of its check box.
namespace ItemType {
inline constexpr std::uint32_t CutEvery = 0x100;
inline constexpr std::uint32_t CutAtEnd = 0x200;
inline constexpr std::uint32_t Mirror = 0x400;
inline constexpr std::uint32_t AutoCut = 0x800;
inline constexpr std::uint32_t HalfCut = 0x1000;
inline constexpr std::uint32_t ChainPrint = 0x2000;
inline constexpr std::uint32_t SpecialTape = 0x4000;
inline constexpr std::uint32_t RemoveBlkSpace = 0x10000;
inline constexpr std::uint32_t OptionPopUp = 0x40000;
inline constexpr std::uint32_t CutMark = 0x80000;
} // namespace ItemType

/// A ready-made combination in the picture pop-up.
struct Preset {
    int tag;
    /// What choosing it does to each option's box, in the order of OptionKind: '0' switches it off, '1'
    /// on, '.' leaves it. Every preset writes un-mirrored: who wants mirror writing ticks it last.
    std::string_view boxes;
    /// Its picture, which is also its item's title in the layout file.
    std::string_view picture;

    /// The state that the preset gives the option's box; nothing for one that it leaves alone.
    std::optional<bool> stateOf(OptionKind kind) const;
};

/// The presets in the order of their tags, 1 to 16.
extern const std::array<Preset, 16> presets;

/// The preset with the tag; null for any other tag.
const Preset *presetWithTag(int tag);
