// SPDX-License-Identifier: Apache-2.0
// The predefined combinations of the pop-up button with pictures.
#include "Controls.h"
#include "OptionPDE.h"

namespace {

PresetTag tapeTag(bool cuts, bool half, bool chain)
{
    if (cuts && half)
        return chain ? PresetTapeCutHalfCutChain : PresetTapeCutHalfCut;
    if (cuts)
        return chain ? PresetTapeCutChain : PresetTapeCut;
    if (half)
        return chain ? PresetTapeHalfCutChain : PresetTapeHalfCut;
    return chain ? PresetTapeChain : PresetTapeUncut;
}

} // namespace

bool OptionPDE13_v400_::isBoxOn(OptionKind kind) const
{
    const QCheckBox *const box = checkBox(kind);
    return !controls::isHidden(box) && controls::state(box) == 1;
}

int OptionPDE13_v400_::targetPopUpButtonTag() const
{
    const bool special = isBoxOn(OptionKind::SpecialTape);
    // Special tape is never cut, regardless of the states of the other boxes.
    const bool half = !special && isBoxOn(OptionKind::HalfCut);
    const bool chain = !special && isBoxOn(OptionKind::ChainPrint);
    const bool cuts = !special && (isBoxOn(OptionKind::AutoCut) || isBoxOn(OptionKind::CutLabel));
    if (isDZPrinter()) {
        if (cuts)
            return PresetLabelsCutEvery;
        return isBoxOn(OptionKind::CutAtEnd) ? PresetLabelsCutAtEnd : PresetLabelsUncut;
    }
    if (currentPaperName().startsWith("FL")) {
        if (half)
            return PresetLabelsUncut;
        return cuts ? PresetTapeCut : PresetTapeUncut;
    }
    if (!controls::isHidden(checkBox(OptionKind::CutMark))) {
        const bool mark = isBoxOn(OptionKind::CutMark);
        if (mark)
            return chain ? PresetCutMarkChain : PresetCutMark;
        return chain ? PresetNoCutMarkChain : PresetNoCutMark;
    }
    if (special)
        return PresetSpecialTape;
    return tapeTag(cuts, half, chain);
}

void OptionPDE13_v400_::applyPreset(int tag)
{
    const Preset *const preset = presetWithTag(tag);
    if (!preset)
        return;
    for (const OptionRow &row : optionTable) {
        if (const std::optional<bool> state = preset->stateOf(row.kind))
            controls::setState(checkBox(row.kind), *state ? 1 : 0);
    }
}

bool OptionPDE13_v400_::validateMenuItem(int tag) const
{
    // Flag labels can be cut after each label or left uncut; the other combinations need options that are
    // disabled.
    static constexpr PresetSet notOnFlagPaper = {
        PresetTapeChain,      PresetTapeHalfCut,         PresetTapeHalfCutChain, PresetTapeCutChain,
        PresetTapeCutHalfCut, PresetTapeCutHalfCutChain, PresetSpecialTape,
    };
    const Preset *const preset = presetWithTag(tag);
    return !currentPaperName().startsWith("FL") || !preset || !notOnFlagPaper.contains(preset->tag);
}
