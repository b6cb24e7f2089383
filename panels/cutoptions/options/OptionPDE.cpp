// SPDX-License-Identifier: Apache-2.0
// Construction and the panel's list of keywords.
#include "OptionPDE.h"

#include <ppd/PDEUtilsMethod13.h>

#include <algorithm>

using platform::NotificationCenter;

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
        OptionFields &option = fields(row.kind);
        option.record = ppd ? ppdFindOption(ppd, row.keyword) : nullptr;
        option.choices = PDEUtilsMethod13::arrayFromPPDOption(option.record);
        if (row.kind != OptionKind::AutoCut)
            continue;
        // The cutter cannot cut heat-shrink tube.
        if (ppd && isHSTapePage())
            ppdMarkOption(ppd, row.keyword, "OFF");
        mAutoCutHideKey_dec = option.record && PDEUtilsMethod13::isSupportedItem(ppd, "KvAutoCutObjHidden");
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
        if (option(row.kind))
            keys.append(QLatin1String(row.keyword));
        // The cut-every box writes the automatic cut, so the panel handles its keyword even if the PPD does
        // not define it.
        if (row.kind == OptionKind::CutLabel && option(row.kind) && !option(row.edits))
            keys.append(QLatin1String(optionRow(row.edits).keyword));
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
