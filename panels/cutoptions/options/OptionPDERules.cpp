// SPDX-License-Identifier: Apache-2.0
// Rules that enable and disable controls: the paper and some options exclude other options.
#include "Controls.h"
#include "OptionPDE.h"

#include <ppd/PDEUtilsMethod13.h>
#include <ppd/TapeInfo.h>

QByteArray OptionPDE13_v400_::currentPaperName() const
{
    return ppdPaperName(pdePluginCallbackObject->pageFormat());
}

void OptionPDE13_v400_::enabledCheck_OP()
{
    const QByteArray paper = currentPaperName();
    const bool flagPaper = paper.startsWith("FL");
    const bool fixedLength = flagPaper || paper.startsWith("DC") || paper.startsWith("AV");
    controls::setEnabledIfDifferent(checkBox(OptionKind::RemoveBlkSpace), !fixedLength);
    // Flag labels are folded around a cable; a half cut would divide the fold.
    if (flagPaper)
        controls::setEnabledIfDifferent(checkBox(OptionKind::HalfCut), false);
    if (!controls::isHidden(checkBox(OptionKind::SpecialTape)))
        applySpecialTapeRules(flagPaper);
    if (controls::isEnabled(checkBox(OptionKind::CutLabel)))
        applyCutEveryRules();
}

void OptionPDE13_v400_::applySpecialTapeRules(bool flagPaper)
{
    QCheckBox *const specialTape = checkBox(OptionKind::SpecialTape);
    QCheckBox *const chainPrint = checkBox(OptionKind::ChainPrint);
    if (flagPaper) {
        controls::setEnabledIfDifferent(specialTape, false);
        controls::setEnabledIfDifferent(chainPrint, false);
        return;
    }
    controls::setEnabledIfDifferent(specialTape, true);
    // Special tape must not be cut, so the cut options are disabled.
    const bool canCut = controls::state(specialTape) != 1;
    for (QCheckBox *const box : {checkBox(OptionKind::AutoCut), chainPrint, checkBox(OptionKind::HalfCut),
                                 checkBox(OptionKind::CutLabel)})
        controls::setEnabledIfDifferent(box, canCut);
    if (canCut)
        return;
    controls::setEnabledIfDifferent(mCutEveryTxBx, false);
    if (controls::setEnabledIfDifferent(mCutEveryStpr, false))
        PDEUtilsMethod13::setEnabledForText(0, mCutEveryStr);
}

void OptionPDE13_v400_::applyCutEveryRules()
{
    // The field and the stepper of the count are enabled together with the box, but only if both are
    // currently in the same state.
    const bool fieldEnabled = controls::isEnabled(mCutEveryTxBx);
    const bool on = controls::state(checkBox(OptionKind::CutLabel)) == 1;
    if (fieldEnabled != controls::isEnabled(mCutEveryStpr) || fieldEnabled == on)
        return;
    controls::setEnabled(mCutEveryTxBx, on);
    controls::setEnabled(mCutEveryStpr, on);
    PDEUtilsMethod13::setEnabledForText(on ? 1 : 0, mCutEveryStr);
}
