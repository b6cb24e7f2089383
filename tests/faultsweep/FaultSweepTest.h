// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobJournal.h>
#include <host/cups/jobs/JobStatus.h>
#include <tests/servers/PrintingTest.h>
#include <tests/support/FaultProxy.h>

#include <map>
#include <random>

/// Prints one job after the other through a proxy that makes a fault, and compares what is reported with
/// what the server has and has printed.
class FaultSweepTest : public PrintingTest {
protected:
    /// How a job ended, as reported to the user and on the server.
    struct Ending {
        Outcome outcome;
        /// The address at which the job was sent.
        QString address;
        /// The jobs on the server, none of which is waiting or being printed.
        std::vector<host::JobStatus> jobs;
        /// The contents of the documents that were printed, in their order.
        std::vector<QByteArray> printed;
        /// The records in the journal.
        int records = 0;
        bool hasStruck = false;
        /// On how many connections the server was silent.
        int silences = 0;
    };

    void SetUp() override;

    /// The jobs since the last call, as soon as none of them waits or is being printed; those that are held
    /// are canceled then.
    std::vector<host::JobStatus> settledJobs();
    /// The messages of a job that is printed without a fault.
    std::vector<test_support::PassedMessage> trace(int documents);
    /// Prints a job of so many documents.
    Ending printThrough(const test_support::ProxyFault &fault, int documents);

    /// Expects that the reported outcome is correct: printed once, not printed, or unknown.
    void expectCorrectReport(const Ending &ending, int documents);
    /// Expects that nothing is printed twice or in part, regardless of the answers.
    void expectNoPartialOrRepeatedPrint(const Ending &ending, int documents) const;

    /// Places in the message: its first byte, its end, the borders of its parts, and some at random.
    std::vector<qint64> sampleOf(const test_support::PassedMessage &message);
    int random(int max);

    /// The server at the address, with a timeout suitable for the fault.
    static host::CupsServer serverFor(const test_support::ProxyFault &fault, const QString &address);

    /// How often each kind of ending was seen, for the report.
    std::map<std::string, int> endings;

private:
    std::vector<QByteArray> contents(int documents) const;
    host::JobTicket ticketOf(int documents) const;
    void expectPrinted(const Ending &ending, int documents) const;
    void expectNotPrinted(const Ending &ending) const;
    void expectReportedAsUnknown(const Ending &ending, int documents) const;

    void TearDown() override;

    host::JobJournal m_journal;
    int m_lastJob = 0;
    std::mt19937 m_random;
};
