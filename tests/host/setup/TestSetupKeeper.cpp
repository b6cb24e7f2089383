// SPDX-License-Identifier: Apache-2.0
// The way from a server's answers to the printer that is set up, against a real cupsd.
#include <host/cups/queues/QueueCache.h>
#include <host/setup/SetupKeeper.h>
#include <tests/support/BackgroundThreads.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/PrivateCupsd.h>
#include <tests/support/Waiting.h>

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>

using host::PpdState;
using host::QueueSession;
using host::SetupKeeper;
using test_support::PpdBuilder;
using test_support::PrivateCupsd;
using test_support::waitUntil;

namespace {

class SetupKeeperTest : public testing::Test {
protected:
    static void SetUpTestSuite() { cupsd = std::make_unique<PrivateCupsd>(); }
    static void TearDownTestSuite() { cupsd.reset(); }

    void SetUp() override
    {
        test_support::awaitBackgroundThreads();
        server.address = cupsd->address();
        server.timeout = test_support::failureTimeout;
        QDir(host::QueueCache(server).folder()).removeRecursively();
        cupsd->addQueue(QStringLiteral("tape"), PpdBuilder().allOptions().ppd());
        cupsd->addQueue(QStringLiteral("labels"), PpdBuilder().options({"KvMirror"}).ppd());
        cupsd->addRawQueue(QStringLiteral("plain"));
    }

    void open(const std::optional<QString> &wanted, const host::SetupRequest &requested = {})
    {
        keeper.reset();
        session.reset();
        test_support::awaitBackgroundThreads();
        session = std::make_unique<QueueSession>(server, wanted);
        keeper = std::make_unique<SetupKeeper>(*session, source, requested);
        failures.clear();
        QObject::connect(session.get(), &QueueSession::failed, keeper.get(),
                         [this](const host::CupsError &error) { failures.append(error.message); });
    }

    /// Opens the destination and waits until the server has reported everything.
    void openAndSettle(const std::optional<QString> &wanted, const host::SetupRequest &requested = {})
    {
        open(wanted, requested);
        session->start(host::Discovery::No);
        EXPECT_TRUE(waitUntil([this] { return session->isSettled() && knows(); }));
    }

    bool knows() const
    {
        return session->ppdState() == PpdState::Current || session->ppdState() == PpdState::Absent;
    }

    QByteArray chosen(const char *name) const
    {
        const auto &choices = keeper->setup()->choices();
        const auto found = std::ranges::find(choices, QByteArray(name), &host::JobChoice::name);
        return found == choices.end() ? QByteArray("(none)") : found->value;
    }

    static void makeDefault(const char *queue)
    {
        cupsd->run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QString::fromLatin1(queue)});
    }

    inline static std::unique_ptr<PrivateCupsd> cupsd;
    const host::PanelSource source{QStringLiteral(KV_BINARY_DIR "/bin"), {}};
    host::CupsServer server;
    std::unique_ptr<QueueSession> session;
    std::unique_ptr<SetupKeeper> keeper;
    QStringList failures;
};

} // namespace

TEST_F(SetupKeeperTest, TheFirstTimeThePrinterComesWithTheServersAnswer)
{
    open(QStringLiteral("tape"));
    EXPECT_FALSE(session->chosen());
    EXPECT_FALSE(keeper->setup());
    EXPECT_EQ(session->chosenName(), QStringLiteral("tape"));
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([this] { return keeper->setup() != nullptr; }));
    EXPECT_EQ(keeper->setup()->destination().queue, QStringLiteral("tape"));
    EXPECT_FALSE(keeper->setup()->panels().empty());
    EXPECT_EQ(failures, QStringList());
}

TEST_F(SetupKeeperTest, TheSecondTimeItIsThereBeforeAnybodyIsAsked)
{
    openAndSettle(QStringLiteral("tape"));
    open(QStringLiteral("tape"));
    ASSERT_TRUE(keeper->setup());
    EXPECT_FALSE(keeper->setup()->panels().empty());
    EXPECT_EQ(session->ppdState(), PpdState::Cached);
    const host::PrinterSetup *const before = keeper->setup();
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([this] { return session->ppdState() == PpdState::Current; }));
    // Nothing is new, so nothing on the screen jumps.
    EXPECT_EQ(keeper->setup(), before);
}

TEST_F(SetupKeeperTest, AQueueThatCameSinceIsFoundThoughTheCacheDoesNotHaveIt)
{
    openAndSettle(QStringLiteral("tape"));
    cupsd->addQueue(QStringLiteral("late"), PpdBuilder().allOptions().ppd());
    openAndSettle(QStringLiteral("late"));
    ASSERT_TRUE(keeper->setup());
    EXPECT_EQ(keeper->setup()->destination().queue, QStringLiteral("late"));
    cupsd->removeQueue(QStringLiteral("late"));
}

TEST_F(SetupKeeperTest, AnotherPpdKeepsWhatWasSetAndTellsWhatIsLost)
{
    openAndSettle(QStringLiteral("tape"));
    keeper->setup()->choose("KvMirror", "ON");
    keeper->setup()->choose("KvCutMark", "ON");
    keeper->setup()->choosePaper(keeper->setup()->ppd().paper("36mm").value());
    int ended = 0;
    QObject::connect(keeper.get(), &SetupKeeper::setupAboutToEnd, [&] { ++ended; });
    cupsd->addQueue(QStringLiteral("tape"), PpdBuilder().options({"KvMirror", "KvHalfCut"}).ppd());
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([&] { return ended > 0 && keeper->setup(); }));
    EXPECT_EQ(keeper->setup()->claimedKeywords().size(), 2);
    EXPECT_EQ(chosen("KvMirror"), QByteArray("ON"));
    EXPECT_EQ(keeper->setup()->paper()->name, QByteArray("36mm"));
    EXPECT_EQ(chosen("KvCutMark"), QByteArray("(none)"));
    const std::vector<host::ChoiceError> &lost = keeper->setup()->choiceErrors();
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_TRUE(lost.front().message.contains(QStringLiteral("KvCutMark")))
        << lost.front().message.toStdString();

    // A choice that was missing in a PPD returns with the PPD that has it.
    const int endedBefore = ended;
    cupsd->addQueue(QStringLiteral("tape"), PpdBuilder().allOptions().ppd());
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([&] { return ended > endedBefore && keeper->setup() && knows(); }));
    EXPECT_EQ(chosen("KvCutMark"), QByteArray("ON"));
    EXPECT_TRUE(keeper->setup()->choiceErrors().empty());
}

TEST_F(SetupKeeperTest, ARefusedWishIsNotForgottenWhenThePpdComesAgain)
{
    host::SetupRequest requested{{{"KvCutMark", "ON"}, {"KvMirror", "ON"}}, "36mm-wide"};
    cupsd->addQueue(QStringLiteral("tape"), PpdBuilder().options({"KvMirror"}).ppd());
    openAndSettle(QStringLiteral("tape"), requested);
    ASSERT_EQ(keeper->setup()->choiceErrors().size(), 2U);
    cupsd->addQueue(QStringLiteral("tape"), PpdBuilder().options({"KvMirror", "KvHalfCut"}).ppd());
    int ended = 0;
    QObject::connect(keeper.get(), &SetupKeeper::setupAboutToEnd, [&] { ++ended; });
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([&] { return ended > 0 && keeper->setup(); }));
    EXPECT_EQ(keeper->setup()->choiceErrors().size(), 2U);
    EXPECT_EQ(chosen("KvMirror"), QByteArray("ON"));
}

TEST_F(SetupKeeperTest, EachQueueKeepsItsChoices)
{
    openAndSettle(QStringLiteral("tape"), {{{"KvMirror", "ON", host::Origin::You}}});
    keeper->setup()->choose("KvHalfCut", "ON");
    session->choose(QStringLiteral("labels"));
    ASSERT_TRUE(waitUntil([this] { return keeper->setup() && knows(); }));
    // What the command line asks for is asked of any queue; what was set here belongs to its queue.
    EXPECT_EQ(chosen("KvMirror"), QByteArray("ON"));
    EXPECT_EQ(chosen("KvHalfCut"), QByteArray("(none)"));
    session->choose(QStringLiteral("tape"));
    ASSERT_TRUE(waitUntil([this] { return keeper->setup() && knows(); }));
    EXPECT_EQ(chosen("KvHalfCut"), QByteArray("ON"));
}

TEST_F(SetupKeeperTest, AQueueWithoutPpdIsSetUpAllTheSame)
{
    openAndSettle(QStringLiteral("plain"));
    ASSERT_TRUE(keeper->setup());
    EXPECT_FALSE(keeper->setup()->hasPpd());
    EXPECT_EQ(failures, QStringList());
}

TEST_F(SetupKeeperTest, ADeletedQueueIsToldAndLeavesWhatIsKnown)
{
    cupsd->addQueue(QStringLiteral("gone"), PpdBuilder().allOptions().ppd());
    openAndSettle(QStringLiteral("gone"));
    cupsd->removeQueue(QStringLiteral("gone"));
    open(QStringLiteral("gone"));
    ASSERT_TRUE(keeper->setup());
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([this] { return !failures.isEmpty(); }));
    EXPECT_TRUE(failures.first().contains(QStringLiteral("gone"))) << failures.first().toStdString();
}

TEST_F(SetupKeeperTest, AnUnknownQueueIsNamedAndNothingElseIsChosen)
{
    open(QStringLiteral("nobody"));
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([this] { return session->isSettled(); }));
    EXPECT_FALSE(session->chosen());
    EXPECT_FALSE(keeper->setup());
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures.first().contains(QStringLiteral("\"nobody\""))) << failures.first().toStdString();
}

TEST_F(SetupKeeperTest, TheDefaultQueueIsChosenAndWithoutOneTheFirst)
{
    cupsd->run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("labels")});
    openAndSettle(std::nullopt);
    ASSERT_TRUE(session->chosen());
    EXPECT_EQ(session->chosen()->queue, QStringLiteral("labels"));
    // What the user sets stands over the server's.
    qputenv("LPDEST", "tape");
    openAndSettle(std::nullopt);
    qunsetenv("LPDEST");
    EXPECT_EQ(session->chosen()->queue, QStringLiteral("tape"));
}

TEST_F(SetupKeeperTest, AnotherDefaultTakesNoPrinterFromUnderTheUser)
{
    for (const bool sets : {false, true}) {
        SCOPED_TRACE(sets);
        makeDefault("tape");
        openAndSettle(std::nullopt);
        ASSERT_EQ(session->chosen()->queue, QStringLiteral("tape"));
        open(std::nullopt);
        ASSERT_TRUE(keeper->setup());
        if (sets)
            keeper->setup()->choose("KvMirror", "ON");
        makeDefault("labels");
        session->start(host::Discovery::No);
        ASSERT_TRUE(waitUntil([this] { return session->isSettled() && knows() && keeper->setup(); }));
        EXPECT_EQ(session->chosen()->queue, sets ? QStringLiteral("tape") : QStringLiteral("labels"));
        EXPECT_EQ(chosen("KvMirror"), sets ? QByteArray("ON") : QByteArray("(none)"));
    }
}

TEST_F(SetupKeeperTest, AReplacedPpdIsNothingThatTheUserHasSet)
{
    makeDefault("tape");
    open(std::nullopt);
    int setups = 0;
    QObject::connect(keeper.get(), &SetupKeeper::setupChanged, [&] {
        if (!keeper->setup())
            return;
        // A panel saves what it finds as soon as it is shown.
        keeper->setup()->announce(*keeper->setup()->panels().front());
        ++setups;
    });
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([&] { return setups == 1 && session->isSettled() && knows(); }));
    EXPECT_EQ(chosen("KvCutMark"), QByteArray("(none)"));
    cupsd->addQueue(QStringLiteral("tape"), PpdBuilder().options({"KvHalfCut", "KvMirror"}).ppd());
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([&] { return setups == 2 && session->isSettled() && knows(); }));
    EXPECT_EQ(chosen("KvCutMark"), QByteArray("(none)"));
    ASSERT_EQ(session->chosen()->queue, QStringLiteral("tape"));
    makeDefault("labels");
    session->start(host::Discovery::No);
    EXPECT_TRUE(waitUntil([this] { return session->chosen()->queue == QStringLiteral("labels"); }));
}

TEST_F(SetupKeeperTest, TheLastDestinationIsKnownAtOnceAndTheOthersFollow)
{
    openAndSettle(QStringLiteral("tape"));
    ASSERT_TRUE(waitUntil([this] { return host::QueueCache(server).last().has_value(); }));
    open(QStringLiteral("tape"));
    EXPECT_EQ(session->destinations().destinations().size(), 1U);
    ASSERT_TRUE(keeper->setup());
    session->start(host::Discovery::No);
    ASSERT_TRUE(waitUntil([this] { return session->destinations().destinations().size() >= 3; }));
    // Another one is looked for among all.
    open(QStringLiteral("labels"));
    EXPECT_GE(session->destinations().destinations().size(), 3U);
    ASSERT_TRUE(session->chosen());
    EXPECT_EQ(session->chosen()->queue, QStringLiteral("labels"));
}
