// SPDX-License-Identifier: Apache-2.0
#include "SetupPanels.h"

#include <algorithm>

namespace host {
inline namespace setup {

SetupPanels::SetupPanels(std::shared_ptr<DialogState> state)
    : m_state(std::move(state))
{
}

SetupPanels::~SetupPanels() = default;

void SetupPanels::load(const PanelSource &source, const PDEChoices &requested)
{
    LoadedPanels loaded = source.panelsFor(m_state);
    m_errors = std::move(loaded.errors);
    m_notices = std::move(loaded.notices);
    for (std::unique_ptr<HostedPanel> &panel : loaded.panels)
        m_panels.push_back(std::make_unique<SetupPanel>(m_state, std::move(panel)));
    for (const auto &panel : m_panels)
        panel->show(requested);
    dropFailed();
    m_loadErrors = m_errors.size();
}

void SetupPanels::dropFailed()
{
    std::ranges::copy(failures(), std::back_inserter(m_errors));
    std::erase_if(m_panels, [](const auto &each) { return each->panel().guard().error().has_value(); });
}

std::vector<HostedPanel *> SetupPanels::panels() const
{
    std::vector<HostedPanel *> panels;
    for (const auto &each : m_panels)
        panels.push_back(&each->panel());
    return panels;
}

std::vector<PanelHost *> SetupPanels::hosts() const
{
    std::vector<PanelHost *> hosts;
    for (const auto &each : m_panels) {
        if (std::ranges::find(hosts, &each->panel().host()) == hosts.end())
            hosts.push_back(&each->panel().host());
    }
    return hosts;
}

std::vector<BundleError> SetupPanels::failures() const
{
    std::vector<BundleError> failures;
    for (const auto &each : m_panels) {
        const std::optional<BundleError> &error = each->panel().guard().error();
        if (error && std::ranges::find(failures, error->folder, &BundleError::folder) == failures.end())
            failures.push_back(*error);
    }
    return failures;
}

std::vector<BundleError> SetupPanels::errors() const
{
    std::vector<BundleError> errors = m_errors;
    std::ranges::copy(failures(), std::back_inserter(errors));
    return errors;
}

std::vector<BundleError> SetupPanels::laterErrors() const
{
    const std::vector<BundleError> all = errors();
    return {all.begin() + static_cast<std::ptrdiff_t>(m_loadErrors), all.end()};
}

QStringList SetupPanels::keywords() const
{
    QStringList keywords;
    for (const auto &each : m_panels)
        keywords += each->panel().keywords();
    return keywords;
}

void SetupPanels::setFailedHook(const std::function<void()> &hook)
{
    for (const auto &each : m_panels)
        each->panel().guard().setFailedHook(hook);
}

PanelSettings SetupPanels::settings() const
{
    PanelSettings all;
    for (const auto &each : m_panels) {
        const PanelSettings settings = each->settings();
        std::ranges::copy(settings.choices, std::back_inserter(all.choices));
        all.combinationsChosen += settings.combinationsChosen;
        if (!all.error)
            all.error = settings.error;
        if (!all.error)
            all.error = each->restoreError();
    }
    return all;
}

PDEChoices SetupPanels::choicesToKeep() const
{
    PDEChoices all;
    for (const auto &each : m_panels)
        std::ranges::copy(each->choicesToKeep(), std::back_inserter(all));
    return all;
}

std::vector<PanelSummary> SetupPanels::summaries(const PDEChoices &choices) const
{
    std::vector<PanelSummary> summaries;
    for (const auto &each : m_panels) {
        if (const std::optional<QVariantMap> lines = each->panel().summary(choices))
            summaries.push_back({each->panel().title(), *lines});
    }
    return summaries;
}

StripEffects SetupPanels::stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const
{
    std::vector<PDEStripEffects> reports;
    for (const auto &each : m_panels)
        reports.push_back(each->panel().stripEffects(choices, labels));
    return combined(reports, labels.size());
}

std::optional<QString> SetupPanels::reasonForDisabled(const QString &keyword) const
{
    const SetupPanel *const panel = panelWith(keyword);
    return panel ? panel->panel().reasonForDisabled(keyword) : std::nullopt;
}

SetupPanel *SetupPanels::panelWith(const QString &keyword) const
{
    const auto found =
        std::ranges::find_if(m_panels, [&](const auto &each) { return each->hasKeyword(keyword); });
    return found == m_panels.end() ? nullptr : found->get();
}

void SetupPanels::announce(const HostedPanel &panel)
{
    const auto found =
        std::ranges::find_if(m_panels, [&](const auto &each) { return &each->panel() == &panel; });
    if (found != m_panels.end())
        (*found)->announce();
}

void SetupPanels::choose(const QString &keyword, const QString &choice)
{
    if (SetupPanel *const panel = panelWith(keyword))
        panel->choose(keyword, choice);
}

void SetupPanels::markSettings()
{
    for (const auto &each : m_panels)
        each->markSettings();
}

void SetupPanels::keepChoices(const std::function<void()> &action, SetupPanel::Retry retry)
{
    keepChoicesFrom(0, action, retry);
}

void SetupPanels::keepChoicesFrom(std::size_t index, const std::function<void()> &action,
                                  SetupPanel::Retry retry)
{
    if (index == m_panels.size())
        action();
    else
        m_panels[index]->keepChoices([&] { keepChoicesFrom(index + 1, action, retry); }, retry);
}

std::vector<ReplacedChoice> SetupPanels::replaced() const
{
    std::vector<ReplacedChoice> all;
    for (const auto &each : m_panels)
        std::ranges::copy(each->replaced(), std::back_inserter(all));
    return all;
}

void SetupPanels::clearReplaced(const std::optional<QString> &keyword, const std::optional<QString> &choice)
{
    for (const auto &each : m_panels)
        each->clearReplaced(keyword, choice);
}

bool SetupPanels::isBusy() const
{
    return std::ranges::any_of(m_panels, [](const auto &each) { return each->isBusy(); });
}

} // namespace setup
} // namespace host
