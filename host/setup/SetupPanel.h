// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/panels/HostedPanel.h>
#include <host/strip/StripEffects.h>

#include <functional>

namespace host {
inline namespace setup {

/// A requested choice that the panel's rules have replaced.
struct ReplacedChoice {
    QString keyword;
    /// The requested choice.
    QString choice;
    /// The choice that the panel saves instead.
    QString saved;
    /// Why the control of the option is disabled, as one sentence; absent if it is not, or if the panel does
    /// not explain it.
    std::optional<QString> reason = {};

    bool operator==(const ReplacedChoice &) const = default;
};

/// A panel of the printer while it is set up: queries what the panel would save, and preserves the user's
/// choices when the panel reads the PPD again.
///
/// The settings of a panel may exist only in its controls: a predefined combination changes no mark before
/// it is saved, and a refresh from the PPD discards it. Everything that may refresh the panel therefore runs
/// in keepChoices().
class SetupPanel {
public:
    /// The state has the PPD; the panel's view is loaded.
    SetupPanel(std::shared_ptr<DialogState> state, std::unique_ptr<HostedPanel> panel);
    ~SetupPanel();
    SetupPanel(const SetupPanel &) = delete;
    SetupPanel &operator=(const SetupPanel &) = delete;

    /// The panel. Owned by this object.
    HostedPanel &panel() const { return *m_panel; }
    /// Whether the dialog leaves the option to this panel.
    bool hasKeyword(const QString &keyword) const { return m_panel->keywords().contains(keyword); }
    /// Why the panel could not read the marked choices; absent if it could.
    const std::optional<QString> &restoreError() const { return m_restoreError; }

    /// Shows the panel for the first time: it reads the marked choices. replaced() then contains the
    /// requested choices of its options that its rules replace.
    void show(const PDEChoices &requested);

    /// What the panel would save now. Marks, records and reports nothing.
    PanelSettings settings() const;
    /// Returns what the panel would save. Where a rule replaces a choice temporarily, as special tape does
    /// with half cuts, returns the choice that the control shows.
    PDEChoices choicesToKeep() const;

    /// Notifies the panel that its page comes to the front.
    void announce();
    /// Sets the choice of one of the panel's keywords, through the panel's controls where they allow it.
    void choose(const QString &keyword, const QString &choice);
    /// Lets the panel save the choices of its controls. They do not count as the user's choices.
    void markSettings();
    /// Whether choices that were replaced before are applied again: another paper may allow them.
    enum class Retry { No, Yes };
    /// Saves the panel, runs the action, which may make the panel refresh its controls, and then applies the
    /// choices again that the refresh has discarded. Choices that the panel marks during the action remain:
    /// for instance, a paper that cannot be cut turns automatic cutting off.
    void keepChoices(const std::function<void()> &action, Retry retry = Retry::No);

    /// The choices that the user requested, on the panel or elsewhere, and that the panel saves differently.
    /// A choice is removed when the user makes another one or the panel allows it.
    const std::vector<ReplacedChoice> &replaced() const { return m_replaced; }
    /// Removes requests that the user has superseded by making the choice on the panel; an absent keyword
    /// stands for a combination of several options. Does nothing while this object operates the panel.
    void clearReplaced(const std::optional<QString> &keyword, const std::optional<QString> &choice);

    /// Returns whether a caller further up the stack queries or operates the panel, which then must not be
    /// queried again.
    bool isBusy() const { return m_isOperating || m_isAsking; }

private:
    PpdFile &ppd() const { return m_state->ppd(); }
    PDEChoices markedChoices() const;
    bool isSame(const QString &keyword, const std::optional<QString> &saved, const QString &choice) const;
    void restore();
    void noteReplaced(const PDEChoices &wanted);
    PDEChoices requestedChoices(Retry retry);

    std::shared_ptr<DialogState> m_state;
    std::unique_ptr<HostedPanel> m_panel;
    std::optional<QString> m_restoreError;
    std::vector<ReplacedChoice> m_replaced;
    bool m_isOperating = false;
    mutable bool m_isAsking = false;
};

} // namespace setup
} // namespace host
