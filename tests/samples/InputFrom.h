// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <thread>

/// Replaces the program's standard input with a pipe that delivers the content, for the lifetime of the
/// object.
class InputFrom {
public:
    explicit InputFrom(QByteArray content);
    ~InputFrom();
    InputFrom(const InputFrom &) = delete;
    InputFrom &operator=(const InputFrom &) = delete;

private:
    int m_before;
    std::thread m_writer;
};
