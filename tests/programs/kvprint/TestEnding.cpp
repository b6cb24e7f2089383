// SPDX-License-Identifier: Apache-2.0
// The program ends by returning from main(), also while it waits for a server: everything that it has made is
// destroyed, and threads that are still running access none of it.
#include "KvprintTest.h"

#include <tests/servers/FaultyServer.h>
#include <tests/support/Waiting.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <csignal>

using test_support::failureMilliseconds;

class KvprintEnding : public KvprintTest {
protected:
    KvprintEnding()
    {
        addSampleQueue(tape, QStringLiteral("kvelland-lx900"));
        QDir(folder.path()).mkpath(QStringLiteral("loader"));
        // The dynamic loader reports each library whose termination functions it calls, which _exit() skips.
        kvprint.environment.insert(QStringLiteral("LD_DEBUG"), QStringLiteral("files"));
        kvprint.environment.insert(QStringLiteral("LD_DEBUG_OUTPUT"),
                                   folder.filePath(QStringLiteral("loader/report")));
    }

    /// Starts the program with the words and a document.
    void start(QProcess &program, const QStringList &words)
    {
        program.setProcessEnvironment(kvprint.environment);
        program.start(QStringLiteral(KV_PROGRAM), words + QStringList{picture()});
        ASSERT_TRUE(program.waitForStarted());
        m_report = folder.filePath(QStringLiteral("loader/report.%1").arg(program.processId()));
    }

    /// Stops the program by the signal, which must end it in the way of a program that returns from main().
    void expectReturn(QProcess &program, int signal)
    {
        ASSERT_EQ(program.state(), QProcess::Running) << program.readAllStandardError().toStdString();
        ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), signal), 0);
        ASSERT_TRUE(program.waitForFinished(failureMilliseconds));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 128 + signal);
        EXPECT_FALSE(program.readAllStandardError().contains("does not respond"));
        QFile report(m_report);
        ASSERT_TRUE(report.open(QIODevice::ReadOnly)) << qPrintable(m_report);
        const QByteArray lines = report.readAll();
        EXPECT_TRUE(lines.contains("calling fini: ")) << lines.right(1000).toStdString();
    }

private:
    QString m_report;
};

TEST_F(KvprintEnding, ByASignalWhileAServerIsSilent)
{
    const FaultyServer silent(cupsd.port(), {.silent = true});
    QProcess program;
    start(program, {QStringLiteral("--no-dialog"), QStringLiteral("-h"), silent.address()});
    while (silent.connectionCount() == 0 && !program.waitForFinished(10))
        ;
    expectReturn(program, SIGINT);
}

TEST_F(KvprintEnding, OfADialogWhoseServerIsSilent)
{
    const FaultyServer silent(cupsd.port(), {.silent = true});
    QProcess program;
    start(program, {QStringLiteral("-h"), silent.address()});
    while (silent.connectionCount() == 0 && !program.waitForFinished(10))
        ;
    expectReturn(program, SIGTERM);
}

#ifdef KV_SILENT_NAME_SERVER

TEST_F(KvprintEnding, WhileANameServerIsSilent)
{
    const QString asked = folder.filePath(QStringLiteral("asked"));
    kvprint.preload(QStringLiteral(KV_SILENT_NAME_SERVER));
    kvprint.environment.insert(QStringLiteral("KV_NAME_SERVER_ASKED"), asked);
    for (const QStringList &words : {QStringList{QStringLiteral("--no-dialog")}, QStringList()}) {
        QProcess program;
        start(program, words + QStringList{QStringLiteral("-h"), QStringLiteral("silent.test")});
        while (!QFileInfo::exists(asked) && !program.waitForFinished(10))
            ;
        expectReturn(program, SIGINT);
        QFile::remove(asked);
    }
    // A server is found by its name.
    const Outcome found = kvprint.run({QStringLiteral("--list"), QStringLiteral("-h"),
                                       QStringLiteral("printers.test:%1").arg(cupsd.port())});
    EXPECT_EQ(found.status, 0) << found;
    EXPECT_TRUE(found.out.contains("tape")) << found;
}

#endif
