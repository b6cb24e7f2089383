// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrinterSetup.h"

#include <host/cups/queues/QueueSession.h>

#include <map>

namespace host {
inline namespace setup {

/// Keeps the setup of the printer that is chosen now. As a server's answers come in, or the user chooses
/// another queue, one setup takes the place of another, and what was chosen moves along as far as the new PPD
/// has it; what it lacks is told by the setup's choiceErrors(), and comes back with a PPD that has it. Each
/// queue's choices are kept while the program runs, so that going back to it finds them.
class SetupKeeper : public QObject {
    Q_OBJECT

public:
    /// For one printer that stays, without a print server.
    explicit SetupKeeper(std::unique_ptr<PrinterSetup> setup, QObject *parent = nullptr);
    /// For the queues of a server. The session is borrowed; the requested are those for any queue.
    SetupKeeper(QueueSession &session, PanelSource panelSource, SetupRequest requested,
                QObject *parent = nullptr);
    ~SetupKeeper() override;

    /// Null without a server.
    QueueSession *session() const { return m_session; }
    /// The setup of the chosen printer; null while its PPD is not known.
    PrinterSetup *setup() const { return m_setup.get(); }

    /// Keeps the setup while the user answers a question about it; changes wait for release().
    void hold() { m_isHeld = true; }
    void release();

Q_SIGNALS:
    /// The setup and its panels are about to be destroyed; a window that shows them must remove them now.
    void setupAboutToEnd();
    /// setup() is another, or null now.
    void setupChanged();

private:
    void changeQueue();
    void changePpd();
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
    /// The setup before was not as it had been when it was new.
    bool m_hadUsersChoices = false;
    bool m_isHeld = false;
    bool m_queueIsLate = false;
    bool m_ppdIsLate = false;
};

} // namespace setup
} // namespace host
