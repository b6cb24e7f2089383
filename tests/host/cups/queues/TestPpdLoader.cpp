// SPDX-License-Identifier: Apache-2.0
#include <host/cups/queues/PpdLoader.h>
#include <host/cups/queues/QueueCache.h>
#include <tests/servers/FaultyServer.h>
#include <tests/servers/Servers.h>
#include <tests/support/FaultProxy.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/PrivateCupsd.h>
#include <tests/support/SpecialFiles.h>
#include <tests/support/Waiting.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using host::CupsErrorKind;
using host::CupsServer;
using host::Destination;
using host::PpdFile;
using host::PpdLoader;
using test_support::PpdBuilder;
using test_support::PrivateCupsd;
using test_support::waitUntil;

namespace {

const QString tape = QStringLiteral("tape");

/// What a loader reported for one request.
struct LoadOutcome {
    std::shared_ptr<PpdFile> ppd;
    bool unchanged = false;
    bool absent = false;
    std::optional<host::CupsError> error;

    bool isThere() const { return ppd || unchanged || absent || error; }
};

class PpdLoaderTest : public testing::Test {
protected:
    static void SetUpTestSuite() { cupsd = std::make_unique<PrivateCupsd>(); }
    static void TearDownTestSuite() { cupsd.reset(); }

    void SetUp() override
    {
        server = serverAt(cupsd->address());
        QDir(host::QueueCache(server).folder()).removeRecursively();
        cupsd->addQueue(tape, PpdBuilder().allOptions().ppd());
    }

    LoadOutcome load(const QString &queue) const { return load(queue, server); }
    static LoadOutcome load(const QString &queue, const CupsServer &from)
    {
        PpdLoader loader(from);
        loader.cached(queue);
        LoadOutcome outcome;
        QObject::connect(&loader, &PpdLoader::loaded, [&](const QString &name, const auto &ppd) {
            EXPECT_EQ(name, queue);
            outcome.ppd = ppd;
        });
        QObject::connect(&loader, &PpdLoader::unchanged, [&] { outcome.unchanged = true; });
        QObject::connect(&loader, &PpdLoader::absent, [&] { outcome.absent = true; });
        QObject::connect(&loader, &PpdLoader::failed,
                         [&](const QString &, const host::CupsError &error) { outcome.error = error; });
        Destination destination;
        destination.queue = queue;
        loader.load(destination);
        EXPECT_TRUE(waitUntil([&] { return outcome.isThere(); }));
        return outcome;
    }

    inline static std::unique_ptr<PrivateCupsd> cupsd;
    CupsServer server;
};

} // namespace

TEST_F(PpdLoaderTest, BringsThePpdOnceAndThenKnowsIt)
{
    EXPECT_FALSE(PpdLoader(server).cached(tape));
    const LoadOutcome first = load(tape);
    ASSERT_TRUE(first.ppd);
    EXPECT_TRUE(first.ppd->hasOption(QStringLiteral("KvHalfCut")));
    const std::optional<PpdFile> cached = PpdLoader(server).cached(tape);
    ASSERT_TRUE(cached);
    EXPECT_TRUE(cached->hasOption(QStringLiteral("KvHalfCut")));
    EXPECT_TRUE(load(tape).unchanged);
}

TEST_F(PpdLoaderTest, APpdThatWasReplacedBetweenTwoOpeningsIsSeenEvenWithinTheSameSecond)
{
    ASSERT_TRUE(load(tape).ppd);
    cupsd->addQueue(tape, PpdBuilder().option("KvMirror").ppd());
    const LoadOutcome second = load(tape);
    ASSERT_TRUE(second.ppd);
    EXPECT_TRUE(second.ppd->hasOption(QStringLiteral("KvMirror")));
    EXPECT_FALSE(second.ppd->hasOption(QStringLiteral("KvHalfCut")));
}

TEST_F(PpdLoaderTest, AClassHasThePpdOfItsFirstQueue)
{
    cupsd->addClass(QStringLiteral("all"), {tape});
    const LoadOutcome outcome = load(QStringLiteral("all"));
    ASSERT_TRUE(outcome.ppd);
    EXPECT_TRUE(outcome.ppd->hasOption(QStringLiteral("KvHalfCut")));
}

TEST_F(PpdLoaderTest, QueuesWithoutPpdAndQueuesThatAreGoneHaveNone)
{
    cupsd->addRawQueue(QStringLiteral("plain"));
    EXPECT_TRUE(load(QStringLiteral("plain")).absent);

    ASSERT_TRUE(load(tape).ppd);
    cupsd->removeQueue(tape);
    EXPECT_TRUE(load(tape).absent);
    EXPECT_FALSE(PpdLoader(server).cached(tape));
}

TEST_F(PpdLoaderTest, WithoutAServerTheCachedPpdStays)
{
    ASSERT_TRUE(load(tape).ppd);
    // The cache is stored under the server's name, even after the server has ended.
    cupsd->kill();
    const LoadOutcome outcome = load(tape);
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Unreachable) << qPrintable(outcome.error->message);
    EXPECT_TRUE(PpdLoader(server).cached(tape));
    cupsd->restart();
}

TEST_F(PpdLoaderTest, AConnectionThatBreaksBeforeTheAnswerIsToldAndTheCachedPpdStays)
{
    ASSERT_TRUE(load(tape).ppd);
    const test_support::FaultProxy breaking(
        cupsd->port(), {.kind = test_support::ProxyFault::Kind::Cut, .byte = 10, .isLinkDown = true});
    const CupsServer through = serverAt(breaking.address());
    const host::QueueCache cache(through);
    cache.storePpd(tape, PpdBuilder().allOptions().ppd(), 1);
    const LoadOutcome outcome = load(tape, through);
    ASSERT_TRUE(outcome.error);
    EXPECT_EQ(outcome.error->kind, CupsErrorKind::Unreachable);
    EXPECT_EQ(outcome.error->message,
              QStringLiteral("The connection to the print server \"%1\" was lost.").arg(breaking.address()));
    EXPECT_TRUE(PpdLoader(through).cached(tape));
}

TEST_F(PpdLoaderTest, APpdMayComeInPieces)
{
    const FaultyServer halting(cupsd->port(), {.gap = 300});
    const LoadOutcome outcome = load(tape, serverAt(halting.address()));
    EXPECT_TRUE(outcome.ppd) << qPrintable(outcome.error->message);
}

TEST_F(PpdLoaderTest, ADamagedPpdIsToldAndNotKept)
{
    // Put in place behind the server's back: it would reject such a PPD.
    const QString file = cupsd->path(QStringLiteral("etc/ppd/tape.ppd"));
    QFile ppd(file);
    ASSERT_TRUE(ppd.open(QIODevice::ReadWrite));
    const QByteArray whole = ppd.readAll();
    ASSERT_TRUE(ppd.resize(whole.indexOf("*NickName: \"") + 14));
    const LoadOutcome outcome = load(tape);
    ASSERT_TRUE(outcome.error);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("incomplete")))
        << qPrintable(outcome.error->message);
    EXPECT_FALSE(PpdLoader(server).cached(tape));
}

TEST_F(PpdLoaderTest, APpdLargerThanAnyPrintersIsRefusedWithoutFillingTheDisk)
{
    const QString file = cupsd->path(QStringLiteral("etc/ppd/tape.ppd"));
    QFile ppd(file);
    ASSERT_TRUE(ppd.open(QIODevice::Append));
    ASSERT_TRUE(ppd.resize(50LL * 1024 * 1024));
    const LoadOutcome outcome = load(tape);
    ASSERT_TRUE(outcome.error);
    EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("larger than 16 MB")))
        << qPrintable(outcome.error->message);
    EXPECT_FALSE(PpdLoader(server).cached(tape));
}

TEST_F(PpdLoaderTest, APpdBehindAPasswordIsFetched)
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "anna:secret"});
    CupsServer other = serverAt(guarded.address());
    other.askPassword = [](const host::PasswordRequest &request) {
        request.answer(QStringLiteral("anna"), QStringLiteral("secret"));
    };
    EXPECT_TRUE(load(tape, other).ppd);
}

TEST_F(PpdLoaderTest, AQueueNameMayHoldWhatAFileNameMayNot)
{
    const QString name = QStringLiteral("tape%41.é+");
    cupsd->addQueue(name, PpdBuilder().allOptions().ppd());
    ASSERT_TRUE(load(name).ppd);
    EXPECT_TRUE(load(name).unchanged);
    const QString kept = *host::QueueCache(server).ppdPath(name);
    EXPECT_TRUE(QFileInfo(kept).fileName().endsWith(QStringLiteral(".ppd")));
}

TEST_F(PpdLoaderTest, WhatIsKeptIsForThisUserOnly)
{
    const test_support::UmaskScope scope(0);
    const QString folder = host::QueueCache(server).folder();
    const QString program = QFileInfo(QFileInfo(folder).path()).path();
    EXPECT_EQ(QFileInfo(program).fileName(), QStringLiteral("kvprint"));
    // As earlier versions have made them.
    ASSERT_TRUE(QDir().mkpath(folder));
    for (const QString &open : {folder, program})
        ASSERT_EQ(::chmod(QFile::encodeName(open).constData(), 0755), 0);
    ASSERT_TRUE(load(tape).ppd);
    const QString ppd = *host::QueueCache(server).ppdPath(tape);
    EXPECT_EQ(test_support::permissionsOf(ppd), 0600U);
    for (const QString &own : {QFileInfo(ppd).path(), folder, QFileInfo(folder).path(), program})
        EXPECT_EQ(test_support::permissionsOf(own), 0700U) << own.toStdString();
}
