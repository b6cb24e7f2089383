// SPDX-License-Identifier: Apache-2.0
#include "HostedPanel.h"

#include <protocol/PDEControlReasons.h>
#include <protocol/PDEPanelHelp.h>

#include <QCoreApplication>

namespace host {
inline namespace panels {

namespace {

struct HostedPanelText {
    Q_DECLARE_TR_FUNCTIONS(host::panels::HostedPanel)
};

} // namespace

HostedPanel::HostedPanel(std::shared_ptr<PanelSession> session, std::shared_ptr<PDEPanel> panel,
                         std::shared_ptr<PanelGuard> guard)
    : m_guard(std::move(guard))
    , m_session(std::move(session))
    , m_panel(std::move(panel))
{
}

HostedPanel::~HostedPanel()
{
    // Also after an error of the bundle: the memory of the panel belongs to it.
    const PanelCallRecord::Call recorded(PanelCallRecord::ofProcess(), m_guard->bundle(), "~PDEPanel");
    m_panel.reset();
}

QStringList HostedPanel::askForKeywords()
{
    return m_guard->call("supportedPPDOptionKeys", QStringList(),
                         [&] { return m_panel->supportedPPDOptionKeys().value_or(QStringList()); });
}

QWidget *HostedPanel::view()
{
    return m_guard->call("panelView", static_cast<QWidget *>(nullptr), [&] { return m_panel->panelView(); });
}

QString HostedPanel::title() const
{
    return m_guard->call("panelName", QString(), [&] { return m_panel->panelName(); });
}

void HostedPanel::willShow()
{
    m_guard->run("willShow", [&] { m_panel->willShow(); });
}

void HostedPanel::printWindowWillClose(QWidget *window)
{
    m_guard->run("printWindowWillClose", [&] { m_panel->printWindowWillClose(window); });
}

std::optional<QString> HostedPanel::restore()
{
    return m_guard->call("restoreValuesAndReturnError", std::optional<QString>(), [&] {
        QString error;
        return m_panel->restoreValuesAndReturnError(&error) ? std::nullopt : std::optional(error);
    });
}

void HostedPanel::save()
{
    // An error of saving is also part of settings(), which is checked before the job is sent.
    m_guard->run("saveValuesAndReturnError", [&] { m_panel->saveValuesAndReturnError(nullptr); });
}

void HostedPanel::readSettings(PanelSettings &settings) const
{
    if (const auto *const controls = dynamic_cast<const PDEUserChoices_v1 *>(m_panel.get()))
        settings.combinationsChosen = controls->combinationsChosen();
    settings.choices = host().collect([&] {
        QString error;
        if (!m_panel->saveValuesAndReturnError(&error))
            settings.error =
                HostedPanelText::tr("\"%1\" cannot save its settings: %2").arg(m_panel->panelName(), error);
    });
    if (settings.error)
        return;
    const PDEChoices completed = host().collect([&] {
        if (!m_panel->shouldPrint())
            settings.error = HostedPanelText::tr("\"%1\" does not allow printing with these settings.")
                                 .arg(m_panel->panelName());
    });
    // shouldPrint() adds the default of each option without a mark. What saving has written takes precedence:
    // outside of collect() it would be marked by now.
    for (const auto &[keyword, choice] : completed) {
        if (!settings.choice(keyword))
            settings.choices.emplace_back(keyword, choice);
    }
}

PanelSettings HostedPanel::settings() const
{
    return m_guard->call("saveValuesAndReturnError", PanelSettings(), [&] {
        PanelSettings settings;
        readSettings(settings);
        return settings;
    });
}

std::optional<QVariantMap> HostedPanel::summary(const PDEChoices &choices) const
{
    return m_guard->call("summaryInfo", std::optional<QVariantMap>(), [&] {
        const auto *const exact = dynamic_cast<const PDEChoiceSummary_v1 *>(m_panel.get());
        return exact ? exact->summaryInfoFor(choices) : m_panel->summaryInfo();
    });
}

std::optional<QString> HostedPanel::helpText() const
{
    return m_guard->call("helpText", std::optional<QString>(), [&]() -> std::optional<QString> {
        const auto *const help = dynamic_cast<const PDEPanelHelp_v1 *>(m_panel.get());
        if (!help || !m_panel->shouldShowHelp())
            return std::nullopt;
        return help->helpText();
    });
}

PDEChoices HostedPanel::shownChoices() const
{
    return m_guard->call("shownChoices", PDEChoices(), [&] {
        const auto *const controls = dynamic_cast<const PDEUserChoices_v1 *>(m_panel.get());
        return controls ? controls->shownChoices() : PDEChoices();
    });
}

void HostedPanel::applyUserChoices(const PDEChoices &choices)
{
    m_guard->run("applyUserChoices", [&] {
        if (auto *const controls = dynamic_cast<PDEUserChoices_v1 *>(m_panel.get()))
            controls->applyUserChoices(choices);
    });
}

PDEStripEffects HostedPanel::stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const
{
    return m_guard->call("stripEffects", PDEStripEffects(), [&] {
        const auto *const strip = dynamic_cast<const PDELabelStrip_v1 *>(m_panel.get());
        return strip ? strip->stripEffects(choices, labels) : PDEStripEffects();
    });
}

std::optional<QString> HostedPanel::reasonForDisabled(const QString &keyword) const
{
    return m_guard->call("reasonForDisabled", std::optional<QString>(), [&]() -> std::optional<QString> {
        const auto *const reasons = dynamic_cast<const PDEControlReasons_v1 *>(m_panel.get());
        return reasons ? reasons->reasonForDisabled(keyword) : std::nullopt;
    });
}

} // namespace panels
} // namespace host
