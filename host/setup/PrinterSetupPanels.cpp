// SPDX-License-Identifier: Apache-2.0
// The panels of a printer while it is set up.
#include "PrinterSetup.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace host {
inline namespace setup {

void PrinterSetup::reloadPanels()
{
    if (!m_panels)
        return;
    m_panels.reset();
    loadPanels();
}

void PrinterSetup::loadPanels()
{
    m_panels.emplace(m_state);
    PDEChoices requested;
    for (const JobChoice &choice : m_choices)
        requested.emplace_back(QString::fromUtf8(choice.name), QString::fromUtf8(choice.value));
    m_panels->load(m_panelSource, requested);
    startNoting();
    for (PanelHost *const host : panelHosts()) {
        host->setWillChangeHook([this](const QString &keyword, const std::optional<QString> &choice) {
            noteChange(keyword, choice);
        });
    }
}

void PrinterSetup::noteChange(const QString &keyword, const std::optional<QString> &choice)
{
    m_panels->clearReplaced(keyword, choice);
    m_reported.insert(keyword);
    // Saving a choice that is already marked is not a choice of the user.
    if (!choice || ppd().markedChoice(keyword) == choice)
        return;
    m_lastChosen = keyword;
    record(keyword.toUtf8(), choice->toUtf8(), Origin::Panel);
}

std::vector<HostedPanel *> PrinterSetup::panels() const
{
    return m_panels ? m_panels->panels() : std::vector<HostedPanel *>();
}

std::vector<PanelHost *> PrinterSetup::panelHosts() const
{
    return m_panels ? m_panels->hosts() : std::vector<PanelHost *>();
}

std::vector<BundleError> PrinterSetup::panelErrors() const
{
    return m_panels ? m_panels->errors() : std::vector<BundleError>();
}

std::vector<BundleError> PrinterSetup::panelFailures() const
{
    return m_panels ? m_panels->failures() : std::vector<BundleError>();
}

void PrinterSetup::dropFailedPanels()
{
    if (!m_panels)
        return;
    m_panels->dropFailed();
    startNoting();
}

std::vector<BundleError> PrinterSetup::laterPanelErrors() const
{
    return m_panels ? m_panels->laterErrors() : std::vector<BundleError>();
}

QStringList PrinterSetup::panelNotices() const
{
    return m_panels ? m_panels->notices() : QStringList();
}

QStringList PrinterSetup::claimedKeywords() const
{
    return m_panels ? m_panels->keywords() : QStringList();
}

PanelSettings PrinterSetup::panelSettings() const
{
    return m_panels ? m_panels->settings() : PanelSettings();
}

std::vector<PanelSummary> PrinterSetup::panelSummaries(const PDEChoices &choices) const
{
    return m_panels ? m_panels->summaries(choices) : std::vector<PanelSummary>();
}

StripEffects PrinterSetup::stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const
{
    return m_panels ? m_panels->stripEffects(choices, labels) : StripEffects();
}

std::vector<ReplacedChoice> PrinterSetup::replaced() const
{
    std::vector<ReplacedChoice> replaced = m_panels ? m_panels->replaced() : std::vector<ReplacedChoice>();
    const PanelSettings now = replaced.empty() ? PanelSettings() : panelSettings();
    // The user may have set it on the panel since.
    std::erase_if(replaced,
                  [&](const ReplacedChoice &each) { return now.choice(each.keyword) != each.saved; });
    for (ReplacedChoice &each : replaced)
        each.reason = m_panels->reasonForDisabled(each.keyword);
    return replaced;
}

void PrinterSetup::announce(const HostedPanel &panel)
{
    notePanelInput();
    // Saving the panel does not count as a choice of the user.
    const QScopedValueRollback keep(m_lastChosen);
    m_panels->announce(panel);
    startNoting();
}

void PrinterSetup::startNoting()
{
    m_noted = m_panels->choicesToKeep();
    m_notedCombinations = m_panels->settings().combinationsChosen;
    m_reported.clear();
}

void PrinterSetup::noteCombination()
{
    // The user has chosen what the rules of the paper had set. It counts as the user's choice and is carried
    // over to other setups, although it was already marked.
    const PanelSettings now = m_panels->settings();
    for (const ReplacedChoice &each : m_panels->replaced()) {
        if (const std::optional<QString> choice = now.choice(each.keyword))
            record(each.keyword.toUtf8(), choice->toUtf8(), Origin::Panel);
    }
    m_panels->clearReplaced(std::nullopt, std::nullopt);
}

void PrinterSetup::notePanelInput()
{
    if (!m_panels)
        return;
    if (m_panels->settings().combinationsChosen != m_notedCombinations)
        noteCombination();
    std::optional<QString> changed;
    for (const auto &[keyword, choice] : m_panels->choicesToKeep()) {
        if (findChoice(m_noted, keyword) == choice || m_reported.contains(keyword))
            continue;
        m_panels->clearReplaced(keyword, choice);
        changed = keyword;
    }
    if (changed) {
        // A control that is operated next may read the marks of other options, so the marks must follow the
        // controls.
        m_panels->markSettings();
        m_lastChosen = *changed;
    }
    startNoting();
}

void PrinterSetup::setDidChangeHook(const std::function<void()> &hook)
{
    for (PanelHost *const host : panelHosts())
        host->setDidChangeHook(hook);
}

void PrinterSetup::setPanelFailedHook(const std::function<void()> &hook)
{
    if (m_panels)
        m_panels->setFailedHook(hook);
}

} // namespace setup
} // namespace host
