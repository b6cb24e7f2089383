// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelSource.h"

#include <host/cups/ChoiceCheck.h>
#include <host/cups/Constraints.h>
#include <host/cups/JobOptions.h>

namespace host {

/// What is wanted of a printer from the beginning: by the command line, or because it was set for the same
/// queue before.
struct SetupWishes {
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
/// When a queue's PPD is replaced by another, a new setup is made, with what was chosen as wishes.
class PrinterSetup {
public:
    /// A queue with the PPD, or without one. Marked at first are the queue's effective defaults, then the
    /// wishes, of which those that the PPD does not have are left out and told by refusals().
    PrinterSetup(Destination destination, std::optional<PpdFile> ppd, const SetupWishes &wishes,
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
    PDEPanel *panel() const { return m_panels.session ? m_panels.session->firstPanel() : nullptr; }
    /// Null when there is none.
    PanelHost *panelHost() const { return m_panels.session ? &m_panels.session->host() : nullptr; }
    /// Why there is no panel, although the printer has options for it; nothing when that is no problem.
    const std::optional<PanelError> &panelProblem() const { return m_panelProblem; }
    const QStringList &claimedKeywords() const { return m_panels.keywords; }

    /// Nothing without a PPD, or when the PPD names no paper at all.
    const std::optional<PpdPaper> &paper() const { return m_paper; }
    /// Chooses the paper for the user and tells the panels.
    void choosePaper(const PpdPaper &paper);
    /// Makes a choice for the user and tells the panels.
    void choose(const QByteArray &keyword, const QByteArray &value);

    /// The paper of the user's lpoptions when the PPD does not have it; nothing otherwise.
    std::optional<QByteArray> lackingUserPaper() const;

    /// All that was chosen, each option once, in the order of the first choosing.
    const std::vector<JobChoice> &choices() const { return m_choices; }
    /// Wishes that the printer cannot fulfil, one sentence each; the paper of the user's lpoptions among
    /// them, where no other is wished for.
    const std::vector<ChoiceError> &refusals() const { return m_refusals; }
    /// What is wanted of the printer all in all: the choices, and of the wishes that it cannot fulfil those
    /// that nothing else was chosen for. To be carried over to another setup, which may fulfil them or says
    /// again that it cannot.
    std::vector<JobChoice> choicesAndRefusedWishes() const;

    std::vector<Conflict> conflicts() const;
    /// Ends all conflicts without touching the paper; nothing when there is none or no way.
    std::optional<Remedy> remedy() const;
    void apply(const Remedy &remedy);

    /// Tells the panel that its page comes to the front. What is chosen stays chosen.
    void announcePanel();
    /// Has the panel hand over its settings and asks whether they may be printed. Nothing, or why not.
    std::optional<QString> savePanel();
    /// Marks and records all as it was before the last savePanel() that was not undone: for who only wanted
    /// to know what would be printed, and when it was not printed after all.
    void undoSave();
    /// Called after every change that a panel has made by itself; not while it hands over its settings.
    void setDidChangeHook(std::function<void()> hook);

private:
    void markWishes(const SetupWishes &wishes);
    static std::optional<QByteArray> wishedPaper(const SetupWishes &wishes);
    std::optional<PpdPaper> defaultPaper() const;
    void takePaper(const SetupWishes &wishes);
    void keepRefused(const SetupWishes &wishes);
    void loadPanels(const PanelSource &source);
    void tellPanel(const std::vector<std::pair<QString, QString>> &wanted);
    void pressWanted(const std::vector<std::pair<QString, QString>> &wanted);
    std::vector<std::pair<QString, QString>> claimedChoices() const;
    void record(const QByteArray &name, const QByteArray &value, Origin origin);

    /// What savePanel() changes.
    struct Saved {
        std::vector<std::pair<QString, QString>> marked;
        RecordedChoices recorded;
        std::vector<JobChoice> choices;
        QString lastChosen;
    };

    Destination m_destination;
    std::shared_ptr<DialogState> m_state;
    std::optional<Constraints> m_constraints;
    ClaimedPanels m_panels;
    std::optional<PanelError> m_panelProblem;
    std::optional<PpdPaper> m_paper;
    std::vector<JobChoice> m_choices;
    std::vector<ChoiceError> m_refusals;
    /// What the refusals are about.
    std::vector<JobChoice> m_refusedWishes;
    /// The option that was chosen last, which a remedy leaves as it is if it can.
    QString m_lastChosen;
    /// As it was before each savePanel() that may still be undone.
    std::vector<Saved> m_beforeSaves;
    bool m_isSaving = false;
};

} // namespace host
