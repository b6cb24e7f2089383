// SPDX-License-Identifier: Apache-2.0
#include "Terminal.h"

#include <tests/support/Waiting.h>

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <csignal>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

using test_support::failureMilliseconds;

Terminal::Terminal(const QStringList &command, const QProcessEnvironment &environment)
{
    QList<QByteArray> texts;
    for (const QString &text : command + environment.toStringList())
        texts.append(text.toLocal8Bit());
    std::vector<char *> words;
    std::vector<char *> variables;
    for (qsizetype i = 0; i < texts.size(); ++i)
        (i < command.size() ? words : variables).push_back(texts[i].data());
    words.push_back(nullptr);
    variables.push_back(nullptr);
    m_child = forkpty(&m_terminal, nullptr, nullptr, nullptr);
    if (m_child == 0) {
        execve(words[0], words.data(), variables.data());
        _exit(127);
    }
}

Terminal::~Terminal()
{
    close(m_terminal);
}

QByteArray Terminal::waitFor(const char *text)
{
    QElapsedTimer timer;
    timer.start();
    while (m_shown.indexOf(text, m_waitedFor) < 0 && timer.elapsed() < failureMilliseconds && readSome())
        ;
    const qsizetype found = m_shown.indexOf(text, m_waitedFor);
    EXPECT_GE(found, 0) << "not shown: " << text << "\n" << m_shown.toStdString();
    m_waitedFor = qMax(found, qsizetype(0)) + static_cast<qsizetype>(qstrlen(text));
    return m_shown;
}

void Terminal::type(const QByteArray &keys) const
{
    EXPECT_EQ(write(m_terminal, keys.constData(), static_cast<std::size_t>(keys.size())), keys.size());
}

int Terminal::end()
{
    while (readSome())
        ;
    if (m_isStuck)
        kill(m_child, SIGKILL);
    int status = 0;
    waitpid(m_child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void Terminal::signal(int number) const
{
    EXPECT_EQ(kill(m_child, number), 0);
}

bool Terminal::readSome()
{
    pollfd input = {m_terminal, POLLIN, 0};
    m_isStuck = poll(&input, 1, failureMilliseconds) <= 0;
    if (m_isStuck)
        return false;
    char bytes[1024];
    const ssize_t length = read(m_terminal, bytes, sizeof bytes);
    // Once all programs are off the terminal, reading fails.
    if (length <= 0)
        return false;
    m_shown.append(bytes, length);
    return true;
}
