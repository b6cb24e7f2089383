// SPDX-License-Identifier: Apache-2.0
#include "SetupPanel.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace host {
inline namespace setup {

SetupPanel::SetupPanel(std::shared_ptr<DialogState> state, std::unique_ptr<HostedPanel> panel)
    : m_state(std::move(state))
    , m_panel(std::move(panel))
{
}

SetupPanel::~SetupPanel() = default;

void SetupPanel::show(const PDEChoices &requested)
{
    const PDEChoices marked = markedChoices();
    restore();
    m_panel->willShow();
    // A panel that is shown for the first time marks the PPD's defaults. Other choices of the queue, the user
    // and the command line are changes that were made elsewhere.
    bool isChanged = false;
    for (const auto &[keyword, choice] : marked) {
        if (ppd().markedChoice(keyword) == choice)
            continue;
        m_state->changeOption(keyword, choice, nullptr);
        isChanged = true;
    }
    if (isChanged)
        restore();
    m_panel->applyUserChoices(marked);
    PDEChoices wanted;
    for (const auto &[keyword, choice] : requested) {
        if (hasKeyword(keyword))
            wanted.emplace_back(keyword, choice);
    }
    noteReplaced(wanted);
}

PanelSettings SetupPanel::settings() const
{
    const QScopedValueRollback asking(m_isAsking, true);
    return m_panel->settings();
}

PDEChoices SetupPanel::choicesToKeep() const
{
    PDEChoices choices = settings().choices;
    for (const auto &[keyword, choice] : m_panel->shownChoices()) {
        if (findChoice(choices, keyword))
            setChoice(choices, keyword, choice);
    }
    return choices;
}

void SetupPanel::announce()
{
    keepChoices([this] { m_panel->willShow(); });
}

void SetupPanel::choose(const QString &keyword, const QString &choice)
{
    const QScopedValueRollback operating(m_isOperating, true);
    PDEChoices wanted = requestedChoices(Retry::No);
    setChoice(wanted, keyword, choice);
    std::erase_if(m_replaced, [&](const ReplacedChoice &each) { return each.keyword == keyword; });
    m_panel->applyUserChoices({{keyword, choice}});
    if (isSame(keyword, settings().choice(keyword), choice)) {
        // Nothing was refreshed: the other controls still have the user's choices, whatever is saved for
        // them.
        noteReplaced({{keyword, choice}});
        return;
    }
    // The panel has no control for the option and reads the choice from the PPD.
    PDEChoices kept = choicesToKeep();
    setChoice(kept, keyword, choice);
    m_panel->save();
    m_state->changeOption(keyword, choice, nullptr);
    restore();
    m_panel->applyUserChoices(kept);
    noteReplaced(wanted);
}

void SetupPanel::keepChoices(const std::function<void()> &action, Retry retry)
{
    const QScopedValueRollback operating(m_isOperating, true);
    const PDEChoices wanted = requestedChoices(retry);
    const PDEChoices saved = settings().choices;
    const PDEChoices shown = choicesToKeep();
    m_panel->save();
    for (const auto &[keyword, choice] : wanted) {
        // Only choices that were replaced before are not marked by now.
        if (ppd().markedChoice(keyword) != choice)
            ppd().mark(keyword, choice);
    }
    action();
    PDEChoices dropped = wanted;
    std::erase_if(dropped, [&](const auto &each) { return ppd().markedChoice(each.first) != each.second; });
    for (auto &[keyword, choice] : dropped) {
        if (findChoice(saved, keyword) == choice)
            choice = findChoice(shown, keyword).value_or(choice);
    }
    m_panel->applyUserChoices(dropped);
    noteReplaced(wanted);
}

void SetupPanel::markSettings()
{
    const QScopedValueRollback operating(m_isOperating, true);
    m_panel->save();
}

void SetupPanel::clearReplaced(const std::optional<QString> &keyword, const std::optional<QString> &choice)
{
    if (m_isOperating)
        return;
    std::erase_if(m_replaced, [&](const ReplacedChoice &each) {
        return !keyword || (each.keyword == *keyword && each.choice != choice);
    });
}

PDEChoices SetupPanel::requestedChoices(Retry retry)
{
    PDEChoices wanted = settings().choices;
    for (const ReplacedChoice &each : m_replaced) {
        // Unless the user has made another choice since.
        if (retry == Retry::Yes && findChoice(wanted, each.keyword) == each.saved)
            setChoice(wanted, each.keyword, each.choice);
    }
    return wanted;
}

void SetupPanel::noteReplaced(const PDEChoices &wanted)
{
    const PanelSettings now = settings();
    // A replaced choice remains recorded while the panel saves the same choice for its option.
    std::erase_if(m_replaced,
                  [&](const ReplacedChoice &each) { return now.choice(each.keyword) != each.saved; });
    for (const auto &[keyword, choice] : wanted) {
        const std::optional<QString> saved = now.choice(keyword);
        // A choice that the PPD does not have was not replaced by a rule; the panel writes it in its own way.
        if (!saved || isSame(keyword, saved, choice) || !ppd().choiceIndex(keyword, *saved))
            continue;
        // A copy: clang 14 does not allow lambdas to capture a structured binding.
        const QString &ofKeyword = keyword;
        std::erase_if(m_replaced, [&](const ReplacedChoice &each) { return each.keyword == ofKeyword; });
        m_replaced.push_back({keyword, choice, *saved});
    }
}

PDEChoices SetupPanel::markedChoices() const
{
    PDEChoices choices;
    for (const QString &keyword : m_panel->keywords()) {
        if (const std::optional<QString> choice = ppd().markedChoice(keyword))
            choices.emplace_back(keyword, *choice);
    }
    return choices;
}

bool SetupPanel::isSame(const QString &keyword, const std::optional<QString> &saved,
                        const QString &choice) const
{
    // libcups compares choices case-insensitively.
    const std::optional<int> index = saved ? ppd().choiceIndex(keyword, *saved) : std::nullopt;
    return saved == choice || (index && index == ppd().choiceIndex(keyword, choice));
}

void SetupPanel::restore()
{
    m_restoreError = m_panel->restore();
}

} // namespace setup
} // namespace host
