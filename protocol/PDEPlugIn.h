// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Bundle.h>
#include <platform/Export.h>
#include <protocol/PDEPanel.h>
#include <protocol/PDEPluginCallback.h>

#include <QString>
#include <QtPlugin>

#include <memory>
#include <optional>
#include <vector>

class PDEPanelInspection;

/// The panels that a bundle hands over for one dialog.
using PDEPanelList = std::vector<std::shared_ptr<PDEPanel>>;

/// The type of panel that a print dialog asks for.
inline const QString PDEPrintDialogType = QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");

/// The principal object of a bundle: made once per loading, asked for panels when a dialog opens.
class KV_EXPORT PDEPlugIn {
public:
    virtual ~PDEPlugIn() = default;

    /// Hands the object its own bundle, which the host keeps open for the object's life. False when
    /// the bundle cannot work on this system; the host then unloads it.
    virtual bool initWithBundle(const platform::Bundle *bundle) = 0;

    /// The bundle's panels of that type for the dialog that the callback object stands for. Nothing
    /// when the bundle has panels of the type but could not make them; an empty list for a type it
    /// does not know.
    virtual std::optional<PDEPanelList>
    PDEPanelsForType(const QString &type, std::shared_ptr<PDEPluginCallback13_v400_> hostInfo) = 0;
};

/// What a bundle's library exports: a maker of principal objects. The interface version is part of
/// the interface's name, so that a bundle that was built for another version is told apart before
/// any of its code runs.
class KV_EXPORT PDEPlugInFactory {
public:
    virtual ~PDEPlugInFactory() = default;

    /// A new principal object. Never null.
    virtual std::unique_ptr<PDEPlugIn> createPlugIn() = 0;

    /// Looks into the bundle's panels, for tools that check printers and report problems; null when the
    /// bundle offers none. Lives as long as the library is loaded.
    virtual PDEPanelInspection *panelInspection() { return nullptr; }
};

/// The name that every bundle's interface identifier begins with, and the version that this host speaks.
#define PDEPlugInFactory_iid_stem "kvprint.PDEPlugInFactory/"
#define PDEPlugInFactory_iid PDEPlugInFactory_iid_stem "1"
Q_DECLARE_INTERFACE(PDEPlugInFactory, PDEPlugInFactory_iid)
