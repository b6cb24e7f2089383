// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <fcntl.h>
#include <unistd.h>

#include <functional>

/// A pipe, closed in the end.
class Pipe {
public:
    Pipe() { EXPECT_EQ(::pipe2(m_ends, O_CLOEXEC), 0); }
    ~Pipe()
    {
        closeReader();
        closeWriter();
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    int reader() const { return m_ends[0]; }
    int writer() const { return m_ends[1]; }
    void closeReader() { closeEnd(0); }
    void closeWriter() { closeEnd(1); }

    /// Everything up to the end of the data, or to where a reader that must not wait would have to.
    QByteArray readAll() const
    {
        QByteArray all;
        char buffer[4096];
        for (;;) {
            const ssize_t count = ::read(reader(), buffer, sizeof buffer);
            if (count <= 0)
                return all;
            all.append(buffer, count);
        }
    }

private:
    void closeEnd(int end)
    {
        if (m_ends[end] >= 0)
            ::close(std::exchange(m_ends[end], -1));
    }

    int m_ends[2] = {-1, -1};
};

/// What the action writes to the descriptor that it is handed, up to a pipe's capacity of 64 KiB.
inline QByteArray writtenBy(const std::function<void(int descriptor)> &action)
{
    Pipe pipe;
    action(pipe.writer());
    pipe.closeWriter();
    return pipe.readAll();
}

/// What the action writes to standard error.
inline QByteArray writtenToStandardError(const std::function<void()> &action)
{
    return writtenBy([&action](int descriptor) {
        const int kept = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
        ::dup2(descriptor, STDERR_FILENO);
        action();
        ::dup2(kept, STDERR_FILENO);
        ::close(kept);
    });
}
