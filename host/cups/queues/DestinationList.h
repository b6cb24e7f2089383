// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/Background.h>
#include <host/cups/server/CupsServer.h>

namespace host {

/// Whether printers are looked for on the network too.
enum class Discovery { No, Yes };

/// The destinations of a server, for a dialog that opens before the server has answered: at first what was
/// known last time, then what the server says.
///
/// Lives on the main thread and never makes it wait; may be destroyed at any time, whatever the server does.
class DestinationList : public QObject {
    Q_OBJECT

public:
    /// Reads what is known from last time; asks nobody yet.
    explicit DestinationList(CupsServer server, QObject *parent = nullptr);
    /// The same for a dialog that needs one destination first: the one of that name, or with nothing the
    /// default one. When that is known at once, the others come with changed() after refresh().
    DestinationList(CupsServer server, const std::optional<QString> &first, QObject *parent = nullptr);

    /// Takes over what became known of one of them since, so that the list is never behind. Tells nobody.
    void update(const Destination &destination);
    /// Asks the server. Discovery goes on for some seconds after refreshed().
    void refresh(Discovery discovery = Discovery::No);

    /// Keeps the destination of that name, as the server has told of it, to be known at once the next time.
    void remember(const QString &name);

    /// In the server's order, instances after their queues.
    const std::vector<Destination> &destinations() const { return m_destinations; }
    /// The list is from last time: the server has not answered yet.
    bool isStale() const { return m_isStale; }
    /// The destination of that name ("queue" or "queue/instance"); null when there is none. Instances that
    /// the user has not made are found as plain queues, as lp takes them. Valid until changed().
    const Destination *find(const QString &name) const;
    /// Where jobs go that name no destination; null when there is no default. Valid until changed().
    const Destination *defaultDestination() const;

Q_SIGNALS:
    /// destinations() are others now.
    void changed();
    /// The server has answered: destinations() are its own. Comes after changed(), if that comes at all.
    void refreshed();
    /// The server cannot be asked; what was known stays.
    void failed(const host::CupsError &error);

private:
    void take(std::vector<Destination> destinations);
    void takeKnown(const std::vector<Destination> &destinations);
    void addDiscovered(const Destination &destination);

    CupsServer m_server;
    std::vector<Destination> m_destinations;
    bool m_isStale = true;
    /// Only the first is there of what was known last time.
    bool m_isPartial = false;
    Background m_background;
    std::shared_ptr<BackgroundTask> m_task;
};

} // namespace host
