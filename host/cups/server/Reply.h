// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Background.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

namespace host {

/// The user's answer to a question: given on the main thread, waited for by the thread that talks to the
/// server. Copies are the same reply; the first answer counts.
template<typename Answer>
class Reply {
public:
    /// Nothing is a refusal.
    void give(std::optional<Answer> answer) const
    {
        const std::scoped_lock lock(m_state->mutex);
        if (m_state->isGiven)
            return;
        m_state->isGiven = true;
        m_state->answer = std::move(answer);
        m_state->given.notify_all();
    }
    /// The answer; nothing when it is a refusal or the task was cancelled.
    std::optional<Answer> wait(const BackgroundTask &task) const
    {
        std::unique_lock lock(m_state->mutex);
        // A question whose window has been destroyed is not answered; the task is cancelled then.
        while (!m_state->isGiven && !task.isCancelled())
            m_state->given.wait_for(lock, std::chrono::milliseconds(100));
        return m_state->answer;
    }

private:
    struct State {
        std::mutex mutex;
        std::condition_variable given;
        bool isGiven = false;
        std::optional<Answer> answer;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace host
