// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <tests/servers/FaultyServer.h>
#include <tests/support/Waiting.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <csignal>

using test_support::failureMilliseconds;

class KvprintSignals : public KvprintTest {
protected:
    KvprintSignals()
    {
        addSampleQueue(tape, QStringLiteral("kvelland-lx900"));
        QDir(folder.path()).mkpath(QStringLiteral("temporary"));
        kvprint.environment.insert(QStringLiteral("TMPDIR"), folder.filePath(QStringLiteral("temporary")));
    }

    /// Starts printing a small and a large picture without a dialog, by way of the server.
    void start(QProcess &program, const FaultyServer &server, const char *before = "") const
    {
        program.setProcessEnvironment(kvprint.environment);
        program.start(QStringLiteral("sh"),
                      {QStringLiteral("-c"), QLatin1String(before) + QStringLiteral("exec \"$0\" \"$@\""),
                       QStringLiteral(KV_PROGRAM), QStringLiteral("--no-dialog"), QStringLiteral("-h"),
                       server.address(), QStringLiteral("-d"), tape, picture(), largePicture()});
        ASSERT_TRUE(program.waitForStarted());
    }

    /// Waits until the job is on its way: the server has its first document.
    void waitUntilSending(int jobId) const
    {
        QElapsedTimer timer;
        timer.start();
        while (!jobStates().contains(jobId) ||
               jobAttributes(jobId).value("number-of-documents").toInt() == 0) {
            ASSERT_LT(timer.elapsed(), failureMilliseconds) << "the job does not begin";
            QThread::msleep(10);
        }
    }

    QStringList temporaryFiles() const
    {
        return QDir(folder.filePath(QStringLiteral("temporary")))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

TEST_F(KvprintSignals, TakeBackTheJobThatIsBeingSent)
{
    const FaultyServer slow(cupsd.port(), {.bytesPerSecond = 20000});
    int jobId = 0;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        SCOPED_TRACE(strsignal(signal));
        QProcess program;
        start(program, slow);
        waitUntilSending(++jobId);
        EXPECT_FALSE(temporaryFiles().isEmpty());
        ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), signal), 0);
        ASSERT_TRUE(program.waitForFinished(failureMilliseconds));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 128 + signal);
        EXPECT_EQ(program.readAllStandardOutput(), QByteArray());
        EXPECT_EQ(program.readAllStandardError(), "kvprint: Stopped by a signal; nothing was printed.\n");
        EXPECT_EQ(jobStates().value(jobId), 7);
        EXPECT_EQ(temporaryFiles(), QStringList());
    }
    EXPECT_TRUE(cupsd.documents().empty());
}

TEST_F(KvprintSignals, WhatAKilledProgramLeavesGoesWhenTheNextOneStarts)
{
    const FaultyServer slow(cupsd.port(), {.bytesPerSecond = 20000});
    QProcess killed;
    start(killed, slow);
    waitUntilSending(1);
    QProcess running;
    start(running, slow);
    waitUntilSending(2);
    const QStringList ofBoth = temporaryFiles();
    ASSERT_EQ(kill(static_cast<pid_t>(killed.processId()), SIGKILL), 0);
    ASSERT_TRUE(killed.waitForFinished(failureMilliseconds));
    EXPECT_EQ(temporaryFiles(), ofBoth);
    EXPECT_EQ(kvprint.run({QStringLiteral("--list")}).status, 0);
    EXPECT_EQ(temporaryFiles().size() * 2, ofBoth.size()) << "those of the program that runs stay";
    ASSERT_EQ(kill(static_cast<pid_t>(running.processId()), SIGTERM), 0);
    EXPECT_TRUE(running.waitForFinished(failureMilliseconds));
    EXPECT_EQ(temporaryFiles(), QStringList());
}

TEST_F(KvprintSignals, AKilledProgramLeavesNoPartOfAJobToBePrinted)
{
    const FaultyServer slow(cupsd.port(), {.bytesPerSecond = 20000});
    QProcess killed;
    start(killed, slow);
    waitUntilSending(1);
    ASSERT_EQ(kill(static_cast<pid_t>(killed.processId()), SIGKILL), 0);
    ASSERT_TRUE(killed.waitForFinished(failureMilliseconds));
    // The server has the first document. Any other hold ends with its MultipleOperationTimeout.
    const QMap<QByteArray, QByteArray> job = jobAttributes(1);
    EXPECT_EQ(job.value("number-of-documents"), "1");
    EXPECT_EQ(job.value("job-state"), "pending-held");
    EXPECT_EQ(job.value("job-hold-until"), "indefinite");
}

TEST_F(KvprintSignals, TheJobOfAKilledProgramIsToldAndSettledOnRequest)
{
    const FaultyServer slow(cupsd.port(), {.bytesPerSecond = 20000});
    const auto dryRun = [&] {
        return kvprint.run({QStringLiteral("--dry-run"), QStringLiteral("-d"), tape, picture()});
    };
    for (int jobId = 1; jobId <= 2; ++jobId) {
        QProcess killed;
        start(killed, slow);
        waitUntilSending(jobId);
        // The record of a running program is not reported.
        EXPECT_EQ(dryRun().error, QByteArray());
        ASSERT_EQ(kill(static_cast<pid_t>(killed.processId()), SIGKILL), 0);
        ASSERT_TRUE(killed.waitForFinished(failureMilliseconds));
        const QByteArray name = "tape-" + QByteArray::number(jobId);
        const Outcome told = dryRun();
        EXPECT_EQ(told.status, 0) << told;
        EXPECT_TRUE(told.error.contains("may have left job " + name)) << told;
        EXPECT_TRUE(told.error.contains(slow.address().toUtf8())) << told;
        EXPECT_TRUE(told.error.contains("kvprint --cancel-left " + name)) << told;
        // Nothing happens to it by itself.
        EXPECT_EQ(jobStates().value(jobId), 4);

        const Outcome none = kvprint.run({QStringLiteral("--cancel-left"), QStringLiteral("tape-7")});
        EXPECT_EQ(none.status, 1) << none;
        EXPECT_TRUE(none.error.contains("there are these: " + name)) << none;
        const QString action =
            jobId == 1 ? QStringLiteral("--cancel-left") : QStringLiteral("--release-left");
        const Outcome settled = kvprint.run({action, QString::fromUtf8(name)});
        EXPECT_EQ(settled.status, 0) << settled;
        EXPECT_TRUE(settled.out.contains("Job " + name)) << settled;
        EXPECT_EQ(dryRun().error, QByteArray());
    }
    EXPECT_EQ(jobStates().value(1), 7);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, 2);
    const Outcome none = kvprint.run({QStringLiteral("--release-left"), QStringLiteral("tape-2")});
    EXPECT_EQ(none.status, 1) << none;
    EXPECT_TRUE(none.error.contains("there are no such jobs")) << none;
}

TEST_F(KvprintSignals, EndTheWaitForAServerThatIsSilent)
{
    const FaultyServer silent(cupsd.port(), {.silent = true});
    QProcess program;
    start(program, silent);
    while (silent.connectionCount() == 0 && !program.waitForFinished(10))
        ;
    ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), SIGINT), 0);
    EXPECT_TRUE(program.waitForFinished(failureMilliseconds));
    EXPECT_EQ(program.exitCode(), 128 + SIGINT);
    EXPECT_EQ(temporaryFiles(), QStringList());
}

TEST_F(KvprintSignals, CloseTheDialog)
{
    const FaultyServer silent(cupsd.port(), {.silent = true});
    QProcess program;
    kvprint.environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    program.setProcessEnvironment(kvprint.environment);
    program.start(QStringLiteral(KV_PROGRAM), {QStringLiteral("-h"), silent.address(), picture()});
    while (silent.connectionCount() == 0 && !program.waitForFinished(10))
        ;
    ASSERT_EQ(program.state(), QProcess::Running) << program.readAllStandardError().toStdString();
    ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), SIGTERM), 0);
    EXPECT_TRUE(program.waitForFinished(failureMilliseconds));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 128 + SIGTERM);
}

TEST_F(KvprintSignals, AreIgnoredWhereWhoeverStartedTheProgramIgnoresThem)
{
    FaultyServer slow(cupsd.port(), {.bytesPerSecond = 20000});
    QProcess program;
    start(program, slow, "trap '' HUP; ");
    waitUntilSending(1);
    ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), SIGHUP), 0);
    slow.release();
    ASSERT_TRUE(program.waitForFinished(failureMilliseconds));
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    EXPECT_EQ(program.readAllStandardOutput(), "request id is tape-1 (2 file(s))\n");
    EXPECT_EQ(cupsd.waitForDocuments(2).size(), 2U);
}
