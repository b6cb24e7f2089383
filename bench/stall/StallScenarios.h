// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StallWatch.h"

#include <QueueDialogFixture.h>
#include <tests/servers/FaultyServer.h>

namespace bench {

/// Situations that might block the window of an open print dialog: servers that are silent, slow, unreachable
/// or reject a job, and queues, PPDs and documents that are large. Each scenario returns the max time during
/// which the event loop did not respond.
class StallScenarios : public QueueDialogTest {
public:
    using Duration = StallWatch::Duration;
    using Scenario = Duration (StallScenarios::*)();

    /// Starts the server and its queue, for all scenarios; ended by endServer().
    static void startServer();
    static void endServer() { QueueDialogTest::TearDownTestSuite(); }

    /// Runs it with nothing left of an earlier one.
    Duration run(Scenario scenario);

    /// A window of Qt with one line, in place of the dialog.
    Duration bareWindow();
    Duration silentServer();
    Duration slowServer();
    Duration serverThatIsGone();
    Duration serverThatBreaks();
    Duration thousandQueues();
    Duration manyPapers();
    Duration hugePpd();
    Duration damagedPpd();
    Duration replacedPpd();
    Duration thousandsOfOptions();
    Duration stateOfTheQueue();
    Duration deletedQueue();
    Duration password();
    Duration refusedJob();
    Duration brokenUpload();
    Duration fullSpool();
    Duration silentWhileSending();
    Duration stoppedUpload();
    Duration closedWhileSending();
    Duration thousandsOfPages();
    Duration followedJob();

private:
    void TestBody() override {}

    /// Processes events for as long as an answer of any scenario's server takes.
    static void linger();
    Duration openOn(const QByteArray &ppd);
    /// Presses "Print", with the server to print to; calls the function while the job is sent.
    Duration sendTo(
        const host::CupsServer &server, const std::function<void()> &whileSending = [] {});
};

} // namespace bench
