// SPDX-License-Identifier: Apache-2.0
// For how long the print dialog's event loop does not respond, in all situations that might block it. See
// bench/README.md.
#include "StallScenarios.h"
#include "TimedApplication.h"

#include <tests/support/TestHome.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using bench::StallScenarios;
using Duration = StallScenarios::Duration;

/// The limit for one event: one frame of a screen with 60 frames per second, which users perceive as smooth.
constexpr Duration limit{16};

struct Row {
    const char *name;
    StallScenarios::Scenario scenario;
    std::vector<Duration> unanswered = {};
    std::vector<Duration> events = {};
};

std::vector<Row> rows()
{
    return {
        {"a bare window of Qt", &StallScenarios::bareWindow},
        {"silent server, queue known", &StallScenarios::silentServer},
        {"slow server, nothing known", &StallScenarios::slowServer},
        {"no server", &StallScenarios::serverThatIsGone},
        {"server that breaks connections", &StallScenarios::serverThatBreaks},
        {"1,000 queues", &StallScenarios::thousandQueues},
        {"PPD with 300 papers more", &StallScenarios::manyPapers},
        {"PPD of more than a megabyte", &StallScenarios::hugePpd},
        {"damaged PPD of 50 megabytes", &StallScenarios::damagedPpd},
        {"replaced PPD", &StallScenarios::replacedPpd},
        {"page of 1,500 options", &StallScenarios::thousandsOfOptions},
        {"queue paused and resumed", &StallScenarios::stateOfTheQueue},
        {"queue deleted", &StallScenarios::deletedQueue},
        {"password asked for", &StallScenarios::password},
        {"job refused", &StallScenarios::refusedJob},
        {"connection broken while sending", &StallScenarios::brokenUpload},
        {"full spool", &StallScenarios::fullSpool},
        {"server silent while sending", &StallScenarios::silentWhileSending},
        {"sending stopped", &StallScenarios::stoppedUpload},
        {"window closed while sending", &StallScenarios::closedWhileSending},
        {"10,000 labels", &StallScenarios::thousandsOfPages},
        {"job followed to its end", &StallScenarios::followedJob},
    };
}

Duration median(std::vector<Duration> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Prints the rows and returns whether all are within the limit.
bool report(const std::vector<Row> &measured)
{
    const Duration baseline = median(measured.front().unanswered);
    bool isGood = true;
    std::printf("%-32s %12s %10s %14s %10s %8s\n", "", "event, ms", "worst", "no answer, ms", "worst",
                "ratio");
    for (const Row &row : measured) {
        const Duration event = median(row.events);
        const Duration unanswered = median(row.unanswered);
        const bool isWithin = event <= limit;
        isGood = isGood && isWithin;
        std::printf("%-32s %12.1f %10.1f %14.1f %10.1f %8.1f%s\n", row.name, event.count(),
                    std::ranges::max(row.events).count(), unanswered.count(),
                    std::ranges::max(row.unanswered).count(), unanswered / baseline,
                    isWithin ? "" : "  over the limit");
    }
    std::printf("limit of an event: a median of %.0f ms\n", limit.count());
    return isGood;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): running out of memory ends the program either way
int main(int argc, char **argv)
{
    const test_support::TestHome home;
    bench::TimedApplication application(argc, argv);
    const int runs = std::max(1, application.arguments().value(1, QStringLiteral("5")).toInt());
    std::vector<Row> measured = rows();
    StallScenarios::startServer();
    StallScenarios scenarios;
    // Interleaved, so that other load of the machine affects all alike; the first round only warms up.
    for (int round = 0; round <= runs; ++round) {
        for (Row &row : measured) {
            application.resetMax();
            const Duration unanswered = scenarios.run(row.scenario);
            if (round == 0)
                continue;
            row.events.push_back(application.resetMax());
            row.unanswered.push_back(unanswered);
        }
        std::fprintf(stderr, "round %d of %d\n", round, runs);
    }
    StallScenarios::endServer();
    return report(measured) ? 0 : 1;
}
