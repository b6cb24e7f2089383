// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/CupsServer.h>
#include <tests/support/Waiting.h>

#include <atomic>
#include <memory>

/// A clock that stands still until the test advances it, and counts how often connections read it.
class ManualClock {
public:
    /// Returns the server with this clock instead of the system's.
    host::CupsServer on(host::CupsServer server) const
    {
        server.clock = [state = m_state] {
            ++state->looks;
            return std::chrono::steady_clock::time_point(std::chrono::milliseconds(state->now));
        };
        return server;
    }

    void advance(std::chrono::milliseconds time) { m_state->now += time.count(); }
    std::chrono::milliseconds sinceStart() const { return std::chrono::milliseconds(m_state->now); }

    /// Waits until a connection has checked the clock and its server's progress, with the whole check after
    /// this call; or until the condition holds, after which connections no longer check. Returns false when
    /// neither happens.
    template<typename Condition>
    bool waitForLooks(Condition condition) const
    {
        // One check may have started before the call; one of the following checks may only restart the
        // timeout.
        constexpr int looks = 4;
        const int before = m_state->looks;
        return test_support::waitUntil([&] { return condition() || m_state->looks >= before + looks; });
    }

private:
    /// Shared with connections that may outlive the test's object.
    struct State {
        std::atomic<qint64> now = 0;
        std::atomic<int> looks = 0;
    };

    std::shared_ptr<State> m_state = std::make_shared<State>();
};
