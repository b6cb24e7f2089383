// SPDX-License-Identifier: Apache-2.0

#include <host/cups/jobs/JobChange.h>
#include <host/cups/jobs/JobMonitor.h>
#include <host/cups/jobs/LpCommand.h>
#include <tests/servers/Attributes.h>
#include <tests/servers/PrintingTest.h>

#include <QProcess>

using host::CupsErrorKind;
using host::JobState;
using host::JobStatus;
using host::JobTicket;
using host::Origin;
using test_support::PpdBuilder;

namespace {

/// A job on the queue "tape" that is monitored, and its reported states.
struct Followed {
    Followed(const host::CupsServer &server, int jobId)
        : monitor(server, QStringLiteral("tape"), jobId, std::chrono::milliseconds(10))
    {
        QObject::connect(&monitor, &host::JobMonitor::changed,
                         [this](const JobStatus &status) { last = status; });
        QObject::connect(&monitor, &host::JobMonitor::failed,
                         [this](const host::CupsError &error) { problems.append(error.message); });
    }

    JobStatus last;
    QStringList problems;
    host::JobMonitor monitor;
};

} // namespace

TEST_F(PrintingTest, TheFilterGetsExactlyWhatWasSet)
{
    JobTicket job = ticket({{"PageSize", "DC29x90", Origin::You}, {"KvHalfCut", "ON", Origin::Panel}},
                           {.copies = 3,
                            .collate = host::Collate::No,
                            .pageRanges = QStringLiteral("1-2, 4-"),
                            .orientation = host::Orientation::Landscape,
                            .priority = 80});
    job.title = QStringLiteral("Gläser & 'Deckel'");
    const Outcome outcome = print(job);
    ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);

    const auto documents = cupsd.waitForDocuments(1);
    EXPECT_EQ(documents[0].job, *outcome.jobId);
    EXPECT_EQ(documents[0].title, "Gläser & 'Deckel'");
    EXPECT_EQ(documents[0].copies, "3");
    EXPECT_EQ(documents[0].content, "a label\n");
    EXPECT_EQ(documents[0].option("PageSize"), "DC29x90");
    EXPECT_EQ(documents[0].option("KvHalfCut"), "ON");
    EXPECT_EQ(documents[0].option("collate"), "false");
    EXPECT_EQ(documents[0].option("orientation-requested"), "4");
    EXPECT_EQ(documents[0].option("page-ranges"), "1-2,4-2147483647");
    // Options that are not set are left to the printer.
    EXPECT_TRUE(documents[0].option("KvMirror").isNull()) << documents[0].optionText.toStdString();
    EXPECT_TRUE(documents[0].option("media").isNull()) << documents[0].optionText.toStdString();
    const QByteArray jobs =
        cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-W"), QStringLiteral("all")});
    EXPECT_TRUE(jobs.startsWith("tape-" + QByteArray::number(*outcome.jobId))) << jobs.toStdString();
}

TEST_F(PrintingTest, SeveralDocumentsAreOneJobInOrder)
{
    JobTicket job = ticket();
    job.documents = {{document(QStringLiteral("b.txt"), "second name, first\n")},
                     {document(QStringLiteral("a.txt"), QByteArray(300000, 'x')), "text/plain"},
                     {document(QStringLiteral("c.txt"), "last\n")}};
    const Outcome outcome = print(job);
    ASSERT_TRUE(outcome.jobId);
    const auto documents = cupsd.waitForDocuments(3);
    for (const auto &each : documents)
        EXPECT_EQ(each.job, *outcome.jobId);
    EXPECT_EQ(documents[0].content, "second name, first\n");
    EXPECT_EQ(documents[1].content, QByteArray(300000, 'x'));
    EXPECT_EQ(documents[2].content, "last\n");

    const host::UploadProgress &last = outcome.progress.back();
    EXPECT_EQ(last.document, 2);
    EXPECT_EQ(last.total, 300000 + 19 + 5);
    EXPECT_EQ(last.sent, last.total);
    EXPECT_TRUE(std::is_sorted(outcome.progress.begin(), outcome.progress.end(),
                               [](const auto &a, const auto &b) { return a.sent < b.sent; }));
}

TEST_F(PrintingTest, HeldJobsWaitAndClassesPassOn)
{
    cupsd.addClass(QStringLiteral("all"), {QStringLiteral("tape")});
    JobTicket job = ticket({}, {.hold = QStringLiteral("hold")});
    job.destination.queue = QStringLiteral("all");
    const Outcome outcome = print(job);
    ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);

    host::JobMonitor monitor(server, QStringLiteral("all"), *outcome.jobId, std::chrono::milliseconds(10));
    std::vector<JobStatus> statuses;
    QObject::connect(&monitor, &host::JobMonitor::changed,
                     [&](const JobStatus &status) { statuses.push_back(status); });
    EXPECT_TRUE(waitUntil([&] { return !statuses.empty(); }));
    EXPECT_EQ(statuses.front().state, JobState::Held);
    EXPECT_EQ(statuses.front().sentences().first(), QStringLiteral("Held until it is released."));
    EXPECT_TRUE(cupsd.documents().empty());
    cupsd.run(QStringLiteral("lp"), {QStringLiteral("-i"), QString::number(*outcome.jobId),
                                     QStringLiteral("-H"), QStringLiteral("resume")});
    EXPECT_TRUE(waitUntil([&] { return statuses.back().isOver(); }));
    EXPECT_EQ(statuses.back().state, JobState::Completed);
    EXPECT_EQ(cupsd.waitForDocuments(1)[0].job, *outcome.jobId);
}

TEST_F(PrintingTest, AJobIsFollowedThroughAnEmptyRollToItsEnd)
{
    cupsd.setMediaEmpty(true);
    const Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.jobId);
    const Followed job(server, *outcome.jobId);
    EXPECT_TRUE(waitUntil(
        [&] { return job.last.sentences().contains(QStringLiteral("The label roll or tape is empty.")); }));
    EXPECT_EQ(job.last.state, JobState::Printing);
    cupsd.setMediaEmpty(false);
    EXPECT_TRUE(waitUntil([&] { return job.last.isOver(); }));
    EXPECT_EQ(job.last.sentences(), QStringList{QStringLiteral("Printed.")});
}

TEST_F(PrintingTest, ATitleThatIsTooLongIsCutBetweenCharacters)
{
    cupsd.pause(QStringLiteral("tape"));
    const struct {
        QString title;
        QString sent;
    } rows[] = {
        {QString(255, u'x'), QString(255, u'x')},
        {QString(256, u'x'), QString(255, u'x')},
        {QString(200, u'ä'), QString(127, u'ä')},
        {QStringLiteral("x") + QStringLiteral("😀").repeated(80),
         QStringLiteral("x") + QStringLiteral("😀").repeated(63)},
        // A letter with its accent: three bytes that are one character.
        {QStringLiteral("xx") + QStringLiteral("e\u0301").repeated(100),
         QStringLiteral("xx") + QStringLiteral("e\u0301").repeated(84)},
        {QStringLiteral("e") + QString(300, QChar(0x0301)),
         QStringLiteral("e") + QString(127, QChar(0x0301))},
    };
    for (const auto &row : rows) {
        JobTicket job = ticket();
        job.title = row.title;
        const Outcome outcome = print(job);
        ASSERT_TRUE(outcome.jobId) << qPrintable(outcome.error->message);
        EXPECT_EQ(jobAttributes(server, *outcome.jobId).value("job-name"), row.sent.toUtf8());
        host::BackgroundTask task;
        EXPECT_TRUE(changeJob(server, {.jobId = *outcome.jobId, .title = u'y' + row.title}, task));
        const QByteArray changed = jobAttributes(server, *outcome.jobId).value("job-name");
        EXPECT_TRUE(changed.startsWith('y') && changed.size() <= 255) << changed.toStdString();
    }
}

TEST_F(PrintingTest, AJobIsOverOfWhichTheServerKeepsNoRecord)
{
    cupsd.configure("PreserveJobHistory No\n");
    const Outcome outcome = print(ticket());
    ASSERT_TRUE(outcome.jobId);
    EXPECT_EQ(cupsd.waitForDocuments(1).size(), 1U);
    // Follows the job only now: an earlier query may still find the job that has just been printed.
    EXPECT_TRUE(waitUntil([&] {
        host::BackgroundTask task;
        auto connection = host::CupsConnection::open(server, task);
        const auto job = queryJob(connection.value(), QStringLiteral("tape"), *outcome.jobId);
        return !job && job.error().kind == CupsErrorKind::NotFound;
    }));
    const Followed job(server, *outcome.jobId);
    EXPECT_TRUE(waitUntil([&] { return job.last.isOver(); }));
    EXPECT_EQ(job.last.state, JobState::Completed);
    EXPECT_EQ(job.last.sentences(),
              QStringList{QStringLiteral("The job is finished; the print server keeps no record of it.")});
    EXPECT_EQ(job.problems, QStringList());
}

TEST_F(PrintingTest, AJobThatIsTakenBackIsCancelledWhateverTheServerKeeps)
{
    for (const char *const lines : {"", "PreserveJobHistory No\n"}) {
        SCOPED_TRACE(lines);
        cupsd.configure(lines);
        cupsd.pause(QStringLiteral("tape"));
        const Outcome outcome = print(ticket());
        ASSERT_TRUE(outcome.jobId);
        Followed job(server, *outcome.jobId);
        EXPECT_TRUE(waitUntil([&] { return job.last.jobId != 0; }));
        job.monitor.cancelJob();
        EXPECT_TRUE(waitUntil([&] { return job.last.isOver(); }));
        EXPECT_EQ(job.last.state, JobState::Canceled);
        EXPECT_EQ(job.last.sentences(), QStringList{QStringLiteral("Canceled.")});
        EXPECT_EQ(job.problems, QStringList());
    }
}

namespace {

/// Paper names with every character that a PPD keyword may hold, in the middle and in front, and names that
/// options, shells or IPP might take for something else.
QList<QByteArray> oddPaperNames()
{
    QList<QByteArray> names{"true", "False", "none", "{x}", "{a=b}", "noPaper", "a,b",
                            "'q'",  "\"q\"", "\\",   "-1",  "a=b c", "Custom1"};
    names.removeAll("a=b c"); // blanks end a keyword
    QByteArray group;
    for (char character = 33; character < 127; ++character) {
        if (character == '/' || character == ':')
            continue;
        if (!QByteArrayView("*\"").contains(character))
            names.append(QByteArray(1, character) + "f" + QByteArray::number(int{character}));
        group += character;
        if (group.size() == 15) {
            names.append("m" + group);
            group.clear();
        }
    }
    names.append("m" + group);
    return names;
}

} // namespace

TEST_F(PrintingTest, JobNumbersMayBeAsLargeAsIppAllows)
{
    // IPP: a job's number is an integer up to 2**31 - 1.
    constexpr int largeNumber = 2147483640;
    cupsd.kill();
    QFile cache(cupsd.path(QStringLiteral("cache/job.cache")));
    ASSERT_TRUE(cache.open(QIODevice::WriteOnly));
    cache.write("NextJobId " + QByteArray::number(largeNumber) + '\n');
    cache.close();
    cupsd.restart();
    EXPECT_EQ(print(ticket()).jobId, largeNumber);
    EXPECT_EQ(cupsd.waitForDocuments(1).back().job, largeNumber);
    Followed followed(server, largeNumber);
    EXPECT_TRUE(waitUntil([&] { return followed.last.state == JobState::Completed; }));
}

TEST_F(PrintingTest, PapersKeepTheirNamesByteForByte)
{
    PpdBuilder builder;
    // All papers have one size: only their names differ.
    for (const QByteArray &name : oddPaperNames())
        builder.paper(name, 68.0, 170.0);
    cupsd.addQueue(QStringLiteral("tape"), builder.ppd());
    ASSERT_TRUE(builder.writeTo(folder.filePath(QStringLiteral("odd.ppd"))));
    auto odd = host::PpdFile::open(folder.filePath(QStringLiteral("odd.ppd")));
    ASSERT_TRUE(odd) << qPrintable(odd.error().message);

    std::size_t count = 0;
    QList<QByteArray> sent;
    for (const host::PpdPaper &paper : odd.value().papers()) {
        JobTicket job = ticket();
        job.options = makeJobOptions(job.destination, &odd.value(), {{"PageSize", paper.name}}, {});
        const Outcome outcome = print(job);
        if (paper.name == "{f123") {
            // An unclosed brace would include the options after it, so the job is not sent.
            ASSERT_TRUE(outcome.error);
            EXPECT_TRUE(outcome.error->message.contains(QStringLiteral("{f123")));
            continue;
        }
        ASSERT_TRUE(outcome.jobId) << paper.name.toStdString() << qPrintable(outcome.error->message);
        sent.append(paper.name);
        ++count;
    }
    EXPECT_GT(count, 90U);
    const auto documents = cupsd.waitForDocuments(count);
    for (std::size_t i = 0; i < count; ++i)
        EXPECT_EQ(documents[i].option("PageSize"), sent[static_cast<qsizetype>(i)])
            << documents[i].optionText.toStdString();
}

TEST_F(PrintingTest, TheLpLineMakesTheSameJob)
{
    const JobTicket tickets[] = {
        ticket(),
        ticket({{"PageSize", "36mm", Origin::You}, {"KvMirror", "ON", Origin::Panel}}, {.copies = 2}),
        ticket({{"PageSize", "Custom.30x'40,5 mm\"", Origin::You}},
               {.pageRanges = QStringLiteral("2-"), .hold = QStringLiteral("hold"), .priority = 7}),
    };
    for (const JobTicket &each : tickets) {
        JobTicket job = each;
        job.title = QStringLiteral("It's 5 \"o'clock\" $HOME");
        cupsd.pause(QStringLiteral("tape"));
        const Outcome ours = print(job);
        ASSERT_TRUE(ours.jobId);
        const host::LpCommand command = lpCommand(server, job);
        ASSERT_TRUE(command.differences.isEmpty());
        QProcess shell;
        shell.start(QStringLiteral("sh"), {QStringLiteral("-c"), command.line});
        ASSERT_TRUE(shell.waitForFinished(test_support::failureMilliseconds));
        const QByteArray answer = shell.readAllStandardOutput();
        ASSERT_TRUE(answer.startsWith("request id is tape-")) << answer.toStdString();
        const int theirs = answer.mid(19).split(' ').first().toInt();

        const auto attributes = [&](int jobId) { return jobAttributes(server, jobId); };
        const QMap<QByteArray, QByteArray> mine = attributes(*ours.jobId);
        QMap<QByteArray, QByteArray> lps = attributes(theirs);
        EXPECT_FALSE(mine.isEmpty());
        for (auto it = mine.begin(); it != mine.end(); ++it)
            EXPECT_EQ(lps.value(it.key()), it.value()) << it.key().toStdString();
        // lp also sends the queue's defaults.
        const QMap<QByteArray, QByteArray> defaults = queueDefaults(server, QStringLiteral("tape"));
        for (auto it = lps.begin(); it != lps.end(); ++it) {
            if (!mine.contains(it.key())) {
                EXPECT_EQ(it.value(), defaults.value(it.key() + "-default")) << it.key().toStdString();
            }
        }
        cupsd.run(QStringLiteral("cancel"), {QStringLiteral("-a")});
        cupsd.resume(QStringLiteral("tape"));
    }
}
