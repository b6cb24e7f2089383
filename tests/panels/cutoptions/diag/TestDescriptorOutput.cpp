// SPDX-License-Identifier: Apache-2.0
// Descriptors that do not take everything at once, or nothing at all.
#include <gtest/gtest.h>

#include "DescriptorCapture.h"

#include <diag/DebugLog.h>
#include <diag/MemoryCheck.h>

#include <atomic>
#include <csignal>
#include <thread>
#include <vector>

#include <sys/resource.h>

namespace {

std::atomic<int> interruptions = 0;

/// Has SIGUSR1 interrupt system calls for as long as it lives.
class Interruptible {
public:
    Interruptible()
    {
        struct sigaction action = {};
        action.sa_handler = [](int) { ++interruptions; };
        sigaction(SIGUSR1, &action, &m_previous); // without SA_RESTART
        interruptions = 0;
    }
    ~Interruptible() { sigaction(SIGUSR1, &m_previous, nullptr); }
    Interruptible(const Interruptible &) = delete;
    Interruptible &operator=(const Interruptible &) = delete;

private:
    struct sigaction m_previous = {};
};

/// Fills a pipe to the brim; answers the number of bytes.
qsizetype fill(const Pipe &pipe)
{
    ::fcntl(pipe.writer(), F_SETFL, O_NONBLOCK);
    const QByteArray chunk(4096, 'f');
    qsizetype filled = 0;
    for (ssize_t count = 0; (count = ::write(pipe.writer(), chunk.constData(), 4096)) > 0;)
        filled += count;
    for (ssize_t count = 0; (count = ::write(pipe.writer(), chunk.constData(), 1)) > 0;)
        filled += count;
    return filled;
}

std::vector<char> sampleBytes(std::size_t count)
{
    std::vector<char> bytes(count);
    for (std::size_t index = 0; index < count; ++index)
        bytes[index] = static_cast<char>(index * 31);
    return bytes;
}

QByteArray linesOf(const std::vector<char> &bytes)
{
    return writtenBy([&](int descriptor) {
        for (std::size_t at = 0; at < bytes.size(); at += 16)
            memoryCheckFd(0, descriptor, bytes.data() + at, 16);
    });
}

} // namespace

TEST(DescriptorOutput, FullPipeThatMayBlockGetsEverythingInTheEnd)
{
    Pipe pipe;
    const qsizetype filled = fill(pipe);
    ::fcntl(pipe.writer(), F_SETFL, 0);
    const auto bytes = sampleBytes(16'000);
    QByteArray received;
    std::thread reader([&] { received = pipe.readAll(); });
    memoryCheckFd(0, pipe.writer(), bytes.data(), static_cast<std::int32_t>(bytes.size()));
    pipe.closeWriter();
    reader.join();
    EXPECT_EQ(received.mid(filled), linesOf(bytes));
}

TEST(DescriptorOutput, ShortWritesAreContinued)
{
    // A signal that comes when the pipe has taken a part of the message makes the write a short one.
    const Interruptible interruptible;
    Pipe pipe;
    const QString message(300000, u'm');
    const pthread_t writing = pthread_self();
    QByteArray received;
    std::thread reader([&] {
        for (int count = 0; count < 10; ++count) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            pthread_kill(writing, SIGUSR1);
        }
        received = pipe.readAll();
    });
    debugLogFd(0, pipe.writer(), "%@", message);
    pipe.closeWriter();
    reader.join();
    EXPECT_GT(interruptions, 0);
    EXPECT_EQ(received, message.toUtf8() + '\n');
}

TEST(DescriptorOutput, InterruptedWritesAreContinued)
{
    const Interruptible interruptible;
    Pipe pipe;
    const qsizetype filled = fill(pipe);
    ::fcntl(pipe.writer(), F_SETFL, 0);
    const auto bytes = sampleBytes(800);
    const pthread_t writing = pthread_self();
    QByteArray received;
    std::thread reader([&] {
        // The writer is waiting in a full pipe all the while.
        for (int count = 0; count < 20; ++count) {
            pthread_kill(writing, SIGUSR1);
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
        received = pipe.readAll();
    });
    memoryCheckFd(0, pipe.writer(), bytes.data(), static_cast<std::int32_t>(bytes.size()));
    pipe.closeWriter();
    reader.join();
    EXPECT_GT(interruptions, 0);
    EXPECT_EQ(received.mid(filled), linesOf(bytes));
}

TEST(DescriptorOutput, FullPipeThatMustNotBlockLosesTheOutputButNeverHangs)
{
    Pipe pipe;
    const qsizetype filled = fill(pipe);
    const auto bytes = sampleBytes(100);
    memoryCheckFd(0, pipe.writer(), bytes.data(), 100);
    debugLogFd(0, pipe.writer(), "message");
    pipe.closeWriter();
    EXPECT_EQ(pipe.readAll().size(), filled);
}

TEST(DescriptorOutput, PartOfAFullPipeTakesWhatFits)
{
    Pipe pipe;
    const qsizetype filled = fill(pipe);
    char room[4096];
    ASSERT_EQ(::read(pipe.reader(), room, sizeof room), static_cast<ssize_t>(sizeof room));
    debugLogFd(0, pipe.writer(), "%@", QString(10000, u'm'));
    pipe.closeWriter();
    const QByteArray rest = pipe.readAll().mid(filled - 4096);
    EXPECT_EQ(rest, QByteArray(4096, 'm'));
}

TEST(DescriptorOutput, ClosedDescriptorsAreIgnored)
{
    const char bytes[40] = {};
    for (const int descriptor : {-1, 1 << 20}) {
        memoryCheckFd(0, descriptor, bytes, 40);
        debugLogFd(0, descriptor, "message %d", 5);
    }
    const int kept = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
    ::close(STDERR_FILENO);
    memoryCheck(0, bytes, 40);
    debugLog(0, "message %d", 5);
    const bool stillClosed = ::fcntl(STDERR_FILENO, F_GETFD) < 0;
    ::dup2(kept, STDERR_FILENO);
    ::close(kept);
    EXPECT_TRUE(stillClosed);
}

TEST(DescriptorOutput, PipeWithoutReaderRaisesNoSignal)
{
    static std::atomic<int> raised;
    raised = 0;
    struct sigaction action = {};
    struct sigaction previous = {};
    action.sa_handler = [](int) { ++raised; };
    sigaction(SIGPIPE, &action, &previous);
    Pipe pipe;
    pipe.closeReader();
    const char bytes[40] = {};
    memoryCheckFd(0, pipe.writer(), bytes, 40);
    debugLogFd(0, pipe.writer(), "message");
    sigset_t pending;
    sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGPIPE), 0);
    EXPECT_EQ(raised, 0);
    raise(SIGPIPE);
    EXPECT_EQ(raised, 1) << "the signal is let through again afterwards";
    sigaction(SIGPIPE, &previous, nullptr);
}
