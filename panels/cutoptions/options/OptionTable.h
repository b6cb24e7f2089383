// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

class QString;

/// The nine cut options, in the order in which the panel processes them.
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

/// The number of values of OptionKind.
inline constexpr std::size_t OptionCount = 9;

/// One bit for each control that can be updated; a set of controls is the bitwise OR of their bits. The
/// cut-every row has one bit for both of its keywords: the count and the automatic cut of its check box.
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

/// A predefined combination in the pop-up button with pictures.
struct Preset {
    /// The tag of the item in the layout file.
    int tag;
    /// The effect of the preset on the box of each option, in the order of OptionKind: '0' clears it, '1'
    /// checks it, '.' leaves it unchanged. No preset turns mirror printing on; the user checks it afterwards.
    std::string_view boxes;
    /// The name of the picture, which is also the title of the item in the layout file.
    std::string_view picture;

    /// The state of the option's box; absent if the preset leaves it unchanged.
    std::optional<bool> stateOf(OptionKind kind) const;
};

/// The presets in the order of their tags, 1 to 16.
extern const std::array<Preset, 16> presets;

/// Returns the preset with this tag; null for any other tag. The presets are never deleted.
const Preset *presetWithTag(int tag);
