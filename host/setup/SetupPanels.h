// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelSource.h"

#include <QVariantMap>

namespace host {
inline namespace setup {

/// A choice that the panel's rules have replaced, although it was asked for.
struct ReplacedChoice {
    QString keyword;
    /// What was asked for.
    QString choice;
    /// What the panel saves instead.
    QString saved;

    bool operator==(const ReplacedChoice &) const = default;
};

/// The panels of one printer while it is set up: asks them what they would save, and keeps what the user
/// chose on them when something makes them read the PPD again.
///
/// A panel's settings may be in its controls alone: a ready-made combination changes no mark before it is
/// saved, and a refresh from the PPD drops it. So everything that may refresh a panel goes through
/// keepChoices().
class SetupPanels {
public:
    explicit SetupPanels(std::shared_ptr<DialogState> state);
    ~SetupPanels();
    SetupPanels(const SetupPanels &) = delete;
    SetupPanels &operator=(const SetupPanels &) = delete;

    /// Loads the bundle, has its panels read what is marked and shows the first one. Choices that its rules
    /// replace are in replaced() afterwards.
    void load(const PanelSource &source, const PDEChoices &requested);

    /// The panel to show, with its view loaded; null when there is none.
    PDEPanel *panel() const { return m_panels.session ? m_panels.session->firstPanel() : nullptr; }
    /// Null when there is none.
    PanelHost *panelHost() const { return m_panels.session ? &m_panels.session->host() : nullptr; }
    /// Why there is no panel, although the printer has options for it; absent when that is no problem.
    const std::optional<PanelError> &problem() const { return m_problem; }
    /// The PPD keywords that the panels handle.
    const QStringList &keywords() const { return m_panels.keywords; }

    /// What the panel would save now; empty without a panel. Marks, records and reports nothing.
    PanelSettings settings() const;
    /// What the panel would save, and where one of its rules replaces a choice for the time being, as special
    /// tape does with half cuts, the choice that its control still shows.
    PDEChoices choicesToKeep() const;
    /// The panel's lines of the summary for these choices; absent without a panel or when it has none.
    std::optional<QVariantMap> summary(const PDEChoices &choices) const;

    /// Announces to the panel that its page comes to the front.
    void announce();
    /// Makes a choice for one of the panel's keywords, on the panel's own controls where they allow it.
    void choose(const QString &keyword, const QString &choice);
    /// Has the panel save what its controls have. The user is not taken to have chosen anything by that.
    void markSettings();
    /// Whether choices that were replaced before are tried again: another paper may allow them.
    enum class Retry { No, Yes };
    /// Runs the action, which may make the panel refresh its controls, in between of saving the panel and
    /// giving it back what the refresh has dropped. What the panel itself marks meanwhile stays: a paper that
    /// cannot be cut, for instance, turns automatic cutting off.
    void keepChoices(const std::function<void()> &action, Retry retry = Retry::No);

    /// What was asked for, on the panel or for it, and is saved otherwise; empty again once the user has
    /// chosen otherwise or the panel allows it.
    const std::vector<ReplacedChoice> &replaced() const { return m_replaced; }
    /// The user has made the choice on the panel, or with an absent keyword a combination of several: what
    /// else was asked for before does not count any more. Ignored while this object itself operates the
    /// panel.
    void clearReplaced(const std::optional<QString> &keyword, const std::optional<QString> &choice);

    /// Whether a caller further up asks or operates the panel, which then must not be asked again.
    bool isBusy() const { return m_isOperating || m_isAsking; }

private:
    PpdFile &ppd() const { return m_state->ppd(); }
    PDEChoices markedChoices() const;
    bool isSame(const QString &keyword, const std::optional<QString> &saved, const QString &choice) const;
    void save();
    void restore();
    void apply(const PDEChoices &choices);
    void noteReplaced(const PDEChoices &wanted);
    PDEChoices requestedChoices(Retry retry);

    std::shared_ptr<DialogState> m_state;
    ClaimedPanels m_panels;
    std::optional<PanelError> m_problem;
    std::vector<ReplacedChoice> m_replaced;
    bool m_isOperating = false;
    mutable bool m_isAsking = false;
};

} // namespace setup
} // namespace host
