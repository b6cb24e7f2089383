// SPDX-License-Identifier: Apache-2.0
// Printers of the network, for which a server makes a queue when they are used. The printer is a queue that
// another real cupsd shares by IPP; how printers announce themselves is left to libcups.

#include <host/cups/jobs/JobSubmission.h>
#include <host/cups/queues/DestinationQuery.h>
#include <host/cups/queues/DiscoveredQueue.h>
#include <host/cups/queues/PpdLoader.h>
#include <host/cups/queues/QueueCache.h>
#include <host/cups/queues/QueueSession.h>
#include <tests/servers/FaultyServer.h>
#include <tests/servers/Servers.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/PrivateCupsd.h>
#include <tests/support/Waiting.h>

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using host::CupsError;
using host::CupsErrorKind;
using host::Destination;
using host::Result;
using test_support::PpdBuilder;
using test_support::PrivateCupsd;
using test_support::turnEventLoop;
using test_support::waitUntil;

namespace {

class DiscoveredQueueTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        cupsd = std::make_unique<PrivateCupsd>();
        // What packages of filters bring: documents may go on as they are.
        QFile conversions(cupsd->path(QStringLiteral("etc/local.convs")));
        ASSERT_TRUE(conversions.open(QIODevice::WriteOnly));
        conversions.write("application/pdf application/vnd.cups-pdf 0 -\n");
        conversions.close();
        cupsd->kill();
        cupsd->restart();
        printer = std::make_unique<PrivateCupsd>();
        printer->addQueue(QStringLiteral("labels"), PpdBuilder().paper("W62H29", 176, 82).ppd());
    }
    static void TearDownTestSuite()
    {
        cupsd.reset();
        printer.reset();
    }

    void SetUp() override
    {
        server = serverAt(cupsd->address());
        QDir(host::QueueCache(server).folder()).removeRecursively();
        found.queue = QStringLiteral("found");
        found.description = QStringLiteral("Labels in the shop");
        found.deviceUri = QStringLiteral("ipp://%1/printers/labels").arg(printer->address());
        found.isDiscovered = true;
    }
    void TearDown() override
    {
        if (serverHas(found.queue))
            cupsd->removeQueue(found.queue);
    }

    /// Does the work as a task in the background does it.
    template<typename Work>
    auto connected(Work work) const
    {
        host::BackgroundTask task;
        Result<host::CupsConnection, CupsError> connection = host::CupsConnection::open(server, task);
        EXPECT_TRUE(connection);
        return work(connection.value(), task);
    }
    host::Result<void, CupsError> ensure(std::chrono::milliseconds time = test_support::failureTimeout) const
    {
        return connected([&](host::CupsConnection &connection, host::BackgroundTask &task) {
            return host::ensureQueue(connection, found, task, time);
        });
    }
    Result<Destination, CupsError> query(const QString &queue) const
    {
        return connected([&](host::CupsConnection &connection, host::BackgroundTask &) {
            return host::queryDestination(connection, queue, std::nullopt);
        });
    }
    /// How many queues the server has made for printers of the network.
    static qsizetype createdQueues()
    {
        QFile log(cupsd->path(QStringLiteral("log/error")));
        EXPECT_TRUE(log.open(QIODevice::ReadOnly));
        return log.readAll().count("successful-ok: Local printer created");
    }
    bool serverHas(const QString &queue) const { return static_cast<bool>(query(queue)); }

    inline static std::unique_ptr<PrivateCupsd> cupsd;
    inline static std::unique_ptr<PrivateCupsd> printer;
    host::CupsServer server;
    Destination found;
};

} // namespace

TEST_F(DiscoveredQueueTest, IsMadeOnceAndIsReadyThen)
{
    const qsizetype before = createdQueues();
    for (int use = 0; use < 3; ++use) {
        const host::Result<void, CupsError> made = ensure();
        ASSERT_TRUE(made) << qPrintable(made.error().message);
        const Result<Destination, CupsError> now = query(found.queue);
        ASSERT_TRUE(now);
        EXPECT_EQ(now.value().state, host::QueueState::Ready);
        EXPECT_TRUE(now.value().acceptsJobs);
        EXPECT_TRUE(now.value().isDiscovered) << "it will be dropped, and has to be made again then";
        EXPECT_EQ(now.value().description, found.description);
    }
    EXPECT_EQ(createdQueues(), before + 1);
}

TEST_F(DiscoveredQueueTest, NothingIsMadeForQueuesOfTheServer)
{
    found.isDiscovered = false;
    EXPECT_TRUE(ensure());
    EXPECT_FALSE(serverHas(found.queue));
}

TEST_F(DiscoveredQueueTest, ThePpdComesWithTheFirstQuestion)
{
    host::PpdLoader loader(server);
    std::shared_ptr<host::PpdFile> ppd;
    QString failure;
    QObject::connect(&loader, &host::PpdLoader::loaded, [&](const QString &, const auto &its) { ppd = its; });
    QObject::connect(&loader, &host::PpdLoader::absent, [&] { failure = QStringLiteral("absent"); });
    QObject::connect(&loader, &host::PpdLoader::failed,
                     [&](const QString &, const CupsError &error) { failure = error.message; });
    loader.load(found);
    ASSERT_TRUE(waitUntil([&] { return ppd || !failure.isEmpty(); }));
    ASSERT_TRUE(ppd) << qPrintable(failure);
    EXPECT_FALSE(ppd->papers().empty());
}

TEST_F(DiscoveredQueueTest, AJobIsTakenThoughTheQueueWasDropped)
{
    ASSERT_TRUE(ensure());
    cupsd->removeQueue(found.queue);
    host::JobTicket ticket;
    ticket.destination = found;
    ticket.title = QStringLiteral("Labels");
    ticket.documents = {{QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf")}};
    host::JobSubmission submission(server);
    std::optional<int> jobId;
    QString failure;
    QObject::connect(&submission, &host::JobSubmission::submitted, [&](int id) { jobId = id; });
    QObject::connect(&submission, &host::JobSubmission::failed,
                     [&](const CupsError &error) { failure = error.message; });
    submission.submit(ticket);
    EXPECT_TRUE(waitUntil([&] { return jobId || !failure.isEmpty(); }));
    ASSERT_TRUE(jobId) << qPrintable(failure);
    // All the way to the printer.
    EXPECT_FALSE(printer->waitForDocuments(1).front().content.isEmpty());
}

TEST_F(DiscoveredQueueTest, APrinterThatIsGoneIsTold)
{
    const struct {
        const char *address;
        const char *words;
    } rows[] = {
        // The address no longer has a listening printer.
        {"ipp://127.0.0.1:1/ipp/print", "cannot reach the printer \"found\""},
        // The name is no longer announced.
        {"ipp://Labels%20upstairs._ipp._tcp.local/", "\"found\" is no longer on the network"},
    };
    for (const auto &row : rows) {
        found.deviceUri = QLatin1String(row.address);
        const host::Result<void, CupsError> made = ensure(std::chrono::milliseconds(700));
        ASSERT_FALSE(made);
        EXPECT_EQ(made.error().kind, CupsErrorKind::NotFound);
        EXPECT_TRUE(made.error().message.contains(QLatin1String(row.words)))
            << qPrintable(made.error().message);
        if (serverHas(found.queue))
            cupsd->removeQueue(found.queue);
    }
}

TEST_F(DiscoveredQueueTest, AQueueThatTheServerDropsIsNotMissed)
{
    ASSERT_TRUE(ensure());
    const FaultyServer counting(cupsd->port(), {});
    host::QueueSession session(serverAt(counting.address()), found.queue);
    QStringList failures;
    QObject::connect(&session, &host::QueueSession::failed,
                     [&](const CupsError &error) { failures.append(error.message); });
    session.start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([&] { return session.chosen() && session.ppdState() == host::PpdState::Current; }));
    cupsd->removeQueue(found.queue);
    // The first question from now on may have been answered before; when the third one comes, what the
    // second one found has been delivered.
    const int before = counting.requestCount(IPP_OP_GET_PRINTER_ATTRIBUTES);
    EXPECT_TRUE(
        waitUntil([&] { return counting.requestCount(IPP_OP_GET_PRINTER_ATTRIBUTES) >= before + 2; }));
    turnEventLoop();
    EXPECT_EQ(failures, QStringList());
    EXPECT_EQ(session.chosen()->queue, found.queue);
}

TEST(DiscoveredPrinters, AreKnownByTheirNamesAndAddresses)
{
    const struct {
        const char *queue;
        const char *deviceUri;
        bool isSame;
    } rows[] = {
        {"Labels_shop", "", true},
        {"Other", "", false},
        {"Other", "ipps://Labels%20%40%20shop._ipps._tcp.local/cups", true},
        {"Other", "ipp://Labels%20%40%20shop._ipp._tcp.local/cups", true},
        {"Other", "dnssd://Labels%20%40%20shop._ipp._tcp.local/?uuid=1", true},
        {"Other", "dnssd://Labels%20%40%20shop._pdl-datastream._tcp.local./", true},
        {"Other", "dnssd://Labels._ipp._tcp.local/", false},
        {"Other", "usb://Labels%20%40%20shop", false},
        {"Other", "socket://192.0.2.7", false},
        {"Other", "._tcp", false},
    };
    Destination printer;
    printer.queue = QStringLiteral("Labels_shop");
    printer.deviceUri = QStringLiteral("ipps://Labels%20%40%20shop._ipps._tcp.local/cups");
    for (const auto &row : rows) {
        Destination other;
        other.queue = QLatin1String(row.queue);
        other.deviceUri = QLatin1String(row.deviceUri);
        EXPECT_EQ(isSamePrinter(printer, other), row.isSame) << row.deviceUri;
        EXPECT_EQ(isSamePrinter(other, printer), row.isSame) << row.deviceUri;
    }
}
