// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrinterSetup.h"

#include <host/cups/queues/QueueSession.h>

#include <map>

namespace host {
inline namespace setup {

/// Owns the setup of the chosen printer. When the server responds or the user chooses another queue, it
/// replaces the setup and carries the choices over, as far as the new PPD has them. The others are reported
/// by the new setup's choiceErrors() and are applied again with a PPD that has them. The choices of each
/// queue are kept while the program runs, and are restored when the user returns to the queue.
class SetupKeeper : public QObject {
    Q_OBJECT

public:
    /// Creates the keeper of one printer that does not change, without a print server.
    explicit SetupKeeper(std::unique_ptr<PrinterSetup> setup, QObject *parent = nullptr);
    /// Creates the keeper for the queues of a server. The session is borrowed; the request applies to every
    /// queue.
    SetupKeeper(QueueSession &session, PanelSource panelSource, SetupRequest requested,
                QObject *parent = nullptr);
    ~SetupKeeper() override;

    /// The session of the server; null without a server.
    QueueSession *session() const { return m_session; }
    /// The setup of the chosen printer; null while its PPD is not known.
    PrinterSetup *setup() const { return m_setup.get(); }

    /// Loads the panels of the current setup again, with the choices that are marked now.
    void reloadPanels();

    /// Keeps the setup while the user answers a question about it; changes wait for release().
    void hold() { m_isHeld = true; }
    void release();

Q_SIGNALS:
    /// The setup and its panels are about to be destroyed; a window that shows them must remove them now.
    void setupAboutToEnd();
    /// Emitted after setup() has changed; it may be null.
    void setupChanged();

private:
    void changeQueue();
    void changePpd();
    void watchPanels();
    void dropFailedPanels();
    void replace(std::optional<PpdFile> ppd);
    void end();
    bool isUsableWithoutPpd() const;
    bool userHasSet() const;

    QueueSession *m_session = nullptr;
    PanelSource m_panelSource;
    SetupRequest m_requested;
    std::unique_ptr<PrinterSetup> m_setup;
    std::map<QString, std::vector<JobChoice>> m_choicesOfQueues;
    /// As they were when the setup was new.
    std::vector<JobChoice> m_firstChoices;
    /// Whether the user had changed the previous setup.
    bool m_hadUsersChoices = false;
    bool m_isHeld = false;
    bool m_queueIsLate = false;
    bool m_ppdIsLate = false;
    bool m_failureIsLate = false;
};

} // namespace setup
} // namespace host
