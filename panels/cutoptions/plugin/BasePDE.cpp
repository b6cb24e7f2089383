// SPDX-License-Identifier: Apache-2.0
#include "BasePDE.h"

#include <platform/KeyWindow.h>
#include <platform/LayoutLoader.h>
#include <platform/Log.h>
#include <platform/TextEncoding.h>

#include <algorithm>
#include <cstring>

using platform::NotificationCenter;

namespace {

/// Posted by the dialog that shows a panel's view after it has laid out the view again.
const QString viewDidUpdate = QStringLiteral("NSViewDidUpdateTrackingAreasNotification");

/// What the dialog's title, tabs and buttons take of its window's height, in points.
constexpr double dialogChromeHeight = 96.0;

} // namespace

BasePDE13_v400_::~BasePDE13_v400_()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    delete kPDEView.data();
}

bool BasePDE13_v400_::init(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                           std::shared_ptr<const platform::Bundle> bundle)
{
    if (!callback || !bundle)
        return false;
    nsPDEBundle = std::move(bundle);
    pdePluginCallbackObject = std::move(callback);

    printSession = pdePluginCallbackObject->printSession();
    pmPrintSettings = pdePluginCallbackObject->printSettings();
    printSettings = pdePluginCallbackObject->printSettings();
    formatSettings = pdePluginCallbackObject->pageFormat();
    printer = pdePluginCallbackObject->PMPrinter();
    ppd = pdePluginCallbackObject->ppdFile();

    QString uri;
    if (PMPrinterCopyDeviceURI(printer, &uri) == platform::noError) {
        // A URI that does not fit, 255 bytes with the NUL, is as good as none.
        const std::optional<QByteArray> bytes = platform::TextEncoding::system().encode(uri);
        if (bytes && static_cast<std::size_t>(bytes->size()) < deviceURI.size() - 1)
            std::copy(bytes->begin(), bytes->end(), deviceURI.begin());
    }
    return true;
}

QWidget *BasePDE13_v400_::panelView()
{
    if (kPDEView)
        return kPDEView;
    const QString name = QStringLiteral("OptionPDE");
    const std::optional<QString> path = nsPDEBundle->pathForLayout(name);
    if (!path) {
        platform::log(
            QStringLiteral("%1: the bundle has no layout file %2.ui").arg(nsPDEBundle->path(), name));
        return nullptr;
    }
    platform::LayoutLoader::Result loaded = platform::LayoutLoader::load(*path);
    QString error = loaded.error;
    if (!loaded.view || !connectOutlets(loaded.view.get(), &error)) {
        platform::log(error);
        return nullptr;
    }
    kPDEView = loaded.view.release();
    awakeFromNib();
    return kPDEView;
}

QString BasePDE13_v400_::panelName()
{
    if (!thePDEName)
        thePDEName = localized(QStringLiteral("OP_PANEL_NAME"));
    return *thePDEName;
}

QString BasePDE13_v400_::panelKind() const
{
    return QStringLiteral("jp.co.vendor.printer.cups.pde.OptionPDEKind");
}

std::optional<QStringList> BasePDE13_v400_::supportedPPDOptionKeys()
{
    setValuesToKey();
    return std::nullopt;
}

void BasePDE13_v400_::printWindowWillClose(QWidget *) {}

void BasePDE13_v400_::willShow()
{
    initSetTitleTexts();
    initUI();
    updateUI();
}

void BasePDE13_v400_::PPDOptionKeyValueDidChange(const std::optional<QString> &,
                                                 const std::optional<QString> &)
{
}

bool BasePDE13_v400_::restoreValuesAndReturnError(QString *)
{
    setPDEItems2();
    updateUI();
    return true;
}

bool BasePDE13_v400_::saveValuesAndReturnError(QString *)
{
    setValuesToKey();
    return true;
}

void BasePDE13_v400_::updateUI()
{
    setPDEItems();
}

void BasePDE13_v400_::setViewFrameSize(double width, double height)
{
    if (!pdePluginCallbackObject->respondsToPanelViewDidResize())
        return;
    if (kPDEView)
        kPDEView->resize(qRound(width), qRound(height));
    const std::optional<double> windowHeight = platform::keyWindowFrameHeight();
    if (!windowHeight)
        return;
    if (*windowHeight > height + dialogChromeHeight) {
        pdePluginCallbackObject->panelViewDidResize();
        return;
    }
    NotificationCenter::defaultCenter().addObserver(
        this, viewDidUpdate, kPDEView.data(),
        [this](const platform::Notification &notification) { dialogDidExpand(notification); });
}

void BasePDE13_v400_::dialogDidExpand(const platform::Notification &)
{
    NotificationCenter::defaultCenter().removeObserver(this, viewDidUpdate, kPDEView.data());
    pdePluginCallbackObject->panelViewDidResize();
}
