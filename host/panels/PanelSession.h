// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelBundle.h"
#include "PanelHost.h"

namespace host {

/// One bundle's panels at work for one dialog: keeps the bundle, the callback object and the panels, and
/// ends them in the right order. Move-only.
class PanelSession {
public:
    /// Asks the bundle for its panels of the type, for the dialog that the callback object stands for.
    PanelSession(PanelBundle bundle, std::shared_ptr<PanelHost> host,
                 const QString &type = PDEPrintDialogType);

    /// The panels; nothing when the bundle could not make them, empty for a type it does not know.
    const std::optional<PDEPanelList> &panels() const { return m_panels; }
    /// The first panel, or null.
    PDEPanel *firstPanel() const;
    /// The PPD keywords that the panels take care of, which the dialog then leaves to them. To be asked
    /// before any panel's view is loaded: a panel hands over its settings when it is asked, and those
    /// of controls that are there but not yet filled would replace what the PPD has marked.
    QStringList claimKeywords() const;
    /// What the first panel would save, and whether it would let the job be printed. Asks it by letting it
    /// save and check without carrying out what it wants to change, so that nothing changes and asking again
    /// gives the same. Empty without a panel.
    PanelSettings settings() const;
    PanelHost &host() const { return *m_host; }
    const PanelBundle &bundle() const { return m_bundle; }

private:
    // Destroyed from the last to the first: panels, the principal object with its resources.
    PanelBundle m_bundle;
    std::shared_ptr<PanelHost> m_host;
    std::optional<PDEPanelList> m_panels;
};

} // namespace host
