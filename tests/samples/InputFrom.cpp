// SPDX-License-Identifier: Apache-2.0
#include "InputFrom.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <unistd.h>

InputFrom::InputFrom(QByteArray content)
    : m_before(dup(STDIN_FILENO))
{
    // The reader may stop before the end.
    std::signal(SIGPIPE, SIG_IGN);
    std::array<int, 2> ends = {};
    EXPECT_EQ(pipe(ends.data()), 0);
    dup2(ends[0], STDIN_FILENO);
    close(ends[0]);
    m_writer = std::thread([content = std::move(content), end = ends[1]] {
        const ssize_t written = write(end, content.constData(), static_cast<std::size_t>(content.size()));
        static_cast<void>(written);
        close(end);
    });
}

InputFrom::~InputFrom()
{
    // Closing the reading end first ends a writer whose pipe is no longer read.
    if (m_before >= 0) {
        dup2(m_before, STDIN_FILENO);
        close(m_before);
    } else {
        close(STDIN_FILENO);
    }
    m_writer.join();
}
