// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Background.h>

#include <QEventLoop>

#include <optional>

namespace dialog {
inline namespace job {

/// Runs the work on a background thread, runs an event loop until it is complete, and returns its result.
template<typename Work>
auto runInBackground(Work work)
{
    host::Background background;
    QEventLoop loop;
    std::optional<decltype(work(std::declval<host::BackgroundTask &>()))> outcome;
    background.start([&, work](host::BackgroundTask &task) {
        task.deliver([&, now = work(task)] {
            outcome = now;
            loop.quit();
        });
    });
    loop.exec();
    return *outcome;
}

} // namespace job
} // namespace dialog
