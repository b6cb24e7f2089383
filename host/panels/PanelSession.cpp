// SPDX-License-Identifier: Apache-2.0
#include "PanelSession.h"

namespace host {
inline namespace panels {

PanelSession::PanelSession(PanelBundle bundle, std::shared_ptr<PanelHost> host, const QString &type)
    : m_bundle(std::move(bundle))
    , m_host(std::move(host))
    , m_panels(m_bundle.plugIn().PDEPanelsForType(type, m_host))
{
    m_host->setPanels(m_panels.value_or(PDEPanelList()));
}

PDEPanel *PanelSession::firstPanel() const
{
    return m_panels && !m_panels->empty() ? m_panels->front().get() : nullptr;
}

} // namespace panels
} // namespace host
