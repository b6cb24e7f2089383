// SPDX-License-Identifier: Apache-2.0
// The values of the user's lpoptions and of the queue for pages and copies are shown and printed alike.
#include "KvprintTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class KvprintDefaults : public KvprintTest {
protected:
    KvprintDefaults() { addSampleQueue(tape, QStringLiteral("kvelland-lx900")); }

    /// The lines of the summary, by their titles.
    QMap<QString, QString> summary(const QStringList &words) const
    {
        const Outcome outcome = kvprint.run(
            QStringList{QStringLiteral("--summary"), QStringLiteral("--json"), QStringLiteral("-d"), tape} +
            words + QStringList{samplePdf()});
        EXPECT_EQ(outcome.status, 0) << outcome;
        QMap<QString, QString> lines;
        for (const QJsonValue section : QJsonDocument::fromJson(outcome.out).array()) {
            for (const QJsonValue line : section[QStringLiteral("lines")].toArray())
                lines[line[QStringLiteral("title")].toString()] = line[QStringLiteral("value")].toString();
        }
        return lines;
    }
};

} // namespace

TEST_F(KvprintDefaults, AreShownAsTheyArePrinted)
{
    const int pages = summary({})[QStringLiteral("Labels")].toInt();
    ASSERT_GT(pages, 3);
    cupsd.run(QStringLiteral("lpadmin"),
              {QStringLiteral("-p"), tape, QStringLiteral("-o"), QStringLiteral("copies-default=2")});
    EXPECT_EQ(summary({})[QStringLiteral("Copies")], QStringLiteral("2"));
    EXPECT_EQ(summary({})[QStringLiteral("Labels")].toInt(), 2 * pages);

    file(QStringLiteral("home/.cups/lpoptions"), "Dest tape copies=3 page-ranges=2-3 outputorder=reverse\n");
    QMap<QString, QString> told = summary({});
    EXPECT_EQ(told[QStringLiteral("Copies")], QStringLiteral("3"));
    EXPECT_EQ(told[QStringLiteral("Pages")], QStringLiteral("2-3"));
    EXPECT_EQ(told[QStringLiteral("Order")], QStringLiteral("reverse"));
    EXPECT_EQ(told[QStringLiteral("Labels")], QStringLiteral("6"));
    const Outcome outcome =
        kvprint.run({QStringLiteral("--no-dialog"), QStringLiteral("-d"), tape, samplePdf()});
    ASSERT_EQ(outcome.status, 0) << outcome;
    const test_support::RecordedDocument defaultValue = recorded(1)[outcome.jobId()];
    EXPECT_EQ(defaultValue.copies, "3");
    EXPECT_EQ(defaultValue.option("page-ranges"), "2-3");
    EXPECT_EQ(defaultValue.option("outputorder"), "reverse");

    const QStringList requested{QStringLiteral("-n"), QStringLiteral("1"),
                                QStringLiteral("-P"), QStringLiteral("4,1-2"),
                                QStringLiteral("-o"), QStringLiteral("outputorder=normal")};
    told = summary(requested);
    EXPECT_EQ(told[QStringLiteral("Copies")], QStringLiteral("1"));
    EXPECT_EQ(told[QStringLiteral("Labels")], QStringLiteral("3"));
    EXPECT_FALSE(told.contains(QStringLiteral("Order")));
}

TEST_F(KvprintDefaults, MoreLabelsThanAnybodyPrintsAreRefused)
{
    expectError({QStringLiteral("-d"), tape, QStringLiteral("-n"), QStringLiteral("9999"), samplePdf(),
                 samplePdf(), samplePdf()},
                {QStringLiteral("more than 100000")});
}
