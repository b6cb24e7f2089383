// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

#include <host/cups/server/Background.h>
#include <host/cups/server/CupsServer.h>
#include <host/printer/PpdFile.h>

#include <map>

namespace host {

/// Gets the PPDs of queues: at once what is kept from last time, and then what the server has now.
///
/// The PPD comes over the connection that all other requests take. cupsGetPPD3() is not used: for a server
/// named "localhost" it takes the local machine's file for the queue's, wrong when the port leads
/// elsewhere; it opens a second connection to whatever the server calls itself; and neither can be
/// interrupted.
class PpdLoader : public QObject {
    Q_OBJECT

public:
    explicit PpdLoader(CupsServer server, QObject *parent = nullptr);

    /// The queue's PPD as it was last time; nothing when none was kept, it cannot be read, or it is so large
    /// that reading it would hold up a window: then load() brings it. Does not ask the server.
    std::optional<PpdFile> cached(const QString &queue);

    /// Whether load() is to bring the PPD of last time too, when cached() has left it out.
    enum class LargeCached { Known, Wanted };
    /// Asks the server for the queue's PPD, or whether it is another than the one that was given last; one of
    /// the signals tells the outcome. An earlier request that has not been answered yet is given up.
    void load(const Destination &destination, LargeCached largeCached = LargeCached::Known);

Q_SIGNALS:
    /// The PPD of last time, which was too large for cached(). The server is still being asked.
    void remembered(const QString &queue, const std::shared_ptr<host::PpdFile> &ppd);
    /// The PPD is another than the one given before, or none was given. Defaults are not marked yet. The
    /// receiver may take the PPD out.
    void loaded(const QString &queue, const std::shared_ptr<host::PpdFile> &ppd);
    /// The PPD that was given before is the queue's.
    void unchanged(const QString &queue);
    /// The queue has no PPD. It prints all the same.
    void absent(const QString &queue);
    /// The server cannot be asked, or its PPD is unusable; the message says why.
    void failed(const QString &queue, const host::CupsError &error);

private:
    struct Outcome;
    /// Brings the PPD of last time if it is a large one. Its stamp; nothing when there is none. In the
    /// background.
    std::optional<QByteArray> bringLarge(const CupsServer &server, const QString &queue, int turn,
                                         BackgroundTask &task);
    static Outcome ask(const CupsServer &server, const Destination &destination, const QByteArray &given,
                       BackgroundTask &task);
    void report(const QString &queue, const Outcome &outcome);

    CupsServer m_server;
    Background m_background;
    std::shared_ptr<BackgroundTask> m_task;
    /// Counts the requests: an answer to an earlier one may be on its way when the next is made.
    int m_turn = 0;
    /// The stamp of the PPD that was given last, by queue. Not that of the cache's file, which another
    /// program may have replaced meanwhile.
    std::map<QString, QByteArray> m_given;
};

} // namespace host
