// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <tests/support/LaterHold.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cups/cups.h>

using test_support::holdPeriodHoursAway;
using test_support::holdTimeHoursAway;
using test_support::RecordedDocument;

namespace {

QString word(const char *text)
{
    return QString::fromUtf8(text);
}

/// The options as filters read them, in any order.
QMap<QByteArray, QByteArray> optionsOf(const RecordedDocument &document)
{
    QMap<QByteArray, QByteArray> all;
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(document.optionText.constData(), 0, &options);
    for (int i = 0; i < count; ++i)
        all.insert(options[i].name, options[i].value);
    cupsFreeOptions(count, options);
    all.remove("job-uuid");
    for (const QByteArray &name : all.keys()) {
        if (name.contains("time-at-"))
            all.remove(name);
    }
    return all;
}

} // namespace

class KvprintSameJob : public KvprintTest {
protected:
    KvprintSameJob()
    {
        addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-lx900"));
        file(QStringLiteral("home/.cups/lpoptions"),
             "Dest tape PrintDensity=Light\nDest tape/jars KvMirror=ON PageSize=24x60mm job-priority=30\n");
    }

    QJsonObject dryRun(const QStringList &words) const
    {
        const Outcome outcome =
            kvprint.run(QStringList{QStringLiteral("--dry-run"), QStringLiteral("--json")} + words +
                        QStringList{samplePdf()});
        EXPECT_EQ(outcome.status, 0) << outcome;
        QJsonParseError error;
        const QJsonDocument json = QJsonDocument::fromJson(outcome.out, &error);
        EXPECT_TRUE(json.isObject()) << qPrintable(error.errorString()) << "\n" << outcome;
        return json.object();
    }

    /// lp sends the queue's defaults in addition to its arguments.
    void expectEqual(const QMap<QByteArray, QByteArray> &ours,
                     const QMap<QByteArray, QByteArray> &theirs) const
    {
        for (auto it = ours.begin(); it != ours.end(); ++it)
            EXPECT_EQ(it.value(), theirs.value(it.key())) << it.key().toStdString();
        const QMap<QByteArray, QByteArray> queue = queueAttributes(QStringLiteral("tape"));
        for (auto it = theirs.begin(); it != theirs.end(); ++it) {
            const bool isTheQueues = sameDefault(queue.value(it.key() + "-default"), it.value());
            EXPECT_TRUE(ours.contains(it.key()) || isTheQueues)
                << it.key().toStdString() << '=' << it.value().toStdString();
        }
    }
    /// Filters receive numbers where servers report keywords.
    static bool sameDefault(const QByteArray &queues, const QByteArray &filters)
    {
        return queues == filters || (queues == "none" && filters == "3");
    }

    QMap<QByteArray, QByteArray> comparable(int jobId) const
    {
        QMap<QByteArray, QByteArray> all = jobAttributes(jobId);
        for (const char *own :
             {"job-id", "job-uuid", "job-uri", "job-more-info", "time-at-creation", "date-time-at-creation",
              "job-printer-up-time", "time-at-processing", "date-time-at-processing", "time-at-completed",
              "date-time-at-completed", "job-state", "job-state-reasons", "job-preserved",
              "job-printer-state-message", "job-printer-state-reasons"})
            all.remove(own);
        // lp lets the server find out what a document is.
        for (const char *format : {"document-format", "document-format-supplied", "document-format-detected"})
            all.remove(format);
        return all;
    }
};

TEST_F(KvprintSameJob, ComesOfTheLpLineThatIsTold)
{
    const QStringList rows[] = {
        {word("-d"), word("tape")},
        {word("-d"), word("tape/jars")},
        {word("-d"), word("tape/jars"), word("-o"), word("KvMirror=OFF")},
        {word("-d"), word("tape"), word("-n"), word("3"), word("-q"), word("70"), word("-t"),
         word("Jars & 'lids' \\ \"ä\"")},
        {word("-d"), word("tape"), word("-H"), word("hold")},
        {word("-d"), word("tape"), word("-H"), holdTimeHoursAway(6, word("hh:mm:ss"))},
        {word("-d"), word("tape"), word("-H"), holdPeriodHoursAway(), word("-P"), word("1")},
        {word("-d"), word("tape"), word("-H"), word("immediate")},
        {word("-d"), word("tape"), word("-o"),
         word("KvSpecialTape=ON PrintDensity=Custom.3 BeepWhen=JobDone\\,TapeEnd")},
        {word("-d"), word("tape"), word("--paper"), word("Custom.12x77mm"), word("-o"), word("landscape")},
        {word("-d"), word("tape"), word("-o"), word("collate=false"), word("-n"), word("2")},
        {word("-d"), word("tape"), word("-o"), word("job-billing='two words' number-up=2 fit-to-page")},
        {word("-d"), word("tape"), word("-m"), word("-U"), word("anna")},
        {word("-d"), word("tape"), word("--force"), word("-o"), word("Odd=a\\\\b\\'c\\\"d Odder=e\\,f")},
        {word("-h"), cupsd.address(), word("-d"), word("tape"), word("-n"), word("2")},
    };
    std::size_t printedSoFar = 0;
    for (const QStringList &words : rows) {
        const QJsonObject job = dryRun(words);
        const QString line = job[QStringLiteral("lp")].toString();
        // Pages that are laid out make another file.
        const bool isSameFile =
            !job[QStringLiteral("lpDifferences")].toArray().contains(QStringLiteral("print-scaling"));
        SCOPED_TRACE(qPrintable(words.join(u' ') + QStringLiteral("\n") + line));
        const Outcome ours =
            kvprint.run(QStringList{QStringLiteral("--no-dialog")} + words + QStringList{samplePdf()});
        ASSERT_EQ(ours.status, 0) << ours;
        const Outcome theirs = kvprint.runOther(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), line});
        ASSERT_EQ(theirs.status, 0) << theirs;
        const QList<int> jobs = jobStates().keys();
        ASSERT_GE(jobs.size(), 2);
        const int ourJob = jobs[jobs.size() - 2];
        const int theirJob = jobs[jobs.size() - 1];
        QMap<QByteArray, QByteArray> ourAttributes = comparable(ourJob);
        QMap<QByteArray, QByteArray> theirAttributes = comparable(theirJob);
        if (!isSameFile) {
            ourAttributes.remove("job-k-octets");
            theirAttributes.remove("job-k-octets");
        }
        expectEqual(ourAttributes, theirAttributes);
        if (jobStates().value(ourJob) == 4)
            continue;
        printedSoFar += 2;
        const auto documents = recorded(printedSoFar);
        expectEqual(optionsOf(documents.value(ourJob)), optionsOf(documents.value(theirJob)));
        EXPECT_EQ(documents.value(ourJob).copies, documents.value(theirJob).copies);
    }
}

TEST_F(KvprintSameJob, IsToldAsJson)
{
    const QJsonObject job =
        dryRun({word("-d"), word("tape"), word("-o"), word("KvMirror=ON"), word("-t"), word("A \"b\"\n")});
    EXPECT_EQ(job.keys().join(u' '),
              word("conflicts destination documents lp lpDifferences options preflight server title"));
    EXPECT_EQ(job[word("server")].toString(), cupsd.address());
    EXPECT_EQ(job[word("destination")].toString(), word("tape"));
    EXPECT_EQ(job[word("title")].toString(), word("A \"b\"\n"));
    const QJsonArray documents = job[word("documents")].toArray();
    ASSERT_EQ(documents.size(), 1);
    EXPECT_EQ(documents[0].toObject().keys().join(u' '), word("file type"));
    EXPECT_EQ(documents[0][word("type")].toString(), word("application/pdf"));
    bool hasMirror = false;
    const QJsonArray options = job[word("options")].toArray();
    for (const auto &option : options) {
        EXPECT_EQ(option.toObject().keys().join(u' '), word("name origin sent value"));
        if (option[word("name")].toString() != word("KvMirror"))
            continue;
        hasMirror = true;
        EXPECT_EQ(option[word("value")].toString(), word("ON"));
        EXPECT_EQ(option[word("origin")].toString(), word("you"));
        EXPECT_TRUE(option[word("sent")].toBool());
    }
    EXPECT_TRUE(hasMirror);
    EXPECT_TRUE(jobStates().isEmpty());
}

TEST_F(KvprintSameJob, IsSummedUpAsJson)
{
    const QStringList words{word("--summary"), word("-d"), word("tape"), word("-n"), word("3"), samplePdf()};
    const Outcome json = kvprint.run(words + QStringList{word("--json")});
    ASSERT_EQ(json.status, 0) << json;
    const QJsonArray sections = QJsonDocument::fromJson(json.out).array();
    ASSERT_FALSE(sections.isEmpty()) << json;
    const Outcome plain = kvprint.run(words);
    for (const auto &section : sections) {
        EXPECT_EQ(section.toObject().keys().join(u' '), word("lines title"));
        const QJsonArray lines = section[word("lines")].toArray();
        for (const auto &line : lines) {
            EXPECT_EQ(line.toObject().keys().join(u' '), word("title value"));
            EXPECT_TRUE(plain.out.contains(line[word("value")].toString().toUtf8())) << plain;
        }
    }
    EXPECT_TRUE(jobStates().isEmpty());
}
