// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace bench {

/// A print server that is slow or silent: forwards connections to a real one. On a port of the loopback
/// interface; serves until the object ends.
class ServerProxy {
public:
    enum class Manner {
        Prompt, ///< as the real server
        Slow,   ///< every answer begins late
        Silent, ///< accepts connections and requests and never answers
    };

    /// lateness is what Manner::Slow adds to each answer.
    explicit ServerProxy(quint16 realPort, std::chrono::milliseconds lateness = {});
    ~ServerProxy();
    ServerProxy(const ServerProxy &) = delete;
    ServerProxy &operator=(const ServerProxy &) = delete;

    quint16 port() const { return m_port; }
    /// Holds for connections made from now on.
    void setManner(Manner manner) { m_manner = manner; }

private:
    void listen(const std::stop_token &stop);
    void serve(const std::stop_token &stop, int client, Manner manner) const;
    bool passAnswer(int server, int client, bool &isAsked) const;

    quint16 m_realPort;
    std::chrono::milliseconds m_lateness;
    quint16 m_port = 0;
    int m_listener = -1;
    std::atomic<Manner> m_manner = Manner::Prompt;
    std::vector<std::jthread> m_connections;
    std::jthread m_thread;
};

} // namespace bench
