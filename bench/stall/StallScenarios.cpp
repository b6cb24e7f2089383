// SPDX-License-Identifier: Apache-2.0
#include "StallScenarios.h"

#include <dialog/job/JobWindow.h>
#include <dialog/options/OptionsPage.h>
#include <tests/samples/OptionsPpd.h>
#include <tests/samples/SamplePdf.h>
#include <tests/samples/SamplePpd.h>
#include <tests/support/FaultProxy.h>

#include <QLineEdit>

#include <cups/ipp.h>

using test_support::FaultProxy;

namespace bench {

namespace {

const QString tape = QStringLiteral("tape");
constexpr int slowness = 500; // milliseconds
/// In bytes: the systems of both sides do not hold so much.
constexpr qsizetype largeDocument = 30'000'000;

} // namespace

void StallScenarios::startServer()
{
    QueueDialogTest::SetUpTestSuite();
    cupsd->addQueue(tape, tapePpd());
}

StallScenarios::Duration StallScenarios::run(Scenario scenario)
{
    sendingServer.reset();
    SetUp();
    const Duration longest = (this->*scenario)();
    TearDown();
    return longest;
}

void StallScenarios::linger()
{
    QTest::qWait(slowness);
}

StallScenarios::Duration StallScenarios::bareWindow()
{
    QLabel line(QStringLiteral("A window"));
    line.show();
    StallWatch watch;
    linger();
    return watch.longest();
}

StallScenarios::Duration StallScenarios::silentServer()
{
    fillCache(tape);
    const FaultyServer silent(0, {.silent = true});
    open(tape, knownServer(silent.address()));
    StallWatch watch;
    Hands::click(panelBox("mMirrorPrintChkBx"));
    linger();
    return watch.longest();
}

StallScenarios::Duration StallScenarios::slowServer()
{
    const FaultyServer slow(cupsd->port(), {.delay = slowness});
    open(tape, serverAt(slow.address()));
    StallWatch watch;
    waitUntil([this] { return isSettled(); });
    return watch.longest();
}

StallScenarios::Duration StallScenarios::serverThatIsGone()
{
    fillCache(tape);
    const test_support::ReservedPort absent;
    open(tape, knownServer(absent.address()));
    StallWatch watch;
    waitUntil([this] { return session->isSettled() && !told().isEmpty(); });
    linger();
    return watch.longest();
}

StallScenarios::Duration StallScenarios::serverThatBreaks()
{
    fillCache(tape);
    const FaultProxy breaking(cupsd->port(),
                              {.kind = test_support::ProxyFault::Kind::Cut, .byte = 10, .isLinkDown = true});
    open(tape, knownServer(breaking.address()));
    StallWatch watch;
    waitUntil([this] { return session->isSettled() && !told().isEmpty(); });
    linger();
    return watch.longest();
}

StallScenarios::Duration StallScenarios::thousandQueues()
{
    fillCache(tape);
    rememberMoreQueues(sharedServer(), 1000);
    open(tape);
    StallWatch watch;
    waitUntil([this] { return isSettled(); });
    return watch.longest();
}

StallScenarios::Duration StallScenarios::openOn(const QByteArray &ppd)
{
    const QString name = QStringLiteral("large");
    cupsd->addQueue(name, ppd);
    Duration longest{0};
    // The first time the PPD comes from the server, the second time from the cache.
    for (int time = 0; time < 2; ++time) {
        open(name);
        StallWatch watch;
        waitUntil([this] { return isSettled(); });
        for (const QString &title : tabs())
            chooseTab(title);
        linger();
        longest = std::max(longest, watch.longest());
    }
    close();
    cupsd->removeQueue(name);
    return longest;
}

StallScenarios::Duration StallScenarios::manyPapers()
{
    return openOn(tapePpdWithMorePapers(300));
}

StallScenarios::Duration StallScenarios::hugePpd()
{
    return openOn(largeOptionsPpd(100, 500));
}

StallScenarios::Duration StallScenarios::damagedPpd()
{
    const QString name = QStringLiteral("odd");
    cupsd->addQueue(name, tapePpd());
    overwritePpd(name, damagedPpdText());
    open(name);
    StallWatch watch;
    waitUntil([this] { return session->ppdState() == host::PpdState::Failed; });
    const Duration longest = watch.longest();
    close();
    cupsd->removeQueue(name);
    return longest;
}

StallScenarios::Duration StallScenarios::replacedPpd()
{
    openAndSettle(tape);
    int replacements = 0;
    QObject::connect(keeper.get(), &host::SetupKeeper::setupChanged, window.get(), [&] { ++replacements; });
    StallWatch watch;
    meanwhile([] { cupsd->replacePpd(tape, tapePpd() + "*% another\n"); });
    waitUntil([&] { return replacements > 0 && isSettled(); });
    const Duration longest = watch.longest();
    meanwhile([] { cupsd->replacePpd(tape, tapePpd()); });
    return longest;
}

StallScenarios::Duration StallScenarios::thousandsOfOptions()
{
    host::PpdFile ppd = openPpd(sandbox, largeOptionsPpd(3000, 4));
    dialog::OptionsPage page(ppd, QStringList(), nullptr);
    page.resize(520, 420);
    StallWatch watch;
    page.show();
    waitUntil([&] { return page.findChild<QWidget *>(QStringLiteral("Option1499")); });
    linger();
    return watch.longest();
}

StallScenarios::Duration StallScenarios::stateOfTheQueue()
{
    openAndSettle(tape);
    StallWatch watch;
    meanwhile([] { cupsd->pause(tape); });
    waitUntil([this] { return state().contains(QStringLiteral("paused")); });
    meanwhile([] { cupsd->resume(tape); });
    waitUntil([this] { return state() == QStringLiteral("Ready."); });
    return watch.longest();
}

StallScenarios::Duration StallScenarios::deletedQueue()
{
    const QString name = QStringLiteral("doomed");
    cupsd->addQueue(name, tapePpd());
    openAndSettle(name);
    StallWatch watch;
    meanwhile([&] { cupsd->removeQueue(name); });
    waitUntil([this] { return !told().isEmpty(); });
    return watch.longest();
}

StallScenarios::Duration StallScenarios::password()
{
    const FaultyServer guarded(cupsd->port(), {.credentials = "ann:secret"});
    open(tape, serverAt(guarded.address()));
    StallWatch watch;
    waitUntil([this] { return passwordQuestions > 0; });
    linger();
    return watch.longest();
}

StallScenarios::Duration StallScenarios::sendTo(const host::CupsServer &server,
                                                const std::function<void()> &whileSending)
{
    sendingServer = server;
    openAndSettle(tape);
    StallWatch watch;
    Hands::click(button(QStringLiteral("Print")));
    whileSending();
    waitUntil([this] { return !window->isSending(); });
    return watch.longest();
}

StallScenarios::Duration StallScenarios::refusedJob()
{
    cupsd->reject(tape, QStringLiteral("closed"));
    const Duration longest = sendTo(serverAt(cupsd->address()));
    cupsd->run(QStringLiteral("cupsaccept"), {tape});
    return longest;
}

StallScenarios::Duration StallScenarios::brokenUpload()
{
    makeDocumentLarge(largeDocument);
    const FaultProxy breaking(cupsd->port(), test_support::cutRequests(IPP_OP_SEND_DOCUMENT, 1'000'000));
    return sendTo(serverAt(breaking.address()));
}

StallScenarios::Duration StallScenarios::fullSpool()
{
    makeDocumentLarge(largeDocument);
    cupsd->setSpoolFull(true);
    const Duration longest = sendTo(serverAt(cupsd->address()));
    cupsd->setSpoolFull(false);
    return longest;
}

StallScenarios::Duration StallScenarios::silentWhileSending()
{
    const FaultyServer silent(0, {.silent = true});
    return sendTo(silentServerAt(silent.address()));
}

StallScenarios::Duration StallScenarios::stoppedUpload()
{
    makeDocumentLarge(largeDocument);
    const FaultyServer stalling(cupsd->port(), {.stallAfter = 500'000});
    return sendTo(serverAt(stalling.address()), [&] {
        waitUntil([&] { return stalling.stalledCount() == 1; });
        Hands::click(button(QStringLiteral("Cancel sending")));
    });
}

StallScenarios::Duration StallScenarios::closedWhileSending()
{
    const FaultyServer slow(cupsd->port(), {.delay = slowness});
    return sendTo(serverAt(slow.address()), [&] {
        waitUntil([&] { return slow.requestCount(IPP_OP_CREATE_JOB) == 1; });
        window->close();
    });
}

StallScenarios::Duration StallScenarios::thousandsOfPages()
{
    const std::vector<QByteArray> pages(10'000, "[0 0 170 68]");
    documentPath = sandbox.write(QStringLiteral("long.pdf"), pdfWithPageBoxes(pages));
    return sendTo(serverAt(cupsd->address()));
}

StallScenarios::Duration StallScenarios::followedJob()
{
    cupsd->setMediaEmpty(true);
    openAndSettle(tape);
    print();
    dialog::JobWindow job(sharedServer(), tape, sender->lastJob()->id, QStringLiteral("labels.pdf"));
    job.show();
    StallWatch watch;
    linger();
    cupsd->setMediaEmpty(false);
    waitUntil([&] { return !job.isVisible(); });
    return watch.longest();
}

} // namespace bench
