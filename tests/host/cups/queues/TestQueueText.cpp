// SPDX-License-Identifier: Apache-2.0
#include <host/cups/jobs/JobStatus.h>
#include <host/cups/queues/QueueText.h>

#include <gtest/gtest.h>

using host::Destination;
using host::JobState;
using host::JobStatus;
using host::QueueState;
using host::StateSeverity;

TEST(QueueText, TellTheStateTheReasonsAndTheServersWords)
{
    struct Row {
        QueueState state;
        QStringList reasons;
        bool accepts;
        const char *message;
        const char *expected;
        StateSeverity severity;
    };
    const auto reason = [](const char *text) { return QStringList{QString::fromLatin1(text)}; };
    const Row rows[] = {
        {QueueState::Ready, {}, true, "", "Ready.", StateSeverity::Good},
        {QueueState::Ready, {}, true, "Idle", "Ready.", StateSeverity::Good},
        {QueueState::Printing, {}, true, "page 3", "Printing. Server message: page 3", StateSeverity::Good},
        {QueueState::Paused, reason("paused"), true, "Paused", "The queue is paused; jobs wait.",
         StateSeverity::Error},
        {QueueState::Paused,
         {},
         true,
         "Lunch",
         "The queue is paused; jobs wait. Server message: Lunch",
         StateSeverity::Error},
        {QueueState::Ready, reason("media-empty-error"), true, "", "The label roll or tape is empty.",
         StateSeverity::Error},
        {QueueState::Ready, reason("media-empty"), true, "", "The label roll or tape is empty.",
         StateSeverity::Error},
        {QueueState::Ready, reason("media-low-warning"), true, "", "The label roll or tape is nearly empty.",
         StateSeverity::Warning},
        {QueueState::Ready, reason("media-low-report"), true, "",
         "Ready. The label roll or tape is nearly empty.", StateSeverity::Good},
        {QueueState::Printing, reason("connecting-to-device"), true, "",
         "Printing. Connecting to the printer.", StateSeverity::Good},
        {QueueState::Ready, reason("offline-report"), true, "", "The printer is offline.",
         StateSeverity::Warning},
        {QueueState::Printing, reason("offline-report"), true, "", "Printing. The printer is offline.",
         StateSeverity::Warning},
        {QueueState::Ready, reason("com.example-cutter-dull-warning"), true, "", "com.example cutter dull.",
         StateSeverity::Warning},
        {QueueState::Ready, {}, false, "", "The queue accepts no jobs.", StateSeverity::Error},
    };
    for (const Row &row : rows) {
        Destination destination;
        destination.state = row.state;
        destination.stateReasons = row.reasons;
        destination.acceptsJobs = row.accepts;
        destination.stateMessage = QString::fromLatin1(row.message);
        EXPECT_EQ(queueSentences(destination).join(u' '), QString::fromLatin1(row.expected));
        EXPECT_EQ(queueSeverity(destination), row.severity) << row.expected;
    }
}

TEST(QueueText, TellWhatBecomesOfAJob)
{
    const std::tuple<JobState, const char *, const char *, const char *, const char *> rows[] = {
        {JobState::Waiting, "", "", "", "Waiting in the queue."},
        {JobState::Held, "indefinite", "", "", "Held until it is released."},
        {JobState::Held, "night", "", "", "Held until night."},
        {JobState::Printing, "", "media-jam-error", "feeding",
         "Printing. Labels or tape are jammed. Server message: feeding"},
        {JobState::Aborted, "", "media-jam-error", "Filter failed",
         "Aborted by the print server. Server message: Filter failed"},
        {JobState::Canceled, "", "", "old", "Canceled."},
        {JobState::Completed, "", "media-low", "old", "Printed."},
    };
    for (const auto &[state, until, reason, message, expected] : rows) {
        JobStatus job;
        job.state = state;
        job.heldUntil = QString::fromLatin1(until);
        if (*reason)
            job.printerReasons = QStringList{QString::fromLatin1(reason)};
        job.message = QString::fromLatin1(message);
        EXPECT_EQ(job.sentences().join(u' '), QString::fromLatin1(expected));
        EXPECT_EQ(job.isOver(), state >= JobState::Canceled);
    }
}

TEST(QueueText, DestinationsSurviveTheCache)
{
    Destination destination;
    destination.queue = QStringLiteral("größe");
    destination.instance = QStringLiteral("draft");
    destination.members = QStringList{QStringLiteral("a"), QStringLiteral("b")};
    destination.isClass = true;
    destination.acceptsJobs = false;
    destination.state = QueueState::Printing;
    destination.stateReasons = QStringList{QStringLiteral("media-low")};
    destination.queueOptions = {{"copies", "1"}};
    destination.userOptions = {{"PageSize", "\xff\"'"}};
    EXPECT_EQ(Destination::fromCbor(destination.toCbor()), destination);
    destination.instance.reset();
    EXPECT_EQ(Destination::fromCbor(destination.toCbor()), destination);
    EXPECT_FALSE(Destination::fromCbor({}));
}
