// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelBundle.h"
#include "PanelHost.h"

namespace host {
inline namespace panels {

/// The panels of one bundle for one dialog: owns the bundle, the callback object and the panels, and destroys
/// them in the right order. Move-only.
class PanelSession {
public:
    /// Makes the bundle's panels of this type for the dialog that the callback object represents.
    PanelSession(PanelBundle bundle, std::shared_ptr<PanelHost> host,
                 const QString &type = PDEPrintDialogType);

    /// The panels; absent if the bundle could not make them, empty if it does not know the type.
    const std::optional<PDEPanelList> &panels() const { return m_panels; }
    /// The first panel; null without panels. Owned by this object.
    PDEPanel *firstPanel() const;
    /// The callback object and the bundle that this object was made with.
    PanelHost &host() const { return *m_host; }
    const PanelBundle &bundle() const { return m_bundle; }

private:
    // Destroyed in reverse order: the panels before the principal object and its resources.
    PanelBundle m_bundle;
    std::shared_ptr<PanelHost> m_host;
    std::optional<PDEPanelList> m_panels;
};

} // namespace panels
} // namespace host
