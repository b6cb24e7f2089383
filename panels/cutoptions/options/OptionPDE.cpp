// SPDX-License-Identifier: Apache-2.0
// The option table, construction and the panel's list of keywords.
#include "OptionPDE.h"

#include <ppd/PDEUtilsMethod13.h>

#include <algorithm>

using platform::NotificationCenter;

using Panel = OptionPDE13_v400_;
using View = OptionView13_v400_;

const std::array<Panel::OptionRow, OptionCount> Panel::optionTable = {{
    {OptionKind::CutLabel, "KvCutLabel", ItemType::CutEvery, "RS_CutAtEvery", "RS_STitle_CutLabels", "1",
     SaveIndex::State, "mCutEveryChkBx", &Panel::mCutEveryChkBx, &Panel::mCutEvery_Option,
     &Panel::mCutEvery_Choices, &Panel::mCutEvery_Selection, "KvAutoTapeCut", &Panel::mAutoCut_Choices,
     &Panel::mAutoCut_CutEvery_Selection, &View::setCutEveryChkBx, &Panel::initializeUI_CutLabel,
     &Panel::saveSetting_CutLabel},
    {OptionKind::CutAtEnd, "KvCutAtEnd", ItemType::CutAtEnd, "RS_CutAtEnd", "RS_STitle_CutAtEnd", "ON",
     SaveIndex::State, "mCutAndEndChkBx", &Panel::mCutAndEndChkBx, &Panel::mCutEnd_Option,
     &Panel::mCutEnd_Choices, &Panel::mCutEnd_Selection, "KvCutAtEnd", &Panel::mCutEnd_Choices,
     &Panel::mCutEnd_Selection, &View::setCutAndEndChkBx, &Panel::initializeUI_CutAtEnd,
     &Panel::saveSetting_CutAtEnd},
    {OptionKind::Mirror, "KvMirror", ItemType::Mirror, "RS_MirrorPrinting", "RS_STitle_MirrorPrinting", "ON",
     SaveIndex::State, "mMirrorPrintChkBx", &Panel::mMirrorPrintChkBx, &Panel::mMirror_Option,
     &Panel::mMirror_Choices, &Panel::mMirror_Selection, "KvMirror", &Panel::mMirror_Choices,
     &Panel::mMirror_Selection, &View::setMirrorPrintChkBx, &Panel::initializeUI_Mirror,
     &Panel::saveSetting_Mirror},
    {OptionKind::AutoCut, "KvAutoTapeCut", ItemType::AutoCut, "RS_AutoTapeCut", "RS_STitle_AutoTapeCut", "ON",
     SaveIndex::AutoChain, "mAutoCutChkBx", &Panel::mAutoCutChkBx, &Panel::mAutoCut_Option,
     &Panel::mAutoCut_Choices, &Panel::mAutoCut_Selection, "KvAutoTapeCut", &Panel::mAutoCut_Choices,
     &Panel::mAutoCut_Selection, &View::setAutoCutChkBx, &Panel::initializeUI_AutoCut,
     &Panel::saveSetting_AutoCut},
    {OptionKind::HalfCut, "KvHalfCut", ItemType::HalfCut, "RS_HalfCut", "RS_STitle_HalfCut", "ON",
     SaveIndex::AutoChain, "mHalfCutChkBx", &Panel::mHalfCutChkBx, &Panel::mHalfCut_Option,
     &Panel::mHalfCut_Choices, &Panel::mHalfCut_Selection, "KvHalfCut", &Panel::mHalfCut_Choices,
     &Panel::mHalfCut_Selection, &View::setHalfCutChkBx, &Panel::initializeUI_HalfCut,
     &Panel::saveSetting_HalfCut},
    {OptionKind::ChainPrint, "KvChainPrint", ItemType::ChainPrint, "RS_ChainPrinting", "RS_STitle_ChainPrint",
     "ON", SaveIndex::AutoChain, "mChainPrintChkBx", &Panel::mChainPrintChkBx, &Panel::mChainPrint_Option,
     &Panel::mChainPrint_Choices, &Panel::mChainPrint_Selection, "KvChainPrint", &Panel::mChainPrint_Choices,
     &Panel::mChainPrint_Selection, &View::setChainPrintChkBx, &Panel::initializeUI_ChainPrint,
     &Panel::saveSetting_ChainPrint},
    {OptionKind::SpecialTape, "KvSpecialTape", ItemType::SpecialTape, "RS_SpecialTape",
     "RS_STitle_SpecialTape", "ON", SaveIndex::State, "mSpecialTapeChkBx", &Panel::mSpecialTapeChkBx,
     &Panel::mSpecialTape_Option, &Panel::mSpecialTape_Choices, &Panel::mSpecialTape_Selection,
     "KvSpecialTape", &Panel::mSpecialTape_Choices, &Panel::mSpecialTape_Selection,
     &View::setSpecialTapeChkBx, &Panel::initializeUI_SpecialTape, &Panel::saveSetting_SpecialTape},
    {OptionKind::RemoveBlkSpace, "KvRemoveBlkSpace", ItemType::RemoveBlkSpace, "RS_RemoveBlkSpace",
     "RS_STitle_RemoveBlkSpace", "ON", SaveIndex::State, "mRemoveBlkSpaceChkBx", &Panel::mRemoveBlkSpaceChkBx,
     &Panel::mRemoveBlkSpace_Option, &Panel::mRemoveBlkSpace_Choices, &Panel::mRemoveBlkSpace_Selection,
     "KvRemoveBlkSpace", &Panel::mRemoveBlkSpace_Choices, &Panel::mRemoveBlkSpace_Selection,
     &View::setRemoveBlkSpaceChkBx, &Panel::initializeUI_RemoveBlkSpace, &Panel::saveSetting_RemoveBlkSpace},
    {OptionKind::CutMark, "KvCutMark", ItemType::CutMark, "RS_CutMark", "RS_STitle_CutMark", "ON",
     SaveIndex::AutoChain, "mCutMarkChkBx", &Panel::mCutMarkChkBx, &Panel::mCutMark_Option,
     &Panel::mCutMark_Choices, &Panel::mCutMark_Selection, "KvCutMark", &Panel::mCutMark_Choices,
     &Panel::mCutMark_Selection, &View::setCutMarkChkBx, &Panel::initializeUI_CutMark,
     &Panel::saveSetting_CutMark},
}};

namespace {

/// Returns the part of a device URI before its first colon, unchanged; empty without a colon.
QString schemeOf(const QString &uri)
{
    return uri.left(std::max<qsizetype>(uri.indexOf(u':'), 0));
}

} // namespace

std::shared_ptr<OptionPDE13_v400_>
OptionPDE13_v400_::initWithCallback(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                                    std::shared_ptr<const platform::Bundle> bundle)
{
    const std::shared_ptr<OptionPDE13_v400_> panel(new OptionPDE13_v400_);
    return panel->init(std::move(callback), std::move(bundle)) ? panel : nullptr;
}

bool OptionPDE13_v400_::init(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                             std::shared_ptr<const platform::Bundle> bundle)
{
    if (!BasePDE13_v400_::init(std::move(callback), std::move(bundle)))
        return false;
    checkValues_dec = true;

    QString uri;
    if (PMPrinterCopyDeviceURI(pdePluginCallbackObject->PMPrinter(), &uri) == platform::noError) {
        const QString scheme = schemeOf(uri);
        usb_dec = scheme == QStringLiteral("usb") || scheme == QStringLiteral("KVLXUSB");
    }

    for (const OptionRow &row : optionTable) {
        this->*row.option = ppd ? ppdFindOption(ppd, row.keyword) : nullptr;
        this->*row.choices = PDEUtilsMethod13::arrayFromPPDOption(this->*row.option);
        if (row.kind != OptionKind::AutoCut)
            continue;
        // The cutter cannot cut heat-shrink tube.
        if (ppd && isHSTapePage())
            ppdMarkOption(ppd, row.keyword, "OFF");
        mAutoCutHideKey_dec = mAutoCut_Option && PDEUtilsMethod13::isSupportedItem(ppd, "KvAutoCutObjHidden");
    }

    NotificationCenter::defaultCenter().addObserver(
        this, QStringLiteral("PMPrintDestinationPaperDidChangeNotification"), nullptr,
        [this](const platform::Notification &notification) {
            checkChangeSettingWhenPageSizeChanged(notification);
        });
    return true;
}

OptionPDE13_v400_::~OptionPDE13_v400_()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    // The view, which includes the preview, is deleted first: its controls report to the panel and need it
    // complete.
    delete kPDEView.data();
}

std::optional<QStringList> OptionPDE13_v400_::supportedPPDOptionKeys()
{
    if (supportedOptions())
        return supportedOptions();
    setValuesToKey();
    QStringList keys;
    for (const OptionRow &row : optionTable) {
        if (this->*row.option)
            keys.append(QLatin1String(row.keyword));
        // The cut-every box writes the automatic cut, so the panel handles its keyword even if the PPD does
        // not define it.
        if (row.kind == OptionKind::CutLabel && mCutEvery_Option && !mAutoCut_Option)
            keys.append(QLatin1String(OptionPDE13_v400_::row(OptionKind::AutoCut).keyword));
    }
    setSupportedOptions(keys);
    return keys;
}

void OptionPDE13_v400_::printWindowWillClose(QWidget *) {}

QString OptionPDE13_v400_::titleFor(const char *keyword, const char *fallbackKey) const
{
    const std::optional<QString> text =
        PDEUtilsMethod13::newOptionTitle(ppd ? ppdFindOption(ppd, keyword) : nullptr);
    return localized(text ? *text : QLatin1String(fallbackKey));
}
