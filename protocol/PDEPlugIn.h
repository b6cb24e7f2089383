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

/// The panels that a bundle creates for one dialog.
using PDEPanelList = std::vector<std::shared_ptr<PDEPanel>>;

/// The type of panel that a print dialog requests.
inline const QString PDEPrintDialogType = QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");

/// The principal object of a bundle. It is created each time the bundle is loaded, and creates panels when a
/// dialog opens.
class KV_EXPORT PDEPlugIn {
public:
    virtual ~PDEPlugIn() = default;

    /// Passes the bundle to the object. The host keeps the bundle open while the object exists. Returns false
    /// if the bundle cannot work on this system; the host then unloads it.
    virtual bool initWithBundle(const platform::Bundle *bundle) = 0;

    /// Returns the bundle's panels of the type for the dialog that hostInfo represents. Returns std::nullopt
    /// if the bundle has panels of the type but cannot create them, and an empty list for an unknown type.
    virtual std::optional<PDEPanelList>
    PDEPanelsForType(const QString &type, std::shared_ptr<PDEPluginCallback13_v400_> hostInfo) = 0;
};

/// The factory of principal objects that the library of a bundle exports. The interface version is part of
/// the interface's name, so that a bundle that was built for another version is detected before any of its
/// code runs.
///
/// The factory is declared with Q_PLUGIN_METADATA(IID PDEPlugInFactory_iid FILE "bundle.json"). The JSON
/// object of the file describes the bundle without running its code: "Keywords" lists the PPD keywords that
/// its panels may handle, and "Resources" the files in Resources/ that it needs. The dialog loads the bundle
/// only for a printer whose PPD has an option with one of the keywords, and leaves no other option to its
/// panels.
class KV_EXPORT PDEPlugInFactory {
public:
    virtual ~PDEPlugInFactory() = default;

    /// Creates a principal object. Never returns null.
    virtual std::unique_ptr<PDEPlugIn> createPlugIn() = 0;

    /// Returns the interface for inspecting the bundle's panels, for tools that check printers and report
    /// errors; null if the bundle has none. It exists as long as the library is loaded.
    virtual PDEPanelInspection *panelInspection() { return nullptr; }
};

/// The prefix of every bundle's interface identifier, and the identifier of the version that this host
/// supports.
#define PDEPlugInFactory_iid_stem "kvprint.PDEPlugInFactory/"
#define PDEPlugInFactory_iid PDEPlugInFactory_iid_stem "1"
Q_DECLARE_INTERFACE(PDEPlugInFactory, PDEPlugInFactory_iid)
