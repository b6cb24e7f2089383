// SPDX-License-Identifier: Apache-2.0
#include "PanelSession.h"

namespace host {

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

QStringList PanelSession::claimKeywords() const
{
    QStringList keywords;
    for (const std::shared_ptr<PDEPanel> &panel : m_panels.value_or(PDEPanelList()))
        keywords += panel->supportedPPDOptionKeys().value_or(QStringList());
    return keywords;
}

} // namespace host
