// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelSource.h"

#include <QVariantMap>

namespace host {
inline namespace setup {

/// A requested choice that the panel's rules have replaced.
struct ReplacedChoice {
    QString keyword;
    /// The requested choice.
    QString choice;
    /// The choice that the panel saves instead.
    QString saved;

    bool operator==(const ReplacedChoice &) const = default;
};

/// The panels of one printer while it is set up: queries what they would save, and preserves the user's
/// choices when panels read the PPD again.
///
/// The settings of a panel may exist only in its controls: a predefined combination changes no mark before
/// it is saved, and a refresh from the PPD discards it. Everything that may refresh a panel therefore runs
/// in keepChoices().
class SetupPanels {
public:
    /// Creates the object without panels; load() loads them. The state has the PPD.
    explicit SetupPanels(std::shared_ptr<DialogState> state);
    ~SetupPanels();
    SetupPanels(const SetupPanels &) = delete;
    SetupPanels &operator=(const SetupPanels &) = delete;

    /// Loads the bundle and its panels, which read the marked choices, and shows the first panel. replaced()
    /// then contains the requested choices that the panel's rules replace.
    void load(const PanelSource &source, const PDEChoices &requested);

    /// The panel to show, with its view loaded; null without a panel. Owned by this object.
    PDEPanel *panel() const { return m_panels.session ? m_panels.session->firstPanel() : nullptr; }
    /// The callback object of the panel; null without a panel.
    PanelHost *panelHost() const { return m_panels.session ? &m_panels.session->host() : nullptr; }
    /// The error if the printer has options for a panel but the panel cannot be shown; absent otherwise.
    const std::optional<PanelError> &error() const { return m_error; }
    /// The PPD keywords that the panels handle.
    const QStringList &keywords() const { return m_panels.keywords; }

    /// What the panel would save now; empty without a panel. Marks, records and reports nothing.
    PanelSettings settings() const;
    /// Returns what the panel would save. Where a rule replaces a choice temporarily, as special tape does
    /// with half cuts, returns the choice that the control shows.
    PDEChoices choicesToKeep() const;
    /// Returns the panel's lines of the summary for these choices; absent without a panel, or if it has
    /// none.
    std::optional<QVariantMap> summary(const PDEChoices &choices) const;

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
    void save();
    void restore();
    void apply(const PDEChoices &choices);
    void noteReplaced(const PDEChoices &wanted);
    PDEChoices requestedChoices(Retry retry);

    std::shared_ptr<DialogState> m_state;
    ClaimedPanels m_panels;
    std::optional<PanelError> m_error;
    std::vector<ReplacedChoice> m_replaced;
    bool m_isOperating = false;
    mutable bool m_isAsking = false;
};

} // namespace setup
} // namespace host
