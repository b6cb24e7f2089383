// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DestinationList.h"
#include "PpdLoader.h"
#include "QueueMonitor.h"

namespace host {

/// What is known of the chosen queue's PPD.
enum class PpdKnowledge {
    Asked,   ///< nothing yet; the server is being asked
    Cached,  ///< as it was last time; the server is being asked
    Current, ///< as the server has it
    Absent,  ///< the queue has none and prints all the same
    Failed,  ///< the server cannot be asked or its PPD is unusable; a cached one still serves
};

/// A program's dealings with one print server: its destinations, the chosen one, and that one's state and
/// PPD, at first as they were last time, then as the server tells. Lives on the main thread and never makes
/// it wait.
///
/// The destination that was asked for, or else the default one, is chosen as soon as it is known, even when
/// it arrives last; until the user chooses another, nothing else is chosen in its place while it may still
/// come.
class QueueSession : public QObject {
    Q_OBJECT

public:
    /// wanted is "queue" or "queue/instance"; nothing for the default: that of LPDEST, PRINTER, lpoptions or
    /// the server. Chooses from what is kept of last time; asks nobody yet.
    QueueSession(CupsServer server, const std::optional<QString> &wanted, QObject *parent = nullptr);

    /// Asks the server for everything.
    void start(Discovery discovery);
    /// Asks for everything once more; a user who has refused a password is asked for it again.
    void tryAgain();

    const CupsServer &server() const { return m_server; }
    const DestinationList &destinations() const { return m_destinations; }
    /// Why the server's destinations are not known; nothing while it is being asked or has answered.
    const std::optional<CupsError> &listError() const { return m_listError; }
    /// The chosen destination; nothing while it is not known.
    const std::optional<Destination> &chosen() const { return m_chosen; }
    /// The name that is waited for or chosen; empty when not even that is known.
    QString chosenName() const;
    /// Chooses another destination of the list; a name that is not in it is passed over.
    void choose(const QString &name);
    /// Has the session ask, before it chooses another destination by itself, whether the user has set
    /// something for the chosen one already; then that one stays.
    void setIsInUse(std::function<bool()> isInUse) { m_isInUse = std::move(isInUse); }

    PpdKnowledge ppdKnowledge() const { return m_knowledge; }
    /// Why the PPD could not be had or used; only with PpdKnowledge::Failed.
    const std::optional<CupsError> &ppdError() const { return m_ppdError; }
    /// The chosen queue's PPD as it was loaded last, for the receiver of ppdChanged() to take; nothing when
    /// it has been taken already or there is none.
    std::optional<PpdFile> takePpd();
    /// The server has answered with its destinations, or failed to.
    bool isSettled() const { return m_isSettled; }

Q_SIGNALS:
    /// destinations() are others now.
    void destinationsChanged();
    /// Another destination is chosen; its PPD may be at hand already.
    void chosenChanged();
    /// The chosen destination is in another state, or the server is being asked for everything once more.
    void stateChanged();
    /// ppdKnowledge() is another; takePpd() has a new PPD when the server's is not the one given before.
    void ppdChanged();
    /// The server has answered with its destinations, or failed to: what is not there now will not come,
    /// unless it is discovered on the network.
    void settled();
    /// The server cannot be asked, or has no such destination or queue; the message says why. What is known
    /// stays.
    void failed(const host::CupsError &error);
    /// The server answers again after it could not be asked.
    void recovered();

private:
    void takeList();
    void listFailed(const CupsError &error);
    void tell(const CupsError &error);
    void chooseWanted();
    void setChosen(const Destination &destination);
    void takeState(const Destination &destination);
    void takeNews(Destination news);
    void recover();
    bool mayLackPpd() const;
    void settle();
    void setKnowledge(PpdKnowledge knowledge, const std::optional<CupsError> &error = std::nullopt);
    CupsError noSuchDestination() const;

    CupsServer m_server;
    /// What is waited for; nothing when the user has chosen, or when the server's default counts.
    std::optional<QString> m_wanted;
    DestinationList m_destinations;
    PpdLoader m_loader;
    std::unique_ptr<QueueMonitor> m_monitor;
    std::optional<Destination> m_chosen;
    std::optional<PpdFile> m_ppd;
    std::optional<CupsError> m_listError;
    PpdKnowledge m_knowledge = PpdKnowledge::Asked;
    std::optional<CupsError> m_ppdError;
    Discovery m_discovery = Discovery::No;
    bool m_hasStarted = false;
    bool m_isSettled = false;
    bool m_userHasChosen = false;
    std::function<bool()> m_isInUse = [] { return false; };
    /// The server could not be asked the last time.
    bool m_isOutOfReach = false;
};

} // namespace host
