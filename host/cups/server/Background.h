// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BackgroundTask.h"

#include <QObject>

#include <memory>
#include <vector>

namespace host {
inline namespace cups {
inline namespace server {

/// Starts tasks that may wait for a network, and makes their deliveries. Belongs to an object of the main
/// thread that uses their results.
///
/// The destructor cancels all tasks and drops their deliveries, but does not wait for the tasks: the
/// connections notice the cancellation within some 100 ms. The work must therefore hold only values and
/// shared pointers of its own.
class Background {
public:
    /// Starts no task. The pool is borrowed and must outlive the object.
    explicit Background(BackgroundPool &pool = BackgroundPool::instance());
    ~Background();
    Background(const Background &) = delete;
    Background &operator=(const Background &) = delete;

    /// Runs the work on a thread of the pool and returns its task.
    std::shared_ptr<BackgroundTask> start(std::function<void(BackgroundTask &)> work);

private:
    BackgroundPool &m_pool;
    /// The deliveries are queued calls of this object, which end with it.
    QObject m_receiver;
    std::vector<std::weak_ptr<BackgroundTask>> m_tasks;
};

} // namespace server
} // namespace cups
} // namespace host
