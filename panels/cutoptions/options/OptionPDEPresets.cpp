// SPDX-License-Identifier: Apache-2.0
// The predefined combinations of the pop-up button with pictures.
#include "Controls.h"
#include "OptionPDE.h"

#include <algorithm>

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
            return 3;
        return isBoxOn(OptionKind::CutAtEnd) ? 2 : 1;
    }
    if (currentPaperName().startsWith("FL")) {
        if (half)
            return 1;
        return cuts ? 8 : 4;
    }
    if (!controls::isHidden(mCutMarkChkBx)) {
        const bool mark = isBoxOn(OptionKind::CutMark);
        if (mark)
            return chain ? 14 : 13;
        return chain ? 15 : 16;
    }
    if (special)
        return 12;
    return 4 + (chain ? 1 : 0) + (half ? 2 : 0) + (cuts ? 4 : 0);
}

void OptionPDE13_v400_::applyPreset(int tag)
{
    const Preset *const preset = presetWithTag(tag);
    if (!preset)
        return;
    for (const OptionRow &row : optionTable) {
        if (const std::optional<bool> state = preset->stateOf(row.kind))
            controls::setState(this->*row.box, *state ? 1 : 0);
    }
}

bool OptionPDE13_v400_::validateMenuItem(int tag) const
{
    // Flag labels can be cut after each label or left uncut; the other combinations need options that are
    // disabled.
    static constexpr std::array<int, 7> notOnFlagPaper = {5, 6, 7, 9, 10, 11, 12};
    return !currentPaperName().startsWith("FL") ||
           std::ranges::find(notOnFlagPaper, tag) == notOnFlagPaper.end();
}
