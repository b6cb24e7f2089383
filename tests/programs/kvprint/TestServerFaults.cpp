// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <tests/servers/FaultyServer.h>
#include <tests/support/FaultProxy.h>
#include <tests/support/Waiting.h>

#include <QProcess>

#include <cups/ipp.h>

using test_support::FaultProxy;

namespace {

bool isOver(int state)
{
    return state >= 7;
}

} // namespace

class KvprintFaults : public KvprintTest {
protected:
    KvprintFaults() { addSampleQueue(tape, QStringLiteral("kvelland-lx900")); }

    /// Runs against another address than the server's; must fail with these texts.
    void expectFailureAt(const QString &address, const QString &document, const char *messagePart) const
    {
        const Outcome outcome = kvprint.run({QStringLiteral("--no-dialog"), QStringLiteral("-h"), address,
                                             QStringLiteral("-d"), tape, document});
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_EQ(outcome.out, QByteArray()) << outcome;
        EXPECT_TRUE(outcome.error.contains(messagePart)) << outcome;
    }

    /// All jobs have been canceled, and no filter has received anything.
    void expectNothingPrinted() const
    {
        for (const int state : jobStates())
            EXPECT_TRUE(isOver(state)) << state;
        EXPECT_TRUE(cupsd.documents().empty());
    }
};

TEST_F(KvprintFaults, AServerThatIsNotThere)
{
    expectFailureAt(QStringLiteral("127.0.0.1:1"), picture(), "127.0.0.1:1");
    expectFailureAt(QStringLiteral("127.0.0.1:1"), picture(), "Connection refused");
    expectFailureAt(folder.filePath(QStringLiteral("no.sock")), picture(), "no.sock");
    expectFailureAt(folder.filePath(QStringLiteral("no.sock")), picture(), "No such file");
    expectFailureAt(QStringLiteral("host.invalid"), picture(), "host.invalid");
    for (const QStringList &words :
         {QStringList{QStringLiteral("--list")}, QStringList{QStringLiteral("-i"), QStringLiteral("7"),
                                                             QStringLiteral("-n"), QStringLiteral("2")}}) {
        const Outcome outcome =
            kvprint.run(words + QStringList{QStringLiteral("-h"), QStringLiteral("127.0.0.1:1")});
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_EQ(outcome.out, QByteArray());
        EXPECT_TRUE(outcome.error.contains("127.0.0.1:1")) << outcome;
    }
}

TEST_F(KvprintFaults, AServerThatIsSilent)
{
    const FaultyServer silent(cupsd.port(), {.silent = true});
    expectFailureAt(silent.address(), picture(), "does not respond");
    EXPECT_GT(silent.connectionCount(), 0);
}

TEST_F(KvprintFaults, AServerThatFallsSilentWhenItHasTheDocument)
{
    cupsd.pause(tape);
    const FaultProxy silent(cupsd.port(), {.kind = test_support::ProxyFault::Kind::Silence,
                                           .operation = IPP_OP_SEND_DOCUMENT,
                                           .direction = test_support::Direction::ToClient});
    expectFailureAt(silent.address(), largePicture(), "does not respond");
    // It has the whole document and would print it.
    EXPECT_EQ(jobAttributes(1).value("number-of-documents"), "1");
    cupsd.resume(tape);
    expectNothingPrinted();
    // It was not printed in the meantime either: a later job is complete.
    const int next = print({QStringLiteral("-d"), tape}).jobId();
    EXPECT_EQ(recorded(1).firstKey(), next);
}

TEST_F(KvprintFaults, AJobThatMayBeLeftIsToldWithItsNumberAndServer)
{
    const FaultProxy breaking(
        cupsd.port(), test_support::cutAnswer(IPP_OP_SEND_DOCUMENT, test_support::OtherConnections::Close));
    expectFailureAt(breaking.address(), picture(),
                    qPrintable(QStringLiteral("Job tape-1 could not be canceled; it is held on the print "
                                              "server \"%1\" and is not printed")
                                   .arg(breaking.address())));
}

TEST_F(KvprintFaults, AServerThatIsSlowPrintsOnce)
{
    const FaultyServer slow(cupsd.port(), {.delay = 500});
    const Outcome outcome = kvprint.run({QStringLiteral("--no-dialog"), QStringLiteral("-h"), slow.address(),
                                         QStringLiteral("-d"), tape, picture()});
    EXPECT_EQ(outcome.status, 0) << outcome;
    recorded(1);
    EXPECT_EQ(jobStates().size(), 1);
}

TEST_F(KvprintFaults, AConnectionThatBreaksWhileTheDocumentIsSent)
{
    const FaultProxy breaking(cupsd.port(), test_support::cutRequests(IPP_OP_SEND_DOCUMENT, 100'000));
    expectFailureAt(breaking.address(), largePicture(), "kvprint: ");
    EXPECT_EQ(jobStates().size(), 1);
    expectNothingPrinted();
}

TEST_F(KvprintFaults, AServerThatEndsBeforeAndWhileAJobIsMade)
{
    const FaultyServer slow(cupsd.port(), {.holds = true, .heldOperation = IPP_OP_CREATE_JOB});
    const QString document = largePicture();
    QProcess program;
    program.setProcessEnvironment(kvprint.environment);
    program.start(QStringLiteral(KV_PROGRAM), {QStringLiteral("--no-dialog"), QStringLiteral("-h"),
                                               slow.address(), QStringLiteral("-d"), tape, document});
    // The program has not received the answer about its job yet.
    while (slow.heldCount() == 0 && !program.waitForFinished(10))
        ;
    EXPECT_EQ(jobStates().size(), 1);
    cupsd.kill();
    ASSERT_TRUE(program.waitForFinished(test_support::failureMilliseconds));
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.readAllStandardOutput(), QByteArray());
    const QByteArray error = program.readAllStandardError();
    EXPECT_TRUE(error.startsWith("kvprint: ")) << error.toStdString();
    expectFailureAt(cupsd.address(), picture(), "Cannot connect");
    cupsd.restart();
    EXPECT_TRUE(cupsd.documents().empty());
    // Printing again prints once.
    EXPECT_EQ(print({QStringLiteral("-d"), tape}).status, 0);
    EXPECT_EQ(recorded(1).size(), 1);
}

TEST_F(KvprintFaults, ASpoolThatIsFull)
{
    // The server answers as it does when it cannot write.
    cupsd.configure("MaxRequestSize 100k\n");
    expectFailureAt(cupsd.address(), largePicture(), "It cannot store the document: the disk is full");
    expectNothingPrinted();
    cupsd.configure("MaxJobs 1\n");
    cupsd.pause(tape);
    EXPECT_EQ(print({QStringLiteral("-d"), tape}).status, 0);
    const QMap<int, int> jobs = jobStates();
    expectFailureAt(cupsd.address(), picture(), "Too many active jobs");
    EXPECT_EQ(jobStates(), jobs);
}
