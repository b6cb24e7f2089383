// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/CupsServer.h>

namespace host {

/// What was known of a server when it was asked last, so that a dialog can show it before the server answers:
/// queues, their states and their PPDs. Kept in $XDG_CACHE_HOME/kvprint/cups/SERVER, one file each,
/// always written whole, in folders that only this user can open. A file that is missing or damaged is one
/// that was never kept.
///
/// Safe to use by several programs and threads at once: a reader sees the old file or the new one.
class QueueCache {
public:
    explicit QueueCache(const CupsServer &server);

    std::vector<Destination> destinations() const;
    /// A failure to write is no concern of the user; the cache then stays as it was.
    void storeDestinations(const std::vector<Destination> &destinations) const;

    /// The destination that was set up last, which mostly is the next one too; reading it alone takes no time
    /// however many there are. Nothing when none is kept.
    std::optional<Destination> last() const;
    void storeLast(const Destination &destination) const;

    /// The queue's PPD; nothing when none is kept.
    std::optional<QString> ppdPath(const QString &queue) const;
    /// What a server is asked to compare its PPD with, as an "If-Modified-Since" field; empty when none is
    /// kept. The length is part of it: a PPD may be replaced twice in a second.
    QByteArray ppdStamp(const QString &queue) const;
    /// The same of a PPD that was fetched: when it was modified, in seconds since 1970, and its bytes.
    static QByteArray stamp(qint64 modified, qint64 length);
    /// Keeps the PPD; modified in seconds since 1970.
    void storePpd(const QString &queue, const QByteArray &content, qint64 modified) const;
    void removePpd(const QString &queue) const;

    const QString &folder() const { return m_folder; }

private:
    std::vector<Destination> read(const QString &name) const;
    void store(const QString &name, const std::vector<Destination> &destinations) const;
    QString ppdFileName(const QString &queue) const;

    QString m_folder;
};

} // namespace host
