// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SetupPanels.h"

#include <host/cups/jobs/ChoiceCheck.h>
#include <host/cups/jobs/JobOptions.h>
#include <host/printer/Constraints.h>

namespace host {
inline namespace setup {

/// What is requested of a printer when its setup is created: by the command line, or because the user set it
/// for the same queue before.
struct SetupRequest {
    std::vector<JobChoice> choices = {};
    /// The exact name in the PPD; absent for the default paper.
    std::optional<QByteArray> paper = {};
    /// The language of the PPD's texts, for PpdFile::localize().
    QString language = {};
    /// Sends choices that the PPD does not have instead of rejecting them.
    bool force = false;
};

/// A printer while it is set up for a job: its PPD with the marked choices, its panels, the paper, and every
/// choice with its origin. Creates no widgets except the panels' views; belongs to the main thread.
///
/// When a queue's PPD is replaced, a new setup is created that requests the choices of the previous one.
class PrinterSetup {
public:
    /// Creates the setup of a queue, with or without a PPD. Marks the queue's effective defaults, then the
    /// requested choices. Choices that the PPD does not have are skipped and reported by choiceErrors().
    PrinterSetup(Destination destination, std::optional<PpdFile> ppd, const SetupRequest &requested,
                 PanelSource panelSource);
    ~PrinterSetup();
    PrinterSetup(const PrinterSetup &) = delete;
    PrinterSetup &operator=(const PrinterSetup &) = delete;

    /// The queue; without a queue, a destination without a name.
    const Destination &destination() const { return m_destination; }
    /// Updates the state of the same queue.
    void setDestination(const Destination &destination) { m_destination = destination; }
    /// The name for users: the queue's description or name; without a queue, the printer's name from the
    /// PPD.
    QString printerText() const;

    /// Returns whether the printer has a PPD.
    bool hasPpd() const { return m_state != nullptr; }
    /// Must be called only with a PPD.
    DialogState &state() const { return *m_state; }
    PpdFile &ppd() const { return m_state->ppd(); }
    /// The constraints of the PPD; null without a PPD.
    const PpdFile *ppdOrNull() const { return m_state ? &m_state->ppd() : nullptr; }

    /// The panels to show, with their views loaded, in the order of their pages. Owned by the setup.
    std::vector<HostedPanel *> panels() const;
    /// The callback objects of the panels, one for each bundle.
    std::vector<PanelHost *> panelHosts() const;
    /// The errors of bundles that have options of the printer but cannot be used.
    std::vector<BundleError> panelErrors() const;
    /// Those of panelErrors() that have occurred since the panels were loaded.
    std::vector<BundleError> laterPanelErrors() const;
    /// The errors of bundles that have failed and whose panels still exist; see dropFailedPanels().
    std::vector<BundleError> panelFailures() const;
    /// Loads the panels of the printer again. Views of the previous ones must not be shown any more. The
    /// panels show the choices that are marked now.
    void reloadPanels();
    /// Removes the panels of bundles that have failed, whose views must not be shown any more. Their options
    /// keep their marked choices and are left to the dialog.
    void dropFailedPanels();
    /// Sentences about bundles and options that are not used.
    QStringList panelNotices() const;
    /// The options that the panels handle.
    QStringList claimedKeywords() const;
    /// What the panels would save if the job were printed now; empty without a panel. Marks, records and
    /// reports nothing.
    PanelSettings panelSettings() const;
    /// Returns the panels' lines of the summary for these choices.
    std::vector<PanelSummary> panelSummaries(const PDEChoices &choices) const;
    /// Returns what these choices of a job do to its labels, as the panels report it. Without a panel, the
    /// cutting is not known.
    StripEffects stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const;
    /// The requested choices that the panel's rules replace.
    std::vector<ReplacedChoice> replaced() const;
    /// Returns one sentence for each of replaced(), with the PPD's texts.
    QStringList replacedChoices() const;
    /// Returns the sentence about a replaced choice, with the reason if the panel explains it. The option and
    /// the choices are shown as the argument names them.
    static QString replacedSentence(const ReplacedChoice &texts);

    /// Absent without a PPD, or if the PPD has no usable paper.
    const std::optional<PpdPaper> &paper() const { return m_paper; }
    /// Records the paper as the user's choice and notifies the panels.
    void choosePaper(const PpdPaper &paper);
    /// Records the choice as the user's and notifies the panels.
    void choose(const QByteArray &keyword, const QByteArray &value);

    /// The paper of the user's lpoptions if the PPD does not have it; absent otherwise.
    std::optional<QByteArray> missingUserPaper() const;

    /// All choices that were made, each option once, in the order in which the options were first chosen.
    const std::vector<JobChoice> &choices() const { return m_choices; }
    /// The requested choices that the printer does not have, with one sentence each. They include the paper
    /// of the user's lpoptions unless another one is requested.
    const std::vector<ChoiceError> &choiceErrors() const { return m_choiceErrors; }
    /// Returns choices() together with the choices of the panel's controls that are not saved yet.
    std::vector<JobChoice> choicesNow() const;
    /// Returns everything that is requested of the printer: choicesNow(), and the rejected choices whose
    /// options have no other choice. For another setup, which applies them or rejects them again.
    std::vector<JobChoice> choicesAndRejected() const;

    /// Null without a PPD.
    const Constraints *constraints() const { return m_constraints ? &*m_constraints : nullptr; }
    /// Options that a remedy keeps if possible: the one that was chosen last, and those for which the panel
    /// saves another choice than the marked one, so that a different mark has no effect.
    std::set<QString> keptByRemedies() const;
    /// Applies the changes of the remedy as the user's choices.
    void apply(const Remedy &remedy);
    /// Records what has changed on the panel since the last call. If the panel has changed controls without
    /// reporting it, for instance by a predefined combination, lets the panel save them, so that marks and
    /// controls agree; earlier requests for these options are discarded. Must not be called while the panel
    /// shows a question, since the user has not decided yet.
    void notePanelInput();
    /// Returns whether a caller further up the stack is calling or operating a panel.
    bool isPanelBusy() const { return m_panels && m_panels->isBusy(); }

    /// Notifies the panel that its page comes to the front, and keeps the user's choices.
    void announce(const HostedPanel &panel);
    /// Sets the function that is called after each change that a panel makes by itself, except for changes
    /// while it is queried.
    void setDidChangeHook(const std::function<void()> &hook);
    /// Sets the function that is called when a bundle fails; see PanelGuard.
    void setPanelFailedHook(const std::function<void()> &hook);

private:
    void markRequested(const SetupRequest &requested);
    static std::optional<QByteArray> requestedPaper(const SetupRequest &requested);
    std::optional<PpdPaper> defaultPaper() const;
    void applyPaper(const SetupRequest &requested);
    /// Rejects the default paper of a PPD without any usable paper.
    void rejectUnusableDefault();
    void keepRejected(const SetupRequest &requested);
    void loadPanels();
    void startNoting();
    void noteChange(const QString &keyword, const std::optional<QString> &choice);
    void noteCombination();
    void record(const QByteArray &name, const QByteArray &value, Origin origin);

    Destination m_destination;
    PanelSource m_panelSource;
    std::shared_ptr<DialogState> m_state;
    std::optional<Constraints> m_constraints;
    std::optional<SetupPanels> m_panels;
    std::optional<PpdPaper> m_paper;
    std::vector<JobChoice> m_choices;
    std::vector<ChoiceError> m_choiceErrors;
    /// The choices of choiceErrors().
    std::vector<JobChoice> m_rejectedChoices;
    /// The option that was chosen last, which a remedy keeps if possible.
    QString m_lastChosen;
    /// The panel's choices at the last notePanelInput(), and the keywords that it has reported since.
    PDEChoices m_noted;
    std::set<QString> m_reported;
    /// The number of combinations that the user had chosen at that time.
    int m_notedCombinations = 0;
};

} // namespace setup
} // namespace host
