// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/Background.h>
#include <host/cups/server/CupsServer.h>
#include <host/printer/PpdFile.h>

#include <map>

namespace host {
inline namespace cups {
inline namespace queues {

/// Loads the PPDs of queues: first the cached one, then the server's.
///
/// The PPD is fetched over a CupsConnection, like all other requests. cupsGetPPD3() is not used: for a server
/// named "localhost", it uses the local machine's file, which is wrong if the port leads to another machine;
/// it opens a second connection to whatever name the server gives itself; and neither can be interrupted.
class PpdLoader : public QObject {
    Q_OBJECT

public:
    /// Creates a loader for the server's queues. Sends no request.
    explicit PpdLoader(CupsServer server, QObject *parent = nullptr);

    /// Returns the queue's cached PPD; no value if there is none, if it cannot be read, or if it is so large
    /// that reading it would block a window: then load() loads it. Does not query the server.
    std::optional<PpdFile> cached(const QString &queue);

    /// Whether load() also loads a large cached PPD that cached() has skipped.
    enum class LargeCached { Known, Wanted };
    /// Requests the queue's PPD from the server, if it differs from the one that was last returned or
    /// emitted; one of the signals reports the result. Cancels an earlier request that has not been
    /// completed.
    void load(const Destination &destination, LargeCached largeCached = LargeCached::Known);

Q_SIGNALS:
    /// Emitted with a cached PPD that was too large for cached(). The query of the server continues.
    void remembered(const QString &queue, const std::shared_ptr<host::PpdFile> &ppd);
    /// Emitted with the server's PPD if it differs from the earlier one, or there was none. Its defaults are
    /// not marked. The receiver may move the PPD out.
    void loaded(const QString &queue, const std::shared_ptr<host::PpdFile> &ppd);
    /// Emitted when the earlier PPD is still the server's.
    void unchanged(const QString &queue);
    /// Emitted when the queue has no PPD. Printing is still possible.
    void absent(const QString &queue);
    /// Emitted when the query fails or the server's PPD cannot be used; the error's message describes why.
    void failed(const QString &queue, const host::CupsError &error);

private:
    struct Outcome;
    /// Loads the cached PPD if it is large. Returns its stamp; no value if there is no such PPD. Runs in the
    /// background.
    std::optional<QByteArray> loadLargeCached(const CupsServer &server, const QString &queue, int turn,
                                              BackgroundTask &task);
    static Outcome ask(const CupsServer &server, const Destination &destination,
                       const std::optional<QByteArray> &given, BackgroundTask &task);
    void report(const QString &queue, const Outcome &outcome);

    CupsServer m_server;
    Background m_background;
    std::shared_ptr<BackgroundTask> m_task;
    /// Counts the requests: the result of an earlier one may still arrive after the next one is made.
    int m_turn = 0;
    /// The stamps of the PPDs that were last returned or emitted, by queue. Not those of the cached files,
    /// which another program may have replaced since.
    std::map<QString, QByteArray> m_given;
};

} // namespace queues
} // namespace cups
} // namespace host
