// SPDX-License-Identifier: Apache-2.0

#include <tests/servers/Attributes.h>
#include <tests/servers/PrintingTest.h>
#include <tests/support/LaterHold.h>

#include <host/cups/jobs/JobChange.h>
#include <host/cups/jobs/JobStatus.h>

using host::CupsErrorKind;
using host::JobChange;
using host::JobState;
using test_support::holdPeriodHoursAway;
using test_support::holdTimeHoursAway;

namespace {

class JobChangeTest : public PrintingTest {
protected:
    /// A job that waits, by its number.
    int sendHeld()
    {
        const Outcome outcome = print(ticket({}, {.hold = QStringLiteral("hold")}));
        EXPECT_TRUE(outcome.jobId);
        return outcome.jobId.value_or(0);
    }

    host::Result<void, host::CupsError> change(const JobChange &change) const
    {
        host::BackgroundTask task;
        return changeJob(server, change, task);
    }

    host::JobState state(int jobId) const
    {
        host::BackgroundTask task;
        auto connection = host::CupsConnection::open(server, task);
        EXPECT_TRUE(connection);
        const auto job = queryJob(connection.value(), QStringLiteral("tape"), jobId);
        EXPECT_TRUE(job);
        return job ? job.value().state : JobState::Aborted;
    }
};

} // namespace

TEST_F(JobChangeTest, ChangesWhatIsNamedAndLeavesTheRest)
{
    const int jobId = sendHeld();
    const auto before = jobAttributes(server, jobId);
    JobChange wanted;
    wanted.jobId = jobId;
    wanted.title = QStringLiteral("Gläser, neu");
    wanted.settings.priority = 83;
    wanted.settings.copies = 4;
    wanted.settings.pageRanges = QStringLiteral("1-2");
    wanted.options = {{"KvHalfCut", "ON"}, {"PageSize", "DC29x90"}};
    const auto changed = change(wanted);
    ASSERT_TRUE(changed) << qPrintable(changed.error().message);

    const auto after = jobAttributes(server, jobId);
    EXPECT_EQ(after.value("job-name"), "Gläser, neu");
    EXPECT_EQ(after.value("job-priority"), "83");
    EXPECT_EQ(after.value("copies"), "4");
    EXPECT_EQ(after.value("page-ranges"), "1-2");
    EXPECT_EQ(after.value("KvHalfCut"), "ON");
    EXPECT_EQ(after.value("PageSize"), "DC29x90");
    for (const char *kept : {"job-hold-until", "job-originating-user-name", "job-printer-uri"})
        EXPECT_EQ(after.value(kept), before.value(kept)) << kept;
    EXPECT_EQ(state(jobId), JobState::Held);
}

TEST_F(JobChangeTest, ChangesAsLpDoes)
{
    const QString period = holdPeriodHoursAway();
    const QStringList lp{QStringLiteral("-q"),          QStringLiteral("7"),     QStringLiteral("-n"),
                         QStringLiteral("2"),           QStringLiteral("-H"),    period,
                         QStringLiteral("-o"),          QStringLiteral("a=b c"), QStringLiteral("-o"),
                         QStringLiteral("collate=true")};
    const int ours = sendHeld();
    const int theirs = sendHeld();
    cupsd.run(QStringLiteral("lp"), QStringList{QStringLiteral("-i"), QString::number(theirs)} + lp);
    JobChange wanted;
    wanted.jobId = ours;
    wanted.settings = {.copies = 2, .collate = host::Collate::Yes, .hold = period};
    wanted.settings.priority = 7;
    wanted.options = {{"a", "b"}, {"c", "true"}};
    ASSERT_TRUE(change(wanted));
    auto mine = jobAttributes(server, ours);
    auto lps = jobAttributes(server, theirs);
    // lp leaves the reported hold time unchanged.
    EXPECT_EQ(mine.take("job-hold-until"), period.toUtf8());
    lps.remove("job-hold-until");
    EXPECT_EQ(mine, lps);
    EXPECT_EQ(state(ours), state(theirs));
}

TEST_F(JobChangeTest, HoldsReleasesAndRestarts)
{
    cupsd.pause(QStringLiteral("tape"));
    const Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.jobId);
    const int jobId = *outcome.jobId;
    EXPECT_TRUE(change({.jobId = jobId, .settings = {.hold = QStringLiteral("hold")}}));
    EXPECT_EQ(state(jobId), JobState::Held);
    cupsd.resume(QStringLiteral("tape"));
    EXPECT_EQ(state(jobId), JobState::Held);
    EXPECT_TRUE(change({.jobId = jobId, .settings = {.hold = QStringLiteral("resume")}}));
    cupsd.waitForDocuments(1);
    EXPECT_TRUE(waitUntil([&] { return state(jobId) == JobState::Completed; }));

    EXPECT_TRUE(change({.jobId = jobId, .settings = {.hold = QStringLiteral("restart")}}));
    EXPECT_EQ(cupsd.waitForDocuments(2)[1].job, jobId);
}

TEST_F(JobChangeTest, ARestartedJobIsChangedBeforeItPrints)
{
    const Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.jobId);
    cupsd.waitForDocuments(1);
    EXPECT_TRUE(waitUntil([&] { return state(*outcome.jobId) == JobState::Completed; }));
    const auto changed = change({.jobId = *outcome.jobId,
                                 .options = {{"KvHalfCut", "ON"}},
                                 .settings = {.copies = 3, .hold = QStringLiteral("restart")}});
    ASSERT_TRUE(changed) << qPrintable(changed.error().message);
    const auto documents = cupsd.waitForDocuments(2);
    EXPECT_EQ(documents[1].job, *outcome.jobId);
    EXPECT_EQ(documents[1].copies, "3");
    EXPECT_EQ(documents[1].option("KvHalfCut"), "ON");
}

TEST_F(JobChangeTest, HoldsUntilATimeOfDay)
{
    cupsd.pause(QStringLiteral("tape"));
    const Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.jobId);
    for (const char *format : {"hh:mm", "h:mm:ss"}) {
        const QString time = holdTimeHoursAway(6, QString::fromLatin1(format));
        const auto changed = change({.jobId = *outcome.jobId, .settings = {.hold = time, .priority = 3}});
        EXPECT_TRUE(changed) << qPrintable(changed.error().message);
        EXPECT_EQ(jobAttributes(server, *outcome.jobId).value("job-hold-until"), time.toUtf8());
        EXPECT_EQ(state(*outcome.jobId), JobState::Held);
    }
}

TEST_F(JobChangeTest, ImmediatelyMeansBeforeAllOthers)
{
    cupsd.pause(QStringLiteral("tape"));
    const int jobId = sendHeld();
    EXPECT_TRUE(change({.jobId = jobId, .settings = {.hold = QStringLiteral("immediate")}}));
    EXPECT_EQ(state(jobId), JobState::Waiting);
    EXPECT_EQ(jobAttributes(server, jobId).value("job-priority"), "100");
}

TEST_F(JobChangeTest, SaysWhichJobAndWhyNot)
{
    const auto unknown = change({.jobId = 4711, .settings = {.priority = 1}});
    ASSERT_FALSE(unknown);
    EXPECT_EQ(unknown.error().kind, CupsErrorKind::NotFound);
    EXPECT_TRUE(unknown.error().message.contains(QStringLiteral("4711")))
        << qPrintable(unknown.error().message);

    const Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.jobId);
    cupsd.waitForDocuments(1);
    EXPECT_TRUE(waitUntil([&] { return state(*outcome.jobId) == JobState::Completed; }));
    const auto over = change({.jobId = *outcome.jobId, .settings = {.priority = 1}});
    ASSERT_FALSE(over);
    EXPECT_EQ(over.error().kind, CupsErrorKind::Rejected);
    EXPECT_TRUE(over.error().message.contains(QString::number(*outcome.jobId)))
        << qPrintable(over.error().message);
}

TEST_F(JobChangeTest, NothingToChangeAsksNoServer)
{
    cupsd.kill();
    EXPECT_TRUE(change({.jobId = 1}));
    const auto changed = change({.jobId = 1, .settings = {.copies = 2}});
    ASSERT_FALSE(changed);
    EXPECT_EQ(changed.error().kind, CupsErrorKind::Unreachable);
}
