// SPDX-License-Identifier: Apache-2.0
#include "SetupPanels.h"

#include <QScopedValueRollback>

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
    Result<ClaimedPanels, PanelError> panels = source.panelsFor(m_state);
    if (!panels) {
        m_error = panels.error();
        return;
    }
    m_panels = std::move(panels).value();
    if (!panel())
        return;
    const PDEChoices marked = markedChoices();
    restore();
    panel()->willShow();
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
    apply(marked);
    PDEChoices wanted;
    for (const auto &[keyword, choice] : requested) {
        if (keywords().contains(keyword))
            wanted.emplace_back(keyword, choice);
    }
    noteReplaced(wanted);
}

PanelSettings SetupPanels::settings() const
{
    const QScopedValueRollback asking(m_isAsking, true);
    return panel() ? m_panels.session->settings() : PanelSettings();
}

PDEChoices SetupPanels::choicesToKeep() const
{
    PDEChoices choices = settings().choices;
    const auto *const controls = dynamic_cast<const PDEUserChoices_v1 *>(panel());
    for (const auto &[keyword, choice] : controls ? controls->shownChoices() : PDEChoices()) {
        if (findChoice(choices, keyword))
            setChoice(choices, keyword, choice);
    }
    return choices;
}

std::optional<QVariantMap> SetupPanels::summary(const PDEChoices &choices) const
{
    PDEPanel *const shown = panel();
    if (!shown)
        return std::nullopt;
    const auto *const exact = dynamic_cast<const PDEChoiceSummary_v1 *>(shown);
    return exact ? exact->summaryInfoFor(choices) : shown->summaryInfo();
}

void SetupPanels::announce()
{
    if (panel())
        keepChoices([this] { panel()->willShow(); });
}

void SetupPanels::choose(const QString &keyword, const QString &choice)
{
    const QScopedValueRollback operating(m_isOperating, true);
    PDEChoices wanted = requestedChoices(Retry::No);
    setChoice(wanted, keyword, choice);
    std::erase_if(m_replaced, [&](const ReplacedChoice &each) { return each.keyword == keyword; });
    if (!panel()) {
        m_state->changeOption(keyword, choice, nullptr);
        return;
    }
    apply({{keyword, choice}});
    if (isSame(keyword, settings().choice(keyword), choice)) {
        // Nothing was refreshed: the other controls still have the user's choices, whatever is saved for
        // them.
        noteReplaced({{keyword, choice}});
        return;
    }
    // The panel has no control for the option and reads the choice from the PPD.
    PDEChoices kept = choicesToKeep();
    setChoice(kept, keyword, choice);
    save();
    m_state->changeOption(keyword, choice, nullptr);
    restore();
    apply(kept);
    noteReplaced(wanted);
}

void SetupPanels::keepChoices(const std::function<void()> &action, Retry retry)
{
    if (!panel()) {
        action();
        return;
    }
    const QScopedValueRollback operating(m_isOperating, true);
    const PDEChoices wanted = requestedChoices(retry);
    const PDEChoices saved = settings().choices;
    const PDEChoices shown = choicesToKeep();
    save();
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
    apply(dropped);
    noteReplaced(wanted);
}

void SetupPanels::markSettings()
{
    const QScopedValueRollback operating(m_isOperating, true);
    if (panel())
        save();
}

void SetupPanels::clearReplaced(const std::optional<QString> &keyword, const std::optional<QString> &choice)
{
    if (m_isOperating)
        return;
    std::erase_if(m_replaced, [&](const ReplacedChoice &each) {
        return !keyword || (each.keyword == *keyword && each.choice != choice);
    });
}

PDEChoices SetupPanels::requestedChoices(Retry retry)
{
    PDEChoices wanted = settings().choices;
    for (const ReplacedChoice &each : m_replaced) {
        // Unless the user has made another choice since.
        if (retry == Retry::Yes && findChoice(wanted, each.keyword) == each.saved)
            setChoice(wanted, each.keyword, each.choice);
    }
    return wanted;
}

void SetupPanels::noteReplaced(const PDEChoices &wanted)
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

PDEChoices SetupPanels::markedChoices() const
{
    PDEChoices choices;
    for (const QString &keyword : keywords()) {
        if (const std::optional<QString> choice = ppd().markedChoice(keyword))
            choices.emplace_back(keyword, *choice);
    }
    return choices;
}

bool SetupPanels::isSame(const QString &keyword, const std::optional<QString> &saved,
                         const QString &choice) const
{
    // libcups compares choices case-insensitively.
    const std::optional<int> index = saved ? ppd().choiceIndex(keyword, *saved) : std::nullopt;
    return saved == choice || (index && index == ppd().choiceIndex(keyword, choice));
}

void SetupPanels::save()
{
    // An error of saving is also part of settings(), which is checked before the job is sent.
    panel()->saveValuesAndReturnError(nullptr);
}

void SetupPanels::restore()
{
    QString error;
    if (!panel()->restoreValuesAndReturnError(&error))
        m_error = PanelError{PanelErrorKind::NoPanel, error};
}

void SetupPanels::apply(const PDEChoices &choices)
{
    if (auto *const controls = dynamic_cast<PDEUserChoices_v1 *>(panel()))
        controls->applyUserChoices(choices);
}

} // namespace setup
} // namespace host
