// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelInspection.h"

#include <protocol/PDEPlugIn.h>

#include <QObject>

/// What the bundle's library exports: makes principal objects whose panel is the cut-options panel.
class BundleEntry : public QObject, public PDEPlugInFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInFactory_iid FILE "bundle.json")
    Q_INTERFACES(PDEPlugInFactory)

public:
    /// Made once, when the library is loaded: from here on layout files can use the bundle's text fields.
    BundleEntry();

    std::unique_ptr<PDEPlugIn> createPlugIn() override;
    PDEPanelInspection *panelInspection() override { return &m_inspection; }

private:
    PanelInspection m_inspection;
};
