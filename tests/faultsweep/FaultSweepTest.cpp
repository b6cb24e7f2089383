// SPDX-License-Identifier: Apache-2.0
#include "FaultSweepTest.h"

#include <host/cups/jobs/JobCancellation.h>

#include <QDir>

#include <array>
#include <iostream>

#include <cups/ipp.h>

using host::CupsErrorKind;
using host::JobState;
using test_support::FaultProxy;
using test_support::PassedMessage;
using test_support::ProxyFault;

namespace {

constexpr const char *seedVariable = "KV_FAULT_SWEEP_SEED";

/// Longer than what the proxy and the server read at once.
constexpr qsizetype longDocument = 100'000;

bool isMoving(const host::JobStatus &job)
{
    return job.state == JobState::Waiting || job.state == JobState::Printing ||
           job.state == JobState::Stopped;
}

/// The server with a timeout that ends when a connection was silent at two checks, 0.1 s apart. A server that
/// is slow because the machine is busy also counts as silent, which leads to another ending that must be
/// reported correctly.
host::CupsServer shortTimeoutServerAt(const QString &address)
{
    static constexpr std::chrono::milliseconds step(500);
    host::CupsServer server = serverAt(address);
    server.timeout = 2 * step;
    server.clock = [steps = std::make_shared<std::atomic<int>>(0)] {
        return std::chrono::steady_clock::time_point(step * ++*steps);
    };
    return server;
}

} // namespace

void FaultSweepTest::SetUp()
{
    PrintingTest::SetUp();
    const QByteArray given = qgetenv(seedVariable);
    const unsigned seed = given.isEmpty() ? std::random_device{}() : given.toUInt();
    std::cout << seedVariable << '=' << seed << std::endl;
    m_random.seed(seed);
}

void FaultSweepTest::TearDown()
{
    for (const auto &[ending, count] : endings)
        std::cout << ending << ": " << count << std::endl;
}

int FaultSweepTest::random(int max)
{
    return std::uniform_int_distribution<int>(0, max)(m_random);
}

std::vector<QByteArray> FaultSweepTest::contents(int documents) const
{
    std::vector<QByteArray> all;
    for (int i = 0; i < documents; ++i)
        all.push_back(QByteArray(i == 0 ? longDocument : 10, static_cast<char>('a' + i)) + '\n');
    return all;
}

host::JobTicket FaultSweepTest::ticketOf(int documents) const
{
    host::JobTicket job = ticket();
    job.documents.clear();
    for (const QByteArray &content : contents(documents))
        job.documents.push_back({document(QStringLiteral("%1.txt").arg(job.documents.size()), content)});
    return job;
}

host::CupsServer FaultSweepTest::serverFor(const ProxyFault &fault, const QString &address)
{
    // Other faults than these can make both ends wait for each other.
    const bool hasLongTimeout = fault.kind == ProxyFault::Kind::None || fault.kind == ProxyFault::Kind::Cut ||
                                fault.kind == ProxyFault::Kind::Delay;
    return hasLongTimeout ? serverAt(address) : shortTimeoutServerAt(address);
}

FaultSweepTest::Ending FaultSweepTest::printThrough(const ProxyFault &fault, int documents)
{
    QDir(m_journal.folder()).removeRecursively();
    cupsd.clearDocuments();
    const host::JobTicket job = ticketOf(documents);
    Ending ending;
    {
        const FaultProxy proxy(cupsd.port(), fault);
        ending.address = proxy.address();
        ending.outcome = print(job, serverFor(fault, ending.address));
        ending.hasStruck = proxy.hasStruck();
        ending.silences = proxy.silencedCount();
    }
    ending.records = static_cast<int>(QDir(m_journal.folder()).entryList({QStringLiteral("*.json")}).size());
    ending.jobs = settledJobs();
    for (const test_support::RecordedDocument &each : cupsd.documents())
        ending.printed.push_back(each.content);
    return ending;
}

std::vector<PassedMessage> FaultSweepTest::trace(int documents)
{
    const FaultProxy proxy(cupsd.port());
    EXPECT_TRUE(print(ticketOf(documents), serverAt(proxy.address())).jobId);
    settledJobs();
    return proxy.messages();
}

std::vector<host::JobStatus> FaultSweepTest::settledJobs()
{
    host::BackgroundTask task;
    std::vector<host::JobStatus> jobs;
    const bool settled = waitUntil([&] {
        jobs.clear();
        auto connection = host::CupsConnection::open(server, task);
        if (!connection)
            return false;
        // Numbers are given in order; a number without a job ends the search.
        for (int jobId = m_lastJob + 1;; ++jobId) {
            const auto job = queryJob(connection.value(), QStringLiteral("tape"), jobId);
            if (!job || job.value().isPurged)
                break;
            jobs.push_back(job.value());
        }
        return std::none_of(jobs.begin(), jobs.end(), isMoving);
    });
    EXPECT_TRUE(settled) << cupsd.log().toStdString();
    for (const host::JobStatus &job : jobs) {
        m_lastJob = job.jobId;
        if (job.state == JobState::Held) {
            EXPECT_TRUE(cancelJob(server, job.queue, job.jobId, task));
        }
    }
    return jobs;
}

void FaultSweepTest::expectCorrectReport(const Ending &ending, int documents)
{
    EXPECT_LE(ending.silences, 2) << "waited for longer than twice the timeout";
    expectNoPartialOrRepeatedPrint(ending, documents);
    const std::optional<host::CupsError> &error = ending.outcome.error;
    SCOPED_TRACE(error ? error->message.toStdString() : std::string("printed"));
    if (ending.outcome.jobId) {
        ++endings["printed once and reported"];
        expectPrinted(ending, documents);
    } else if (error && error->kind == CupsErrorKind::OutcomeUnknown) {
        ++endings[ending.printed.empty() ? "not known and reported, not printed"
                                         : "not known and reported, printed once"];
        expectReportedAsUnknown(ending, documents);
    } else {
        ++endings["not printed and reported"];
        expectNotPrinted(ending);
    }
}

void FaultSweepTest::expectNoPartialOrRepeatedPrint(const Ending &ending, int documents) const
{
    const bool isWhole = ending.printed.size() == static_cast<std::size_t>(documents);
    EXPECT_TRUE(ending.printed.empty() || isWhole) << ending.printed.size() << " documents were printed";
}

void FaultSweepTest::expectPrinted(const Ending &ending, int documents) const
{
    EXPECT_TRUE(ending.printed == contents(documents));
    ASSERT_EQ(ending.jobs.size(), 1U);
    EXPECT_EQ(ending.jobs.front().jobId, ending.outcome.jobId);
    EXPECT_EQ(ending.jobs.front().state, JobState::Completed);
    EXPECT_EQ(ending.records, 0);
}

void FaultSweepTest::expectNotPrinted(const Ending &ending) const
{
    EXPECT_TRUE(ending.printed.empty());
    EXPECT_LE(ending.jobs.size(), 1U);
    for (const host::JobStatus &job : ending.jobs)
        EXPECT_TRUE(job.isOver()) << "a job is left on the server that is not reported";
    EXPECT_EQ(ending.records, 0);
}

void FaultSweepTest::expectReportedAsUnknown(const Ending &ending, int documents) const
{
    EXPECT_TRUE(ending.printed.empty() || ending.printed == contents(documents));
    EXPECT_LE(ending.jobs.size(), 1U);
    EXPECT_EQ(ending.records, 1) << "the next program does not know of the job";
    const QString message = ending.outcome.error->message;
    EXPECT_TRUE(message.contains(ending.address));
    // The number is not known when the answer to Create-Job is lost; the title is.
    const bool hasNumber =
        !ending.jobs.empty() && message.contains(QStringLiteral("tape-%1").arg(ending.jobs.front().jobId));
    EXPECT_TRUE(hasNumber || message.contains(QStringLiteral("A job \"Labels\" without documents")));
}

std::vector<qint64> FaultSweepTest::sampleOf(const PassedMessage &message)
{
    const qint64 last = message.bytes - 1;
    const qint64 content = message.headerBytes;
    std::vector<qint64> places = {0, content, message.bytes / 2, last, random(static_cast<int>(last))};
    std::erase_if(places, [&](qint64 place) { return place < 0 || place > last; });
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}
