// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/CupsServer.h>

namespace host {
inline namespace cups {
inline namespace queues {

/// The cache of what a server last reported, which a dialog shows before the server responds: queues, their
/// states and their PPDs. Stored in $XDG_CACHE_HOME/kvprint/cups/SERVER, in separate files, which are always
/// replaced as a whole, in folders that only the user can open. A missing or damaged file counts as absent.
///
/// Safe for several programs and threads at the same time: a reader gets either the old file or the new one.
class QueueCache {
public:
    /// Opens the cache of the server. Does not use the network and creates no files.
    explicit QueueCache(const CupsServer &server);

    /// Returns the cached destinations; empty if there are none.
    std::vector<Destination> destinations() const;
    /// Stores the destinations. An error is ignored: the cache then stays unchanged.
    void storeDestinations(const std::vector<Destination> &destinations) const;

    /// Returns the destination that was last set up, which usually is also the next one; reading it takes
    /// little time, whatever the number of destinations. Returns no value if there is none.
    std::optional<Destination> last() const;
    /// Stores that destination; ignores errors.
    void storeLast(const Destination &destination) const;

    /// Returns the path of the queue's PPD; no value if there is none.
    std::optional<QString> ppdPath(const QString &queue) const;
    /// Returns the value of an "If-Modified-Since" field with which a server compares its PPD to the cached
    /// one; absent if there is none. It includes the length, because a PPD may be replaced twice within a
    /// second.
    std::optional<QByteArray> ppdStamp(const QString &queue) const;
    /// Returns the same for a fetched PPD: modified in seconds since 1970-01-01 UTC, length in bytes.
    static QByteArray stamp(qint64 modified, qint64 length);
    /// Stores the PPD; modified in seconds since 1970-01-01 UTC. Ignores errors.
    void storePpd(const QString &queue, const QByteArray &content, qint64 modified) const;
    /// Removes the queue's PPD, if there is one.
    void removePpd(const QString &queue) const;

    /// The path of the server's folder in the cache.
    const QString &folder() const { return m_folder; }

private:
    std::vector<Destination> read(const QString &name) const;
    void store(const QString &name, const std::vector<Destination> &destinations) const;
    QString ppdFileName(const QString &queue) const;

    QString m_folder;
};

} // namespace queues
} // namespace cups
} // namespace host
