// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

#include <sys/types.h>

/// A program on its own pseudo-terminal, with typed input.
class Terminal {
public:
    /// The first word is the program's path.
    Terminal(const QStringList &command, const QProcessEnvironment &environment);
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// Waits for a text after those already waited for and returns everything shown so far. Fails the test on
    /// timeout.
    QByteArray waitFor(const char *text);
    void type(const QByteArray &keys) const;
    /// Reads until the program ends and returns its status; -1 when it crashed or had to be killed.
    int end();
    void signal(int number) const;
    const QByteArray &shown() const { return m_shown; }

private:
    bool readSome();

    pid_t m_child = -1;
    int m_terminal = -1;
    bool m_isStuck = false;
    QByteArray m_shown;
    qsizetype m_waitedFor = 0;
};
