// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

class KvprintOutput : public KvprintTest {
protected:
    KvprintOutput() { addSampleQueue(tape, QStringLiteral("kvelland-lx900")); }

    /// Runs the program with these redirections of the shell, ">/dev/full".
    Outcome runRedirected(const char *streams, const QStringList &words) const
    {
        return kvprint.runOther(QStringLiteral("sh"),
                                QStringList{QStringLiteral("-c"),
                                            QStringLiteral("exec \"$0\" \"$@\" ") + QLatin1String(streams),
                                            QStringLiteral(KV_PROGRAM)} +
                                    words);
    }
};

TEST_F(KvprintOutput, WhatCannotBeWrittenIsToldAndNoSuccess)
{
    const QStringList onTape{QStringLiteral("-d"), tape, picture()};
    const QStringList rows[] = {
        {QStringLiteral("--list")},
        {QStringLiteral("--list"), QStringLiteral("--json")},
        QStringList{QStringLiteral("--summary")} + onTape,
        QStringList{QStringLiteral("--dry-run")} + onTape,
        {QStringLiteral("--help")},
        {QStringLiteral("--version")},
    };
    for (const QStringList &words : rows) {
        for (const char *const streams : {">/dev/full", ">&-", "<&- >&-"}) {
            const Outcome outcome = runRedirected(streams, words);
            EXPECT_EQ(outcome.status, 1) << qPrintable(words.join(u' ')) << streams << "\n" << outcome;
            EXPECT_EQ(outcome.error.count("kvprint: Cannot write to standard output: "), 1) << outcome;
        }
        // Warnings that cannot be written are not an error.
        EXPECT_EQ(runRedirected("2>&-", words).status, 0) << qPrintable(words.join(u' '));
    }
}

TEST_F(KvprintOutput, AJobWhoseNumberCannotBeWrittenIsToldAmongTheMessages)
{
    const QStringList words{QStringLiteral("--no-dialog"), QStringLiteral("-d"), tape, picture()};
    const Outcome outcome = runRedirected(">/dev/full", words);
    EXPECT_EQ(outcome.status, 1) << outcome;
    EXPECT_TRUE(outcome.error.contains("The job was sent nevertheless, as tape-1.")) << outcome;
    EXPECT_EQ(recorded(1).firstKey(), 1);
    // With -s the number is not printed, so writing cannot fail.
    EXPECT_EQ(runRedirected(">/dev/full", words + QStringList{QStringLiteral("-s")}).status, 0);
    EXPECT_EQ(recorded(2).size(), 2);
}

TEST_F(KvprintOutput, AClosedInputIsNoDocument)
{
    const Outcome outcome = runRedirected("<&-", {QStringLiteral("--no-dialog"), QStringLiteral("-d"), tape});
    EXPECT_EQ(outcome.status, 1) << outcome;
    EXPECT_TRUE(outcome.error.contains("standard input")) << outcome;
    EXPECT_TRUE(jobStates().isEmpty());
}
