// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <thread>

/// Puts a pipe with the content in the place of the program's standard input, as long as it lives.
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
