// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

#include <sys/types.h>

/// A program on a terminal of its own, and a person in front of it.
class Terminal {
public:
    /// The first word is the program's path.
    Terminal(const QStringList &command, const QProcessEnvironment &environment);
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// Everything shown so far, once the text is among it that has not been waited for yet. Fails the test
    /// when it is never shown.
    QByteArray waitFor(const char *text);
    void type(const QByteArray &keys) const;
    /// Reads until the program ends and answers its status; -1 when it crashed or had to be killed.
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
