// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/Background.h>
#include <host/cups/server/CupsServer.h>

namespace host {
inline namespace cups {
inline namespace queues {

/// Whether printers are also discovered on the network.
enum class Discovery { No, Yes };

/// The destinations of a server, for a dialog that opens before the server responds: initially those of the
/// cache, then those of the server.
///
/// Lives on the main thread and never blocks it. Can be destroyed at any time, in any state of the server.
class DestinationList : public QObject {
    Q_OBJECT

public:
    /// Reads the cached destinations. Sends no request before refresh().
    explicit DestinationList(CupsServer server, QObject *parent = nullptr);
    /// Does the same for a dialog that first needs one destination: the named one, or the default one if the
    /// name is absent. If the cache has it, the others follow with changed() after refresh().
    DestinationList(CupsServer server, const std::optional<QString> &first, QObject *parent = nullptr);

    /// Replaces the destination of the same name, so that the list is as current as the latest query of one
    /// destination. Emits no signal. Does nothing if the list does not contain the destination.
    void update(const Destination &destination);
    /// Queries the server. Discovery continues for some seconds after refreshed().
    void refresh(Discovery discovery = Discovery::No);

    /// Stores the named destination, as the server has reported it, so that the next program has it
    /// immediately. Does nothing while the list is from the cache, or if it does not contain the destination.
    void remember(const QString &name);

    /// The destinations in the server's order, instances after their queues.
    const std::vector<Destination> &destinations() const { return m_destinations; }
    /// Whether the list is from the cache: the server has not responded yet.
    bool isStale() const { return m_isStale; }
    /// Returns the destination of that name ("queue" or "queue/instance"), owned by the list; null if there
    /// is none. For an instance that does not exist, returns the queue, as lp uses it. Valid until changed().
    const Destination *find(const QString &name) const;
    /// Returns the destination of jobs that name none; null if there is no default. Valid until changed().
    const Destination *defaultDestination() const;

Q_SIGNALS:
    /// Emitted when destinations() changes.
    void changed();
    /// Emitted when the server has responded and destinations() is its list; follows changed(), if that is
    /// emitted.
    void refreshed();
    /// Emitted when the query of the server fails; destinations() does not change.
    void failed(const host::CupsError &error);

private:
    void take(std::vector<Destination> destinations);
    void setCachedDestinations(const std::vector<Destination> &destinations);
    void addDiscovered(const Destination &destination);

    CupsServer m_server;
    std::vector<Destination> m_destinations;
    bool m_isStale = true;
    /// The list contains only the first of the cached destinations.
    bool m_isPartial = false;
    Background m_background;
    std::shared_ptr<BackgroundTask> m_task;
};

} // namespace queues
} // namespace cups
} // namespace host
