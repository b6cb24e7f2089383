// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelSource.h"
#include "SetupPanel.h"

#include <QVariantMap>

namespace host {
inline namespace setup {

/// A panel's lines of the summary, under the panel's title.
struct PanelSummary {
    QString title;
    /// See PDEPanel::summaryInfo().
    QVariantMap lines;
};

/// The panels of one printer while it is set up. Each option belongs to at most one of them; what concerns
/// the whole job combines the answers of all.
class SetupPanels {
public:
    /// Creates the object without panels; load() loads them. The state has the PPD.
    explicit SetupPanels(std::shared_ptr<DialogState> state);
    ~SetupPanels();
    SetupPanels(const SetupPanels &) = delete;
    SetupPanels &operator=(const SetupPanels &) = delete;

    /// Loads the panels of the printer, which read the marked choices, and shows each for the first time.
    /// replaced() then contains the requested choices that their rules replace.
    void load(const PanelSource &source, const PDEChoices &requested);

    /// The panels to show, with their views loaded, in the order of their pages. Owned by this object.
    std::vector<HostedPanel *> panels() const;
    /// The callback objects of the panels, one for each bundle.
    std::vector<PanelHost *> hosts() const;
    /// The errors of bundles that have options of the printer but cannot be used, including those that have
    /// failed since they were loaded.
    std::vector<BundleError> errors() const;
    /// The errors of bundles that have failed and whose panels still exist.
    std::vector<BundleError> failures() const;
    /// Those of errors() that have occurred since load().
    std::vector<BundleError> laterErrors() const;
    /// Sentences about bundles and options that are not used; see LoadedPanels.
    const QStringList &notices() const { return m_notices; }
    /// The PPD keywords that the panels handle.
    QStringList keywords() const;
    /// Removes the panels of bundles that have failed; their options are left to the dialog. Their views must
    /// not be shown any more.
    void dropFailed();
    /// Sets the function that is called when a bundle fails; see PanelGuard.
    void setFailedHook(const std::function<void()> &hook);

    /// What the panels would save now. Marks, records and reports nothing.
    PanelSettings settings() const;
    /// Returns what the panels would save; see SetupPanel::choicesToKeep().
    PDEChoices choicesToKeep() const;
    /// Returns the lines of the summary for these choices, of each panel that has any.
    std::vector<PanelSummary> summaries(const PDEChoices &choices) const;
    /// Returns what these choices of a job do to its labels, as the panels report it.
    StripEffects stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const;
    /// Returns why the control of the option is disabled; absent if it is not, or if the reason is not known.
    std::optional<QString> reasonForDisabled(const QString &keyword) const;

    /// Notifies the panel that its page comes to the front.
    void announce(const HostedPanel &panel);
    /// Sets the choice of one of the keywords() through its panel.
    void choose(const QString &keyword, const QString &choice);
    /// Lets the panels save the choices of their controls. They do not count as the user's choices.
    void markSettings();
    /// Runs the action, which may make panels refresh their controls, and preserves their choices; see
    /// SetupPanel::keepChoices().
    void keepChoices(const std::function<void()> &action, SetupPanel::Retry retry = SetupPanel::Retry::No);

    /// The requested choices that the panels save differently; see SetupPanel::replaced().
    std::vector<ReplacedChoice> replaced() const;
    /// Removes superseded requests; see SetupPanel::clearReplaced().
    void clearReplaced(const std::optional<QString> &keyword, const std::optional<QString> &choice);
    /// Returns whether a caller further up the stack queries or operates a panel.
    bool isBusy() const;

private:
    SetupPanel *panelWith(const QString &keyword) const;
    void keepChoicesFrom(std::size_t index, const std::function<void()> &action, SetupPanel::Retry retry);

    std::shared_ptr<DialogState> m_state;
    std::vector<std::unique_ptr<SetupPanel>> m_panels;
    std::vector<BundleError> m_errors;
    /// The number of errors that load() has found.
    std::size_t m_loadErrors = 0;
    QStringList m_notices;
};

} // namespace setup
} // namespace host
