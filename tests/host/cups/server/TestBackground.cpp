// SPDX-License-Identifier: Apache-2.0
#include <host/cups/server/Background.h>
#include <tests/support/BackgroundThreads.h>
#include <tests/support/Waiting.h>

#include <QCoreApplication>
#include <QSemaphore>
#include <QStringList>
#include <QThread>

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <latch>
#include <memory>
#include <mutex>

using host::Background;
using host::BackgroundPool;
using host::BackgroundTask;
using test_support::waitUntil;
using Cancellation = host::BackgroundTask::Cancellation;

namespace {

/// A pause that only its cancellation ends.
constexpr std::chrono::hours untilCanceled{24};

class BackgroundTest : public testing::Test {
protected:
    /// Starts work that runs until the gate opens, and waits until it runs.
    std::shared_ptr<BackgroundTask> startWaiting(Background &background)
    {
        const auto begun = std::make_shared<std::latch>(1);
        auto task = background.start([this, begun](BackgroundTask &) {
            begun->count_down();
            gate.acquire();
        });
        begun->wait();
        return task;
    }

    /// Work that notes its name.
    std::function<void(BackgroundTask &)> noting(const QString &name)
    {
        return [this, name](BackgroundTask &) {
            const std::scoped_lock lock(mutex);
            noted.append(name);
        };
    }

    QSemaphore gate;
    std::mutex mutex;
    QStringList noted;
    QStringList delivered;
};

} // namespace

TEST_F(BackgroundTest, ThreadsHaveANameAndAMaxNumber)
{
    BackgroundPool pool(3);
    Background background(pool);
    const qsizetype before = test_support::backgroundThreadCount();
    for (int task = 0; task < 3; ++task)
        startWaiting(background);
    // A thread would be created before start() returns.
    constexpr int more = 20;
    for (int task = 0; task < more; ++task)
        background.start(noting(QString::number(task)));
    EXPECT_EQ(test_support::backgroundThreadCount() - before, 3);
    EXPECT_TRUE(noted.isEmpty());
    gate.release(3);
    EXPECT_TRUE(waitUntil([&] {
        const std::scoped_lock lock(mutex);
        return noted.size() == more;
    }));
    pool.end();
    EXPECT_EQ(test_support::backgroundThreadCount(), before);
}

TEST_F(BackgroundTest, WorkThatWaitsStartsInOrder)
{
    BackgroundPool pool(1);
    Background background(pool);
    Background other(pool);
    startWaiting(background);
    std::latch last(1);
    for (const char *name : {"1", "2", "3", "4"})
        (*name == '2' ? other : background).start(noting(QString::fromLatin1(name)));
    background.start([&](BackgroundTask &) { last.count_down(); });
    gate.release();
    last.wait();
    EXPECT_EQ(noted.join(u','), QStringLiteral("1,2,3,4"));
}

TEST_F(BackgroundTest, WorkThatIsCanceledBeforeItStartsNeverRuns)
{
    BackgroundPool pool(1);
    Background background(pool);
    auto other = std::make_unique<Background>(pool);
    const auto running = startWaiting(background);
    const auto canceled = background.start(noting(QStringLiteral("canceled")));
    other->start(noting(QStringLiteral("of a receiver that has ended")));
    std::latch last(1);
    background.start([&](BackgroundTask &) { last.count_down(); });
    EXPECT_EQ(canceled->cancel(), Cancellation::BeforeStart);
    EXPECT_EQ(running->cancel(), Cancellation::Requested);
    other.reset();
    gate.release();
    last.wait();
    EXPECT_EQ(noted, QStringList());
    EXPECT_TRUE(canceled->isCanceled());
}

TEST_F(BackgroundTest, CancellationWakesWorkThatRuns)
{
    Background background;
    std::latch begun(1);
    std::latch ended(1);
    const auto task = background.start([&](BackgroundTask &running) {
        begun.count_down();
        running.pause(untilCanceled);
        std::mutex waiting;
        std::unique_lock lock(waiting);
        std::condition_variable_any never;
        never.wait(lock, running.stopToken(), [] { return false; });
        EXPECT_TRUE(running.isCanceled());
        EXPECT_FALSE(running.isProgramEnding());
        EXPECT_EQ(*running.cancelFlag(), 1);
        ended.count_down();
    });
    begun.wait();
    EXPECT_FALSE(task->isCanceled());
    EXPECT_EQ(*task->cancelFlag(), 0);
    EXPECT_EQ(task->cancel(), Cancellation::Requested);
    ended.wait();
    EXPECT_EQ(task->cancel(), Cancellation::Requested);
}

TEST_F(BackgroundTest, DeliveriesAreMadeInOrderOnTheMainThread)
{
    Background background;
    const QThread *deliverer = nullptr;
    const QThread *worker = nullptr;
    const auto task = background.start([&](BackgroundTask &running) {
        worker = QThread::currentThread();
        for (const char *name : {"1", "2", "3"})
            running.deliver([&, name] {
                delivered.append(QString::fromLatin1(name));
                deliverer = QThread::currentThread();
            });
        running.pause(untilCanceled);
        running.deliver([&] { delivered.append(QStringLiteral("canceled")); });
    });
    EXPECT_TRUE(waitUntil([&] { return delivered.size() == 3; }));
    EXPECT_EQ(deliverer, QCoreApplication::instance()->thread());
    EXPECT_NE(worker, deliverer);
    // The result of work that was canceled is a result.
    task->cancel();
    EXPECT_TRUE(waitUntil([&] { return delivered.size() == 4; }));
    EXPECT_EQ(delivered.join(u','), QStringLiteral("1,2,3,canceled"));
}

TEST_F(BackgroundTest, NothingIsDeliveredToAReceiverThatHasEnded)
{
    BackgroundPool pool(1);
    auto background = std::make_unique<Background>(pool);
    std::latch hasDelivered(1);
    background->start([&](BackgroundTask &running) {
        running.deliver([&] { delivered.append(QStringLiteral("queued")); });
        hasDelivered.count_down();
        gate.acquire();
        EXPECT_TRUE(running.isCanceled());
        running.deliver([&] { delivered.append(QStringLiteral("late")); });
    });
    hasDelivered.wait();
    background.reset();
    gate.release();
    pool.end();
    test_support::turnEventLoop();
    EXPECT_EQ(delivered, QStringList());
}

TEST_F(BackgroundTest, ADeliveryMayDestroyItsReceiver)
{
    auto background = std::make_unique<Background>();
    background->start([&](BackgroundTask &running) {
        running.deliver([&] {
            background.reset();
            delivered.append(QStringLiteral("first"));
        });
        running.deliver([&] { delivered.append(QStringLiteral("second")); });
    });
    EXPECT_TRUE(waitUntil([&] { return !background; }));
    test_support::awaitBackgroundThreads();
    test_support::turnEventLoop();
    EXPECT_EQ(delivered, QStringList{QStringLiteral("first")});
}

TEST_F(BackgroundTest, TheEndOfThePoolStopsWhatRunsAndDiscardsTheRest)
{
    auto pool = std::make_unique<BackgroundPool>(1);
    Background background(*pool);
    const BackgroundTask ofNoBackground(*pool);
    std::latch begun(1);
    bool wasEnding = false;
    background.start([&](BackgroundTask &running) {
        begun.count_down();
        running.pause(untilCanceled);
        wasEnding = running.isProgramEnding();
    });
    begun.wait();
    const auto value = std::make_shared<int>();
    background.start([value, note = noting(QStringLiteral("waiting"))](BackgroundTask &task) { note(task); });
    pool->end();
    EXPECT_TRUE(wasEnding);
    EXPECT_EQ(value.use_count(), 1);
    EXPECT_TRUE(ofNoBackground.isCanceled());
    background.start(noting(QStringLiteral("after the end")));
    EXPECT_TRUE(BackgroundTask(*pool).isCanceled());
    pool.reset();
    EXPECT_EQ(noted, QStringList());
}
