// SPDX-License-Identifier: Apache-2.0
// The program while memory runs out at any point: it reports the error and prints nothing, or prints the
// whole job once.
#include "AllocationSweep.h"
#include "KvprintTest.h"

#include <QImage>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cups/cups.h>

using test_support::RecordedDocument;

namespace {

constexpr int printedWithoutPanel = 3;
const char *const sentAllTheSame = "The job was sent nevertheless";

/// Without what is another in each run: the times and numbers of jobs.
QByteArray comparable(const QByteArray &text)
{
    static const QRegularExpression changing(
        QStringLiteral("/(CreationDate|ModDate|ID|Id) ?[\\[(][^\\])]*[\\])]|job-uuid=\\S+|"
                       "time-at-[a-z]+=\\S+|date-time-at-[a-z]+=\\S+|uuid:[-0-9a-f]+|"
                       "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9:.+]*Z?"));
    return QString::fromLatin1(text).remove(changing).toLatin1();
}

} // namespace

class KvprintAllocations : public KvprintTest {
protected:
    KvprintAllocations()
    {
        // Qt writes the fonts of a PDF in the order of a hash table.
        kvprint.environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0"));
    }

    /// A program that fails ends by itself, with a message.
    static void expectMessage(const Outcome &outcome)
    {
        EXPECT_GE(outcome.status, 0) << outcome;
        if (outcome.status > 0) {
            EXPECT_TRUE(outcome.error.contains("kvprint: ")) << outcome;
        }
        EXPECT_FALSE(outcome.error.contains("std::bad_alloc")) << outcome;
    }

    QString records() const { return folder.filePath(QStringLiteral("state/kvprint/jobs")); }
};

class KvprintAllocationsOnQueue : public KvprintAllocations {
protected:
    KvprintAllocationsOnQueue() { addSampleQueue(tape, QStringLiteral("kvelland-lx900")); }

    void sweep(Failing failing)
    {
        const QStringList words{QStringLiteral("--no-dialog"), QStringLiteral("-d"), tape, samplePdf()};
        constexpr int points = 80;
        AllocationSweep sweep(points);
        // The first run fills the cache.
        ASSERT_EQ(kvprint.run(words).status, 0);
        const quint64 count = sweep.count(kvprint, words);
        whole = recorded(2).first();
        ASSERT_FALSE(HasFailure());
        for (const quint64 number : sweep.numbers(count)) {
            SCOPED_TRACE("allocation " + std::to_string(number));
            const QList<int> before = jobStates().keys();
            const Outcome outcome = sweep.run(kvprint, words, number, failing);
            sweep.note(outcome);
            expectMessage(outcome);
            QList<int> jobs = jobStates().keys();
            EXPECT_LE(jobs.size(), before.size() + 1) << outcome;
            jobs.removeIf([&](int job) { return before.contains(job); });
            expectWholeJobOrNone(outcome, jobs.value(0));
            forgetJob(jobs.value(0));
        }
    }

private:
    void expectWholeJobOrNone(const Outcome &outcome, int job)
    {
        if (outcome.status == 0) {
            EXPECT_GT(outcome.jobId(), 0) << outcome;
            EXPECT_EQ(outcome.jobId(), job) << outcome;
        }
        if (job == 0)
            return;
        const bool isSent = outcome.jobId() == job || outcome.error.contains(sentAllTheSame);
        const int state = jobStates().value(job);
        // A program that could not determine the state of the job has left its record.
        const bool isRecorded = !QDir(records()).isEmpty();
        const bool isGone = state == IPP_JOB_CANCELED || state == IPP_JOB_ABORTED;
        EXPECT_TRUE(isSent || isRecorded || isGone) << "job " << job << ", state " << state << "\n"
                                                    << outcome;
        if (isGone || state == IPP_JOB_HELD) {
            EXPECT_FALSE(isSent) << "job " << job << ", state " << state << "\n" << outcome;
            return;
        }
        const RecordedDocument document = waitFor(job);
        EXPECT_TRUE(comparable(document.content) == comparable(whole.content))
            << "the document differs: " << document.content.size() << " bytes instead of "
            << whole.content.size();
        EXPECT_EQ(document.title, whole.title);
        EXPECT_EQ(document.copies, whole.copies);
        // Without its page there are no cut options.
        if (outcome.status != printedWithoutPanel) {
            EXPECT_EQ(comparable(document.optionText), comparable(whole.optionText));
        }
    }

    RecordedDocument waitFor(int job)
    {
        printedJobs += 1;
        const QMap<int, RecordedDocument> documents = recorded(static_cast<std::size_t>(printedJobs) + 2);
        EXPECT_EQ(documents.size(), printedJobs + 2) << "more was printed than there are jobs";
        EXPECT_TRUE(documents.contains(job)) << job;
        return documents.value(job);
    }

    /// Cancels a job that is left, and looks whether its record can be read.
    void forgetJob(int job)
    {
        if (job > 0 && jobStates().value(job) == IPP_JOB_HELD)
            cupsd.run(QStringLiteral("cancel"),
                      {QStringLiteral("-h"), cupsd.address(), QString::number(job)});
        QDir jobs(records());
        for (const QString &name : jobs.entryList({QStringLiteral("*.json")})) {
            QFile record(jobs.filePath(name));
            EXPECT_TRUE(record.open(QIODevice::ReadOnly));
            EXPECT_TRUE(QJsonDocument::fromJson(record.readAll()).isObject()) << qPrintable(name);
        }
        jobs.removeRecursively();
    }

    RecordedDocument whole;
    int printedJobs = 0;
};

TEST_F(KvprintAllocationsOnQueue, OneThatFailsPrintsTheWholeJobOrNone)
{
    sweep(Failing::Once);
}

TEST_F(KvprintAllocationsOnQueue, AllThatFailPrintTheWholeJobOrNone)
{
    sweep(Failing::Since);
}

class KvprintAllocationsInFiles : public KvprintAllocations {
protected:
    QStringList wordsFor(const QString &output) const
    {
        return {QStringLiteral("--no-dialog"),
                QStringLiteral("--ppd"),
                QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd"),
                QStringLiteral("--output"),
                output,
                samplePdf()};
    }

    /// The files that a user sees, by their names.
    static QMap<QString, QByteArray> filesIn(const QString &path)
    {
        QMap<QString, QByteArray> files;
        const QDir output(path);
        for (const QString &name : output.entryList(QDir::Files)) {
            QFile file(output.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            files.insert(name, file.readAll());
        }
        return files;
    }

    static void expectSame(const QString &name, const QByteArray &file, const QByteArray &whole)
    {
        if (name.endsWith(QStringLiteral(".json"))) {
            EXPECT_EQ(file, whole);
        } else if (name.endsWith(QStringLiteral(".pdf"))) {
            EXPECT_TRUE(comparable(file) == comparable(whole)) << qPrintable(name);
        } else {
            EXPECT_FALSE(QImage::fromData(file).isNull());
        }
    }

    void sweep(Failing failing)
    {
        const QString output = folder.filePath(QStringLiteral("proof"));
        constexpr int points = 60;
        AllocationSweep sweep(points);
        const quint64 count = sweep.count(kvprint, wordsFor(output));
        const QMap<QString, QByteArray> whole = filesIn(output);
        ASSERT_EQ(whole.size(), 3);
        for (const quint64 number : sweep.numbers(count)) {
            SCOPED_TRACE("allocation " + std::to_string(number));
            QDir(output).removeRecursively();
            const Outcome outcome = sweep.run(kvprint, wordsFor(output), number, failing);
            sweep.note(outcome);
            expectMessage(outcome);
            const QMap<QString, QByteArray> files = filesIn(output);
            if (outcome.status == 0) {
                EXPECT_EQ(files.keys(), whole.keys()) << outcome;
            }
            if (!files.isEmpty()) {
                EXPECT_FALSE(outcome.error.contains("nothing was printed")) << outcome;
            }
            for (auto file = files.cbegin(); file != files.cend(); ++file)
                expectSame(file.key(), file.value(), whole.value(file.key()));
        }
    }
};

TEST_F(KvprintAllocationsInFiles, OneThatFailsLeavesWholeFilesOrNone)
{
    sweep(Failing::Once);
}

TEST_F(KvprintAllocationsInFiles, AllThatFailLeaveWholeFilesOrNone)
{
    sweep(Failing::Since);
}
