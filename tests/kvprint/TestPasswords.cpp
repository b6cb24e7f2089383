// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <FaultyServer.h>
#include <tests/support/Waiting.h>

#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

using test_support::failureMilliseconds;

namespace {

/// A program on a terminal of its own, and a person in front of it.
class Terminal {
public:
    Terminal(const QStringList &command, const QProcessEnvironment &environment)
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
    ~Terminal() { close(m_terminal); }
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// Everything shown so far, once the text is among it that has not been waited for yet.
    QByteArray waitFor(const char *text)
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
    void type(const QByteArray &keys) const
    {
        EXPECT_EQ(write(m_terminal, keys.constData(), static_cast<std::size_t>(keys.size())), keys.size());
    }
    /// Reads until the program ends and answers its status.
    int end()
    {
        while (readSome())
            ;
        if (m_isStuck)
            kill(m_child, SIGKILL);
        int status = 0;
        waitpid(m_child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    void signal(int number) const { EXPECT_EQ(kill(m_child, number), 0); }
    const QByteArray &shown() const { return m_shown; }

private:
    bool readSome()
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

    pid_t m_child = -1;
    int m_terminal = -1;
    bool m_isStuck = false;
    QByteArray m_shown;
    qsizetype m_waitedFor = 0;
};

} // namespace

class KvprintPasswords : public KvprintTest {
protected:
    KvprintPasswords() { addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-lx900")); }

    /// kvprint with a document on standard input, its results in the file "out".
    Terminal start() const
    {
        return Terminal(
            {QStringLiteral("/bin/sh"), QStringLiteral("-c"),
             QStringLiteral("exec \"$1\" --no-dialog -h \"$2\" -U anna -d tape - <\"$3\" >\"$4\""),
             QStringLiteral("sh"), QStringLiteral(KV_PROGRAM), locked.address(), picture(),
             folder.filePath(QStringLiteral("out"))},
            kvprint.environment);
    }
    QByteArray results() const
    {
        QFile out(folder.filePath(QStringLiteral("out")));
        EXPECT_TRUE(out.open(QIODevice::ReadOnly));
        return out.readAll();
    }

    const FaultyServer locked{cupsd.port(), {.credentials = "anna:se cret-\xc3\xa4"}};
};

TEST_F(KvprintPasswords, AreAskedForOnTheTerminal)
{
    Terminal terminal = start();
    terminal.waitFor("anna");
    // A slip of the fingers is put right: the erase key takes whole characters, Ctrl-U all.
    terminal.type("wrong\x15se cret-\xc3\xa4x\xc3\xb6\x7f\x7f\n");
    EXPECT_EQ(terminal.end(), 0) << terminal.shown().toStdString();
    EXPECT_FALSE(terminal.shown().contains("cret")) << terminal.shown().toStdString();
    EXPECT_TRUE(results().startsWith("request id is tape-")) << results().toStdString();
    recorded(1);
}

TEST_F(KvprintPasswords, MayBeTypedAgain)
{
    Terminal terminal = start();
    terminal.waitFor("anna");
    terminal.type("wrong\n");
    terminal.waitFor("anna");
    terminal.type("se cret-\xc3\xa4\n");
    EXPECT_EQ(terminal.end(), 0) << terminal.shown().toStdString();
    recorded(1);
}

TEST_F(KvprintPasswords, NeedNotBeGiven)
{
    for (const char *key : {"\x03", "\x04"}) {
        Terminal terminal = start();
        terminal.waitFor("anna");
        terminal.type(key);
        terminal.waitFor("wants a password");
        EXPECT_EQ(terminal.end(), 1) << terminal.shown().toStdString();
        EXPECT_EQ(results(), QByteArray());
    }
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintPasswords, AreNotWaitedForAfterASignal)
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        Terminal terminal = start();
        terminal.waitFor("anna");
        terminal.signal(number);
        terminal.waitFor("Stopped by a signal");
        EXPECT_EQ(terminal.end(), 128 + number) << terminal.shown().toStdString();
    }
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintPasswords, AreNotWaitedForWithoutATerminal)
{
    const QStringList server{QStringLiteral("-h"), locked.address(), QStringLiteral("-U"),
                             QStringLiteral("anna")};
    expectRefusal(server + QStringList{QStringLiteral("-d"), QStringLiteral("tape"), picture()},
                  {QStringLiteral("wants a password"), QStringLiteral("anna")});
    const Outcome list = kvprint.run(server + QStringList{QStringLiteral("--list")});
    EXPECT_EQ(list.status, 1);
    EXPECT_TRUE(list.error.contains("wants a password")) << list;
}

TEST_F(KvprintPasswords, MayBeWantedForPrintingOnly)
{
    cupsd.configure("<Policy locked>\nJobPrivateValues none\nSubscriptionPrivateValues none\n"
                    "<Limit Create-Job Print-Job>\nAuthType Basic\nRequire valid-user\n"
                    "Order deny,allow\nAllow all\n</Limit>\n"
                    "<Limit All>\nOrder deny,allow\nAllow all\n</Limit>\n</Policy>\n");
    cupsd.addQueue(QStringLiteral("locked"), samplePpd(QStringLiteral("kvelland-lx900")),
                   {QStringLiteral("-o"), QStringLiteral("printer-op-policy=locked")});
    expectRefusal({QStringLiteral("-d"), QStringLiteral("locked"), picture()},
                  {QStringLiteral("wants a password")});
}
