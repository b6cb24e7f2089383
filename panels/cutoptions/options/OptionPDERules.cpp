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
    controls::setEnabledIfDifferent(mRemoveBlkSpaceChkBx, !fixedLength);
    // Flag labels are folded around a cable; a half cut would divide the fold.
    if (flagPaper)
        controls::setEnabledIfDifferent(mHalfCutChkBx, false);
    if (!controls::isHidden(mSpecialTapeChkBx))
        applySpecialTapeRules(flagPaper);
    if (controls::isEnabled(mCutEveryChkBx))
        applyCutEveryRules();
}

void OptionPDE13_v400_::applySpecialTapeRules(bool flagPaper)
{
    if (flagPaper) {
        controls::setEnabledIfDifferent(mSpecialTapeChkBx, false);
        controls::setEnabledIfDifferent(mChainPrintChkBx, false);
        return;
    }
    controls::setEnabledIfDifferent(mSpecialTapeChkBx, true);
    if (controls::state(mSpecialTapeChkBx) == 1) {
        // Special tape must not be cut, so the cut options are disabled.
        for (QWidget *const control : std::initializer_list<QWidget *>{
                 mAutoCutChkBx, mChainPrintChkBx, mHalfCutChkBx, mCutEveryChkBx, mCutEveryTxBx})
            controls::setEnabledIfDifferent(control, false);
        if (controls::setEnabledIfDifferent(mCutEveryStpr, false))
            PDEUtilsMethod13::setEnabledForText(0, mCutEveryStr);
        return;
    }
    for (QWidget *const box :
         std::initializer_list<QWidget *>{mAutoCutChkBx, mCutEveryChkBx, mHalfCutChkBx, mChainPrintChkBx})
        controls::setEnabledIfDifferent(box, true);
}

void OptionPDE13_v400_::applyCutEveryRules()
{
    // The field and the stepper of the count are enabled together with the box, but only if both are
    // currently in the same state.
    const bool fieldEnabled = controls::isEnabled(mCutEveryTxBx);
    const bool on = controls::state(mCutEveryChkBx) == 1;
    if (fieldEnabled != controls::isEnabled(mCutEveryStpr) || fieldEnabled == on)
        return;
    controls::setEnabled(mCutEveryTxBx, on);
    controls::setEnabled(mCutEveryStpr, on);
    PDEUtilsMethod13::setEnabledForText(on ? 1 : 0, mCutEveryStr);
}
