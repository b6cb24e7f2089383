// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelInspection.h"

#include <protocol/PDEPlugIn.h>

#include <QObject>

/// The object that the library of the bundle exports. It makes principal objects whose panel is the
/// cut-options panel.
class BundleEntry : public QObject, public PDEPlugInFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInFactory_iid FILE "bundle.json")
    Q_INTERFACES(PDEPlugInFactory)

public:
    /// Constructed once, when the library is loaded. Registers the text fields of the bundle, so that layout
    /// files can use them.
    BundleEntry();

    /// The factory protocol; see PDEPlugInFactory.
    std::unique_ptr<PDEPlugIn> createPlugIn() override;
    PDEPanelInspection *panelInspection() override { return &m_inspection; }

private:
    PanelInspection m_inspection;
};
