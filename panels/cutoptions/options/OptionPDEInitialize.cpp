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
        initializeUI(row.kind);
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
        initializeUI(row.kind);
    setPDEItems2();
    for (const OptionRow &row : optionTable)
        updateUIItem(row.item);
}

void OptionPDE13_v400_::initializeUI(OptionKind kind)
{
    switch (kind) {
    case OptionKind::CutLabel:
        return initializeUI_CutLabel();
    case OptionKind::AutoCut:
        return initializeUI_AutoCut();
    case OptionKind::RemoveBlkSpace:
        return initializeUI_RemoveBlkSpace();
    default:
        return initializeRow(kind);
    }
}

void OptionPDE13_v400_::initializeRow(OptionKind kind)
{
    controls::setEnabled(checkBox(kind), option(kind) != nullptr);
    initializeTitleAndState(kind);
}

void OptionPDE13_v400_::initializeTitleAndState(OptionKind kind)
{
    const OptionRow &row = optionRow(kind);
    const PDEChoiceList *const list = choices(kind);
    if (!list)
        return;
    controls::setTitle(checkBox(kind), titleFor(row.keyword, row.titleKey));
    if (!list->empty())
        controls::setState(checkBox(kind),
                           isDefaultOfOption(list->front()->choice()->option, row.onDefault) ? 1 : 0);
}

void OptionPDE13_v400_::initializeUI_CutLabel()
{
    const ppd_option_t *const counts = option(OptionKind::CutLabel);
    const bool exists = counts != nullptr;
    controls::setEnabled(checkBox(OptionKind::CutLabel), exists);
    if (!choices(OptionKind::CutLabel))
        return;
    if (mCutEveryStr)
        mCutEveryStr->setText(localized(QStringLiteral("RS_Labels")));
    initializeTitleAndState(OptionKind::CutLabel);
    controls::setEnabled(mCutEveryTxBx, exists);
    controls::setEnabled(mCutEveryStpr, exists);
    const QString count = platform::TextEncoding::system().decode(counts->defchoice).value_or(QString());
    showCount(count);
    if (mCutEveryStpr)
        mCutEveryStpr->setValue(platform::integerValue(count));
}

void OptionPDE13_v400_::initializeUI_AutoCut()
{
    controls::setEnabled(checkBox(OptionKind::AutoCut), option(OptionKind::AutoCut) != nullptr);
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
    controls::setEnabled(checkBox(OptionKind::RemoveBlkSpace), removable);
}
