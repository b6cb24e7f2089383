// SPDX-License-Identifier: Apache-2.0
#include <host/cups/queues/DestinationList.h>
#include <host/cups/queues/QueueCache.h>
#include <host/cups/queues/QueueMonitor.h>
#include <tests/servers/FaultyServer.h>
#include <tests/servers/Servers.h>
#include <tests/support/BackgroundThreads.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/PrivateCupsd.h>
#include <tests/support/Waiting.h>

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using host::CupsErrorKind;
using host::CupsServer;
using host::Destination;
using host::DestinationList;
using host::QueueState;
using test_support::PpdBuilder;
using test_support::PrivateCupsd;
using test_support::turnEventLoop;
using test_support::waitUntil;

namespace {

QStringList names(const DestinationList &list)
{
    QStringList all;
    for (const Destination &each : list.destinations())
        all.append(each.name() + (each.isDefault ? QStringLiteral("*") : QString()));
    return all;
}

/// The outcome of one request.
struct RefreshOutcome {
    bool refreshed = false;
    std::optional<host::CupsError> error;
};

RefreshOutcome refresh(DestinationList &list, host::Discovery discovery = host::Discovery::No)
{
    RefreshOutcome outcome;
    QObject context;
    QObject::connect(&list, &DestinationList::refreshed, &context, [&] { outcome.refreshed = true; });
    QObject::connect(&list, &DestinationList::failed, &context,
                     [&](const host::CupsError &error) { outcome.error = error; });
    list.refresh(discovery);
    EXPECT_TRUE(waitUntil([&] { return outcome.refreshed || outcome.error; }));
    return outcome;
}

class DestinationListTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        cupsd = std::make_unique<PrivateCupsd>();
        cupsd->addQueue(QStringLiteral("narrow"), PpdBuilder().ppd(),
                        {QStringLiteral("-D"), QStringLiteral("Narrow tape"), QStringLiteral("-L"),
                         QStringLiteral("Attic"), QStringLiteral("-o"),
                         QStringLiteral("job-priority-default=70")});
        cupsd->addQueue(QStringLiteral("wide"), PpdBuilder().ppd());
        cupsd->addRawQueue(QStringLiteral("plain"));
        cupsd->addClass(QStringLiteral("both"), {QStringLiteral("narrow"), QStringLiteral("wide")});
        cupsd->run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("wide")});
    }
    static void TearDownTestSuite() { cupsd.reset(); }

    void SetUp() override
    {
        server = serverAt(cupsd->address());
        forget();
    }
    void TearDown() override { forget(); }

    void forget()
    {
        qunsetenv("LPDEST");
        qunsetenv("PRINTER");
        QFile::remove(lpOptionsPath());
        QDir(host::QueueCache(server).folder()).removeRecursively();
    }
    static QString lpOptionsPath()
    {
        return qEnvironmentVariable("HOME") + QStringLiteral("/.cups/lpoptions");
    }
    static void writeLpOptions(const QByteArray &text)
    {
        QDir().mkpath(qEnvironmentVariable("HOME") + QStringLiteral("/.cups"));
        QFile file(lpOptionsPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    inline static std::unique_ptr<PrivateCupsd> cupsd;
    CupsServer server;
};

} // namespace

TEST_F(DestinationListTest, ListsQueuesClassesAndTheDefault)
{
    DestinationList list(server);
    EXPECT_TRUE(list.isStale());
    EXPECT_TRUE(list.destinations().empty());
    ASSERT_TRUE(refresh(list).refreshed);
    EXPECT_FALSE(list.isStale());
    EXPECT_EQ(names(list), (QStringList{QStringLiteral("both"), QStringLiteral("narrow"),
                                        QStringLiteral("plain"), QStringLiteral("wide*")}));

    const Destination *const narrow = list.find(QStringLiteral("narrow"));
    ASSERT_TRUE(narrow);
    EXPECT_EQ(narrow->description, QStringLiteral("Narrow tape"));
    EXPECT_EQ(narrow->location, QStringLiteral("Attic"));
    EXPECT_EQ(narrow->state, QueueState::Ready);
    EXPECT_TRUE(narrow->acceptsJobs);
    EXPECT_FALSE(narrow->isClass);
    ASSERT_TRUE(host::findValue(narrow->queueOptions, "job-priority"));
    EXPECT_EQ(*host::findValue(narrow->queueOptions, "job-priority"), "70");

    const Destination *const both = list.find(QStringLiteral("both"));
    ASSERT_TRUE(both);
    EXPECT_TRUE(both->isClass);
    EXPECT_EQ(both->members, (QStringList{QStringLiteral("narrow"), QStringLiteral("wide")}));
    EXPECT_EQ(list.defaultDestination()->name(), QStringLiteral("wide"));
}

TEST_F(DestinationListTest, InstancesStandBehindTheirQueuesEvenWhenTheQueueHasNoOptionsOfItsOwn)
{
    writeLpOptions("Dest narrow/draft KvHalfCut=OFF PageSize='A B'\nDest wide sides=one-sided\n"
                   "Dest gone/x a=b\nnonsense\n");
    DestinationList list(server);
    ASSERT_TRUE(refresh(list).refreshed);
    EXPECT_EQ(names(list),
              (QStringList{QStringLiteral("both"), QStringLiteral("narrow"), QStringLiteral("narrow/draft"),
                           QStringLiteral("plain"), QStringLiteral("wide*")}));
    EXPECT_EQ(list.find(QStringLiteral("narrow/draft"))->userOptions,
              (std::vector<host::NamedValue>{{"KvHalfCut", "OFF"}, {"PageSize", "A B"}}));
    EXPECT_TRUE(list.find(QStringLiteral("narrow"))->userOptions.empty());
    EXPECT_EQ(list.find(QStringLiteral("wide"))->userOptions,
              (std::vector<host::NamedValue>{{"sides", "one-sided"}}));
    // lp uses the queue for an instance that does not exist.
    EXPECT_EQ(list.find(QStringLiteral("wide/never"))->name(), QStringLiteral("wide"));
    EXPECT_EQ(list.find(QStringLiteral("never")), nullptr);
}

TEST_F(DestinationListTest, TheDefaultIsTheUsersBeforeTheServers)
{
    struct Row {
        const char *lpdest;
        const char *printer;
        const char *lpOptions;
        const char *expected;
    };
    const Row rows[] = {
        {nullptr, nullptr, "", "wide"},
        {nullptr, nullptr, "Default narrow\n", "narrow"},
        {nullptr, nullptr, "Default narrow/draft a=b\n", "narrow/draft"},
        {nullptr, "plain", "Default narrow\n", "plain"},
        {nullptr, "lp", "Default narrow\n", "narrow"},
        {"both", "plain", "Default narrow\n", "both"},
        {"narrow/draft", nullptr, "Dest narrow/draft a=b\n", "narrow/draft"},
        {"absent", nullptr, "", nullptr},
    };
    for (const Row &row : rows) {
        forget();
        if (row.lpdest)
            qputenv("LPDEST", row.lpdest);
        if (row.printer)
            qputenv("PRINTER", row.printer);
        writeLpOptions(row.lpOptions);
        DestinationList list(server);
        ASSERT_TRUE(refresh(list).refreshed);
        const Destination *const found = list.defaultDestination();
        EXPECT_EQ(found ? found->name() : QString(), QString::fromLatin1(row.expected)) << row.lpOptions;
    }
}

TEST_F(DestinationListTest, ShowsWhatWasKnownLastTimeUntilTheServerAnswers)
{
    writeLpOptions("Dest narrow/draft KvHalfCut=OFF\n");
    std::vector<Destination> known;
    {
        DestinationList list(server);
        ASSERT_TRUE(refresh(list).refreshed);
        known = list.destinations();
    }
    DestinationList list(server);
    EXPECT_TRUE(list.isStale());
    EXPECT_EQ(list.destinations(), known);
    int changes = 0;
    QObject::connect(&list, &DestinationList::changed, [&] { ++changes; });
    ASSERT_TRUE(refresh(list).refreshed);
    EXPECT_FALSE(list.isStale());
    EXPECT_EQ(changes, 0);

    QFile damaged(host::QueueCache(server).folder() + QStringLiteral("/queues.cbor"));
    ASSERT_TRUE(damaged.resize(damaged.size() / 2));
    EXPECT_TRUE(DestinationList(server).destinations().empty());
}

TEST_F(DestinationListTest, AServerThatIsNotThereOrSilentIsToldInWords)
{
    const test_support::ReservedPort refusing;
    const FaultyServer silent(0, {.silent = true});

    const std::tuple<CupsServer, CupsErrorKind, const char *> rows[] = {
        {serverAt(refusing.address()), CupsErrorKind::Unreachable, "Cannot connect to the print server"},
        {silentServerAt(silent.address()), CupsErrorKind::Silent, "does not respond"},
        {serverAt(QStringLiteral("/nonexistent/cups.sock")), CupsErrorKind::Unreachable,
         "/nonexistent/cups.sock"},
    };
    for (const auto &[other, kind, words] : rows) {
        const QString address = *other.address;
        DestinationList list(other);
        const RefreshOutcome outcome = refresh(list);
        ASSERT_TRUE(outcome.error) << qPrintable(address);
        EXPECT_EQ(outcome.error->kind, kind) << qPrintable(outcome.error->message);
        EXPECT_TRUE(outcome.error->message.contains(QLatin1String(words)))
            << qPrintable(outcome.error->message);
        EXPECT_TRUE(outcome.error->message.contains(address)) << qPrintable(outcome.error->message);
    }
}

TEST_F(DestinationListTest, NothingWaitsForASilentServer)
{
    const FaultyServer silent(0, {.silent = true});
    server.address = silent.address();
    // A constructor, a refresh or a destructor that waited for the answer would never return.
    DestinationList list(server);
    list.refresh();
    host::QueueMonitor monitor(server, QStringLiteral("narrow"), std::nullopt);
    EXPECT_TRUE(waitUntil([&] { return silent.connectionCount() >= 2; }));
}

TEST_F(DestinationListTest, ASlowServerTakesItsTimeAndNoMore)
{
    FaultyServer slow(cupsd->port(), {.holds = true});
    server.address = slow.address();
    DestinationList list(server);
    bool refreshed = false;
    QObject::connect(&list, &DestinationList::refreshed, [&] { refreshed = true; });
    list.refresh();
    EXPECT_TRUE(waitUntil([&] { return slow.heldCount() == 1; }));
    turnEventLoop();
    EXPECT_FALSE(refreshed);
    slow.release();
    EXPECT_TRUE(waitUntil([&] { return refreshed; }));
    EXPECT_EQ(list.destinations().size(), 4U);
    // Only one request: on a slow connection more would delay the dialog.
    EXPECT_EQ(slow.requestCount(), 1);
}

TEST_F(DestinationListTest, AnAnswerMayComeInPieces)
{
    const FaultyServer halting(cupsd->port(), {.gap = 300});
    server.address = halting.address();
    DestinationList list(server);
    const RefreshOutcome outcome = refresh(list);
    EXPECT_TRUE(outcome.refreshed) << qPrintable(outcome.error->message);
    EXPECT_EQ(list.destinations().size(), 4U);
    EXPECT_EQ(halting.requestCount(), 1);
}

TEST_F(DestinationListTest, APasswordIsAskedForOnceAndRemembered)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "anna:secret"});
    server.address = guarded.address();
    server.user = QStringLiteral("berta");
    int asked = 0;
    server.askPassword = [&](const host::PasswordRequest &request) {
        ++asked;
        EXPECT_EQ(request.user(), QStringLiteral("berta"));
        EXPECT_TRUE(request.prompt().contains(QStringLiteral("127.0.0.1"))) << qPrintable(request.prompt());
        request.answer(QStringLiteral("anna"), QStringLiteral("secret"));
    };
    DestinationList list(server);
    EXPECT_TRUE(refresh(list).refreshed);
    EXPECT_EQ(list.destinations().size(), 4U);
    EXPECT_TRUE(refresh(list).refreshed);
    EXPECT_EQ(asked, 1);
}

/// libcups searches the network on the thread whose connection gave the password.
TEST_F(DestinationListTest, TheSearchOfTheNetworkAsksTheServerNothing)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "anna:secret"});
    server.address = guarded.address();
    int asked = 0;
    server.askPassword = [&](const host::PasswordRequest &request) {
        ++asked;
        request.answer(QStringLiteral("anna"), QStringLiteral("secret"));
    };
    constexpr int times = 8;
    for (int time = 0; time < times; ++time) {
        DestinationList list(server);
        EXPECT_TRUE(refresh(list, host::Discovery::Yes).refreshed);
    }
    test_support::awaitBackgroundThreads();
    EXPECT_EQ(asked, 1);
    // Each list is asked for without the password and with it.
    EXPECT_EQ(guarded.connectionCount(), 2 * times);
}

TEST_F(DestinationListTest, TheConnectionIsEncryptedWhenAskedFor)
{
    server.encryption = host::Encryption::Required;
    DestinationList list(server);
    const RefreshOutcome outcome = refresh(list);
    EXPECT_TRUE(outcome.refreshed) << qPrintable(outcome.error->message);
    EXPECT_TRUE(cupsd->log().contains("Connection now encrypted")) << cupsd->log().toStdString();

    // In clear rather than not at all would be no encryption.
    const FaultyServer silent(0, {.silent = true});
    CupsServer silentServer = silentServerAt(silent.address());
    silentServer.encryption = host::Encryption::Required;
    DestinationList other(silentServer);
    EXPECT_EQ(refresh(other).error->kind, CupsErrorKind::Silent);
}

TEST_F(DestinationListTest, ARefusedPasswordIsAnError)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "anna:secret"});
    server.address = guarded.address();
    for (const bool asks : {true, false}) {
        server.askPassword = asks ? host::PasswordHandler([](const auto &request) { request.reject(); })
                                  : host::PasswordHandler();
        DestinationList list(server);
        const RefreshOutcome outcome = refresh(list);
        ASSERT_TRUE(outcome.error);
        EXPECT_EQ(outcome.error->kind, CupsErrorKind::NotAuthorized) << qPrintable(outcome.error->message);
    }
}

TEST_F(DestinationListTest, TheChosenQueueIsWatched)
{
    cupsd->addQueue(QStringLiteral("watched"), PpdBuilder().ppd());
    host::QueueMonitor monitor(server, QStringLiteral("watched"), QStringLiteral("draft"),
                               std::chrono::milliseconds(20));
    std::optional<Destination> last;
    std::optional<host::CupsError> error;
    QObject::connect(&monitor, &host::QueueMonitor::changed, [&](const Destination &now) { last = now; });
    QObject::connect(&monitor, &host::QueueMonitor::failed, [&](const host::CupsError &now) { error = now; });

    EXPECT_TRUE(waitUntil([&] { return last && last->state == QueueState::Ready; }));
    EXPECT_EQ(last->name(), QStringLiteral("watched/draft"));
    cupsd->pause(QStringLiteral("watched"), QStringLiteral("Roll is being changed"));
    EXPECT_TRUE(waitUntil([&] { return last->state == QueueState::Paused; }));
    EXPECT_EQ(last->stateMessage, QStringLiteral("Roll is being changed"));
    cupsd->resume(QStringLiteral("watched"));
    EXPECT_TRUE(waitUntil([&] { return last->state == QueueState::Ready; }));
    EXPECT_FALSE(error);
    cupsd->removeQueue(QStringLiteral("watched"));
    EXPECT_TRUE(waitUntil([&] { return error.has_value(); }));
    EXPECT_EQ(error->kind, CupsErrorKind::NotFound) << qPrintable(error->message);
}
