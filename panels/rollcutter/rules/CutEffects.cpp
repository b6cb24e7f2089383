// SPDX-License-Identifier: Apache-2.0
#include "CutEffects.h"

namespace rollcutter {

namespace {

bool isCut(const CutSetting &setting, CutPlace place, std::span<const PDELabel> labels, std::size_t index)
{
    switch (place) {
    case CutPlace::EveryLabel:
        return true;
    case CutPlace::EveryFew:
        return (index + 1) % static_cast<std::size_t>(setting.labels) == 0;
    case CutPlace::EachCopy:
        return labels[index].endsCopy;
    case CutPlace::EachDocument:
        return labels[index].endsDocument;
    case CutPlace::AtEnd:
        return index + 1 == labels.size();
    case CutPlace::Nowhere:
    case CutPlace::NotKnown:
        return false;
    }
    return false;
}

} // namespace

PDEStripEffects cutEffects(const CutSetting &setting, std::span<const PDELabel> labels)
{
    const CutPlace place = cutStyleRow(setting.style).place;
    if (place == CutPlace::NotKnown)
        return {.cutting = PDECutting::NotKnown};
    PDEStripEffects effects{.cutting = PDECutting::Known};
    effects.ends.reserve(labels.size());
    for (std::size_t index = 0; index < labels.size(); ++index)
        effects.ends.push_back({.fullCut = isCut(setting, place, labels, index)});
    return effects;
}

PDEStripEffects cutEffects(const std::vector<CutGroup> &groups, const PrinterOptions &options,
                           std::span<const PDELabel> labels)
{
    if (groups.empty())
        return {};
    PDEStripEffects sum{.cutting = PDECutting::Known, .ends = std::vector<PDELabelEnd>(labels.size())};
    for (const CutGroup &group : groups) {
        const auto current = group.current(options);
        const CutSetting setting = current ? group.settings()[*current] : CutSetting{};
        const PDEStripEffects effects = cutEffects(setting, labels);
        if (effects.cutting == PDECutting::NotKnown)
            return {.cutting = PDECutting::NotKnown};
        for (std::size_t index = 0; index < labels.size(); ++index)
            sum.ends[index].fullCut |= effects.ends[index].fullCut;
    }
    return sum;
}

} // namespace rollcutter
