// SPDX-License-Identifier: Apache-2.0
#include <tests/support/PpdBuilder.h>
#include <tests/support/PrivateCupsd.h>

#include <QFile>

#include <gtest/gtest.h>

using test_support::PpdBuilder;
using test_support::PrivateCupsd;

// The server that all other tests use: what lp sends must come out of the recording filter.
TEST(PrivateCupsd, RecordsWhatItsFilterIsGiven)
{
    PrivateCupsd server;
    ASSERT_TRUE(server.isRunning());
    server.addQueue(QStringLiteral("tape"), PpdBuilder().allOptions().ppd());
    const QString file = server.path(QStringLiteral("label.txt"));
    QFile document(file);
    ASSERT_TRUE(document.open(QIODevice::WriteOnly));
    document.write("a label\n");
    document.close();

    server.run(QStringLiteral("lp"),
               {QStringLiteral("-d"), QStringLiteral("tape"), QStringLiteral("-t"),
                QStringLiteral("Jars & 'lids'"), QStringLiteral("-n"), QStringLiteral("3"),
                QStringLiteral("-o"), QStringLiteral("KvHalfCut=ON PageSize=36mm"), file});

    const auto documents = server.waitForDocuments(1);
    EXPECT_EQ(documents[0].title, "Jars & 'lids'");
    EXPECT_EQ(documents[0].copies, "3");
    EXPECT_EQ(documents[0].option("KvHalfCut"), "ON");
    EXPECT_EQ(documents[0].option("PageSize"), "36mm");
    EXPECT_TRUE(documents[0].option("KvMirror").isNull());
    EXPECT_EQ(documents[0].content, "a label\n");
}

TEST(PrivateCupsd, ComesBackOnTheSamePortWithItsQueues)
{
    PrivateCupsd server;
    server.addQueue(QStringLiteral("tape"), PpdBuilder().ppd());
    server.addClass(QStringLiteral("all"), {QStringLiteral("tape")});
    const QString address = server.address();
    server.kill();
    EXPECT_FALSE(server.isRunning());
    server.restart();
    EXPECT_EQ(server.address(), address);
    const QByteArray queues = server.run(QStringLiteral("lpstat"), {QStringLiteral("-e")});
    EXPECT_EQ(queues, "all\ntape\n");
}
