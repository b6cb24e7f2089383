// SPDX-License-Identifier: Apache-2.0
#include "PanelSession.h"

#include <QCoreApplication>

namespace host {
inline namespace panels {

namespace {

struct PanelSessionText {
    Q_DECLARE_TR_FUNCTIONS(host::panels::PanelSession)
};

} // namespace

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

QStringList PanelSession::handledKeywords() const
{
    QStringList keywords;
    for (const std::shared_ptr<PDEPanel> &panel : m_panels.value_or(PDEPanelList()))
        keywords += panel->supportedPPDOptionKeys().value_or(QStringList());
    return keywords;
}

PanelSettings PanelSession::settings() const
{
    PDEPanel *const panel = firstPanel();
    if (!panel)
        return {};
    PanelSettings settings;
    if (const auto *const controls = dynamic_cast<const PDEUserChoices_v1 *>(panel))
        settings.combinationsChosen = controls->combinationsChosen();
    settings.choices = m_host->collect([&] {
        QString error;
        if (!panel->saveValuesAndReturnError(&error))
            settings.error =
                PanelSessionText::tr("\"%1\" cannot save its settings: %2").arg(panel->panelName(), error);
    });
    if (settings.error)
        return settings;
    const PDEChoices completed = m_host->collect([&] {
        if (!panel->shouldPrint())
            settings.error = PanelSessionText::tr("\"%1\" does not allow printing with these settings.")
                                 .arg(panel->panelName());
    });
    // shouldPrint() adds the default of each option without a mark. What saving has written takes precedence:
    // outside of collect() it would be marked by now.
    for (const auto &[keyword, choice] : completed) {
        if (!settings.choice(keyword))
            settings.choices.emplace_back(keyword, choice);
    }
    return settings;
}

} // namespace panels
} // namespace host
