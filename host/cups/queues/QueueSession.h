// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DestinationList.h"
#include "PpdLoader.h"
#include "QueueMonitor.h"

namespace host {
inline namespace cups {
inline namespace queues {

/// The state of the chosen queue's PPD.
enum class PpdState {
    Asked,   ///< none yet; the server is being queried
    Cached,  ///< from the cache; the server is being queried
    Current, ///< the server's
    Absent,  ///< the queue has none; printing is still possible
    Failed,  ///< the query failed or the PPD is unusable; a cached one remains in use
};

/// A program's session with a print server: its destinations, the chosen one, and the state and PPD of that
/// one, first from the cache, then from the server. Lives on the main thread and never blocks it.
///
/// Chooses the requested destination, or the default one if none is requested, as soon as it is known, even
/// if it is the last to be found. Until the user chooses another, the session chooses no other in its place
/// while it may still be found.
class QueueSession : public QObject {
    Q_OBJECT

public:
    /// wanted is "queue" or "queue/instance"; absent for the default: that of LPDEST, PRINTER, lpoptions or
    /// the server. Chooses from the cached destinations and sends no request.
    QueueSession(CupsServer server, const std::optional<QString> &wanted, QObject *parent = nullptr);

    /// Queries the server for the destinations, and for the state and PPD of the chosen one.
    void start(Discovery discovery);
    /// Repeats all queries; a user who has declined to enter a password is asked again.
    void retry();

    /// The server of the session and its destinations.
    const CupsServer &server() const { return m_server; }
    const DestinationList &destinations() const { return m_destinations; }
    /// The error of the last query of the destinations; absent if it has succeeded, or if none has failed
    /// since start().
    const std::optional<CupsError> &listError() const { return m_listError; }
    /// The chosen destination; absent while it is not known.
    const std::optional<Destination> &chosen() const { return m_chosen; }
    /// Returns the name of the chosen destination, or of the requested one while it is not known; absent
    /// if neither is known.
    std::optional<QString> chosenName() const;
    /// Chooses another destination of the list; ignores a name that the list does not contain.
    void choose(const QString &name);
    /// Sets a function that returns whether the user has already changed a setting for the chosen
    /// destination. The session calls it before it chooses another destination by itself; if it returns true,
    /// the choice stays.
    void setIsInUse(std::function<bool()> isInUse) { m_isInUse = std::move(isInUse); }

    /// The state of the chosen queue's PPD.
    PpdState ppdState() const { return m_ppdState; }
    /// Why the PPD cannot be loaded or used; absent unless ppdState() is PpdState::Failed.
    const std::optional<CupsError> &ppdError() const { return m_ppdError; }
    /// Moves out the chosen queue's PPD that was last loaded, for the receiver of ppdChanged(). Returns no
    /// value if it was already moved out or there is none.
    std::optional<PpdFile> takePpd();
    /// Whether the server has reported its destinations, or the query has failed.
    bool isSettled() const { return m_isSettled; }

Q_SIGNALS:
    /// Emitted when destinations() changes.
    void destinationsChanged();
    /// Emitted when another destination is chosen; its PPD may be available already.
    void chosenChanged();
    /// Emitted when the state of the chosen destination changes, or when all queries are repeated.
    void stateChanged();
    /// Emitted when ppdState() changes; takePpd() returns a new PPD if the server's differs from the
    /// earlier one.
    void ppdChanged();
    /// Emitted when the server has reported its destinations, or the query has failed: destinations that are
    /// missing now are not found later, except by discovery on the network.
    void settled();
    /// Emitted when a query fails, or the server has no such destination or queue; the error's message
    /// describes why. What is already known stays.
    void failed(const host::CupsError &error);
    /// Emitted when the server responds again after it could not be reached.
    void recovered();

private:
    void listReceived();
    void listFailed(const CupsError &error);
    void report(const CupsError &error);
    void chooseRequested();
    void setChosen(const Destination &destination);
    void updateState(const Destination &destination);
    void updateFromQuery(Destination news);
    void recover();
    bool isPpdUnreachable() const;
    void settle();
    void setPpdState(PpdState knowledge, const std::optional<CupsError> &error = std::nullopt);
    CupsError noSuchDestination() const;

    CupsServer m_server;
    /// The requested destination or that of LPDEST, PRINTER or lpoptions; absent if the server's default
    /// applies.
    std::optional<QString> m_requested;
    DestinationList m_destinations;
    PpdLoader m_loader;
    std::unique_ptr<QueueMonitor> m_monitor;
    std::optional<Destination> m_chosen;
    std::optional<PpdFile> m_ppd;
    std::optional<CupsError> m_listError;
    PpdState m_ppdState = PpdState::Asked;
    std::optional<CupsError> m_ppdError;
    Discovery m_discovery = Discovery::No;
    bool m_hasStarted = false;
    bool m_isSettled = false;
    bool m_userHasChosen = false;
    std::function<bool()> m_isInUse = [] { return false; };
    /// The last query could not reach the server.
    bool m_isOutOfReach = false;
};

} // namespace queues
} // namespace cups
} // namespace host
