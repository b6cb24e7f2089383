// SPDX-License-Identifier: Apache-2.0
// Sets each row to the defaults of the PPD when the panel is first shown.
#include "Controls.h"
#include "OptionPDE.h"

#include <platform/Numbers.h>
#include <platform/TextEncoding.h>
#include <ppd/TapeInfo.h>

void OptionPDE13_v400_::initUI()
{
    if (set_formatSetting)
        return;
    for (const OptionRow &row : optionTable)
        (this->*row.initialize)();
    setValuesToKey();
    set_formatSetting = true;
}

void OptionPDE13_v400_::fillReplacedControls()
{
    // A view that is loaded after the panel was first shown has new controls. Saving reads them from now on,
    // so they must show the marked choices and not the defaults that are filled in first.
    if (!set_formatSetting)
        return;
    for (const OptionRow &row : optionTable)
        (this->*row.initialize)();
    setPDEItems2();
    for (const OptionRow &row : optionTable)
        updateUIItem(row.item);
}

void OptionPDE13_v400_::initializeRow(OptionKind kind)
{
    controls::setEnabled(checkBox(kind), option(kind) != nullptr);
    initializeTitleAndState(kind);
}

void OptionPDE13_v400_::initializeTitleAndState(OptionKind kind)
{
    const OptionRow &row = OptionPDE13_v400_::row(kind);
    const PDEChoiceList *const list = choices(kind);
    if (!list)
        return;
    controls::setTitle(this->*row.box, titleFor(row.keyword, row.titleKey));
    if (!list->empty())
        controls::setState(this->*row.box,
                           isDefaultOfOption(list->front()->choice()->option, row.onDefault) ? 1 : 0);
}

void OptionPDE13_v400_::initializeUI_CutLabel()
{
    const bool exists = mCutEvery_Option != nullptr;
    controls::setEnabled(mCutEveryChkBx, exists);
    if (!mCutEvery_Choices)
        return;
    if (mCutEveryStr)
        mCutEveryStr->setText(localized(QStringLiteral("RS_Labels")));
    initializeTitleAndState(OptionKind::CutLabel);
    controls::setEnabled(mCutEveryTxBx, exists);
    controls::setEnabled(mCutEveryStpr, exists);
    const QString count =
        platform::TextEncoding::system().decode(mCutEvery_Option->defchoice).value_or(QString());
    showCount(count);
    if (mCutEveryStpr)
        mCutEveryStpr->setValue(platform::integerValue(count));
}

void OptionPDE13_v400_::initializeUI_AutoCut()
{
    controls::setEnabled(mAutoCutChkBx, mAutoCut_Option != nullptr);
    if (mAutoCutHideKey_dec)
        initializeTitleAndState(OptionKind::AutoCut);
}

void OptionPDE13_v400_::initializeUI_RemoveBlkSpace()
{
    readTapeState();
    enableRemoveBlankSpaceByTape();
    initializeTitleAndState(OptionKind::RemoveBlkSpace);
}

void OptionPDE13_v400_::readTapeState()
{
    TapeInfo paper;
    GetTapeInfo(printSession, pdePluginCallbackObject->printSettings(), pdePluginCallbackObject->pageFormat(),
                ppd, &paper);
    setTapeState(paper.kind);
}

void OptionPDE13_v400_::enableRemoveBlankSpaceByTape()
{
    // Labels of a fixed length have no blank tape that could be removed.
    const bool removable = getTapeState() == TapeKindPlain || getTapeState() == TapeKindUnlisted;
    controls::setEnabled(mRemoveBlkSpaceChkBx, removable);
}
