// SPDX-License-Identifier: Apache-2.0
// The dialog opens before the server has answered, and no server can block it.
#include "QueueDialogFixture.h"

#include <host/cups/queues/PpdLoader.h>
#include <host/cups/queues/QueueCache.h>
#include <tests/samples/OptionsPpd.h>
#include <tests/samples/SamplePpd.h>
#include <tests/servers/FaultyServer.h>
#include <tests/support/FaultProxy.h>

#include <QApplication>
#include <QLineEdit>

using test_support::turnEventLoop;

namespace {

class OpeningTest : public QueueDialogTest {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("tape"), tapePpd());
    }
};

} // namespace

TEST_F(OpeningTest, WhatIsKnownFromLastTimeIsShownWhileTheServerIsSilent)
{
    fillCache(QStringLiteral("tape"));
    const FaultyServer silent(0, {.silent = true});
    const host::CupsServer server = knownServer(silent.address());
    open(QStringLiteral("tape"), server);
    EXPECT_EQ(tabs().first(), QStringLiteral("Cut Options"));
    EXPECT_TRUE(panelBox("mHalfCutChkBx")->isVisible());
    ASSERT_TRUE(papers());
    EXPECT_EQ(papers()->currentItem()->text(), QStringLiteral("Tape 24 mm x 60 mm"));
    EXPECT_EQ(state(), QStringLiteral("Last known state: Ready."));
    EXPECT_EQ(destinations()->currentText(), QStringLiteral("tape"));
    EXPECT_TRUE(button(QStringLiteral("Print"))->isEnabled());
    // It can be used all the while.
    Hands::click(panelBox("mMirrorPrintChkBx"));
    EXPECT_TRUE(panelBox("mMirrorPrintChkBx")->isChecked());
    choosePaper(QStringLiteral("Labels 52 mm x 75 mm"));
    // All that is asked has reached the server: the queues, the PPD and the state.
    EXPECT_TRUE(waitUntil([&] { return silent.connectionCount() >= 3; }));
    turnEventLoop();
    EXPECT_EQ(told(), QString());
}

TEST_F(OpeningTest, WithNothingKnownItWaitsInWordsAndBecomesUsable)
{
    FaultyServer slow(cupsd->port(), {.holds = true});
    open(QStringLiteral("tape"), serverAt(slow.address()));
    EXPECT_TRUE(waitUntil([&] { return slow.heldCount() > 0; }));
    turnEventLoop();
    EXPECT_FALSE(button(QStringLiteral("Print"))->isEnabled());
    EXPECT_EQ(state(), QStringLiteral("Waiting for the print server\u2026"));
    EXPECT_TRUE(isSeen(QStringLiteral("Waiting for the print server\u2026")));
    EXPECT_EQ(destinations()->currentText(), QStringLiteral("tape"));
    EXPECT_FALSE(papers());
    slow.release();
    ASSERT_TRUE(waitUntil([this] { return isSettled(); }));
    QApplication::processEvents();
    EXPECT_TRUE(button(QStringLiteral("Print"))->isEnabled());
    EXPECT_EQ(tabs().first(), QStringLiteral("Cut Options"));
    EXPECT_EQ(state(), QStringLiteral("Ready."));
}

TEST_F(OpeningTest, AServerThatIsAbsentSilentOrDeadIsToldAndTheDialogStays)
{
    fillCache(QStringLiteral("tape"));
    const test_support::ReservedPort absent;
    const FaultyServer silent(0, {.silent = true});
    const test_support::FaultProxy breaking(
        cupsd->port(), {.kind = test_support::ProxyFault::Kind::Cut, .byte = 10, .isLinkDown = true});
    struct Row {
        const char *name;
        QString address;
        const char *words;
        bool isSilent = false;
    };
    for (const Row &row : {Row{"absent", absent.address(), "Cannot connect to the print server"},
                           Row{"silent", silent.address(), "does not respond", true},
                           Row{"breaking", breaking.address(), "was lost"}}) {
        SCOPED_TRACE(row.name);
        host::CupsServer server = knownServer(row.address);
        if (row.isSilent)
            server.timeout = silentServerAt(row.address).timeout;
        open(QStringLiteral("tape"), server);
        EXPECT_TRUE(waitUntil([this] { return !told().isEmpty(); }));
        EXPECT_TRUE(told().contains(QLatin1String(row.words))) << told().toStdString();
        EXPECT_TRUE(waitUntil([this] { return session->isSettled(); }));
        EXPECT_TRUE(state().contains(QStringLiteral("Last known state: Ready."))) << state().toStdString();
        EXPECT_TRUE(panelBox("mHalfCutChkBx")->isVisible());
        Hands::click(panelBox("mMirrorPrintChkBx"));
    }
}

TEST_F(OpeningTest, NothingKnownAndNobodyThereIsToldToo)
{
    const test_support::ReservedPort absent;
    open(std::nullopt, serverAt(absent.address()));
    EXPECT_TRUE(waitUntil([this] { return session->isSettled(); }));
    QApplication::processEvents();
    EXPECT_TRUE(told().contains(QStringLiteral("Cannot connect"))) << told().toStdString();
    EXPECT_FALSE(button(QStringLiteral("Print"))->isEnabled());
    // The window no longer shows that it waits.
    EXPECT_FALSE(isSeen(QStringLiteral("Waiting"))) << state().toStdString();
}

TEST_F(OpeningTest, ManyQueuesAreListedWhileTheServerIsAsked)
{
    fillCache(QStringLiteral("tape"));
    FaultyServer slow(cupsd->port(), {.holds = true});
    const host::CupsServer server = knownServer(slow.address());
    const auto realCount = static_cast<int>(host::QueueCache(server).destinations().size());
    rememberMoreQueues(server, 1000);
    open(QStringLiteral("tape"), server);
    EXPECT_TRUE(waitUntil([&] { return slow.heldCount() > 0; }));
    EXPECT_TRUE(waitUntil([&] { return destinations()->count() == realCount + 1000; }));
    Hands::click(panelBox("mMirrorPrintChkBx"));
    EXPECT_TRUE(panelBox("mMirrorPrintChkBx")->isChecked());
    slow.release();
    ASSERT_TRUE(waitUntil([this] { return isSettled(); }));
    EXPECT_EQ(destinations()->count(), realCount);
}

TEST_F(OpeningTest, LargePpdsAreShownAndReplaced)
{
    QByteArray constrained = largeOptionsPpd(200, 50);
    for (int i = 0; i < 199; ++i)
        constrained += "*UIConstraints: *Option" + QByteArray::number(i) + " C1 *Option" +
                       QByteArray::number(i + 1) + " C2\n";
    // As large as they come: larger than what is read before the window is shown.
    const QByteArray huge = largeOptionsPpd(100, 500);
    EXPECT_GT(huge.size(), 1'000'000);
    const std::pair<const char *, QByteArray> rows[] = {
        {"papers", tapePpdWithMorePapers(300)}, {"options", constrained}, {"huge", huge}};
    for (const auto &row : rows) {
        const char *const name = row.first;
        const QByteArray &ppd = row.second;
        SCOPED_TRACE(name);
        cupsd->addQueue(QLatin1String(name), ppd);
        // The first time it comes from the server, the second time from the cache, then it is replaced.
        for (int time = 0; time < 2; ++time) {
            open(QLatin1String(name));
            ASSERT_TRUE(waitUntil([this] { return isSettled(); }));
            if (tabs().contains(QStringLiteral("Options"))) {
                chooseTab(QStringLiteral("Options"));
                chooseTab(QStringLiteral("What will be sent"));
                chooseTab(QStringLiteral("Summary"));
            }
        }
        // A window does not wait until a huge file has been read.
        EXPECT_EQ(host::PpdLoader(sharedServer()).cached(QLatin1String(name)).has_value(),
                  ppd.size() < 500'000);
        meanwhile([&] { cupsd->addQueue(QLatin1String(name), ppd + "*% another\n"); });
        session->start(host::Discovery::No);
        EXPECT_TRUE(waitUntil([this] { return isSettled(); }));
        close();
        cupsd->removeQueue(QLatin1String(name));
    }
}

TEST_F(OpeningTest, PpdsThatAreNoneAreToldAndTheQueuePrints)
{
    const QByteArray good = tapePpd();
    const QByteArray rows[] = {
        damagedPpdText(),
        good.left(good.indexOf("Kvelland Tape 9")),
        QByteArray("\0\xff\xfe*PPD", 8) + QByteArray(2000, '\x80'),
        "*PPD-Adobe: \"4.3\"\n*OpenUI *A: PickOne\n*OpenUI *B: PickOne\n" + QByteArray(100000, '"'),
    };
    for (const QByteArray &ppd : rows) {
        SCOPED_TRACE(ppd.size());
        cupsd->addQueue(QStringLiteral("odd"), good);
        overwritePpd(QStringLiteral("odd"), ppd);
        open(QStringLiteral("odd"));
        ASSERT_TRUE(waitUntil([this] { return session->ppdState() == host::PpdState::Failed; }));
        QApplication::processEvents();
        EXPECT_NE(told(), QString());
        EXPECT_TRUE(keeper->setup());
        EXPECT_TRUE(button(QStringLiteral("Print"))->isEnabled());
        EXPECT_FALSE(tabs().contains(QStringLiteral("Cut Options")));
        close();
        cupsd->removeQueue(QStringLiteral("odd"));
    }
}

TEST_F(OpeningTest, AServerThatComesBackIsNoticed)
{
    fillCache(QStringLiteral("tape"));
    for (const bool isKnown : {true, false}) {
        SCOPED_TRACE(isKnown);
        if (!isKnown)
            SetUp();
        cupsd->kill();
        open(QStringLiteral("tape"));
        EXPECT_TRUE(waitUntil([this] { return !told().isEmpty() && session->isSettled(); }));
        cupsd->restart();
        EXPECT_TRUE(waitUntil([this] { return isSettled() && state() == QStringLiteral("Ready."); }))
            << state().toStdString();
        EXPECT_TRUE(waitUntil([this] { return told().isEmpty(); })) << told().toStdString();
        EXPECT_TRUE(button(QStringLiteral("Print"))->isEnabled());
    }
}

TEST_F(OpeningTest, WhoIsAtWorkOnAnotherPageStaysThereWhenThePrinterComes)
{
    for (const bool turnsPage : {false, true}) {
        SCOPED_TRACE(turnsPage);
        SetUp();
        FaultyServer slow(cupsd->port(), {.holds = true});
        open(QStringLiteral("tape"), serverAt(slow.address()));
        if (turnsPage)
            chooseTab(QStringLiteral("Page preview"));
        else
            Hands::typeInto(field<QLineEdit>(QStringLiteral("Job name")), QStringLiteral("Jars"));
        slow.release();
        ASSERT_TRUE(waitUntil([this] { return isSettled(); }));
        QApplication::processEvents();
        EXPECT_EQ(tabs().first(), QStringLiteral("Cut Options"));
        EXPECT_FALSE(panelBox("mHalfCutChkBx")->isVisible());
        if (!turnsPage) {
            EXPECT_TRUE(field<QLineEdit>(QStringLiteral("Job name"))->hasFocus());
        }
        close();
    }
}
