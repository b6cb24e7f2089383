// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BackgroundTask.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

namespace host {
inline namespace cups {
inline namespace server {

/// The user's answer to a question: given on the main thread, awaited by the thread of the connection. Copies
/// share their state; only the first answer counts.
template<typename Answer>
class Reply {
public:
    /// Gives the answer; no value if the user declines.
    void give(std::optional<Answer> answer) const
    {
        const std::scoped_lock lock(m_state->mutex);
        if (m_state->isGiven)
            return;
        m_state->isGiven = true;
        m_state->answer = std::move(answer);
        m_state->given.notify_all();
    }
    /// Waits for the answer. Returns no value if the user declines or the task is canceled.
    std::optional<Answer> wait(const BackgroundTask &task) const
    {
        std::unique_lock lock(m_state->mutex);
        // A question whose window is destroyed gets no answer; the task is canceled then.
        m_state->given.wait(lock, task.stopToken(), [&] { return m_state->isGiven; });
        return m_state->answer;
    }

private:
    struct State {
        std::mutex mutex;
        std::condition_variable_any given;
        bool isGiven = false;
        std::optional<Answer> answer;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace server
} // namespace cups
} // namespace host
