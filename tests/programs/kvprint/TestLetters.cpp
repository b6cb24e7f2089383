// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <tests/support/LaterHold.h>

#include <QFile>

using test_support::holdTimeHoursAway;
using test_support::RecordedDocument;

namespace {

QByteArray content(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

} // namespace

class KvprintLetters : public KvprintTest {
protected:
    KvprintLetters() { addSampleQueue(tape, QStringLiteral("kvelland-lx900")); }
};

TEST_F(KvprintLetters, MeanWhatTheyMeanToLp)
{
    const QString later = holdTimeHoursAway(6, QStringLiteral("hh:mm"));
    const struct {
        QStringList words;
        const char *attribute;
        QByteArray value;
    } rows[] = {
        {{QStringLiteral("-n"), QStringLiteral("3")}, "copies", "3"},
        {{QStringLiteral("-n3")}, "copies", "3"},
        {{QStringLiteral("-o"), QStringLiteral("copies=4")}, "copies", "4"},
        {{QStringLiteral("-q"), QStringLiteral("70")}, "job-priority", "70"},
        {{QStringLiteral("-o"), QStringLiteral("job-priority=1")}, "job-priority", "1"},
        {{QStringLiteral("-H"), QStringLiteral("hold")}, "job-hold-until", "indefinite"},
        {{QStringLiteral("-H"), later}, "job-hold-until", later.toUtf8()},
        {{QStringLiteral("-H"), QStringLiteral("immediate")}, "job-priority", "100"},
        {{QStringLiteral("-P"), QStringLiteral("1")}, "page-ranges", "1-1"},
        {{QStringLiteral("-t"), QStringLiteral("Jars & 'lids' ÄÖ")}, "job-name", "Jars & 'lids' ÄÖ"},
        {{QStringLiteral("-o"), QStringLiteral("job-name=Jars")}, "job-name", "Jars"},
        {{}, "job-name", "label.png"},
        {{QStringLiteral("-U"), QStringLiteral("anna")}, "job-originating-user-name", "anna"},
        {{QStringLiteral("-c"), QStringLiteral("-n"), QStringLiteral("2")}, "copies", "2"},
        {{QStringLiteral("-o"), QStringLiteral("landscape")}, "print-scaling", "none"},
        {{QStringLiteral("-o"), QStringLiteral("KvMirror=ON PrintDensity=Dark")}, "PrintDensity", "Dark"},
        {{QStringLiteral("-o"), QStringLiteral("KvMirror=ON PrintDensity=Dark")}, "KvMirror", "ON"},
        {{QStringLiteral("-o"), QStringLiteral("PrintDensity=Dark"), QStringLiteral("-o"),
          QStringLiteral("PrintDensity=Light")},
         "PrintDensity",
         "Light"},
        {{QStringLiteral("-o"), QStringLiteral("job-billing='two words'")}, "job-billing", "two words"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(qPrintable(row.words.join(u' ')));
        const Outcome outcome = print(QStringList{QStringLiteral("-d"), tape} + row.words);
        ASSERT_EQ(outcome.status, 0) << outcome;
        EXPECT_EQ(outcome.out,
                  "request id is tape-" + QByteArray::number(outcome.jobId()) + " (1 file(s))\n");
        EXPECT_EQ(outcome.error, QByteArray());
        EXPECT_EQ(jobAttributes(outcome.jobId()).value(row.attribute), row.value);
    }
}

TEST_F(KvprintLetters, HoldUntilItIsReleased)
{
    const Outcome held = print({QStringLiteral("-d"), tape, QStringLiteral("-H"), QStringLiteral("hold")});
    ASSERT_GT(held.jobId(), 0) << held;
    EXPECT_EQ(jobStates().value(held.jobId()), 4);
    const QString job = QStringLiteral("tape-%1").arg(held.jobId());
    const Outcome changed = kvprint.run({QStringLiteral("-i"), job, QStringLiteral("-n"), QStringLiteral("5"),
                                         QStringLiteral("-t"), QStringLiteral("Later"), QStringLiteral("-o"),
                                         QStringLiteral("PrintDensity=Dark")});
    EXPECT_EQ(changed.status, 0) << changed;
    EXPECT_EQ(changed.out + changed.error, QByteArray());
    EXPECT_EQ(jobAttributes(held.jobId()).value("job-name"), "Later");
    EXPECT_TRUE(cupsd.documents().empty());
    const Outcome released =
        kvprint.run({QStringLiteral("-i"), job, QStringLiteral("-H"), QStringLiteral("resume")});
    EXPECT_EQ(released.status, 0) << released;
    const RecordedDocument document = recorded(1).value(held.jobId());
    EXPECT_EQ(document.copies, "5");
    EXPECT_EQ(document.title, "Later");
    EXPECT_EQ(document.option("PrintDensity"), "Dark");
}

TEST_F(KvprintLetters, KeepQuiet)
{
    for (const char *letter : {"-s", "-m", "-sm"}) {
        const Outcome outcome = print({QLatin1String(letter), QStringLiteral("-d"), tape});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.out + outcome.error, QByteArray()) << letter;
    }
    recorded(3);
}

TEST_F(KvprintLetters, TakeDocumentsBehindTheDashes)
{
    QFile::copy(picture(), folder.filePath(QStringLiteral("-n.png")));
    const Outcome outcome = kvprint.runOther(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), QStringLiteral("cd \"$1\" && \"$2\" --no-dialog -d tape -- -n.png"),
         QStringLiteral("sh"), folder.path(), QStringLiteral(KV_PROGRAM)});
    ASSERT_EQ(outcome.status, 0) << outcome;
    EXPECT_EQ(recorded(1).value(outcome.jobId()).title, "-n.png");
}

TEST_F(KvprintLetters, TakeStandardInput)
{
    const QByteArray pdf = content(samplePdf());
    for (const QStringList &word : {QStringList{QStringLiteral("-")}, QStringList{}}) {
        const std::size_t before = cupsd.documents().size();
        const Outcome outcome =
            kvprint.run(QStringList{QStringLiteral("--no-dialog"), QStringLiteral("-d"), tape} + word, pdf);
        ASSERT_EQ(outcome.status, 0) << outcome;
        EXPECT_EQ(outcome.out,
                  "request id is tape-" + QByteArray::number(outcome.jobId()) + " (1 file(s))\n");
        const RecordedDocument document = recorded(before + 1).value(outcome.jobId());
        EXPECT_EQ(document.title, "(stdin)");
        EXPECT_EQ(document.content, pdf);
    }
}

TEST_F(KvprintLetters, PrintSeveralDocumentsAsOneJobInOrder)
{
    const QString svg =
        file(QStringLiteral("four.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='12mm' height='50mm'>"
                                         "<rect width='5' height='5'/></svg>");
    const QStringList paths{picture(QStringLiteral("one.jpg")), samplePdf(),
                            picture(QStringLiteral("three.png")), svg};
    const Outcome outcome =
        kvprint.run(QStringList{QStringLiteral("--no-dialog"), QStringLiteral("-d"), tape} + paths);
    ASSERT_EQ(outcome.status, 0) << outcome;
    EXPECT_EQ(outcome.out, "request id is tape-" + QByteArray::number(outcome.jobId()) + " (4 file(s))\n");
    const auto documents = cupsd.waitForDocuments(4);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(documents[i].job, outcome.jobId());
        EXPECT_EQ(documents[i].title, "one.jpg");
    }
    EXPECT_EQ(documents[1].content, content(paths[1]));
    // Pictures are sent as the pages that they were shown as.
    for (const std::size_t i : {0U, 2U, 3U})
        EXPECT_TRUE(documents[i].content.startsWith("%PDF-")) << i;
}

TEST_F(KvprintLetters, MailWhenTheJobIsOverAsLpDoes)
{
    const auto recipients = [&] {
        QByteArrayList all;
        for (const QByteArray &line : content(cupsd.path(QStringLiteral("log/error"))).split('\n')) {
            const qsizetype at = line.indexOf("uri=\"mailto:");
            if (at >= 0)
                all.append(line.mid(at));
        }
        return all;
    };
    const Outcome lp =
        kvprint.runOther(QStringLiteral("lp"), {QStringLiteral("-d"), tape, QStringLiteral("-m"), picture()});
    ASSERT_EQ(lp.status, 0) << lp;
    EXPECT_EQ(lp.out, QByteArray());
    const Outcome outcome = print({QStringLiteral("-d"), tape, QStringLiteral("-m")});
    ASSERT_EQ(outcome.status, 0) << outcome;
    ASSERT_EQ(recipients().size(), 2);
    EXPECT_EQ(recipients()[1], recipients()[0]);
    const Outcome other = print(
        {QStringLiteral("-m"), QStringLiteral("-U"), QStringLiteral("anna"), QStringLiteral("-d"), tape});
    ASSERT_EQ(other.status, 0) << other;
    EXPECT_TRUE(recipients().last().startsWith("uri=\"mailto:anna@"));
    recorded(3);
}
