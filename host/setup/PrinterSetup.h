// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SetupPanels.h"

#include <host/cups/jobs/ChoiceCheck.h>
#include <host/cups/jobs/JobOptions.h>
#include <host/printer/Constraints.h>

namespace host {
inline namespace setup {

/// What is wanted of a printer from the beginning: by the command line, or because it was set for the same
/// queue before.
struct SetupRequest {
    std::vector<JobChoice> choices = {};
    /// By its exact name in the PPD; nothing for the default.
    std::optional<QByteArray> paper = {};
    /// Of the PPD's texts, as PpdFile::localize() takes it.
    QString language = {};
    /// Choices that the PPD does not have are sent all the same.
    bool force = false;
};

/// A printer while it is set up for a job: its PPD with all that is marked, its panels, the paper, and every
/// choice with who made it. Without widgets but the panels' own views; lives on the main thread.
///
/// When a queue's PPD is replaced by another, a new setup is made, with what was chosen as requested.
class PrinterSetup {
public:
    /// A queue with the PPD, or without one. Marked at first are the queue's effective defaults, then the
    /// requested, of which those that the PPD does not have are left out and told by choiceErrors().
    PrinterSetup(Destination destination, std::optional<PpdFile> ppd, const SetupRequest &requested,
                 const PanelSource &panelSource);
    ~PrinterSetup();
    PrinterSetup(const PrinterSetup &) = delete;
    PrinterSetup &operator=(const PrinterSetup &) = delete;

    const Destination &destination() const { return m_destination; }
    /// The same queue, as the server tells of it now.
    void setDestination(const Destination &destination) { m_destination = destination; }
    /// For people: the queue's description or name; the PPD's printer where there is no queue.
    QString printerText() const;

    bool hasPpd() const { return m_state != nullptr; }
    /// Only with a PPD.
    DialogState &state() const { return *m_state; }
    PpdFile &ppd() const { return m_state->ppd(); }
    /// Null without a PPD.
    const PpdFile *ppdOrNull() const { return m_state ? &m_state->ppd() : nullptr; }

    /// The panel to show, with its view loaded; null when there is none.
    PDEPanel *panel() const { return m_panels ? m_panels->panel() : nullptr; }
    /// Null when there is none.
    PanelHost *panelHost() const { return m_panels ? m_panels->panelHost() : nullptr; }
    /// Why there is no panel, although the printer has options for it; absent when that is no problem.
    std::optional<PanelError> panelError() const;
    QStringList claimedKeywords() const;
    /// What the panel would save if the job were printed now; empty without a panel. Marks, records and
    /// reports nothing.
    PanelSettings panelSettings() const;
    /// The panel's lines of the summary for these choices; absent without a panel.
    std::optional<QVariantMap> panelSummary(const PDEChoices &choices) const;
    /// What was asked for and is replaced by the panel's rules.
    std::vector<ReplacedChoice> replaced() const;
    /// A sentence for each, with the PPD's texts.
    QStringList replacedChoices() const;
    /// What is to be said of a replaced choice, with these names for the option, what was asked for and what
    /// is saved instead.
    static QString replacedSentence(const QString &option, const QString &choice, const QString &saved);

    /// Nothing without a PPD, or when the PPD names no paper.
    const std::optional<PpdPaper> &paper() const { return m_paper; }
    /// Chooses the paper for the user and tells the panels.
    void choosePaper(const PpdPaper &paper);
    /// Makes a choice for the user and tells the panels.
    void choose(const QByteArray &keyword, const QByteArray &value);

    /// The paper of the user's lpoptions when the PPD does not have it; nothing otherwise.
    std::optional<QByteArray> missingUserPaper() const;

    /// All that was chosen, each option once, in the order of the first choosing.
    const std::vector<JobChoice> &choices() const { return m_choices; }
    /// The requested choices that the printer does not have, with one sentence each. They include the paper
    /// of the user's lpoptions unless another one is requested.
    const std::vector<ChoiceError> &choiceErrors() const { return m_choiceErrors; }
    /// What was chosen, with what the panel's controls have and nothing has saved yet.
    std::vector<JobChoice> choicesNow() const;
    /// What is requested of the printer all in all: choicesNow(), and of the requested choices that it cannot
    /// fulfil those that nothing else was chosen for. To be carried over to another setup, which may fulfil
    /// them or reports again that it cannot.
    std::vector<JobChoice> choicesAndRejected() const;

    /// Null without a PPD.
    const Constraints *constraints() const { return m_constraints ? &*m_constraints : nullptr; }
    /// Options that a remedy leaves as they are if it can: the one that was chosen last, and those for which
    /// the panel saves something else than is marked, so that another mark would not help.
    std::set<QString> keptByRemedies() const;
    /// Makes a remedy's changes as the user's choices.
    void apply(const Remedy &remedy);
    /// Notes what has changed on the panel since the last time. A panel that has changed controls without
    /// reporting it, by a ready-made combination for instance, saves them, so that marks and controls agree,
    /// and what was asked of these options before does not count any more. Not to be called while a panel
    /// waits for the answer to a question of its own, since the user has not decided yet.
    void notePanelInput();
    /// Whether the panel is being asked or operated at this moment, by a caller further up.
    bool isPanelBusy() const { return m_panels && m_panels->isBusy(); }

    /// Announces to the panel that its page comes to the front. What is chosen stays chosen.
    void announcePanel();
    /// Called after every change that a panel makes by itself; not called for changes while a panel is asked.
    void setDidChangeHook(std::function<void()> hook);

private:
    void markRequested(const SetupRequest &requested);
    static std::optional<QByteArray> requestedPaper(const SetupRequest &requested);
    std::optional<PpdPaper> defaultPaper() const;
    void applyPaper(const SetupRequest &requested);
    /// For a PPD that has no usable paper, and one of an unusable size as its default.
    void rejectUnusableDefault();
    void keepRejected(const SetupRequest &requested);
    void loadPanels(const PanelSource &source);
    void startNoting();
    void noteCombination();
    void record(const QByteArray &name, const QByteArray &value, Origin origin);

    Destination m_destination;
    std::shared_ptr<DialogState> m_state;
    std::optional<Constraints> m_constraints;
    std::optional<SetupPanels> m_panels;
    std::optional<PpdPaper> m_paper;
    std::vector<JobChoice> m_choices;
    std::vector<ChoiceError> m_choiceErrors;
    /// What the choiceErrors are about.
    std::vector<JobChoice> m_rejectedChoices;
    /// The option that was chosen last, which a remedy leaves as it is if it can.
    QString m_lastChosen;
    /// What the panel kept when it was looked at last, and the keywords that it has reported since.
    PDEChoices m_noted;
    std::set<QString> m_reported;
    /// How many combinations the user had chosen then.
    int m_notedCombinations = 0;
};

} // namespace setup
} // namespace host
